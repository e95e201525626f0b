#include "CredentialDialog.h"

#include "BracketsTranslator.h"
#include "DialogDriver.h"
#include "DrawnInk.h"
#include "PixelProbe.h"
#include "TestBase.h"
#include "WrappedLabel.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFont>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPalette>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>

#include <functional>
#include <memory>

namespace {

template<class Widget>
Widget *child(const QDialog &dialog, const char *name)
{
    return dialog.findChild<Widget *>(QString::fromLatin1(name));
}

QCheckBox *box(const QDialog &dialog)
{
    return child<QCheckBox>(dialog, "rememberCheckBox");
}

void fillIn(const QDialog &dialog, const QString &user, const QString &password)
{
    child<QLineEdit>(dialog, "userEdit")->setText(user);
    child<QLineEdit>(dialog, "passwordEdit")->setText(password);
}

void confirm(CredentialDialog &dialog)
{
    DialogDriver::click(dialog, QDialogButtonBox::Ok);
}

/// How high what is painted of the label is, in its dialog, or with all the height it may need.
int paintedHeight(QWidget &label)
{
    return DrawnInk::rect(PixelProbe(label).image()).height();
}

int wholeHeight(const QLabel &label)
{
    WrappedLabel copy;
    copy.setFont(label.font());
    copy.setText(label.text());
    copy.resize(label.width(), 700);
    return paintedHeight(copy);
}

void enlargeFont(QWidget &dialog)
{
    QFont font = dialog.font();
    font.setPointSize(16);
    dialog.setFont(font);
}

} // namespace

class TestCredentialDialog : public TestBase
{
    Q_OBJECT

private slots:
    void windowIsAsDesigned();
    void formIsAsDesigned();
    void formStartsEmpty();
    void keyboardGoesThroughTheFields();
    void firstKeysGoToTheUserName();
    void labelIsShownAsItIs_data();
    void labelIsShownAsItIs();
    void longLabelMakesTheWindowGrow_data();
    void longLabelMakesTheWindowGrow();
    void nameIsWholeWhateverComesAfterIt_data();
    void nameIsWholeWhateverComesAfterIt();
    void shortNameMakesTheWindowSmallAgain();
    void dialogIsReadableInTheDark();
    void fieldsStandAtTheLeftFromRightToLeft();
    void boxIsThereWhileACallbackIsSet();
    void rememberTellsTheBox();
    void callbackIsCalledWhenBothFieldsAreFilledIn_data();
    void callbackIsCalledWhenBothFieldsAreFilledIn();
    void callbackIsCalledAtEachConfirmationAfterTheDialogAccepted();
    void cancelCallsNothing();
    void okWithoutACallbackAccepts();
    void callbackMaySetAnother();
    void callbackMayDeleteTheDialog();
    void deletingItWhenItIsAcceptedCallsNothing();
    void languageChangeKeepsWhatWasTypedAndTheLabel();
};

void TestCredentialDialog::windowIsAsDesigned()
{
    const CredentialDialog dialog;
    QCOMPARE(dialog.objectName(), "CredentialDialog");
    QCOMPARE(dialog.windowTitle(), "Credentials");
    QCOMPARE(dialog.size(), QSize(238, 139));
    QVERIFY(dialog.isModal());
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QVERIFY(dialog.windowFlags().testFlag(Qt::Dialog));
}

void TestCredentialDialog::formIsAsDesigned()
{
    const CredentialDialog dialog;
    auto *grid = qobject_cast<QGridLayout *>(dialog.layout());
    QVERIFY(grid);
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), child<QLabel>(dialog, "serverName"));
    QCOMPARE(grid->itemAtPosition(1, 0)->widget(), child<QLabel>(dialog, "label"));
    QCOMPARE(grid->itemAtPosition(1, 1)->widget(), child<QLineEdit>(dialog, "userEdit"));
    QCOMPARE(grid->itemAtPosition(2, 0)->widget(), child<QLabel>(dialog, "label_2"));
    QCOMPARE(grid->itemAtPosition(2, 1)->widget(), child<QLineEdit>(dialog, "passwordEdit"));
    QCOMPARE(grid->itemAtPosition(3, 1)->widget(), box(dialog));
    auto *buttons = child<QDialogButtonBox>(dialog, "buttonBox");
    QCOMPARE(grid->itemAtPosition(4, 1)->widget(), buttons);
    QCOMPARE(buttons->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QVERIFY(buttons->button(QDialogButtonBox::Ok)->isEnabled());
    QCOMPARE(child<QLabel>(dialog, "serverName")->text(), "");
    QCOMPARE(child<QLabel>(dialog, "label")->text(), "Username");
    QCOMPARE(child<QLabel>(dialog, "label_2")->text(), "Password");
    QCOMPARE(child<QLabel>(dialog, "label")->buddy(), child<QLineEdit>(dialog, "userEdit"));
    QCOMPARE(child<QLabel>(dialog, "label_2")->buddy(), child<QLineEdit>(dialog, "passwordEdit"));
    QCOMPARE(child<QLineEdit>(dialog, "userEdit")->echoMode(), QLineEdit::Normal);
    QCOMPARE(child<QLineEdit>(dialog, "passwordEdit")->echoMode(), QLineEdit::Password);
    QVERIFY(!child<QLineEdit>(dialog, "userEdit")->accessibleName().isEmpty());
    QVERIFY(!child<QLineEdit>(dialog, "passwordEdit")->accessibleName().isEmpty());
    QCOMPARE(box(dialog)->text(), "Remember");
    QVERIFY(box(dialog)->isHidden());
}

