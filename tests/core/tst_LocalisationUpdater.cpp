#include "LocalisationUpdater.h"

#include "InstalledHelper.h"
#include "OrdinaryRights.h"
#include "TXError.h"
#include "TestBase.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTranslator>

#include <sys/stat.h>

#include <memory>

namespace {

const QString kStyleText = QStringLiteral("No Style has been loaded.");
const QString kStyleTextInFrench = QStringLiteral("Aucun style n'a \u00e9t\u00e9 charg\u00e9.");

QString translationsFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/../Resources/translations"));
}

QString styleText()
{
    return QCoreApplication::translate("QObject", "No Style has been loaded.");
}

/// Counts the changes of language that a widget is told.
class LanguageListener : public QWidget
{
public:
    int changes = 0;

protected:
    void changeEvent(QEvent *event) override
    {
        changes += event->type() == QEvent::LanguageChange ? 1 : 0;
        QWidget::changeEvent(event);
    }
};

} // namespace

/// Translations of the application; the other operations have tests of their own.
class TestLocalisationUpdater : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void translationIsInstalled();
    void countryFallsBackToTheLanguage();
    void lastPointerTakesTheTranslationOut();
    void installingAgainReplacesWhatIsLetGo();
    void missingTranslationIsNoError_data();
    void missingTranslationIsNoError();
    void whatIsNoFileIsNoTranslation_data();
    void whatIsNoFileIsNoTranslation();
    void brokenTranslationIsAnError_data();
    void brokenTranslationIsAnError();
    void translationThatNeedsItselfIsAnError();
    void brokenTranslationNeedsNoError();
    void failureIsToldInTheLanguageOfTheMoment();
    void unreadableTranslationIsAnError();
    void failedLoadingLeavesNothingBehind();
    void translationCutShortAnywhereIsHarmless();
    void withoutApplicationNothingHappens();
    void anyApplicationObjectWillDo_data();
    void anyApplicationObjectWillDo();

private:
    /// A name that no other test has.
    [[nodiscard]] QString module() const { return QFileInfo(folder->path()).fileName(); }
    [[nodiscard]] QString path() const
    {
        return translationsFolder() + u'/' + module() + QStringLiteral("_fr.qm");
    }
    [[nodiscard]] bool copyTranslation() const { return QFile::copy(builtTranslation(), path()); }
    [[nodiscard]] bool write(const QByteArray &bytes) const
    {
        QFile file(path());
        return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size();
    }
    [[nodiscard]] QSharedPointer<QTranslator> update(TXError *error) const
    {
        return LocalisationUpdater::updateLocalisationOfApp(module(), "fr", error);
    }
    static QList<QTranslator *> translators()
    {
        return qApp->findChildren<QTranslator *>(QString(), Qt::FindDirectChildrenOnly);
    }

    std::unique_ptr<QTemporaryDir> folder;
};

void TestLocalisationUpdater::prepare()
{
    QVERIFY(QDir().mkpath(translationsFolder()));
    folder = std::make_unique<QTemporaryDir>(translationsFolder()
                                             + QStringLiteral("/tst_LocalisationUpdater-XXXXXX"));
    QVERIFY(folder->isValid());
}

void TestLocalisationUpdater::finish()
{
    QFile::remove(path());
    QDir().rmdir(path());
    folder.reset();
    // Only when they are empty, as others may have put something there.
    QDir().rmpath(translationsFolder());
}

void TestLocalisationUpdater::translationIsInstalled()
{
    QVERIFY(copyTranslation());
    LanguageListener widget;
    TXError error;

    const QSharedPointer<QTranslator> translator = update(&error);

    QVERIFY(translator);
    QCOMPARE(translator->parent(), qApp);
    QCOMPARE(translator->filePath(), path());
    QCOMPARE(styleText(), kStyleTextInFrench);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(widget.changes, 1);
    QVERIFY(!error.isValid());
}

