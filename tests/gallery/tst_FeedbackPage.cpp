#include "FeedbackPage.h"
#include "GalleryAppearance.h"

#include "DialogDriver.h"
#include "FeedbackFieldsPanel.h"
#include "FeedbackFormPanel.h"
#include "FeedbackServicePanel.h"
#include "FeedbackSessionPanel.h"
#include "PageChecks.h"
#include "PageInWindow.h"
#include "TestBase.h"

#include "TXFeedbackDialog.h"
#include "TXFeedbackWidget.h"

#include <QApplication>
#include <QComboBox>
#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTextEdit>

#include <memory>

using Answer = LocalFeedbackService::Answer;

namespace {

constexpr int kPatienceMilliseconds = 30000;

const QString kUnavailable = QStringLiteral("maybe the feedback service is unavailable");
const QString kError = QStringLiteral("because the following error occured:");

/// Listens where the service would, once other programs have let go of it.
bool takePort(QTcpServer &server)
{
    return QTest::qWaitFor(
        [&]() { return server.listen(QHostAddress::LocalHost, LocalFeedbackService::kPort); },
        kPatienceMilliseconds);
}

LocalFeedbackService::Request requestOf(const QByteArray &content)
{
    return {"POST", "/feedback", {}, {{"form-data; name=\"content\"", "content", false, content}}};
}

} // namespace

class TestFeedbackPage : public TestBase
{
    Q_OBJECT

private slots:
    void noteIsListedAndTheFormTellsItsOutcome_data();
    void noteIsListedAndTheFormTellsItsOutcome();
    void noteCarriesFormAndProgram();
    void silentServiceAnswersByItself();
    void switchedOffServiceGetsNothing();
    void dialogSendsTheSameFields();
    void cancelIsListedForFormAndDialog();
    void takenPortIsTold();
    void requestOfTheLastMomentDoesNoHarm();
    void contentIsShownAsFarAsItCanBeRead_data();
    void contentIsShownAsFarAsItCanBeRead();
    void valuesAreJsonWhereTheyCanBe();
    void fieldsCanBeAddedAndRemoved();
    void unchangedFieldsFollowTheProgram();
    void pictureShowsARunningServiceAndANote();
    void textsFollowTheLanguage();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab();
    void pageIsNotTooWide();

private:
    void prepare() override;
    void finish() override;

    /// Other programs may have the port for a moment.
    void switchOn();

    /// Presses "Submit" of the form, which asks first and then tells its outcome with these words.
    void submit(const TXFeedbackWidget &which, const QString &outcome);

    [[nodiscard]] QPlainTextEdit &received() const { return lines(0); }
    [[nodiscard]] QString emissions() const { return lines(1).toPlainText(); }
    [[nodiscard]] QPlainTextEdit &lines(int list) const
    {
        return *page->findChild<FeedbackSessionPanel *>()->findChildren<QPlainTextEdit *>().at(
            list);
    }
    [[nodiscard]] QTableWidget &table() const { return *fields->findChild<QTableWidget *>(); }
    [[nodiscard]] QTableWidgetItem &valueOf(const QString &name) const
    {
        return *table().item(table().findItems(name, Qt::MatchExactly).at(0)->row(), 1);
    }
    /// The object among what the service has got.
    [[nodiscard]] QJsonObject receivedNote() const
    {
        const QString text = received().toPlainText();
        return QJsonDocument::fromJson(text.mid(text.indexOf(u'{')).toUtf8()).object();
    }

    std::unique_ptr<FeedbackPage> page;
    FeedbackServicePanel *service = nullptr;
    FeedbackFormPanel *form = nullptr;
    FeedbackFieldsPanel *fields = nullptr;
};

void TestFeedbackPage::prepare()
{
    page = std::make_unique<FeedbackPage>();
    service = page->findChild<FeedbackServicePanel *>();
    form = page->findChild<FeedbackFormPanel *>();
    fields = page->findChild<FeedbackFieldsPanel *>();
    page->resize(845, 600);
    page->show();
}

