#include "ReleaseRecord.h"

#include "TXJSONSerializer.h"
#include "TXUpdateService.h"
#include "TestBase.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTimeZone>
#include <QUrlQuery>

#include <limits>

namespace {

constexpr int kProduct = 7;
const QString kUrl = ReleaseRecord::kUrlKey;
const QString kPath = ReleaseRecord::kPathKey;
const QString kFilename = ReleaseRecord::kFilenameKey;
const QString kRevision = ReleaseRecord::kRevisionKey;
const QString kFilesize = ReleaseRecord::kFilesizeKey;

/// The record that the service sends as this JSON.
QVariantHash recordOf(const QByteArray &json)
{
    return TXJSONSerializer::deserialize(json).toHash();
}

QVariantHash fullRecord()
{
    return recordOf(R"({"ProductName": "Reader", "Version": "2.1", "Status": "Beta",
                        "Revision": 10453, "Description": "New <b>things</b>",
                        "Filename": "Prüf gerät.exe", "Filesize": 4294967296,
                        "ReleaseId": "r-17", "Extra": [1, 2]})");
}

QString downloadFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
}

QString userFoldersFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/user-dirs.dirs");
}

/// Writes down where this user's folders are.
bool writeUserFolders(const QByteArray &text)
{
    QFile file(userFoldersFile());
    return QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
        && file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

QUrlQuery queryOf(const QVariantHash &record)
{
    return QUrlQuery(QUrl(record.value(kUrl).toString()));
}

} // namespace

class TestReleaseRecord : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { TXUpdateService::setAuthority(QStringLiteral("h.example:8443")); }

    void finish() override
    {
        QFile::remove(userFoldersFile());
        TXUpdateService::setAuthority(QString());
    }

private slots:
    void emptyRecordStaysEmpty();
    void markEmptiesTheRecordWhateverItsValue_data();
    void markEmptiesTheRecordWhateverItsValue();
    void recordWithoutFilenameKeepsItsKeysOnly_data();
    void recordWithoutFilenameKeepsItsKeysOnly();
    void recordWithFilenameGetsUrlAndPath();
    void serviceNamesNoPlaces_data();
    void serviceNamesNoPlaces();
    void downloadUrlLetterForLetter();
    void downloadUrlTellsTheTimeInUtc();
    void dateIsThatOfTheCall();
    void releaseIdIsSentAsText_data();
    void releaseIdIsSentAsText();
    void noDownloadFolderLeavesUrlButNoPath();
    void downloadFolderIsThatOfTheUser();
    void filenameOfAnyType_data();
    void filenameOfAnyType();
    void revisionOfAnyType_data();
    void revisionOfAnyType();
    void filesizeOfAnyType_data();
    void filesizeOfAnyType();
    void titleIsMadeOfFourTexts_data();
    void titleIsMadeOfFourTexts();
    void newerMeansAGreaterRevision_data();
    void newerMeansAGreaterRevision();
};

void TestReleaseRecord::emptyRecordStaysEmpty()
{
    QCOMPARE(ReleaseRecord::completed({}, kProduct), QVariantHash());
}

void TestReleaseRecord::markEmptiesTheRecordWhateverItsValue_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("alone") << QByteArray(R"({"empty": "nodata"})");
    QTest::newRow("null") << QByteArray(R"({"empty": null, "Revision": 10453})");
    QTest::newRow("false") << QByteArray(R"({"empty": false, "Filename": "a.exe"})");
    QTest::newRow("empty text") << QByteArray(R"({"empty": "", "Filename": "a.exe"})");
}

void TestReleaseRecord::markEmptiesTheRecordWhateverItsValue()
{
    QFETCH(QByteArray, json);

    QCOMPARE(ReleaseRecord::completed(recordOf(json), kProduct), QVariantHash());
}

void TestReleaseRecord::recordWithoutFilenameKeepsItsKeysOnly_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("revision alone") << QByteArray(R"({"Revision": 10453})");
    QTest::newRow("all but the name") << QByteArray(
        R"({"ProductName": "P", "Version": "1", "Filesize": 12, "ReleaseId": 3, "x": null})");
    QTest::newRow("key in lower case") << QByteArray(R"({"filename": "setup.exe"})");
    QTest::newRow("mark in upper case") << QByteArray(R"({"Empty": "nodata"})");
}

