#include "TXDisplayErrorMessageBox.h"

#include "DialogDriver.h"
#include "ErrorBoxHelpers.h"
#include "TXError.h"
#include "TestBase.h"

#include <QTranslator>

#include <limits>

using ErrorBoxTest::described;
using ErrorBoxTest::expectBox;
using ErrorBoxTest::failedCopy;
using ErrorBoxTest::showComplete;
using ErrorBoxTest::Shown;

namespace {

constexpr int kMany = 100000;

Shown showShort(const TXError &error, ErroMessageBoxType type = ErroMessageBoxWarning,
                QMessageBox::StandardButton button = QMessageBox::Ok, QWidget *parent = nullptr)
{
    DialogDriver driver;
    const auto shown = expectBox(driver, button);
    TXDisplayErrorMessageBox(error, type, parent);
    return *shown;
}

} // namespace

/// The short box, and what both boxes have in common.
class TestTXDisplayErrorMessageBox : public TestBase
{
    Q_OBJECT

private slots:
    void typesHaveTheirNumbers();

    void shortBoxFollowsTheType_data();
    void shortBoxFollowsTheType();
    void shortBoxOfAnotherTypeShowsNothing_data();
    void shortBoxOfAnotherTypeShowsNothing();
    void answerToAQuestionMakesNoDifference();
    void nestedErrorsFollowOneALine();
    void nestedErrorWithoutTextLeavesAnEmptyLine();
    void errorsBelowNestedOnesAreNotInTheShortText();
    void withoutADescriptionOnlyTheFirstNestedErrorIsShown();
    void titleIsThatOfUserInfoOrElseTheDomain_data();
    void titleIsThatOfUserInfoOrElseTheDomain();
    void shortBoxWithoutTextShowsNothing_data();
    void shortBoxWithoutTextShowsNothing();
    void completeBoxWithoutADescriptionShowsNothing_data();
    void completeBoxWithoutADescriptionShowsNothing();
    void shortBoxStandsOverTheParent();
    void shortBoxHasNoDetails();

    void textsFollowTheLanguage();
    void hostileTextsAreShown_data();
    void hostileTextsAreShown();
};

void TestTXDisplayErrorMessageBox::typesHaveTheirNumbers()
{
    QCOMPARE(int(ErroMessageBoxInformation), 0);
    QCOMPARE(int(ErroMessageBoxQuestion), 1);
    QCOMPARE(int(ErroMessageBoxWarning), 2);
    QCOMPARE(int(ErroMessageBoxCritical), 3);
}

void TestTXDisplayErrorMessageBox::shortBoxFollowsTheType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::addColumn<int>("buttons");
    const int ok = QMessageBox::Ok;
    const int yesNo = QMessageBox::Yes | QMessageBox::No;
    QTest::newRow("information") << 0 << QMessageBox::Information << ok;
    QTest::newRow("question") << 1 << QMessageBox::Question << yesNo;
    QTest::newRow("warning") << 2 << QMessageBox::Warning << ok;
    QTest::newRow("critical") << 3 << QMessageBox::Critical << ok;
}

void TestTXDisplayErrorMessageBox::shortBoxFollowsTheType()
{
    QFETCH(int, type);
    QFETCH(QMessageBox::Icon, icon);
    QFETCH(int, buttons);
    const auto answer = type == ErroMessageBoxQuestion ? QMessageBox::No : QMessageBox::Ok;

    const Shown shown = showShort(failedCopy(), ErroMessageBoxType(type), answer);

    QCOMPARE(shown.icon, icon);
    QCOMPARE(int(shown.buttons), buttons);
    // Nobody chooses one here; Qt takes a button that only agrees.
    QCOMPARE(shown.hasDefaultButton, type != ErroMessageBoxQuestion);
}

void TestTXDisplayErrorMessageBox::shortBoxOfAnotherTypeShowsNothing_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {-1, 4, 5, std::numeric_limits<int>::max()}) {
        QTest::addRow("%d", type) << type;
    }
}

