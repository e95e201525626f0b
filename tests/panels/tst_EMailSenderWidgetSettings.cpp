#include "EMailSenderWidget.h"

#include "DialogDriver.h"
#include "StoredSecret.h"
#include "TXPasswordLineEdit.h"
#include "TestBase.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

#include <limits>
#include <memory>

using Settings = QHash<QString, QVariant>;

namespace {

const QStringList kKeys = {
    QStringLiteral("MailServerLogin"),     QStringLiteral("MailServerPassword"),
    QStringLiteral("MailServerAddress"),   QStringLiteral("MailServerPort"),
    QStringLiteral("MailWithEncryption"),  QStringLiteral("MailSender"),
    QStringLiteral("MailMainDestination"), QStringLiteral("MailCopyDestination")};

Settings fullSettings()
{
    return {{"MailServerLogin", "me"},
            {"MailServerPassword", StoredSecret::encipher("sécret |1|")},
            {"MailServerAddress", "smtp.example.org"},
            {"MailServerPort", 587},
            {"MailWithEncryption", "TLS"},
            {"MailSender", "me@example.org"},
            {"MailMainDestination", "you@example.org"},
            {"MailCopyDestination", "them@example.org"}};
}

} // namespace

class TestEMailSenderWidgetSettings : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { panel = std::make_unique<EMailSenderWidget>(nullptr); }
    void finish() override { panel.reset(); }

private slots:
    void loadFillsTheFields();
    void saveAfterLoadGivesAllBackWithANewCipher();
    void saveOfAnEmptyPanelHasAllKeys();
    void missingKeysEmptyTheFields();
    void settingAnEmptyPasswordChangesNothing();
    void loadLeavesNoEarlierPassword_data();
    void loadLeavesNoEarlierPassword();
    void settersAndGetters();

    void portsOutOfRange_data();
    void portsOutOfRange();
    void userMayEnterPortZero();
    void encryptionIsFoundByItsExactWord_data();
    void encryptionIsFoundByItsExactWord();
    void wrongTypesUnderEveryKey_data();
    void wrongTypesUnderEveryKey();
    void portsOfOtherTypes_data();
    void portsOfOtherTypes();
    void textsOfAMegabyte();
    void controlCharactersAreKept();

    void checkOfTheFields_data();
    void checkOfTheFields();
    void acceptableFieldsLeaveTheErrorAsItWas();
    void acceptingShowsTheMessage();
    void acceptingIsSilentWhenAllIsWell();

private:
    template<class Widget = QWidget>
    Widget &child(const char *name) const
    {
        auto *found = panel->findChild<Widget *>(QString::fromLatin1(name));
        return found ? *found : (qFatal("no child %s", name), *found);
    }

    std::unique_ptr<EMailSenderWidget> panel;
};

void TestEMailSenderWidgetSettings::loadFillsTheFields()
{
    panel->load(fullSettings());

    QCOMPARE(child<QLineEdit>("loginLineEdit").text(), QStringLiteral("me"));
    QCOMPARE(child<TXPasswordLineEdit>("passwordLineEdit").text(), QStringLiteral("sécret |1|"));
    QCOMPARE(child<QLineEdit>("smtpServerLineEdit").text(), QStringLiteral("smtp.example.org"));
    QCOMPARE(child<QSpinBox>("portSpinBox").value(), 587);
    QCOMPARE(child<QComboBox>("encryptionComboBox").currentIndex(), 2);
    QCOMPARE(child<QLineEdit>("senderLineEdit").text(), QStringLiteral("me@example.org"));
    QCOMPARE(child<QLineEdit>("mainEMailAddress").text(), QStringLiteral("you@example.org"));
    QCOMPARE(child<QLineEdit>("ccMailAddress").text(), QStringLiteral("them@example.org"));
}

