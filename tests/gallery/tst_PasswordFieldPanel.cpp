#include "DialogDriver.h"
#include "PageChecks.h"
#include "PasswordFieldPanel.h"
#include "TestBase.h"

#include "TXPasswordLineEdit.h"

#include <memory>

namespace {

const QString kMask(25, QLatin1Char('|'));
const QString kProtected = QStringLiteral("TXPasswordLineEdit, enabled");
const QString kProtectedDisabled = QStringLiteral("TXPasswordLineEdit, disabled");
const QString kPlain = QStringLiteral("QLineEdit, enabled");
const QString kPlainDisabled = QStringLiteral("QLineEdit, disabled");

} // namespace

class TestPasswordFieldPanel : public TestBase
{
    Q_OBJECT

private slots:
    void valueOfTheProgramStaysOutOfTheField_data();
    void valueOfTheProgramStaysOutOfTheField();
    void plainFieldHoldsTheValueItself_data();
    void plainFieldHoldsTheValueItself();
    void secondValueIsReadThoughTheMaskStays();
    void firstKeyDropsValueAndMask();
    void typedTextIsReadLive();
    void emptyValueLeavesTheProtectedFieldsAlone();
    void returnKeySetsTheValue();
    void valueIsShownAsItStands();

protected:
    void prepare() override;
    void finish() override { panel.reset(); }

private:
    QLineEdit *field(const QString &name) const { return controlOf<QLineEdit>(*panel, name); }
    QLineEdit *valueField() const;
    QString reading(const QString &field, const char *name) const;
    QString programReads(const QString &field) const { return reading(field, "programReads"); }
    QString fieldHolds(const QString &field) const { return reading(field, "fieldHolds"); }
    void setByProgram(const QString &value);

    std::unique_ptr<PasswordFieldPanel> panel;
};

void TestPasswordFieldPanel::prepare()
{
    panel = std::make_unique<PasswordFieldPanel>();
    panel->show();
    QVERIFY(QTest::qWaitForWindowActive(panel.get()));
}

/// The field in which the value of the program is typed, the only one that shows what it holds.
QLineEdit *TestPasswordFieldPanel::valueField() const
{
    const auto fields = panel->findChildren<QLineEdit *>();
    for (QLineEdit *candidate : fields) {
        if (candidate->echoMode() == QLineEdit::Normal) {
            return candidate;
        }
    }
    return nullptr;
}

QString TestPasswordFieldPanel::reading(const QString &fieldName, const char *name) const
{
    return field(fieldName)->parentWidget()->findChild<QLabel *>(name)->text();
}

void TestPasswordFieldPanel::setByProgram(const QString &value)
{
    valueField()->setText(value);
    DialogDriver::click(buttonOf(*panel, "Set by the Program"));
}

void TestPasswordFieldPanel::valueOfTheProgramStaysOutOfTheField_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("enabled") << kProtected;
    QTest::newRow("disabled") << kProtectedDisabled;
}

void TestPasswordFieldPanel::valueOfTheProgramStaysOutOfTheField()
{
    QFETCH(QString, name);

    setByProgram("magenta-4711");

    QCOMPARE(programReads(name), "magenta-4711");
    QCOMPARE(fieldHolds(name), kMask);
    QCOMPARE(field(name)->text(), kMask);
}

void TestPasswordFieldPanel::plainFieldHoldsTheValueItself_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("enabled") << kPlain;
    QTest::newRow("disabled") << kPlainDisabled;
}

void TestPasswordFieldPanel::plainFieldHoldsTheValueItself()
{
    QFETCH(QString, name);

    setByProgram("magenta-4711");

    QCOMPARE(programReads(name), "magenta-4711");
    QCOMPARE(fieldHolds(name), "magenta-4711");
}

void TestPasswordFieldPanel::secondValueIsReadThoughTheMaskStays()
{
    setByProgram("first");
    setByProgram("second");

    QCOMPARE(programReads(kProtected), "second");
    QCOMPARE(fieldHolds(kProtected), kMask);
}

void TestPasswordFieldPanel::firstKeyDropsValueAndMask()
{
    setByProgram("magenta-4711");
    QLineEdit *edit = field(kProtected);
    edit->setFocus();
    edit->end(false);

    QTest::keyClick(edit, Qt::Key_X);

    QCOMPARE(programReads(kProtected), "x");
    QCOMPARE(fieldHolds(kProtected), "x");
    QCOMPARE(programReads(kProtectedDisabled), "magenta-4711");
}

void TestPasswordFieldPanel::typedTextIsReadLive()
{
    QLineEdit *edit = field(kProtected);
    edit->setFocus();

    QTest::keyClicks(edit, "abc");
    QCOMPARE(programReads(kProtected), "abc");

    QTest::keyClick(edit, Qt::Key_Backspace);
    QCOMPARE(programReads(kProtected), "ab");
}

void TestPasswordFieldPanel::emptyValueLeavesTheProtectedFieldsAlone()
{
    setByProgram("magenta-4711");

    setByProgram(QString());

    QCOMPARE(programReads(kProtected), "magenta-4711");
    QCOMPARE(fieldHolds(kProtected), kMask);
    QCOMPARE(programReads(kPlain), QString());
}

void TestPasswordFieldPanel::returnKeySetsTheValue()
{
    setByProgram("magenta-4711");
    valueField()->setFocus();
    valueField()->selectAll();

    QTest::keyClicks(valueField(), "cyan");
    QCOMPARE(programReads(kProtected), "magenta-4711");
    QTest::keyClick(valueField(), Qt::Key_Return);

    QCOMPARE(programReads(kProtected), "cyan");
}

void TestPasswordFieldPanel::valueIsShownAsItStands()
{
    setByProgram("<b>&amp;</b>");

    QCOMPARE(programReads(kProtected), "<b>&amp;</b>");
    const auto readings =
        panel->findChildren<QLabel *>(QRegularExpression("programReads|fieldHolds"));
    QCOMPARE(readings.size(), 8);
    for (const QLabel *label : readings) {
        QCOMPARE(label->textFormat(), Qt::PlainText);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestPasswordFieldPanel>(argc, argv);
}

#include "tst_PasswordFieldPanel.moc"
