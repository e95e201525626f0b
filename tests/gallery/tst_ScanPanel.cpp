#include "DialogDriver.h"
#include "LogGate.h"
#include "ScanPanel.h"
#include "TestBase.h"

#include "TXLogManager.h"
#include "WaitWidget.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>

#include <memory>

class TestScanPanel : public TestBase
{
    Q_OBJECT

private slots:
    void scanWritesAnEntryAFolderAndASum();
    void numbersAreShownAtTheEnd();
    void buttonsFollowTheRun();
    void spinnerIsShownDuringTheRun();
    void cancelEndsTheRun();
    void severalFoldersAreSeparated();
    void relativeFoldersStartAtTheProgram();
    void emptyFieldStartsNothing();
    void browsingFillsTheField();
    void panelMayGoWhileScanning();
    void panelMayGoWhileThreadsWaitForTheLog();

protected:
    void prepare() override;
    void finish() override;

private:
    QPushButton *button(const QString &text) const;
    QLineEdit *field() const { return panel->findChild<QLineEdit *>(); }
    QString numberOver(const QString &caption) const;
    void scanToTheEnd();
    QStringList topLevelTexts() const;

    std::unique_ptr<QTemporaryDir> folder;
    QSharedPointer<TXLogManager> log;
    std::unique_ptr<ScanPanel> panel;
};

void TestScanPanel::prepare()
{
    qRegisterMetaType<QSharedPointer<TXLogItem>>();
    QLocale::setDefault(QLocale("en"));
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(folder->path()).mkpath("inks/cyan"));
    QVERIFY(QFile::link(folder->filePath("gone"), folder->filePath("inks/link")));
    log = QSharedPointer<TXLogManager>::create();
    panel = std::make_unique<ScanPanel>(log);
    panel->setFolders(folder->filePath("inks"));
    panel->show();
}

void TestScanPanel::finish()
{
    panel.reset();
    log.reset();
    folder.reset();
    QLocale::setDefault(QLocale::system());
}

QPushButton *TestScanPanel::button(const QString &text) const
{
    const auto buttons = panel->findChildren<QPushButton *>();
    for (QPushButton *candidate : buttons) {
        if (candidate->text().remove('&') == text) {
            return candidate;
        }
    }
    return nullptr;
}

QString TestScanPanel::numberOver(const QString &caption) const
{
    const auto labels = panel->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->text() != caption) {
            continue;
        }
        for (const QLabel *value : labels) {
            const QRect above = label->geometry().translated(0, -value->height());
            if (!value->text().isEmpty() && value != label && value->geometry().intersects(above)) {
                return value->text();
            }
        }
    }
    return {};
}

void TestScanPanel::scanToTheEnd()
{
    QSignalSpy logged(panel.get(), SIGNAL(scanLogged(QSharedPointer<TXLogItem>)));
    DialogDriver::click(button("Start Scan"));
    QTRY_COMPARE(logged.count(), 1);
    log->flush();
}

QStringList TestScanPanel::topLevelTexts() const
{
    QStringList texts;
    for (const auto &item : qAsConst(log->rootItem()->children)) {
        texts.append(item->message.toString(nullptr));
    }
    return texts;
}

void TestScanPanel::scanWritesAnEntryAFolderAndASum()
{
    scanToTheEnd();

    const QStringList texts = topLevelTexts();
    QCOMPARE(texts.mid(0, 2), QStringList({"Folder inks", "Folder inks/cyan"}));
    QCOMPARE(texts.size(), 3);
    QVERIFY(texts.last().startsWith("Scan finished after "));
    QCOMPARE(log->rootItem()->children.first()->level, int(TXLogItem::Warning));
}

void TestScanPanel::numbersAreShownAtTheEnd()
{
    panel->setFolders(folder->filePath("inks") + QDir::listSeparator()
                      + folder->filePath("nowhere"));

    scanToTheEnd();

    QCOMPARE(numberOver("Entries"), "3");
    QCOMPARE(numberOver("Warnings"), "1");
    QCOMPARE(numberOver("Errors"), "1");
    QVERIFY(numberOver("Entries a second") != "0");
}

void TestScanPanel::buttonsFollowTheRun()
{
    QVERIFY(button("Start Scan")->isEnabled());
    QVERIFY(!button("Cancel")->isEnabled());

    DialogDriver::click(button("Start Scan"));
    QVERIFY(!button("Start Scan")->isEnabled());
    QVERIFY(!field()->isEnabled());
    QVERIFY(button("Cancel")->isEnabled());

    QTRY_VERIFY(button("Start Scan")->isEnabled());
    QVERIFY(field()->isEnabled());
    QVERIFY(!button("Cancel")->isEnabled());
}

