#include "TXDataCrypt.h"

#include "HelperProcess.h"
#include "TXError.h"
#include "TestBase.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#include <QThread>

#include <array>
#include <memory>
#include <vector>

namespace {

QString keyFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/TXGUICommon/datacrypt.key");
}

} // namespace

class TestTXDataCrypt : public TestBase
{
    Q_OBJECT

private slots:
    void decryptUndoesEncrypt_data();
    void decryptUndoesEncrypt();
    void resultIsALineOfPrintableAscii();
    void resultSurvivesTheWayThroughSettings();
    void sameDataGivesAnotherResultEachTime();
    void clearDataDoesNotShow();
    void otherProcessesReadAndWriteTheSame();
    void everyChangeIsNoticed();
    void everythingElseIsAnError_data();
    void everythingElseIsAnError();
    void damagedKeyFileIsAnErrorInANewProcess();
    void threadsMayEncipherAtOnce();
};

void TestTXDataCrypt::decryptUndoesEncrypt_data()
{
    QTest::addColumn<QByteArray>("data");
    QByteArray everyByte;
    for (int i = 0; i < 256; ++i) {
        everyByte += char(i);
    }
    QTest::addRow("empty") << QByteArray("");
    QTest::addRow("null") << QByteArray();
    QTest::addRow("one byte") << QByteArray("x");
    QTest::addRow("UTF-8") << QByteArray("p\xc3\xa4ssw\xc3\xb6rd");
    QTest::addRow("every byte") << everyByte;
    QTest::addRow("large") << QByteArray(3'000'001, 'x');
}

void TestTXDataCrypt::decryptUndoesEncrypt()
{
    QFETCH(QByteArray, data);
    TXError error;

    const QByteArray enciphered = TXDataCrypt::encrypt(data, &error);

    QVERIFY(!enciphered.isEmpty());
    QCOMPARE(TXDataCrypt::decrypt(enciphered, &error), data);
    QVERIFY(!error.isValid());
    QCOMPARE(TXDataCrypt::decrypt(TXDataCrypt::encrypt(data, nullptr), nullptr), data);
}

void TestTXDataCrypt::resultIsALineOfPrintableAscii()
{
    for (int length = 0; length < 50; ++length) {
        const QByteArray enciphered = TXDataCrypt::encrypt(QByteArray(length, '\xff'), nullptr);
        QVERIFY(enciphered.startsWith("TXC1."));
        for (const char character : enciphered) {
            QVERIFY(character > ' ' && character <= '~');
        }
    }
}

void TestTXDataCrypt::resultSurvivesTheWayThroughSettings()
{
    const QString stored = QString::fromLatin1(TXDataCrypt::encrypt("secret", nullptr));
    {
        QSettings settings;
        settings.setValue(QStringLiteral("Password"), stored);
    }

    const QString read = QSettings().value(QStringLiteral("Password")).toString();

    QCOMPARE(TXDataCrypt::decrypt(read.toUtf8(), nullptr), QByteArray("secret"));
}

void TestTXDataCrypt::sameDataGivesAnotherResultEachTime()
{
    QVERIFY(TXDataCrypt::encrypt("secret", nullptr) != TXDataCrypt::encrypt("secret", nullptr));
}

void TestTXDataCrypt::clearDataDoesNotShow()
{
    const QByteArray clear(64, 'A');
    const QByteArray enciphered = TXDataCrypt::encrypt(clear, nullptr);

    QVERIFY(!QByteArray::fromBase64(enciphered.mid(5), QByteArray::Base64UrlEncoding)
                 .contains(clear.left(4)));
}

void TestTXDataCrypt::otherProcessesReadAndWriteTheSame()
{
    const QByteArray ours = TXDataCrypt::encrypt("ours", nullptr);
    const QByteArray theirs = askHelper("encrypt theirs");

    QCOMPARE(askHelper("decrypt " + ours), QByteArray("ours"));
    QCOMPARE(TXDataCrypt::decrypt(theirs, nullptr), QByteArray("theirs"));
}

