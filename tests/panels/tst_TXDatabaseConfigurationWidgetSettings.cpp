#include "TXDatabaseConfigurationWidget.h"

#include "DatabasePanelHelpers.h"
#include "TXPasswordLineEdit.h"
#include "TestBase.h"

#include <QDataStream>
#include <QIODevice>
#include <QRadioButton>
#include <QSpinBox>

#include <limits>
#include <memory>

using DatabaseTest::child;
using DatabaseTest::parametersOf;
using DatabaseTest::passwordOf;
using DatabaseTest::Settings;
using DatabaseTest::settingsFor;

namespace {

const QString kDriver = QStringLiteral("Driver");
const QString kConnection = QStringLiteral("Connection");
const QString kParameters = QStringLiteral("Parameters");

Settings mySql(const QVariant &parameters)
{
    return {{kDriver, QStringLiteral("QMYSQL")}, {kParameters, parameters}};
}

/// A good dictionary with one parameter replaced.
Settings withParameter(const QString &key, const QVariant &value)
{
    Settings settings = settingsFor(3307);
    Settings parameters = parametersOf(settings);
    parameters.insert(key, value);
    settings.insert(kParameters, parameters);
    return settings;
}

} // namespace

/// The panel between its controls and the settings dictionary. Nothing is opened here.
class TestTXDatabaseConfigurationWidgetSettings : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { panel = std::make_unique<TXDatabaseConfigurationWidget>(); }
    void finish() override { panel.reset(); }

private slots:
    void internalDatabaseHasThreeKeysAndNoParameters();
    void serverHasFiveParameters();
    void dictionaryHoldsNoClearPassword();
    void eachCallWritesAnotherCipher();
    void settingsSurviveARoundTrip_data();
    void settingsSurviveARoundTrip();

    void loadTellsWhetherTheDriverIsKnown_data();
    void loadTellsWhetherTheDriverIsKnown();
    void internalDatabaseLeavesTheServerFieldsFilled_data();
    void internalDatabaseLeavesTheServerFieldsFilled();
    void serverReplacesEveryField();
    void portIsClamped_data();
    void portIsClamped();
    void valuesOfWrongTypesAreHarmless_data();
    void valuesOfWrongTypesAreHarmless();
    void parametersOfWrongTypesEmptyTheFields_data();
    void parametersOfWrongTypesEmptyTheFields();
    void passwordThatIsNoCipherClearsTheOldOne_data();
    void passwordThatIsNoCipherClearsTheOldOne();
    void typedPasswordDoesNotStayEither();
    void loadedPasswordIsShownAsAMask();
    void hugeTextsAreCutAndHarmless();
    void unknownKeysAreDropped();

private:
    [[nodiscard]] QString text(const char *name) const
    {
        return child<QLineEdit>(*panel, name)->text();
    }
    [[nodiscard]] QString password() const
    {
        return child<TXPasswordLineEdit>(*panel, "passwordEdit")->text();
    }
    [[nodiscard]] int port() const { return child<QSpinBox>(*panel, "portEdit")->value(); }
    [[nodiscard]] bool isServerChosen() const
    {
        return child<QRadioButton>(*panel, "mysqlDBRadio")->isChecked()
            && child<QWidget>(*panel, "mysqlWidget")->isEnabled();
    }

    std::unique_ptr<TXDatabaseConfigurationWidget> panel;
};

void TestTXDatabaseConfigurationWidgetSettings::internalDatabaseHasThreeKeysAndNoParameters()
{
    const Settings settings = panel->settings();

    QCOMPARE(settings.size(), 3);
    QCOMPARE(settings.value(kDriver), QVariant(QStringLiteral("QSQLITE")));
    QCOMPARE(settings.value(kConnection), QVariant(QString()));
    QCOMPARE(settings.value(kDriver).metaType(), QMetaType::fromType<QString>());
    QCOMPARE(settings.value(kConnection).metaType(), QMetaType::fromType<QString>());
    QCOMPARE(settings.value(kParameters).metaType(), QMetaType::fromType<QVariantHash>());
    QVERIFY(parametersOf(settings).isEmpty());
    QCOMPARE(panel->save(), settings);
    QVERIFY(panel->isValid());
}

