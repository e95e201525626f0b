#include "FileDialogCall.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

class TXFileDialogTest : public TestBase
{
    Q_OBJECT

private slots:
    void showsAndReturnsWhatQtDoes_data() { addOperations(); }
    void showsAndReturnsWhatQtDoes();
    void freshKeyStartsAtTheArgument_data() { addOperations(); }
    void freshKeyStartsAtTheArgument();
    void remembersWhatWasChosen_data() { addOperations(); }
    void remembersWhatWasChosen();
    void nextCallStartsWhereTheLastOneEnded_data();
    void nextCallStartsWhereTheLastOneEnded();
    void listsRememberTheFirstEntry_data();
    void listsRememberTheFirstEntry();
    void cancelGivesNothingAndKeepsTheFolder_data() { addOperations(); }
    void cancelGivesNothingAndKeepsTheFolder();
    void emptyKeysTouchNothing_data() { addOperations(); }
    void emptyKeysTouchNothing();
    void chosenFilterIsRecalledByTheNextCall_data() { addFileOperations(); }
    void chosenFilterIsRecalledByTheNextCall();
    void cancelledDialogStoresTheSelectedFilter_data() { addFileOperations(); }
    void cancelledDialogStoresTheSelectedFilter();
    void filterWithoutAPlaceIsNotStored_data() { addFileOperations(); }
    void filterWithoutAPlaceIsNotStored();
    void saveKeepsTheProposedNameInTheRememberedFolder();
    void existingFolderAsUrlIsLookedForInTheRememberedOne();
    void fileUrlIsRememberedThoughNoCallCanStartThere();
    void oddNamesComeBackWhole_data();
    void oddNamesComeBackWhole();
    void damagedMemoryOpensAnUsableDialog_data();
    void damagedMemoryOpensAnUsableDialog();

private:
    void prepare() override;
    static void addOperations();
    static void addFileOperations();
    [[nodiscard]] FileDialogCall call() const;
    QString chooseInSecond(FileDialogCall &call) const;

    QTemporaryDir home;
    const QString first = home.filePath(QStringLiteral("first"));
    const QString second = home.filePath(QStringLiteral("second"));
    const QString key = QStringLiteral("Folder/Last");
    const QString filterKey = QStringLiteral("Filter/Last");
};

namespace {

const QString kText = QStringLiteral("Text (*.txt)");
const QString kAll = QStringLiteral("All (*)");
const QString kBoth = kText + QStringLiteral(";;") + kAll;

void makeFile(const QString &path)
{
    QFile file(path);
    QVERIFY2(file.open(QFile::WriteOnly), qPrintable(path));
}

QString remembered(const QString &key)
{
    return QSettings().value(key).toString();
}

QString urlText(const QString &path)
{
    return QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
}

} // namespace

void TXFileDialogTest::prepare()
{
    for (const QString &folder : {first, second}) {
        QVERIFY(QDir().mkpath(folder + QStringLiteral("/inner")));
        makeFile(folder + QStringLiteral("/a.txt"));
        makeFile(folder + QStringLiteral("/b.txt"));
        makeFile(folder + QStringLiteral("/inner/c.txt"));
    }
}

void TXFileDialogTest::addOperations()
{
    QTest::addColumn<int>("operation");
    QTest::newRow("getExistingDirectory") << int(FileOperation::getExistingDirectory);
    QTest::newRow("getExistingDirectoryUrl") << int(FileOperation::getExistingDirectoryUrl);
    addFileOperations();
}

void TXFileDialogTest::addFileOperations()
{
    QTest::addColumn<int>("operation");
    QTest::newRow("getOpenFileName") << int(FileOperation::getOpenFileName);
    QTest::newRow("getOpenFileNames") << int(FileOperation::getOpenFileNames);
    QTest::newRow("getSaveFileName") << int(FileOperation::getSaveFileName);
    QTest::newRow("getOpenFileUrl") << int(FileOperation::getOpenFileUrl);
    QTest::newRow("getOpenFileUrls") << int(FileOperation::getOpenFileUrls);
    QTest::newRow("getSaveFileUrl") << int(FileOperation::getSaveFileUrl);
}

