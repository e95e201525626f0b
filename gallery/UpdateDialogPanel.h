#pragma once

#include "GalleryPanel.h"

#include <QVariantHash>

class DictionaryView;
class QLabel;
class TXCheckForUpdateWidget;

/// Opens the library's update dialog as a host does, and shows the release that it has found and
/// where its file is downloaded to.
class UpdateDialogPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit UpdateDialogPanel(QWidget *parent = nullptr);

    /// The dialog, hidden at first. Owned.
    [[nodiscard]] TXCheckForUpdateWidget *dialog() const { return updates; }

protected:
    void retranslate() override;

private slots:
    void showRelease(const QVariantHash &info);
    void showFolder();

private:
    [[nodiscard]] QString shownPath() const;
    void setUpLayout();

    TXCheckForUpdateWidget *updates;
    QPushButton *checkButton;
    QPushButton *folderButton;
    QLabel *explanation;
    DictionaryView *view;
    // Of the release that was found last, where its file goes by default.
    QString filePath;
};