void TestTXDatabaseConfigurationWidgetSettings::serverHasFiveParameters()
{
    child<QRadioButton>(*panel, "mysqlDBRadio")->click();

    const Settings settings = panel->settings();

    QCOMPARE(settings.size(), 3);
    QCOMPARE(settings.value(kDriver), QVariant(QStringLiteral("QMYSQL")));
    QCOMPARE(settings.value(kConnection).metaType(), QMetaType::fromType<QString>());
    QCOMPARE(settings.value(kParameters).metaType(), QMetaType::fromType<QVariantHash>());
    const Settings parameters = parametersOf(settings);
    QCOMPARE(parameters.size(), 5);
    QCOMPARE(parameters.value("Host"), QVariant(QStringLiteral("127.0.0.1")));
    QCOMPARE(parameters.value("Port"), QVariant(3306));
    QCOMPARE(parameters.value("User"), QVariant(QStringLiteral("root")));
    for (const char *key : {"Host", "User", "Password", "Options"}) {
        QCOMPARE(parameters.value(key).metaType(), QMetaType::fromType<QString>());
    }
    QCOMPARE(parameters.value("Port").metaType(), QMetaType::fromType<int>());
}

void TestTXDatabaseConfigurationWidgetSettings::dictionaryHoldsNoClearPassword()
{
    const QString secret = QString::fromUtf8("zöe's s3cret 😀");
    panel->load(settingsFor(3306, {QStringLiteral("mia"), secret, QString()}));

    const Settings settings = panel->settings();
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << QVariant(settings);

    QCOMPARE(passwordOf(settings), secret);
    QVERIFY(!parametersOf(settings).value("Password").toString().contains(secret));
    QVERIFY(!bytes.contains(secret.toUtf8()));
    const QByteArray wide(reinterpret_cast<const char *>(QStringLiteral("s3cret").utf16()), 12);
    QVERIFY(!bytes.contains(wide));
}

void TestTXDatabaseConfigurationWidgetSettings::eachCallWritesAnotherCipher()
{
    panel->load(settingsFor(3306));

    const Settings first = panel->settings();
    const Settings second = panel->settings();

    QVERIFY(first != second);
    QCOMPARE(passwordOf(first), passwordOf(second));
}

void TestTXDatabaseConfigurationWidgetSettings::settingsSurviveARoundTrip_data()
{
    QTest::addColumn<Settings>("settings");
    QTest::newRow("plain") << settingsFor(3307);
    QTest::newRow("least") << settingsFor(1, {QString(), QString(), QString()});
    QTest::newRow("most") << settingsFor(
        65535,
        {QStringLiteral(" o'neil; "), QString::fromUtf8("|||pä\"ß😀;"), QStringLiteral("a`b;c=d")},
        QStringLiteral(" A=1; ;'b';MYSQL_OPT_CONNECT_TIMEOUT=0"));
}

void TestTXDatabaseConfigurationWidgetSettings::settingsSurviveARoundTrip()
{
    QFETCH(Settings, settings);

    QVERIFY(panel->load(settings));
    const Settings back = panel->settings();

    QCOMPARE(passwordOf(back), passwordOf(settings));
    QCOMPARE(back.value(kDriver), settings.value(kDriver));
    QCOMPARE(back.value(kConnection).toString(), settings.value(kConnection).toString());
    for (const char *key : {"Host", "Port", "User", "Options"}) {
        QCOMPARE(parametersOf(back).value(key).toString(),
                 parametersOf(settings).value(key).toString());
    }
}