FileDialogCall TXFileDialogTest::call() const
{
    FileDialogCall call;
    const int *operation = static_cast<int *>(QTest::qData("operation", qMetaTypeId<int>()));
    call.operation = static_cast<FileOperation>(*operation);
    call.options = QFileDialog::DontConfirmOverwrite;
    call.dir = first;
    call.filter = kBoth;
    return call;
}

/// Starts in the second folder and takes there what suits the operation. Bare names: with several
/// files Qt's dialog adds a file of the same name from the folder that it shows.
QString TXFileDialogTest::chooseInSecond(FileDialogCall &call) const
{
    call.dir = second;
    call.user.typed = call.isForFolders() ? QStringLiteral("inner") : QStringLiteral("a.txt");
    return second + u'/' + call.user.typed;
}

void TXFileDialogTest::showsAndReturnsWhatQtDoes()
{
    QWidget parent;
    QString selectedFilter = kAll;
    FileDialogCall ours = call();
    ours.parent = &parent;
    ours.caption = QStringLiteral("Choose %1 & go");
    ours.selectedFilter = &selectedFilter;
    ours.options |= QFileDialog::ReadOnly | QFileDialog::HideNameFilterDetails;
    ours.schemes = {QStringLiteral("file"), QStringLiteral("sftp")};
    const QString path = chooseInSecond(ours);
    FileDialogCall plain = ours;

    const QStringList chosen = ours.run(key, filterKey);
    const QString filterOfOurs = std::exchange(selectedFilter, kAll);
    QCOMPARE(chosen, plain.runWithoutMemory());
    QCOMPARE(chosen, QStringList(ours.isForUrls() ? urlText(path) : path));
    QCOMPARE(filterOfOurs, selectedFilter);
    QVERIFY(ours.shown == plain.shown);
    QCOMPARE(ours.shown.folder, second);
    QCOMPARE(ours.shown.title, ours.caption);
}

void TXFileDialogTest::freshKeyStartsAtTheArgument()
{
    FileDialogCall call = this->call();
    call.user.cancels = true;
    call.run(key);
    QCOMPARE(call.shown.folder, first);
    call.dir = second;
    call.run(key);
    QCOMPARE(call.shown.folder, second);
}

void TXFileDialogTest::remembersWhatWasChosen()
{
    FileDialogCall call = this->call();
    const QString chosen = chooseInSecond(call);
    call.run(key);
    QCOMPARE(remembered(key),
             call.isForUrls()          ? urlText(chosen)
                 : call.isForFolders() ? chosen
                                       : second);
    QCOMPARE(QSettings().allKeys(), QStringList(key));
}

void TXFileDialogTest::nextCallStartsWhereTheLastOneEnded_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<QString>("start");
    QTest::newRow("folder") << int(FileOperation::getExistingDirectory) << "/inner";
    QTest::newRow("file") << int(FileOperation::getOpenFileName) << "";
    QTest::newRow("files") << int(FileOperation::getOpenFileNames) << "";
    QTest::newRow("file to save") << int(FileOperation::getSaveFileName) << "";
}

void TXFileDialogTest::nextCallStartsWhereTheLastOneEnded()
{
    QFETCH(const QString, start);
    FileDialogCall call = this->call();
    chooseInSecond(call);
    call.run(key);
    call.dir = first;
    call.user = {{}, {}, true};
    call.run(key);
    QCOMPARE(call.shown.folder, second + start);
    QCOMPARE(call.shown.proposal, QString());
}

void TXFileDialogTest::listsRememberTheFirstEntry_data()
{
    QTest::addColumn<int>("operation");
    QTest::newRow("names") << int(FileOperation::getOpenFileNames);
    QTest::newRow("urls") << int(FileOperation::getOpenFileUrls);
}

