#pragma once

#include "GalleryPanel.h"

#include <QVariantHash>

class DictionaryView;
class QLabel;
class TXCheckForUpdateWidget;
class TXStringI18n;

/// Opens the library's update dialog as a host does, and shows the release that it has found and
/// where its file is downloaded to. A check is for a service on this computer only.
class UpdateDialogPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit UpdateDialogPanel(QWidget *parent = nullptr);

    /// The dialog, hidden at first. Owned.
    [[nodiscard]] TXCheckForUpdateWidget *dialog() const { return updates; }

public slots:
    /// Whether there is a service on this computer to ask; false at first.
    void setServiceRunning(bool isRunning);

protected:
    void retranslate() override;

private slots:
    void check();
    void showRelease(const QVariantHash &info);
    void showFolder();

private:
    [[nodiscard]] QString shownPath() const;
    void tell(const TXStringI18n &text);
    void setUpLayout();

    TXCheckForUpdateWidget *updates;
    QPushButton *checkButton;
    QPushButton *folderButton;
    QLabel *explanation;
    DictionaryView *view;
    // Of the release that was found last, where its file goes by default.
    QString filePath;
};
