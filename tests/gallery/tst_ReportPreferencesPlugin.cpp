#include "Mnemonics.h"
#include "PagePlugins.h"
#include "TestBase.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>

namespace {

const QString kName = QStringLiteral("ReportPreferences");

const PageSettingsHash kDefaults = {
    {"ReportCompany", ""},
    {"ReportOperator", ""},
    {"ReportPaperSize", "A4"},
    {"ReportDateOnEachPage", true},
};

const PageSettingsHash kOthers = {
    {"ReportCompany", "Offset & Sons"},
    {"ReportOperator", "M. Keller"},
    {"ReportPaperSize", "Letter"},
    {"ReportDateOnEachPage", false},
};

} // namespace

class TestReportPreferencesPlugin : public TestBase
{
    Q_OBJECT

private slots:
    void pluginTellsNameAndTitle();
    void settingsComeBack();
    void textsOfASettingsFileAreRead();
    void unusableValuesReadAsDefaults();
    void longTextsAreCutOff();
    void loadingTellsNoChange();
    void eachChangeIsTold();
    void mnemonicsDoNotClash();

protected:
    void prepare() override;
    void finish() override { page.reset(); }

private:
    std::unique_ptr<ConfWidget> page;
};

void TestReportPreferencesPlugin::prepare()
{
    page = makePluginPage(kName);
    QVERIFY(page);
}

void TestReportPreferencesPlugin::pluginTellsNameAndTitle()
{
    const IWidgetPlugin *plugin = loadPagePlugin(kName);

    QCOMPARE(plugin->pluginName(), kName);
    QCOMPARE(plugin->pageTitle(), "Measuring Report");
}

void TestReportPreferencesPlugin::settingsComeBack()
{
    QCOMPARE(page->save(), kDefaults);

    page->load(kOthers);
    QCOMPARE(page->save(), kOthers);

    page->load({});
    QCOMPARE(page->save(), kDefaults);
}

void TestReportPreferencesPlugin::textsOfASettingsFileAreRead()
{
    page->load({{"ReportDateOnEachPage", "false"}});
    QCOMPARE(page->save().value("ReportDateOnEachPage"), QVariant(false));

    page->load({{"ReportDateOnEachPage", "true"}});
    QCOMPARE(page->save().value("ReportDateOnEachPage"), QVariant(true));
}

void TestReportPreferencesPlugin::unusableValuesReadAsDefaults()
{
    const QVariantList unusable = {QVariant(), QVariant(QVariantList({1, 2})), QVariant(QRect())};
    for (const QVariant &value : unusable) {
        PageSettingsHash settings;
        for (const QString &key : kDefaults.keys()) {
            settings.insert(key, value);
        }
        page->load(kOthers);

        page->load(settings);

        QCOMPARE(page->save(), kDefaults);
    }
}

void TestReportPreferencesPlugin::longTextsAreCutOff()
{
    page->load({{"ReportCompany", QString(1 << 20, 'x')}});

    QCOMPARE(page->save().value("ReportCompany").toString(), QString(80, 'x'));
}

void TestReportPreferencesPlugin::loadingTellsNoChange()
{
    QSignalSpy changed(page.get(), SIGNAL(confWidgetChanged()));

    page->load(kOthers);

    QCOMPARE(changed.count(), 0);
}

void TestReportPreferencesPlugin::eachChangeIsTold()
{
    page->show();
    QSignalSpy changed(page.get(), SIGNAL(confWidgetChanged()));

    QTest::keyClick(page->findChild<QLineEdit *>(), 'x');
    QCOMPARE(changed.count(), 1);
    QTest::keyClick(page->findChild<QComboBox *>(), Qt::Key_Down);
    QCOMPARE(changed.count(), 2);
    QTest::keyClick(page->findChild<QCheckBox *>(), Qt::Key_Space);
    QCOMPARE(changed.count(), 3);

    QCOMPARE(page->save().value("ReportCompany"), QVariant("x"));
    QCOMPARE(page->save().value("ReportPaperSize"), QVariant("A3"));
    QCOMPARE(page->save().value("ReportDateOnEachPage"), QVariant(false));
}

void TestReportPreferencesPlugin::mnemonicsDoNotClash()
{
    QCOMPARE(clashingMnemonics(*page), QStringList());
}

int main(int argc, char **argv)
{
    return runTest<TestReportPreferencesPlugin>(argc, argv);
}

#include "tst_ReportPreferencesPlugin.moc"
