#include "AboutWindows.h"
#include "OrdinaryRights.h"
#include "TestBase.h"

#include <QDesktopServices>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMetaMethod>
#include <QPushButton>
#include <QTemporaryDir>
#include <QUrl>

#include <sys/stat.h>

#include <memory>

namespace {

const QString kName = QStringLiteral("tst_AboutAppWindowNotices.html");

QString noticesFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/../Resources/LegalNotices"));
}

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// Takes the place of the system's viewer.
class NoticesViewer : public QObject
{
    Q_OBJECT

public:
    NoticesViewer() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~NoticesViewer() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened.append(url); }
};

/// The button that opens the legal notices. The temporary folder is one of the test's own.
class TestAboutAppWindowNotices : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void slotIsPrivate();
    void copyIsOpened();
    void specialCharactersReachTheViewer_data();
    void specialCharactersReachTheViewer();
    void secondTimeReplacesTheCopy();
    void copyOfAReadOnlyFileIsReplaced();
    void readOnlyFileInTheWayIsReplaced();
    void missingNoticesOpenNothing();
    void missingNoticesTakeAnOldCopyAway();
    void sourceThatIsNoFileOpensNothing_data();
    void sourceThatIsNoFileOpensNothing();
    void nameThatIsNoFileNameDoesNothing_data();
    void nameThatIsNoFileNameDoesNothing();
    void linkInTheWayIsReplacedAndNotFollowed_data();
    void linkInTheWayIsReplacedAndNotFollowed();
    void folderInTheWayStaysAndIsWhatIsOpened();
    void fileThatCannotBeReplacedIsOpenedAsItIs();
    void temporaryFolderThatIsMissingOpensNothing();
    void veryLongNameOpensNothing();
    void refusalOfTheSystemIsSilent();

private:
    /// In the temporary folder of the test.
    [[nodiscard]] QString target(const QString &name = kName) const
    {
        return temporary->filePath("tmp/" + name);
    }
    [[nodiscard]] static QString source(const QString &name = kName)
    {
        return noticesFolder() + u'/' + name;
    }
    void clickFor(const QString &name = kName) const;
    [[nodiscard]] QStringList everythingBelow() const;

    std::unique_ptr<QTemporaryDir> temporary;
    std::unique_ptr<NoticesViewer> viewer;
    QByteArray temporaryBefore;
};

void TestAboutAppWindowNotices::prepare()
{
    temporary = std::make_unique<QTemporaryDir>();
    viewer = std::make_unique<NoticesViewer>();
    QVERIFY(QDir().mkpath(noticesFolder()));
    // What a run that was killed has left.
    QFile::remove(source());
    QVERIFY(QDir(temporary->path()).mkdir("tmp"));
    temporaryBefore = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(temporary->filePath("tmp")));
    QCOMPARE(QDir::tempPath(), temporary->filePath("tmp"));
}

void TestAboutAppWindowNotices::finish()
{
    if (temporaryBefore.isEmpty()) {
        qunsetenv("TMPDIR");
    } else {
        qputenv("TMPDIR", temporaryBefore);
    }
    viewer.reset();
    temporary.reset();
    QFile::remove(source());
    // Only when they are empty, as others may have put something there.
    QDir().rmpath(noticesFolder());
}

void TestAboutAppWindowNotices::clickFor(const QString &name) const
{
    TestAboutWindow window;
    window.notices = name;
    window.show();
    QTest::mouseClick(window.findChild<QPushButton *>("patentButton"), Qt::LeftButton);
}

/// Of the folder around the temporary folder, so that what goes astray is seen.
QStringList TestAboutAppWindowNotices::everythingBelow() const
{
    QStringList paths;
    QDirIterator it(temporary->path(),
                    QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        paths.append(it.next());
    }
    paths.sort();
    return paths;
}

void TestAboutAppWindowNotices::slotIsPrivate()
{
    const QMetaObject &meta = AboutAppWindow::staticMetaObject;

    const QMetaMethod slot = meta.method(meta.indexOfSlot("displayPatents()"));

    QCOMPARE(slot.access(), QMetaMethod::Private);
}

void TestAboutAppWindowNotices::copyIsOpened()
{
    QVERIFY(write(source(), "<p>Notices</p>"));

    clickFor();

    QCOMPARE(viewer->opened, {QUrl::fromLocalFile(target())});
    QCOMPARE(read(target()), "<p>Notices</p>");
    QCOMPARE(QDir(temporary->filePath("tmp")).entryList(QDir::Files | QDir::Hidden), {kName});
    QCOMPARE(read(source()), "<p>Notices</p>");
}