void TestTXDisplayErrorMessageBox::shortBoxOfAnotherTypeShowsNothing()
{
    QFETCH(int, type);
    const DialogDriver nobodyExpectsADialog;
    TXDisplayErrorMessageBox(failedCopy(), ErroMessageBoxType(type), nullptr);
}

void TestTXDisplayErrorMessageBox::answerToAQuestionMakesNoDifference()
{
    for (const auto answer : {QMessageBox::Yes, QMessageBox::No}) {
        QCOMPARE(showShort(failedCopy(), ErroMessageBoxQuestion, answer).count, 1);
    }
}

void TestTXDisplayErrorMessageBox::nestedErrorsFollowOneALine()
{
    QCOMPARE(showShort(failedCopy()).text,
             QStringLiteral("The copy failed\nThe disk is full\nThe folder is locked"));
}

void TestTXDisplayErrorMessageBox::nestedErrorWithoutTextLeavesAnEmptyLine()
{
    TXError error = described(QStringLiteral("first"));
    error.subErrors = {TXError(), described(QStringLiteral("last"))};

    QCOMPARE(showShort(error).text, QStringLiteral("first\n\nlast"));
}

void TestTXDisplayErrorMessageBox::errorsBelowNestedOnesAreNotInTheShortText()
{
    TXError error = described(QStringLiteral("outer"));
    TXError nested = described(QStringLiteral("nested"));
    nested.subErrors = {described(QStringLiteral("innermost"))};
    error.subErrors = {nested};

    QCOMPARE(showShort(error).text, QStringLiteral("outer\nnested"));
}

void TestTXDisplayErrorMessageBox::withoutADescriptionOnlyTheFirstNestedErrorIsShown()
{
    TXError error;
    error.domain = QStringLiteral("Files");
    error.subErrors = {described(QStringLiteral("first")), described(QStringLiteral("second"))};

    const Shown shown = showShort(error);

    QCOMPARE(shown.text, QStringLiteral("first"));
    QCOMPARE(shown.title, QStringLiteral("Files"));
}

void TestTXDisplayErrorMessageBox::titleIsThatOfUserInfoOrElseTheDomain_data()
{
    QTest::addColumn<QVariant>("title");
    QTest::addColumn<QString>("shown");
    QTest::newRow("absent") << QVariant() << QStringLiteral("Files");
    QTest::newRow("text") << QVariant(QStringLiteral("Copying")) << QStringLiteral("Copying");
    QTest::newRow("empty") << QVariant(QLatin1String("")) << QStringLiteral("Files");
    QTest::newRow("number") << QVariant(12) << QStringLiteral("12");
    QTest::newRow("list") << QVariant(QVariantList{1, 2}) << QStringLiteral("Files");
    QTest::newRow("two texts") << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b")})
                               << QStringLiteral("Files");
}

void TestTXDisplayErrorMessageBox::titleIsThatOfUserInfoOrElseTheDomain()
{
    QFETCH(QVariant, title);
    QFETCH(QString, shown);
    TXError error = failedCopy();
    error.userInfo.insert(QStringLiteral("title"), QStringLiteral("wrong key"));
    if (title.isValid()) {
        error.userInfo.insert(QStringLiteral("MessageBoxTitle"), title);
    }

    QCOMPARE(showShort(error).title, shown);
}

void TestTXDisplayErrorMessageBox::shortBoxWithoutTextShowsNothing_data()
{
    QTest::addColumn<TXError>("error");
    QTest::newRow("nothing at all") << TXError();

    TXError userInfo;
    userInfo.userInfo.insert(QStringLiteral("MessageBoxTitle"), QStringLiteral("Copying"));
    QTest::newRow("a title alone") << userInfo;

    TXError numbered;
    numbered.domain = QStringLiteral("Files");
    numbered.code = 12;
    QTest::newRow("domain and code") << numbered;

    TXError hollow;
    hollow.subErrors = {TXError(), described(QStringLiteral("second"))};
    QTest::newRow("first nested error has no text") << hollow;
}

