#include "TXDisplayErrorMessageBox.h"

#include "DialogDriver.h"
#include "ErrorBoxHelpers.h"
#include "TXError.h"
#include "TestBase.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpacerItem>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

#include <algorithm>

using ErrorBoxTest::described;
using ErrorBoxTest::failedCopy;
using ErrorBoxTest::showComplete;
using ErrorBoxTest::Shown;

namespace {

constexpr int kMegabyte = 1000000;

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

/// The box with the complete description in its details.
class TestTXDisplayErrorMessageBoxComplete : public TestBase
{
    Q_OBJECT

private slots:
    void completeBoxFollowsTheType_data();
    void completeBoxFollowsTheType();
    void completeBoxTellsTheRestInTheDetails();
    void everyOccurrenceOfTheDescriptionLeavesTheDetails();
    void removingTheDescriptionMindsTheCase();
    void detailsAreTrimmed();
    void detailsEqualToTheDescriptionAreNotOffered();
    void completeBoxIgnoresTheParent();
    void completeBoxHasNoTitle();
    void spacerHasTheStatedWidth_data();
    void spacerHasTheStatedWidth();
    void spacerSpansTheLastRow();
    void longDescriptionIsNotWrapped();
    void longDetailIsNotWrapped();
    void descriptionBeyondTheScreenIsWrapped();

    void megabyteOfDetailsIsShown();
};

void TestTXDisplayErrorMessageBoxComplete::completeBoxFollowsTheType_data()
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

void TestTXDisplayErrorMessageBoxComplete::completeBoxFollowsTheType()
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

void TestTXDisplayErrorMessageBoxComplete::completeBoxTellsTheRestInTheDetails()
{
    const Shown shown = showComplete(failedCopy());

    QCOMPARE(shown.text, QStringLiteral("The copy failed"));
    QCOMPARE(shown.details,
             QStringLiteral("The disk is full\n    The folder is locked\nDomain: Files\nCode: 12"));
    QCOMPARE(shown.buttons, QMessageBox::Ok);
    QCOMPARE(shown.numberOfButtons, 2);
}

void TestTXDisplayErrorMessageBoxComplete::everyOccurrenceOfTheDescriptionLeavesTheDetails()
{
    TXError error = described(QStringLiteral("aa"));
    error.domain = QStringLiteral("aaaxaa");
    error.subErrors = {described(QStringLiteral("aa")), described(QStringLiteral("baab")),
                       described(QStringLiteral("aaaa"))};
    const QString complete = error.getCompletLocalizedDescription();

    QCOMPARE(showComplete(error).details, QString(complete).remove(QStringLiteral("aa")).trimmed());
    QCOMPARE(showComplete(error).details, QStringLiteral("bb\n    \nDomain: ax"));
}

void TestTXDisplayErrorMessageBoxComplete::removingTheDescriptionMindsTheCase()
{
    TXError error = described(QStringLiteral("full"));
    error.subErrors = {described(QStringLiteral("Full is full"))};

    QCOMPARE(showComplete(error).details, QStringLiteral("Full is"));
}

void TestTXDisplayErrorMessageBoxComplete::detailsAreTrimmed()
{
    TXError error = described(QStringLiteral("It failed"));
    error.subErrors = {described(QStringLiteral("\t reason \n\n"))};

    QCOMPARE(showComplete(error).details, QStringLiteral("reason"));
}

void TestTXDisplayErrorMessageBoxComplete::detailsEqualToTheDescriptionAreNotOffered()
{
    checkComplete(described(QStringLiteral("It failed")), [](QMessageBox &box) {
        QCOMPARE(box.detailedText(), QString());
        QCOMPARE(box.buttons().size(), 1);
        QCOMPARE(box.findChild<QTextEdit *>(), nullptr);
    });
}

void TestTXDisplayErrorMessageBoxComplete::completeBoxIgnoresTheParent()
{
    QWidget window;

    QCOMPARE(showComplete(failedCopy(), ErroMessageBoxWarning, &window).parent, nullptr);
}

void TestTXDisplayErrorMessageBoxComplete::completeBoxHasNoTitle()
{
    TXError error = failedCopy();
    error.userInfo.insert(QStringLiteral("MessageBoxTitle"), QStringLiteral("Copying"));

    QCOMPARE(showComplete(error).title, QString());
}

void TestTXDisplayErrorMessageBoxComplete::spacerHasTheStatedWidth_data()
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

void TestTXDisplayErrorMessageBoxComplete::spacerHasTheStatedWidth()
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

void TestTXDisplayErrorMessageBoxComplete::spacerSpansTheLastRow()
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

void TestTXDisplayErrorMessageBoxComplete::longDescriptionIsNotWrapped()
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

void TestTXDisplayErrorMessageBoxComplete::longDetailIsNotWrapped()
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

void TestTXDisplayErrorMessageBoxComplete::descriptionBeyondTheScreenIsWrapped()
{
    const int screen = QGuiApplication::primaryScreen()->availableSize().width();
    checkComplete(described(textOfWidth(2 * screen)), [screen](QMessageBox &box) {
        auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
        QVERIFY(label);
        QVERIFY(box.width() <= screen);
        QVERIFY(label->height() > 2 * QFontMetrics(label->font()).height());
    });
}

void TestTXDisplayErrorMessageBoxComplete::megabyteOfDetailsIsShown()
{
    // What is left after "x" was removed half a million times.
    TXError error = described(QStringLiteral("x"));
    error.subErrors = {described(QStringLiteral("xy").repeated(kMegabyte / 2))};

    QCOMPARE(showComplete(error).details, QString(kMegabyte / 2, u'y'));
}

int main(int argc, char **argv)
{
    return runTest<TestTXDisplayErrorMessageBoxComplete>(argc, argv);
}

#include "tst_TXDisplayErrorMessageBoxComplete.moc"