void TestScanPanel::spinnerIsShownDuringTheRun()
{
    QVERIFY(!panel->findChild<WaitWidget *>());

    DialogDriver::click(button("Start Scan"));

    const auto *spinner = panel->findChild<WaitWidget *>();
    QVERIFY(spinner && spinner->isVisible());
    // It covers none of the numbers.
    const QRect place(spinner->mapTo(panel.get(), QPoint()), spinner->size());
    const auto labels = panel->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        QVERIFY(!label->isVisible() || !label->geometry().intersects(place));
    }
    QTRY_VERIFY(!panel->findChild<WaitWidget *>());
    QVERIFY(button("Start Scan")->isEnabled());
}

void TestScanPanel::cancelEndsTheRun()
{
    panel->setFolders(QDir::rootPath());
    QSignalSpy logged(panel.get(), SIGNAL(scanLogged(QSharedPointer<TXLogItem>)));
    DialogDriver::click(button("Start Scan"));

    DialogDriver::click(button("Cancel"));

    QTRY_COMPARE(logged.count(), 1);
    log->flush();
    QVERIFY(topLevelTexts().last().startsWith("Scan cancelled after "));
}

void TestScanPanel::severalFoldersAreSeparated()
{
    const QString separator = QStringLiteral(" %1 ").arg(QDir::listSeparator());
    panel->setFolders(folder->filePath("inks/cyan") + separator + separator
                      + folder->filePath("nowhere"));

    scanToTheEnd();

    const QStringList texts = topLevelTexts();
    QCOMPARE(texts.size(), 3);
    QVERIFY(texts.contains("Folder cyan"));
    QVERIFY(texts.contains("Folder nowhere"));
}

void TestScanPanel::relativeFoldersStartAtTheProgram()
{
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    panel->setFolders("./" + program);

    scanToTheEnd();

    // Found, since it is told apart from what is missing.
    const auto entry = log->rootItem()->children.first();
    QCOMPARE(entry->children.first()->message.toString(nullptr), "This is a file, not a folder.");
}

void TestScanPanel::emptyFieldStartsNothing()
{
    panel->setFolders(" ");

    DialogDriver::click(button("Start Scan"));

    QVERIFY(button("Start Scan")->isEnabled());
    QVERIFY(!button("Cancel")->isEnabled());
}

void TestScanPanel::browsingFillsTheField()
{
    DialogDriver driver;
    const QString chosen = folder->filePath("inks/cyan");
    driver.expect([chosen](QDialog &dialog) {
        auto *files = qobject_cast<QFileDialog *>(&dialog);
        QVERIFY(files);
        files->findChild<QLineEdit *>("fileNameEdit")->setText(chosen);
        DialogDriver::click(files->findChild<QDialogButtonBox *>("buttonBox")->buttons().first());
    });

    DialogDriver::click(button("Browse..."));

    QCOMPARE(field()->text(), QDir::toNativeSeparators(chosen));
}

void TestScanPanel::panelMayGoWhileScanning()
{
    panel->setFolders(QDir::rootPath());
    DialogDriver::click(button("Start Scan"));

    panel.reset();

    // No entry sums up what nobody waits for any more.
    log->flush();
    const QStringList texts = topLevelTexts();
    QVERIFY(texts.isEmpty() || texts.last().startsWith("Folder "));
}

void TestScanPanel::panelMayGoWhileThreadsWaitForTheLog()
{
    for (int i = 0; i < LogGate::kMostOnTheWay + 100; ++i) {
        QVERIFY(QDir(folder->path()).mkdir(QString::number(i)));
    }
    panel->setFolders(folder->path());
    const auto *scan = panel->findChild<FolderScan *>();
    DialogDriver::click(button("Start Scan"));
    // This thread's event loop does not turn: the log takes nothing in.
    while (scan->counts().folders <= LogGate::kMostOnTheWay) {
        QThread::yieldCurrentThread();
    }

    panel.reset();

    log->flush();
    QVERIFY(log->rootItem()->children.size() >= LogGate::kMostOnTheWay);
}

int main(int argc, char **argv)
{
    return runTest<TestScanPanel>(argc, argv);
}

#include "tst_ScanPanel.moc"