void TestFeedbackPage::finish()
{
    page.reset();
}

void TestFeedbackPage::switchOn()
{
    QTRY_VERIFY2_WITH_TIMEOUT((service->setRunning(true), service->isRunning()),
                              qPrintable(service->error()), kPatienceMilliseconds);
}

void TestFeedbackPage::submit(const TXFeedbackWidget &which, const QString &outcome)
{
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::Yes); });
    driver.expectMessageBox([&](QMessageBox &box) {
        QVERIFY2(box.text().contains(outcome), qPrintable(box.text()));
        DialogDriver::click(box, QDialogButtonBox::Ok);
    });
    DialogDriver::click(which.findChild<QPushButton *>("submitPushButton"));
}

void TestFeedbackPage::noteIsListedAndTheFormTellsItsOutcome_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("outcome");

    // A note that is accepted is told like one that is not: the form looks too late.
    QTest::newRow("accepted") << Answer::Accepted << kUnavailable;
    QTest::newRow("refused") << Answer::Refused << kUnavailable;
    QTest::newRow("rubbish") << Answer::Rubbish << kUnavailable;
    QTest::newRow("dropped") << Answer::Dropped << kError;
    QTest::newRow("error") << Answer::Error << "Internal Server Error";
}

void TestFeedbackPage::noteIsListedAndTheFormTellsItsOutcome()
{
    QFETCH(Answer, answer);
    QFETCH(QString, outcome);
    form->fillInExample();
    switchOn();
    service->setAnswer(answer);

    submit(*form->form(), outcome);

    QTRY_VERIFY(received().toPlainText().startsWith(
        "POST /feedback\nContent-Disposition: form-data; name=\"content\"\n{"));
    QCOMPARE(receivedNote()["Subject"].toString(), "Colour differences");
    QCOMPARE(emissions(), QString());
}

void TestFeedbackPage::noteCarriesFormAndProgram()
{
    form->fillInExample();
    valueOf("Page").setText("my page");
    switchOn();

    submit(*form->form(), kUnavailable);

    QTRY_VERIFY(!receivedNote().isEmpty());
    const QJsonObject note = receivedNote();
    QCOMPARE(note["SenderName"].toString(), "Mia Sommer");
    QCOMPARE(note["Page"].toString(), "my page");
    QCOMPARE(note["Qt"].toString(), qVersion());
    QCOMPARE(note["Palette"].toString(), "light");
    QCOMPARE(note["Application"].toString(), QCoreApplication::applicationName());
    QCOMPARE(note.size(), 11);
}

void TestFeedbackPage::silentServiceAnswersByItself()
{
    form->fillInExample();
    switchOn();
    service->setAnswer(Answer::Silent);

    // It would never return else.
    submit(*form->form(), kUnavailable);

    QTRY_VERIFY(!receivedNote().isEmpty());
}

void TestFeedbackPage::switchedOffServiceGetsNothing()
{
    form->fillInExample();
    switchOn();
    service->setRunning(false);
    QTcpServer other;
    // So that nobody else gets the note: a program that hangs up.
    QVERIFY2(takePort(other), qPrintable(other.errorString()));
    connect(&other, &QTcpServer::newConnection, &other,
            [&other]() { delete other.nextPendingConnection(); });

    submit(*form->form(), kError);

    QCOMPARE(received().toPlainText(), QString());
}