void TestReleaseRecord::recordWithoutFilenameKeepsItsKeysOnly()
{
    QFETCH(QByteArray, json);
    const QVariantHash record = recordOf(json);
    QVERIFY(!record.isEmpty());

    QCOMPARE(ReleaseRecord::completed(record, kProduct), record);
}

void TestReleaseRecord::recordWithFilenameGetsUrlAndPath()
{
    const QVariantHash record = fullRecord();

    QVariantHash completed = ReleaseRecord::completed(record, kProduct);

    QCOMPARE(completed.value(kPath).toString(),
             QString(downloadFolder() + QStringLiteral("/Prüf gerät.exe")));
    QVERIFY(completed.value(kUrl).toString().startsWith(
        QStringLiteral("https://h.example:8443/download?CurrentRevision=10452&CurrentOS=win64"
                       "&CurrentProductType=7&ReleaseId=r-17&Date=")));
    QCOMPARE(completed.value(kUrl).typeId(), int(QMetaType::QString));
    completed.remove(kUrl);
    completed.remove(kPath);
    QCOMPARE(completed, record);
}

void TestReleaseRecord::serviceNamesNoPlaces_data()
{
    QTest::addColumn<QVariant>("filename");
    QTest::addColumn<QString>("name");
    QTest::newRow("no file name") << QVariant() << QString();
    QTest::newRow("empty") << QVariant("") << QString();
    QTest::newRow("dot") << QVariant(".") << QString();
    QTest::newRow("two dots") << QVariant("..") << QString();
    QTest::newRow("folder") << QVariant("../") << QString();
    QTest::newRow("up") << QVariant("../../.ssh/authorized_keys") << "authorized_keys";
    QTest::newRow("up by backslashes") << QVariant("..\\..\\evil.exe") << "evil.exe";
    QTest::newRow("absolute") << QVariant("/etc/passwd") << "passwd";
    QTest::newRow("ordinary") << QVariant("setup.exe") << "setup.exe";
}

void TestReleaseRecord::serviceNamesNoPlaces()
{
    QFETCH(QVariant, filename);
    QFETCH(QString, name);
    QVariantHash record{{kUrl, QStringLiteral("https://evil.example/x")},
                        {kPath, QStringLiteral("/home/user/thesis.odt")},
                        {kRevision, 10453}};
    if (filename.isValid()) {
        record.insert(kFilename, filename);
    }

    const QVariantHash completed = ReleaseRecord::completed(record, kProduct);

    QCOMPARE(completed.contains(kUrl), !name.isEmpty());
    QCOMPARE(completed.contains(kPath), !name.isEmpty());
    QCOMPARE(completed.value(kFilename), filename);
    QCOMPARE(completed.value(kRevision), QVariant(10453));
    if (!name.isEmpty()) {
        QCOMPARE(QUrl(completed.value(kUrl).toString()).host(), QStringLiteral("h.example"));
        QCOMPARE(completed.value(kPath).toString(), QString(downloadFolder() + u'/' + name));
    }
}

void TestReleaseRecord::downloadUrlLetterForLetter()
{
    const QDateTime now(QDate(2026, 11, 21), QTime(1, 2, 3, 456), Qt::UTC);

    QCOMPARE(ReleaseRecord::downloadUrl(fullRecord(), -1, now).toString(QUrl::FullyEncoded),
             QStringLiteral("https://h.example:8443/download?CurrentRevision=10452&CurrentOS=win64"
                            "&CurrentProductType=-1&ReleaseId=r-17&Date=2026-11-21T01:02:03Z"));
}

void TestReleaseRecord::downloadUrlTellsTheTimeInUtc()
{
    const QDateTime now(QDate(2026, 11, 21), QTime(1, 2, 3), QTimeZone(7200));

    const QUrl url = ReleaseRecord::downloadUrl({}, kProduct, now);

    QCOMPARE(QUrlQuery(url).queryItemValue(QStringLiteral("Date")),
             QStringLiteral("2026-11-20T23:02:03Z"));
}

