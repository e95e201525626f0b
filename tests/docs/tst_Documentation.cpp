#include "Pages.h"

#include "TestBase.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QUrl>

#include <algorithm>

namespace {

/// All others are of the shell.
bool isOfASample(const Pages::Block &block)
{
    return block.language == QLatin1String("cpp") || block.language == QLatin1String("cmake");
}

/// What the heading of a block names: "samples/log.cpp" and "print".
QPair<QString, QString> sampleNamedBy(const QString &heading)
{
    static const QRegularExpression pattern(
        QStringLiteral("^In \\[(.+)\\]\\(\\1\\), \\*([a-z]+)\\*:$"));
    const QRegularExpressionMatch match = pattern.match(heading);
    return {match.captured(1), match.captured(2)};
}

bool isMark(const QString &line, const QString &part)
{
    return line == QStringLiteral("//! [%1]").arg(part)
        || line == QStringLiteral("#! [%1]").arg(part);
}

/// What stands between the two marks of a part; null when there are none.
QString partOf(const QString &sample, const QString &part)
{
    const QStringList lines = sample.split(u'\n');
    const auto first = std::find_if(lines.begin(), lines.end(),
                                    [&part](const QString &line) { return isMark(line, part); });
    if (first == lines.end()) {
        return {};
    }
    const auto last = std::find_if(first + 1, lines.end(),
                                   [&part](const QString &line) { return isMark(line, part); });
    if (last == lines.end()) {
        return {};
    }
    QString text = QLatin1String("");
    std::for_each(first + 1, last, [&text](const QString &line) { text += line + u'\n'; });
    return text;
}

/// "samples/log.cpp print" for each part that some sample marks.
QSet<QString> markedParts()
{
    static const QRegularExpression mark(QStringLiteral("^(?://|#)! \\[([a-z]+)\\]$"),
                                         QRegularExpression::MultilineOption);
    QSet<QString> parts;
    const QDir guideFolder(Pages::sourceFolder() + QStringLiteral("/docs/hosts"));
    const QStringList samples = Pages::filesBelow(QStringLiteral("docs/hosts/samples"), {});
    for (const QString &path : samples) {
        auto marks = mark.globalMatch(Pages::readFile(path));
        while (marks.hasNext()) {
            parts.insert(guideFolder.relativeFilePath(path) + u' ' + marks.next().captured(1));
        }
    }
    return parts;
}

/// As readers of Markdown make an anchor of a heading.
QString anchorOf(const QString &heading)
{
    QString anchor;
    for (const QChar letter : heading.toLower()) {
        if (letter.isLetterOrNumber() || letter == u'-' || letter == u'_') {
            anchor += letter;
        } else if (letter == u' ') {
            anchor += u'-';
        }
    }
    return anchor;
}

QSet<QString> anchorsIn(const QString &page)
{
    static const QRegularExpression pattern(QStringLiteral("^#+ (.+)$"),
                                            QRegularExpression::MultilineOption);
    QSet<QString> anchors;
    auto headings = pattern.globalMatch(Pages::prose(page));
    while (headings.hasNext()) {
        anchors.insert(anchorOf(headings.next().captured(1)));
    }
    return anchors;
}

/// The targets of all links and pictures of a page.
QStringList linksIn(const QString &page)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\]\\(([^)\\s]+)\\)|<img[^>]* src=\"([^\"]+)\"|<a[^>]* href=\"([^\"]+)\""));
    QStringList links;
    auto matches = pattern.globalMatch(Pages::prose(page));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        links.append(match.captured(1) + match.captured(2) + match.captured(3));
    }
    return links;
}

/// The ids of the gallery's pages, from its own list.
QStringList galleryPages()
{
    static const QRegularExpression entry(QStringLiteral("\\{\"([a-z]+)\", QT_TRANSLATE_NOOP"));
    QStringList ids;
    auto entries = entry.globalMatch(
        Pages::readFile(Pages::sourceFolder() + QStringLiteral("/gallery/GalleryPages.cpp")));
    while (entries.hasNext()) {
        ids.append(entries.next().captured(1));
    }
    return ids;
}

