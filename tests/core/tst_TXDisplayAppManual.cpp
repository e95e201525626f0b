#include "TXDisplayAppManual.h"

#include "DialogDriver.h"
#include "TestBase.h"

#include <QDesktopServices>
#include <QFile>
#include <QTemporaryDir>
#include <QTranslator>
#include <QUrl>

#include <memory>

namespace {

const QString kTitle = QStringLiteral("Warning: Cannot open PDF File");

QString manualFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/../Resources/Manual"));
}

QString missingText(const QString &name, const QString &path)
{
    return QStringLiteral("Impossible to open the following PDF : ") + name
        + QStringLiteral("\n\nPlease check if the file exist at the following path : ") + path;
}

QString refusedText(const QString &name)
{
    return QStringLiteral("Impossible to open the following PDF : ") + name
        + QStringLiteral("\n\nPlease check if a pdf reader has been installed on your computer");
}

} // namespace

/// Takes the place of the system's viewer.
class Viewer : public QObject
{
    Q_OBJECT

public:
    Viewer() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~Viewer() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened.append(url); }
};

class TestTXDisplayAppManual : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void manualIsOpenedByItsPath();
    void manualInASubFolderIsOpened();
    void nameWithDotsIsCleaned();
    void nameThatLeadsOutIsFollowed();
    void specialCharactersReachTheViewer_data();
    void specialCharactersReachTheViewer();
    void missingManualIsToldWithItsPath_data();
    void missingManualIsToldWithItsPath();
    void folderIsNoManual();
    void refusalIsTold();
    void boxStandsOverTheParent();
    void textsAreTranslatedForQObject();

private:
    /// Makes a file in the folder of this test and returns its name as seen from the manuals.
    QString makeManual(const QString &name);
    void expectWarning(DialogDriver &driver, const QString &text, QWidget *parent = nullptr);

    std::unique_ptr<QTemporaryDir> folder;
};

void TestTXDisplayAppManual::prepare()
{
    QVERIFY(QDir().mkpath(manualFolder()));
    folder = std::make_unique<QTemporaryDir>(manualFolder()
                                             + QStringLiteral("/tst_TXDisplayAppManual-XXXXXX"));
    QVERIFY(folder->isValid());
}

void TestTXDisplayAppManual::finish()
{
    folder.reset();
    // Only when they are empty, as others may have put something there.
    QDir().rmpath(manualFolder());
}

QString TestTXDisplayAppManual::makeManual(const QString &name)
{
    const QString path = folder->filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QFile::WriteOnly) || file.write("%PDF-1.4\n") < 0) {
        qWarning("%s cannot be written", qPrintable(path));
    }
    return QDir(manualFolder()).relativeFilePath(path);
}

void TestTXDisplayAppManual::expectWarning(DialogDriver &driver, const QString &text,
                                           QWidget *parent)
{
    driver.expectMessageBox([text, parent](QMessageBox &box) {
        QCOMPARE(box.windowTitle(), kTitle);
        QCOMPARE(box.text(), text);
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QCOMPARE(box.standardButtons(), QMessageBox::Ok);
        QCOMPARE(box.parentWidget(), parent);
        DialogDriver::click(box.button(QMessageBox::Ok));
    });
}

void TestTXDisplayAppManual::manualIsOpenedByItsPath()
{
    const Viewer viewer;
    const DialogDriver nobodyExpectsADialog;
    // The only one that stands in the folder of all manuals itself.
    QFile file(folder->path() + QStringLiteral(".pdf"));
    QVERIFY(file.open(QFile::WriteOnly));
    const auto tidy = qScopeGuard([&file] { file.remove(); });

    TXDisplayAppManual(QFileInfo(file).fileName(), nullptr);

    QCOMPARE(viewer.opened, {QUrl::fromLocalFile(file.fileName())});
}

void TestTXDisplayAppManual::manualInASubFolderIsOpened()
{
    const Viewer viewer;
    const DialogDriver nobodyExpectsADialog;

    TXDisplayAppManual(makeManual(QStringLiteral("fr/Manual.pdf")), nullptr);

    QCOMPARE(viewer.opened,
             {QUrl::fromLocalFile(folder->filePath(QStringLiteral("fr/Manual.pdf")))});
}

void TestTXDisplayAppManual::nameWithDotsIsCleaned()
{
    const Viewer viewer;
    const DialogDriver nobodyExpectsADialog;
    const QString name = makeManual(QStringLiteral("Manual.pdf"));

    TXDisplayAppManual(QStringLiteral("no such folder/.././/") + name, nullptr);

    QCOMPARE(viewer.opened, {QUrl::fromLocalFile(manualFolder() + u'/' + name)});
}

void TestTXDisplayAppManual::nameThatLeadsOutIsFollowed()
{
    const Viewer viewer;
    const DialogDriver nobodyExpectsADialog;
    const QString program = QCoreApplication::applicationFilePath();

    TXDisplayAppManual(QDir(manualFolder()).relativeFilePath(program), nullptr);

    QCOMPARE(viewer.opened, {QUrl::fromLocalFile(program)});
}

