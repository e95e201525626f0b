#include "LocalFtpServer.h"
#include "LocalServerPanel.h"
#include "PageHelpers.h"
#include "TestBase.h"

#include "TXSwitchSlider.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <memory>

namespace {

constexpr int kPatienceMilliseconds = 20000;
constexpr int kWheelStep = 120;

/// A panel whose server can be another script's, with an option that restarts it.
class Panel final : public LocalServerPanel
{
public:
    Panel()
        : LocalServerPanel(nullptr)
        , option(new QComboBox(this))
    {
        option->addItems({QStringLiteral("one"), QStringLiteral("two")});
        addOption(nullptr, option);
        retranslate();
        connect(option, SIGNAL(currentIndexChanged(int)), this, SLOT(restart()));
    }

    QComboBox *option;
    bool isBroken = false;
    /// Of the server's script, unless empty.
    QString script;

protected:
    std::unique_ptr<LocalServer> makeServer() override
    {
        if (isBroken) {
            return std::make_unique<LocalServer>(QStringLiteral("none/such.py"));
        }
        if (!script.isEmpty()) {
            return std::make_unique<LocalServer>(script);
        }
        return std::make_unique<LocalFtpServer>();
    }

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
    void addressIsAStopOfTheTabKey();
    void failureIsToldAndTurnsTheSwitchBack();
    void failureFollowsTheLanguage();
    void serverThatStopsByItselfTurnsTheSwitchBack();
    void silentEndIsToldWithoutAReason();
    void wheelTurnsNoOptionAndIsLeftToThePage();
    void nextStartTakesTheFailureAway();
    void failureOfARestartTurnsTheSwitchBack();
    void restartKeepsTheSwitchAndTellsThePort();
    void restartOfNothingStartsNothing();
    void waitCursorGoesAfterTheStart();
    void fillingInIsForARunningServer();

private:
    [[nodiscard]] TXSwitchSlider &slider() const { return *panel->findChild<TXSwitchSlider *>(); }

    /// Starts a server that ends right after its start, with this line of Python.
    void startWithEnd(const QByteArray &lastLine);

    QTemporaryDir scripts;
    std::unique_ptr<Panel> panel;
};

void TestLocalServerPanel::startWithEnd(const QByteArray &lastLine)
{
    QFile file(scripts.filePath(QStringLiteral("script.py")));
    QVERIFY(file.open(QFile::WriteOnly));
    file.write("import sys\nsys.stdin.readline()\nprint(7, flush=True)\n" + lastLine);
    file.close();
    panel->script = file.fileName();
    QSignalSpy started(panel.get(), SIGNAL(started()));
    panel->setRunning(true);
    QCOMPARE(started.count(), 1);
}

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

void TestLocalServerPanel::addressIsAStopOfTheTabKey()
{
    const auto stops = [this] {
        QStringList texts;
        const auto labels = panel->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->isVisible() && (label->focusPolicy() & Qt::TabFocus) != 0) {
                texts.append(label->text());
            }
        }
        return texts;
    };
    QCOMPARE(stops(), QStringList());
    panel->setRunning(true);
    QCOMPARE(stops(), QStringList(QStringLiteral("on, at 127.0.0.1:%1").arg(panel->port())));
    panel->setRunning(false);
    QCOMPARE(stops(), QStringList());
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
    QVERIFY(panel->error().endsWith("\"./dev setup\" installs what is needed."));
}

void TestLocalServerPanel::failureFollowsTheLanguage()
{
    panel->isBroken = true;
    panel->setRunning(true);
    const QString before = panel->error();
    PageTest::StarTranslator translator;

    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    const QString inOtherLanguage = panel->error();
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    QVERIFY2(inOtherLanguage.startsWith("*The server did not start: "),
             qPrintable(inOtherLanguage));
    QVERIFY(inOtherLanguage.contains("such.py"));
    QVERIFY(inOtherLanguage.endsWith("*\"./dev setup\" installs what is needed."));
    QCOMPARE(panel->error(), before);
}

void TestLocalServerPanel::serverThatStopsByItselfTurnsTheSwitchBack()
{
    startWithEnd("raise OSError('the roof is on fire')");

    QTRY_VERIFY_WITH_TIMEOUT(!panel->isRunning(), kPatienceMilliseconds);

    QVERIFY(!slider().isChecked());
    QCOMPARE(slider().accessibleDescription(), "off");
    QVERIFY2(panel->error().startsWith("The server has stopped by itself: "),
             qPrintable(panel->error()));
    QVERIFY(panel->error().endsWith("the roof is on fire"));
    panel->script.clear();
    panel->setRunning(true);
    QVERIFY(panel->isRunning());
    QCOMPARE(panel->error(), QString());
}

void TestLocalServerPanel::silentEndIsToldWithoutAReason()
{
    startWithEnd("sys.exit(0)");

    QTRY_VERIFY_WITH_TIMEOUT(!panel->isRunning(), kPatienceMilliseconds);

    QCOMPARE(panel->error(), "The server has stopped by itself.");
}

void TestLocalServerPanel::wheelTurnsNoOptionAndIsLeftToThePage()
{
    panel->setRunning(true);
    const quint16 port = panel->port();

    const QPointF place(5, 5);
    QWheelEvent event(place, panel->option->mapToGlobal(place), {}, {0, -kWheelStep}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(panel->option, &event);

    QCOMPARE(panel->option->currentIndex(), 0);
    QCOMPARE(panel->port(), port);
    QVERIFY(!event.isAccepted());
    panel->option->setCurrentIndex(1);
    QVERIFY(panel->port() != port);
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