void TestFeedbackPage::dialogSendsTheSameFields()
{
    switchOn();
    valueOf("Page").setText("[1, 2]");
    DialogDriver::click(buttonOf(*page, "Open as Dialog"));
    auto *dialog = page->findChild<TXFeedbackDialog *>();
    QVERIFY(dialog && dialog->isVisible());
    const auto lines = dialog->findChildren<QLineEdit *>();
    for (QLineEdit *line : lines) {
        line->setText(QStringLiteral("leo@example.org"));
    }
    dialog->findChild<QTextEdit *>()->setPlainText(QStringLiteral("From the dialog."));

    submit(*dialog->findChild<TXFeedbackWidget *>(), kUnavailable);

    QTRY_VERIFY(!receivedNote().isEmpty());
    QCOMPARE(receivedNote()["Description"].toString(), "From the dialog.");
    QCOMPARE(receivedNote()["Page"].toArray(), QJsonArray({1, 2}));
    QVERIFY(dialog->isVisible());
    QCOMPARE(emissions(), QString());
}

void TestFeedbackPage::cancelIsListedForFormAndDialog()
{
    DialogDriver::click(form->form()->findChild<QPushButton *>("cancelPushButton"));
    QCOMPARE(emissions(), "reject()");
    QVERIFY(form->form()->isVisible());
    DialogDriver::click(buttonOf(*page, "Clear"));
    QCOMPARE(emissions(), QString());

    DialogDriver::click(buttonOf(*page, "Open as Dialog"));
    const auto *dialog = page->findChild<TXFeedbackDialog *>();
    QVERIFY(dialog);
    DialogDriver::click(dialog->findChild<QPushButton *>("cancelPushButton"));

    // The dialog hears of its form's signal before the page does.
    QCOMPARE(emissions(), "finished(Rejected)\nreject()");
    QTRY_VERIFY(!page->findChild<TXFeedbackDialog *>());
}

void TestFeedbackPage::takenPortIsTold()
{
    QTcpServer other;
    QVERIFY2(takePort(other), qPrintable(other.errorString()));

    service->setRunning(true);

    QVERIFY(!service->isRunning());
    QVERIFY2(service->error().contains("port 5050 of 127.0.0.1 is taken by another program"),
             qPrintable(service->error()));
    QVERIFY2(!service->error().contains("setup"), qPrintable(service->error()));
    QVERIFY(isRead(*page, service->error()));
    other.close();
    switchOn();
    QCOMPARE(service->error(), QString());
}

void TestFeedbackPage::requestOfTheLastMomentDoesNoHarm()
{
    switchOn();
    QTcpSocket client;
    client.connectToHost(QHostAddress(QHostAddress::LocalHost), LocalFeedbackService::kPort);
    QVERIFY(client.waitForConnected());
    client.write("POST /feedback HTTP/1.1\r\n\r\n");
    // Answered, so told, and nobody has heard of it yet: nothing here has run an event.
    QVERIFY(client.waitForReadyRead());
    QCOMPARE(received().toPlainText(), QString());

    service->setRunning(false);
    QCoreApplication::processEvents();

    QVERIFY(!service->isRunning());
    QCOMPARE(service->error(), QString());
}

void TestFeedbackPage::contentIsShownAsFarAsItCanBeRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("shown");

    QTest::newRow("JSON") << QByteArray("{\"a\":[1]}") << "{\n    \"a\": [\n        1\n    ]\n}";
    QTest::newRow("text") << QByteArray("a note\n") << "a note";
    QTest::newRow("markup") << QByteArray("<b>a</b>") << "<b>a</b>";
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("not UTF-8") << QByteArray("a\xff"
                                             "b")
                               << QString::fromUtf16(u"a\uFFFDb");
    QTest::newRow("long") << QByteArray(1'000'000, 'x') << QString(4000, u'x') + u'\u2026';
}

void TestFeedbackPage::contentIsShownAsFarAsItCanBeRead()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, shown);

    page->findChild<FeedbackSessionPanel *>()->addRequest(requestOf(content));

    QCOMPARE(received().toPlainText(),
             "POST /feedback\nContent-Disposition: form-data; name=\"content\"\n" + shown);
}

