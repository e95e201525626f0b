#pragma once

#include "DialogDriver.h"
#include "TXFileDialog.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QUrl>

/// The operations of TXFileDialog, each the namesake of a function of QFileDialog.
enum class FileOperation {
    getExistingDirectory,
    getExistingDirectoryUrl,
    getOpenFileName,
    getOpenFileNames,
    getSaveFileName,
    getOpenFileUrl,
    getOpenFileUrls,
    getSaveFileUrl
};

/// What the user of the test does with the dialog.
struct FileDialogUser
{
    /// What goes into the line edit; null leaves what is there.
    QString typed;
    /// The filter that is chosen; null leaves the one that is.
    QString chosenFilter;
    bool cancels = false;
};

/// What the dialog showed when it opened.
struct ShownFileDialog
{
    QString title;
    QString folder;
    QString proposal;
    QStringList filters;
    QString filter;
    QFileDialog::Options options;
    QFileDialog::FileMode fileMode = QFileDialog::AnyFile;
    QFileDialog::AcceptMode acceptMode = QFileDialog::AcceptOpen;
    QStringList schemes;
    const QObject *parent = nullptr;

    bool operator==(const ShownFileDialog &) const = default;
};

/// One call of an operation behind a shape that all of them share, so that a test can go through
/// them, and can put TXFileDialog beside QFileDialog.
struct FileDialogCall
{
    FileOperation operation = FileOperation::getOpenFileName;
    QWidget *parent = nullptr;
    QString caption;
    /// A path, which operations on URLs get as a local URL.
    QString dir;
    QString filter;
    QString *selectedFilter = nullptr;
    QFileDialog::Options options;
    QStringList schemes;

    FileDialogUser user;
    /// Filled in by a call.
    ShownFileDialog shown;

    [[nodiscard]] bool isForUrls() const
    {
        return operation == FileOperation::getExistingDirectoryUrl
            || operation >= FileOperation::getOpenFileUrl;
    }

    [[nodiscard]] bool isForFolders() const { return operation < FileOperation::getOpenFileName; }

    [[nodiscard]] bool isForSeveral() const
    {
        return operation == FileOperation::getOpenFileNames
            || operation == FileOperation::getOpenFileUrls;
    }

    /// Calls TXFileDialog. The results are paths, or URLs fully encoded.
    QStringList run(const QString &directoryKey, const QString &filterKey = {})
    {
        return answered([&] { return ask<TXFileDialog>(directoryKey, filterKey); });
    }

    /// Calls QFileDialog.
    QStringList runWithoutMemory()
    {
        return answered([&] { return ask<QFileDialog>(); });
    }

private:
    static QStringList texts(const QString &path) { return texts(QStringList(path)); }
    static QStringList texts(const QUrl &url) { return texts(QList<QUrl>{url}); }

    static QStringList texts(QStringList paths)
    {
        paths.removeAll(QString());
        return paths;
    }

    static QStringList texts(const QList<QUrl> &urls)
    {
        QStringList all;
        for (const QUrl &url : urls) {
            all.append(url.toString(QUrl::FullyEncoded));
        }
        return texts(all);
    }

    template<class Dialog, class... Key>
    QStringList ask(const Key &...key) const
    {
        return isForFolders() ? askForFolder<Dialog>(key...)
            : isForUrls()     ? askForUrl<Dialog>(key...)
                              : askForName<Dialog>(key...);
    }

    template<class Dialog>
    QStringList askForFolder() const
    {
        return isForUrls() ? texts(Dialog::getExistingDirectoryUrl(
                   parent, caption, QUrl::fromLocalFile(dir), options, schemes))
                           : texts(Dialog::getExistingDirectory(parent, caption, dir, options));
    }

    template<class Dialog>
    QStringList askForFolder(const QString &key, const QString &) const
    {
        return isForUrls()
            ? texts(Dialog::getExistingDirectoryUrl(parent, caption, QUrl::fromLocalFile(dir),
                                                    options, schemes, key))
            : texts(Dialog::getExistingDirectory(parent, caption, dir, options, key));
    }

    template<class Dialog, class... Key>
    QStringList askForName(const Key &...key) const
    {
        const auto askWith = [&](auto function) {
            return texts(function(parent, caption, dir, filter, selectedFilter, options, key...));
        };
        switch (operation) {
        case FileOperation::getOpenFileName:
            return askWith(Dialog::getOpenFileName);
        case FileOperation::getOpenFileNames:
            return askWith(Dialog::getOpenFileNames);
        default:
            return askWith(Dialog::getSaveFileName);
        }
    }

    template<class Dialog, class... Key>
    QStringList askForUrl(const Key &...key) const
    {
        const auto askWith = [&](auto function) {
            return texts(function(parent, caption, QUrl::fromLocalFile(dir), filter, selectedFilter,
                                  options, schemes, key...));
        };
        switch (operation) {
        case FileOperation::getOpenFileUrl:
            return askWith(Dialog::getOpenFileUrl);
        case FileOperation::getOpenFileUrls:
            return askWith(Dialog::getOpenFileUrls);
        default:
            return askWith(Dialog::getSaveFileUrl);
        }
    }

    template<class Ask>
    QStringList answered(const Ask &askTheUser)
    {
        DialogDriver driver;
        driver.expect([this](QDialog &dialog) {
            auto *fileDialog = qobject_cast<QFileDialog *>(&dialog);
            QVERIFY(fileDialog);
            look(*fileDialog);
            answer(*fileDialog);
        });
        return askTheUser();
    }

    static QLineEdit *nameEdit(const QFileDialog &dialog)
    {
        return dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    }

    void look(const QFileDialog &dialog)
    {
        shown = {dialog.windowTitle(),        dialog.directory().absolutePath(),
                 nameEdit(dialog)->text(),    dialog.nameFilters(),
                 dialog.selectedNameFilter(), dialog.options(),
                 dialog.fileMode(),           dialog.acceptMode(),
                 dialog.supportedSchemes(),   dialog.parent()};
    }

    void answer(QFileDialog &dialog) const
    {
        if (!user.chosenFilter.isNull()) {
            dialog.selectNameFilter(user.chosenFilter);
        }
        if (!user.typed.isNull()) {
            nameEdit(dialog)->setText(user.typed);
        }
        DialogDriver::click(dialog, user.cancels ? QDialogButtonBox::Cancel : acceptButton(dialog));
    }

    static QDialogButtonBox::StandardButton acceptButton(const QFileDialog &dialog)
    {
        return dialog.acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save
                                                              : QDialogButtonBox::Open;
    }
};
