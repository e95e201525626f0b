#include "SeparatorLine.h"

#include "ItemPainting.h"
#include "TestBase.h"

#include <QColor>
#include <QComboBox>
#include <QPainter>
#include <QStandardItemModel>

#include <limits>

using ItemPainting::inkOf;
using ItemPainting::optionAt;
using ItemPainting::paper;

namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();

} // namespace

class TestSeparatorLine : public TestBase
{
    Q_OBJECT

private slots:
    void rowIsASeparatorByItsAccessibleDescription_data();
    void rowIsASeparatorByItsAccessibleDescription();
    void rowOfAComboBoxIsASeparator();
    void nothingIsNoSeparator();
    void lineStandsAtItsPosition_data();
    void lineStandsAtItsPosition();
    void lineIsActiveInEveryGroup_data();
    void lineIsActiveInEveryGroup();
};

void TestSeparatorLine::rowIsASeparatorByItsAccessibleDescription_data()
{
    QTest::addColumn<QVariant>("description");
    QTest::addColumn<bool>("isSeparator");
    QTest::newRow("the word") << QVariant("separator") << true;
    QTest::newRow("as bytes") << QVariant(QByteArray("separator")) << true;
    QTest::newRow("capital") << QVariant("Separator") << false;
    QTest::newRow("capitals") << QVariant("SEPARATOR") << false;
    QTest::newRow("blank behind") << QVariant("separator ") << false;
    QTest::newRow("word around") << QVariant("separators") << false;
    QTest::newRow("zero behind") << QVariant(QString("separator") + QChar(0)) << false;
    QTest::newRow("empty") << QVariant("") << false;
    QTest::newRow("none") << QVariant() << false;
    QTest::newRow("number") << QVariant(12) << false;
    QTest::newRow("list") << QVariant(QStringList{"separator", "separator"}) << false;
    QTest::newRow("colour") << QVariant(QColor(Qt::red)) << false;
}

void TestSeparatorLine::rowIsASeparatorByItsAccessibleDescription()
{
    QFETCH(QVariant, description);
    QStandardItemModel model;
    model.appendRow(new QStandardItem("separator"));
    model.item(0)->setData("separator", Qt::UserRole);
    model.item(0)->setData(description, Qt::AccessibleDescriptionRole);

    QTEST(SeparatorLine::isSeparator(model.index(0, 0)), "isSeparator");
}

void TestSeparatorLine::rowOfAComboBoxIsASeparator()
{
    QComboBox combo;
    combo.addItem("sample");
    combo.insertSeparator(1);

    QVERIFY(!SeparatorLine::isSeparator(combo.model()->index(0, 0)));
    QVERIFY(SeparatorLine::isSeparator(combo.model()->index(1, 0)));
}

void TestSeparatorLine::nothingIsNoSeparator()
{
    QVERIFY(!SeparatorLine::isSeparator(QModelIndex()));
}

void TestSeparatorLine::lineStandsAtItsPosition_data()
{
    const QRect item(3, 10, 40, 12);
    QTest::addColumn<QRect>("item");
    QTest::addColumn<int>("position");
    QTest::addColumn<QLine>("line");
    QTest::newRow("middle") << item << 0 << QLine(3, 15, 42, 15);
    QTest::newRow("top") << item << 1 << QLine(3, 10, 42, 10);
    QTest::newRow("bottom") << item << 2 << QLine(3, 21, 42, 21);
    QTest::newRow("beyond") << item << 3 << QLine(3, 0, 42, 0);
    QTest::newRow("below") << item << -1 << QLine(3, 0, 42, 0);
    QTest::newRow("most") << item << kMost << QLine(3, 0, 42, 0);
    QTest::newRow("least") << item << kLeast << QLine(3, 0, 42, 0);
    QTest::newRow("odd height") << QRect(0, 10, 4, 11) << 0 << QLine(0, 15, 3, 15);
    // -8 and -3: half of -11, towards 0.
    QTest::newRow("above the view") << QRect(-9, -8, 4, 6) << 0 << QLine(-9, -5, -6, -5);
    QTest::newRow("across the edge") << QRect(0, -2, 4, 4) << 0 << QLine(0, 0, 3, 0);
    QTest::newRow("empty") << QRect(5, 10, 0, 0) << 0 << QLine(5, 9, 4, 9);
    QTest::newRow("far down") << QRect(QPoint(0, kMost - 3), QPoint(4, kMost)) << 0
                              << QLine(0, kMost - 2, 4, kMost - 2);
    QTest::newRow("far up") << QRect(QPoint(0, kLeast), QPoint(4, kLeast + 3)) << 0
                            << QLine(0, kLeast + 2, 4, kLeast + 2);
}

void TestSeparatorLine::lineStandsAtItsPosition()
{
    QFETCH(QRect, item);
    QFETCH(int, position);

    QTEST(SeparatorLine::lineAt(position, item), "line");
}

void TestSeparatorLine::lineIsActiveInEveryGroup_data()
{
    QTest::addColumn<QPalette::ColorGroup>("group");
    QTest::newRow("active") << QPalette::Active;
    QTest::newRow("inactive") << QPalette::Inactive;
    QTest::newRow("disabled") << QPalette::Disabled;
}

void TestSeparatorLine::lineIsActiveInEveryGroup()
{
    QFETCH(QPalette::ColorGroup, group);
    QStyleOptionViewItem option = optionAt({5, 6, 30, 20});
    option.palette.setCurrentColorGroup(group);
    QImage image = paper({120, 60});
    QPainter painter(&image);
    painter.setPen(QPen(Qt::magenta, 3.0));

    SeparatorLine::draw(painter, option, 1);

    QCOMPARE(painter.pen(), QPen(Qt::magenta, 3.0));
    painter.end();
    QCOMPARE(inkOf(image), QRect(5, 6, 30, 1));
    QCOMPARE(image.pixelColor(5, 6), option.palette.color(QPalette::Active, QPalette::Dark));
}

int main(int argc, char **argv)
{
    return runTest<TestSeparatorLine>(argc, argv);
}

#include "tst_SeparatorLine.moc"
