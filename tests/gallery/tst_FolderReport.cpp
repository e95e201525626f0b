#include "FolderReport.h"
#include "TestBase.h"

#include "TXLogItem.h"

#include <QTemporaryDir>

namespace {

const std::atomic_bool kGoOn = false;

QList<FolderFinding::Kind> kindsOf(const FolderReport &report)
{
    QList<FolderFinding::Kind> kinds;
    for (const FolderFinding &finding : report.findings) {
        kinds.append(finding.kind);
    }
    return kinds;
}

} // namespace

class TestFolderReport : public TestBase
{
    Q_OBJECT

private slots:
    void filesAreCountedWithTheirSizes();
    void fileChangedLastIsNamed();
    void subFoldersAreListedAndNotCounted();
    void hiddenFilesCount();
    void emptyFolderIsInformation();
    void missingFolderIsAnError();
    void fileInPlaceOfAFolderIsAnError();
    void brokenLinkIsAWarning();
    void linkToAFolderIsNotWalkedDown();
    void veryLongNameIsAWarning();
    void longestFittingNameIsNone();
    void withoutRightsIsAnError();
    void findingsAreLimitedButCounted();
    void cancelledInspectionEndsEarly();
    void levelIsThatOfTheGravestFinding_data();
    void levelIsThatOfTheGravestFinding();

protected:
    void prepare() override { folder.reset(new QTemporaryDir); }

private:
    QString path(const QString &name) const { return folder->filePath(name); }
    void writeFile(const QString &name, const QByteArray &content = QByteArray("x")) const;
    FolderReport inspect() const { return inspectFolder(folder->path(), "label", kGoOn); }

    QScopedPointer<QTemporaryDir> folder;
};

void TestFolderReport::writeFile(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(name));
    QCOMPARE(file.write(content), content.size());
}

void TestFolderReport::filesAreCountedWithTheirSizes()
{
    writeFile("a", "12345");
    writeFile("b", "1234567");

    const FolderReport report = inspect();

    QCOMPARE(report.path, folder->path());
    QCOMPARE(report.label, "label");
    QCOMPARE(report.fileCount, 2);
    QCOMPARE(report.totalBytes, 12);
    QVERIFY(report.findings.isEmpty());
    QCOMPARE(report.level(), int(TXLogItem::Information));
}

void TestFolderReport::fileChangedLastIsNamed()
{
    const QDateTime newest(QDate(2020, 5, 4), QTime(3, 2, 1), Qt::UTC);
    for (const char *name : {"a", "b", "c"}) {
        writeFile(name);
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::ReadWrite));
        const bool isNewest = qstrcmp(name, "b") == 0;
        QVERIFY(file.setFileTime(isNewest ? newest : newest.addDays(-1),
                                 QFileDevice::FileModificationTime));
    }

    const FolderReport report = inspect();

    QCOMPARE(report.newestFile, "b");
    QCOMPARE(report.newestTime, newest);
}

void TestFolderReport::subFoldersAreListedAndNotCounted()
{
    QVERIFY(QDir(folder->path()).mkpath("z/deeper"));
    QVERIFY(QDir(folder->path()).mkdir("a"));

    const FolderReport report = inspect();

    QCOMPARE(report.folders, QStringList({"a", "z"}));
    QCOMPARE(report.fileCount, 0);
    QVERIFY(!report.newestTime.isValid());
    QVERIFY(report.findings.isEmpty());
}

void TestFolderReport::hiddenFilesCount()
{
    writeFile(".hidden");

    QCOMPARE(inspect().fileCount, 1);
}

void TestFolderReport::emptyFolderIsInformation()
{
    const FolderReport report = inspect();

    QCOMPARE(kindsOf(report), {FolderFinding::EmptyFolder});
    QCOMPARE(report.level(), int(TXLogItem::Information));
}

void TestFolderReport::missingFolderIsAnError()
{
    const FolderReport report = inspectFolder(path("nowhere"), "nowhere", kGoOn);

    QCOMPARE(kindsOf(report), {FolderFinding::MissingFolder});
    QCOMPARE(report.errorCount, 1);
    QCOMPARE(report.level(), int(TXLogItem::Error));
}

void TestFolderReport::fileInPlaceOfAFolderIsAnError()
{
    writeFile("file");

    const FolderReport report = inspectFolder(path("file"), "file", kGoOn);

    QCOMPARE(kindsOf(report), {FolderFinding::NotAFolder});
    QCOMPARE(report.level(), int(TXLogItem::Error));
}