void TestTXDataCrypt::everyChangeIsNoticed()
{
    const QByteArray enciphered = TXDataCrypt::encrypt("password", nullptr);
    // Of this length, so that the last digit has no bits to spare.
    QCOMPARE((enciphered.size() - 5) % 4, 0);
    for (qsizetype i = 0; i < enciphered.size(); ++i) {
        QByteArray changed = enciphered;
        changed[i] = changed.at(i) == 'A' ? 'B' : 'A';
        TXError error;
        QCOMPARE(TXDataCrypt::decrypt(changed, &error), QByteArray());
        QVERIFY(error.isValid());
        QCOMPARE(TXDataCrypt::decrypt(enciphered.left(i), &error), QByteArray());
    }
}

void TestTXDataCrypt::everythingElseIsAnError_data()
{
    QTest::addColumn<QByteArray>("data");
    const QByteArray enciphered = TXDataCrypt::encrypt("secret", nullptr);
    QTest::addRow("nothing") << QByteArray();
    QTest::addRow("clear text") << QByteArray("secret");
    QTest::addRow("only the mark") << QByteArray("TXC1.");
    QTest::addRow("no box") << QByteArray("TXC1.AAAA");
    QTest::addRow("a box of zeros") << QByteArray("TXC1.") + QByteArray(100, 'A');
    QTest::addRow("another version") << "TXC2." + enciphered.mid(5);
    QTest::addRow("lower case") << enciphered.toLower();
    QTest::addRow("blank before") << ' ' + enciphered;
    QTest::addRow("line end after") << enciphered + '\n';
    QTest::addRow("NUL after") << enciphered + '\0';
    QTest::addRow("twice") << enciphered + enciphered;
    QTest::addRow("not ASCII") << QByteArray("TXC1.\xff\xfe") + enciphered.mid(7);
}

void TestTXDataCrypt::everythingElseIsAnError()
{
    QFETCH(QByteArray, data);
    TXError error;

    QCOMPARE(TXDataCrypt::decrypt(data, &error), QByteArray());

    QCOMPARE(error.domain, QStringLiteral("DataCryptErrorDomain"));
    QCOMPARE(error.code, 0);
    QVERIFY(!error.getLocalizedDescription().isEmpty());
    QVERIFY(!error.getLocalizedDescription().contains(QStringLiteral("secret")));
    QCOMPARE(TXDataCrypt::decrypt(data, nullptr), QByteArray());
}

void TestTXDataCrypt::damagedKeyFileIsAnErrorInANewProcess()
{
    const QByteArray enciphered = TXDataCrypt::encrypt("secret", nullptr);
    const QString aside = keyFile() + QStringLiteral(".aside");
    QVERIFY(QFile::rename(keyFile(), aside));
    QFile damaged(keyFile());
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.close();

    const QByteArray answers = askHelper("encrypt x") + askHelper("decrypt " + enciphered);
    const qint64 sizeAfterwards = damaged.size();

    QVERIFY(damaged.remove());
    QVERIFY(QFile::rename(aside, keyFile()));
    QCOMPARE(answers, QByteArray());
    QCOMPARE(sizeAfterwards, 0);
    QCOMPARE(askHelper("decrypt " + enciphered), QByteArray("secret"));
}

void TestTXDataCrypt::threadsMayEncipherAtOnce()
{
    constexpr int kThreads = 8;
    std::array<int, kThreads> right = {};
    std::vector<std::unique_ptr<QThread>> threads;
    for (int &count : right) {
        threads.emplace_back(QThread::create([&count] {
            for (int i = 0; i < 200; ++i) {
                const QByteArray data = QByteArray::number(i);
                const QByteArray enciphered = TXDataCrypt::encrypt(data, nullptr);
                count += TXDataCrypt::decrypt(enciphered, nullptr) == data ? 1 : 0;
            }
        }));
        threads.back()->start();
    }
    for (const auto &thread : threads) {
        QVERIFY(thread->wait());
    }

    for (const int count : right) {
        QCOMPARE(count, 200);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXDataCrypt>(argc, argv);
}

#include "tst_TXDataCrypt.moc"
