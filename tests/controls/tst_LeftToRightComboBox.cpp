#include "LeftToRightComboBox.h"
#include "TestBase.h"

#include <QGuiApplication>

class TestLeftToRightComboBox : public TestBase
{
    Q_OBJECT

private slots:
    void choiceLooksTheSameFromRightToLeft_data();
    void choiceLooksTheSameFromRightToLeft();
    void textsOfItemsStay();

protected:
    void finish() override { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); }
};

void TestLeftToRightComboBox::choiceLooksTheSameFromRightToLeft_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("hour") << "12:00 am";
    QTest::newRow("letter of a drive") << "N:/";
    QTest::newRow("nothing") << "";
}

void TestLeftToRightComboBox::choiceLooksTheSameFromRightToLeft()
{
    QFETCH(QString, text);
    LeftToRightComboBox box;
    box.addItem(text);
    box.resize(box.sizeHint());
    const QImage before = box.grab().toImage();

    QGuiApplication::setLayoutDirection(Qt::RightToLeft);

    QCOMPARE(box.grab().toImage(), before);
}

void TestLeftToRightComboBox::textsOfItemsStay()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    LeftToRightComboBox box;
    box.addItem("N:/");

    QCOMPARE(box.currentText(), "N:/");
    QCOMPARE(box.itemText(0), "N:/");
}

int main(int argc, char **argv)
{
    return runTest<TestLeftToRightComboBox>(argc, argv);
}

#include "tst_LeftToRightComboBox.moc"
