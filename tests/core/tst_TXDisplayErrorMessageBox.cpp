#include "TXDisplayErrorMessageBox.h"

#include "DialogDriver.h"
#include "TXError.h"
#include "TestBase.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpacerItem>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <QTranslator>

#include <algorithm>
#include <limits>
#include <memory>

namespace {

constexpr int kMany = 100000;
constexpr int kMegabyte = 1000000;

TXError described(const QString &description)
{
    TXError error;
    error.setDescription(TXStringI18n::fromString(description));
    return error;
}

TXError failedCopy()
{
    TXError error = described(QStringLiteral("The copy failed"));
    error.domain = QStringLiteral("Files");
    error.code = 12;
    error.subErrors = {described(QStringLiteral("The disk is full")),
                       described(QStringLiteral("The folder is locked"))};
    return error;
}

/// What a box looked like while it was open.
struct Shown
{
    int count = 0;
    QString title;
    QString text;
    QString details;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
    qsizetype numberOfButtons = 0;
    bool hasDefaultButton = false;
    const QWidget *parent = nullptr;
};

Shown describe(const QMessageBox &box)
{
    return {1,
            box.windowTitle(),
            box.text(),
            box.detailedText(),
            box.icon(),
            box.standardButtons(),
            box.buttons().size(),
            box.defaultButton() != nullptr,
            box.parentWidget()};
}

/// Answers the next box and returns where its looks will be.
std::shared_ptr<Shown> expectBox(DialogDriver &driver, QMessageBox::StandardButton button)
{
    auto shown = std::make_shared<Shown>();
    driver.expectMessageBox([shown, button](QMessageBox &box) {
        *shown = describe(box);
        DialogDriver::click(box.button(button));
    });
    return shown;
}

Shown showShort(const TXError &error, ErroMessageBoxType type = ErroMessageBoxWarning,
                QMessageBox::StandardButton button = QMessageBox::Ok, QWidget *parent = nullptr)
{
    DialogDriver driver;
    const auto shown = expectBox(driver, button);
    TXDisplayErrorMessageBox(error, type, parent);
    return *shown;
}

Shown showComplete(const TXError &error, ErroMessageBoxType type = ErroMessageBoxWarning,
                   QWidget *parent = nullptr)
{
    DialogDriver driver;
    const auto shown = expectBox(driver, QMessageBox::Ok);
    TXDisplayCompletErrorMessageBox(error, type, parent);
    return *shown;
}

/// Hands the open complete box to the check, then closes it.
void checkComplete(const TXError &error, const DialogDriver::MessageBoxAnswer &check)
{
    DialogDriver driver;
    driver.expectMessageBox([check](QMessageBox &box) {
        check(box);
        DialogDriver::click(box.button(QMessageBox::Ok));
    });
    TXDisplayCompletErrorMessageBox(error, ErroMessageBoxCritical, nullptr);
}

int statedWidth(const QMessageBox &box)
{
    const QFontMetrics metrics(box.font());
    int width = metrics.horizontalAdvance(box.text());
    width += width / 4;
    const QStringList lines = box.detailedText().split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const int advance = metrics.horizontalAdvance(line);
        width = std::max(width, advance + advance / 8);
    }
    return width;
}

/// Where the item in the last row of the box's grid stands.
struct Cell
{
    QLayoutItem *item = nullptr;
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
};

Cell lastCell(const QGridLayout &grid)
{
    Cell cell;
    cell.item = grid.itemAt(grid.count() - 1);
    grid.getItemPosition(grid.count() - 1, &cell.row, &cell.column, &cell.rows, &cell.columns);
    return cell;
}

QPushButton *detailsButton(const QMessageBox &box)
{
    const QList<QAbstractButton *> buttons = box.buttons();
    for (QAbstractButton *button : buttons) {
        if (box.buttonRole(button) == QMessageBox::ActionRole) {
            return qobject_cast<QPushButton *>(button);
        }
    }
    return nullptr;
}

int linesOf(const QTextBlock &block)
{
    return block.layout() ? block.layout()->lineCount() : 0;
}

int mostLinesOfABlock(const QTextDocument &document)
{
    int most = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        most = std::max(most, linesOf(block));
    }
    return most;
}

