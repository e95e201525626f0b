#pragma once

#include "DialogDriver.h"
#include "PageChecks.h"
#include "PaperArea.h"
#include "TestBase.h"
#include "UpdateServicePanel.h"
#include "ValuePanel.h"
#include "ValueSourcePanel.h"
#include "VariantPage.h"

#include <QFile>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>

/// Base of the tests of the page of values, which each find it shown, the service off, and one
/// setting stored.
class VariantPageTest : public TestBase
{
protected:
    static constexpr int kPatienceMilliseconds = 30000;

    void prepare() override
    {
        QSettings().setValue("Gallery/Page", "variant");
        folder = std::make_unique<QTemporaryDir>();
        makePage();
    }

    void finish() override
    {
        page.reset();
        folder.reset();
    }

    void makePage()
    {
        page = std::make_unique<VariantPage>();
        service = page->findChild<UpdateServicePanel *>();
        panel = page->findChild<ValuePanel *>();
        paper = page->findChild<PaperArea *>();
        page->resize(845, 600);
        page->show();
        QTRY_VERIFY(!panel->isAtWork());
    }

    [[nodiscard]] QString written(const QString &name, const QByteArray &content) const
    {
        QFile file(folder->filePath(name));
        const bool isWritten = file.open(QFile::WriteOnly) && file.write(content) == content.size();
        return isWritten ? file.fileName() : QString();
    }

    void choose(const QString &path)
    {
        DialogDriver driver;
        driver.expect([path](QDialog &dialog) {
            dialog.findChild<QLineEdit *>("fileNameEdit")->setText(path);
            DialogDriver::click(dialog, QDialogButtonBox::Open);
        });
        click("JSON File...");
    }

    void show(const QByteArray &json)
    {
        choose(written("shown.json", json));
        QVERIFY(!isError());
        QTRY_VERIFY(!panel->isAtWork());
    }

    void switchOn()
    {
        service->setRunning(true);
        QVERIFY2(service->isRunning(), qPrintable(service->error()));
    }

    /// By the picture that stands beside the text.
    [[nodiscard]] bool isError() const
    {
        const auto labels = page->findChild<ValueSourcePanel *>()->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
            return label->isVisible() && !label->pixmap(Qt::ReturnByValue).isNull();
        });
    }

    void click(const char *text) { DialogDriver::click(buttonOf(*page, text)); }
    [[nodiscard]] QVariantMap settings() const { return panel->value().toMap(); }
    [[nodiscard]] TXVariantViewer &viewer() const { return *paper->viewer(); }
    [[nodiscard]] QString message() const
    {
        return page->findChild<ValueSourcePanel *>()->message();
    }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<VariantPage> page;
    UpdateServicePanel *service = nullptr;
    ValuePanel *panel = nullptr;
    PaperArea *paper = nullptr;
};