void TXFileDialogTest::listsRememberTheFirstEntry()
{
    FileDialogCall call = this->call();
    const QString one = second + QStringLiteral("/inner/c.txt");
    const QString other = second + QStringLiteral("/b.txt");
    call.dir = second;
    call.user.typed = QStringLiteral("\"inner/c.txt\" \"b.txt\"");
    const QStringList chosen = call.run(key);
    QCOMPARE(chosen,
             call.isForUrls() ? QStringList({urlText(one), urlText(other)})
                              : QStringList({one, other}));
    QCOMPARE(remembered(key), call.isForUrls() ? urlText(one) : second + QStringLiteral("/inner"));
}

void TXFileDialogTest::cancelGivesNothingAndKeepsTheFolder()
{
    FileDialogCall call = this->call();
    chooseInSecond(call);
    call.user.cancels = true;
    QCOMPARE(call.run(key), QStringList());
    QVERIFY(!QSettings().contains(key));
    QSettings().setValue(key, second);
    QCOMPARE(call.run(key), QStringList());
    QCOMPARE(remembered(key), second);
}

void TXFileDialogTest::emptyKeysTouchNothing()
{
    QString selectedFilter = kText;
    FileDialogCall call = this->call();
    call.selectedFilter = &selectedFilter;
    chooseInSecond(call);
    QVERIFY(!call.run({}, {}).isEmpty());
    QCOMPARE(QSettings().allKeys(), QStringList());
}

void TXFileDialogTest::chosenFilterIsRecalledByTheNextCall()
{
    QString selectedFilter = kText;
    FileDialogCall call = this->call();
    call.selectedFilter = &selectedFilter;
    chooseInSecond(call);
    call.user.chosenFilter = kAll;
    call.run({}, filterKey);
    QCOMPARE(selectedFilter, kAll);
    QCOMPARE(remembered(filterKey), kAll);

    selectedFilter = kText;
    call.user = {{}, {}, true};
    call.run({}, filterKey);
    QCOMPARE(call.shown.filter, kAll);
    QCOMPARE(selectedFilter, kAll);
    QCOMPARE(QSettings().allKeys(), QStringList(filterKey));
}

void TXFileDialogTest::cancelledDialogStoresTheSelectedFilter()
{
    QString selectedFilter = kText;
    FileDialogCall call = this->call();
    call.selectedFilter = &selectedFilter;
    call.user = {{}, kAll, true};
    call.run(key, filterKey);
    QCOMPARE(remembered(filterKey), kText);
    QCOMPARE(QSettings().allKeys(), QStringList(filterKey));
}

void TXFileDialogTest::filterWithoutAPlaceIsNotStored()
{
    QSettings().setValue(filterKey, kAll);
    FileDialogCall call = this->call();
    chooseInSecond(call);
    QVERIFY(!call.run({}, filterKey).isEmpty());
    QCOMPARE(call.shown.filter, kText);
    QCOMPARE(remembered(filterKey), kAll);
}

void TXFileDialogTest::saveKeepsTheProposedNameInTheRememberedFolder()
{
    QSettings().setValue(key, second);
    FileDialogCall call;
    call.operation = FileOperation::getSaveFileName;
    call.dir = first + QStringLiteral("/report.txt");
    QCOMPARE(call.run(key), QStringList(second + QStringLiteral("/report.txt")));
    QCOMPARE(call.shown.folder, second);
    QCOMPARE(call.shown.proposal, QStringLiteral("report.txt"));
}

void TXFileDialogTest::existingFolderAsUrlIsLookedForInTheRememberedOne()
{
    QSettings().setValue(key, urlText(second));
    FileDialogCall call;
    call.operation = FileOperation::getExistingDirectoryUrl;
    call.dir = first + QStringLiteral("/inner");
    call.user.cancels = true;
    call.run(key);
    QCOMPARE(call.shown.folder, second + QStringLiteral("/inner"));
}

