#include "BracketsTranslator.h"
#include "FeedbackTestHelpers.h"
#include "TXError.h"
#include "TestBase.h"

#include <QPointer>
#include <QSignalSpy>

#include <memory>

namespace {

const QString kTitle = QStringLiteral("Missing Information");
const QString kNameText = QStringLiteral("Field 'Name' hasn't been set, please set a \"Name\".");

void enter(const QWidget &form, const QStringList &texts)
{
    lineEdit(form, "senderNameLineEdit")->setText(texts.at(0));
    lineEdit(form, "senderCompanyNameLineEdit")->setText(texts.at(1));
    lineEdit(form, "feedbackSubjectLineEdit")->setText(texts.at(2));
    description(form)->setPlainText(texts.at(3));
    lineEdit(form, "emailAddressLineEdit")->setText(texts.at(4));
}

} // namespace

class TestTXFeedbackWidgetValidation : public TestBase
{
    Q_OBJECT

private slots:
    void firstFailureIsTold_data();
    void firstFailureIsTold();
    void enoughIsValid_data();
    void enoughIsValid();
    void reasonNeedNotBeWanted();
    void successLeavesTheErrorAlone();
    void failureSetsCodeAndDescriptionOnly();
    void reasonIsTranslatedWhenItIsShown();
    void submittingTellsWhatIsMissing();
    void submittingAgainTellsTheNextThing();
    void secondSubmitWhileTheBoxIsOpenDoesNothing();
    void formMayGoWhileTheBoxIsOpen();
};

void TestTXFeedbackWidgetValidation::firstFailureIsTold_data()
{
    // Name, company, subject, description, address.
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("message");
    QTest::newRow("all empty") << QStringList{"", "", "", "", ""} << kNameText;
    QTest::newRow("name only") << QStringList{"n", "", "", "", ""}
                               << "Field 'Company' hasn't been set, please set a 'Company'.";
    QTest::newRow("no name") << QStringList{"", "c", "s", "d", "a@b.c"} << kNameText;
    QTest::newRow("no company") << QStringList{"n", "", "s", "d", "a@b.c"}
                                << "Field 'Company' hasn't been set, please set a 'Company'.";
    QTest::newRow("no subject, wrong address")
        << QStringList{"n", "c", "", "", "x"}
        << "Field 'Subject' hasn't been set, please set a 'Subject'.";
    QTest::newRow("no description, no address")
        << QStringList{"n", "c", "s", "", ""}
        << "Field 'Description' hasn't been set, please set a 'Description'.";
    QTest::newRow("no address") << QStringList{
        "n", "c", "s", "d",
        ""} << "Field 'Login' is empty, please add an E-Mail Address which contain '.' and '@'.";
    const QString at = QStringLiteral("Missing a '@' in the field 'E-Mail Address', please add a "
                                      "login which contain a '@'.");
    const QString dot = QStringLiteral("Missing a '.' in the field 'E-Mail Address', please add a "
                                       "login which contain a '.'.");
    QTest::newRow("neither @ nor dot") << QStringList{"n", "c", "s", "d", "x"} << at;
    QTest::newRow("dot only") << QStringList{"n", "c", "s", "d", "x.y"} << at;
    QTest::newRow("blank address") << QStringList{"n", "c", "s", "d", " "} << at;
    QTest::newRow("@ only") << QStringList{"n", "c", "s", "d", "x@y"} << dot;
    QTest::newRow("wide @") << QStringList{"n", "c", "s", "d", "x\uFF20y.z"} << at;
    QTest::newRow("wide dot") << QStringList{"n", "c", "s", "d", "x@y\uFF0Ez"} << dot;
}

void TestTXFeedbackWidgetValidation::firstFailureIsTold()
{
    QFETCH(QStringList, texts);
    const TXFeedbackWidget form;
    enter(form, texts);
    TXError error;
    QVERIFY(!form.isValid(&error));
    QVERIFY(error.isValid());
    QTEST(error.getLocalizedDescription(), "message");
}

