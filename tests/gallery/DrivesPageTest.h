#pragma once

#include "DialogDriver.h"
#include "DrivesPage.h"
#include "PageChecks.h"
#include "SambaServerPanel.h"
#include "ShareSearchPanel.h"
#include "TestBase.h"

#include "AutoMountNetworkDrive.h"
#include "TXAutoMountManager.h"

#include <QComboBox>
#include <QFile>
#include <QPlainTextEdit>
#include <QTemporaryDir>

#include <memory>

/// Base of the tests of the drives page, which each find it shown, with no drive in the list, the
/// server off, and the manager stopped. No desktop connects drives here, the user's least of all.
class DrivesPageTest : public TestBase
{
protected:
    using Trouble = SambaServerPanel::Trouble;

    static constexpr int kPatienceMilliseconds = 30000;

    DrivesPageTest()
    {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeFolder.path()));
        qputenv("DBUS_SESSION_BUS_ADDRESS",
                "unix:path=" + QFile::encodeName(runtimeFolder.filePath("nobody")));
    }

    void prepare() override
    {
        while (manager->count() > 0) {
            manager->remove(0);
        }
        page = std::make_unique<DrivesPage>();
        server = page->findChild<SambaServerPanel *>();
        search = page->findChild<ShareSearchPanel *>();
        page->resize(845, 900);
        page->show();
    }

    void finish() override
    {
        page.reset();
        manager->stop();
    }

    void switchOn()
    {
        server->setRunning(true);
        QVERIFY2(server->isRunning(), qPrintable(server->error()));
    }

    void add() { DialogDriver::click(buttonOf(*page, "Add Drive")); }

    /// As the editor makes it, of a server that is not asked here.
    [[nodiscard]] static AutoMountNetworkDrive driveOfTheUser()
    {
        AutoMountNetworkDrive drive;
        drive.setUrl(QUrl(QStringLiteral("afp://anna@nas.invalid/films")));
        drive.setExtParameters({{QStringLiteral("NetworkDriveMountPoint"), QStringLiteral("C:/")}});
        return drive;
    }

    [[nodiscard]] QComboBox &shareBox() const
    {
        return *qobject_cast<QComboBox *>(labelOf(*page, "Share:")->buddy());
    }
    [[nodiscard]] QString lines(const QString &label) const
    {
        return qobject_cast<QPlainTextEdit *>(labelOf(*page, label)->buddy())->toPlainText();
    }
    [[nodiscard]] AutoMountNetworkDrive lastDrive() const
    {
        return manager->getDrive(manager->count() - 1);
    }

    const QTemporaryDir runtimeFolder;
    TXAutoMountManager *manager = TXAutoMountManager::getInstance();
    std::unique_ptr<DrivesPage> page;
    SambaServerPanel *server = nullptr;
    ShareSearchPanel *search = nullptr;
};
