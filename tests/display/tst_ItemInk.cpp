#include "ItemInk.h"

#include "ItemPainting.h"
#include "TestBase.h"

#include <QBrush>
#include <QPainter>
#include <QPen>
#include <QStandardItemModel>

using ItemPainting::optionAt;
using ItemPainting::paper;

class TestItemInk : public TestBase
{
    Q_OBJECT

private slots:
    void penIsTheTextOfTheGroup_data();
    void penIsTheTextOfTheGroup();
    void brushIsTheForeground_data();
    void brushIsTheForeground();
    void nothingHasNoForeground();
};

void TestItemInk::penIsTheTextOfTheGroup_data()
{
    QTest::addColumn<QPalette::ColorGroup>("group");
    QTest::newRow("active") << QPalette::Active;
    QTest::newRow("inactive") << QPalette::Inactive;
    QTest::newRow("disabled") << QPalette::Disabled;
}

void TestItemInk::penIsTheTextOfTheGroup()
{
    QFETCH(QPalette::ColorGroup, group);
    QStyleOptionViewItem option = optionAt({0, 0, 20, 20});
    option.palette.setCurrentColorGroup(group);
    QImage image = paper({20, 20});
    QPainter painter(&image);

    ItemInk::apply(painter, option, {});

    const QPen pen = painter.pen();
    QCOMPARE(pen.brush(), option.palette.brush(group, QPalette::WindowText));
    QCOMPARE(pen.widthF(), 0.0);
    QCOMPARE(pen.style(), Qt::SolidLine);
    QCOMPARE(pen.capStyle(), Qt::SquareCap);
    QCOMPARE(pen.joinStyle(), Qt::BevelJoin);
}

void TestItemInk::brushIsTheForeground_data()
{
    QTest::addColumn<QVariant>("foreground");
    QTest::addColumn<QBrush>("brush");
    const QBrush hatched(Qt::red, Qt::BDiagPattern);
    QTest::newRow("brush") << QVariant::fromValue(hatched) << hatched;
    QTest::newRow("colour") << QVariant::fromValue(QColor(Qt::blue)) << QBrush(Qt::blue);
    QTest::newRow("none") << QVariant() << QBrush();
    QTest::newRow("text") << QVariant("#0000ff") << QBrush();
    QTest::newRow("number") << QVariant(7) << QBrush();
}

void TestItemInk::brushIsTheForeground()
{
    QFETCH(QVariant, foreground);
    QStandardItemModel model;
    model.appendRow(new QStandardItem("sample"));
    model.item(0)->setData(foreground, Qt::ForegroundRole);
    QImage image = paper({20, 20});
    QPainter painter(&image);

    ItemInk::apply(painter, optionAt({0, 0, 20, 20}), model.index(0, 0));

    QTEST(painter.brush(), "brush");
}

void TestItemInk::nothingHasNoForeground()
{
    QImage image = paper({20, 20});
    QPainter painter(&image);
    painter.setBrush(Qt::red);

    ItemInk::apply(painter, optionAt({0, 0, 20, 20}), {});

    QCOMPARE(painter.brush(), QBrush(Qt::NoBrush));
}

int main(int argc, char **argv)
{
    return runTest<TestItemInk>(argc, argv);
}

#include "tst_ItemInk.moc"
