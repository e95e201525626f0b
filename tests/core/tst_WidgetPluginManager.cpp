#include "WidgetPluginManager.h"

#include "ConfWidget.h"
#include "IWidgetPlugin.h"
#include "TestBase.h"

#include <QCheckBox>
#include <QFile>
#include <QPluginLoader>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

namespace {

constexpr auto kGood = "goodplugin.so";
constexpr auto kFirstTwin = "namesakeone.so";
constexpr auto kSecondTwin = "namesaketwo.so";
constexpr auto kNameless = "namelessplugin.so";
constexpr auto kOther = "otherplugin.so";

/// The folder where the build puts the plug-ins.
QString builtFile(const char *file)
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/testplugins/")
        + QLatin1String(file);
}

} // namespace

class TestWidgetPluginManager : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { folder.reset(); }

private slots:
    void newManagerIsEmpty();
    void emptyFolderLeavesTheTableEmpty();
    void missingFolderLeavesTheTableEmpty();
    void pluginIsFoundUnderItsName();
    void emptyNameIsANameLikeAnyOther();
    void filesThatAreNoPluginAreSkipped();
    void truncatedLibraryIsSkipped_data();
    void truncatedLibraryIsSkipped();
    void pluginOfAnotherKindIsSkipped();
    void suffixDoesNotMatter();
    void foldersAreNotEntered();
    void namesakesMakeOneEntryAndBothStayLoaded();
    void laterFolderReplacesANamesake();
    void loadingAgainAddsAndDoesNotClear();
    void loadingTheSameFolderTwiceChangesNothing();
    void tableIsHandedOutByReference();
    void pluginOutlivesTheManager();
    void pageOfThePluginWorks();
    void loadPluginLeavesTheTableAlone();
    void loadPluginOfWhatIsNoFileGivesNull_data();
    void loadPluginOfWhatIsNoFileGivesNull();
    void folderIsBelowTheProgram_data();
    void folderIsBelowTheProgram();
    void emptyNameScansConfWidgets();

private:
    void copy(const char *file, const QString &name = {}) const;
    void write(const QString &name, const QByteArray &contents) const;
    /// The temporary folder as loadPlugins() wants it.
    QString subFolder() const { return QDir(folder->path()).dirName(); }

    std::unique_ptr<QTemporaryDir> folder;
};

void TestWidgetPluginManager::prepare()
{
    folder = std::make_unique<QTemporaryDir>(QCoreApplication::applicationDirPath()
                                             + QStringLiteral("/tst_WidgetPluginManager-XXXXXX"));
    QVERIFY(folder->isValid());
}

void TestWidgetPluginManager::copy(const char *file, const QString &name) const
{
    const QString target = folder->filePath(name.isEmpty() ? QString::fromLatin1(file) : name);
    QVERIFY2(QFile::copy(builtFile(file), target), qPrintable(target));
}

void TestWidgetPluginManager::write(const QString &name, const QByteArray &contents) const
{
    QFile file(folder->filePath(name));
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(contents), contents.size());
}

void TestWidgetPluginManager::newManagerIsEmpty()
{
    copy(kGood);
    const WidgetPluginManager manager;

    QVERIFY(manager.plugins().isEmpty());
    QCOMPARE(manager.plugin(QStringLiteral("good")), nullptr);
    QCOMPARE(manager.plugin(QString()), nullptr);
}

void TestWidgetPluginManager::emptyFolderLeavesTheTableEmpty()
{
    const WidgetPluginManager manager;
    manager.loadPlugins(subFolder());

    QVERIFY(manager.plugins().isEmpty());
    QCOMPARE(manager.plugin(QStringLiteral("anything")), nullptr);
}

void TestWidgetPluginManager::missingFolderLeavesTheTableEmpty()
{
    const WidgetPluginManager manager;
    manager.loadPlugins(subFolder() + QStringLiteral("/missing"));

    QVERIFY(manager.plugins().isEmpty());
    QCOMPARE(manager.plugin(QStringLiteral("anything")), nullptr);
}

