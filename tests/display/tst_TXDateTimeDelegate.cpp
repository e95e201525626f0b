#include "TXDateTimeDelegate.h"

#include "ItemPainting.h"
#include "TestBase.h"

#include <QAccessible>
#include <QDateTime>
#include <QFontMetricsF>
#include <QHash>
#include <QStandardItemModel>
#include <QTableView>

#include <memory>

using ItemPainting::inkOf;
using ItemPainting::optionAt;
using ItemPainting::painted;
using ItemPainting::pictureOf;
using ItemPainting::pixelsOf;
using ItemPainting::scaled;
using ItemPainting::tellingPalette;

namespace {

const QLocale kGerman(QLocale::German, QLocale::Germany);
const QDateTime kLeapDay(QDate(2024, 2, 29), QTime(17, 5, 9), Qt::UTC);
const QRect kCell(5, 10, 110, 30);

QColor colourOf(QPalette::ColorGroup group, QPalette::ColorRole role)
{
    return tellingPalette().color(group, role);
}

bool has(const QImage &picture, const QColor &colour)
{
    return !pixelsOf(picture, colour).isEmpty();
}

/// The two texts on white paper, at the left and at the right of the cell, in the colour.
QImage texts(const QString &date, const QString &time, const QColor &colour, qreal ratio = 1.0)
{
    QImage image = ItemPainting::paper({120, 60}, ratio);
    QPainter painter(&image);
    painter.setPen(colour);
    painter.drawText(kCell, Qt::AlignLeft | Qt::AlignVCenter, date);
    painter.drawText(kCell, Qt::AlignRight | Qt::AlignVCenter, time);
    return image;
}

} // namespace

class TestTXDateTimeDelegate : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { model.reset(); }

private slots:
    void viewDecidesGroundAndInk_data() { ItemPainting::addStates(); }
    void viewDecidesGroundAndInk();
    void stateDecidesGroundAndInk_data();
    void stateDecidesGroundAndInk();
    void inactiveSelectionKeepsThePen();
    void textsAreThoseOfTheLocale_data();
    void textsAreThoseOfTheLocale();
    void hintIsTheSizeOfBothTexts_data();
    void hintIsTheSizeOfBothTexts();
    void hintFollowsTheFont();
    void valueIsADateOrConvertsToOne_data();
    void valueIsADateOrConvertsToOne();
    void foregroundDoesNotColourTheText();
    void rightToLeftIsTheOtherWayRound();
    void painterIsKept();
    void indexOfNoModelIsEmpty();
    void textIsToldToAssistiveTools();

private:
    QStandardItem &item() { return *model->item(1); }
    void setValue(const QVariant &value) { item().setData(value, Qt::DisplayRole); }
    [[nodiscard]] static QStyleOptionViewItem germanOption(QStyle::State state = {})
    {
        QStyleOptionViewItem option = optionAt(kCell, state);
        option.locale = kGerman;
        return option;
    }
    [[nodiscard]] QImage paintedIn(const QStyleOptionViewItem &option, qreal ratio = 1.0) const
    {
        return painted(TXDateTimeDelegate(), option, model->index(1, 0), ratio);
    }

    std::unique_ptr<QStandardItemModel> model;
};

void TestTXDateTimeDelegate::prepare()
{
    model = std::make_unique<QStandardItemModel>();
    model->appendRow(new QStandardItem);
    model->appendRow(new QStandardItem);
    setValue(kLeapDay);
}

void TestTXDateTimeDelegate::viewDecidesGroundAndInk()
{
    QFETCH(int, state);
    QFETCH(qreal, ratio);
    struct Look
    {
        QColor ground;
        QColor ink;
    };
    const Look unselected{Qt::white, colourOf(QPalette::Active, QPalette::WindowText)};
    const Look selected{colourOf(QPalette::Active, QPalette::Highlight), Qt::white};
    const QHash<int, Look> looks{{ItemPainting::Plain, unselected},
                                 {ItemPainting::Selected, selected},
                                 {ItemPainting::Focused, selected},
                                 // The palette that a table hands out stays active in a window that
                                 // is not. The pen is that with which the view begins to paint.
                                 {ItemPainting::Inactive,
                                  {colourOf(QPalette::Active, QPalette::Window),
                                   colourOf(QPalette::Inactive, QPalette::Text)}},
                                 // A disabled view hands out no active state either.
                                 {ItemPainting::Disabled,
                                  {colourOf(QPalette::Disabled, QPalette::Window),
                                   colourOf(QPalette::Disabled, QPalette::Text)}},
                                 {ItemPainting::DisabledRow,
                                  {Qt::white, colourOf(QPalette::Disabled, QPalette::WindowText)}}};
    QTableView view;
    view.setModel(model.get());
    view.setShowGrid(false);
    view.setLocale(kGerman);
    TXDateTimeDelegate delegate;
    view.setItemDelegate(&delegate);
    const ItemPainting::Stage stage(state, view, item());
    view.resizeColumnToContents(0);

    const QImage cell = pictureOf(view, ratio).copy(scaled(view.visualRect(item().index()), ratio));

    const Look look = looks.value(state);
    QCOMPARE(cell.pixelColor(0, 0), look.ground);
    QCOMPARE(cell.pixelColor(cell.rect().bottomRight()), look.ground);
    QVERIFY(has(cell.copy(QRect(QPoint(), cell.size() / 2)), look.ink));
    QVERIFY(has(cell.copy(cell.width() * 2 / 3, 0, cell.width() / 3, cell.height()), look.ink));
}