/// Text of about this width in the font.
QString textOfWidth(int width)
{
    const QFontMetrics metrics(QApplication::font("QMessageBox"));
    QString text = QStringLiteral("word");
    while (metrics.horizontalAdvance(text) < width) {
        text += QStringLiteral(" word");
    }
    return text;
}

} // namespace

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
    void shortBoxStandsOverTheParent();
    void shortBoxHasNoDetails();

    void completeBoxFollowsTheType_data();
    void completeBoxFollowsTheType();
    void completeBoxTellsTheRestInTheDetails();
    void everyOccurrenceOfTheDescriptionLeavesTheDetails();
    void removingTheDescriptionMindsTheCase();
    void detailsAreTrimmed();
    void detailsEqualToTheDescriptionAreNotOffered();
    void completeBoxIgnoresTheParent();
    void completeBoxHasNoTitle();
    void completeBoxWithoutADescriptionShowsNothing_data();
    void completeBoxWithoutADescriptionShowsNothing();
    void spacerHasTheStatedWidth_data();
    void spacerHasTheStatedWidth();
    void spacerSpansTheLastRow();
    void longDescriptionIsNotWrapped();
    void longDetailIsNotWrapped();
    void descriptionBeyondTheScreenIsWrapped();

    void textsFollowTheLanguage();
    void hostileTextsAreShown_data();
    void hostileTextsAreShown();
    void megabyteOfDetailsIsShown();
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

void TestTXDisplayErrorMessageBox::completeBoxFollowsTheType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::newRow("information") << 0 << QMessageBox::Information;
    QTest::newRow("question") << 1 << QMessageBox::Question;
    QTest::newRow("warning") << 2 << QMessageBox::Warning;
    QTest::newRow("critical") << 3 << QMessageBox::Critical;
    QTest::newRow("below") << -1 << QMessageBox::NoIcon;
    QTest::newRow("above") << 4 << QMessageBox::NoIcon;
}

void TestTXDisplayErrorMessageBox::completeBoxFollowsTheType()
{
    QFETCH(int, type);
    QFETCH(QMessageBox::Icon, icon);

    const Shown shown =
        showComplete(described(QStringLiteral("It failed")), ErroMessageBoxType(type));

    QCOMPARE(shown.count, 1);
    QCOMPARE(shown.icon, icon);
    QCOMPARE(shown.buttons, QMessageBox::Ok);
    QCOMPARE(shown.numberOfButtons, 1);
    QCOMPARE(shown.text, QStringLiteral("It failed"));
}

void TestTXDisplayErrorMessageBox::completeBoxTellsTheRestInTheDetails()
{
    const Shown shown = showComplete(failedCopy());

    QCOMPARE(shown.text, QStringLiteral("The copy failed"));
    QCOMPARE(shown.details,
             QStringLiteral("The disk is full\n    The folder is locked\nDomain: Files\nCode: 12"));
    QCOMPARE(shown.buttons, QMessageBox::Ok);
    QCOMPARE(shown.numberOfButtons, 2);
}

void TestTXDisplayErrorMessageBox::everyOccurrenceOfTheDescriptionLeavesTheDetails()
{
    TXError error = described(QStringLiteral("aa"));
    error.domain = QStringLiteral("aaaxaa");
    error.subErrors = {described(QStringLiteral("aa")), described(QStringLiteral("baab")),
                       described(QStringLiteral("aaaa"))};
    const QString complete = error.getCompletLocalizedDescription();

    QCOMPARE(showComplete(error).details, QString(complete).remove(QStringLiteral("aa")).trimmed());
    QCOMPARE(showComplete(error).details, QStringLiteral("bb\n    \nDomain: ax"));
}

void TestTXDisplayErrorMessageBox::removingTheDescriptionMindsTheCase()
{
    TXError error = described(QStringLiteral("full"));
    error.subErrors = {described(QStringLiteral("Full is full"))};

    QCOMPARE(showComplete(error).details, QStringLiteral("Full is"));
}

void TestTXDisplayErrorMessageBox::detailsAreTrimmed()
{
    TXError error = described(QStringLiteral("It failed"));
    error.subErrors = {described(QStringLiteral("\t reason \n\n"))};

    QCOMPARE(showComplete(error).details, QStringLiteral("reason"));
}

void TestTXDisplayErrorMessageBox::detailsEqualToTheDescriptionAreNotOffered()
{
    checkComplete(described(QStringLiteral("It failed")), [](QMessageBox &box) {
        QCOMPARE(box.detailedText(), QString());
        QCOMPARE(box.buttons().size(), 1);
        QCOMPARE(box.findChild<QTextEdit *>(), nullptr);
    });
}

void TestTXDisplayErrorMessageBox::completeBoxIgnoresTheParent()
{
    QWidget window;

    QCOMPARE(showComplete(failedCopy(), ErroMessageBoxWarning, &window).parent, nullptr);
}

