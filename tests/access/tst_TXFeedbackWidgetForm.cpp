#include "BracketsTranslator.h"
#include "FeedbackTestHelpers.h"
#include "TestBase.h"

#include <QAccessible>
#include <QClipboard>
#include <QGridLayout>
#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextDocument>

#include <memory>

namespace {

/// Row, column, rows and columns of what has the name.
struct Place
{
    int row = -1;
    int column = -1;
    int rows = 0;
    int columns = 0;

    bool operator==(const Place &other) const = default;
};

Place placeOf(const TXFeedbackWidget &form, const QString &name)
{
    const auto *grid = qobject_cast<QGridLayout *>(form.layout());
    Place place;
    grid->getItemPosition(grid->indexOf(form.findChild<QWidget *>(name)), &place.row, &place.column,
                          &place.rows, &place.columns);
    return place;
}

QString accessibleName(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

} // namespace

class TestTXFeedbackWidgetForm : public TestBase
{
    Q_OBJECT

private slots:
    void formIsAsDesigned();
    void labelsStandInTheFirstColumn_data();
    void labelsStandInTheFirstColumn();
    void fieldsTakeTheOtherColumns_data();
    void fieldsTakeTheOtherColumns();
    void buttonsStandBelow();
    void keyboardGoesThroughAllFields();
    void pastedMarkupIsLeftOut();
    void cancelRejects();
    void cancelKeepsTheFields();
    void formFollowsTheLanguage();
    void formKeepsItsTextsWhenTheLanguageChanges();
    void signalsAndSlotHaveTheirOrder();
};

void TestTXFeedbackWidgetForm::formIsAsDesigned()
{
    const TXFeedbackWidget form;
    QCOMPARE(form.size(), QSize(440, 256));
    const auto *grid = qobject_cast<QGridLayout *>(form.layout());
    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), QMargins());
    QCOMPARE(grid->columnCount(), 4);
    QCOMPARE(grid->rowCount(), 8);
    // What the form needs has to fit what it is given.
    QVERIFY(form.minimumSizeHint().width() <= form.width());
}

void TestTXFeedbackWidgetForm::labelsStandInTheFirstColumn_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("columns");
    QTest::addColumn<QString>("buddy");
    QTest::newRow("sender") << "label_6"
                            << "Sender Information:" << 0 << 2 << "";
    QTest::newRow("name") << "label_7"
                          << "Name:" << 1 << 1 << "senderNameLineEdit";
    QTest::newRow("address") << "label_12"
                             << "E-Mail Address" << 2 << 1 << "emailAddressLineEdit";
    QTest::newRow("company") << "label_8"
                             << "Company:" << 3 << 1 << "senderCompanyNameLineEdit";
    QTest::newRow("feedback") << "label_9"
                              << "Feedback Description:" << 4 << 1 << "";
    QTest::newRow("subject") << "label_10"
                             << "Subject:" << 5 << 1 << "feedbackSubjectLineEdit";
    QTest::newRow("description") << "label_11"
                                 << "Description:" << 6 << 1 << "feedbackDescriptionTextEdit";
}

void TestTXFeedbackWidgetForm::labelsStandInTheFirstColumn()
{
    QFETCH(QString, name);
    QFETCH(int, row);
    QFETCH(int, columns);
    QFETCH(QString, buddy);
    const TXFeedbackWidget form;
    const auto *label = form.findChild<QLabel *>(name);
    QVERIFY(label);
    QTEST(label->text(), "text");
    QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(placeOf(form, name), (Place{row, 0, 1, columns}));
    QCOMPARE(label->buddy() ? label->buddy()->objectName() : QString(), buddy);
}

void TestTXFeedbackWidgetForm::fieldsTakeTheOtherColumns_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<int>("row");
    QTest::newRow("name") << "senderNameLineEdit" << QByteArray("QLineEdit") << 1;
    QTest::newRow("address") << "emailAddressLineEdit" << QByteArray("QLineEdit") << 2;
    QTest::newRow("company") << "senderCompanyNameLineEdit" << QByteArray("QLineEdit") << 3;
    QTest::newRow("subject") << "feedbackSubjectLineEdit" << QByteArray("QLineEdit") << 5;
    QTest::newRow("description") << "feedbackDescriptionTextEdit" << QByteArray("QTextEdit") << 6;
}