void TestTXFeedbackWidgetValidation::enoughIsValid_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("all") << QStringList{"n", "c", "s", "d", "a@b.c"};
    QTest::newRow("blanks") << QStringList{" ", " ", "\t", " ", "@."};
    QTest::newRow("line breaks") << QStringList{"n", "c", "s", "\n", "a@b.c"};
    QTest::newRow("ends in @") << QStringList{"n", "c", "s", "d", "a.b@"};
    QTest::newRow("many") << QStringList{"n", "c", "s", "d", "..@@"};
}

void TestTXFeedbackWidgetValidation::enoughIsValid()
{
    QFETCH(QStringList, texts);
    const TXFeedbackWidget form;
    enter(form, texts);
    TXError error;
    QVERIFY2(form.isValid(&error), qPrintable(error.getLocalizedDescription()));
    QVERIFY(form.isValid(nullptr));
}

void TestTXFeedbackWidgetValidation::reasonNeedNotBeWanted()
{
    const TXFeedbackWidget form;
    QVERIFY(!form.isValid(nullptr));
}

void TestTXFeedbackWidgetValidation::successLeavesTheErrorAlone()
{
    const TXFeedbackWidget form;
    fillIn(form);
    TXError error;
    error.code = 3;
    error.setDescription("before");
    QVERIFY(form.isValid(&error));
    QCOMPARE(error.code, 3);
    QCOMPARE(error.getLocalizedDescription(), QStringLiteral("before"));
}

void TestTXFeedbackWidgetValidation::failureSetsCodeAndDescriptionOnly()
{
    const TXFeedbackWidget form;
    TXError error;
    error.code = 3;
    error.domain = QStringLiteral("Host");
    QVERIFY(!form.isValid(&error));
    QCOMPARE(error.code, 0);
    QCOMPARE(error.domain, QStringLiteral("Host"));
    QCOMPARE(error.getLocalizedDescription(), kNameText);
}

void TestTXFeedbackWidgetValidation::reasonIsTranslatedWhenItIsShown()
{
    const TXFeedbackWidget form;
    TXError error;
    QVERIFY(!form.isValid(&error));
    BracketsTranslator translator("TXFeedbackWidget");
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(error.getLocalizedDescription(), u'[' + kNameText + u']');
}

void TestTXFeedbackWidgetValidation::submittingTellsWhatIsMissing()
{
    TXFeedbackWidget form;
    form.show();
    QSignalSpy accepted(&form, SIGNAL(accept()));
    QSignalSpy rejected(&form, SIGNAL(reject()));
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        checkTold(box, kTitle, kNameText);
        QCOMPARE(box.parentWidget(), &form);
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    QTest::mouseClick(pushButton(form, "submitPushButton"), Qt::LeftButton);

    QVERIFY(form.findChildren<QDialog *>().isEmpty());
    QCOMPARE(accepted.size() + rejected.size(), 0);
}

void TestTXFeedbackWidgetValidation::submittingAgainTellsTheNextThing()
{
    TXFeedbackWidget form;
    DialogDriver driver;
    expectTold(driver, kTitle, kNameText);
    form.treatSubmitClick();
    fillIn(form);
    lineEdit(form, "emailAddressLineEdit")->clear();
    expectTold(driver, kTitle,
               "Field 'Login' is empty, please add an E-Mail Address which contain '.' and '@'.");
    form.treatSubmitClick();
}

void TestTXFeedbackWidgetValidation::secondSubmitWhileTheBoxIsOpenDoesNothing()
{
    TXFeedbackWidget form;
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        form.treatSubmitClick();
        QVERIFY(box.isVisible());
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    form.treatSubmitClick();
}

void TestTXFeedbackWidgetValidation::formMayGoWhileTheBoxIsOpen()
{
    auto form = std::make_unique<TXFeedbackWidget>();
    QPointer<QMessageBox> opened;
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        opened = &box;
        form.reset();
    });

    form->treatSubmitClick();

    QVERIFY(!opened);
}

int main(int argc, char **argv)
{
    return runTest<TestTXFeedbackWidgetValidation>(argc, argv);
}

#include "tst_TXFeedbackWidgetValidation.moc"