void TestTXDisplayAppManual::specialCharactersReachTheViewer_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blank") << QStringLiteral("The manual.pdf");
    QTest::newRow("letters") << QStringLiteral("Übersicht 日本.pdf");
    QTest::newRow("url characters") << QStringLiteral("50%20#1?x=1&y.pdf");
    QTest::newRow("place marker") << QStringLiteral("%1%2.pdf");
}

void TestTXDisplayAppManual::specialCharactersReachTheViewer()
{
    QFETCH(QString, name);
    const Viewer viewer;
    const DialogDriver nobodyExpectsADialog;

    TXDisplayAppManual(makeManual(name), nullptr);

    QCOMPARE(viewer.opened.size(), 1);
    QCOMPARE(viewer.opened.constFirst().toLocalFile(), folder->filePath(name));
}

void TestTXDisplayAppManual::missingManualIsToldWithItsPath_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    const QString manuals = manualFolder();
    const QString above = QFileInfo(manuals).path();
    QTest::newRow("name") << QStringLiteral("none.pdf") << manuals + QStringLiteral("/none.pdf");
    QTest::newRow("sub-folder") << QStringLiteral("fr/none.pdf")
                                << manuals + QStringLiteral("/fr/none.pdf");
    QTest::newRow("upwards") << QStringLiteral("../none.pdf")
                             << above + QStringLiteral("/none.pdf");
    QTest::newRow("dots") << QStringLiteral("./a/../none.pdf")
                          << manuals + QStringLiteral("/none.pdf");
    QTest::newRow("absolute") << QStringLiteral("/none.pdf")
                              << manuals + QStringLiteral("/none.pdf");
    QTest::newRow("null") << QString() << manuals;
    QTest::newRow("empty") << QStringLiteral("") << manuals;
    QTest::newRow("place markers")
        << QStringLiteral("%2%1.pdf") << manuals + QStringLiteral("/%2%1.pdf");
    QTest::newRow("control characters")
        << QStringLiteral("a\n\x01.pdf") << manuals + QStringLiteral("/a\n\x01.pdf");
    const QString veryLong(100000, u'x');
    QTest::newRow("very long") << veryLong << manuals + u'/' + veryLong;
}

void TestTXDisplayAppManual::missingManualIsToldWithItsPath()
{
    QFETCH(QString, name);
    QFETCH(QString, path);
    const Viewer viewer;
    DialogDriver driver;
    expectWarning(driver, missingText(name, path));

    TXDisplayAppManual(name, nullptr);

    QVERIFY(viewer.opened.isEmpty());
}

void TestTXDisplayAppManual::folderIsNoManual()
{
    const Viewer viewer;
    const QString name = QFileInfo(folder->path()).fileName();
    DialogDriver driver;
    expectWarning(driver, missingText(name, folder->path()));

    TXDisplayAppManual(name, nullptr);

    QVERIFY(viewer.opened.isEmpty());
}

void TestTXDisplayAppManual::refusalIsTold()
{
    // Without a screen there is nothing that opens documents; on a screen nothing is found that
    // could be started.
    const QByteArray programs = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder->path()));
    const auto restore = qScopeGuard([&programs] { qputenv("PATH", programs); });
    const QString name = makeManual(QStringLiteral("Manual.pdf"));
    DialogDriver driver;
    expectWarning(driver, refusedText(name));

    TXDisplayAppManual(name, nullptr);
}

void TestTXDisplayAppManual::boxStandsOverTheParent()
{
    QWidget window;
    DialogDriver driver;
    expectWarning(driver, missingText(QStringLiteral("x"), manualFolder() + QStringLiteral("/x")),
                  &window);
    expectWarning(driver, refusedText(makeManual(QStringLiteral("%1"))), &window);

    TXDisplayAppManual(QStringLiteral("x"), &window);
    TXDisplayAppManual(makeManual(QStringLiteral("%1")), &window);
}

void TestTXDisplayAppManual::textsAreTranslatedForQObject()
{
    class Translator : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *context, const char *source, const char *, int) const override
        {
            const QByteArray text(source);
            if (QByteArray(context) != "QObject" || !text.contains("PDF")) {
                return {};
            }
            if (text.contains("%2")) {
                return QStringLiteral("%2 fehlt: %1");
            }
            return text.contains("%1") ? QStringLiteral("kein Leser: %1") : QStringLiteral("Titel");
        }
    } translator;
    QCoreApplication::installTranslator(&translator);
    QStringList shown;
    DialogDriver driver;
    for (int i = 0; i < 2; ++i) {
        driver.expectMessageBox([&shown](QMessageBox &box) {
            shown << box.windowTitle() << box.text();
            DialogDriver::click(box.button(QMessageBox::Ok));
        });
    }
    const QString name = makeManual(QStringLiteral("a.pdf"));

    TXDisplayAppManual(QStringLiteral("x"), nullptr);
    TXDisplayAppManual(name, nullptr);

    QCOMPARE(shown,
             QStringList({QStringLiteral("Titel"), manualFolder() + QStringLiteral("/x fehlt: x"),
                          QStringLiteral("Titel"), QStringLiteral("kein Leser: ") + name}));
}

int main(int argc, char **argv)
{
    return runTest<TestTXDisplayAppManual>(argc, argv);
}

#include "tst_TXDisplayAppManual.moc"