void TestCredentialDialog::formStartsEmpty()
{
    const CredentialDialog dialog;
    QVERIFY(!dialog.remember());
    QCOMPARE(dialog.userName(), "");
    QCOMPARE(dialog.password(), "");
}

void TestCredentialDialog::keyboardGoesThroughTheFields()
{
    const CredentialDialog dialog;
    QStringList order;
    const QWidget *widget = child<QLineEdit>(dialog, "userEdit");
    while (order.size() < 3) {
        if (widget->focusPolicy() & Qt::TabFocus) {
            order.append(widget->objectName());
        }
        widget = widget->nextInFocusChain();
    }
    QCOMPARE(order, QStringList({"userEdit", "passwordEdit", "rememberCheckBox"}));
}

void TestCredentialDialog::firstKeysGoToTheUserName()
{
    CredentialDialog dialog;
    DialogDriver driver;
    driver.expect([](QDialog &opened) {
        QTRY_COMPARE(opened.focusWidget(), child<QLineEdit>(opened, "userEdit"));
        QTest::keyClicks(opened.focusWidget(), "mia");
        QTest::keyClick(opened.focusWidget(), Qt::Key_Tab);
        QTest::keyClicks(opened.focusWidget(), "s3cret");
        QTest::keyClick(opened.focusWidget(), Qt::Key_Return);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.userName(), "mia");
    QCOMPARE(dialog.password(), "s3cret");
}

void TestCredentialDialog::labelIsShownAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("name") << "nas.local";
    QTest::newRow("markup") << "<b>nas</b> &amp; <img src='x'>";
    QTest::newRow("mnemonic") << "&nas";
    QTest::newRow("line break") << "nas\nlocal";
    QTest::newRow("empty") << "";
    QTest::newRow("100,000") << QString(100'000, u'n');
}

void TestCredentialDialog::labelIsShownAsItIs()
{
    QFETCH(QString, text);
    CredentialDialog dialog;
    dialog.setLabel(text);
    QCOMPARE(child<QLabel>(dialog, "serverName")->text(), text);
    QCOMPARE(child<QLabel>(dialog, "serverName")->textFormat(), Qt::PlainText);
}

void TestCredentialDialog::longLabelMakesTheWindowGrow_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("words") << QStringLiteral("many words ").repeated(20);
    QTest::newRow("one word") << QString(253, u'n');
    QTest::newRow("100,000 characters") << QString(100'000, u'n');
}

void TestCredentialDialog::longLabelMakesTheWindowGrow()
{
    QFETCH(QString, text);
    CredentialDialog dialog;
    dialog.setLabel(text);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto *label = child<QLabel>(dialog, "serverName");
    QCOMPARE(paintedHeight(*label), wholeHeight(*label));
    QVERIFY(label->height() > 2 * label->fontMetrics().height());
    QVERIFY(dialog.rect().contains(child<QDialogButtonBox>(dialog, "buttonBox")->geometry()));
    QVERIFY(dialog.width() < 600);
    QVERIFY(dialog.height() < 600);
}

void TestCredentialDialog::nameIsWholeWhateverComesAfterIt_data()
{
    QTest::addColumn<QString>("order");
    for (const char *order :
         {"show name", "name show", "name box show", "box name show", "show name box",
          "show box name", "name show box", "box show name", "name font show", "font name show",
          "name show font", "show font name", "name show box font", "show name font box",
          "show name style"}) {
        QTest::newRow(order) << QString::fromLatin1(order);
    }
}

void TestCredentialDialog::nameIsWholeWhateverComesAfterIt()
{
    QFETCH(QString, order);
    CredentialDialog dialog;
    const std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("Windows")));
    const QMap<QString, std::function<void()>> steps = {
        {"show",
         [&] {
             dialog.show();
         }},
        {"name",
         [&] {
             dialog.setLabel(QStringLiteral("many words ").repeated(20));
         }},
        {"box",
         [&] {
             dialog.setRemember([](const QString &, const QString &) {});
         }},
        {"font",
         [&] {
             enlargeFont(dialog);
         }},
        {"style", [&] {
             dialog.setStyle(style.get());
         }}};
    for (const QString &step : order.split(u' ')) {
        steps[step]();
        QCoreApplication::processEvents();
    }
    auto *label = child<QLabel>(dialog, "serverName");
    QVERIFY(paintedHeight(*label) > 2 * label->fontMetrics().height());
    QCOMPARE(paintedHeight(*label), wholeHeight(*label));
    QVERIFY(dialog.rect().contains(child<QDialogButtonBox>(dialog, "buttonBox")->geometry()));
}