/// Where "./dev pictures" puts the pictures of the pages.
QSet<QString> picturesOfPages()
{
    QSet<QString> paths;
    const QStringList ids = galleryPages();
    for (const QString &id : ids) {
        paths.insert(Pages::sourceFolder() + QStringLiteral("/docs/pictures/%1.png").arg(id));
    }
    return paths;
}

/// The words of the code in the files: not those of their comments.
QSet<QString> wordsIn(const QStringList &paths)
{
    static const QRegularExpression comments(QStringLiteral("//[^\n]*"));
    static const QRegularExpression word(QStringLiteral("[A-Za-z_][A-Za-z_0-9]*"));
    QSet<QString> words;
    for (const QString &path : paths) {
        auto matches = word.globalMatch(Pages::readFile(path).remove(comments));
        while (matches.hasNext()) {
            words.insert(matches.next().captured());
        }
    }
    return words;
}

/// The headers that hosts include, from a list that the build writes.
QStringList publicHeaders()
{
    return Pages::readFile(QStringLiteral(TX_PUBLIC_HEADERS)).split(u'\n', Qt::SkipEmptyParts);
}

/// The names that stand between backticks and look like a class or one of its members. Qt's own are
/// left out, and so are variables that are all capitals.
QStringList classNamesIn(const QString &page)
{
    static const QRegularExpression pattern(
        QStringLiteral("`([A-Z][A-Za-z0-9]*[a-z][A-Za-z0-9]*(?:::[A-Za-z]\\w*)?)(?:\\(\\))?`"));
    static const QRegularExpression ofQt(QStringLiteral("^(?:Q[A-Z]|Qt\\b)"));
    QStringList names;
    auto matches = pattern.globalMatch(Pages::prose(page));
    while (matches.hasNext()) {
        const QString name = matches.next().captured(1);
        if (!ofQt.match(name).hasMatch()) {
            names.append(name);
        }
    }
    return names;
}

/// Those names of a page of which a word is not among these.
QStringList unknownNames(const QString &page, const QSet<QString> &words)
{
    QStringList unknown;
    const QStringList names = classNamesIn(Pages::readFile(page));
    for (const QString &name : names) {
        const QStringList parts = name.split(QStringLiteral("::"));
        if (!std::all_of(parts.begin(), parts.end(),
                         [&words](const QString &part) { return words.contains(part); })) {
            unknown.append(name);
        }
    }
    return unknown;
}

/// Those members of classes that a page names and that the header of the class does not have.
QStringList unknownMembers(const QString &page, const QStringList &headers)
{
    QHash<QString, QString> headerOf;
    for (const QString &header : headers) {
        headerOf.insert(QFileInfo(header).baseName(), header);
    }
    QStringList unknown;
    const QStringList names = classNamesIn(Pages::readFile(page));
    for (const QString &name : names) {
        const QString header = headerOf.value(name.section(QStringLiteral("::"), 0, 0));
        const QString member = name.section(QStringLiteral("::"), 1);
        if (!member.isEmpty() && !header.isEmpty() && !wordsIn({header}).contains(member)) {
            unknown.append(name);
        }
    }
    return unknown;
}

} // namespace

/// What people read keeps in step with what is there.
class TestDocumentation : public TestBase
{
    Q_OBJECT

private slots:
    void eachBlockOfTheGuideIsThePartOfItsSample();
    void eachPartOfASampleIsInTheGuide();
    void theReadmeShowsTheWholeHello();
    void linksLeadToFilesAndHeadings();
    void theGuideShowsEachPageOfTheGallery();
    void theGuideNamesWhatPublicHeadersHave();
    void theGuideLeadsToEachPublicWidget();
    void thePagesNameWhatIsThere();
    void theChecksFindWhatIsWrong();
};

