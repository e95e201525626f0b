#include "TXStackedWidget.h"
#include "TestBase.h"
#include "UpdateDialogTools.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QThreadPool>
#include <QWindow>

using UpdateDialogTools::Dialog;
using UpdateDialogTools::newRelease;
using UpdateDialogTools::part;
using UpdateDialogTools::receive;
using UpdateDialogTools::useNoService;

namespace {

/// Keys as they come from the platform, to whatever has the focus.
void typeInto(const Dialog &dialog)
{
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Space);
}

/// The signatures of the dialog's own public methods of this type, in their order.
QStringList signaturesOf(QMetaMethod::MethodType type)
{
    const QMetaObject &dialog = Dialog::staticMetaObject;
    QStringList signatures;
    for (int index = dialog.methodOffset(); index < dialog.methodCount(); ++index) {
        const QMetaMethod method = dialog.method(index);
        if (method.methodType() == type && method.access() == QMetaMethod::Public) {
            signatures.append(QString::fromLatin1(method.methodSignature()));
        }
    }
    return signatures;
}

const QString kBefore = QStringLiteral("as it was");

} // namespace

class TestTXCheckForUpdateWidgetForm : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { useNoService(); }

private slots:
    void signalsAndSlotsHaveTheirOrder_data();
    void signalsAndSlotsHaveTheirOrder();
    void statesHaveTheirOrder();
    void labelsOfAStateAreSetOrStay_data();
    void labelsOfAStateAreSetOrStay();
    void window();
    void pages();
    void checkingPage();
    void labels();
    void notes();
    void buttonsLieInOneRow();
    void serviceTextIsNoMarkupOutsideTheNotes();
    void enterPressesNothingButOk();
    void keysHitNoButtonOfAPageThatComesUp_data();
    void keysHitNoButtonOfAPageThatComesUp();
    void notesKeepTheFocusWhenAStateIsRepeated();
    void embeddedPageLeavesTheFocusOfItsHost();
    void escapeClosesAlsoDuringATransfer();
};

void TestTXCheckForUpdateWidgetForm::signalsAndSlotsHaveTheirOrder_data()
{
    QTest::addColumn<QMetaMethod::MethodType>("type");
    QTest::addColumn<QStringList>("signatures");
    QTest::newRow("signals") << QMetaMethod::Signal
                             << QStringList{"updateRefreshed(QVariantHash)", "stateChanged(State)"};
    QTest::newRow("slots") << QMetaMethod::Slot
                           << QStringList{"checkUpdate()",
                                          "tryCheckUpdate()",
                                          "on_downloadButton_clicked()",
                                          "on_installButton_clicked()",
                                          "updateDataTransferProgress(qlonglong,qlonglong)",
                                          "downloading()",
                                          "updateInfoReceived(QVariantHash,QVariantHash)",
                                          "finished(QNetworkReply*)",
                                          "error()",
                                          "on_cancelButton_clicked()",
                                          "on_okButton_clicked()",
                                          "on_downloadAndInstallButton_clicked()",
                                          "onTimer()"};
}

void TestTXCheckForUpdateWidgetForm::signalsAndSlotsHaveTheirOrder()
{
    QFETCH(QMetaMethod::MethodType, type);
    QFETCH(QStringList, signatures);
    QCOMPARE(signaturesOf(type), signatures);
}

void TestTXCheckForUpdateWidgetForm::statesHaveTheirOrder()
{
    const auto states = QMetaEnum::fromType<Dialog::State>();
    const QByteArrayList names = {"Checking",         "UpToDate",    "UpdateAvailable",
                                  "DownloadStarting", "Downloading", "ReadyToInstall",
                                  "ServiceError"};
    QCOMPARE(states.keyCount(), int(names.size()));
    for (int index = 0; index < states.keyCount(); ++index) {
        QCOMPARE(QByteArray(states.key(index)), names.at(index));
        QCOMPARE(states.value(index), index);
    }
}

void TestTXCheckForUpdateWidgetForm::labelsOfAStateAreSetOrStay_data()
{
    QTest::addColumn<TXCheckForUpdateWidget::State>("state");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("sentence");
    const QString error = QStringLiteral("Impossible to connect to the Check for Updates service, "
                                         "please check your Internet connection.");
    QTest::newRow("Checking") << Dialog::Checking << kBefore << kBefore;
    QTest::newRow("UpToDate") << Dialog::UpToDate << "A is up to date." << kBefore;
    QTest::newRow("DownloadStarting") << Dialog::DownloadStarting << kBefore << kBefore;
    QTest::newRow("Downloading") << Dialog::Downloading << kBefore << kBefore;
    QTest::newRow("ReadyToInstall") << Dialog::ReadyToInstall << kBefore << kBefore;
    QTest::newRow("ServiceError") << Dialog::ServiceError << kBefore << error;
}