void TestReleaseRecord::dateIsThatOfTheCall()
{
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    const QVariantHash completed = ReleaseRecord::completed(fullRecord(), kProduct);
    const qint64 after = QDateTime::currentSecsSinceEpoch();

    const QString text = queryOf(completed).queryItemValue(QStringLiteral("Date"));
    QVERIFY2(text.endsWith(u'Z'), qPrintable(text));
    const qint64 date = QDateTime::fromString(text, Qt::ISODate).toSecsSinceEpoch();
    QVERIFY(date >= before && date <= after);
}

void TestReleaseRecord::releaseIdIsSentAsText_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("expected");
    QTest::newRow("text") << QByteArray(R"("r-17")") << "r-17";
    QTest::newRow("number") << QByteArray("9007199254740993") << "9007199254740993";
    QTest::newRow("fraction") << QByteArray("1.5") << "1.5";
    QTest::newRow("huge") << QByteArray("1e300") << "1e+300";
    QTest::newRow("bool") << QByteArray("true") << "true";
    QTest::newRow("null") << QByteArray("null") << "";
    QTest::newRow("list") << QByteArray(R"(["r"])") << "";
    QTest::newRow("object") << QByteArray(R"({"a": 1})") << "";
    QTest::newRow("signs") << QByteArray(R"("a&b=c#d+e%20f g")") << "a&b=c#d+e%20f g";
}

void TestReleaseRecord::releaseIdIsSentAsText()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, expected);
    const QVariantHash record = recordOf(R"({"Filename": "a", "ReleaseId": )" + json + "}");

    const QUrlQuery query = queryOf(ReleaseRecord::completed(record, kProduct));

    QCOMPARE(query.queryItems().size(), 5);
    QCOMPARE(query.queryItemValue(QStringLiteral("ReleaseId"), QUrl::FullyDecoded), expected);
}

void TestReleaseRecord::noDownloadFolderLeavesUrlButNoPath()
{
    QVERIFY(writeUserFolders("XDG_DOWNLOAD_DIR=\n"));
    QVERIFY(downloadFolder().isEmpty());

    const QVariantHash completed = ReleaseRecord::completed(fullRecord(), kProduct);

    QVERIFY(completed.contains(kUrl));
    QVERIFY(!completed.contains(kPath));
}

void TestReleaseRecord::downloadFolderIsThatOfTheUser()
{
    QVERIFY(writeUserFolders("XDG_DOWNLOAD_DIR=\"$HOME/From outside\"\n"));

    const QVariantHash completed = ReleaseRecord::completed(fullRecord(), kProduct);

    QCOMPARE(completed.value(kPath).toString(),
             QString(QDir::homePath() + QStringLiteral("/From outside/Prüf gerät.exe")));
}

void TestReleaseRecord::filenameOfAnyType_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("name");
    QTest::newRow("text") << QByteArray(R"("setup.exe")") << "setup.exe";
    QTest::newRow("number") << QByteArray("5") << "5";
    QTest::newRow("bool") << QByteArray("true") << "true";
    QTest::newRow("null") << QByteArray("null") << "";
    QTest::newRow("list") << QByteArray(R"(["setup.exe"])") << "";
    QTest::newRow("object") << QByteArray(R"({"a": "setup.exe"})") << "";
    QTest::newRow("NUL character") << QByteArray(R"("setup.exe\u0000.txt")") << "";
}

void TestReleaseRecord::filenameOfAnyType()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, name);
    const QVariantHash record = recordOf(R"({"Filename": )" + json + "}");
    QVERIFY(record.contains(kFilename));

    QCOMPARE(ReleaseRecord::fileName(record), name);
    QCOMPARE(ReleaseRecord::completed(record, kProduct).contains(kUrl), !name.isEmpty());
}

