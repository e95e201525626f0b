#pragma once

#include "GalleryPanel.h"

#include "LocalMailServer.h"

class QLabel;
class QPlainTextEdit;
class QTreeWidget;
class QTreeWidgetItem;

/// The mails that a server has got, newest last, and the selected one as it came over the line.
class ReceivedMailsPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    /// The oldest mails above this number are dropped.
    static constexpr int kMaximumMails = 200;

    explicit ReceivedMailsPanel(QWidget *parent = nullptr);

public slots:
    /// Adds a mail and selects it.
    void addMail(const ReceivedMail &mail);

    void clear();

protected:
    void retranslate() override;

private slots:
    void showContent();

private:
    void showTexts(QTreeWidgetItem *item) const;
    void setUpList();
    void setUpLayout();

    QTreeWidget *list;
    QLabel *listLabel;
    QLabel *contentLabel;
    QPlainTextEdit *content;
    QPushButton *clearButton;
};
