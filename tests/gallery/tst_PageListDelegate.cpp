#include "PageListDelegate.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QLineEdit>
#include <QListWidget>

class TestPageListDelegate : public TestBase
{
    Q_OBJECT

private slots:
    void currentRowHasABarAtItsLeadingEdge_data();
    void currentRowHasABarAtItsLeadingEdge();
    void otherRowsArePlain();
    void keyboardFocusIsFramed();
    void rowsHaveRoomForTheirText();

protected:
    void prepare() override;
    void finish() override;

private:
    QRect row(int index) const { return list->visualItemRect(list->item(index)); }
    QColor accent() const { return list->palette().color(QPalette::Highlight); }
    /// The tint of the current row on the view's ground.
    bool isTinted(const QColor &colour) const
    {
        return colour != list->palette().color(QPalette::Base)
            && colour.lightness() > accent().lightness();
    }

    QScopedPointer<QListWidget> list;
};

void TestPageListDelegate::prepare()
{
    list.reset(new QListWidget);
    list->setFrameShape(QFrame::NoFrame);
    list->setItemDelegate(new PageListDelegate(list.data()));
    list->addItems({"Log", "Display"});
    list->setCurrentRow(0);
    list->resize(200, 120);
    list->show();
}

void TestPageListDelegate::finish()
{
    list.reset();
}

void TestPageListDelegate::currentRowHasABarAtItsLeadingEdge_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        QTest::addRow("from the left at %g", ratio) << Qt::LeftToRight << ratio;
        QTest::addRow("from the right at %g", ratio) << Qt::RightToLeft << ratio;
    }
}

void TestPageListDelegate::currentRowHasABarAtItsLeadingEdge()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(qreal, ratio);
    list->setLayoutDirection(direction);
    const QPoint left(row(0).left() + 1, row(0).center().y());
    const QPoint right(row(0).right() - 1, row(0).center().y());
    const bool isFromLeft = direction == Qt::LeftToRight;

    const PixelProbe probe(*list, ratio);

    QVERIFY(probe.isNear(isFromLeft ? left : right, accent(), 8));
    QVERIFY(isTinted(probe.at(isFromLeft ? right : left)));
    QVERIFY(probe.countColours(row(0).adjusted(16, 4, -16, -4)) > 4);
}

void TestPageListDelegate::otherRowsArePlain()
{
    const PixelProbe probe(*list);

    QCOMPARE(probe.at({1, row(1).center().y()}), list->palette().color(QPalette::Base));
    QVERIFY(probe.countColours(row(1).adjusted(16, 4, -16, -4)) > 4);
}

void TestPageListDelegate::keyboardFocusIsFramed()
{
    QWidget window;
    QLineEdit neighbour(&window);
    list->setParent(&window);
    list->move(0, neighbour.sizeHint().height());
    list->show();
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    neighbour.setFocus();
    // The middle of the upper edge: a frame is a line of the accent colour.
    const QPoint edge(row(0).center().x(), row(0).top() + 2);
    const QColor before = PixelProbe(*list).at(edge);

    QTest::keyClick(&neighbour, Qt::Key_Tab);

    QVERIFY(list->hasFocus());
    QVERIFY(isTinted(before));
    QVERIFY(PixelProbe(*list).at(edge).lightness() + 20 < before.lightness());
    list.reset();
}

void TestPageListDelegate::rowsHaveRoomForTheirText()
{
    QVERIFY(row(0).height() >= list->fontMetrics().height() + 16);
    QVERIFY(list->sizeHintForColumn(0) >= list->fontMetrics().horizontalAdvance("Display") + 32);
}

int main(int argc, char **argv)
{
    return runTest<TestPageListDelegate>(argc, argv);
}

#include "tst_PageListDelegate.moc"