void TestTXDisplayErrorMessageBox::shortBoxWithoutTextShowsNothing()
{
    QFETCH(TXError, error);
    const DialogDriver nobodyExpectsADialog;
    TXDisplayErrorMessageBox(error, ErroMessageBoxCritical, nullptr);
}

void TestTXDisplayErrorMessageBox::completeBoxWithoutADescriptionShowsNothing_data()
{
    shortBoxWithoutTextShowsNothing_data();
    TXError nested;
    nested.domain = QStringLiteral("Files");
    nested.subErrors = {described(QStringLiteral("nested"))};
    QTest::newRow("nested error has a text") << nested;
}

void TestTXDisplayErrorMessageBox::completeBoxWithoutADescriptionShowsNothing()
{
    QFETCH(TXError, error);
    const DialogDriver nobodyExpectsADialog;
    TXDisplayCompletErrorMessageBox(error, ErroMessageBoxCritical, nullptr);
}

void TestTXDisplayErrorMessageBox::shortBoxStandsOverTheParent()
{
    QWidget window;
    QCOMPARE(showShort(failedCopy(), ErroMessageBoxWarning, QMessageBox::Ok, &window).parent,
             &window);
    QCOMPARE(showShort(failedCopy()).parent, nullptr);
}

void TestTXDisplayErrorMessageBox::shortBoxHasNoDetails()
{
    QCOMPARE(showShort(failedCopy()).details, QString());
}

void TestTXDisplayErrorMessageBox::textsFollowTheLanguage()
{
    class Translator : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *, const char *source, const char *, int) const override
        {
            return QByteArray(source) == "No file" ? QStringLiteral("Keine Datei") : QString();
        }
    } translator;
    TXError error;
    error.setDescription(TXStringI18n("Files", "No file", nullptr, -1));
    QCoreApplication::installTranslator(&translator);

    QCOMPARE(showShort(error).text, QStringLiteral("Keine Datei"));
    const Shown complete = showComplete(error);
    QCOMPARE(complete.text, QStringLiteral("Keine Datei"));
    QCOMPARE(complete.details, QString());
}

void TestTXDisplayErrorMessageBox::hostileTextsAreShown_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("reason");
    QTest::newRow("control characters")
        << QStringLiteral("a\x01\x7f\x1b[31m\tb") << QStringLiteral("\r\v\x02 c");
    QTest::newRow("null character") << QString(QChar(u'\0')) << QString(3, QChar(u'\0'));
    QTest::newRow("half a pair") << QString(QChar(0xd800)) << QString(QChar(0xdc00));
    QTest::newRow("place markers") << QStringLiteral("%1 %n %") << QStringLiteral("%2%1");
    QTest::newRow("a blank") << QStringLiteral(" ") << QStringLiteral("two words");
    QTest::newRow("endless line") << QString(kMany, u'x') << QString(kMany, u'y');
    QTest::newRow("one letter again and again")
        << QStringLiteral("x") << QStringLiteral("xy").repeated(kMany / 2);
    QTest::newRow("many lines") << QStringLiteral("It failed")
                                << QStringLiteral("line\n").repeated(kMany / 5);
}

void TestTXDisplayErrorMessageBox::hostileTextsAreShown()
{
    QFETCH(QString, description);
    QFETCH(QString, reason);
    TXError error = described(description);
    error.subErrors = {described(reason)};

    QCOMPARE(showShort(error).text, description + u'\n' + reason);
    const Shown complete = showComplete(error);
    QCOMPARE(complete.text, description);
    QCOMPARE(complete.details,
             error.getCompletLocalizedDescription().remove(description).trimmed());
}

int main(int argc, char **argv)
{
    return runTest<TestTXDisplayErrorMessageBox>(argc, argv);
}

#include "tst_TXDisplayErrorMessageBox.moc"