void TestReleaseRecord::revisionOfAnyType_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("expected");
    QTest::newRow("number") << QByteArray("10453") << 10453;
    QTest::newRow("text") << QByteArray(R"("10453")") << 10453;
    QTest::newRow("text that is no number") << QByteArray(R"("new")") << 0;
    QTest::newRow("text in base 16") << QByteArray(R"("0x2900")") << 0;
    QTest::newRow("text with a fraction") << QByteArray(R"("10453.0")") << 0;
    QTest::newRow("empty text") << QByteArray(R"("")") << 0;
    QTest::newRow("negative") << QByteArray("-5") << -5;
    QTest::newRow("fraction goes up") << QByteArray("10452.6") << 10453;
    QTest::newRow("fraction goes down") << QByteArray("10452.4") << 10452;
    QTest::newRow("greatest") << QByteArray("2147483647") << std::numeric_limits<int>::max();
    QTest::newRow("least") << QByteArray("-2147483648") << std::numeric_limits<int>::min();
    QTest::newRow("beyond") << QByteArray("2147483648") << 0;
    QTest::newRow("beyond, below") << QByteArray("-2147483649") << 0;
    QTest::newRow("2^32 and more") << QByteArray("4294977749") << 0;
    QTest::newRow("2^32 and more, text") << QByteArray(R"("4294977749")") << 0;
    QTest::newRow("2^40") << QByteArray("1099511627776") << 0;
    QTest::newRow("2^64 less 1") << QByteArray("18446744073709551615") << 0;
    QTest::newRow("2^64 and more") << QByteArray("18446744073709562069") << 0;
    QTest::newRow("1e300") << QByteArray("1e300") << 0;
    QTest::newRow("-1e300") << QByteArray("-1e300") << 0;
    QTest::newRow("text of many digits") << QByteArray("\"" + QByteArray(1000, '9') + "\"") << 0;
    QTest::newRow("true") << QByteArray("true") << 1;
    QTest::newRow("null") << QByteArray("null") << 0;
    QTest::newRow("list") << QByteArray("[10453]") << 0;
    QTest::newRow("object") << QByteArray(R"({"a": 10453})") << 0;
}

void TestReleaseRecord::revisionOfAnyType()
{
    QFETCH(QByteArray, json);
    QFETCH(int, expected);
    const QVariantHash record = recordOf(R"({"Revision": )" + json + "}");
    QVERIFY(record.contains(kRevision));

    QCOMPARE(ReleaseRecord::revision(record), expected);
}

