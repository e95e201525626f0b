#include "PlainMessageBox.h"

#include "DialogDriver.h"
#include "TestBase.h"

#include <QPointer>

#include <memory>

using Show = void (*)(QWidget *, const QString &, const QString &);

class TestPlainMessageBox : public TestBase
{
    Q_OBJECT

private slots:
    void boxIsLikeQtsOwn_data();
    void boxIsLikeQtsOwn();
    void markupIsShownAsItIs();
    void boxIsGoneAfterTheCall();
    void parentMayDieBeforeItsBox();
    void boxNeedsNoParent();
    void questionIsLikeQtsOwn();
    void onlyYesConfirms_data();
    void onlyYesConfirms();
    void questionThatIsDeletedIsNotConfirmed();
};

void TestPlainMessageBox::boxIsLikeQtsOwn_data()
{
    QTest::addColumn<Show>("show");
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::addRow("information") << &PlainMessageBox::information << QMessageBox::Information;
    QTest::addRow("warning") << &PlainMessageBox::warning << QMessageBox::Warning;
}

void TestPlainMessageBox::boxIsLikeQtsOwn()
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

void TestPlainMessageBox::markupIsShownAsItIs()
{
    const QString text = QStringLiteral("<b>554</b> <img src=\"file:///etc/passwd\"> & more");
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        QCOMPARE(box.text(), text);
        QCOMPARE(box.textFormat(), Qt::PlainText);
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    PlainMessageBox::warning(nullptr, QString(), text);
}

void TestPlainMessageBox::boxIsGoneAfterTheCall()
{
    QWidget parent;
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) { box.reject(); });

    PlainMessageBox::information(&parent, QString(), QStringLiteral("Text"));

    QVERIFY(parent.findChildren<QDialog *>().isEmpty());
}

void TestPlainMessageBox::parentMayDieBeforeItsBox()
{
    auto parent = std::make_unique<QWidget>();
    QPointer<QMessageBox> opened;
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        opened = &box;
        parent.reset();
    });

    PlainMessageBox::information(parent.get(), QString(), QStringLiteral("Text"));

    QVERIFY(!parent);
    QVERIFY(!opened);
}

void TestPlainMessageBox::boxNeedsNoParent()
{
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) { box.reject(); });

    PlainMessageBox::information(nullptr, QString(), QStringLiteral("Text"));
}

void TestPlainMessageBox::questionIsLikeQtsOwn()
{
    const QString text = QStringLiteral("<b>Reader</b> %1\nwill be installed.");
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        QVERIFY(!box.parentWidget());
        QCOMPARE(box.windowTitle(), QStringLiteral("Title"));
        QCOMPARE(box.text(), text);
        QCOMPARE(box.textFormat(), Qt::PlainText);
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QVERIFY(!box.defaultButton());
        QVERIFY(box.isModal());
        DialogDriver::click(box.button(QMessageBox::No));
    });

    QVERIFY(!PlainMessageBox::confirm(QStringLiteral("Title"), text));
}

void TestPlainMessageBox::onlyYesConfirms_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("button");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("isConfirmed");
    QTest::newRow("Yes") << QMessageBox::Yes << Qt::Key(0) << true;
    QTest::newRow("No") << QMessageBox::No << Qt::Key(0) << false;
    QTest::newRow("Escape") << QMessageBox::NoButton << Qt::Key_Escape << false;
    QTest::newRow("closed") << QMessageBox::NoButton << Qt::Key(0) << false;
}

void TestPlainMessageBox::onlyYesConfirms()
{
    QFETCH(QMessageBox::StandardButton, button);
    QFETCH(Qt::Key, key);
    QFETCH(bool, isConfirmed);
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        if (button != QMessageBox::NoButton) {
            DialogDriver::click(box.button(button));
        } else if (key != Qt::Key(0)) {
            QTest::keyClick(&box, key);
        } else {
            box.close();
        }
    });

    QCOMPARE(PlainMessageBox::confirm(QStringLiteral("T"), QStringLiteral("Text")), isConfirmed);
}

void TestPlainMessageBox::questionThatIsDeletedIsNotConfirmed()
{
    QPointer<QMessageBox> opened;
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        opened = &box;
        delete &box;
    });

    QVERIFY(!PlainMessageBox::confirm(QStringLiteral("T"), QStringLiteral("Text")));
    QVERIFY(!opened);
}

int main(int argc, char **argv)
{
    return runTest<TestPlainMessageBox>(argc, argv);
}

#include "tst_PlainMessageBox.moc"