void TestAboutAppWindowNotices::specialCharactersReachTheViewer_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blank") << QStringLiteral("tst Legal notices.txt");
    QTest::newRow("letters") << QStringLiteral("tst Übersicht 日本.html");
    QTest::newRow("url characters") << QStringLiteral("tst 50%20#1?x=1&y.html");
    QTest::newRow("place markers") << QStringLiteral("tst%1%2.html");
    QTest::newRow("dots") << QStringLiteral("...tst");
}

void TestAboutAppWindowNotices::specialCharactersReachTheViewer()
{
    QFETCH(QString, name);
    QVERIFY(write(source(name), "notices"));
    const auto tidy = qScopeGuard([&name] { QFile::remove(source(name)); });

    clickFor(name);

    QCOMPARE(viewer->opened.size(), 1);
    QCOMPARE(viewer->opened.constFirst().toLocalFile(), target(name));
    QCOMPARE(read(target(name)), "notices");
}

void TestAboutAppWindowNotices::secondTimeReplacesTheCopy()
{
    QVERIFY(write(source(), "first, and longer"));
    clickFor();
    QVERIFY(write(source(), "second"));

    clickFor();

    QCOMPARE(viewer->opened.size(), 2);
    QCOMPARE(read(target()), "second");
}

void TestAboutAppWindowNotices::copyOfAReadOnlyFileIsReplaced()
{
    QVERIFY(write(source(), "first"));
    QVERIFY(QFile::setPermissions(source(), QFile::ReadOwner));
    clickFor();
    QVERIFY(QFile::permissions(target()).testFlag(QFile::WriteOwner));
    QCOMPARE(QFile::permissions(source()) & QFile::WriteOwner, QFile::Permissions());
    QVERIFY(QFile::remove(source()));
    QVERIFY(write(source(), "second"));

    clickFor();

    QCOMPARE(read(target()), "second");
}

void TestAboutAppWindowNotices::readOnlyFileInTheWayIsReplaced()
{
    const OrdinaryRights rights;
    QVERIFY(write(source(), "new"));
    QVERIFY(write(target(), "old"));
    QVERIFY(QFile::setPermissions(target(), QFile::ReadOwner));

    clickFor();

    QCOMPARE(viewer->opened.size(), 1);
    QCOMPARE(read(target()), "new");
}

void TestAboutAppWindowNotices::missingNoticesOpenNothing()
{
    clickFor();

    QVERIFY(viewer->opened.isEmpty());
    QCOMPARE(everythingBelow(), {temporary->filePath("tmp")});
}

void TestAboutAppWindowNotices::missingNoticesTakeAnOldCopyAway()
{
    QVERIFY(write(target(), "old"));

    clickFor();

    QVERIFY(viewer->opened.isEmpty());
    QVERIFY(!QFileInfo::exists(target()));
}

void TestAboutAppWindowNotices::sourceThatIsNoFileOpensNothing_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"folder", "pipe", "link to nowhere", "unreadable"}) {
        QTest::newRow(kind) << QString::fromLatin1(kind);
    }
}

void TestAboutAppWindowNotices::sourceThatIsNoFileOpensNothing()
{
    QFETCH(QString, kind);
    const OrdinaryRights rights;
    const auto tidy = qScopeGuard([] { QDir().rmdir(source()); });
    if (kind == "folder") {
        QVERIFY(QDir().mkdir(source()));
    } else if (kind == "pipe") {
        QCOMPARE(::mkfifo(QFile::encodeName(source()).constData(), 0600), 0);
    } else if (kind == "link to nowhere") {
        QVERIFY(QFile::link(temporary->filePath("none"), source()));
    } else {
        QVERIFY(write(source(), "secret"));
        QVERIFY(QFile::setPermissions(source(), QFile::Permissions()));
    }

    clickFor();

    QVERIFY(viewer->opened.isEmpty());
    QCOMPARE(everythingBelow(), {temporary->filePath("tmp")});
}