void TestTXDisplayErrorMessageBox::completeBoxHasNoTitle()
{
    TXError error = failedCopy();
    error.userInfo.insert(QStringLiteral("MessageBoxTitle"), QStringLiteral("Copying"));

    QCOMPARE(showComplete(error).title, QString());
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

void TestTXDisplayErrorMessageBox::spacerHasTheStatedWidth_data()
{
    QTest::addColumn<TXError>("error");
    QTest::newRow("no details") << described(QStringLiteral("It failed"));
    QTest::newRow("one letter") << described(QStringLiteral("x"));
    QTest::newRow("details are wider") << failedCopy();

    TXError wide = failedCopy();
    wide.setDescription(TXStringI18n::fromString(textOfWidth(500)));
    QTest::newRow("description is wider") << wide;

    // Just where a quarter and an eighth decide it.
    TXError close = described(QStringLiteral("MMMMMMMMMM"));
    close.subErrors = {described(QStringLiteral("NNNNNNNNNNNNN"))};
    QTest::newRow("nearly the same") << close;

    TXError gaps = described(QStringLiteral("x"));
    gaps.subErrors = {described(QStringLiteral("\n\n\n")), described(QStringLiteral("long line"))};
    QTest::newRow("empty lines") << gaps;

    QTest::newRow("description of two lines") << described(QStringLiteral("one\ntwo"));
}

void TestTXDisplayErrorMessageBox::spacerHasTheStatedWidth()
{
    QFETCH(TXError, error);
    checkComplete(error, [](QMessageBox &box) {
        auto *grid = qobject_cast<QGridLayout *>(box.layout());
        QVERIFY(grid);
        QSpacerItem *spacer = lastCell(*grid).item->spacerItem();
        QVERIFY(spacer);
        QCOMPARE(spacer->sizeHint(), QSize(statedWidth(box), 0));
        QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
        QVERIFY(box.width() >= statedWidth(box));
    });
}

void TestTXDisplayErrorMessageBox::spacerSpansTheLastRow()
{
    checkComplete(failedCopy(), [](QMessageBox &box) {
        auto *grid = qobject_cast<QGridLayout *>(box.layout());
        QVERIFY(grid);
        const Cell cell = lastCell(*grid);
        QVERIFY(cell.item->spacerItem());
        QCOMPARE(cell.row, grid->rowCount() - 1);
        QCOMPARE(cell.column, 0);
        QCOMPARE(cell.rows, 1);
        QCOMPARE(cell.columns, grid->columnCount());
        for (int i = 0; i < grid->count() - 1; ++i) {
            Cell other;
            grid->getItemPosition(i, &other.row, &other.column, &other.rows, &other.columns);
            QVERIFY(other.row + other.rows <= cell.row);
        }
    });
}

void TestTXDisplayErrorMessageBox::longDescriptionIsNotWrapped()
{
    // A message box of its own accord wraps at half the width of the screen.
    const int half = QGuiApplication::primaryScreen()->availableSize().width() / 2;
    const QString description = textOfWidth(half + 50);
    checkComplete(described(description), [description](QMessageBox &box) {
        auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
        QVERIFY(label);
        const QFontMetrics metrics(label->font());
        QVERIFY(label->contentsRect().width() >= metrics.horizontalAdvance(description));
        QVERIFY(label->heightForWidth(label->width()) < 2 * metrics.lineSpacing()
                || !label->wordWrap());
    });
}

void TestTXDisplayErrorMessageBox::longDetailIsNotWrapped()
{
    TXError error = described(QStringLiteral("It failed"));
    error.subErrors = {described(QStringLiteral("short")), described(textOfWidth(600))};
    checkComplete(error, [](QMessageBox &box) {
        DialogDriver::click(detailsButton(box));
        auto *text = box.findChild<QTextEdit *>();
        QVERIFY(text);
        QVERIFY(text->isVisible());
        QCOMPARE(text->document()->blockCount(), 2);
        QCOMPARE(mostLinesOfABlock(*text->document()), 1);
    });
}

void TestTXDisplayErrorMessageBox::descriptionBeyondTheScreenIsWrapped()
{
    const int screen = QGuiApplication::primaryScreen()->availableSize().width();
    checkComplete(described(textOfWidth(2 * screen)), [screen](QMessageBox &box) {
        auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
        QVERIFY(label);
        QVERIFY(box.width() <= screen);
        QVERIFY(label->height() > 2 * QFontMetrics(label->font()).height());
    });
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

void TestTXDisplayErrorMessageBox::megabyteOfDetailsIsShown()
{
    // What is left after "x" was removed half a million times.
    TXError error = described(QStringLiteral("x"));
    error.subErrors = {described(QStringLiteral("xy").repeated(kMegabyte / 2))};

    QCOMPARE(showComplete(error).details, QString(kMegabyte / 2, u'y'));
}

int main(int argc, char **argv)
{
    return runTest<TestTXDisplayErrorMessageBox>(argc, argv);
}

#include "tst_TXDisplayErrorMessageBox.moc"
