#pragma once

#include "GalleryPage.h"

#include <QString>

class DictionaryView;
class EMailSenderWidget;
class MailServerPanel;
class QGroupBox;
class QPushButton;
class ReceivedMailsPanel;

/// The library's mail panel beside a real mail server on this computer, which it can be filled in
/// for, and the mails that the server gets.
class MailPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit MailPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    void fillForPicture() override;
    [[nodiscard]] bool isReady() const override { return !isFilling; }

protected:
    void retranslate() override;

private slots:
    void fillIn();
    void showSettings();
    void mailShown();
    void exampleFailed(const QString &reason);

private:
    void sendExample();
    void endFilling();
    void setUpLayout();

    MailServerPanel *serverPanel;
    QGroupBox *senderBox;
    EMailSenderWidget *senderWidget;
    QGroupBox *settingsBox;
    QPushButton *settingsButton;
    DictionaryView *settingsView;
    ReceivedMailsPanel *received;
    bool isFilling = false;
};