void TestTXDateTimeDelegate::stateDecidesGroundAndInk_data()
{
    const QColor ink = colourOf(QPalette::Active, QPalette::WindowText);
    const QColor highlight = colourOf(QPalette::Active, QPalette::Highlight);
    const QColor window = colourOf(QPalette::Active, QPalette::Window);
    const QStyle::State selected = QStyle::State_Selected;
    const QStyle::State active = QStyle::State_Active;
    const QStyle::State focused = QStyle::State_HasFocus;
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<QColor>("ink");
    const QColor none(Qt::white);
    QTest::newRow("none") << QStyle::State() << none << ink;
    QTest::newRow("active") << active << none << ink;
    QTest::newRow("focused") << focused << none << ink;
    QTest::newRow("active, focused") << (active | focused) << none << ink;
    QTest::newRow("selected") << selected << window << QColor(Qt::black);
    QTest::newRow("selected, focused") << (selected | focused) << none << ink;
    QTest::newRow("selected, active") << (selected | active) << highlight << QColor(Qt::white);
    QTest::newRow("selected, active, focused")
        << (selected | active | focused) << highlight << QColor(Qt::white);
}

void TestTXDateTimeDelegate::stateDecidesGroundAndInk()
{
    QFETCH(QStyle::State, state);
    QFETCH(QColor, ground);
    QFETCH(QColor, ink);

    const QImage picture = paintedIn(germanOption(state)).copy(kCell);

    QCOMPARE(picture.pixelColor(0, 0), ground);
    QCOMPARE(picture.pixelColor(picture.rect().bottomRight()), ground);
    QVERIFY(has(picture.copy(0, 0, 50, 30), ink));
    QVERIFY(has(picture.copy(70, 0, 40, 30), ink));
}

void TestTXDateTimeDelegate::inactiveSelectionKeepsThePen()
{
    QImage image = ItemPainting::paper({120, 60});
    QPainter painter(&image);
    painter.setPen(Qt::darkGreen);

    TXDateTimeDelegate().paint(&painter, germanOption(QStyle::State_Selected), item().index());
    painter.end();

    QVERIFY(has(image, Qt::darkGreen));
}

void TestTXDateTimeDelegate::textsAreThoseOfTheLocale_data()
{
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("time");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        QTest::addRow("German at %g", ratio) << kGerman << "  29.02.24"
                                             << "17:05  " << ratio;
        QTest::addRow("English at %g", ratio) << english << "  2/29/24"
                                              << "5:05 PM  " << ratio;
    }
}

void TestTXDateTimeDelegate::textsAreThoseOfTheLocale()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, date);
    QFETCH(QString, time);
    QFETCH(qreal, ratio);
    QStyleOptionViewItem option = germanOption();
    option.locale = locale;
    const QColor ink = colourOf(QPalette::Active, QPalette::WindowText);

    QCOMPARE(paintedIn(option, ratio), texts(date, time, ink, ratio));
}

void TestTXDateTimeDelegate::hintIsTheSizeOfBothTexts_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    QTest::newRow("German") << kGerman << QVariant(kLeapDay) << "  29.02.24 17:05  ";
    QTest::newRow("English") << english << QVariant(kLeapDay) << "  2/29/24 5:05 PM  ";
    QTest::newRow("invalid") << kGerman << QVariant(QDateTime()) << "     ";
    QTest::newRow("nothing") << kGerman << QVariant() << "     ";
}

