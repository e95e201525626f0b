#include "ShareRowDelegate.h"

#include "AddressText.h"
#include "DrawnInk.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QListWidget>

namespace {

/// What is drawn of a row that stands at the list's right side.
QImage drawnAtTheRight(const QString &text, Qt::LayoutDirection direction,
                       QAbstractItemDelegate &delegate)
{
    QListWidget list;
    list.setLayoutDirection(direction);
    list.setFrameShape(QFrame::NoFrame);
    list.setItemDelegate(&delegate);
    list.addItem(text);
    list.item(0)->setTextAlignment(Qt::AlignRight | Qt::AlignAbsolute);
    list.resize(400, 30);
    return DrawnInk::cropped(PixelProbe(list).image());
}

} // namespace

class TestShareRowDelegate : public TestBase
{
    Q_OBJECT

private slots:
    void textIsDrawnAsAnAddress();
    void addressReadsTheSameFromRightToLeft_data();
    void addressReadsTheSameFromRightToLeft();
    void rowsAreOneLineHighAndNoWiderThanTheList();
};

void TestShareRowDelegate::textIsDrawnAsAnAddress()
{
    const ShareRowDelegate delegate;
    const QString text = QStringLiteral("nas - /a\nb") + QString(1000, u'x');
    QCOMPARE(delegate.displayText(text, QLocale::c()), AddressText::drawn(text));
}

void TestShareRowDelegate::addressReadsTheSameFromRightToLeft_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("drive letter") << "L:/";
    QTest::newRow("folder") << "/share";
    QTest::newRow("share of an address") << "192.168.0.7 - /a/b";
    QTest::newRow("Hebrew") << u"nas - /\u05EA\u05DE\u05D5\u05E0\u05D5\u05EA/"_qs;
}

void TestShareRowDelegate::addressReadsTheSameFromRightToLeft()
{
    QFETCH(QString, text);
    QStyledItemDelegate plain;
    ShareRowDelegate ours;
    const QImage expected = drawnAtTheRight(text, Qt::LeftToRight, plain);
    QVERIFY(!expected.isNull());
    QVERIFY(drawnAtTheRight(text, Qt::RightToLeft, plain) != expected);
    QCOMPARE(drawnAtTheRight(text, Qt::LeftToRight, ours), expected);
    QCOMPARE(drawnAtTheRight(text, Qt::RightToLeft, ours), expected);
}

void TestShareRowDelegate::rowsAreOneLineHighAndNoWiderThanTheList()
{
    QListWidget list;
    list.setItemDelegate(new ShareRowDelegate(&list));
    list.addItems({QStringLiteral("nas - /a"), QStringLiteral("nas - /a\nb\nc"),
                   QStringLiteral("nas - /") + QString(1000, u'x')});
    const int height = list.sizeHintForRow(0);
    QVERIFY(height >= list.fontMetrics().height());
    QVERIFY(height < 2 * list.fontMetrics().height());
    QCOMPARE(list.sizeHintForRow(1), height);
    QCOMPARE(list.sizeHintForRow(2), height);
    QVERIFY(list.sizeHintForColumn(0) <= 2);
}

int main(int argc, char **argv)
{
    return runTest<TestShareRowDelegate>(argc, argv);
}

#include "tst_ShareRowDelegate.moc"
