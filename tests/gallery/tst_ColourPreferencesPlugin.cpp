#include "Mnemonics.h"
#include "PagePlugins.h"
#include "TestBase.h"
#include "TestTranslations.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTranslator>

namespace {

const QString kName = QStringLiteral("ColourPreferences");

const PageSettingsHash kDefaults = {
    {"ColourIlluminant", "D50"},
    {"ColourObserver", 2},
    {"ColourDifferenceFormula", "CIEDE2000"},
    {"ColourTolerance", 2.0},
};

PageSettingsHash defaultsWith(const QString &key, const QVariant &value)
{
    PageSettingsHash settings = kDefaults;
    settings.insert(key, value);
    return settings;
}

} // namespace

class TestColourPreferencesPlugin : public TestBase
{
    Q_OBJECT

private slots:
    void pluginIsLoadedFromItsFile();
    void titleIsTranslated();
    void eachPageIsAnother();
    void newPageShowsTheDefaults();
    void settingsComeBack();
    void textsOfASettingsFileAreRead();
    void unusableValuesReadAsDefaults_data();
    void unusableValuesReadAsDefaults();
    void unknownKeysAreNotGivenBack();
    void loadingTellsNoChange();
    void eachChangeIsToldOnce_data();
    void eachChangeIsToldOnce();
    void whitePointFollowsTheChoice();
    void mnemonicsDoNotClash();

protected:
    void prepare() override;
    void finish() override;

private:
    QRadioButton *radio(const QString &text) const;
    bool showsText(const QString &text) const;

    std::unique_ptr<ConfWidget> page;
};

void TestColourPreferencesPlugin::prepare()
{
    QLocale::setDefault(QLocale("en"));
    page = makePluginPage(kName);
    QVERIFY(page);
}

void TestColourPreferencesPlugin::finish()
{
    page.reset();
    QLocale::setDefault(QLocale::system());
}

QRadioButton *TestColourPreferencesPlugin::radio(const QString &text) const
{
    const auto buttons = page->findChildren<QRadioButton *>();
    for (QRadioButton *button : buttons) {
        if (button->text().remove('&').startsWith(text)) {
            return button;
        }
    }
    return nullptr;
}

bool TestColourPreferencesPlugin::showsText(const QString &text) const
{
    const auto labels = page->findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(),
                       [&text](const QLabel *label) { return label->text() == text; });
}

void TestColourPreferencesPlugin::pluginIsLoadedFromItsFile()
{
    const WidgetPluginManager manager;
    const QString file = QCoreApplication::applicationDirPath() + '/' + pagePluginsFolder()
        + "/ColourPreferencesPlugin.so";

    IWidgetPlugin *plugin = manager.loadPlugin(file);

    QVERIFY(plugin);
    QCOMPARE(plugin->pluginName(), kName);
    QCOMPARE(plugin->pageTitle(), "Colour Measurement");
    QCOMPARE(page->metaObject()->className(), "ColourPreferencesPage");
}

void TestColourPreferencesPlugin::titleIsTranslated()
{
    QTranslator french;
    QVERIFY(french.load(testTranslationsFolder() + "/gallerytest_fr.qm"));
    QVERIFY(QCoreApplication::installTranslator(&french));

    QCOMPARE(loadPagePlugin(kName)->pageTitle(), QString::fromUtf8("Mesure des couleurs"));
    QCoreApplication::sendPostedEvents();
    QVERIFY(showsText("Point blanc :"));

    QVERIFY(QCoreApplication::removeTranslator(&french));
}

void TestColourPreferencesPlugin::eachPageIsAnother()
{
    QWidget parent;
    IWidgetPlugin *plugin = loadPagePlugin(kName);

    const ConfWidget *first = plugin->createPage(&parent);
    const ConfWidget *second = plugin->createPage(&parent);

    QVERIFY(first != second);
    QCOMPARE(first->parentWidget(), &parent);
}

void TestColourPreferencesPlugin::newPageShowsTheDefaults()
{
    QCOMPARE(page->save(), kDefaults);
}

void TestColourPreferencesPlugin::settingsComeBack()
{
    const PageSettingsHash settings = {
        {"ColourIlluminant", "D65"},
        {"ColourObserver", 10},
        {"ColourDifferenceFormula", "CMC"},
        {"ColourTolerance", 0.1},
    };

    page->load(settings);
    QCOMPARE(page->save(), settings);

    page->load({});
    QCOMPARE(page->save(), kDefaults);
}

