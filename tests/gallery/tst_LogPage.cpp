#include "DialogDriver.h"
#include "LogPage.h"
#include "LogPreview.h"
#include "TestBase.h"

#include "TXLogManager.h"
#include "TXLogPrint.h"
#include "TXLogWindow.h"

#include <QLocale>
#include <QPushButton>
#include <QSignalSpy>

#include <memory>

class TestLogPage : public TestBase
{
    Q_OBJECT

private slots:
    void buttonsWriteALineOfTheirLevel_data();
    void buttonsWriteALineOfTheirLevel();
    void qtWarningsAreLogged();
    void printedLinesAreShownLive();
    void logWindowFollowsFromTheStart();
    void logWindowShowsTheWholeDate();
    void pageStartsWithAScanThatMoves();
    void pageIsReadyWhenItHasBeenFilled();

protected:
    void prepare() override;
    void finish() override;

private:
    QPushButton *button(const QString &text) const;
    QString newestText(int column) const;
    int newestLevel() const { return newestText(2).toInt(); }

    std::unique_ptr<LogPage> page;
    LogPreview *preview = nullptr;
    int firstLines = 0;
};

void TestLogPage::prepare()
{
    page = std::make_unique<LogPage>();
    preview = page->findChild<LogPreview *>();
    page->resize(800, 700);
    page->show();
    // The page begins with a line of its own, the platform may add remarks.
    TXLogManager::applicationLog()->flush();
    firstLines = preview->model()->rowCount();
    QVERIFY(firstLines > 0);
}

void TestLogPage::finish()
{
    page.reset();
    TXLogManager::applicationLog()->reset();
}

QPushButton *TestLogPage::button(const QString &text) const
{
    const auto buttons = page->findChildren<QPushButton *>();
    for (QPushButton *candidate : buttons) {
        if (candidate->text().remove(QLatin1Char('&')) == text) {
            return candidate;
        }
    }
    return nullptr;
}

QString TestLogPage::newestText(int column) const
{
    const QAbstractItemModel *model = preview->model();
    return model->index(model->rowCount() - 1, column).data().toString();
}

void TestLogPage::buttonsWriteALineOfTheirLevel_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("level");
    QTest::newRow("information") << QStringLiteral("Information") << 1;
    QTest::newRow("warning") << QStringLiteral("Warning") << 2;
    QTest::newRow("error") << QStringLiteral("Error") << 3;
}

void TestLogPage::buttonsWriteALineOfTheirLevel()
{
    QFETCH(QString, text);

    DialogDriver::click(button(text));

    QTRY_COMPARE(preview->model()->rowCount(), firstLines + 1);
    QTEST(newestLevel(), "level");
}

void TestLogPage::qtWarningsAreLogged()
{
    QTest::ignoreMessage(QtWarningMsg, "A message of Qt's own logging, written by hand");

    DialogDriver::click(button(QStringLiteral("Qt Warning")));

    QTRY_COMPARE(preview->model()->rowCount(), firstLines + 1);
    QCOMPARE(newestLevel(), 2);
    QCOMPARE(newestText(1), QStringLiteral("A message of Qt's own logging, written by hand"));
}

void TestLogPage::printedLinesAreShownLive()
{
    TXLogPrint(QStringLiteral("printed elsewhere"), 3);

    QTRY_COMPARE(newestText(1), QStringLiteral("printed elsewhere"));
    QVERIFY(!preview->visualRect(preview->model()->index(firstLines, 1)).isEmpty());
}

void TestLogPage::logWindowFollowsFromTheStart()
{
    TXLogPrint(QStringLiteral("before the window is opened"), 1);
    QTRY_COMPARE(preview->model()->rowCount(), firstLines + 1);

    DialogDriver::click(button(QStringLiteral("Open Log Window")));

    auto *window = page->findChild<TXLogWindow *>();
    QVERIFY(window);
    QVERIFY(window->isVisible());
    QVERIFY(window->nbEventLogged() >= firstLines + 1);
    QCOMPARE(window->nbEventLogged(), preview->model()->rowCount());
}

void TestLogPage::logWindowShowsTheWholeDate()
{
    TXLogPrint(QStringLiteral("now"), 1);
    QTRY_COMPARE(preview->model()->rowCount(), firstLines + 1);

    DialogDriver::click(button(QStringLiteral("Open Log Window")));

    const auto *tree = page->findChild<TXLogWindow *>()->findChild<QTreeView *>("logTreeView");
    const int row = tree->model()->rowCount() - 1;
    const QModelIndex date = tree->model()->index(row, 0);
    const int needed = tree->fontMetrics().horizontalAdvance(
        QLocale().toString(date.data().toDateTime(), QLocale::ShortFormat));
    QVERIFY(tree->visualRect(date).width() > needed);
}

void TestLogPage::pageStartsWithAScanThatMoves()
{
    page->startByItself();

    QTRY_VERIFY(preview->model()->rowCount() > firstLines + 10);
    // Left in the middle of the scan: the page ends it.
}

void TestLogPage::pageIsReadyWhenItHasBeenFilled()
{
    QVERIFY(page->isReady());
    QSignalSpy ready(page.get(), SIGNAL(becameReady()));
    QTest::ignoreMessage(QtWarningMsg, "A message of Qt's own logging, written by hand");

    page->fillForPicture();

    QVERIFY(!page->isReady());
    QTRY_COMPARE(ready.count(), 1);
    QVERIFY(page->isReady());
    QCOMPARE(newestText(1), QStringLiteral("A message of Qt's own logging, written by hand"));
    const auto windows = page->furtherWindows();
    QCOMPARE(windows.size(), 1);
    QVERIFY(windows.first().window->isVisible());
}

int main(int argc, char **argv)
{
    return runTest<TestLogPage>(argc, argv);
}

#include "tst_LogPage.moc"