void TestEMailSenderWidgetSettings::saveAfterLoadGivesAllBackWithANewCipher()
{
    Settings given = fullSettings();
    panel->load(given);

    Settings saved = panel->save();

    const QString cipher = saved.take(kKeys[1]).toString();
    const QString givenCipher = given.take(kKeys[1]).toString();
    QCOMPARE(saved, given);
    QCOMPARE(saved.value(kKeys[3]).metaType(), QMetaType::fromType<int>());
    QVERIFY(cipher != givenCipher);
    QVERIFY(!cipher.contains(QStringLiteral("cret")));
    QCOMPARE(QString::fromUtf8(StoredSecret::decipher(cipher)), QStringLiteral("sécret |1|"));
}

void TestEMailSenderWidgetSettings::saveOfAnEmptyPanelHasAllKeys()
{
    panel->load({});

    const Settings saved = panel->save();

    QStringList keys = saved.keys();
    QStringList expected = kKeys;
    keys.sort();
    expected.sort();
    QCOMPARE(keys, expected);
    QCOMPARE(saved.value(kKeys[3]), QVariant(25));
    QCOMPARE(saved.value(kKeys[4]), QVariant(QStringLiteral("NONE")));
    // An empty password is enciphered like any other, so that its field does not tell.
    QVERIFY(!saved.value(kKeys[1]).toString().isEmpty());
    QCOMPARE(StoredSecret::decipher(saved.value(kKeys[1]).toString()), QByteArray());
}

void TestEMailSenderWidgetSettings::missingKeysEmptyTheFields()
{
    panel->load(fullSettings());

    panel->load({});

    QCOMPARE(panel->loginName(), QString());
    QCOMPARE(panel->smtpServerName(), QString());
    QCOMPARE(panel->portNumber(), 25);
    QCOMPARE(panel->encryption(), QStringLiteral("NONE"));
    QCOMPARE(panel->senderName(), QString());
    QCOMPARE(panel->mainDestinationAddress(), QString());
    QCOMPARE(panel->copyDestincationAddress(), QString());
}

void TestEMailSenderWidgetSettings::settingAnEmptyPasswordChangesNothing()
{
    panel->setPassword(QStringLiteral("first"));
    panel->setPassword(QString());
    QCOMPARE(panel->password(), QStringLiteral("first"));
}

void TestEMailSenderWidgetSettings::loadLeavesNoEarlierPassword_data()
{
    QTest::addColumn<QHash<QString, QVariant>>("settings");
    QTest::newRow("no key") << QHash<QString, QVariant>();
    QTest::newRow("no cipher") << QHash<QString, QVariant>{{"MailServerPassword", "no cipher"}};
    QTest::newRow("empty password") << EMailSenderWidget().save();
}

void TestEMailSenderWidgetSettings::loadLeavesNoEarlierPassword()
{
    using Settings = QHash<QString, QVariant>;
    QFETCH(Settings, settings);
    panel->setPassword(QStringLiteral("first"));
    panel->load(settings);
    QCOMPARE(panel->password(), QString());

    auto *field = panel->findChild<QLineEdit *>(QStringLiteral("passwordLineEdit"));
    QTest::keyClicks(field, "typed");
    panel->load(settings);
    QCOMPARE(panel->password(), QString());
}

void TestEMailSenderWidgetSettings::settersAndGetters()
{
    panel->setLoginName(QStringLiteral("1"));
    panel->setPassword(QStringLiteral("2"));
    panel->setSMTPServerName(QStringLiteral("3"));
    panel->setPortNumber(4);
    panel->setEncryption(QStringLiteral("TLS"));
    panel->setSenderName(QStringLiteral("6"));
    panel->setMainDestinationAddress(QStringLiteral("7"));
    panel->setCopyDestinationAddress(QStringLiteral("8"));

    QCOMPARE(panel->loginName(), QStringLiteral("1"));
    QCOMPARE(panel->password(), QStringLiteral("2"));
    QCOMPARE(panel->smtpServerName(), QStringLiteral("3"));
    QCOMPARE(panel->portNumber(), 4);
    QCOMPARE(panel->encryption(), QStringLiteral("TLS"));
    QCOMPARE(panel->senderName(), QStringLiteral("6"));
    QCOMPARE(panel->mainDestinationAddress(), QStringLiteral("7"));
    QCOMPARE(panel->copyDestincationAddress(), QStringLiteral("8"));
    QCOMPARE(panel->save().value(QStringLiteral("MailCopyDestination")).toString(),
             QStringLiteral("8"));
}

