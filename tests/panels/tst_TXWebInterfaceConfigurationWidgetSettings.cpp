#include "TXWebInterfaceConfigurationWidget.h"

#include "TXApplicationInformation.h"
#include "TXPasswordLineEdit.h"
#include "TestBase.h"
#include "WebPanelHelpers.h"

#include <QCheckBox>
#include <QDataStream>
#include <QIODevice>
#include <QLineEdit>
#include <QSet>
#include <QSpinBox>
#include <QStringConverter>

#include <limits>
#include <memory>

using WebTest::child;
using WebTest::fullSettings;
using WebTest::passwordOf;
using WebTest::Settings;
using WebTest::userOf;

namespace {

const QSet<QString> kKeys = {"Enabled",     "Port",  "Path",           "Secure",
                             "Certificate", "Users", "ExtendedOptions"};

QSet<QString> keysOf(const Settings &settings)
{
    const QStringList keys = settings.keys();
    return {keys.cbegin(), keys.cend()};
}

QVariant usersWith(const QVariant &user)
{
    return QVariantList(1, user);
}

/// Good settings with the password stored like this.
Settings withPassword(const QVariant &stored)
{
    return WebTest::with("Users",
                         usersWith(QVariantHash({{"Username", "mia"}, {"Password", stored}})));
}

} // namespace

/// The panel between its controls and the settings dictionary.
class TestTXWebInterfaceConfigurationWidgetSettings : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { panel = std::make_unique<TXWebInterfaceConfigurationWidget>(); }
    void finish() override;

private slots:
    void everyKeyIsWrittenWithItsType();
    void disabledPanelWritesEveryKeyToo();
    void settingsSurviveARoundTrip();
    void controlsShowTheSettings();
    void emptyDictionaryGivesTheDefaults();
    void missingPortGivesThatOfTheProduct_data();
    void missingPortGivesThatOfTheProduct();
    void portIsClamped_data();
    void portIsClamped();
    void portThatIsNoNumberGivesThatOfTheProduct_data();
    void portThatIsNoNumberGivesThatOfTheProduct();
    void textsOfWrongTypesAreHarmless_data();
    void textsOfWrongTypesAreHarmless();
    void boxesOfWrongTypesAreHarmless_data();
    void boxesOfWrongTypesAreHarmless();
    void usersOfWrongTypesGiveNoUser_data();
    void usersOfWrongTypesGiveNoUser();
    void furtherUsersAreDropped();
    void dictionaryHoldsNoClearPassword();
    void eachCallWritesAnotherCipher();
    void passwordThatIsNoCipherClearsTheOldOne_data();
    void passwordThatIsNoCipherClearsTheOldOne();
    void typedPasswordIsSavedAndDoesNotStay();
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
        return child<TXPasswordLineEdit>(*panel, "passwordLineEdit")->text();
    }
    [[nodiscard]] int port() const { return child<QSpinBox>(*panel, "portSpinBox")->value(); }
    [[nodiscard]] bool isChecked(const char *name) const
    {
        return child<QCheckBox>(*panel, name)->isChecked();
    }

    std::unique_ptr<TXWebInterfaceConfigurationWidget> panel;
};

void TestTXWebInterfaceConfigurationWidgetSettings::finish()
{
    panel.reset();
    setBaseProd(0);
}

void TestTXWebInterfaceConfigurationWidgetSettings::everyKeyIsWrittenWithItsType()
{
    for (const Settings &loaded : {Settings(), fullSettings()}) {
        QVERIFY(panel->load(loaded));

        const Settings settings = panel->save();

        QCOMPARE(keysOf(settings), kKeys);
        for (const char *key : {"Enabled", "Secure"}) {
            QCOMPARE(settings.value(key).metaType(), QMetaType::fromType<bool>());
        }
        for (const char *key : {"Path", "Certificate", "ExtendedOptions"}) {
            QCOMPARE(settings.value(key).metaType(), QMetaType::fromType<QString>());
        }
        QCOMPARE(settings.value("Port").metaType(), QMetaType::fromType<int>());
        QCOMPARE(settings.value("Users").metaType(), QMetaType::fromType<QVariantList>());
        const QVariantList users = settings.value("Users").toList();
        QCOMPARE(users.size(), 1);
        QCOMPARE(users[0].metaType(), QMetaType::fromType<QVariantHash>());
        QCOMPARE(keysOf(userOf(settings)), QSet<QString>({"Username", "Password"}));
        for (const QVariant &value : userOf(settings)) {
            QCOMPARE(value.metaType(), QMetaType::fromType<QString>());
        }
    }
}