void TestTXDatabaseConfigurationWidgetSettings::loadTellsWhetherTheDriverIsKnown_data()
{
    QTest::addColumn<QVariant>("driver");
    QTest::addColumn<bool>("isKnown");
    QTest::addColumn<bool>("isServer");
    QTest::newRow("internal") << QVariant("QSQLITE") << true << false;
    QTest::newRow("server") << QVariant("QMYSQL") << true << true;
    QTest::newRow("bytes") << QVariant(QByteArray("QMYSQL")) << true << true;
    QTest::newRow("server in small letters") << QVariant("qmysql") << false << false;
    QTest::newRow("internal in small letters") << QVariant("qsqlite") << false << false;
    QTest::newRow("blank behind") << QVariant("QMYSQL ") << false << false;
    QTest::newRow("other") << QVariant("QPSQL") << false << false;
    QTest::newRow("empty") << QVariant("") << false << false;
    QTest::newRow("none") << QVariant() << false << false;
    QTest::newRow("number") << QVariant(5) << false << false;
    QTest::newRow("list") << QVariant(QVariantList({"QMYSQL"})) << false << false;
    QTest::newRow("hash") << QVariant(QVariantHash({{"QMYSQL", 1}})) << false << false;
}

void TestTXDatabaseConfigurationWidgetSettings::loadTellsWhetherTheDriverIsKnown()
{
    QFETCH(QVariant, driver);
    QFETCH(bool, isKnown);
    QFETCH(bool, isServer);
    Settings settings = settingsFor(3307);
    settings.insert(kDriver, driver);

    // Whatever was chosen before.
    for (const char *before : {"QSQLITE", "QMYSQL"}) {
        panel->load({{kDriver, QString(before)}});
        QCOMPARE(panel->load(settings), isKnown);
        QCOMPARE(isServerChosen(), isServer);
        QCOMPARE(child<QWidget>(*panel, "mysqlWidget")->isEnabled(), isServer);
        QCOMPARE(panel->settings().value(kDriver), QVariant(isServer ? "QMYSQL" : "QSQLITE"));
        if (!isServer) {
            QCOMPARE(panel->save().value(kDriver), QVariant("QSQLITE"));
        }
    }
}

void TestTXDatabaseConfigurationWidgetSettings::internalDatabaseLeavesTheServerFieldsFilled_data()
{
    QTest::addColumn<QString>("driver");
    QTest::newRow("internal") << "QSQLITE";
    QTest::newRow("other") << "QPSQL";
    QTest::newRow("none") << "";
}

void TestTXDatabaseConfigurationWidgetSettings::internalDatabaseLeavesTheServerFieldsFilled()
{
    QFETCH(QString, driver);
    panel->load(settingsFor(3307, {}, QStringLiteral("A=1")));
    Settings other = settingsFor(9, {QStringLiteral("eve"), QStringLiteral("x"), QString()});
    other.insert(kDriver, driver);

    panel->load(other);

    QVERIFY(!child<QWidget>(*panel, "mysqlWidget")->isEnabled());
    QCOMPARE(text("hostEdit"), QStringLiteral("127.0.0.1"));
    QCOMPARE(port(), 3307);
    QCOMPARE(text("userEdit"), QStringLiteral("mia"));
    QCOMPARE(password(), QStringLiteral("s3cret"));
    QCOMPARE(text("databaseNameEdit"), QStringLiteral("measurements"));
    QCOMPARE(text("optionsEdit"), QStringLiteral("A=1"));
    QVERIFY(parametersOf(panel->settings()).isEmpty());
    QCOMPARE(panel->settings().value(kConnection), QVariant(QString()));
}

void TestTXDatabaseConfigurationWidgetSettings::serverReplacesEveryField()
{
    panel->load(settingsFor(3307, {}, QStringLiteral("A=1")));

    QVERIFY(panel->load({{kDriver, QStringLiteral("QMYSQL")}}));

    for (const char *name : {"hostEdit", "userEdit", "databaseNameEdit", "optionsEdit"}) {
        QCOMPARE(text(name), QString());
    }
    QCOMPARE(password(), QString());
    QCOMPARE(port(), 1);
}