void TestEMailSenderWidgetSettings::portsOutOfRange_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("kept");
    QTest::addRow("lowest") << std::numeric_limits<int>::min() << 25;
    QTest::addRow("negative") << -5 << 25;
    QTest::addRow("zero") << 0 << 25;
    QTest::addRow("one") << 1 << 1;
    QTest::addRow("above the range of TCP") << 70000 << 70000;
    QTest::addRow("maximum") << 100000 << 100000;
    QTest::addRow("above the maximum") << 100001 << 100000;
    QTest::addRow("highest") << std::numeric_limits<int>::max() << 100000;
}

void TestEMailSenderWidgetSettings::portsOutOfRange()
{
    QFETCH(int, given);
    QFETCH(int, kept);
    panel->setPortNumber(7);
    panel->setPortNumber(given);
    QCOMPARE(panel->portNumber(), kept);

    panel->setPortNumber(7);
    panel->load({{"MailServerPort", given}});
    QCOMPARE(panel->portNumber(), kept);
    QCOMPARE(panel->save().value(QStringLiteral("MailServerPort")), QVariant(kept));
}

void TestEMailSenderWidgetSettings::userMayEnterPortZero()
{
    auto &port = child<QSpinBox>("portSpinBox");
    port.selectAll();
    QTest::keyClicks(&port, "0");

    QCOMPARE(panel->portNumber(), 0);
    const Settings saved = panel->save();
    QCOMPARE(saved.value(QStringLiteral("MailServerPort")), QVariant(0));

    panel->load(saved);
    QCOMPARE(panel->portNumber(), 25);
}

void TestEMailSenderWidgetSettings::encryptionIsFoundByItsExactWord_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("selected");
    for (const char *word : {"NONE", "SSL", "TLS"}) {
        QTest::addRow("%s", word) << QString::fromLatin1(word) << QString::fromLatin1(word);
    }
    for (const char *other : {"tls", "Tls", "ssl", "None", "", " TLS", "TLS ", "*", "T", ".*"}) {
        QTest::addRow("\"%s\"", other) << QString::fromLatin1(other) << QStringLiteral("NONE");
    }
}

void TestEMailSenderWidgetSettings::encryptionIsFoundByItsExactWord()
{
    QFETCH(QString, given);
    QFETCH(QString, selected);
    panel->setEncryption(QStringLiteral("SSL"));
    panel->setEncryption(given);
    QCOMPARE(panel->encryption(), selected);

    panel->setEncryption(QStringLiteral("SSL"));
    panel->load({{"MailWithEncryption", given}});
    QCOMPARE(panel->encryption(), selected);
}

void TestEMailSenderWidgetSettings::wrongTypesUnderEveryKey_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addRow("invalid") << QVariant();
    QTest::addRow("list") << QVariant(QVariantList({1, QStringLiteral("a")}));
    QTest::addRow("texts") << QVariant(QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    QTest::addRow("map") << QVariant(QVariantMap({{"a", 1}}));
    QTest::addRow("custom") << QVariant::fromValue(QSharedPointer<QObject>());
    QTest::addRow("null object") << QVariant::fromValue<QObject *>(nullptr);
    QTest::addRow("rectangle") << QVariant(QRect(1, 2, 3, 4));
    QTest::addRow("not a number") << QVariant(qQNaN());
    QTest::addRow("huge number") << QVariant(1e300);
    QTest::addRow("2^31") << QVariant(qint64(1) << 31);
    QTest::addRow("bytes") << QVariant(QByteArray("\0\xff\xfe", 3));
    QTest::addRow("no cipher") << QVariant(QStringLiteral("no cipher at all"));
}

