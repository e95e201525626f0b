#include "TestBase.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

QString galleryFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../gallery");
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

qsizetype countPages(const QByteArray &pdf)
{
    static const QRegularExpression page(QStringLiteral("/Type\\s*/Page\\b"));
    return QString::fromLatin1(pdf).count(page);
}

int runMaker(const QStringList &arguments, const QString &date = {})
{
    QProcess maker;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("SOURCE_DATE_EPOCH"), date);
    maker.setProcessEnvironment(environment);
    maker.start(QStringLiteral(TX_MANUAL_MAKER), arguments);
    return maker.waitForFinished() && maker.exitStatus() == QProcess::NormalExit ? maker.exitCode()
                                                                                 : -1;
}

bool writeText(const QString &fileName)
{
    QFile text(fileName);
    return text.open(QIODevice::WriteOnly) && text.write("# One\n\ntext, *text* and `text`\n") > 0;
}

/// The date in the manual, with what tells the time zone.
QByteArray dateIn(const QByteArray &pdf)
{
    static const QRegularExpression date(QStringLiteral("/CreationDate \\(D:([^)]*)\\)"));
    return date.match(QString::fromLatin1(pdf)).captured(1).toLatin1();
}

} // namespace

class TestGalleryManual : public TestBase
{
    Q_OBJECT

private slots:
    void manualLiesBesideTheProgram();
    void threeDashesBeginANewPage();
    void manualHasTheDateThatItIsGiven();
    void dateThatIsNoneIsPassedOver_data();
    void dateThatIsNoneIsPassedOver();
    void missingTextIsAMistakeAndLeavesNoManual();
    void placeThatCannotBeWrittenIsAMistake();
};

void TestGalleryManual::manualLiesBesideTheProgram()
{
    const QByteArray pdf = contentOf(galleryFolder() + "/Resources/Manual/TXGallery.pdf");

    QVERIFY(pdf.startsWith("%PDF-"));
    QVERIFY(pdf.trimmed().endsWith("%%EOF"));
    QVERIFY(countPages(pdf) >= 3);
    // The title that viewers show, and text in fonts that come along.
    QVERIFY(pdf.contains("/Title"));
    QVERIFY(pdf.contains("/FontFile2"));
}

void TestGalleryManual::threeDashesBeginANewPage()
{
    const QTemporaryDir folder;
    QFile text(folder.filePath("manual.md"));
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.write("# One\n\ntext\n\n---\n\n## Two\n\n---\n\n## Three\n");
    text.close();

    QCOMPARE(runMaker({text.fileName(), folder.filePath("manual.pdf")}), 0);

    QCOMPARE(countPages(contentOf(folder.filePath("manual.pdf"))), 3);
}

/// So that packages that are made again are the same.
void TestGalleryManual::manualHasTheDateThatItIsGiven()
{
    const QTemporaryDir folder;
    const QString text = folder.filePath("manual.md");
    QVERIFY(writeText(text));

    QCOMPARE(runMaker({text, folder.filePath("1.pdf")}, "1700000000"), 0);
    QCOMPARE(runMaker({text, folder.filePath("2.pdf")}, "1700000000"), 0);

    const QByteArray pdf = contentOf(folder.filePath("1.pdf"));
    QCOMPARE(dateIn(pdf), QByteArray("20231114221320Z"));
    QVERIFY(pdf == contentOf(folder.filePath("2.pdf")));
}

void TestGalleryManual::dateThatIsNoneIsPassedOver_data()
{
    QTest::addColumn<QString>("date");

    QTest::newRow("none") << QString();
    QTest::newRow("words") << "yesterday";
    QTest::newRow("year of five digits") << "300000000000";
    QTest::newRow("before the years") << "-9000000000000";
    QTest::newRow("past all numbers") << "99999999999999999999";
    QTest::newRow("past all dates") << "9223372036854775807";
}

void TestGalleryManual::dateThatIsNoneIsPassedOver()
{
    QFETCH(const QString, date);
    const QTemporaryDir folder;
    const QString text = folder.filePath("manual.md");
    QVERIFY(writeText(text));
    const QDateTime before = QDateTime::currentDateTimeUtc();

    QCOMPARE(runMaker({text, folder.filePath("manual.pdf")}, date), 0);

    const QByteArray written = dateIn(contentOf(folder.filePath("manual.pdf")));
    QCOMPARE(written.size(), 15);
    QVERIFY(written >= before.toString("yyyyMMddHHmmss").toLatin1());
}

void TestGalleryManual::missingTextIsAMistakeAndLeavesNoManual()
{
    const QTemporaryDir folder;

    QCOMPARE(runMaker({folder.filePath("nowhere.md"), folder.filePath("manual.pdf")}), 1);

    QVERIFY(QDir(folder.path()).isEmpty());
}

void TestGalleryManual::placeThatCannotBeWrittenIsAMistake()
{
    const QTemporaryDir folder;
    QFile text(folder.filePath("manual.md"));
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.close();

    QCOMPARE(runMaker({text.fileName(), folder.filePath("missing/manual.pdf")}), 1);
}

int main(int argc, char **argv)
{
    return runTest<TestGalleryManual>(argc, argv);
}

#include "tst_GalleryManual.moc"
