#include "DialogDriver.h"
#include "DisabledSpinBoxPanel.h"
#include "PageChecks.h"
#include "TestBase.h"

#include "TXDoubleSpinBoxDisabled.h"
#include "TXSpinBoxDisabled.h"

#include <QPushButton>

#include <memory>

class TestDisabledSpinBoxPanel : public TestBase
{
    Q_OBJECT

private slots:
    void disabledLooksLikeAValue_data();
    void disabledLooksLikeAValue();
    void swapExchangesTheColumns();
    void everyTextFollowsTheLanguage();

protected:
    void prepare() override;
    void finish() override { panel.reset(); }

private:
    QAbstractSpinBox *box(const QString &name) const;

    std::unique_ptr<DisabledSpinBoxPanel> panel;
};

void TestDisabledSpinBoxPanel::prepare()
{
    panel = std::make_unique<DisabledSpinBoxPanel>();
    panel->show();
}

QAbstractSpinBox *TestDisabledSpinBoxPanel::box(const QString &name) const
{
    return controlOf<QAbstractSpinBox>(*panel, name);
}

void TestDisabledSpinBoxPanel::disabledLooksLikeAValue_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("isPlainWhenDisabled");
    QTest::newRow("TXSpinBoxDisabled") << "175 lpi" << true;
    QTest::newRow("QSpinBox") << "175 lpi" << false;
    QTest::newRow("TXDoubleSpinBoxDisabled") << "1118.5 mm" << true;
    QTest::newRow("QDoubleSpinBox") << "1118.5 mm" << false;
}

void TestDisabledSpinBoxPanel::disabledLooksLikeAValue()
{
    QFETCH(QString, shown);
    QFETCH(bool, isPlainWhenDisabled);
    const QString name = QTest::currentDataTag();
    const QAbstractSpinBox *enabled = box(name + ", enabled");
    const QAbstractSpinBox *disabled = box(name + ", disabled");

    QVERIFY(enabled->isEnabled() && enabled->hasFrame());
    QCOMPARE(enabled->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
    QVERIFY(!disabled->isEnabled());
    QCOMPARE(!disabled->hasFrame(), isPlainWhenDisabled);
    QCOMPARE(disabled->buttonSymbols() == QAbstractSpinBox::NoButtons, isPlainWhenDisabled);
    QCOMPARE(enabled->text(), shown);
    QCOMPARE(disabled->text(), shown);
}

void TestDisabledSpinBoxPanel::swapExchangesTheColumns()
{
    const QAbstractSpinBox *left = box("TXSpinBoxDisabled, enabled");
    const QAbstractSpinBox *right = box("TXSpinBoxDisabled, disabled");

    DialogDriver::click(buttonOf(*panel, "Swap"));

    QVERIFY(!left->isEnabled() && !left->hasFrame());
    QVERIFY(right->isEnabled() && right->hasFrame() && !right->isReadOnly());
    QCOMPARE(left->accessibleName(), "TXSpinBoxDisabled, disabled");
    QCOMPARE(right->accessibleName(), "TXSpinBoxDisabled, enabled");

    DialogDriver::click(buttonOf(*panel, "Swap"));
    QVERIFY(left->isEnabled() && left->hasFrame());
    QVERIFY(!right->isEnabled());
    QCOMPARE(left->accessibleName(), "TXSpinBoxDisabled, enabled");
}

void TestDisabledSpinBoxPanel::everyTextFollowsTheLanguage()
{
    const QStringList classes = {"TXSpinBoxDisabled", "QSpinBox", "TXDoubleSpinBoxDisabled",
                                 "QDoubleSpinBox"};
    CapitalTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();

    QCOMPARE(smallTexts(*panel, classes), QStringList());
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
}

int main(int argc, char **argv)
{
    return runTest<TestDisabledSpinBoxPanel>(argc, argv);
}

#include "tst_DisabledSpinBoxPanel.moc"
