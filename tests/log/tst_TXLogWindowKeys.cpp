#include "TXLogWindow.h"

#include "TXLogManager.h"
#include "TestBase.h"

#include <QComboBox>
#include <QPushButton>
#include <QSettings>
#include <QTreeView>

#include <memory>

/// The level of the log window without a mouse.
class TestTXLogWindowKeys : public TestBase
{
    Q_OBJECT

private slots:
    void altAndArrowsPickTheLevel();
    void levelStaysAtTheEnds();
    void keysWorkFromEveryControl();
    void pickedLevelIsFilteredAndRemembered();
    void nothingPickedGoesToTheFirstEntry();

protected:
    void prepare() override;
    void finish() override { window.reset(); }

private:
    void press(Qt::Key key) const
    {
        QTest::keyClick(QApplication::focusWidget(), key, Qt::AltModifier);
    }
    [[nodiscard]] int level() const
    {
        return window->findChild<QComboBox *>(QStringLiteral("filterComboBox"))->currentIndex();
    }

    std::unique_ptr<TXLogWindow> window;
};

void TestTXLogWindowKeys::prepare()
{
    const auto manager = QSharedPointer<TXLogManager>::create();
    window = std::make_unique<TXLogWindow>(manager, nullptr);
    manager->append(1, TXStringI18n("Started"));
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    QVERIFY(QApplication::focusWidget() != nullptr);
}

void TestTXLogWindowKeys::altAndArrowsPickTheLevel()
{
    QCOMPARE(level(), 0);
    press(Qt::Key_Down);
    QCOMPARE(level(), 1);
    press(Qt::Key_Down);
    QCOMPARE(level(), 2);
    press(Qt::Key_Up);
    QCOMPARE(level(), 1);
}

void TestTXLogWindowKeys::levelStaysAtTheEnds()
{
    press(Qt::Key_Up);
    QCOMPARE(level(), 0);
    for (int times = 0; times < 5; ++times) {
        press(Qt::Key_Down);
    }
    QCOMPARE(level(), 2);
}

void TestTXLogWindowKeys::keysWorkFromEveryControl()
{
    int expected = 0;
    window->findChild<QTreeView *>()->setFocus();
    press(Qt::Key_Down);
    QCOMPARE(level(), ++expected);
    window->findChild<QPushButton *>(QStringLiteral("closeButton"))->setFocus();
    press(Qt::Key_Down);
    QCOMPARE(level(), ++expected);
    QVERIFY(window->isVisible());
}

void TestTXLogWindowKeys::pickedLevelIsFilteredAndRemembered()
{
    const QAbstractItemModel *rows = window->findChild<QTreeView *>()->model();
    QTRY_COMPARE(rows->rowCount(), 1);
    press(Qt::Key_Down);
    QCOMPARE(rows->rowCount(), 0);
    QVERIFY(QSettings().contains(QStringLiteral("LogLevel")));
    press(Qt::Key_Up);
    QCOMPARE(rows->rowCount(), 1);
}

/// As after a remembered level that is none.
void TestTXLogWindowKeys::nothingPickedGoesToTheFirstEntry()
{
    window->findChild<QComboBox *>(QStringLiteral("filterComboBox"))->setCurrentIndex(-1);
    press(Qt::Key_Up);
    QCOMPARE(level(), -1);
    press(Qt::Key_Down);
    QCOMPARE(level(), 0);
}

int main(int argc, char **argv)
{
    return runTest<TestTXLogWindowKeys>(argc, argv);
}

#include "tst_TXLogWindowKeys.moc"