void TestTXCheckForUpdateWidgetForm::labelsOfAStateAreSetOrStay()
{
    QFETCH(TXCheckForUpdateWidget::State, state);
    QFETCH(QString, name);
    QFETCH(QString, sentence);
    Dialog dialog(QStringLiteral("A"), 1, false);
    receive(dialog, newRelease());
    part<QLabel>(dialog, "updateNameLabel")->setText(kBefore);
    part<QLabel>(dialog, "shortDescLabel")->setText(kBefore);
    dialog.updateState(state);
    QCOMPARE(part<QLabel>(dialog, "updateNameLabel")->text(), name);
    QCOMPARE(part<QLabel>(dialog, "shortDescLabel")->text(), sentence);
}

void TestTXCheckForUpdateWidgetForm::window()
{
    const Dialog dialog;
    QCOMPARE(dialog.objectName(), "TXCheckForUpdateWidget");
    QCOMPARE(dialog.windowTitle(), "Check for Updates");
    QCOMPARE(dialog.size(), QSize(545, 324));
    // Qt adds the menu that belongs to the close button.
    QCOMPARE(dialog.windowFlags() & ~Qt::WindowSystemMenuHint,
             Qt::Window | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    QCOMPARE(dialog.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QVERIFY(!dialog.isModal());
    QCOMPARE(dialog.findChild<QThreadPool *>()->maxThreadCount(), 1);
}

void TestTXCheckForUpdateWidgetForm::pages()
{
    const Dialog dialog;
    auto *stack = part<TXStackedWidget>(dialog, "stackedWidget");
    QCOMPARE(dialog.layout()->indexOf(stack), 0);
    QCOMPARE(stack->count(), 2);
    QCOMPARE(stack->widget(0)->objectName(), "CheckUpdatePage");
    QCOMPARE(stack->widget(1)->objectName(), "UpdateFoundPage");
    QCOMPARE(stack->currentIndex(), 1);
    QVERIFY(qobject_cast<QGridLayout *>(stack->widget(0)->layout()));
    QVERIFY(qobject_cast<QVBoxLayout *>(stack->widget(1)->layout()));
}

void TestTXCheckForUpdateWidgetForm::checkingPage()
{
    const Dialog dialog;
    auto *label = part<QLabel>(dialog, "checkingLabel");
    QCOMPARE(label->text(), "Checking for update...");
    QCOMPARE(label->font().pointSize(), 12);
    QCOMPARE(label->alignment(), Qt::AlignCenter);
    auto *bar = part<QProgressBar>(dialog, "progressBar");
    QCOMPARE(bar->maximum(), 0);
    QCOMPARE(bar->value(), -1);
    QVERIFY(!bar->isTextVisible());

    const QLayout *grid = part<QWidget>(dialog, "CheckUpdatePage")->layout();
    QCOMPARE(grid->count(), 4);
    QVERIFY(grid->itemAt(0)->spacerItem());
    QCOMPARE(grid->itemAt(1)->widget(), label);
    QCOMPARE(grid->itemAt(2)->widget(), bar);
    QVERIFY(grid->itemAt(3)->spacerItem());
}

void TestTXCheckForUpdateWidgetForm::labels()
{
    const Dialog dialog;
    auto *name = part<QLabel>(dialog, "updateNameLabel");
    QCOMPARE(name->text(), "Version Name");
    QCOMPARE(name->font().pointSize(), 16);
    QCOMPARE(int(name->font().weight()), 700);
    QCOMPARE(name->alignment(), Qt::AlignCenter);
    auto *description = part<QLabel>(dialog, "shortDescLabel");
    QCOMPARE(description->font().pointSize(), 12);
    QVERIFY(description->wordWrap());
}

void TestTXCheckForUpdateWidgetForm::notes()
{
    const Dialog dialog;
    auto *area = part<QScrollArea>(dialog, "scrollArea");
    QCOMPARE(area->frameShape(), QFrame::Box);
    QVERIFY(area->widgetResizable());
    auto *label = part<QLabel>(dialog, "descriptionLabel");
    QVERIFY(area->widget()->isAncestorOf(label) || area->widget() == label);
    QCOMPARE(label->text(), "Version description");
    QCOMPARE(label->styleSheet(), "background-color: white;");
    QCOMPARE(label->frameShape(), QFrame::StyledPanel);
    QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignTop);
    QVERIFY(label->wordWrap());
    QVERIFY(label->openExternalLinks());
}

void TestTXCheckForUpdateWidgetForm::buttonsLieInOneRow()
{
    const Dialog dialog;
    auto *row = dialog.findChild<QHBoxLayout *>(QStringLiteral("horizontalLayout"));
    QVERIFY(row);
    QCOMPARE(row->contentsMargins().top(), 10);
    const QStringList names = {"downloadButton", "downloadAndInstallButton",
                               "installButton",  "cancelButton",
                               "okButton",       "downloadProgressBar"};
    QStringList found;
    for (int index = 0; index < row->count(); ++index) {
        found.append(row->itemAt(index)->widget()->objectName());
    }
    QCOMPARE(found, names);
    const QStringList texts = {"Download", "Download and Install", "Install", "Cancel", "OK"};
    for (int index = 0; index < texts.size(); ++index) {
        QCOMPARE(qobject_cast<QPushButton *>(row->itemAt(index)->widget())->text(), texts[index]);
    }
    QCOMPARE(part<QProgressBar>(dialog, "downloadProgressBar")->value(), 0);
    // From above: name, sentence, notes, row.
    const QLayout *page = part<QWidget>(dialog, "UpdateFoundPage")->layout();
    QCOMPARE(page->itemAt(0)->widget()->objectName(), "updateNameLabel");
    QCOMPARE(page->itemAt(1)->widget()->objectName(), "shortDescLabel");
    QCOMPARE(page->itemAt(2)->widget()->objectName(), "scrollArea");
    QCOMPARE(page->itemAt(3)->layout(), row);
}

void TestTXCheckForUpdateWidgetForm::serviceTextIsNoMarkupOutsideTheNotes()
{
    const Dialog dialog;
    QCOMPARE(part<QLabel>(dialog, "updateNameLabel")->textFormat(), Qt::PlainText);
    QCOMPARE(part<QLabel>(dialog, "shortDescLabel")->textFormat(), Qt::PlainText);
    QCOMPARE(part<QLabel>(dialog, "descriptionLabel")->textFormat(), Qt::AutoText);
}

void TestTXCheckForUpdateWidgetForm::enterPressesNothingButOk()
{
    Dialog dialog;
    receive(dialog, newRelease());
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(dialog.state(), Dialog::UpdateAvailable);
    QVERIFY(dialog.isVisible());

    dialog.updateState(Dialog::UpToDate);
    QTest::keyClick(&dialog, Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void TestTXCheckForUpdateWidgetForm::keysHitNoButtonOfAPageThatComesUp_data()
{
    QTest::addColumn<bool>("hasNotes");
    QTest::newRow("beside the notes") << true;
    QTest::newRow("alone") << false;
}

void TestTXCheckForUpdateWidgetForm::keysHitNoButtonOfAPageThatComesUp()
{
    QFETCH(bool, hasNotes);
    Dialog dialog;
    if (hasNotes) {
        receive(dialog, newRelease());
        dialog.hide();
    } else {
        dialog.updateState(Dialog::UpToDate);
    }
    dialog.updateState(Dialog::ReadyToInstall);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QVERIFY(!qobject_cast<QPushButton *>(dialog.focusWidget()));
    // A question would hang here.
    typeInto(dialog);
    QVERIFY(dialog.isVisible());

    // The buttons are still reached by the keys.
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Backtab);
    QCOMPARE(dialog.focusWidget(), part<QPushButton>(dialog, "cancelButton"));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
}

void TestTXCheckForUpdateWidgetForm::notesKeepTheFocusWhenAStateIsRepeated()
{
    Dialog dialog;
    receive(dialog, newRelease());
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *notes = part<QScrollArea>(dialog, "scrollArea");
    notes->setFocus();
    receive(dialog, newRelease());
    QCOMPARE(dialog.focusWidget(), notes);
    dialog.updateState(Dialog::Downloading);
    QCOMPARE(dialog.focusWidget(), notes);

    // They go, and nothing that could be pressed comes in their place.
    dialog.updateState(Dialog::UpToDate);
    QVERIFY(!qobject_cast<QPushButton *>(dialog.focusWidget()));
}

void TestTXCheckForUpdateWidgetForm::embeddedPageLeavesTheFocusOfItsHost()
{
    QWidget host;
    QVBoxLayout layout(&host);
    auto *field = new QPushButton(&host);
    auto *dialog = new Dialog(&host);
    QVERIFY(dialog->setAsWidget());
    layout.addWidget(field);
    layout.addWidget(dialog);
    host.show();
    QVERIFY(QTest::qWaitForWindowActive(&host));
    field->setFocus();
    receive(*dialog, newRelease());
    QVERIFY(dialog->isVisible());
    QCOMPARE(QApplication::focusWidget(), field);
}

void TestTXCheckForUpdateWidgetForm::escapeClosesAlsoDuringATransfer()
{
    Dialog dialog;
    for (const Dialog::State state : {Dialog::ServiceError, Dialog::Downloading}) {
        dialog.checkUpdate();
        dialog.updateState(state);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.state(), state);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXCheckForUpdateWidgetForm>(argc, argv);
}

#include "tst_TXCheckForUpdateWidgetForm.moc"
