#include "FolderLogEntry.h"
#include "FolderReport.h"
#include "FolderScan.h"
#include "GalleryLanguages.h"
#include "TestBase.h"
#include "TestTranslations.h"

#include "TXLogItem.h"

namespace {

QStringList textsBelow(const TXLogItem &item)
{
    QStringList texts;
    for (const auto &child : item.children) {
        texts.append(
            QStringLiteral("%1 %2").arg(child->level).arg(child->message.toString(nullptr)));
    }
    return texts;
}

FolderReport sampleReport()
{
    FolderReport report;
    report.label = "inks/%1";
    report.fileCount = 1234;
    report.totalBytes = 2048;
    report.newestFile = "cyan";
    report.newestTime = QDateTime(QDate(2020, 5, 4), QTime(3, 2), Qt::UTC);
    return report;
}

} // namespace

class TestFolderLogEntry : public TestBase
{
    Q_OBJECT

private slots:
    void folderIsAnEntryWithItsNumbersBelow();
    void findingsHaveTheirOwnLevels();
    void folderThatCannotBeReadHasNoNumbers();
    void textIsTranslatedWhenItIsShown();
    void scanEndsWithItsSums();
    void cancelledScanSaysSo();

protected:
    void prepare() override { QLocale::setDefault(QLocale("en")); }
    void finish() override { QLocale::setDefault(QLocale::system()); }
};

void TestFolderLogEntry::folderIsAnEntryWithItsNumbersBelow()
{
    const QString time = QLocale().toString(sampleReport().newestTime, QLocale::ShortFormat);

    const auto item = makeFolderLogEntry(sampleReport());

    QCOMPARE(item->level, int(TXLogItem::Information));
    QCOMPARE(item->message.toString(nullptr), "Folder inks/%1");
    QCOMPARE(
        textsBelow(*item),
        QStringList({"1 Files: 1,234", "1 Total size: 2.00 KiB", "1 Changed last: cyan, " + time}));
}

void TestFolderLogEntry::findingsHaveTheirOwnLevels()
{
    FolderReport report = sampleReport();
    report.addFinding(FolderFinding::BrokenLink, "link");
    report.addFinding(FolderFinding::UnreadableFile, "secret");
    report.addFinding(FolderFinding::LongName, "long");

    const auto item = makeFolderLogEntry(report);

    QCOMPARE(item->level, int(TXLogItem::Error));
    QCOMPARE(textsBelow(*item).mid(0, 3),
             QStringList(
                 {"2 Broken link: link", "3 No right to read: secret", "2 Very long name: long"}));
    QCOMPARE(item->children.size(), 6);
}

void TestFolderLogEntry::folderThatCannotBeReadHasNoNumbers()
{
    FolderReport report;
    report.label = "nowhere";
    report.addFinding(FolderFinding::MissingFolder);

    const auto item = makeFolderLogEntry(report);

    QCOMPARE(item->level, int(TXLogItem::Error));
    QCOMPARE(textsBelow(*item), QStringList("3 The folder does not exist."));
}

void TestFolderLogEntry::textIsTranslatedWhenItIsShown()
{
    const auto item = makeFolderLogEntry(sampleReport());
    GalleryLanguages languages(testTranslationsFolder());

    QVERIFY(languages.use("fr"));

    QCOMPARE(item->message.toString(nullptr), "Dossier inks/%1");
}

void TestFolderLogEntry::scanEndsWithItsSums()
{
    const auto item = makeScanLogEntry({12, 3456, 1024, 2, 1}, 1500, true);

    QCOMPARE(item->level, int(TXLogItem::Information));
    QCOMPARE(item->message.toString(nullptr), "Scan finished after 1.50 s");
    QCOMPARE(textsBelow(*item),
             QStringList({"1 Folders: 12", "1 Files: 3,456", "1 Total size: 1.00 KiB",
                          "1 Warnings: 2", "1 Errors: 1"}));
}

void TestFolderLogEntry::cancelledScanSaysSo()
{
    const auto item = makeScanLogEntry({}, 10, false);

    QCOMPARE(item->message.toString(nullptr), "Scan cancelled after 0.01 s");
}

int main(int argc, char **argv)
{
    return runTest<TestFolderLogEntry>(argc, argv);
}

#include "tst_FolderLogEntry.moc"