void TestWidgetPluginManager::pluginIsFoundUnderItsName()
{
    copy(kGood);
    const WidgetPluginManager manager;
    manager.loadPlugins(subFolder());

    QCOMPARE(manager.plugins().keys(), QStringList(QStringLiteral("good")));
    IWidgetPlugin *plugin = manager.plugin(QStringLiteral("good"));
    QVERIFY(plugin);
    QCOMPARE(plugin->pageTitle(), QStringLiteral("Good"));
    QCOMPARE(manager.plugin(QStringLiteral("Good")), nullptr);
    QCOMPARE(manager.plugin(QString()), nullptr);
}

void TestWidgetPluginManager::emptyNameIsANameLikeAnyOther()
{
    copy(kNameless);
    copy(kGood);
    const WidgetPluginManager manager;
    manager.loadPlugins(subFolder());

    QCOMPARE(manager.plugins().size(), 2);
    QVERIFY(manager.plugin(QString()));
    QCOMPARE(manager.plugin(QLatin1String("")), manager.plugin(QString()));
    QCOMPARE(manager.plugin(QString())->pageTitle(), QStringLiteral("Nameless"));
}

void TestWidgetPluginManager::filesThatAreNoPluginAreSkipped()
{
    write(QStringLiteral("text.so"), "This is no library.\n");
    write(QStringLiteral("empty.so"), "");
    write(QStringLiteral("header.so"),
          "\x7f"
          "ELF");
    write(QStringLiteral("zeros.so"), QByteArray(100000, '\0'));
    write(QStringLiteral("readme.txt"), "QTMETADATA !");
    QVERIFY(QFile::link(QStringLiteral("/no/such/plugin.so"),
                        folder->filePath(QStringLiteral("dangling.so"))));
    copy(kGood);
    const WidgetPluginManager manager;
    manager.loadPlugins(subFolder());

    QCOMPARE(manager.plugins().keys(), QStringList(QStringLiteral("good")));
}

void TestWidgetPluginManager::truncatedLibraryIsSkipped_data()
{
    QTest::addColumn<int>("bytes");
    for (const int bytes : {1, 16, 63, 64, 512, 4096, 16384}) {
        QTest::addRow("%d bytes", bytes) << bytes;
    }
}

void TestWidgetPluginManager::truncatedLibraryIsSkipped()
{
    QFETCH(int, bytes);
    QFile library(builtFile(kGood));
    QVERIFY(library.open(QFile::ReadOnly));
    QVERIFY(library.size() / 2 > bytes);
    write(QStringLiteral("truncated.so"), library.read(bytes));
    const WidgetPluginManager manager;
    manager.loadPlugins(subFolder());

    QVERIFY(manager.plugins().isEmpty());
}

void TestWidgetPluginManager::pluginOfAnotherKindIsSkipped()
{
    copy(kOther);
    const WidgetPluginManager manager;
    manager.loadPlugins(subFolder());

    QPluginLoader loader(folder->filePath(QLatin1String(kOther)));
    QVERIFY2(loader.instance(), qPrintable(loader.errorString()));
    QVERIFY(manager.plugins().isEmpty());
    QCOMPARE(manager.loadPlugin(folder->filePath(QLatin1String(kOther))), nullptr);
}

void TestWidgetPluginManager::suffixDoesNotMatter()
{
    copy(kGood, QStringLiteral("page.conf"));
    copy(kFirstTwin, QStringLiteral("no suffix"));
    const WidgetPluginManager manager;
    manager.loadPlugins(subFolder());

    QCOMPARE(manager.plugins().size(), 2);
}

void TestWidgetPluginManager::foldersAreNotEntered()
{
    QVERIFY(QDir(folder->path()).mkpath(QStringLiteral("inner.so")));
    copy(kGood, QStringLiteral("inner.so/goodplugin.so"));
    copy(kFirstTwin);
    const WidgetPluginManager manager;
    manager.loadPlugins(subFolder());

    QCOMPARE(manager.plugins().keys(), QStringList(QStringLiteral("twin")));
    manager.loadPlugins(subFolder() + QStringLiteral("/inner.so"));
    QVERIFY(manager.plugin(QStringLiteral("good")));
}

