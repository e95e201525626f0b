#include "LocalFtpServer.h"
#include "LocalServerPanel.h"
#include "PageHelpers.h"
#include "TestBase.h"

#include "TXSwitchSlider.h"

#include <QSignalSpy>

#include <memory>

namespace {

/// A panel whose server can be one that never starts.
class Panel final : public LocalServerPanel
{
public:
    Panel()
        : LocalServerPanel(nullptr)
    {
        retranslate();
    }

    bool isBroken = false;

protected:
    std::unique_ptr<LocalServer> makeServer() override
    {
        if (isBroken) {
            return std::make_unique<LocalServer>(QStringLiteral("none/such.py"));
        }
        return std::make_unique<LocalFtpServer>();
    }

    QString neededPackage() const override { return QStringLiteral("somepackage"); }

    void retranslate() override
    {
        setTitle(QStringLiteral("Some server"));
        LocalServerPanel::retranslate();
    }
};

} // namespace

class TestLocalServerPanel : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        panel = std::make_unique<Panel>();
        panel->show();
    }

    void finish() override { panel.reset(); }

private slots:
    void mouseAndKeyboardTurnTheSwitch();
    void stateIsToldInWords();
    void failureIsToldAndTurnsTheSwitchBack();
    void nextStartTakesTheFailureAway();
    void failureOfARestartTurnsTheSwitchBack();
    void restartKeepsTheSwitchAndTellsThePort();
    void restartOfNothingStartsNothing();
    void waitCursorGoesAfterTheStart();
    void fillingInIsForARunningServer();

private:
    [[nodiscard]] TXSwitchSlider &slider() const { return *panel->findChild<TXSwitchSlider *>(); }

    std::unique_ptr<Panel> panel;
};

void TestLocalServerPanel::mouseAndKeyboardTurnTheSwitch()
{
    QSignalSpy started(panel.get(), SIGNAL(started()));
    QCOMPARE(panel->port(), quint16(0));

    QTest::mouseClick(&slider(), Qt::LeftButton);
    QVERIFY(panel->isRunning());
    QVERIFY(panel->port() != 0);
    QCOMPARE(started.count(), 1);

    QTest::keyClick(&slider(), Qt::Key_Left);
    QVERIFY(!panel->isRunning());
    QCOMPARE(panel->port(), quint16(0));

    QTest::keyClick(&slider(), Qt::Key_Right);
    QVERIFY(panel->isRunning());
    QCOMPARE(started.count(), 2);
}

void TestLocalServerPanel::stateIsToldInWords()
{
    QCOMPARE(slider().accessibleName(), "Some server");
    QCOMPARE(slider().accessibleDescription(), "off");

    panel->setRunning(true);

    QCOMPARE(slider().accessibleDescription(),
             QStringLiteral("on, at 127.0.0.1:%1").arg(panel->port()));
}

void TestLocalServerPanel::failureIsToldAndTurnsTheSwitchBack()
{
    QSignalSpy started(panel.get(), SIGNAL(started()));
    panel->isBroken = true;

    panel->setRunning(true);

    QVERIFY(!panel->isRunning());
    QVERIFY(!slider().isChecked());
    QCOMPARE(started.count(), 0);
    QVERIFY2(panel->error().startsWith("The server did not start: "), qPrintable(panel->error()));
    QVERIFY(panel->error().contains("such.py"));
    QVERIFY(panel->error().endsWith("It needs Python 3 with the package \"somepackage\"."));
}

void TestLocalServerPanel::nextStartTakesTheFailureAway()
{
    panel->isBroken = true;
    panel->setRunning(true);
    panel->isBroken = false;

    panel->setRunning(true);

    QVERIFY(panel->isRunning());
    QVERIFY(panel->error().isEmpty());
}

void TestLocalServerPanel::failureOfARestartTurnsTheSwitchBack()
{
    panel->setRunning(true);
    panel->isBroken = true;

    panel->restart();

    QVERIFY(!panel->isRunning());
    QVERIFY(!slider().isChecked());
    QVERIFY(!panel->error().isEmpty());
    QCOMPARE(slider().accessibleDescription(), "off");
}

void TestLocalServerPanel::restartKeepsTheSwitchAndTellsThePort()
{
    panel->setRunning(true);
    QSignalSpy started(panel.get(), SIGNAL(started()));

    panel->restart();

    QVERIFY(panel->isRunning());
    QVERIFY(slider().isChecked());
    QCOMPARE(started.count(), 1);
    QVERIFY(slider().accessibleDescription().endsWith(QString::number(panel->port())));
}

void TestLocalServerPanel::restartOfNothingStartsNothing()
{
    panel->restart();

    QVERIFY(!panel->isRunning());
}

void TestLocalServerPanel::waitCursorGoesAfterTheStart()
{
    for (const bool isBroken : {false, true}) {
        panel->isBroken = isBroken;
        panel->setRunning(true);
        QVERIFY(!QGuiApplication::overrideCursor());
        panel->setRunning(false);
    }
}

void TestLocalServerPanel::fillingInIsForARunningServer()
{
    QAbstractButton *button = PageTest::button(*panel, "Fill In the Panel");
    QVERIFY(!button->isEnabled());
    panel->setRunning(true);
    QSignalSpy wanted(panel.get(), SIGNAL(fillInWanted()));

    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(wanted.count(), 1);

    panel->setRunning(false);
    QVERIFY(!button->isEnabled());
}

int main(int argc, char **argv)
{
    return runTest<TestLocalServerPanel>(argc, argv);
}

#include "tst_LocalServerPanel.moc"