void TestTXDatabaseConfigurationWidgetSettings::portIsClamped_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("port");
    QTest::newRow("least") << QVariant(1) << 1;
    QTest::newRow("most") << QVariant(65535) << 65535;
    QTest::newRow("zero") << QVariant(0) << 1;
    QTest::newRow("negative") << QVariant(-5) << 1;
    QTest::newRow("above") << QVariant(65536) << 65535;
    QTest::newRow("greatest int") << QVariant(std::numeric_limits<int>::max()) << 65535;
    QTest::newRow("least int") << QVariant(std::numeric_limits<int>::min()) << 1;
    QTest::newRow("3306 in the lower half") << QVariant(4294970602LL) << 65535;
    QTest::newRow("3306 in the lower half, negative") << QVariant(-4294963990LL) << 1;
    QTest::newRow("greatest unsigned") << QVariant(std::numeric_limits<quint64>::max()) << 65535;
    QTest::newRow("unsigned") << QVariant(3307U) << 3307;
    QTest::newRow("double") << QVariant(3307.0) << 3307;
    QTest::newRow("fraction") << QVariant(3306.7) << 3307;
    QTest::newRow("double beyond int") << QVariant(4294970602.0) << 65535;
    QTest::newRow("huge double") << QVariant(1e300) << 65535;
    QTest::newRow("huge negative double") << QVariant(-1e300) << 1;
    QTest::newRow("infinite") << QVariant(std::numeric_limits<double>::infinity()) << 65535;
    QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN()) << 1;
    QTest::newRow("text") << QVariant("3307") << 3307;
    QTest::newRow("long text") << QVariant("99999999999999999999") << 65535;
    QTest::newRow("bytes") << QVariant(QByteArray("3307")) << 3307;
    QTest::newRow("words") << QVariant("x") << 1;
    QTest::newRow("none") << QVariant() << 1;
    QTest::newRow("list") << QVariant(QVariantList() << 3307) << 1;
    QTest::newRow("hash") << QVariant(QVariantHash({{"a", 3307}})) << 1;
}

void TestTXDatabaseConfigurationWidgetSettings::portIsClamped()
{
    QFETCH(QVariant, value);
    QFETCH(int, port);

    QVERIFY(panel->load(withParameter(QStringLiteral("Port"), value)));

    QCOMPARE(this->port(), port);
    QCOMPARE(parametersOf(panel->settings()).value("Port"), QVariant(port));
}

void TestTXDatabaseConfigurationWidgetSettings::valuesOfWrongTypesAreHarmless_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("number") << QVariant(5) << "5";
    QTest::newRow("bool") << QVariant(true) << "true";
    QTest::newRow("bytes") << QVariant(QByteArray("mill")) << "mill";
    QTest::newRow("binary") << QVariant(QByteArray("\xff\xfe", 2))
                            << QString(2, QChar(QChar::ReplacementCharacter));
    QTest::newRow("none") << QVariant() << "";
    QTest::newRow("list") << QVariant(QVariantList({1, 2})) << "";
    QTest::newRow("hash") << QVariant(QVariantHash({{"a", 1}})) << "";
    QTest::newRow("size") << QVariant(QSize(1, 2)) << "";
}

void TestTXDatabaseConfigurationWidgetSettings::valuesOfWrongTypesAreHarmless()
{
    QFETCH(QVariant, value);
    QFETCH(QString, expected);

    QVERIFY(panel->load(withParameter(QStringLiteral("Host"), value)));
    QCOMPARE(text("hostEdit"), expected);
    QVERIFY(panel->load(withParameter(QStringLiteral("User"), value)));
    QCOMPARE(text("userEdit"), expected);
    QVERIFY(panel->load(withParameter(QStringLiteral("Options"), value)));
    QCOMPARE(text("optionsEdit"), expected);
    Settings settings = settingsFor(3307);
    settings.insert(kConnection, value);
    QVERIFY(panel->load(settings));
    QCOMPARE(text("databaseNameEdit"), expected);
}

void TestTXDatabaseConfigurationWidgetSettings::parametersOfWrongTypesEmptyTheFields_data()
{
    QTest::addColumn<QVariant>("parameters");
    QTest::addColumn<QString>("host");
    QTest::newRow("none") << QVariant() << "";
    QTest::newRow("list") << QVariant(QVariantList({"Host", "mill"})) << "";
    QTest::newRow("text") << QVariant("Host=mill") << "";
    QTest::newRow("number") << QVariant(1) << "";
    QTest::newRow("bytes") << QVariant(QByteArray("\0\xff", 2)) << "";
    QTest::newRow("keys in small letters") << QVariant(QVariantHash({{"host", "mill"}})) << "";
    QTest::newRow("map") << QVariant(QVariantMap({{"Host", "mill"}})) << "mill";
}