void TestTXDateTimeDelegate::hintIsTheSizeOfBothTexts()
{
    QFETCH(QLocale, locale);
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    setValue(value);
    QStyleOptionViewItem option = germanOption();
    option.locale = locale;

    const QSizeF size = QFontMetricsF(option.font).size(Qt::TextShowMnemonic, text);

    QCOMPARE(TXDateTimeDelegate().sizeHint(option, item().index()),
             QSize(qRound(size.width()), qRound(size.height())));
}

void TestTXDateTimeDelegate::hintFollowsTheFont()
{
    QStyleOptionViewItem option = germanOption();
    const QSize small = TXDateTimeDelegate().sizeHint(option, item().index());
    option.font.setPixelSize(60);

    const QSize large = TXDateTimeDelegate().sizeHint(option, item().index());

    QVERIFY(large.width() > 3 * small.width());
    QVERIFY(large.height() > 3 * small.height());
}

void TestTXDateTimeDelegate::valueIsADateOrConvertsToOne_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("time");
    QTest::newRow("date and time") << QVariant(kLeapDay) << "  29.02.24"
                                   << "17:05  ";
    QTest::newRow("date") << QVariant(kLeapDay.date()) << "  29.02.24"
                          << "00:00  ";
    QTest::newRow("ISO text") << QVariant("2024-02-29T17:05:09") << "  29.02.24"
                              << "17:05  ";
    QTest::newRow("time") << QVariant(kLeapDay.time()) << "  "
                          << "  ";
    QTest::newRow("other text") << QVariant("29.02.24 17:05") << "  "
                                << "  ";
    QTest::newRow("no such day") << QVariant(QDateTime(QDate(2023, 2, 29), QTime())) << "  "
                                 << "  ";
    QTest::newRow("number") << QVariant(17) << "  "
                            << "  ";
    QTest::newRow("list") << QVariant(QVariantList{kLeapDay}) << "  "
                          << "  ";
    QTest::newRow("nothing") << QVariant() << "  "
                             << "  ";
}

void TestTXDateTimeDelegate::valueIsADateOrConvertsToOne()
{
    QFETCH(QVariant, value);
    QFETCH(QString, date);
    QFETCH(QString, time);
    setValue(value);
    const QColor ink = colourOf(QPalette::Active, QPalette::WindowText);

    QCOMPARE(paintedIn(germanOption()), texts(date, time, ink));
}

void TestTXDateTimeDelegate::foregroundDoesNotColourTheText()
{
    const QImage plain = paintedIn(germanOption());
    item().setForeground(Qt::green);

    QCOMPARE(paintedIn(germanOption()), plain);
}

void TestTXDateTimeDelegate::rightToLeftIsTheOtherWayRound()
{
    QImage image = ItemPainting::paper({120, 60});
    QPainter painter(&image);
    painter.setLayoutDirection(Qt::RightToLeft);
    setValue(QDateTime(QDate(2024, 2, 29), QTime(0, 0), Qt::UTC));

    TXDateTimeDelegate().paint(&painter, germanOption(), item().index());
    painter.end();

    const QRect left = inkOf(image.copy(0, 0, 50, 60));
    const QRect right = inkOf(image.copy(50, 0, 70, 60));
    QVERIFY(!left.isEmpty());
    QVERIFY(left.width() < right.width());
}

void TestTXDateTimeDelegate::painterIsKept()
{
    item().setForeground(Qt::green);

    const QStyle::State selected = QStyle::State_Selected;
    const QList<QStyle::State> states{{}, selected, selected | QStyle::State_Active};
    for (const QStyle::State state : states) {
        QVERIFY(
            ItemPainting::keepsPainter(TXDateTimeDelegate(), germanOption(state), item().index()));
    }
}

void TestTXDateTimeDelegate::indexOfNoModelIsEmpty()
{
    QCOMPARE(inkOf(painted(TXDateTimeDelegate(), germanOption(), {})), QRect());
    QVERIFY(TXDateTimeDelegate().sizeHint(germanOption(), {}).isValid());
}

void TestTXDateTimeDelegate::textIsToldToAssistiveTools()
{
    QTableView view;
    view.setModel(model.get());
    TXDateTimeDelegate delegate;
    view.setItemDelegate(&delegate);
    QAccessibleInterface *table = QAccessible::queryAccessibleInterface(&view);
    QVERIFY(table != nullptr && table->tableInterface() != nullptr);

    QAccessibleInterface *cell = table->tableInterface()->cellAt(1, 0);

    QVERIFY(cell != nullptr);
    QCOMPARE(cell->text(QAccessible::Name), kLeapDay.toString(Qt::ISODateWithMs));
}

int main(int argc, char **argv)
{
    return runTest<TestTXDateTimeDelegate>(argc, argv);
}

#include "tst_TXDateTimeDelegate.moc"