// The text of a file's URL with a name behind it is no place, so Qt opens where the last dialog
// was.
void TXFileDialogTest::fileUrlIsRememberedThoughNoCallCanStartThere()
{
    QSettings().setValue(key, urlText(second + QStringLiteral("/a.txt")));
    FileDialogCall call;
    call.operation = FileOperation::getOpenFileName;
    call.dir = first;
    call.user.cancels = true;
    call.runWithoutMemory();
    call.operation = FileOperation::getOpenFileUrl;
    call.dir = second;
    call.run(key);
    QCOMPARE(call.shown.folder, first);
}

void TXFileDialogTest::oddNamesComeBackWhole_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << " a  b";
    QTest::newRow("umlauts") << QStringLiteral("Übergrößen");
    QTest::newRow("percent") << "50%20 %41 100%";
    QTest::newRow("hash and question mark") << "a#b?c";
    QTest::newRow("colon and semicolon") << "a:b;c";
    QTest::newRow("other planes") << QStringLiteral("\U0001F600");
}

void TXFileDialogTest::oddNamesComeBackWhole()
{
    QFETCH(const QString, name);
    const QString folder = home.filePath(name);
    QVERIFY(QDir().mkpath(folder));
    makeFile(folder + u'/' + name);
    FileDialogCall call;
    call.dir = folder;
    for (const auto operation : {FileOperation::getOpenFileName, FileOperation::getOpenFileUrl}) {
        QSettings().clear();
        call.operation = operation;
        call.user = {name, {}, false};
        const QString file = folder + u'/' + name;
        QCOMPARE(call.run(key), QStringList(call.isForUrls() ? urlText(file) : file));
        QCOMPARE(remembered(key), call.isForUrls() ? urlText(file) : folder);
    }
    call.operation = FileOperation::getExistingDirectoryUrl;
    call.dir.clear();
    QSettings().setValue(key, urlText(folder));
    call.user = {{}, {}, true};
    call.run(key);
    QCOMPARE(call.shown.folder, folder);
}

void TXFileDialogTest::damagedMemoryOpensAnUsableDialog_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("number") << QVariant(42);
    QTest::newRow("list") << QVariant(QVariantList{1, QStringLiteral("/a")});
    QTest::newRow("bytes") << QVariant(QByteArray("\x00\xff\x01/\x7f", 5));
    QTest::newRow("folder with a NUL") << QVariant(QByteArray("/tmp\0/x", 7));
    QTest::newRow("invalid") << QVariant();
    QTest::newRow("folder that is gone") << QVariant(home.filePath(QStringLiteral("gone/deep")));
    QTest::newRow("file") << QVariant(first + QStringLiteral("/a.txt"));
    QTest::newRow("very long") << QVariant(QString(200000, u'x'));
    QTest::newRow("very deep") << QVariant(QStringLiteral("/x").repeated(100000));
    QTest::newRow("newlines") << QVariant("\n\n/\r");
    QTest::newRow("broken url") << QVariant("http://[::g]:x/%zz");
}

void TXFileDialogTest::damagedMemoryOpensAnUsableDialog()
{
    QFETCH(const QVariant, value);
    for (int row = 0; row <= int(FileOperation::getSaveFileUrl); ++row) {
        QSettings().setValue(key, value);
        QSettings().setValue(filterKey, value);
        QString selectedFilter;
        FileDialogCall call;
        call.operation = static_cast<FileOperation>(row);
        call.options = QFileDialog::DontConfirmOverwrite;
        call.filter = kBoth;
        call.selectedFilter = &selectedFilter;
        for (const QString &dir : {second, second + QStringLiteral("/report.txt"), QString()}) {
            call.dir = dir;
            call.user = {{}, {}, true};
            call.run(key, filterKey);
            QVERIFY2(QFileInfo(call.shown.folder).isDir(), qPrintable(call.shown.folder));
        }
        QSettings().remove(filterKey);
        chooseInSecond(call);
        call.user.typed = call.isForFolders() ? second : second + QStringLiteral("/a.txt");
        call.user.cancels = false;
        QVERIFY(!call.run(key, filterKey).isEmpty());
    }
}

int main(int argc, char **argv)
{
    return runTest<TXFileDialogTest>(argc, argv);
}

#include "tst_TXFileDialog.moc"