void TestDocumentation::eachBlockOfTheGuideIsThePartOfItsSample()
{
    const QString folder = Pages::sourceFolder() + QStringLiteral("/docs/hosts/");
    const QList<Pages::Block> blocks =
        Pages::blocksOf(Pages::readFile(folder + QStringLiteral("guide.md")));
    QVERIFY(blocks.size() > 20);
    for (const Pages::Block &block : blocks) {
        if (!isOfASample(block)) {
            QCOMPARE(block.language, QStringLiteral("sh"));
            continue;
        }
        const auto [sample, part] = sampleNamedBy(block.heading);
        QVERIFY2(!sample.isEmpty(), qPrintable(block.heading + u'\n' + block.text));
        const QString shown = partOf(Pages::readFile(folder + sample), part);
        QVERIFY2(!shown.isNull(), qPrintable(block.heading));
        QVERIFY2(block.text == shown, qPrintable(block.heading + u'\n' + shown));
    }
}

void TestDocumentation::eachPartOfASampleIsInTheGuide()
{
    QSet<QString> shown;
    const QList<Pages::Block> blocks = Pages::blocksOf(
        Pages::readFile(Pages::sourceFolder() + QStringLiteral("/docs/hosts/guide.md")));
    for (const Pages::Block &block : blocks) {
        const auto [sample, part] = sampleNamedBy(block.heading);
        shown.insert(sample + u' ' + part);
    }
    const QSet<QString> marked = markedParts();
    QVERIFY(marked.size() > 20);
    const QSet<QString> forgotten = QSet<QString>(marked).subtract(shown);
    QVERIFY2(forgotten.isEmpty(), qPrintable(forgotten.values().join(u'\n')));
}

void TestDocumentation::theReadmeShowsTheWholeHello()
{
    const QString folder = Pages::sourceFolder() + QStringLiteral("/examples/hello/");
    const QString program = Pages::readFile(folder + QStringLiteral("main.cpp"));
    QVERIFY(!program.isEmpty());
    QVERIFY(program.count(u'\n') <= 20);
    QString shown;
    const QList<Pages::Block> blocks =
        Pages::blocksOf(Pages::readFile(Pages::sourceFolder() + QStringLiteral("/README.md")));
    for (const Pages::Block &block : blocks) {
        shown += QStringLiteral("```%1\n%2").arg(block.language, block.text);
    }
    const QString project = Pages::readFile(folder + QStringLiteral("CMakeLists.txt"));
    QCOMPARE(shown, QString("```cpp\n" + program + "```cmake\n" + project));
}

void TestDocumentation::linksLeadToFilesAndHeadings()
{
    const QStringList pages = Pages::all();
    QVERIFY(pages.size() >= 10);
    for (const QString &page : pages) {
        const QStringList links = linksIn(Pages::readFile(page));
        for (const QString &link : links) {
            const QUrl url(link);
            if (!url.scheme().isEmpty()) {
                continue;
            }
            const QString path = url.path().isEmpty()
                ? page
                : QDir::cleanPath(QFileInfo(page).path() + u'/' + url.path());
            const QString place = page + QStringLiteral(": ") + link;
            QVERIFY2(QFileInfo::exists(path), qPrintable(place));
            if (!url.fragment().isEmpty()) {
                QVERIFY2(anchorsIn(Pages::readFile(path)).contains(url.fragment()),
                         qPrintable(place));
            }
        }
    }
}

void TestDocumentation::theGuideShowsEachPageOfTheGallery()
{
    const QString guide = Pages::sourceFolder() + QStringLiteral("/docs/hosts/guide.md");
    QStringList shown = linksIn(Pages::readFile(guide));
    for (QString &link : shown) {
        link = QDir::cleanPath(QFileInfo(guide).path() + u'/' + link);
    }
    const QSet<QString> pictures = picturesOfPages();
    QVERIFY(pictures.size() > 20);
    for (const QString &picture : pictures) {
        QVERIFY2(shown.contains(picture), qPrintable(picture));
    }
}

void TestDocumentation::theGuideNamesWhatPublicHeadersHave()
{
    const QStringList headers = publicHeaders();
    QVERIFY(headers.size() > 50);
    // And the component "CoreCommon" of the package and its like.
    QSet<QString> words = wordsIn(headers);
    words.unite({QStringLiteral("CoreCommon"), QStringLiteral("Resources"),
                 QStringLiteral("GUICommon"), QStringLiteral("Fonts")});
    const QStringList guides =
        Pages::filesBelow(QStringLiteral("docs/hosts"), {QStringLiteral("*.md")});
    for (const QString &guide : guides) {
        const QStringList unknown = unknownNames(guide, words) + unknownMembers(guide, headers);
        QVERIFY2(unknown.isEmpty(), qPrintable(guide + u'\n' + unknown.join(u'\n')));
    }
}

