#pragma once

#include "DialogDriver.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageChecks.h"
#include "ReportOutputPanel.h"
#include "ReportPage.h"
#include "ReportView.h"
#include "TestBase.h"

#include "TXProgressBar.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QLocale>
#include <QProgressBar>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <memory>

/// Base of the tests of the report page, which each find it open in the gallery's window.
class ReportPageTest : public TestBase
{
protected:
    using Action = std::function<void()>;

    void prepare() override
    {
        folder = std::make_unique<QTemporaryDir>();
        GallerySettings settings;
        settings.page = "report";
        languages = std::make_unique<GalleryLanguages>(QString());
        window = std::make_unique<GalleryWindow>(*languages, settings);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QVERIFY(qobject_cast<ReportPage *>(window->currentPage()));
    }

    void finish() override
    {
        window.reset();
        languages.reset();
        folder.reset();
        QLocale::setDefault(QLocale::system());
    }

    /// The name of a file in the test's own folder, which is empty at first.
    [[nodiscard]] QString path(const QString &name = QStringLiteral("report.pdf")) const
    {
        return folder->filePath(name);
    }

    [[nodiscard]] bool isNothingWritten() const { return QDir(folder->path()).isEmpty(); }

    [[nodiscard]] ReportOutputPanel *output() const
    {
        return window->findChild<ReportOutputPanel *>();
    }
    [[nodiscard]] ReportView *view() const { return window->findChild<ReportView *>(); }
    /// The bar within the library's progress bar.
    [[nodiscard]] QProgressBar *progress() const
    {
        return window->findChild<TXProgressBar *>()->findChild<QProgressBar *>();
    }

    /// Works, and acts once in the middle of it, when events are handled.
    void during(const Action &work, const Action &action)
    {
        QObject context;
        bool isDue = true;
        connect(progress(), &QProgressBar::valueChanged, &context, [&](int value) {
            if (isDue && value > 0 && value < 100) {
                isDue = false;
                QTimer::singleShot(0, &context, action);
            }
        });
        work();
        QVERIFY(!isDue);
    }

    void duringExport(const Action &action)
    {
        during([this] { output()->writePdf(path()); }, action);
    }

    /// Exports, or prints to a file, by the button and its dialog.
    void clickAndAccept(const QString &button)
    {
        DialogDriver driver;
        driver.expect([this](QDialog &dialog) {
            if (dialog.inherits("QPrintDialog")) {
                acceptPrinting(dialog);
            } else {
                acceptExport(dialog);
            }
        });
        DialogDriver::click(buttonOf(*window, button));
    }

    void acceptExport(QDialog &dialog) const
    {
        auto *name = dialog.findChild<QLineEdit *>("fileNameEdit");
        QVERIFY(name);
        // Without its suffix, which the dialog adds.
        name->setText(path().remove(".pdf"));
        DialogDriver::click(dialog, QDialogButtonBox::Save);
    }

    /// Takes the printer that writes a file, which the dialog offers beside those of the system.
    void acceptPrinting(QDialog &dialog) const
    {
        auto *printers = dialog.findChild<QComboBox *>("printers");
        auto *name = dialog.findChild<QLineEdit *>("filename");
        QVERIFY(printers && name);
        printers->setCurrentText("Print to File (PDF)");
        QVERIFY(name->isEnabled());
        name->setText(path());
        DialogDriver::click(buttonOf(dialog, "Print"));
    }

    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<GalleryWindow> window;

private:
    std::unique_ptr<QTemporaryDir> folder;
};
