#include "TXEmbeddableDialog.h"

#include "DialogDriver.h"
#include "TestBase.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr int kSomeResult = 7;

/// With buttons that a form would have wired to the slots.
class FormDialog : public TXEmbeddableDialog
{
    Q_OBJECT

public:
    explicit FormDialog(QWidget *parent = nullptr)
        : TXEmbeddableDialog(parent)
        , buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(buttons);
        connect(buttons, SIGNAL(accepted()), SLOT(accept()));
        connect(buttons, SIGNAL(rejected()), SLOT(reject()));
    }

    QDialogButtonBox *const buttons;
};

/// A host's window with the dialog as a page in it.
class Host
{
public:
    Host()
        : page(new FormDialog(&window))
        , layout(new QVBoxLayout(&window))
    {
        page->setAsWidget();
        layout->addWidget(page);
        window.show();
    }

    QWidget window;
    FormDialog *page;
    QVBoxLayout *layout;
};

} // namespace

class TestTXEmbeddableDialog : public TestBase
{
    Q_OBJECT

private slots:
    void dialogIsADialogOverItsParent();
    void windowEndsByItsButtons_data();
    void windowEndsByItsButtons();
    void windowEndsWithTheResultOfDone();
    void windowEndsByTheEscapeKey();
    void embeddedPageIsAPlainChild();
    void embeddedPageIgnoresItsButtons_data();
    void embeddedPageIgnoresItsButtons();
    void embeddedPageIgnoresTheSlots_data();
    void embeddedPageIgnoresTheSlots();
    void embeddedPageIgnoresTheEscapeKey();
    void embeddedPageIgnoresCallsByTheBase();
    void visibleDialogIsHiddenAndCanBeShownInside();
    void withoutAParentItStaysAWindow();
    void layoutMakesAnOrphanAPage();
};

void TestTXEmbeddableDialog::dialogIsADialogOverItsParent()
{
    QWidget window;
    const auto *dialog = new TXEmbeddableDialog(&window);

    QCOMPARE(dialog->parentWidget(), &window);
    QVERIFY(dialog->isWindow());
    QCOMPARE(dialog->windowType(), Qt::Dialog);
}

void TestTXEmbeddableDialog::windowEndsByItsButtons_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("result");
    QTest::newRow("ok") << int(QDialogButtonBox::Ok) << int(QDialog::Accepted);
    QTest::newRow("cancel") << int(QDialogButtonBox::Cancel) << int(QDialog::Rejected);
}

void TestTXEmbeddableDialog::windowEndsByItsButtons()
{
    QFETCH(int, button);
    QFETCH(int, result);
    DialogDriver driver;
    driver.expect([button](QDialog &dialog) {
        DialogDriver::click(dialog, QDialogButtonBox::StandardButton(button));
    });
    FormDialog dialog;
    QSignalSpy finished(&dialog, SIGNAL(finished(int)));

    QCOMPARE(dialog.exec(), result);
    QCOMPARE(finished.count(), 1);
    QVERIFY(!dialog.isVisible());
}

void TestTXEmbeddableDialog::windowEndsWithTheResultOfDone()
{
    FormDialog dialog;
    dialog.show();
    dialog.done(kSomeResult);

    QCOMPARE(dialog.result(), kSomeResult);
    QVERIFY(!dialog.isVisible());
}

void TestTXEmbeddableDialog::windowEndsByTheEscapeKey()
{
    FormDialog dialog;
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);

    QVERIFY(!dialog.isVisible());
}

void TestTXEmbeddableDialog::embeddedPageIsAPlainChild()
{
    QWidget window;
    auto *page = new TXEmbeddableDialog(&window);

    QVERIFY(page->setAsWidget());
    QCOMPARE(page->windowType(), Qt::Widget);
    QVERIFY(!page->isWindow());
    QCOMPARE(page->parentWidget(), &window);
    QVERIFY(page->setAsWidget());
}

void TestTXEmbeddableDialog::embeddedPageIgnoresItsButtons_data()
{
    windowEndsByItsButtons_data();
}

void TestTXEmbeddableDialog::embeddedPageIgnoresItsButtons()
{
    QFETCH(int, button);
    const Host host;
    QVERIFY(host.page->isVisible());
    QSignalSpy finished(host.page, SIGNAL(finished(int)));
    host.page->setResult(kSomeResult);

    DialogDriver::click(*host.page, QDialogButtonBox::StandardButton(button));

    QVERIFY(host.page->isVisible());
    QVERIFY(host.window.isVisible());
    QCOMPARE(host.page->result(), kSomeResult);
    QCOMPARE(finished.count(), 0);
}

void TestTXEmbeddableDialog::embeddedPageIgnoresTheSlots_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::newRow("accept") << QByteArray("accept");
    QTest::newRow("reject") << QByteArray("reject");
    QTest::newRow("close") << QByteArray("close");
}

void TestTXEmbeddableDialog::embeddedPageIgnoresTheSlots()
{
    QFETCH(QByteArray, slot);
    const Host host;
    host.page->setResult(kSomeResult);
    QSignalSpy accepted(host.page, SIGNAL(accepted()));
    QSignalSpy rejected(host.page, SIGNAL(rejected()));

    QVERIFY(QMetaObject::invokeMethod(host.page, slot.constData()));

    QVERIFY(host.page->isVisible());
    QCOMPARE(host.page->result(), kSomeResult);
    QCOMPARE(accepted.count() + rejected.count(), 0);
}

void TestTXEmbeddableDialog::embeddedPageIgnoresTheEscapeKey()
{
    const Host host;
    QTest::keyClick(host.page, Qt::Key_Escape);

    QVERIFY(host.page->isVisible());
    QVERIFY(host.window.isVisible());
}

void TestTXEmbeddableDialog::embeddedPageIgnoresCallsByTheBase()
{
    const Host host;
    host.page->setResult(kSomeResult);
    static_cast<QDialog *>(host.page)->done(QDialog::Accepted);

    QVERIFY(host.page->isVisible());
    QCOMPARE(host.page->result(), kSomeResult);
}

void TestTXEmbeddableDialog::visibleDialogIsHiddenAndCanBeShownInside()
{
    QWidget window;
    window.show();
    auto *page = new FormDialog(&window);
    page->show();
    QVERIFY(page->isVisible());

    page->setAsWidget();
    QVERIFY(!page->isVisible());
    page->show();
    QVERIFY(page->isVisible());
    QCOMPARE(page->window(), &window);
}

void TestTXEmbeddableDialog::withoutAParentItStaysAWindow()
{
    FormDialog dialog;
    QVERIFY(dialog.setAsWidget());
    dialog.show();
    QVERIFY(dialog.isWindow());

    dialog.accept();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(!dialog.isVisible());
}

void TestTXEmbeddableDialog::layoutMakesAnOrphanAPage()
{
    auto orphan = std::make_unique<FormDialog>();
    orphan->setAsWidget();
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    FormDialog *page = orphan.release();
    layout->addWidget(page);
    window.show();

    QVERIFY(!page->isWindow());
    page->accept();
    QVERIFY(page->isVisible());
}

int main(int argc, char **argv)
{
    return runTest<TestTXEmbeddableDialog>(argc, argv);
}

#include "tst_TXEmbeddableDialog.moc"