void TestTXFeedbackWidgetForm::fieldsTakeTheOtherColumns()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, type);
    QFETCH(int, row);
    const TXFeedbackWidget form;
    auto *field = form.findChild<QWidget *>(name);
    QVERIFY(field);
    QCOMPARE(field->metaObject()->className(), type.constData());
    QCOMPARE(placeOf(form, name), (Place{row, 1, 1, 3}));
    QCOMPARE(field->property("placeholderText").toString(), QStringLiteral("(Required)"));
    QVERIFY(field->property("plainText").toString().isEmpty());
    QVERIFY(field->property("text").toString().isEmpty());
    QVERIFY(!accessibleName(field).isEmpty());
}

void TestTXFeedbackWidgetForm::buttonsStandBelow()
{
    const TXFeedbackWidget form;
    QCOMPARE(pushButton(form, "cancelPushButton")->text(), QStringLiteral("Cancel"));
    QCOMPARE(pushButton(form, "submitPushButton")->text(), QStringLiteral("Submit"));
    QCOMPARE(placeOf(form, QStringLiteral("cancelPushButton")), (Place{7, 2, 1, 1}));
    QCOMPARE(placeOf(form, QStringLiteral("submitPushButton")), (Place{7, 3, 1, 1}));
}

void TestTXFeedbackWidgetForm::keyboardGoesThroughAllFields()
{
    TXFeedbackWidget form;
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    lineEdit(form, "senderNameLineEdit")->setFocus();
    QStringList order;
    for (int i = 0; i < 8; ++i) {
        order.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(order,
             (QStringList{"senderNameLineEdit", "emailAddressLineEdit", "senderCompanyNameLineEdit",
                          "feedbackSubjectLineEdit", "feedbackDescriptionTextEdit",
                          "cancelPushButton", "submitPushButton", "senderNameLineEdit"}));
    QVERIFY(description(form)->toPlainText().isEmpty());
}

void TestTXFeedbackWidgetForm::pastedMarkupIsLeftOut()
{
    const TXFeedbackWidget form;
    auto copied = std::make_unique<QMimeData>();
    copied->setHtml(QStringLiteral("<h1>Big</h1>"));
    copied->setText(QStringLiteral("<b>Big</b>"));
    QApplication::clipboard()->setMimeData(copied.release());

    description(form)->paste();

    QCOMPARE(description(form)->toPlainText(), QStringLiteral("<b>Big</b>"));
    QCOMPARE(description(form)->document()->firstBlock().blockFormat().headingLevel(), 0);
    QApplication::clipboard()->clear();
}

void TestTXFeedbackWidgetForm::cancelRejects()
{
    TXFeedbackWidget form;
    QSignalSpy rejected(&form, SIGNAL(reject()));
    QSignalSpy accepted(&form, SIGNAL(accept()));
    pushButton(form, "cancelPushButton")->click();
    QCOMPARE(rejected.size(), 1);
    QCOMPARE(accepted.size(), 0);
}

void TestTXFeedbackWidgetForm::cancelKeepsTheFields()
{
    TXFeedbackWidget form;
    fillIn(form);
    pushButton(form, "cancelPushButton")->click();
    QVERIFY(isFilledIn(form));
}

void TestTXFeedbackWidgetForm::formFollowsTheLanguage()
{
    TXFeedbackWidget form;
    BracketsTranslator translator("TXFeedbackWidget");
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(form.findChild<QLabel *>("label_12")->text(), QStringLiteral("[E-Mail Address]"));
    QCOMPARE(description(form)->placeholderText(), QStringLiteral("[(Required)]"));
    QCOMPARE(pushButton(form, "submitPushButton")->text(), QStringLiteral("[Submit]"));
}

void TestTXFeedbackWidgetForm::formKeepsItsTextsWhenTheLanguageChanges()
{
    TXFeedbackWidget form;
    fillIn(form);
    BracketsTranslator translator("TXFeedbackWidget");
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();
    QVERIFY(isFilledIn(form));
}

void TestTXFeedbackWidgetForm::signalsAndSlotHaveTheirOrder()
{
    const QMetaObject &type = TXFeedbackWidget::staticMetaObject;
    const int first = type.methodOffset();
    QCOMPARE(type.method(first).methodSignature(), QByteArray("reject()"));
    QCOMPARE(type.method(first + 1).methodSignature(), QByteArray("accept()"));
    QCOMPARE(type.method(first + 2).methodSignature(), QByteArray("treatSubmitClick()"));
    QCOMPARE(type.methodCount(), first + 3);
}

int main(int argc, char **argv)
{
    return runTest<TestTXFeedbackWidgetForm>(argc, argv);
}

#include "tst_TXFeedbackWidgetForm.moc"