void TestEMailSenderWidgetSettings::wrongTypesUnderEveryKey()
{
    QFETCH(QVariant, value);
    Settings settings;
    for (const QString &key : kKeys) {
        settings.insert(key, value);
    }

    panel->load(settings);

    const QString text = value.toString();
    QCOMPARE(panel->loginName(), text);
    QCOMPARE(panel->password(), QString());
    QCOMPARE(panel->smtpServerName(), text);
    QCOMPARE(panel->portNumber(), 25);
    QCOMPARE(panel->encryption(), QStringLiteral("NONE"));
    QCOMPARE(panel->senderName(), text);
    QCOMPARE(panel->mainDestinationAddress(), text);
    QCOMPARE(panel->copyDestincationAddress(), text);
    QCOMPARE(panel->save().size(), kKeys.size());
}

void TestEMailSenderWidgetSettings::portsOfOtherTypes_data()
{
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<int>("port");
    QTest::addRow("text") << QVariant(QStringLiteral("465")) << 465;
    QTest::addRow("bytes") << QVariant(QByteArray("465")) << 465;
    QTest::addRow("double") << QVariant(464.9) << 465;
    QTest::addRow("hexadecimal") << QVariant(QStringLiteral("0x1d1")) << 25;
    QTest::addRow("text with a fraction") << QVariant(QStringLiteral("465.5")) << 25;
    QTest::addRow("word") << QVariant(QStringLiteral("smtp")) << 25;
    QTest::addRow("long number") << QVariant(QString(1000, u'9')) << 25;
    QTest::addRow("true") << QVariant(true) << 1;
}

void TestEMailSenderWidgetSettings::portsOfOtherTypes()
{
    QFETCH(QVariant, given);
    QFETCH(int, port);

    panel->load({{"MailServerPort", given}});

    QCOMPARE(panel->portNumber(), port);
}

void TestEMailSenderWidgetSettings::textsOfAMegabyte()
{
    constexpr int kLineEditLength = 32767;
    constexpr qsizetype kMegabyte = 1048576;
    const QString text(kMegabyte, u'x');
    Settings settings;
    for (const QString &key : kKeys) {
        settings.insert(key, text);
    }
    settings.insert(kKeys[1], StoredSecret::encipher(text.toUtf8()));

    panel->load(settings);

    QCOMPARE(panel->loginName(), text.left(kLineEditLength));
    QCOMPARE(panel->copyDestincationAddress(), text.left(kLineEditLength));
    QCOMPARE(panel->password(), text);
    QString error;
    QVERIFY(!panel->checkConfigurationField(error));
    QVERIFY(error.size() < 200);
}

void TestEMailSenderWidgetSettings::controlCharactersAreKept()
{
    QString text = QStringLiteral("me@example.org\r\nBcc: other@example.org\r\n");
    for (char16_t c = 0; c < u' '; ++c) {
        text.append(c);
    }

    panel->setMainDestinationAddress(text);

    QCOMPARE(panel->mainDestinationAddress(), text);
    QCOMPARE(panel->save().value(QStringLiteral("MailMainDestination")).toString(), text);
}