void TestDocumentation::theGuideLeadsToEachPublicWidget()
{
    const QString guide =
        Pages::readFile(Pages::sourceFolder() + QStringLiteral("/docs/hosts/guide.md"));
    const QStringList headers = publicHeaders();
    // What hosts only meet by way of another class, which the guide names.
    const QSet<QString> parts = {
        QStringLiteral("LockerFirstPasswordDialog"), QStringLiteral("LockerPasswordDialog"),
        QStringLiteral("ShareBrowserDiscoryThread"), QStringLiteral("WaitElement")};
    int widgets = 0;
    for (const QString &header : headers) {
        const QString unit = QFileInfo(header).baseName();
        const QString text = Pages::readFile(header);
        const bool isWidget = text.contains(
            QRegularExpression(QStringLiteral("class TXGUICOMMON_EXPORT %1\\b").arg(unit)));
        widgets += isWidget ? 1 : 0;
        if (isWidget && !parts.contains(unit)) {
            QVERIFY2(guide.contains(u'`' + unit + u'`') || guide.contains(u'`' + unit + u':'),
                     qPrintable(unit));
        }
    }
    QVERIFY(widgets > 50);
}

void TestDocumentation::thePagesNameWhatIsThere()
{
    QStringList files;
    for (const char *folder :
         {"src", "gallery", "localservers", "tests", "benchmarks", "designer", "docs", "cmake"}) {
        files += Pages::filesBelow(QLatin1String(folder),
                                   {QStringLiteral("*.h"), QStringLiteral("*.cpp"),
                                    QStringLiteral("CMakeLists.txt"), QStringLiteral("*.cmake"),
                                    QStringLiteral("*.py")});
    }
    QSet<QString> words = wordsIn(files);
    // The example of how to add a widget.
    words.unite({QStringLiteral("TXWhitePointWidget"), QStringLiteral("TestTXWhitePointWidget")});
    const QStringList texts = Pages::all();
    for (const QString &text : texts) {
        const QStringList unknown = unknownNames(text, words);
        QVERIFY2(unknown.isEmpty(), qPrintable(text + u'\n' + unknown.join(u'\n')));
    }
}

void TestDocumentation::theChecksFindWhatIsWrong()
{
    QCOMPARE(partOf(QStringLiteral("//! [a]\nx\n//! [a]\n"), QStringLiteral("a")),
             QStringLiteral("x\n"));
    QVERIFY(partOf(QStringLiteral("//! [a]\nx\n"), QStringLiteral("a")).isNull());
    const QList<Pages::Block> blocks =
        Pages::blocksOf(QStringLiteral("In [b](b), *c*:\n```cpp\nx\n```\n"));
    QCOMPARE(blocks.size(), 1);
    QVERIFY(isOfASample(blocks.first()));
    QCOMPARE(blocks.first().text, QStringLiteral("x\n"));
    QCOMPARE(sampleNamedBy(blocks.first().heading).second, QStringLiteral("c"));
    QVERIFY(sampleNamedBy(QStringLiteral("Like this:")).first.isEmpty());
    QCOMPARE(linksIn(QStringLiteral("[a](b.md#c) <img src=\"d.png\" alt=\"\">\n```\n[e](f)\n```")),
             QStringList({QStringLiteral("b.md#c"), QStringLiteral("d.png")}));
    QCOMPARE(anchorsIn(QStringLiteral("## Splash, About, manual\n")),
             QSet<QString>({QStringLiteral("splash-about-manual")}));
    QCOMPARE(
        classNamesIn(QStringLiteral("`TXError` `QString` `Qt::UserRole` `TXLogItem::Error` `x`")),
        QStringList({QStringLiteral("TXError"), QStringLiteral("TXLogItem::Error")}));
}

int main(int argc, char **argv)
{
    return runTest<TestDocumentation>(argc, argv);
}

#include "tst_Documentation.moc"
