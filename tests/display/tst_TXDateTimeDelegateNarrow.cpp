#include "TXDateTimeDelegate.h"

#include "ItemPainting.h"
#include "TestBase.h"

#include <QDateTime>
#include <QFontMetricsF>
#include <QSet>
#include <QStandardItemModel>
#include <QTableView>

#include <algorithm>
#include <memory>

using ItemPainting::inkOf;
using ItemPainting::optionAt;
using ItemPainting::painted;

namespace {

const QLocale kGerman(QLocale::German, QLocale::Germany);
const QDateTime kLeapDay(QDate(2024, 2, 29), QTime(17, 5, 9), Qt::UTC);

/// What a date becomes from pass to pass. The last of them stays however narrow the cell is.
const QStringList kPasses{"  29.02.24", "  29....", "  2...", " ...", "..."};

int widthOf(const QString &text, const QFont &font)
{
    return qRound(QFontMetricsF(font).size(Qt::TextShowMnemonic, text).width());
}

QImage texts(const QStyleOptionViewItem &option, const QString &date, const QString &time = {})
{
    QImage image = ItemPainting::paper({120, 60});
    QPainter painter(&image);
    painter.setPen(option.palette.color(QPalette::WindowText));
    painter.drawText(option.rect, Qt::AlignLeft | Qt::AlignVCenter, date);
    painter.drawText(option.rect, Qt::AlignRight | Qt::AlignVCenter, time);
    return image;
}

} // namespace

class TestTXDateTimeDelegateNarrow : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { model.reset(); }

private slots:
    void timeIsThereWhileBothFit();
    void dateIsThereWhileItFits();
    void everyWidthShowsTheFirstPassThatFits();
    void noDateIsShortenedLikewise();
    void cellWithoutRoomDoesNoHarm_data();
    void cellWithoutRoomDoesNoHarm();
    void hugeFontDoesNoHarm_data();
    void hugeFontDoesNoHarm();
    void everyLatinLocaleFitsEveryWidth();
    void narrowColumnOfAViewIsShortened_data();
    void narrowColumnOfAViewIsShortened();

private:
    [[nodiscard]] static QStyleOptionViewItem optionOfWidth(int width)
    {
        QStyleOptionViewItem option = optionAt({5, 10, width, 30});
        option.locale = kGerman;
        return option;
    }
    [[nodiscard]] QImage paintedIn(const QStyleOptionViewItem &option) const
    {
        return painted(TXDateTimeDelegate(), option, model->index(1, 0));
    }

    std::unique_ptr<QStandardItemModel> model;
};

void TestTXDateTimeDelegateNarrow::prepare()
{
    model = std::make_unique<QStandardItemModel>();
    model->appendRow(new QStandardItem);
    model->appendRow(new QStandardItem);
    model->item(1)->setData(kLeapDay, Qt::DisplayRole);
}

void TestTXDateTimeDelegateNarrow::timeIsThereWhileBothFit()
{
    const QFont font = optionOfWidth(0).font;
    const int width = widthOf("  29.02.24", font) + widthOf("17:05  ", font);
    const QStyleOptionViewItem justFits = optionOfWidth(width);
    const QStyleOptionViewItem justNot = optionOfWidth(width - 1);

    QCOMPARE(paintedIn(justFits), texts(justFits, "  29.02.24", "17:05  "));
    QCOMPARE(paintedIn(justNot), texts(justNot, "  29.02.24"));
    QVERIFY(paintedIn(justFits) != paintedIn(justNot));
}

void TestTXDateTimeDelegateNarrow::dateIsThereWhileItFits()
{
    const int width = widthOf("  29.02.24", optionOfWidth(0).font);
    const QStyleOptionViewItem justFits = optionOfWidth(width);
    const QStyleOptionViewItem justNot = optionOfWidth(width - 1);

    QCOMPARE(paintedIn(justFits), texts(justFits, "  29.02.24"));
    QCOMPARE(paintedIn(justNot), texts(justNot, "  29...."));
}

void TestTXDateTimeDelegateNarrow::everyWidthShowsTheFirstPassThatFits()
{
    const int widest = widthOf(kPasses.first(), optionOfWidth(0).font);
    QStringList shown;
    for (int width = widest; width >= 0; --width) {
        const QStyleOptionViewItem option = optionOfWidth(width);
        const auto fits = [&](const QString &text) {
            return widthOf(text, option.font) <= width;
        };
        const auto pass = std::find_if(kPasses.begin(), kPasses.end(), fits);
        const QString expected = pass == kPasses.end() ? kPasses.last() : *pass;
        QCOMPARE(paintedIn(option), texts(option, expected));
        shown.append(expected);
    }
    shown.removeDuplicates();
    QCOMPARE(shown, kPasses);
}