void TestTXWebInterfaceConfigurationWidgetSettings::disabledPanelWritesEveryKeyToo()
{
    panel->load(WebTest::with("Enabled", false));
    QVERIFY(!child<QLineEdit>(*panel, "pathLineEdit")->isEnabled());

    const Settings settings = panel->save();

    QCOMPARE(keysOf(settings), kKeys);
    QCOMPARE(settings.value("Enabled"), QVariant(false));
    QCOMPARE(settings.value("Path"), QVariant("proofs"));
    QCOMPARE(userOf(settings).value("Username"), QVariant("mia"));
    QCOMPARE(passwordOf(settings), QStringLiteral("s3cret"));
}

void TestTXWebInterfaceConfigurationWidgetSettings::settingsSurviveARoundTrip()
{
    const QString secret = QString::fromUtf8("zöe's s3cret 😀");
    const QString cipher = StoredSecret::encipher(secret.toUtf8());
    Settings settings = WebTest::with(
        "Users", usersWith(QVariantHash({{"Username", " mia "}, {"Password", cipher}})));
    settings.insert("Path", "  /a b/<i>  ");
    settings.insert("Certificate", QString::fromUtf8("/zoë/my \"cert\".pem"));
    settings.insert("ExtendedOptions", "a=\"1\"; b=%20");

    panel->load(settings);
    Settings saved = panel->save();
    panel->load({});
    panel->load(saved);
    saved = panel->save();

    QCOMPARE(passwordOf(saved), secret);
    QCOMPARE(userOf(saved).value("Username"), QVariant(" mia "));
    saved.remove("Users");
    settings.remove("Users");
    QCOMPARE(saved, settings);
}

void TestTXWebInterfaceConfigurationWidgetSettings::controlsShowTheSettings()
{
    QVERIFY(panel->load(fullSettings()));

    QVERIFY(isChecked("enabledCheckBox"));
    QCOMPARE(port(), 9123);
    QCOMPARE(text("pathLineEdit"), QStringLiteral("proofs"));
    QVERIFY(isChecked("httpsCertificateCheckBox"));
    QCOMPARE(text("httpsCertificateLineEdit"), QStringLiteral("/etc/mill.pem"));
    QCOMPARE(text("usernameLineEdit"), QStringLiteral("mia"));
    QCOMPARE(password(), QStringLiteral("s3cret"));
    QCOMPARE(text("optionsLineEdit"), QStringLiteral("threads=2"));
    QVERIFY(WebTest::targets(*panel).contains(QStringLiteral("https://127.0.0.1:9123/proofs/")));
}

void TestTXWebInterfaceConfigurationWidgetSettings::emptyDictionaryGivesTheDefaults()
{
    panel->load(fullSettings());

    QVERIFY(panel->load({}));

    QVERIFY(!isChecked("enabledCheckBox"));
    QCOMPARE(port(), 8080);
    QVERIFY(!isChecked("httpsCertificateCheckBox"));
    for (const char *name :
         {"pathLineEdit", "httpsCertificateLineEdit", "usernameLineEdit", "optionsLineEdit"}) {
        QCOMPARE(text(name), QString());
    }
    QCOMPARE(password(), QString());
    QCOMPARE(passwordOf(panel->save()), QString());
}

void TestTXWebInterfaceConfigurationWidgetSettings::missingPortGivesThatOfTheProduct_data()
{
    QTest::addColumn<int>("product");
    QTest::addColumn<int>("expected");
    QTest::newRow("2000") << 2000 << 8751;
    QTest::newRow("1000") << 1000 << 8752;
    QTest::newRow("5000") << 5000 << 8753;
    QTest::newRow("none") << 0 << 8080;
    QTest::newRow("another") << 4000 << 8080;
}

