#include "GvfsPath.h"
#include "ProgramRun.h"
#include "TestBase.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

namespace {

GvfsPath::Standing standing(const GvfsPath &path)
{
    ProgramRun run;
    QSignalSpy finished(&run, SIGNAL(finished(ProgramResult)));
    run.start("ls", path.listArguments(), {}, 10'000);
    finished.wait();
    return path.standing(finished.first().first().value<ProgramResult>());
}

} // namespace

class TestGvfsPath : public TestBase
{
    Q_OBJECT

private slots:
    void pathsAreTakenApart_data();
    void pathsAreTakenApart();
    void shareIsConnectedWhileItsNameIsListed_data();
    void shareIsConnectedWhileItsNameIsListed();
    void linkInTheFolderIsNotFollowed();
    void otherNamesMayBeInNoEncoding();
    void folderThatDoesNotAnswerSaysNothing_data();
    void folderThatDoesNotAnswerSaysNothing();
};

void TestGvfsPath::pathsAreTakenApart_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("share");
    QTest::newRow("share") << "/run/user/0/gvfs/smb-share:server=nas,share=a"
                           << "/run/user/0/gvfs"
                           << "smb-share:server=nas,share=a";
    QTest::newRow("folder in it") << "/run/gvfs/smb-share:server=nas,share=a/gvfs/smb-share:b/c"
                                  << "/run/gvfs"
                                  << "smb-share:server=nas,share=a";
    QTest::newRow("in the home folder") << "/home/mia/.gvfs/smb-share:x"
                                        << "/home/mia/.gvfs"
                                        << "smb-share:x";
    QTest::newRow("other protocol") << "/run/gvfs/sftp:host=nas"
                                    << ""
                                    << "";
    QTest::newRow("other folder") << "/run/agvfs/smb-share:x"
                                  << ""
                                  << "";
    QTest::newRow("no share") << "/run/gvfs/smb-share:"
                              << ""
                              << "";
    QTest::newRow("empty") << ""
                           << ""
                           << "";
}

void TestGvfsPath::pathsAreTakenApart()
{
    QFETCH(QString, path);
    QFETCH(QString, folder);
    QFETCH(QString, share);
    const std::optional<GvfsPath> gvfs = GvfsPath::of(path);
    QCOMPARE(gvfs.has_value(), !folder.isEmpty());
    QCOMPARE(gvfs.value_or(GvfsPath()).folder, folder);
    QCOMPARE(gvfs.value_or(GvfsPath()).share, share);
}

void TestGvfsPath::shareIsConnectedWhileItsNameIsListed_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "smb-share:server=nas,share=a";
    QTest::newRow("other script") << QString::fromUtf8("smb-share:server=nas,share=図面");
    QTest::newRow("with a blank") << "smb-share:server=nas,share=a \"b\"";
}

void TestGvfsPath::shareIsConnectedWhileItsNameIsListed()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const GvfsPath path{folder.filePath("gvfs"), name};
    QCOMPARE(standing(path), GvfsPath::Standing::Gone);
    QVERIFY(QDir().mkpath(folder.filePath("gvfs/smb-share:other")));
    QCOMPARE(standing(path), GvfsPath::Standing::Gone);
    QVERIFY(QDir().mkpath(folder.filePath("gvfs/" + name)));
    QCOMPARE(standing(path), GvfsPath::Standing::Connected);
}

void TestGvfsPath::linkInTheFolderIsNotFollowed()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::link("/nonexistent", folder.filePath("smb-share:x")));
    const GvfsPath path{folder.path(), "smb-share:x"};
    QCOMPARE(standing(path), GvfsPath::Standing::Connected);
}

void TestGvfsPath::otherNamesMayBeInNoEncoding()
{
    const QTemporaryDir folder;
    const QByteArray odd = folder.path().toUtf8() + "/smb-share:server=nas,share=\xff\xfe";
    QCOMPARE(::mkdir(odd.constData(), S_IRWXU), 0);
    const GvfsPath path{folder.path(), "smb-share:x"};
    QCOMPARE(standing(path), GvfsPath::Standing::Gone);
    QVERIFY(QDir().mkpath(folder.filePath("smb-share:x")));
    QCOMPARE(standing(path), GvfsPath::Standing::Connected);
    QCOMPARE(::rmdir(odd.constData()), 0);
}

void TestGvfsPath::folderThatDoesNotAnswerSaysNothing_data()
{
    QTest::addColumn<int>("end");
    QTest::newRow("hanging") << int(ProgramResult::End::TimedOut);
    QTest::newRow("killed") << int(ProgramResult::End::Failed);
    QTest::newRow("no program") << int(ProgramResult::End::NotInstalled);
}

void TestGvfsPath::folderThatDoesNotAnswerSaysNothing()
{
    QFETCH(int, end);
    const GvfsPath path{"/run/user/0/gvfs", "smb-share:x"};
    const ProgramResult result{ProgramResult::End(end), -1, "smb-share:x\n", {}};
    QCOMPARE(path.standing(result), GvfsPath::Standing::Unknown);
}

int main(int argc, char **argv)
{
    return runTest<TestGvfsPath>(argc, argv);
}

#include "tst_GvfsPath.moc"