void TestTXDateTimeDelegateNarrow::noDateIsShortenedLikewise()
{
    model->item(1)->setData(QVariant(), Qt::DisplayRole);
    const int blanks = widthOf("  ", optionOfWidth(0).font);
    const QStyleOptionViewItem justNot = optionOfWidth(blanks - 1);

    QCOMPARE(inkOf(paintedIn(optionOfWidth(blanks))), QRect());
    QCOMPARE(paintedIn(justNot), texts(justNot, "..."));
    QVERIFY(!inkOf(paintedIn(justNot)).isEmpty());
}

void TestTXDateTimeDelegateNarrow::cellWithoutRoomDoesNoHarm_data()
{
    QTest::addColumn<QRect>("cell");
    QTest::newRow("no width") << QRect(50, 10, 0, 30);
    QTest::newRow("negative width") << QRect(50, 10, -20, 30);
    QTest::newRow("no height") << QRect(50, 10, 20, 0);
    QTest::newRow("negative size") << QRect(50, 40, -20, -20);
    QTest::newRow("null") << QRect();
    QTest::newRow("far away") << QRect(1000000, 1000000, 10, 10);
}

void TestTXDateTimeDelegateNarrow::cellWithoutRoomDoesNoHarm()
{
    QFETCH(QRect, cell);
    const QStyle::State selected = QStyle::State_Selected | QStyle::State_Active;
    for (const QStyle::State state : {QStyle::State(), selected}) {
        QStyleOptionViewItem option = optionAt(cell, state);
        option.locale = kGerman;
        QVERIFY(TXDateTimeDelegate().sizeHint(option, model->index(1, 0)).isValid());
        // Nothing of the text is outside of where a cell of this size may be.
        QVERIFY(QRect(25, 0, 60, 60).contains(inkOf(paintedIn(option)))
                || inkOf(paintedIn(option)).isEmpty());
    }
}

void TestTXDateTimeDelegateNarrow::hugeFontDoesNoHarm_data()
{
    QTest::addColumn<int>("pixels");
    QTest::newRow("as high as the cell") << 30;
    QTest::newRow("poster") << 5000;
    QTest::newRow("hill") << 1000000;
}

void TestTXDateTimeDelegateNarrow::hugeFontDoesNoHarm()
{
    QFETCH(int, pixels);
    QStyleOptionViewItem option = optionOfWidth(20);
    option.font.setPixelSize(pixels);

    // The texts are measured in the option's font, and drawn in that of the painter.
    QCOMPARE(paintedIn(option), texts(option, "..."));
    QVERIFY(TXDateTimeDelegate().sizeHint(option, model->index(1, 0)).isValid());
}

void TestTXDateTimeDelegateNarrow::everyLatinLocaleFitsEveryWidth()
{
    // Those whose letters the tests have in their fonts.
    const QList<QLocale> locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::LatinScript, QLocale::AnyCountry);
    QVERIFY(locales.size() > 100);
    for (const QLocale &locale : locales) {
        for (const int width : {0, 7, 30, 90}) {
            QStyleOptionViewItem option = optionOfWidth(width);
            option.locale = locale;
            const QRect ink = inkOf(paintedIn(option));
            QVERIFY2(ink.isEmpty() || option.rect.contains(ink), qPrintable(locale.name()));
        }
    }
}

void TestTXDateTimeDelegateNarrow::narrowColumnOfAViewIsShortened_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("at 1") << 1.0;
    QTest::newRow("at 2") << 2.0;
}

void TestTXDateTimeDelegateNarrow::narrowColumnOfAViewIsShortened()
{
    QFETCH(qreal, ratio);
    QTableView view;
    view.setModel(model.get());
    view.setShowGrid(false);
    view.setLocale(kGerman);
    TXDateTimeDelegate delegate;
    view.setItemDelegate(&delegate);
    const ItemPainting::Stage stage(ItemPainting::Plain, view, *model->item(1));
    const QStringList narrowing{"  29.02.24", "  2...", "..."};
    const QModelIndex cell = model->index(1, 0);
    QSet<int> inks;
    for (const QString &text : narrowing) {
        view.setColumnWidth(0, widthOf(text, view.font()));
        const QRect ink = inkOf(ItemPainting::pictureOf(view, ratio));
        QVERIFY(!ink.isEmpty());
        QVERIFY(ink.right() <= ItemPainting::scaled(view.visualRect(cell), ratio).right());
        inks.insert(ink.width());
    }
    QCOMPARE(inks.size(), narrowing.size());
}

int main(int argc, char **argv)
{
    return runTest<TestTXDateTimeDelegateNarrow>(argc, argv);
}

#include "tst_TXDateTimeDelegateNarrow.moc"
