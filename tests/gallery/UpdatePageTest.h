#pragma once

#include "DialogDriver.h"
#include "PageChecks.h"
#include "TestBase.h"
#include "UpdatePage.h"
#include "UpdateServicePanel.h"

#include "TXCheckForUpdateWidget.h"

#include <QDir>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTreeWidget>

#include <memory>

/// Base of the tests of the update page, which each find it shown, the service off, and no folder
/// for downloads in the user's home.
class UpdatePageTest : public TestBase
{
protected:
    using State = TXCheckForUpdateWidget::State;

    static constexpr int kPatienceMilliseconds = 30000;

    void prepare() override
    {
        QVERIFY(!QDir(downloads()).exists());
        page = std::make_unique<UpdatePage>();
        service = page->findChild<UpdateServicePanel *>();
        dialog = page->findChild<TXCheckForUpdateWidget *>();
        page->resize(845, 600);
        page->show();
    }

    void finish() override
    {
        page.reset();
        QVERIFY(QDir(downloads()).removeRecursively());
    }

    [[nodiscard]] static QString downloads()
    {
        return QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    }

    [[nodiscard]] static QStringList downloadedFiles()
    {
        return QDir(downloads()).entryList(QDir::Files);
    }

    void switchOn()
    {
        service->setRunning(true);
        QVERIFY2(service->isRunning(), qPrintable(service->error()));
    }

    /// Clicks "Check for Updates" and waits for the end of the check.
    void check(UpdateOffer offer)
    {
        switchOn();
        service->setOffer(offer);
        DialogDriver::click(buttonOf(*page, "Check for Updates"));
        QVERIFY(dialog->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(dialog->state() != State::Checking, kPatienceMilliseconds);
    }

    [[nodiscard]] QPushButton *inDialog(const char *name) const
    {
        return dialog->findChild<QPushButton *>(QLatin1String(name));
    }
    [[nodiscard]] QTreeWidget &release() const { return *page->findChild<QTreeWidget *>(); }
    [[nodiscard]] QString valueOf(const QString &key) const
    {
        const auto found = release().findItems(key, Qt::MatchExactly);
        return found.isEmpty() ? QString() : found.first()->text(2);
    }
    [[nodiscard]] QString requests() const { return lines(0); }
    [[nodiscard]] QString emissions() const { return lines(1); }

    std::unique_ptr<UpdatePage> page;
    UpdateServicePanel *service = nullptr;
    TXCheckForUpdateWidget *dialog = nullptr;

private:
    [[nodiscard]] QString lines(int list) const
    {
        return page->findChildren<QPlainTextEdit *>().at(list)->toPlainText();
    }
};
