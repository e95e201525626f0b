#pragma once

#include "BusyPage.h"
#include "DialogDriver.h"
#include "FolderScanPanel.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageChecks.h"
#include "TestBase.h"
#include "WorkersPanel.h"

#include "TXProgressBar.h"
#include "WaitWidget.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <memory>

/// Base of the tests of the page on busy indicators, which each find it open in the gallery's
/// window, and a folder with a few files.
class BusyPageTest : public TestBase
{
protected:
    void prepare() override
    {
        QLocale::setDefault(QLocale("en"));
        folder = std::make_unique<QTemporaryDir>();
        write("inks/cyan/a", QByteArray(3000, 'c'));
        write("inks/magenta/b", QByteArray(5000, 'm'));
        write("inks/magenta/c", QByteArray(3000, 'c'));
        GallerySettings settings;
        settings.page = "busy";
        languages = std::make_unique<GalleryLanguages>(QString());
        window = std::make_unique<GalleryWindow>(*languages, settings);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QVERIFY(page());
        scan()->setFolders(folder->filePath("inks"));
        workers()->setFolders(folder->filePath("inks"));
    }

    void finish() override
    {
        window.reset();
        languages.reset();
        folder.reset();
        QLocale::setDefault(QLocale::system());
    }

    void write(const QString &name, const QByteArray &content) const
    {
        const QString path = folder->filePath(name);
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }

    [[nodiscard]] BusyPage *page() const { return qobject_cast<BusyPage *>(window->currentPage()); }
    [[nodiscard]] FolderScanPanel *scan() const { return window->findChild<FolderScanPanel *>(); }
    [[nodiscard]] WorkersPanel *workers() const { return window->findChild<WorkersPanel *>(); }
    [[nodiscard]] QList<WaitWidget *> spinners() const
    {
        return scan()->findChildren<WaitWidget *>();
    }
    [[nodiscard]] TXProgressBar *bar() const { return workers()->findChild<TXProgressBar *>(); }
    [[nodiscard]] QTreeWidget *list() const { return scan()->findChild<QTreeWidget *>(); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<GalleryWindow> window;
};