void TestTXWebInterfaceConfigurationWidgetSettings::missingPortGivesThatOfTheProduct()
{
    QFETCH(int, product);
    QFETCH(int, expected);
    setBaseProd(product);
    // The form's own is another one until something is loaded.
    const TXWebInterfaceConfigurationWidget fresh;
    QCOMPARE(child<QSpinBox>(fresh, "portSpinBox")->value(), 8080);
    Settings settings = fullSettings();
    settings.remove("Port");

    panel->load(settings);
    QCOMPARE(port(), expected);

    // HTTPS does not count here.
    panel->load({{"Secure", true}, {"Port", QVariant()}});
    QCOMPARE(port(), expected);
}

void TestTXWebInterfaceConfigurationWidgetSettings::portIsClamped_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("least") << QVariant(1) << 1;
    QTest::newRow("most") << QVariant(65535) << 65535;
    QTest::newRow("zero") << QVariant(0) << 1;
    QTest::newRow("negative") << QVariant(-5) << 1;
    QTest::newRow("above") << QVariant(70000) << 65535;
    QTest::newRow("greatest int") << QVariant(std::numeric_limits<int>::max()) << 65535;
    QTest::newRow("least int") << QVariant(std::numeric_limits<int>::min()) << 1;
    QTest::newRow("8080 in the lower half") << QVariant(4294975376LL) << 65535;
    QTest::newRow("greatest unsigned") << QVariant(std::numeric_limits<quint64>::max()) << 65535;
    QTest::newRow("double") << QVariant(8081.0) << 8081;
    QTest::newRow("huge double") << QVariant(1e300) << 65535;
    QTest::newRow("infinite") << QVariant(-std::numeric_limits<double>::infinity()) << 1;
    QTest::newRow("text") << QVariant("8081") << 8081;
    QTest::newRow("bytes") << QVariant(QByteArray("8081")) << 8081;
}

void TestTXWebInterfaceConfigurationWidgetSettings::portIsClamped()
{
    QFETCH(QVariant, value);
    QFETCH(int, expected);

    QVERIFY(panel->load(WebTest::with("Port", value)));

    QCOMPARE(port(), expected);
    QCOMPARE(panel->save().value("Port"), QVariant(expected));
}

void TestTXWebInterfaceConfigurationWidgetSettings::portThatIsNoNumberGivesThatOfTheProduct_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("none") << QVariant();
    QTest::newRow("words") << QVariant("http");
    QTest::newRow("empty") << QVariant("");
    QTest::newRow("number and words") << QVariant("80 or 8080");
    QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN());
    QTest::newRow("list") << QVariant(QVariantList() << 3307);
    QTest::newRow("hash") << QVariant(QVariantHash({{"a", 3307}}));
    QTest::newRow("binary") << QVariant(QByteArray("\0\xff", 2));
}

void TestTXWebInterfaceConfigurationWidgetSettings::portThatIsNoNumberGivesThatOfTheProduct()
{
    QFETCH(QVariant, value);
    setBaseProd(5000);

    QVERIFY(panel->load(WebTest::with("Port", value)));

    QCOMPARE(port(), 8753);
}

void TestTXWebInterfaceConfigurationWidgetSettings::textsOfWrongTypesAreHarmless_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("number") << QVariant(5) << "5";
    QTest::newRow("bytes") << QVariant(QByteArray("mill")) << "mill";
    QTest::newRow("binary") << QVariant(QByteArray("\xff\xfe", 2))
                            << QString(2, QChar(QChar::ReplacementCharacter));
    QTest::newRow("none") << QVariant() << "";
    QTest::newRow("list") << QVariant(QVariantList({1, 2})) << "";
    QTest::newRow("hash") << QVariant(QVariantHash({{"a", 1}})) << "";
}

void TestTXWebInterfaceConfigurationWidgetSettings::textsOfWrongTypesAreHarmless()
{
    QFETCH(QVariant, value);
    QFETCH(QString, expected);
    const std::pair<const char *, const char *> fields[] = {
        {"Path", "pathLineEdit"},
        {"Certificate", "httpsCertificateLineEdit"},
        {"ExtendedOptions", "optionsLineEdit"}};
    for (const auto &[key, field] : fields) {
        QVERIFY(panel->load(WebTest::with(key, value)));
        QCOMPARE(text(field), expected);
    }
    QVERIFY(panel->load(WebTest::with("Users", usersWith(QVariantHash({{"Username", value}})))));
    QCOMPARE(text("usernameLineEdit"), expected);
    QCOMPARE(password(), QString());
}