void TestEMailSenderWidgetSettings::checkOfTheFields_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QString>("message");
    const auto add = [](const char *name, const QStringList &fields, const char *message) {
        QTest::addRow("%s", name) << fields << QString::fromLatin1(message);
    };
    const QString ok = QStringLiteral("a@b.c");
    const QString noAt = QStringLiteral("a.b.c");
    const QString noDot = QStringLiteral("a@b");
    const QString server = QStringLiteral("smtp");
    // Server, sender, receiver, copy receiver.
    add("all empty", {"", "", "", ""}, "");
    add("lone copy is not looked at", {"", "", "", "nonsense"}, "");
    add("no server", {"", ok, ok, ""}, "");
    add("all filled", {server, ok, ok, ok}, "");
    add("at and dot are enough", {"", "@.", ".@", "@."}, "");
    add("no trimming", {"", " @. ", " @.", " @. "}, "");
    const char *senderEmpty =
        "Field 'Sender' is empty, please add sender address which contain '.' and '@'.";
    add("server alone", {server, "", "", ""}, senderEmpty);
    add("receiver alone", {"", "", ok, ""}, senderEmpty);
    add("sender empty comes first", {server, "", noAt, noAt}, senderEmpty);
    add("sender of a blank", {"", " ", "", ""},
        "Missing a '@' in the field 'Sender', please add sender address which contain a '@'.");
    add("sender without at", {server, noAt, "", noAt},
        "Missing a '@' in the field 'Sender', please add sender address which contain a '@'.");
    add("sender without both", {server, "ab", ok, ""},
        "Missing a '@' in the field 'Sender', please add sender address which contain a '@'.");
    add("sender without dot", {server, noDot, "", noAt},
        "Missing a '.' in the field 'Sender', please add sender address which contain a '.'.");
    add("receiver empty", {server, ok, "", noAt},
        "Field 'To' is empty, please add receiver address which contain '.' and '@'.");
    add("receiver without at", {server, ok, noAt, noAt},
        "Missing a '@' in the field 'To', please add receiver address which contain a '@'.");
    add("receiver without dot", {"", ok, noDot, noAt},
        "Missing a '.' in the field 'To', please add receiver address which contain a '.'.");
    add("copy without at", {server, ok, ok, noAt},
        "Missing a '@' in the field 'cC', please add receiver address which contain a '@'.");
    add("copy of a blank", {server, ok, ok, " "},
        "Missing a '@' in the field 'cC', please add receiver address which contain a '@'.");
    add("copy without dot", {"", ok, ok, noDot},
        "Missing a '.' in the field 'cC', please add receiver address which contain a '.'.");
}

void TestEMailSenderWidgetSettings::checkOfTheFields()
{
    QFETCH(QStringList, fields);
    QFETCH(QString, message);
    panel->setLoginName(QStringLiteral("login"));
    panel->setPassword(QStringLiteral("password"));
    panel->setSMTPServerName(fields.at(0));
    panel->setSenderName(fields.at(1));
    panel->setMainDestinationAddress(fields.at(2));
    panel->setCopyDestinationAddress(fields.at(3));

    QString error;
    const bool isAcceptable = panel->checkConfigurationField(error);

    QCOMPARE(error, message);
    QCOMPARE(isAcceptable, message.isEmpty());
}

void TestEMailSenderWidgetSettings::acceptableFieldsLeaveTheErrorAsItWas()
{
    QString error = QStringLiteral("before");
    QVERIFY(panel->checkConfigurationField(error));
    QCOMPARE(error, QStringLiteral("before"));

    panel->load(fullSettings());
    QVERIFY(panel->checkConfigurationField(error));
    QCOMPARE(error, QStringLiteral("before"));
}

void TestEMailSenderWidgetSettings::acceptingShowsTheMessage()
{
    panel->setSMTPServerName(QStringLiteral("smtp.example.org"));
    QString error;
    panel->checkConfigurationField(error);
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        QCOMPARE(box.parentWidget(), panel.get());
        QCOMPARE(box.windowTitle(), QStringLiteral("Uncompleted Mail Configuration"));
        QCOMPARE(box.text(), error);
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QCOMPARE(box.standardButtons(), QMessageBox::Ok);
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    QVERIFY(!panel->checkFieldBeforeAccept());
}

void TestEMailSenderWidgetSettings::acceptingIsSilentWhenAllIsWell()
{
    const DialogDriver driver;
    QVERIFY(panel->checkFieldBeforeAccept());

    panel->load(fullSettings());
    QVERIFY(panel->checkFieldBeforeAccept());
}

int main(int argc, char **argv)
{
    return runTest<TestEMailSenderWidgetSettings>(argc, argv);
}

#include "tst_EMailSenderWidgetSettings.moc"