void TestTXDatabaseConfigurationWidgetSettings::parametersOfWrongTypesEmptyTheFields()
{
    QFETCH(QVariant, parameters);
    QFETCH(QString, host);
    panel->load(settingsFor(3307));

    QVERIFY(panel->load(mySql(parameters)));

    QCOMPARE(text("hostEdit"), host);
    QCOMPARE(text("userEdit"), QString());
    QCOMPARE(password(), QString());
    QCOMPARE(port(), 1);
}

void TestTXDatabaseConfigurationWidgetSettings::passwordThatIsNoCipherClearsTheOldOne_data()
{
    QTest::addColumn<QVariant>("value");
    const QString cipher = StoredSecret::encipher("s3cret");
    QTest::newRow("none") << QVariant();
    QTest::newRow("empty") << QVariant("");
    QTest::newRow("cipher of nothing") << QVariant(StoredSecret::encipher(QByteArray()));
    QTest::newRow("clear text") << QVariant("s3cret");
    QTest::newRow("cipher cut off") << QVariant(cipher.left(cipher.size() / 2));
    QTest::newRow("cipher in small letters") << QVariant(cipher.toLower());
    // As another user's would be, it has the right form.
    QString foreign = cipher;
    foreign[foreign.size() / 2] = foreign.at(foreign.size() / 2) == u'A' ? u'B' : u'A';
    QTest::newRow("cipher of another key") << QVariant(foreign);
    QTest::newRow("binary") << QVariant(QByteArray("\0\xff\x80", 3));
    QTest::newRow("number") << QVariant(5);
    QTest::newRow("list") << QVariant(QVariantList({cipher}));
}

void TestTXDatabaseConfigurationWidgetSettings::passwordThatIsNoCipherClearsTheOldOne()
{
    QFETCH(QVariant, value);
    panel->load(settingsFor(3307));
    QCOMPARE(password(), QStringLiteral("s3cret"));

    QVERIFY(panel->load(withParameter(QStringLiteral("Password"), value)));

    QCOMPARE(password(), QString());
    QCOMPARE(passwordOf(panel->settings()), QString());
}

void TestTXDatabaseConfigurationWidgetSettings::typedPasswordDoesNotStayEither()
{
    child<QRadioButton>(*panel, "mysqlDBRadio")->click();
    QTest::keyClicks(child<QLineEdit>(*panel, "passwordEdit"), QStringLiteral("typed"));
    QCOMPARE(passwordOf(panel->settings()), QStringLiteral("typed"));

    panel->load(withParameter(QStringLiteral("Password"), QString()));

    QCOMPARE(passwordOf(panel->settings()), QString());
}

void TestTXDatabaseConfigurationWidgetSettings::loadedPasswordIsShownAsAMask()
{
    panel->load(settingsFor(3307));

    QCOMPARE(text("passwordEdit"), QString(25, u'|'));
    QCOMPARE(child<QLineEdit>(*panel, "passwordEdit")->echoMode(), QLineEdit::Password);
}

void TestTXDatabaseConfigurationWidgetSettings::hugeTextsAreCutAndHarmless()
{
    const QString huge(1000000, u'x');

    QVERIFY(panel->load(settingsFor(3307, {huge, huge, huge}, huge)));

    for (const char *name : {"userEdit", "databaseNameEdit", "optionsEdit"}) {
        QCOMPARE(text(name).size(), 32767);
    }
    QCOMPARE(passwordOf(panel->settings()), huge);
}

void TestTXDatabaseConfigurationWidgetSettings::unknownKeysAreDropped()
{
    Settings settings = withParameter(QStringLiteral("Colour"), 1);
    settings.insert(QStringLiteral("Theme"), 2);

    QVERIFY(panel->load(settings));

    QCOMPARE(panel->settings().size(), 3);
    QCOMPARE(parametersOf(panel->settings()).size(), 5);
}

int main(int argc, char **argv)
{
    return runTest<TestTXDatabaseConfigurationWidgetSettings>(argc, argv);
}

#include "tst_TXDatabaseConfigurationWidgetSettings.moc"