void TestAboutAppWindowNotices::nameThatIsNoFileNameDoesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("dot") << ".";
    QTest::newRow("two dots") << "..";
    QTest::newRow("upwards") << "../outside.html";
    QTest::newRow("below") << "below/notices.html";
    QTest::newRow("slash at the end") << "notices.html/";
    QTest::newRow("slash") << "/";
    QTest::newRow("absolute") << "/outside.html";
    QTest::newRow("backslash") << "..\\outside.html";
    QTest::newRow("end of a C string") << QString("notices.html").replace('.', QChar(u'\0'));
}

void TestAboutAppWindowNotices::nameThatIsNoFileNameDoesNothing()
{
    QFETCH(QString, name);
    // What each of the names would take away or make.
    QVERIFY(write(temporary->filePath("outside.html"), "outside"));
    QVERIFY(write(target("outside.html"), "inside"));
    QVERIFY(write(target("..\\outside.html"), "inside"));
    QVERIFY(write(target("notices.html"), "inside"));
    QVERIFY(QDir().mkdir(target("below")));
    QVERIFY(write(target("below/notices.html"), "below"));
    const QStringList before = everythingBelow();

    clickFor(name);

    QVERIFY(viewer->opened.isEmpty());
    QCOMPARE(everythingBelow(), before);
    QCOMPARE(read(temporary->filePath("outside.html")), "outside");
    QCOMPARE(read(target("below/notices.html")), "below");
}

void TestAboutAppWindowNotices::linkInTheWayIsReplacedAndNotFollowed_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::newRow("to a file") << true;
    QTest::newRow("to nowhere") << false;
}

void TestAboutAppWindowNotices::linkInTheWayIsReplacedAndNotFollowed()
{
    QFETCH(bool, isThere);
    const QString elsewhere = temporary->filePath("elsewhere.html");
    if (isThere) {
        QVERIFY(write(elsewhere, "elsewhere"));
    }
    QVERIFY(QFile::link(elsewhere, target()));
    QVERIFY(write(source(), "notices"));

    clickFor();

    QCOMPARE(viewer->opened.size(), 1);
    QVERIFY(!QFileInfo(target()).isSymLink());
    QCOMPARE(read(target()), "notices");
    QCOMPARE(QFileInfo::exists(elsewhere), isThere);
    QCOMPARE(read(elsewhere), isThere ? QByteArray("elsewhere") : QByteArray());
}

/// It is there, and that is all that is asked before it is opened.
void TestAboutAppWindowNotices::folderInTheWayStaysAndIsWhatIsOpened()
{
    QVERIFY(write(source(), "notices"));
    QVERIFY(QDir().mkdir(target()));
    QVERIFY(write(target() + "/kept", "kept"));

    clickFor();

    QCOMPARE(viewer->opened, {QUrl::fromLocalFile(target())});
    QCOMPARE(read(target() + "/kept"), "kept");
}

void TestAboutAppWindowNotices::fileThatCannotBeReplacedIsOpenedAsItIs()
{
    const OrdinaryRights rights;
    QVERIFY(write(source(), "new"));
    QVERIFY(write(target(), "old"));
    const QString folder = temporary->filePath("tmp");
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    const auto restore = qScopeGuard([&folder] {
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    });

    clickFor();

    QCOMPARE(viewer->opened, {QUrl::fromLocalFile(target())});
    QCOMPARE(read(target()), "old");
}

void TestAboutAppWindowNotices::temporaryFolderThatIsMissingOpensNothing()
{
    QVERIFY(write(source(), "notices"));
    QVERIFY(QDir(temporary->filePath("tmp")).removeRecursively());

    clickFor();

    QVERIFY(viewer->opened.isEmpty());
    QVERIFY(everythingBelow().isEmpty());
    QVERIFY(!QFileInfo::exists(u'/' + kName));
}

void TestAboutAppWindowNotices::veryLongNameOpensNothing()
{
    clickFor(QString(100000, u'x'));

    QVERIFY(viewer->opened.isEmpty());
}

void TestAboutAppWindowNotices::refusalOfTheSystemIsSilent()
{
    // Without a screen there is nothing that opens documents; on a screen nothing is found that
    // could be started.
    viewer.reset();
    const QByteArray programs = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(temporary->path()));
    const auto restore = qScopeGuard([&programs] { qputenv("PATH", programs); });
    QVERIFY(write(source(), "notices"));

    clickFor();

    QCOMPARE(read(target()), "notices");
}

int main(int argc, char **argv)
{
    return runTest<TestAboutAppWindowNotices>(argc, argv);
}

#include "tst_AboutAppWindowNotices.moc"