void TestWidgetPluginManager::namesakesMakeOneEntryAndBothStayLoaded()
{
    copy(kFirstTwin);
    copy(kSecondTwin);
    const WidgetPluginManager manager;
    IWidgetPlugin *first = manager.loadPlugin(folder->filePath(QLatin1String(kFirstTwin)));
    IWidgetPlugin *second = manager.loadPlugin(folder->filePath(QLatin1String(kSecondTwin)));
    QVERIFY(first);
    QVERIFY(second);
    QVERIFY(first != second);
    manager.loadPlugins(subFolder());

    QCOMPARE(manager.plugins().size(), 1);
    IWidgetPlugin *winner = manager.plugin(QStringLiteral("twin"));
    QVERIFY(winner == first || winner == second);
    QCOMPARE(first->pageTitle(), QStringLiteral("First twin"));
    QCOMPARE(second->pageTitle(), QStringLiteral("Second twin"));
}

void TestWidgetPluginManager::laterFolderReplacesANamesake()
{
    for (const char *name : {"a", "b"}) {
        QVERIFY(QDir(folder->path()).mkpath(QLatin1String(name)));
    }
    copy(kFirstTwin, QStringLiteral("a/twin.so"));
    copy(kSecondTwin, QStringLiteral("b/twin.so"));
    const WidgetPluginManager manager;

    manager.loadPlugins(subFolder() + QStringLiteral("/a"));
    IWidgetPlugin *first = manager.plugin(QStringLiteral("twin"));
    QVERIFY(first);
    QCOMPARE(first->pageTitle(), QStringLiteral("First twin"));
    manager.loadPlugins(subFolder() + QStringLiteral("/b"));

    QCOMPARE(manager.plugins().size(), 1);
    QCOMPARE(manager.plugin(QStringLiteral("twin"))->pageTitle(), QStringLiteral("Second twin"));
    QCOMPARE(first->pageTitle(), QStringLiteral("First twin"));
}

void TestWidgetPluginManager::loadingAgainAddsAndDoesNotClear()
{
    copy(kGood);
    const WidgetPluginManager manager;
    manager.loadPlugins(subFolder());
    QVERIFY(QFile::remove(folder->filePath(QLatin1String(kGood))));
    copy(kFirstTwin);
    manager.loadPlugins(subFolder());
    manager.loadPlugins(QStringLiteral("no such folder"));

    QCOMPARE(manager.plugins().size(), 2);
    QVERIFY(manager.plugin(QStringLiteral("good")));
    QVERIFY(manager.plugin(QStringLiteral("twin")));
}

void TestWidgetPluginManager::loadingTheSameFolderTwiceChangesNothing()
{
    copy(kGood);
    const WidgetPluginManager manager;
    manager.loadPlugins(subFolder());
    // A detached copy, as the manager gives its own table.
    QHash<QString, IWidgetPlugin *> first = manager.plugins();
    first.detach();
    manager.loadPlugins(subFolder());

    QCOMPARE(manager.plugins(), first);
}

void TestWidgetPluginManager::tableIsHandedOutByReference()
{
    copy(kGood);
    const WidgetPluginManager manager;
    const QHash<QString, IWidgetPlugin *> &table = manager.plugins();
    QVERIFY(table.isEmpty());
    manager.loadPlugins(subFolder());

    QCOMPARE(table.size(), 1);
    QCOMPARE(&manager.plugins(), &table);
}

void TestWidgetPluginManager::pluginOutlivesTheManager()
{
    copy(kGood);
    IWidgetPlugin *plugin = nullptr;
    {
        const WidgetPluginManager manager;
        manager.loadPlugins(subFolder());
        plugin = manager.plugin(QStringLiteral("good"));
        QVERIFY(plugin);
    }

    QCOMPARE(plugin->pluginName(), QStringLiteral("good"));
    const std::unique_ptr<ConfWidget> page(plugin->createPage(nullptr));
    QVERIFY(page);
    const WidgetPluginManager another;
    another.loadPlugins(subFolder());
    QCOMPARE(another.plugin(QStringLiteral("good")), plugin);
}