void TestLocalisationUpdater::countryFallsBackToTheLanguage()
{
    QVERIFY(copyTranslation());

    const auto translator =
        LocalisationUpdater::updateLocalisationOfApp(module(), "fr_CA", nullptr);

    QVERIFY(translator);
    QCOMPARE(styleText(), kStyleTextInFrench);
}

void TestLocalisationUpdater::lastPointerTakesTheTranslationOut()
{
    QVERIFY(copyTranslation());
    QSharedPointer<QTranslator> first = update(nullptr);
    QSharedPointer<QTranslator> second = first;

    first.reset();
    QCOMPARE(styleText(), kStyleTextInFrench);

    second.reset();
    QCOMPARE(styleText(), kStyleText);
    QCOMPARE(translators(), QList<QTranslator *>());
}

void TestLocalisationUpdater::installingAgainReplacesWhatIsLetGo()
{
    QVERIFY(copyTranslation());
    QSharedPointer<QTranslator> translator;

    for (int round = 0; round < 10; ++round) {
        translator = update(nullptr);
        QCOMPARE(styleText(), kStyleTextInFrench);
        QCOMPARE(translators(), QList<QTranslator *>{translator.data()});
    }
}

void TestLocalisationUpdater::missingTranslationIsNoError_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("language");
    QTest::newRow("language") << QString() << "de";
    QTest::newRow("no language") << QString() << "";
    QTest::newRow("module") << "no such module"
                            << "fr";
    QTest::newRow("way out") << "../translations/x"
                             << "fr";
}

void TestLocalisationUpdater::missingTranslationIsNoError()
{
    QFETCH(QString, module);
    QFETCH(QString, language);
    QVERIFY(copyTranslation());
    TXError error;

    QVERIFY(!LocalisationUpdater::updateLocalisationOfApp(
        module.isEmpty() ? this->module() : module, language, &error));

    QVERIFY(!error.isValid());
    QCOMPARE(styleText(), kStyleText);
    QCOMPARE(translators(), QList<QTranslator *>());
}

void TestLocalisationUpdater::whatIsNoFileIsNoTranslation_data()
{
    QTest::addColumn<bool>("isFolder");
    QTest::newRow("folder") << true;
    // To open it would wait for ever.
    QTest::newRow("pipe") << false;
}

void TestLocalisationUpdater::whatIsNoFileIsNoTranslation()
{
    QFETCH(bool, isFolder);
    QVERIFY(isFolder ? QDir().mkdir(path())
                     : ::mkfifo(QFile::encodeName(path()).constData(), 0600) == 0);
    TXError error;

    QVERIFY(!update(&error));

    QVERIFY(!error.isValid());
}

void TestLocalisationUpdater::brokenTranslationIsAnError_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QFile built(builtTranslation());
    QVERIFY(built.open(QFile::ReadOnly));
    const QByteArray good = built.readAll();
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("No translation.");
    QTest::newRow("cut in its mark") << good.left(10);
    QTest::newRow("cut in the middle") << good.left(good.size() / 2);
    QTest::newRow("zeroes") << QByteArray(1000, '\0');
    QTest::newRow("text that reaches out of the file") << QByteArray(good).replace(
        QByteArray("\0\0\0\x19No Style", 12), QByteArray("\x7f\0\0\x19No Style", 12));
}

void TestLocalisationUpdater::brokenTranslationIsAnError()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(write(bytes));
    LanguageListener widget;
    TXError error;
    error.code = 5;

    QVERIFY(!update(&error));

    QCOMPARE(error.domain, "LocalisationErrorDomain");
    QCOMPARE(error.code, 0);
    QCOMPARE(error.getLocalizedDescription(), "Translation file " + path() + " failed to load");
    QVERIFY(error.isValid());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(widget.changes, 0);
}

