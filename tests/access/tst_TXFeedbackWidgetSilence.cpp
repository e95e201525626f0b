#include "FeedbackTestHelpers.h"
#include "LocalFeedbackService.h"
#include "TestBase.h"

#include <QNetworkReply>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>
#include <memory>

namespace {

/// Counts the events of one kind.
class EventCounter : public QObject
{
public:
    EventCounter(QObject &watched, QEvent::Type countedType)
        : type(countedType)
    {
        watched.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == type ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

    int count = 0;

private:
    QEvent::Type type;
};

/// What the window system tells of a click, not sent to the widget itself.
void clickFromOutside(const QWidget &widget)
{
    QWindow *window = widget.window()->windowHandle();
    const QPoint local = widget.mapTo(widget.window(), widget.rect().center());
    const QPoint global = window->mapToGlobal(local);
    qt_handleMouseEvent(window, local, global, Qt::LeftButton, Qt::LeftButton,
                        QEvent::MouseButtonPress, Qt::NoModifier, 0);
    qt_handleMouseEvent(window, local, global, Qt::NoButton, Qt::LeftButton,
                        QEvent::MouseButtonRelease, Qt::NoModifier, 0);
}

void typeFromOutside(const QWidget &widget, Qt::Key key, const QString &text)
{
    QWindow *window = widget.window()->windowHandle();
    qt_handleKeyEvent(window, QEvent::KeyPress, key, Qt::NoModifier, text, false, 1);
    qt_handleKeyEvent(window, QEvent::KeyRelease, key, Qt::NoModifier, text, false, 1);
}

} // namespace

/// The form while the service says nothing.
class TestTXFeedbackWidgetSilence : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void formWaitsForTheAnswer();
    void formIsPaintedMeanwhile();
    void secondSubmitMeanwhileDoesNothing();
    void windowSystemIsHeardMeanwhile();
    void inputThatComesMeanwhileIsLost();
    void inputBehindTheFailureIsLost();
    void formMayGoMeanwhile();
    void windowMayGoMeanwhile();
    void closedWindowEndsTheExchange_data();
    void closedWindowEndsTheExchange();
    void formThatIsHiddenInItsWindowWaitsOn();
    void windowThatIsClosedWithAHiddenFormEndsTheExchange();
    void endOfTheServiceEndsTheExchange();
    void endOfTheApplicationEndsTheExchange_data();
    void endOfTheApplicationEndsTheExchange();

private:
    /// Calls back once while the form waits.
    void meanwhile(const std::function<void()> &act);

    std::unique_ptr<LocalFeedbackService> service;
    std::unique_ptr<DebugLog> log;
    std::unique_ptr<DialogDriver> driver;
    std::unique_ptr<QWidget> window;
    QPointer<TXFeedbackWidget> form;
};

void TestTXFeedbackWidgetSilence::prepare()
{
    service = std::make_unique<LocalFeedbackService>();
    service->setAnswer(LocalFeedbackService::Answer::Silent);
    QVERIFY2(service->start(), qPrintable(service->error()));
    log = std::make_unique<DebugLog>();
    driver = std::make_unique<DialogDriver>();
    window = std::make_unique<QWidget>();
    auto *layout = std::make_unique<QVBoxLayout>(window.get()).release();
    form = std::make_unique<TXFeedbackWidget>(window.get()).release();
    layout->addWidget(form);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    fillIn(*form);
    expectYes(*driver);
}

void TestTXFeedbackWidgetSilence::finish()
{
    window.reset();
    driver.reset();
    log.reset();
    service.reset();
}

void TestTXFeedbackWidgetSilence::meanwhile(const std::function<void()> &act)
{
    connect(service.get(), &LocalServer::becameSilent, service.get(), act);
}

void TestTXFeedbackWidgetSilence::formWaitsForTheAnswer()
{
    bool hasWaited = false;
    meanwhile([&] {
        hasWaited = log->lines.isEmpty() && window->findChildren<QDialog *>().isEmpty();
        service->release();
    });
    expectFailure(*driver, kRefusedText);

    form->treatSubmitClick();

    QVERIFY(hasWaited);
    QCOMPARE(log->lines, QStringList{QStringLiteral("{\"result\": true}")});
    QVERIFY(isFilledIn(*form));
}

