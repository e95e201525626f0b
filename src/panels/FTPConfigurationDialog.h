#pragma once

#include "TXGUICommonExport.h"

#include <QDialog>
#include <QHash>
#include <QString>
#include <QVariant>

#include <memory>

namespace Ui {
class FTPConfigurationDialog;
}

/// An FTPConfigurationWidget in a window-modal dialog with OK and Cancel, under a heading.
///
/// Run it with exec(), and read dictionary() when the result is QDialog::Accepted. The window has
/// no close button; Escape cancels. A check that still runs does not hold the dialog open.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT FTPConfigurationDialog : public QDialog
{
    Q_OBJECT

public:
    /// Shows the settings, as FTPConfigurationWidget::load() reads them. `title` is the heading,
    /// not the window's title; that one tells whether this is an import or an export. Whether files
    /// are erased at the source is asked for an import only.
    FTPConfigurationDialog(const QHash<QString, QVariant> &settings, const QString &title,
                           bool isImport, QWidget *parent = nullptr);
    ~FTPConfigurationDialog() override;

    /// The settings as they stand in the panel, whether or not the dialog was accepted; the keys
    /// are those of FTPConfigurationWidget::dictionary().
    QHash<QString, QVariant> dictionary();

protected:
    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

private:
    void showWindowTitle();

    std::unique_ptr<Ui::FTPConfigurationDialog> ui;
    const bool isImport;
};
