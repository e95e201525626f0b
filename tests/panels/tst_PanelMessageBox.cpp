#include "PanelMessageBox.h"

#include "DialogDriver.h"
#include "TestBase.h"

#include <QPointer>

#include <memory>

using Show = void (*)(QWidget *, const QString &, const QString &);

class TestPanelMessageBox : public TestBase
{
    Q_OBJECT

private slots:
    void boxIsLikeQtsOwn_data();
    void boxIsLikeQtsOwn();
    void markupIsShownAsItIs();
    void boxIsGoneAfterTheCall();
    void parentMayDieBeforeItsBox();
    void boxNeedsNoParent();
};

void TestPanelMessageBox::boxIsLikeQtsOwn_data()
{
    QTest::addColumn<Show>("show");
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::addRow("information") << &PanelMessageBox::information << QMessageBox::Information;
    QTest::addRow("warning") << &PanelMessageBox::warning << QMessageBox::Warning;
}

void TestPanelMessageBox::boxIsLikeQtsOwn()
{
    QFETCH(Show, show);
    QFETCH(QMessageBox::Icon, icon);
    QWidget parent;
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        QCOMPARE(box.parentWidget(), &parent);
        QCOMPARE(box.windowTitle(), QStringLiteral("Title"));
        QCOMPARE(box.text(), QStringLiteral("Text"));
        QCOMPARE(box.icon(), icon);
        QCOMPARE(box.standardButtons(), QMessageBox::Ok);
        QVERIFY(box.isModal());
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    show(&parent, QStringLiteral("Title"), QStringLiteral("Text"));
}

void TestPanelMessageBox::markupIsShownAsItIs()
{
    const QString text = QStringLiteral("<b>554</b> <img src=\"file:///etc/passwd\"> & more");
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        QCOMPARE(box.text(), text);
        QCOMPARE(box.textFormat(), Qt::PlainText);
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    PanelMessageBox::warning(nullptr, QString(), text);
}

void TestPanelMessageBox::boxIsGoneAfterTheCall()
{
    QWidget parent;
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) { box.reject(); });

    PanelMessageBox::information(&parent, QString(), QStringLiteral("Text"));

    QVERIFY(parent.findChildren<QDialog *>().isEmpty());
}

void TestPanelMessageBox::parentMayDieBeforeItsBox()
{
    auto parent = std::make_unique<QWidget>();
    QPointer<QMessageBox> opened;
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        opened = &box;
        parent.reset();
    });

    PanelMessageBox::information(parent.get(), QString(), QStringLiteral("Text"));

    QVERIFY(!parent);
    QVERIFY(!opened);
}

void TestPanelMessageBox::boxNeedsNoParent()
{
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) { box.reject(); });

    PanelMessageBox::information(nullptr, QString(), QStringLiteral("Text"));
}

int main(int argc, char **argv)
{
    return runTest<TestPanelMessageBox>(argc, argv);
}

#include "tst_PanelMessageBox.moc"