void TestWidgetPluginManager::pageOfThePluginWorks()
{
    copy(kGood);
    const WidgetPluginManager manager;
    manager.loadPlugins(subFolder());
    IWidgetPlugin *plugin = manager.plugin(QStringLiteral("good"));
    QVERIFY(plugin);
    QWidget window;
    ConfWidget *page = plugin->createPage(&window);
    QSignalSpy changed(page, SIGNAL(confWidgetChanged()));

    QCOMPARE(page->parent(), &window);
    QVERIFY(plugin->createPage(&window) != page);
    page->load({{QStringLiteral("enabled"), true}});
    QCOMPARE(changed.count(), 0);
    QCOMPARE(page->save().value(QStringLiteral("enabled")), QVariant(true));
    page->findChild<QCheckBox *>()->click();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(page->save().value(QStringLiteral("enabled")), QVariant(false));
}

void TestWidgetPluginManager::loadPluginLeavesTheTableAlone()
{
    const WidgetPluginManager manager;
    IWidgetPlugin *plugin = manager.loadPlugin(builtFile(kGood));

    QVERIFY(plugin);
    QCOMPARE(manager.loadPlugin(builtFile(kGood)), plugin);
    QVERIFY(manager.plugins().isEmpty());
}

void TestWidgetPluginManager::loadPluginOfWhatIsNoFileGivesNull_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("missing") << QStringLiteral("/no/such/plugin.so");
    QTest::newRow("folder") << QDir::tempPath();
    QTest::newRow("control characters") << QStringLiteral("/\x01\n\t.so");
    QTest::newRow("very long") << QString(1000000, u'x');
}

void TestWidgetPluginManager::loadPluginOfWhatIsNoFileGivesNull()
{
    QFETCH(QString, path);
    const WidgetPluginManager manager;

    QCOMPARE(manager.loadPlugin(path), nullptr);
}

void TestWidgetPluginManager::folderIsBelowTheProgram_data()
{
    QTest::addColumn<QString>("subFolder");
    QTest::addColumn<QString>("path");
    QTest::newRow("null") << QString() << QStringLiteral("/ConfWidgets");
    QTest::newRow("empty") << QStringLiteral("") << QStringLiteral("/ConfWidgets");
    QTest::newRow("named") << QStringLiteral("Pages") << QStringLiteral("/Pages");
    QTest::newRow("deeper") << QStringLiteral("a/b") << QStringLiteral("/a/b");
    QTest::newRow("blank") << QStringLiteral(" ") << QStringLiteral("/ ");
    QTest::newRow("by name") << QStringLiteral("ConfWidgets") << QStringLiteral("/ConfWidgets");
}

void TestWidgetPluginManager::folderIsBelowTheProgram()
{
    QFETCH(QString, subFolder);
    QFETCH(QString, path);
    const WidgetPluginManager manager;

    QCOMPARE(manager.buildPluginDir(subFolder),
             QDir(QCoreApplication::applicationDirPath() + path));
    QCOMPARE(manager.buildPluginDir(subFolder).absolutePath(),
             QCoreApplication::applicationDirPath() + path);
}

void TestWidgetPluginManager::emptyNameScansConfWidgets()
{
    const QString program = QCoreApplication::applicationDirPath();
    QDir confWidgets(program + QStringLiteral("/ConfWidgets"));
    // A run that was killed leaves it behind.
    QVERIFY(confWidgets.removeRecursively());
    QVERIFY(confWidgets.mkpath(QStringLiteral(".")));
    const auto tidy = qScopeGuard([&] { confWidgets.removeRecursively(); });
    QVERIFY(QFile::copy(builtFile(kGood), confWidgets.filePath(QLatin1String(kGood))));
    const WidgetPluginManager byDefault;
    byDefault.loadPlugins(QString());
    const WidgetPluginManager byName;
    byName.loadPlugins(QStringLiteral("ConfWidgets"));

    QCOMPARE(byDefault.plugins().keys(), QStringList(QStringLiteral("good")));
    QCOMPARE(byName.plugins(), byDefault.plugins());
}

int main(int argc, char **argv)
{
    return runTest<TestWidgetPluginManager>(argc, argv);
}

#include "tst_WidgetPluginManager.moc"
