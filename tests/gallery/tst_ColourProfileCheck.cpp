#include "ColourProfileCheck.h"
#include "TestBase.h"

#include "TXError.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <memory>

namespace {

QByteArray soundProfile()
{
    QByteArray bytes(200, '\0');
    qToBigEndian<quint32>(200, bytes.data());
    bytes[8] = 4;
    bytes.replace(12, 4, "prtr");
    bytes.replace(36, 4, "acsp");
    return bytes;
}

QStringList reasonsOf(const TXError &error)
{
    QStringList reasons;
    for (const TXError &reason : error.subErrors) {
        reasons.append(reason.getLocalizedDescription());
    }
    return reasons;
}

} // namespace

class TestColourProfileCheck : public TestBase
{
    Q_OBJECT

private slots:
    void soundProfileLeavesTheErrorAlone();
    void eachMistakeIsAReason_data();
    void eachMistakeIsAReason();
    void allReasonsAreTold();
    void missingFileTellsTheReasonOfTheSystem();
    void folderIsNoProfile();
    void reasonMayBeUnwanted();

protected:
    void prepare() override { folder = std::make_unique<QTemporaryDir>(); }
    void finish() override { folder.reset(); }

private:
    QString write(const QByteArray &bytes) const;

    std::unique_ptr<QTemporaryDir> folder;
};

QString TestColourProfileCheck::write(const QByteArray &bytes) const
{
    QFile file(folder->filePath("press.icc"));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName()
                                                                                : QString();
}

void TestColourProfileCheck::soundProfileLeavesTheErrorAlone()
{
    TXError error;
    error.domain = "mine";

    QVERIFY(checkColourProfile(write(soundProfile()), &error));

    QCOMPARE(error.domain, "mine");
    QVERIFY(error.subErrors.isEmpty());
}

void TestColourProfileCheck::eachMistakeIsAReason_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const QByteArray sound = soundProfile();
    QTest::newRow("empty") << QByteArray() << "The file ends within the header, after 0 bytes.";
    QTest::newRow("one byte short")
        << sound.left(127) << "The file ends within the header, after 127 bytes.";
    QTest::newRow("cut off after the header")
        << sound.left(128) << "200 bytes by the header, 128 in the file.";
    QTest::newRow("longer than told") << sound + "x"
                                      << "200 bytes by the header, 201 in the file.";
    QTest::newRow("signature")
        << QByteArray(sound).replace(36, 4, "ac\x01\xff")
        << QStringLiteral("The signature is \"ac%1%1\" instead of \"acsp\".").arg(QChar(0xb7));
    QTest::newRow("version 1") << QByteArray(sound).replace(8, 1, "\x01")
                               << "Version 1 is not supported.";
    QTest::newRow("version 5") << QByteArray(sound).replace(8, 1, "\x05")
                               << "Version 5 is not supported.";
    QTest::newRow("class") << QByteArray(sound).replace(12, 4, "lamp")
                           << "The device class \"lamp\" is unknown.";
}

void TestColourProfileCheck::eachMistakeIsAReason()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    TXError error;

    QVERIFY(!checkColourProfile(write(bytes), &error));

    QCOMPARE(error.domain, "ColourProfileErrorDomain");
    QCOMPARE(error.getLocalizedDescription(), "\"press.icc\" cannot be used as a colour profile.");
    QCOMPARE(reasonsOf(error), QStringList(reason));
}

void TestColourProfileCheck::allReasonsAreTold()
{
    TXError error;

    QVERIFY(!checkColourProfile(write(QByteArray(128, '!')), &error));

    QCOMPARE(error.subErrors.size(), 4);
}

void TestColourProfileCheck::missingFileTellsTheReasonOfTheSystem()
{
    TXError error;

    QVERIFY(!checkColourProfile(folder->filePath("nowhere.icc"), &error));

    QCOMPARE(reasonsOf(error), QStringList("The file cannot be opened."));
    QCOMPARE(reasonsOf(error.subErrors.first()), QStringList("No such file or directory"));
}

void TestColourProfileCheck::folderIsNoProfile()
{
    TXError error;

    QVERIFY(!checkColourProfile(folder->path(), &error));

    QCOMPARE(error.subErrors.size(), 1);
}

void TestColourProfileCheck::reasonMayBeUnwanted()
{
    QVERIFY(!checkColourProfile(folder->filePath("nowhere.icc"), nullptr));
}

int main(int argc, char **argv)
{
    return runTest<TestColourProfileCheck>(argc, argv);
}

#include "tst_ColourProfileCheck.moc"