void TestFolderReport::brokenLinkIsAWarning()
{
    QVERIFY(QFile::link(path("gone"), path("link")));

    const FolderReport report = inspect();

    QCOMPARE(kindsOf(report), {FolderFinding::BrokenLink});
    QCOMPARE(report.findings.first().name, "link");
    QCOMPARE(report.fileCount, 1);
    QCOMPARE(report.totalBytes, 0);
    QCOMPARE(report.warningCount, 1);
    QCOMPARE(report.level(), int(TXLogItem::Warning));
}

void TestFolderReport::linkToAFolderIsNotWalkedDown()
{
    QVERIFY(QFile::link(folder->path(), path("loop")));

    const FolderReport report = inspect();

    QVERIFY(report.folders.isEmpty());
    QCOMPARE(report.fileCount, 1);
    QVERIFY(report.findings.isEmpty());
}

void TestFolderReport::veryLongNameIsAWarning()
{
    // Two bytes each, so that bytes are told from characters.
    const QString name(FolderReport::kLongNameBytes / 2 + 1, QChar(0xe9));
    writeFile(name);

    const FolderReport report = inspect();

    QCOMPARE(kindsOf(report), {FolderFinding::LongName});
    QCOMPARE(report.findings.first().name, name);
}

void TestFolderReport::longestFittingNameIsNone()
{
    writeFile(QString(FolderReport::kLongNameBytes, 'n'));

    QVERIFY(inspect().findings.isEmpty());
}

void TestFolderReport::withoutRightsIsAnError()
{
    writeFile("secret");
    QVERIFY(QDir(folder->path()).mkdir("closed"));
    QFile::setPermissions(path("secret"), {});
    QFile::setPermissions(path("closed"), {});
    // The system's administrator may read everything: then there is nothing to tell.
    const bool mayReadAll = QFileInfo(path("secret")).isReadable();

    const FolderReport above = inspect();
    const FolderReport closed = inspectFolder(path("closed"), "closed", kGoOn);
    QFile::setPermissions(path("closed"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

    using Kinds = QList<FolderFinding::Kind>;
    QCOMPARE(kindsOf(above), mayReadAll ? Kinds() : Kinds({FolderFinding::UnreadableFile}));
    QCOMPARE(kindsOf(closed),
             mayReadAll ? Kinds({FolderFinding::EmptyFolder})
                        : Kinds({FolderFinding::UnreadableFolder}));
}

void TestFolderReport::findingsAreLimitedButCounted()
{
    FolderReport report;
    for (int i = 0; i < FolderReport::kMaximumFindings + 5; ++i) {
        report.addFinding(FolderFinding::BrokenLink);
    }

    QCOMPARE(report.findings.size(), FolderReport::kMaximumFindings);
    QCOMPARE(report.warningCount, FolderReport::kMaximumFindings + 5);
}

void TestFolderReport::cancelledInspectionEndsEarly()
{
    writeFile("a");
    writeFile("b");
    const std::atomic_bool isCancelled = true;

    QCOMPARE(inspectFolder(folder->path(), "label", isCancelled).fileCount, 0);
}

void TestFolderReport::levelIsThatOfTheGravestFinding_data()
{
    QTest::addColumn<QList<int>>("kinds");
    QTest::addColumn<int>("level");
    using Kinds = QList<int>;
    QTest::newRow("none") << Kinds() << 1;
    QTest::newRow("information") << Kinds({FolderFinding::EmptyFolder}) << 1;
    QTest::newRow("warnings") << Kinds({FolderFinding::LongName, FolderFinding::EmptyFolder}) << 2;
    QTest::newRow("error among warnings") << Kinds(
        {FolderFinding::BrokenLink, FolderFinding::UnreadableFile, FolderFinding::BrokenLink})
                                          << 3;
    QTest::newRow("folder without rights") << Kinds({FolderFinding::UnreadableFolder}) << 3;
}

void TestFolderReport::levelIsThatOfTheGravestFinding()
{
    QFETCH(QList<int>, kinds);
    FolderReport report;
    for (const int kind : kinds) {
        report.addFinding(FolderFinding::Kind(kind));
    }

    QTEST(report.level(), "level");
}

int main(int argc, char **argv)
{
    return runTest<TestFolderReport>(argc, argv);
}

#include "tst_FolderReport.moc"
