#include "DialogDriver.h"
#include "FolderJobBar.h"
#include "PageChecks.h"
#include "TestBase.h"

#include <QDir>
#include <QFileDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

class TestFolderJobBar : public TestBase
{
    Q_OBJECT

private slots:
    void pathsAreAbsoluteAndSeparated();
    void blanksNameNoFolder();
    void startIsWantedByButtonAndReturn();
    void onlyCancelIsEnabledWhileRunning();
    void focusGoesToCancelAndBack();
    void focusElsewhereStays();
    void browsingFillsTheField();
    void browsingMayBeCancelled();

protected:
    void prepare() override;
    void finish() override;

private:
    QAbstractButton *button(const QString &text) const { return buttonOf(*window, text); }
    QLineEdit *field() const { return bar->findChild<QLineEdit *>(); }

    std::unique_ptr<QWidget> window;
    FolderJobBar *bar = nullptr;
    QLineEdit *other = nullptr;
};

void TestFolderJobBar::prepare()
{
    window = std::make_unique<QWidget>();
    bar = new FolderJobBar(window.get());
    other = new QLineEdit(window.get());
    other->move(0, 100);
    bar->retranslate({"&Folder:", "&Browse...", "&Start", "&Cancel", "Choose"});
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

void TestFolderJobBar::finish()
{
    window.reset();
}

void TestFolderJobBar::pathsAreAbsoluteAndSeparated()
{
    bar->setFolders(QStringLiteral("/a/../b/ %1 inks").arg(QDir::listSeparator()));

    const QString program = QCoreApplication::applicationDirPath();
    QCOMPARE(bar->paths(), QStringList({"/b", program + "/inks"}));
}

void TestFolderJobBar::blanksNameNoFolder()
{
    bar->setFolders(QStringLiteral(" %1%1 ").arg(QDir::listSeparator()));

    QCOMPARE(bar->paths(), QStringList());
}

void TestFolderJobBar::startIsWantedByButtonAndReturn()
{
    QSignalSpy wanted(bar, SIGNAL(startWanted()));

    DialogDriver::click(button("Start"));
    QTest::keyClick(field(), Qt::Key_Return);

    QCOMPARE(wanted.count(), 2);
}

void TestFolderJobBar::onlyCancelIsEnabledWhileRunning()
{
    QVERIFY(!button("Cancel")->isEnabled());
    bar->setRunning(true);

    QVERIFY(!button("Start")->isEnabled() && !button("Browse...")->isEnabled());
    QVERIFY(!field()->isEnabled());
    QSignalSpy wanted(bar, SIGNAL(cancelWanted()));
    DialogDriver::click(button("Cancel"));
    QCOMPARE(wanted.count(), 1);

    bar->setRunning(false);
    QVERIFY(button("Start")->isEnabled() && button("Browse...")->isEnabled());
    QVERIFY(field()->isEnabled() && !button("Cancel")->isEnabled());
}

void TestFolderJobBar::focusGoesToCancelAndBack()
{
    field()->setFocus();
    QList<QWidget *> visited;
    QObject context;
    connect(qApp, &QApplication::focusChanged, &context,
            [&visited](QWidget *, QWidget *now) { visited.append(now); });

    bar->setRunning(true);
    bar->setRunning(false);

    QCOMPARE(visited, QList<QWidget *>({button("Cancel"), button("Start")}));
}

void TestFolderJobBar::focusElsewhereStays()
{
    other->setFocus();

    bar->setRunning(true);
    QVERIFY(other->hasFocus());
    bar->setRunning(false);
    QVERIFY(other->hasFocus());
}

void TestFolderJobBar::browsingFillsTheField()
{
    const QTemporaryDir folder;
    DialogDriver driver;
    driver.expect([&folder](QDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), "Choose");
        dialog.findChild<QLineEdit *>("fileNameEdit")->setText(folder.path());
        DialogDriver::click(dialog, QDialogButtonBox::Open);
    });

    DialogDriver::click(button("Browse..."));

    QCOMPARE(bar->paths(), QStringList(folder.path()));
}

void TestFolderJobBar::browsingMayBeCancelled()
{
    bar->setFolders("/b");
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { DialogDriver::click(dialog, QDialogButtonBox::Cancel); });

    DialogDriver::click(button("Browse..."));

    QCOMPARE(bar->paths(), QStringList("/b"));
}

int main(int argc, char **argv)
{
    return runTest<TestFolderJobBar>(argc, argv);
}

#include "tst_FolderJobBar.moc"
