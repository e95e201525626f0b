#include "TestBase.h"

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

int runMaker(const QStringList &arguments)
{
    QProcess maker;
    maker.start(QStringLiteral(TX_MANUAL_MAKER), arguments);
    return maker.waitForFinished() && maker.exitStatus() == QProcess::NormalExit ? maker.exitCode()
                                                                                 : -1;
}

} // namespace

class TestGalleryManual : public TestBase
{
    Q_OBJECT

private slots:
    void manualLiesBesideTheProgram();
    void threeDashesBeginANewPage();
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