void TestTXFeedbackWidgetSilence::formIsPaintedMeanwhile()
{
    EventCounter counter(*lineEdit(*form, "senderNameLineEdit"), QEvent::Paint);
    QTimer updates;
    connect(&updates, &QTimer::timeout, &updates, [&] {
        if (counter.count >= 5) {
            updates.stop();
            service->release();
        } else {
            window->update();
        }
    });
    meanwhile([&] {
        counter.count = 0;
        updates.start(1);
    });
    expectFailure(*driver, kRefusedText);

    form->treatSubmitClick();

    QVERIFY(counter.count >= 5);
}

void TestTXFeedbackWidgetSilence::secondSubmitMeanwhileDoesNothing()
{
    meanwhile([this] {
        form->treatSubmitClick();
        pushButton(*form, "submitPushButton")->click();
        service->release();
    });
    expectFailure(*driver, kRefusedText);

    form->treatSubmitClick();

    QCOMPARE(service->requests().size(), 1);
}

void TestTXFeedbackWidgetSilence::windowSystemIsHeardMeanwhile()
{
    EventCounter moves(*window->windowHandle(), QEvent::MouseMove);
    QTimer look;
    connect(&look, &QTimer::timeout, &look, [&] {
        if (moves.count > 0) {
            look.stop();
            service->release();
        }
    });
    meanwhile([&] {
        // The window system tells of it as it does when the user closes a window: as user input.
        QCursor::setPos(form->mapToGlobal(QPoint(1, 1)));
        QCursor::setPos(form->mapToGlobal(form->rect().center()));
        moves.count = 0;
        look.start(1);
    });
    expectFailure(*driver, kRefusedText);

    form->treatSubmitClick();

    QVERIFY(moves.count > 0);
}

void TestTXFeedbackWidgetSilence::inputThatComesMeanwhileIsLost()
{
    lineEdit(*form, "senderNameLineEdit")->setFocus();
    QPushButton other(QStringLiteral("&Other"));
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    QSignalSpy clicked(&other, SIGNAL(clicked()));
    QSignalSpy rejected(form, SIGNAL(reject()));
    meanwhile([&] {
        typeFromOutside(*form, Qt::Key_X, QStringLiteral("x"));
        clickFromOutside(*pushButton(*form, "cancelPushButton"));
        clickFromOutside(other);
        service->release();
    });
    expectFailure(*driver, kRefusedText);

    form->treatSubmitClick();

    QCOMPARE(rejected.size() + clicked.size(), 0);
    QVERIFY(isFilledIn(*form));
    clickFromOutside(other);
    QCOMPARE(clicked.size(), 1);
}

void TestTXFeedbackWidgetSilence::inputBehindTheFailureIsLost()
{
    lineEdit(*form, "senderNameLineEdit")->setFocus();
    meanwhile([this] { service->release(); });
    QSignalSpy rejected(form, SIGNAL(reject()));
    driver->expectMessageBox([&](QMessageBox &box) {
        typeFromOutside(*form, Qt::Key_X, QStringLiteral("x"));
        clickFromOutside(*pushButton(*form, "cancelPushButton"));
        clickFromOutside(*pushButton(*form, "submitPushButton"));
        QVERIFY(box.isVisible());
        box.reject();
    });

    form->treatSubmitClick();
    QCoreApplication::processEvents();

    QCOMPARE(service->requests().size(), 1);
    QCOMPARE(rejected.size(), 0);
    QVERIFY(isFilledIn(*form));
}

void TestTXFeedbackWidgetSilence::formMayGoMeanwhile()
{
    meanwhile([this] { delete form; });

    form->treatSubmitClick();

    QVERIFY(!form);
    QVERIFY(window->isVisible());
    QVERIFY(log->lines.isEmpty());
}