void TestTXWebInterfaceConfigurationWidgetSettings::boxesOfWrongTypesAreHarmless_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("expected");
    QTest::newRow("none") << QVariant() << false;
    QTest::newRow("text of a file") << QVariant("true") << true;
    QTest::newRow("text of a file, off") << QVariant("false") << false;
    QTest::newRow("empty text") << QVariant("") << false;
    QTest::newRow("number") << QVariant(1) << true;
    QTest::newRow("list") << QVariant(QVariantList({true, true})) << false;
    QTest::newRow("hash") << QVariant(QVariantHash({{"a", true}})) << false;
}

void TestTXWebInterfaceConfigurationWidgetSettings::boxesOfWrongTypesAreHarmless()
{
    QFETCH(QVariant, value);
    QFETCH(bool, expected);

    QVERIFY(panel->load({{"Enabled", value}, {"Secure", value}}));

    QCOMPARE(isChecked("enabledCheckBox"), expected);
    QCOMPARE(isChecked("httpsCertificateCheckBox"), expected);
    QCOMPARE(panel->save().value("Enabled"), QVariant(expected));
}

void TestTXWebInterfaceConfigurationWidgetSettings::usersOfWrongTypesGiveNoUser_data()
{
    QTest::addColumn<QVariant>("users");
    QTest::addColumn<QString>("name");
    const QVariantHash user({{"Username", "zoe"}});
    QTest::newRow("none") << QVariant() << "";
    QTest::newRow("empty list") << QVariant(QVariantList()) << "";
    QTest::newRow("text") << QVariant("zoe") << "";
    QTest::newRow("number") << QVariant(5) << "";
    QTest::newRow("hash") << QVariant(user) << "";
    QTest::newRow("list of texts") << QVariant(QStringList({"zoe", "x"})) << "";
    QTest::newRow("list of lists") << usersWith(QVariantList(1, user)) << "";
    QTest::newRow("first is no hash") << QVariant(QVariantList({1, user})) << "";
    QTest::newRow("first is invalid") << QVariant(QVariantList({QVariant(), user})) << "";
    QTest::newRow("empty hash") << usersWith(QVariantHash()) << "";
    QTest::newRow("keys in small letters") << usersWith(QVariantHash({{"username", "zoe"}})) << "";
    QTest::newRow("map") << usersWith(QVariantMap({{"Username", "zoe"}})) << "zoe";
}

void TestTXWebInterfaceConfigurationWidgetSettings::usersOfWrongTypesGiveNoUser()
{
    QFETCH(QVariant, users);
    QFETCH(QString, name);
    panel->load(fullSettings());

    QVERIFY(panel->load(WebTest::with("Users", users)));

    QCOMPARE(text("usernameLineEdit"), name);
    QCOMPARE(password(), QString());
    QCOMPARE(panel->save().value("Users").toList().size(), 1);
    QCOMPARE(text("optionsLineEdit"), QStringLiteral("threads=2"));
}

void TestTXWebInterfaceConfigurationWidgetSettings::furtherUsersAreDropped()
{
    const QVariantHash first({{"Username", "zoe"}, {"Password", StoredSecret::encipher("a")}});
    const QVariantHash second({{"Username", "eve"}, {"Password", StoredSecret::encipher("b")}});

    panel->load(WebTest::with("Users", QVariantList({first, second, second})));

    QCOMPARE(text("usernameLineEdit"), QStringLiteral("zoe"));
    QCOMPARE(password(), QStringLiteral("a"));
    QCOMPARE(panel->save().value("Users").toList().size(), 1);
    QCOMPARE(userOf(panel->save()).value("Username"), QVariant("zoe"));
}

void TestTXWebInterfaceConfigurationWidgetSettings::dictionaryHoldsNoClearPassword()
{
    panel->load(fullSettings());

    const Settings settings = panel->save();
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << settings;

    const QString secret = QStringLiteral("s3cret");
    QVERIFY(bytes.size() > 100);
    QVERIFY(!bytes.contains(secret.toUtf8()));
    for (const auto order : {QStringConverter::Utf16BE, QStringConverter::Utf16LE}) {
        QVERIFY(!bytes.contains(QByteArray(QStringEncoder(order)(secret))));
    }
    QCOMPARE(passwordOf(settings), secret);
    const QString cipher = userOf(settings).value("Password").toString();
    for (const QChar character : cipher) {
        QVERIFY(character > u' ' && character < u'\x7f');
    }
}

