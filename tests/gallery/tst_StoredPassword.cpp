#include "StoredPassword.h"
#include "TestBase.h"

namespace {

// Of "secret", as md5sum tells it.
const QString kDigest = QStringLiteral("5ebe2294ecd0e0f08eab7690d2a6ee69");

} // namespace

class TestStoredPassword : public TestBase
{
    Q_OBJECT

private slots:
    void formDecidesWhatIsStored();
    void onlyThePasswordMatches_data();
    void onlyThePasswordMatches();
    void nothingMatchesWhenNothingIsStored();
    void plainPasswordBecomesItsDigest();
    void digestIsForgottenWhenPlainTextIsWanted();
    void sameFormChangesNothing();
};

void TestStoredPassword::formDecidesWhatIsStored()
{
    StoredPassword digest;
    digest.set("secret");
    StoredPassword plain = {QString(), false};
    plain.set("secret");

    QCOMPARE(digest.text, kDigest);
    QCOMPARE(plain.text, "secret");
}

void TestStoredPassword::onlyThePasswordMatches_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("useHash");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("isMatch");
    QTest::newRow("digest, right") << kDigest << true << "secret" << true;
    QTest::newRow("digest, other case") << kDigest << true << "Secret" << false;
    QTest::newRow("digest, the digest itself") << kDigest << true << kDigest << false;
    QTest::newRow("digest, empty") << kDigest << true << "" << false;
    QTest::newRow("plain, right") << "Lab\u00b5" << false << "Lab\u00b5" << true;
    QTest::newRow("plain, other case") << "secret" << false << "SECRET" << false;
    QTest::newRow("plain, more behind it") << "secret" << false << "secret " << false;
    QTest::newRow("digest of bytes in UTF-8")
        << "dee84412cb07cc3eed0fb4b3361c0c48" << true << "Lab\u00b5" << true;
}

void TestStoredPassword::onlyThePasswordMatches()
{
    QFETCH(QString, stored);
    QFETCH(bool, useHash);
    QFETCH(QString, typed);
    const StoredPassword password = {stored, useHash};

    QTEST(password.matches(typed), "isMatch");
}

void TestStoredPassword::nothingMatchesWhenNothingIsStored()
{
    for (const bool useHash : {true, false}) {
        StoredPassword password = {QString(), useHash};
        QVERIFY(!password.isSet());
        QVERIFY(!password.matches(QString()));
        QVERIFY(!password.matches("secret"));
        password.set(QString());
        QVERIFY(!password.isSet());
    }
}

void TestStoredPassword::plainPasswordBecomesItsDigest()
{
    StoredPassword password = {"secret", false};

    password.setUseHash(true);

    QCOMPARE(password.text, kDigest);
    QVERIFY(password.matches("secret"));
}

void TestStoredPassword::digestIsForgottenWhenPlainTextIsWanted()
{
    StoredPassword password = {kDigest, true};

    password.setUseHash(false);

    QVERIFY(!password.isSet());
    QVERIFY(!password.useHash);
}

void TestStoredPassword::sameFormChangesNothing()
{
    StoredPassword digest = {kDigest, true};
    digest.setUseHash(true);
    QCOMPARE(digest.text, kDigest);

    StoredPassword plain = {"secret", false};
    plain.setUseHash(false);
    QCOMPARE(plain.text, "secret");
}

int main(int argc, char **argv)
{
    return runTest<TestStoredPassword>(argc, argv);
}

#include "tst_StoredPassword.moc"