// Qt would load it again and again, until the program ends.
void TestLocalisationUpdater::translationThatNeedsItselfIsAnError()
{
    QFile built(builtTranslation());
    QVERIFY(built.open(QFile::ReadOnly));
    QByteArray name;
    QDataStream stream(&name, QIODevice::WriteOnly);
    stream << QString(module() + "_fr");
    const QByteArray section = QByteArray("\x96\0\0\0", 4) + char(name.size()) + name;
    QVERIFY(write(built.readAll().insert(16, section)));
    TXError error;

    QVERIFY(!update(&error));

    QCOMPARE(error.domain, "LocalisationErrorDomain");
    QCOMPARE(styleText(), kStyleText);
}

void TestLocalisationUpdater::brokenTranslationNeedsNoError()
{
    QVERIFY(write("x"));

    QVERIFY(!update(nullptr));
}

void TestLocalisationUpdater::failureIsToldInTheLanguageOfTheMoment()
{
    QVERIFY(write("x"));
    TXError error;
    QVERIFY(!update(&error));
    QTranslator french;
    QVERIFY(french.load(builtTranslation()));

    QVERIFY(QCoreApplication::installTranslator(&french));

    QCOMPARE(error.getLocalizedDescription(),
             u"Le fichier de traduction %1 ne peut pas \u00eatre charg\u00e9"_qs.arg(path()));
}

void TestLocalisationUpdater::unreadableTranslationIsAnError()
{
    QVERIFY(copyTranslation());
    QVERIFY(QFile::setPermissions(path(), QFile::WriteOwner));
    TXError error;
    const OrdinaryRights rights;
    QVERIFY(!QFile(path()).open(QFile::ReadOnly));

    QVERIFY(!update(&error));

    QCOMPARE(error.domain, "LocalisationErrorDomain");
}

void TestLocalisationUpdater::failedLoadingLeavesNothingBehind()
{
    QVERIFY(write("x"));

    QVERIFY(!update(nullptr));

    QCOMPARE(translators(), QList<QTranslator *>());
}

void TestLocalisationUpdater::translationCutShortAnywhereIsHarmless()
{
    QFile built(builtTranslation());
    QVERIFY(built.open(QFile::ReadOnly));
    const QByteArray good = built.readAll();
    for (qsizetype size = 0; size < good.size(); ++size) {
        QVERIFY(write(good.left(size)));
        TXError error;
        const QSharedPointer<QTranslator> translator = update(&error);
        if (translator.isNull() != error.isValid()) {
            QFAIL(qPrintable(QString("cut to %1 bytes").arg(size)));
        }
        // What loads all the same is English or French, and nothing in between.
        if (styleText() != kStyleText && styleText() != kStyleTextInFrench) {
            QFAIL(qPrintable(styleText()));
        }
    }
}

void TestLocalisationUpdater::withoutApplicationNothingHappens()
{
    const InstalledHelper helper;
    QVERIFY(helper.copy(builtTranslation(), "Resources/translations/app_fr.qm"));

    const QJsonObject answer = helper.run({"none", "install", "app", "fr"});

    QCOMPARE(answer["installed"].toBool(true), false);
    QCOMPARE(answer["hasError"].toBool(true), false);
    QCOMPARE(answer["text"].toString(), kStyleText);
}

void TestLocalisationUpdater::anyApplicationObjectWillDo_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"core", "gui", "widgets"}) {
        QTest::newRow(kind) << QString(kind);
    }
}

void TestLocalisationUpdater::anyApplicationObjectWillDo()
{
    QFETCH(QString, kind);
    const InstalledHelper helper;
    QVERIFY(helper.copy(builtTranslation(), "Resources/translations/app_fr.qm"));

    const QJsonObject answer = helper.run({kind, "install", "app", "fr"});

    QCOMPARE(answer["installed"].toBool(), true);
    QCOMPARE(answer["hasError"].toBool(true), false);
    QCOMPARE(answer["text"].toString(), kStyleTextInFrench);
}

int main(int argc, char **argv)
{
    return runTest<TestLocalisationUpdater>(argc, argv);
}

#include "tst_LocalisationUpdater.moc"