void TestTXWebInterfaceConfigurationWidgetSettings::eachCallWritesAnotherCipher()
{
    panel->load(fullSettings());
    QVERIFY(userOf(panel->save()).value("Password") != userOf(panel->save()).value("Password"));
    // That of an empty password is none the less one.
    panel->load({});
    QVERIFY(!userOf(panel->save()).value("Password").toString().isEmpty());
    QCOMPARE(passwordOf(panel->save()), QString());
}

void TestTXWebInterfaceConfigurationWidgetSettings::passwordThatIsNoCipherClearsTheOldOne_data()
{
    QTest::addColumn<QVariant>("value");
    const QString cipher = StoredSecret::encipher("s3cret");
    QTest::newRow("none") << QVariant();
    QTest::newRow("empty") << QVariant("");
    QTest::newRow("cipher of nothing") << QVariant(StoredSecret::encipher(QByteArray()));
    QTest::newRow("clear text") << QVariant("s3cret");
    QTest::newRow("cipher cut off") << QVariant(cipher.left(cipher.size() / 2));
    QString foreign = cipher;
    foreign[foreign.size() / 2] = foreign.at(foreign.size() / 2) == u'A' ? u'B' : u'A';
    QTest::newRow("cipher of another key") << QVariant(foreign);
    QTest::newRow("binary") << QVariant(QByteArray("\0\xff\x80", 3));
    QTest::newRow("number") << QVariant(5);
    QTest::newRow("list") << QVariant(QVariantList({cipher, cipher}));
}

void TestTXWebInterfaceConfigurationWidgetSettings::passwordThatIsNoCipherClearsTheOldOne()
{
    QFETCH(QVariant, value);
    panel->load(fullSettings());
    QCOMPARE(password(), QStringLiteral("s3cret"));

    QVERIFY(panel->load(withPassword(value)));

    QCOMPARE(password(), QString());
    QCOMPARE(passwordOf(panel->save()), QString());
    QCOMPARE(text("usernameLineEdit"), QStringLiteral("mia"));
}

void TestTXWebInterfaceConfigurationWidgetSettings::typedPasswordIsSavedAndDoesNotStay()
{
    panel->load({{"Enabled", true}});
    QTest::keyClicks(child<QLineEdit>(*panel, "passwordLineEdit"), QStringLiteral("typed"));
    QCOMPARE(passwordOf(panel->save()), QStringLiteral("typed"));

    panel->load(withPassword(QString()));

    QCOMPARE(passwordOf(panel->save()), QString());
}

void TestTXWebInterfaceConfigurationWidgetSettings::loadedPasswordIsShownAsAMask()
{
    panel->load(fullSettings());

    QCOMPARE(text("passwordLineEdit"), QString(25, u'|'));
    QCOMPARE(child<QLineEdit>(*panel, "passwordLineEdit")->echoMode(), QLineEdit::Password);
}

void TestTXWebInterfaceConfigurationWidgetSettings::hugeTextsAreCutAndHarmless()
{
    const QString huge(1'000'000, u'x');
    Settings settings = withPassword(huge);
    for (const char *key : {"Path", "Certificate", "ExtendedOptions"}) {
        settings.insert(key, huge);
    }

    QVERIFY(panel->load(settings));

    for (const char *name : {"pathLineEdit", "httpsCertificateLineEdit", "optionsLineEdit"}) {
        QCOMPARE(text(name).size(), 32767);
    }
}

void TestTXWebInterfaceConfigurationWidgetSettings::unknownKeysAreDropped()
{
    QVERIFY(panel->load(WebTest::with("Colour", 1)));
    QCOMPARE(keysOf(panel->save()), kKeys);
}

int main(int argc, char **argv)
{
    return runTest<TestTXWebInterfaceConfigurationWidgetSettings>(argc, argv);
}

#include "tst_TXWebInterfaceConfigurationWidgetSettings.moc"