void TestColourPreferencesPlugin::textsOfASettingsFileAreRead()
{
    page->load({{"ColourObserver", "10"}, {"ColourTolerance", "3.5"}});

    PageSettingsHash expected = defaultsWith("ColourObserver", 10);
    expected.insert("ColourTolerance", 3.5);
    QCOMPARE(page->save(), expected);
}

void TestColourPreferencesPlugin::unusableValuesReadAsDefaults_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    for (const QString &key : kDefaults.keys()) {
        const auto add = [&key](const char *what, const QVariant &value) {
            QTest::addRow("%s: %s", qPrintable(key), what) << key << value;
        };
        add("invalid", QVariant());
        add("other text", "purple");
        add("long text", QString(1 << 20, 'x'));
        add("control characters", QString::fromLatin1("\0\x01\n", 3));
        add("list", QStringList({"D65", "10"}));
        add("negative", -1);
        add("large", 1e300);
        add("not a number", qQNaN());
        add("date", QDate(2026, 1, 1));
    }
    QTest::newRow("illuminant in lower case") << "ColourIlluminant" << QVariant("d65");
    QTest::newRow("tolerance too small") << "ColourTolerance" << QVariant(0.09);
    QTest::newRow("tolerance too large") << "ColourTolerance" << QVariant(20.1);
}

void TestColourPreferencesPlugin::unusableValuesReadAsDefaults()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    page->load({{"ColourIlluminant", "D65"},
                {"ColourObserver", 10},
                {"ColourDifferenceFormula", "CIE76"},
                {"ColourTolerance", 9.9}});

    page->load(defaultsWith(key, value));

    QCOMPARE(page->save(), kDefaults);
}

void TestColourPreferencesPlugin::unknownKeysAreNotGivenBack()
{
    page->load({{"PrinterName", "proofer"}});

    QCOMPARE(page->save(), kDefaults);
}

void TestColourPreferencesPlugin::loadingTellsNoChange()
{
    QSignalSpy changed(page.get(), SIGNAL(confWidgetChanged()));

    page->load({{"ColourIlluminant", "D65"},
                {"ColourObserver", 10},
                {"ColourDifferenceFormula", "CIE76"},
                {"ColourTolerance", 9.9}});
    page->load({});

    QCOMPARE(changed.count(), 0);
}

void TestColourPreferencesPlugin::eachChangeIsToldOnce_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("illuminant") << "ColourIlluminant" << QVariant("D65");
    QTest::newRow("observer") << "ColourObserver" << QVariant(10);
    QTest::newRow("formula") << "ColourDifferenceFormula" << QVariant("CMC");
    QTest::newRow("tolerance") << "ColourTolerance" << QVariant(2.1);
}

void TestColourPreferencesPlugin::eachChangeIsToldOnce()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    page->show();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    QSignalSpy changed(page.get(), SIGNAL(confWidgetChanged()));

    if (key == "ColourIlluminant") {
        QTest::mouseClick(radio("D65"), Qt::LeftButton);
    } else if (key == "ColourObserver") {
        radio(QString::fromUtf8("2°"))->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    } else if (key == "ColourDifferenceFormula") {
        QTest::keyClick(page->findChild<QComboBox *>(), Qt::Key_Down);
    } else {
        page->findChild<QDoubleSpinBox *>()->stepUp();
    }

    QCOMPARE(changed.count(), 1);
    QCOMPARE(page->save(), defaultsWith(key, value));
}

void TestColourPreferencesPlugin::whitePointFollowsTheChoice()
{
    QVERIFY(showsText("X 96.42   Y 100.00   Z 82.52"));

    radio("D65")->click();
    QVERIFY(showsText("X 95.05   Y 100.00   Z 108.88"));

    page->load({{"ColourObserver", 10}});
    QVERIFY(showsText("X 96.72   Y 100.00   Z 81.43"));
}

void TestColourPreferencesPlugin::mnemonicsDoNotClash()
{
    QCOMPARE(clashingMnemonics(*page), QStringList());
}

int main(int argc, char **argv)
{
    return runTest<TestColourPreferencesPlugin>(argc, argv);
}

#include "tst_ColourPreferencesPlugin.moc"