void TestTXFeedbackWidgetSilence::windowMayGoMeanwhile()
{
    meanwhile([this] { window.reset(); });

    form->treatSubmitClick();

    QVERIFY(!form);
    QVERIFY(log->lines.isEmpty());
}

void TestTXFeedbackWidgetSilence::closedWindowEndsTheExchange_data()
{
    QTest::addColumn<bool>("isClosed");
    QTest::newRow("closed") << true;
    QTest::newRow("hidden") << false;
}

void TestTXFeedbackWidgetSilence::closedWindowEndsTheExchange()
{
    QFETCH(bool, isClosed);
    meanwhile([&] {
        if (isClosed) {
            window->close();
        } else {
            window->hide();
        }
    });

    form->treatSubmitClick();

    QCOMPARE(service->requests().size(), 1);
    QVERIFY(!window->isVisible());
    QVERIFY(log->lines.isEmpty());
    QVERIFY(isFilledIn(*form));

    window->show();
    service->setAnswer(LocalFeedbackService::Answer::Accepted);
    expectYes(*driver);
    expectFailure(*driver, kRefusedText);
    form->treatSubmitClick();
    QCOMPARE(service->requests().size(), 2);
}

void TestTXFeedbackWidgetSilence::formThatIsHiddenInItsWindowWaitsOn()
{
    meanwhile([this] {
        form->hide();
        service->release();
    });
    expectFailure(*driver, kRefusedText);

    form->treatSubmitClick();

    QCOMPARE(log->lines, QStringList{QStringLiteral("{\"result\": true}")});
}

void TestTXFeedbackWidgetSilence::windowThatIsClosedWithAHiddenFormEndsTheExchange()
{
    meanwhile([this] {
        form->hide();
        window->close();
    });

    form->treatSubmitClick();

    QVERIFY(log->lines.isEmpty());
    QVERIFY(isFilledIn(*form));
}

void TestTXFeedbackWidgetSilence::endOfTheServiceEndsTheExchange()
{
    meanwhile([this] { QTimer::singleShot(0, service.get(), [this] { service->stop(); }); });
    // Qt asks once more before it gives up, so the words may be those of a closed port.
    driver->expectMessageBox([](QMessageBox &box) {
        QVERIFY(box.text().startsWith(kErrorText.left(kErrorText.indexOf(u'%'))));
        box.reject();
    });

    form->treatSubmitClick();

    QCOMPARE(log->lines.size(), 1);
    QVERIFY(log->lines.first().toInt() != QNetworkReply::NoError);
    QVERIFY(isFilledIn(*form));
}

void TestTXFeedbackWidgetSilence::endOfTheApplicationEndsTheExchange_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("quit") << "quit";
    QTest::newRow("exit") << "exit";
    QTest::newRow("last window closed") << "close";
}

void TestTXFeedbackWidgetSilence::endOfTheApplicationEndsTheExchange()
{
    QFETCH(QString, end);
    meanwhile([&] {
        if (end == u"quit") {
            QCoreApplication::quit();
        } else if (end == u"exit") {
            QCoreApplication::exit(3);
        } else {
            window->close();
        }
    });
    bool hasReturned = false;
    QTimer::singleShot(0, form, [&] {
        form->treatSubmitClick();
        hasReturned = true;
    });

    const int result = QCoreApplication::exec();

    QCOMPARE(result, end == u"exit" ? 3 : 0);
    QVERIFY(hasReturned);
    QVERIFY(log->lines.isEmpty());
    QCOMPARE(service->requests().size(), 1);
    QVERIFY(window->findChildren<QDialog *>().isEmpty());
    QVERIFY(isFilledIn(*form));
}

int main(int argc, char **argv)
{
    // GLib's dispatcher and this window system do not deliver input from within a loop without it.
    qputenv("QT_NO_GLIB", "1");
    return runTest<TestTXFeedbackWidgetSilence>(argc, argv);
}

#include "tst_TXFeedbackWidgetSilence.moc"