void TestFeedbackPage::valuesAreJsonWhereTheyCanBe()
{
    valueOf("Page").setText("12");
    valueOf("Version").setText("1.2.3");
    valueOf("Style").setText("{\"a\": [true]}");
    valueOf("Qt").setText("null");

    const QVariantHash told = fields->fields();

    QCOMPARE(told.value("Page").toInt(), 12);
    QCOMPARE(told.value("Version"), QVariant("1.2.3"));
    QCOMPARE(told.value("Style").toHash().value("a").toList(), QVariantList() << true);
    QVERIFY(told.contains("Qt"));
    QCOMPARE(told.value("Qt").typeId(), int(QMetaType::Nullptr));
}

void TestFeedbackPage::fieldsCanBeAddedAndRemoved()
{
    auto *remove = buttonOf(*page, "Remove Field");
    QVERIFY(!remove->isEnabled());
    const int before = table().rowCount();

    DialogDriver::click(buttonOf(*page, "Add Field"));
    QCOMPARE(table().rowCount(), before + 1);
    QVERIFY(!fields->fields().contains(QString()));
    QTRY_VERIFY(table().findChild<QLineEdit *>());
    QTest::keyClicks(table().findChild<QLineEdit *>(), "Printer");
    QTest::keyClick(table().findChild<QLineEdit *>(), Qt::Key_Return);
    QTRY_COMPARE(fields->fields().value("Printer"), QVariant(QString()));

    DialogDriver::click(remove);
    QVERIFY(!fields->fields().contains("Printer"));
    while (remove->isEnabled()) {
        DialogDriver::click(remove);
    }
    QCOMPARE(table().rowCount(), 0);
    QCOMPARE(fields->fields(), QVariantHash());
}

void TestFeedbackPage::unchangedFieldsFollowTheProgram()
{
    const QPalette before = QApplication::palette();
    QCOMPARE(valueOf("Palette").text(), "light");

    QApplication::setPalette(QPalette(Qt::black));
    QTRY_COMPARE(valueOf("Palette").text(), "dark");
    applyGalleryColours(GalleryColours::Contrast);
    QTRY_COMPARE(valueOf("Palette").text(), "contrast");
    applyGalleryColours(GalleryColours::System);
    valueOf("Palette").setText("mine");
    QApplication::setPalette(before);
    QCoreApplication::processEvents();

    QCOMPARE(valueOf("Palette").text(), "mine");
    QCOMPARE(fields->fields().value("Palette"), QVariant("mine"));
}

void TestFeedbackPage::pictureShowsARunningServiceAndANote()
{
    page->fillForPicture();

    QVERIFY(page->isReady());
    QVERIFY(service->isRunning() || !service->error().isEmpty());
    QVERIFY(form->form()->isValid(nullptr));
}

void TestFeedbackPage::textsFollowTheLanguage()
{
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    QCOMPARE(smallTexts(*page, {}), QStringList());
    const auto *answers = service->findChild<QComboBox *>();
    QCOMPARE(answers->itemText(0), "ACCEPTED");
    QCOMPARE(answers->itemText(answers->count() - 1), "STATUS 500");
    QCOMPARE(table().horizontalHeaderItem(0)->text(), "NAME");

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QVERIFY(buttonOf(*page, "Open as Dialog"));
}

void TestFeedbackPage::mnemonicsAreNotShared()
{
    QCOMPARE(mnemonicsClashingAt(QStringLiteral("feedback")), QStringList());
}

void TestFeedbackPage::everyControlHasANameAndIsReachedByTab()
{
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    table().setCurrentCell(0, 0);

    QCOMPARE(namelessControls(*page), QStringList());
    QCOMPARE(controlsOutOfReach(*page), QStringList());
}

void TestFeedbackPage::pageIsNotTooWide()
{
    QVERIFY2(page->minimumSizeHint().width() <= 850,
             qPrintable(QString::number(page->minimumSizeHint().width())));
}

int main(int argc, char **argv)
{
    return runTest<TestFeedbackPage>(argc, argv);
}

#include "tst_FeedbackPage.moc"
