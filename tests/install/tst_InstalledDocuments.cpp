#include "HostBuild.h"
#include "TestBase.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QUrl>

/// The pages that are installed to be read.
class TestInstalledDocuments : public TestBase
{
    Q_OBJECT

private slots:
    void pageIsThere_data();
    void pageIsThere();
    void linksLeadToWhatIsInstalled();
    void nothingThatWasBuiltIsAmongThem();

private:
    const QString documents = installedTree() + "/share/doc/TXGUICommon";
};

namespace {

QStringList filesBelow(const QString &folder, const QString &pattern)
{
    QStringList paths;
    QDirIterator files(folder, {pattern}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        paths.append(files.next());
    }
    return paths;
}

/// The targets of the page's links and pictures that are files, without what leads to a place in
/// them.
QStringList filesNamedIn(const QString &page)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\]\\(([^)\\s]+)\\)|<(?:img|a)[^>]* (?:src|href)=\"([^\"]+)\""));
    QFile file(page);
    if (!file.open(QFile::ReadOnly)) {
        return {};
    }
    QStringList names;
    auto found = pattern.globalMatch(QString::fromUtf8(file.readAll()));
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        const QUrl url(match.captured(1) + match.captured(2));
        if (url.isRelative() && !url.path().isEmpty()) {
            names.append(url.path());
        }
    }
    return names;
}

} // namespace

void TestInstalledDocuments::pageIsThere_data()
{
    QTest::addColumn<QString>("name");

    for (const char *name :
         {"README.md", "CHANGELOG.md", "docs/hosts/guide.md", "docs/developers/architecture.md",
          "designer/README.md", "examples/hello/README.md", "examples/hello/main.cpp"}) {
        QTest::newRow(name) << QString(name);
    }
}

void TestInstalledDocuments::pageIsThere()
{
    QFETCH(const QString, name);

    QVERIFY(QFile::exists(documents + '/' + name));
}

void TestInstalledDocuments::linksLeadToWhatIsInstalled()
{
    qsizetype links = 0;
    const QStringList pages = filesBelow(documents, "*.md");
    for (const QString &page : pages) {
        const QStringList names = filesNamedIn(page);
        links += names.size();
        for (const QString &name : names) {
            QVERIFY2(QFile::exists(QFileInfo(page).dir().filePath(name)),
                     qPrintable(page + ": " + name));
        }
    }

    QVERIFY(links >= 80);
}

/// Readers build the examples where they find them.
void TestInstalledDocuments::nothingThatWasBuiltIsAmongThem()
{
    QCOMPARE(filesBelow(documents, "CMakeCache.txt"), QStringList());
    QCOMPARE(filesBelow(documents, "*.o"), QStringList());
}

int main(int argc, char **argv)
{
    return runTest<TestInstalledDocuments>(argc, argv);
}

#include "tst_InstalledDocuments.moc"
