#pragma once

#include "TXGUICommonExport.h"

#include <QFileDialog>
#include <QList>
#include <QString>
#include <QUrl>

/// The static functions of QFileDialog with a memory: a call that names a key for the folder or for
/// the filter starts where the last call with that key ended.
///
/// The memory lies in the application's QSettings under the keys as they are given, so the host
/// sets the organisation and application names first. An empty key remembers nothing, and neither
/// does a null `selectedFilter` for the filter. The folder is remembered when something was chosen,
/// the filter also when the dialog was cancelled. All other arguments, and the results, are those
/// of the function of QFileDialog with the same name.
///
/// A remembered folder counts more than `dir`, of which only the name of a file is kept: a save
/// dialog that proposes "report.txt" proposes it in the remembered folder.
///
/// Take getOpenDialogDirectoryForKey() where a dialog of your own wants a remembered folder.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXFileDialog
{
public:
    TXFileDialog() = delete;

    /// A folder, remembered as its path.
    static QString getExistingDirectory(QWidget *parent = nullptr, const QString &caption = {},
                                        const QString &dir = {},
                                        QFileDialog::Options options = QFileDialog::ShowDirsOnly,
                                        QString directoryKey = {});

    /// A folder, remembered as its URL without user name, password and port.
    static QUrl getExistingDirectoryUrl(QWidget *parent = nullptr, const QString &caption = {},
                                        const QUrl &dir = {},
                                        QFileDialog::Options options = QFileDialog::ShowDirsOnly,
                                        const QList<QString> &supportedSchemes = {},
                                        QString directoryKey = {});

    /// An existing file; its folder is remembered by its absolute path.
    static QString getOpenFileName(QWidget *parent = nullptr, const QString &caption = {},
                                   const QString &dir = {}, const QString &filter = {},
                                   QString *selectedFilter = nullptr,
                                   QFileDialog::Options options = {}, QString directoryKey = {},
                                   QString filterKey = {});

    /// Existing files; the folder of the first is remembered by its absolute path.
    static QList<QString> getOpenFileNames(QWidget *parent = nullptr, const QString &caption = {},
                                           const QString &dir = {}, const QString &filter = {},
                                           QString *selectedFilter = nullptr,
                                           QFileDialog::Options options = {},
                                           QString directoryKey = {}, QString filterKey = {});

    /// A file to write; its folder is remembered by its absolute path.
    static QString getSaveFileName(QWidget *parent = nullptr, const QString &caption = {},
                                   const QString &dir = {}, const QString &filter = {},
                                   QString *selectedFilter = nullptr,
                                   QFileDialog::Options options = {}, QString directoryKey = {},
                                   QString filterKey = {});

    /// An existing file; the URL of the file itself is remembered, without user name, password and
    /// port.
    static QUrl getOpenFileUrl(QWidget *parent = nullptr, const QString &caption = {},
                               const QUrl &dir = {}, const QString &filter = {},
                               QString *selectedFilter = nullptr, QFileDialog::Options options = {},
                               const QList<QString> &supportedSchemes = {},
                               QString directoryKey = {}, QString filterKey = {});

    /// Existing files; the URL of the first is remembered, without user name, password and port.
    static QList<QUrl> getOpenFileUrls(QWidget *parent = nullptr, const QString &caption = {},
                                       const QUrl &dir = {}, const QString &filter = {},
                                       QString *selectedFilter = nullptr,
                                       QFileDialog::Options options = {},
                                       const QList<QString> &supportedSchemes = {},
                                       QString directoryKey = {}, QString filterKey = {});

    /// A file to write; its URL is remembered, without user name, password and port.
    static QUrl getSaveFileUrl(QWidget *parent = nullptr, const QString &caption = {},
                               const QUrl &dir = {}, const QString &filter = {},
                               QString *selectedFilter = nullptr, QFileDialog::Options options = {},
                               const QList<QString> &supportedSchemes = {},
                               QString directoryKey = {}, QString filterKey = {});

    /// Shows a folder, or a file selected in its folder, in the desktop's file manager. Returns
    /// whether the program that shows it was started, without waiting for it; nothing tells whether
    /// it shows anything.
    static bool showInGraphicalShell(const QString &path);
};