void TestCredentialDialog::shortNameMakesTheWindowSmallAgain()
{
    CredentialDialog dialog;
    dialog.setLabel(QStringLiteral("nas"));
    const QSize hidden = dialog.size();
    dialog.setLabel(QString(253, u'n'));
    QVERIFY(dialog.height() > hidden.height() + 2 * dialog.fontMetrics().height());
    dialog.setLabel(QStringLiteral("nas"));
    QCOMPARE(dialog.size(), hidden);
    dialog.show();
    const QSize shown = dialog.size();
    dialog.setLabel(QString(253, u'n'));
    QTRY_VERIFY(dialog.height() > shown.height() + 2 * dialog.fontMetrics().height());
    dialog.setLabel(QStringLiteral("nas"));
    QTRY_COMPARE(dialog.size(), shown);
}

void TestCredentialDialog::dialogIsReadableInTheDark()
{
    CredentialDialog dialog;
    dialog.setPalette(QPalette(QColor(40, 40, 40)));
    dialog.setLabel(QStringLiteral("nas.local"));
    dialog.show();
    const QImage picture = PixelProbe(dialog).image();
    for (const char *name : {"serverName", "label", "label_2"}) {
        const QRect place = child<QLabel>(dialog, name)->geometry();
        QVERIFY2(!DrawnInk::rect(picture.copy(place)).isNull(), name);
        QVERIFY2(qGray(picture.pixel(place.topLeft())) < 80, name);
    }
}

void TestCredentialDialog::fieldsStandAtTheLeftFromRightToLeft()
{
    CredentialDialog dialog;
    dialog.setLayoutDirection(Qt::RightToLeft);
    dialog.setLabel(QStringLiteral("nas"));
    dialog.show();
    auto *name = child<QLabel>(dialog, "serverName");
    const auto *field = child<QLineEdit>(dialog, "userEdit");
    QVERIFY(field->geometry().right() < child<QLabel>(dialog, "label")->geometry().left());
    // The name ends where the field does.
    QVERIFY(DrawnInk::rect(PixelProbe(*name).image()).left() > name->width() / 2);
    QCOMPARE(name->geometry().right(), field->geometry().right());
}

void TestCredentialDialog::boxIsThereWhileACallbackIsSet()
{
    CredentialDialog dialog;
    dialog.setRemember([](const QString &, const QString &) {});
    QVERIFY(!box(dialog)->isHidden());
    dialog.setRemember({});
    QVERIFY(box(dialog)->isHidden());
    dialog.show();
    QVERIFY(!box(dialog)->isVisible());
    dialog.setRemember([](const QString &, const QString &) {});
    QVERIFY(box(dialog)->isVisible());
    dialog.setRemember(nullptr);
    QVERIFY(!box(dialog)->isVisible());
}

void TestCredentialDialog::rememberTellsTheBox()
{
    CredentialDialog dialog;
    box(dialog)->setChecked(true);
    QVERIFY(dialog.remember());
    box(dialog)->setChecked(false);
    QVERIFY(!dialog.remember());
}

void TestCredentialDialog::callbackIsCalledWhenBothFieldsAreFilledIn_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<bool>("isChecked");
    QTest::addColumn<int>("calls");
    QTest::newRow("both, checked") << "mia" << u"gehe\u00efm \u5199"_qs << true << 1;
    QTest::newRow("both, not checked") << "mia"
                                       << "s3cret" << false << 1;
    QTest::newRow("blanks") << " "
                            << " " << true << 1;
    QTest::newRow("no user") << ""
                             << "s3cret" << true << 0;
    QTest::newRow("no password") << "mia"
                                 << "" << true << 0;
    QTest::newRow("neither") << ""
                             << "" << true << 0;
}

