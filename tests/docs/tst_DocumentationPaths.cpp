#include "Pages.h"

#include "TestBase.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

/// Whether what stands between backticks is to be a path of the repository: it begins with a folder
/// of the repository, ends with a slash, or is named like a source. What builds write is none, nor
/// what stands beside a program.
bool isPath(const QString &code, const QStringList &topFolders)
{
    static const QRegularExpression pattern(QStringLiteral(
        "^(?!\\.\\./|/|build/|ui_)[^\\s'()]+(?:/|\\.(?:cmake|cpp|h|in|md|py|sed|sh|ts|txt|ui))$"));
    static const QRegularExpression oneWord(QStringLiteral("^\\S+$"));
    return pattern.match(code).hasMatch()
        || (oneWord.match(code).hasMatch()
            && std::any_of(topFolders.begin(), topFolders.end(),
                           [&code](const QString &folder) { return code.startsWith(folder); }));
}

/// What each path of a page stands for: "./dev test" is the program, and the widget that the
/// developers' pages add, which is nowhere, is any.
QStringList pathsIn(const QString &page, const QStringList &topFolders)
{
    static const QRegularExpression spans(QStringLiteral("`([^`]+)`"));
    static const QRegularExpression command(QStringLiteral("^\\./(\\S+).*$"),
                                            QRegularExpression::DotMatchesEverythingOption);
    QStringList paths;
    auto matches = spans.globalMatch(Pages::prose(page));
    while (matches.hasNext()) {
        QString code = matches.next().captured(1);
        if (command.match(code).hasMatch()) {
            paths.append(code.replace(command, QStringLiteral("\\1")));
        } else if (isPath(code, topFolders)) {
            paths.append(code.replace(QLatin1String("WhitePoint"), QLatin1String("*")));
        }
    }
    return paths;
}

/// Whether the path is in the tree, from its top or, without a slash, in any folder. "*", "…" and
/// "<Unit>" are any part of a name.
bool isThere(const QString &path, const QString &lines)
{
    static const QRegularExpression any(QStringLiteral("\\*|…|<[^>]*>"));
    QStringList parts = path.split(any);
    for (QString &part : parts) {
        part = QRegularExpression::escape(part);
    }
    const QString folder = path.contains(u'/') ? QString() : QStringLiteral("(?:.*/)?");
    const QRegularExpression line(u'^' + folder + parts.join(QLatin1String("[^/\n]*"))
                                      + QLatin1String("/?$"),
                                  QRegularExpression::MultilineOption);
    return line.match(lines).hasMatch();
}

} // namespace

/// The paths between backticks lead to what is there.
class TestDocumentationPaths : public TestBase
{
    Q_OBJECT

private slots:
    void eachPathOfAPageIsInTheRepository();
    void pathsAreToldFromOtherCode();
    void pathsAreFoundInTheTree();
};

void TestDocumentationPaths::eachPathOfAPageIsInTheRepository()
{
    const QStringList tree = Pages::tree();
    const QStringList topFolders = tree.filter(QRegularExpression(QStringLiteral("^[^/]+/$")));
    const QString lines = tree.join(u'\n');
    // The folder beside a host's program that its plug-ins are in.
    const QString ofHosts = QStringLiteral("ConfWidgets/");
    int count = 0;
    QStringList missing;
    const QStringList pages = Pages::all();
    for (const QString &page : pages) {
        const QStringList paths = pathsIn(Pages::readFile(page), topFolders);
        count += int(paths.size());
        for (const QString &path : paths) {
            if (path != ofHosts && !isThere(path, lines)) {
                missing.append(page + QStringLiteral(": ") + path);
            }
        }
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(u'\n')));
    QVERIFY(count > 100);
}

void TestDocumentationPaths::pathsAreToldFromOtherCode()
{
    const QStringList topFolders = {QStringLiteral(".ci/"), QStringLiteral("docs/")};
    const auto paths = [&topFolders](const char *page) {
        return pathsIn(QString::fromUtf8(page), topFolders);
    };
    QCOMPARE(
        paths("`src/core/` `tests/<folder>/tst_<Unit>.cpp` `docs/pictures` `.ci/run`"),
        QStringList({"src/core/", "tests/<folder>/tst_<Unit>.cpp", "docs/pictures", ".ci/run"}));
    QCOMPARE(paths("`./dev` and `./dev\ndocs`"), QStringList({"dev", "dev"}));
    QCOMPARE(paths("`View.h` `…Widgets.cpp` `CHANGELOG.md` `TXTest.cmake`"),
             QStringList({"View.h", "…Widgets.cpp", "CHANGELOG.md", "TXTest.cmake"}));
    QCOMPARE(paths("`src/forms/TXWhitePointWidget.ui`"), QStringList("src/forms/TX*Widget.ui"));
    QCOMPARE(paths("`.cpp` `ours/1000` `../Resources/Images/` `/etc/x/` `build/asan/` `-R log/` "
                   "`url('../a.h')` `ui_TXSplitter.h` `TXSplitter` `docs/x\n-R y`\n"
                   "```\n`src/core/`\n```\n"),
             QStringList());
}

void TestDocumentationPaths::pathsAreFoundInTheTree()
{
    const QString lines = QStringLiteral("dev\nsrc/\nsrc/core/\nsrc/core/View.h\nsrc/x.cpp");
    for (const char *path : {"dev", "src/", "src/core", "src/core/View.h", "View.h", "V….h",
                             "src/<folder>/View.h", "src/core/*.h", "<Unit>.cpp"}) {
        QVERIFY2(isThere(QString::fromUtf8(path), lines), path);
    }
    for (const char *path : {"de", "core/", "core/View.h", "src/View.h", "iew.h", "View.hpp",
                             "src.", "src/*.h", "src/x.cpp/", "<Unit>.ui"}) {
        QVERIFY2(!isThere(QString::fromUtf8(path), lines), path);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestDocumentationPaths>(argc, argv);
}

#include "tst_DocumentationPaths.moc"