void TestReleaseRecord::filesizeOfAnyType_data()
{
    QTest::addColumn<QVariant>("size");
    QTest::addColumn<qint64>("expected");
    constexpr qint64 kMost = std::numeric_limits<qint64>::max();
    constexpr qint64 kLeast = std::numeric_limits<qint64>::min();
    QTest::newRow("missing") << QVariant() << qint64(0);
    QTest::newRow("number") << QVariant(qint64(5'000'000'000)) << qint64(5'000'000'000);
    QTest::newRow("text") << QVariant("5000000000") << qint64(5'000'000'000);
    QTest::newRow("other text") << QVariant("5 GB") << qint64(0);
    QTest::newRow("negative") << QVariant(-1) << qint64(-1);
    QTest::newRow("greatest") << QVariant(kMost) << kMost;
    QTest::newRow("least") << QVariant(kLeast) << kLeast;
    QTest::newRow("beyond") << QVariant(quint64(kMost) + 1) << qint64(0);
    QTest::newRow("unsigned") << QVariant(quint64(kMost)) << kMost;
    QTest::newRow("real beyond") << QVariant(0x1p63) << qint64(0);
    QTest::newRow("real, least") << QVariant(-0x1p63) << kLeast;
    QTest::newRow("real, beyond the least") << QVariant(-0x1p64) << qint64(0);
    QTest::newRow("1e300") << QVariant(1e300) << qint64(0);
    QTest::newRow("infinite") << QVariant(std::numeric_limits<double>::infinity()) << qint64(0);
    QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN())
                                  << qint64(0);
    QTest::newRow("real of single precision") << QVariant(1e30F) << qint64(0);
    QTest::newRow("null") << QVariant::fromValue(nullptr) << qint64(0);
    QTest::newRow("list") << QVariant(QVariantList{5}) << qint64(0);
}

void TestReleaseRecord::filesizeOfAnyType()
{
    QFETCH(QVariant, size);
    QFETCH(qint64, expected);
    const QVariantHash record = size.isValid() ? QVariantHash{{kFilesize, size}} : QVariantHash();

    QCOMPARE(ReleaseRecord::fileSize(record), expected);
}

void TestReleaseRecord::titleIsMadeOfFourTexts_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("title");
    const auto add = [](const char *name, const char *json, const char *title) {
        QTest::newRow(name) << QByteArray(json) << QString::fromUtf8(title);
    };
    const QByteArray same = R"({"ProductName": "Reader", "Version": "2.1")";
    const auto addSame = [&](const char *name, const char *rest, const char *title) {
        add(name, QByteArray(same + rest + "}").constData(), title);
    };
    addSame("all", R"(, "Status": "Beta", "Revision": 10453)", "Reader 2.1 Beta (rev 10453)");
    addSame("no status", R"(, "Revision": 10453)", "Reader 2.1 (rev 10453)");
    addSame("no revision", R"(, "Status": "Beta")", "Reader 2.1 Beta");
    addSame("neither", "", "Reader 2.1");
    addSame("final", R"(, "Status": "Finale", "Revision": 1)", "Reader 2.1 (rev 1)");
    addSame("final in lower case", R"(, "Status": "finale")", "Reader 2.1 finale");
    addSame("final in upper case", R"(, "Status": "FINALE")", "Reader 2.1 FINALE");
    addSame("final in English", R"(, "Status": "Final")", "Reader 2.1 Final");
    addSame("final and a blank", R"(, "Status": "Finale ")", "Reader 2.1 Finale ");
    addSame("empty status", R"(, "Status": "")", "Reader 2.1");
    addSame("null status", R"(, "Status": null)", "Reader 2.1");
    addSame("number for a status", R"(, "Status": 3)", "Reader 2.1 3");
    addSame("revision 0", R"(, "Revision": 0)", "Reader 2.1 (rev 0)");
    addSame("revision as text", R"(, "Revision": "r7")", "Reader 2.1 (rev r7)");
    addSame("empty revision", R"(, "Revision": "")", "Reader 2.1");
    addSame("null revision", R"(, "Revision": null)", "Reader 2.1");
    addSame("revision of no text", R"(, "Revision": [1])", "Reader 2.1");
    add("nothing", "{}", " ");
    add("no version", R"({"ProductName": "Reader"})", "Reader ");
    add("placeholders",
        R"({"ProductName": "%2 %1", "Version": "%1", "Status": "%1", "Revision": "%1 %2"})",
        "%2 %1 %1 %1 (rev %1 %2)");
    add("markup", R"({"ProductName": "<b>R</b>", "Version": "1"})", "<b>R</b> 1");
}

void TestReleaseRecord::titleIsMadeOfFourTexts()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, title);

    QCOMPARE(ReleaseRecord::title(recordOf(json)), title);
}

void TestReleaseRecord::newerMeansAGreaterRevision_data()
{
    QTest::addColumn<QVariant>("revision");
    QTest::addColumn<bool>("isNewer");
    QTest::newRow("missing") << QVariant() << false;
    QTest::newRow("older") << QVariant(10451) << false;
    QTest::newRow("this one") << QVariant(10452) << false;
    QTest::newRow("newer") << QVariant(10453) << true;
    QTest::newRow("newer as text") << QVariant("10453") << true;
    QTest::newRow("newer only letter by letter") << QVariant("9") << false;
    QTest::newRow("2^32 and a newer one") << QVariant((qint64(1) << 32) + 10453) << false;
    QTest::newRow("negative") << QVariant(-10453) << false;
}

void TestReleaseRecord::newerMeansAGreaterRevision()
{
    QFETCH(QVariant, revision);
    QFETCH(bool, isNewer);
    const QVariantHash record =
        revision.isValid() ? QVariantHash{{kRevision, revision}} : QVariantHash();

    QCOMPARE(ReleaseRecord::isNewer(record), isNewer);
}

int main(int argc, char **argv)
{
    return runTest<TestReleaseRecord>(argc, argv);
}

#include "tst_ReleaseRecord.moc"