void TestCredentialDialog::callbackIsCalledWhenBothFieldsAreFilledIn()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(bool, isChecked);
    QFETCH(int, calls);
    CredentialDialog dialog;
    QStringList told;
    dialog.setRemember(
        [&told](const QString &first, const QString &second) { told << first << second; });
    fillIn(dialog, user, password);
    box(dialog)->setChecked(isChecked);
    dialog.show();
    confirm(dialog);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(told, calls == 1 ? QStringList({user, password}) : QStringList());
    QCOMPARE(dialog.userName(), user);
    QCOMPARE(dialog.password(), password);
    QCOMPARE(dialog.remember(), isChecked);
}

void TestCredentialDialog::callbackIsCalledAtEachConfirmationAfterTheDialogAccepted()
{
    CredentialDialog dialog;
    QList<int> results;
    dialog.setRemember([&](const QString &, const QString &) { results.append(dialog.result()); });
    fillIn(dialog, QStringLiteral("mia"), QStringLiteral("s3cret"));
    for (int i = 0; i < 2; ++i) {
        dialog.setResult(QDialog::Rejected);
        dialog.show();
        confirm(dialog);
    }
    QCOMPARE(results, QList<int>({QDialog::Accepted, QDialog::Accepted}));
}

void TestCredentialDialog::cancelCallsNothing()
{
    CredentialDialog dialog;
    int calls = 0;
    dialog.setRemember([&calls](const QString &, const QString &) { ++calls; });
    fillIn(dialog, QStringLiteral("mia"), QStringLiteral("s3cret"));
    dialog.setResult(QDialog::Accepted);
    dialog.show();
    DialogDriver::click(dialog, QDialogButtonBox::Cancel);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(calls, 0);
}

void TestCredentialDialog::okWithoutACallbackAccepts()
{
    CredentialDialog dialog;
    fillIn(dialog, QStringLiteral("mia"), QStringLiteral("s3cret"));
    dialog.show();
    confirm(dialog);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void TestCredentialDialog::callbackMaySetAnother()
{
    CredentialDialog dialog;
    int others = 0;
    const QString mark = QStringLiteral("still there");
    QString seen;
    dialog.setRemember([&, mark](const QString &, const QString &) {
        dialog.setRemember([&others](const QString &, const QString &) { ++others; });
        seen = mark;
    });
    fillIn(dialog, QStringLiteral("mia"), QStringLiteral("s3cret"));
    dialog.show();
    confirm(dialog);
    QCOMPARE(others, 0);
    QCOMPARE(seen, mark);
    dialog.show();
    confirm(dialog);
    QCOMPARE(others, 1);
}

void TestCredentialDialog::callbackMayDeleteTheDialog()
{
    auto dialog = std::make_unique<CredentialDialog>();
    QString told;
    const QString mark = QStringLiteral("!");
    dialog->setRemember([&, mark](const QString &user, const QString &password) {
        dialog.reset();
        told = user + password + mark;
    });
    fillIn(*dialog, QStringLiteral("mia"), QStringLiteral("s3cret"));
    emit child<QDialogButtonBox>(*dialog, "buttonBox")->accepted();
    QVERIFY(!dialog);
    QCOMPARE(told, "mias3cret!");
}

void TestCredentialDialog::deletingItWhenItIsAcceptedCallsNothing()
{
    auto *dialog = new CredentialDialog(nullptr);
    const QPointer<CredentialDialog> guard(dialog);
    int calls = 0;
    dialog->setRemember([&calls](const QString &, const QString &) { ++calls; });
    fillIn(*dialog, QStringLiteral("mia"), QStringLiteral("s3cret"));
    connect(dialog, &QDialog::accepted, this, [dialog] { delete dialog; });
    emit child<QDialogButtonBox>(*dialog, "buttonBox")->accepted();
    QVERIFY(!guard);
    QCOMPARE(calls, 0);
}

void TestCredentialDialog::languageChangeKeepsWhatWasTypedAndTheLabel()
{
    CredentialDialog dialog;
    dialog.setLabel(QStringLiteral("nas.local"));
    fillIn(dialog, QStringLiteral("mia"), QStringLiteral("s3cret"));
    BracketsTranslator brackets("CredentialDialog");
    QCoreApplication::installTranslator(&brackets);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(dialog.windowTitle(), "[Credentials]");
    QCOMPARE(child<QLabel>(dialog, "label")->text(), "[Username]");
    QCOMPARE(child<QLabel>(dialog, "label_2")->text(), "[Password]");
    QCOMPARE(box(dialog)->text(), "[Remember]");
    QCOMPARE(child<QLabel>(dialog, "serverName")->text(), "nas.local");
    QCOMPARE(dialog.userName(), "mia");
    QCOMPARE(dialog.password(), "s3cret");
}

int main(int argc, char **argv)
{
    return runTest<TestCredentialDialog>(argc, argv);
}

#include "tst_CredentialDialog.moc"
