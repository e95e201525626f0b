#include "TestBase.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

namespace {

struct Message
{
    QString context;
    QString source;
    QString comment;
    QStringList translations;
    bool isFinished = true;
};

/// The forms of a translation: one, or one a number.
QStringList readForms(QXmlStreamReader &xml)
{
    QStringList forms;
    QString text;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"numerusform") {
            forms.append(xml.readElementText(QXmlStreamReader::IncludeChildElements));
        } else if (xml.isStartElement()) {
            xml.skipCurrentElement();
        } else if (xml.isCharacters()) {
            text += xml.text();
        } else if (xml.isEndElement()) {
            break;
        }
    }
    return forms.isEmpty() ? QStringList(text) : forms;
}

Message readMessage(QXmlStreamReader &xml, const QString &context)
{
    Message message;
    message.context = context;
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source") {
            // A control character stands as an element.
            message.source = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        } else if (xml.name() == u"comment") {
            message.comment = xml.readElementText();
        } else if (xml.name() == u"translation") {
            message.isFinished = !xml.attributes().hasAttribute("type");
            message.translations = readForms(xml);
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

/// The messages of a file with translations, or nothing when it cannot be read.
QList<Message> messagesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QList<Message> messages;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement()) {
            continue;
        }
        if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"message") {
            messages.append(readMessage(xml, context));
        }
    }
    return xml.hasError() ? QList<Message>() : messages;
}

QString translationFile(const QString &name)
{
    return QStringLiteral(TX_TRANSLATIONS "/") + name;
}

/// What stands for a text in a file: no two have all three in common.
QSet<QString> keysOf(const QList<Message> &messages)
{
    QSet<QString> keys;
    for (const Message &message : messages) {
        keys.insert(message.context + u'|' + message.source + u'|' + message.comment);
    }
    return keys;
}

/// The messages that the tool for it finds in folders of sources, or nothing when it fails.
QList<Message> messagesInSources(const QStringList &folders)
{
    const QTemporaryDir target;
    const QString file = target.filePath(QStringLiteral("texts.ts"));
    QProcess tool;
    tool.setWorkingDirectory(QStringLiteral(TX_SOURCES));
    tool.start(QStringLiteral(TX_LUPDATE),
               QStringList{"-silent", "-tr-function-alias", "translate+=TXStringI18n"} + folders
                   + QStringList{"-ts", file});
    const bool done = tool.waitForFinished(60000) && tool.exitCode() == 0;
    return done ? messagesOf(file) : QList<Message>();
}

/// The places for arguments, each once, in order. The number of a text with forms for numbers is
/// not among them: "one page" tells it in words.
QStringList placesIn(const QString &text)
{
    static const QRegularExpression pattern("%L?\\d{1,2}|\\{[a-z]+\\}");
    QStringList places;
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        places.append(match.next().captured());
    }
    places.removeDuplicates();
    places.sort();
    return places;
}

QStringList languages()
{
    return QStringLiteral(TX_LANGUAGES).split(u' ');
}

/// Where the build puts what the gallery ships.
QString releasedFile(const QString &name)
{
    return QCoreApplication::applicationDirPath() + "/../gallery/Resources/translations/" + name;
}

/// How many letters an "&" marks as to be pressed with Alt.
qsizetype mnemonicsIn(const QString &text)
{
    static const QRegularExpression pattern("&\\w", QRegularExpression::UseUnicodePropertiesOption);
    return text.count(pattern);
}

} // namespace

class TestTranslations : public TestBase
{
    Q_OBJECT

private slots:
    void finishedTextsFitTheirSources_data();
    void finishedTextsFitTheirSources();
    void filesAreFinished_data();
    void filesAreFinished();
    void filesHoldAllTextsOfTheSources_data();
    void filesHoldAllTextsOfTheSources();
    void releasedFilesSpeakTheirLanguage_data();
    void releasedFilesSpeakTheirLanguage();
    void releasedFilesSpeakGerman_data();
    void releasedFilesSpeakGerman();
};

void TestTranslations::finishedTextsFitTheirSources_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &language : languages()) {
        QTest::addRow("library, %s", qPrintable(language)) << "txguicommon_" + language + ".ts";
        QTest::addRow("gallery, %s", qPrintable(language)) << "txgallery_" + language + ".ts";
    }
}

void TestTranslations::finishedTextsFitTheirSources()
{
    QFETCH(QString, name);
    const QList<Message> messages = messagesOf(translationFile(name));
    QVERIFY(messages.size() > 200);

    QStringList wrong;
    for (const Message &message : messages) {
        for (const QString &text : message.translations) {
            const bool fits = !text.trimmed().isEmpty()
                && placesIn(text) == placesIn(message.source)
                && mnemonicsIn(text) == mnemonicsIn(message.source);
            if (message.isFinished && !fits) {
                wrong.append(message.context + ": " + message.source + " / " + text);
            }
        }
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
}

void TestTranslations::filesAreFinished_data()
{
    finishedTextsFitTheirSources_data();
}

void TestTranslations::filesAreFinished()
{
    QFETCH(QString, name);
    const QList<Message> messages = messagesOf(translationFile(name));
    QVERIFY(!messages.isEmpty());

    QStringList unfinished;
    for (const Message &message : messages) {
        if (!message.isFinished) {
            unfinished.append(message.context + ": " + message.source);
        }
    }
    QVERIFY2(unfinished.isEmpty(), qPrintable(unfinished.join(u'\n')));
}

void TestTranslations::filesHoldAllTextsOfTheSources_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QStringList>("folders");
    QTest::newRow("library") << "txguicommon" << QStringList("src");
    QTest::newRow("gallery") << "txgallery" << QStringList({"gallery", "localservers"});
}

void TestTranslations::filesHoldAllTextsOfTheSources()
{
    QFETCH(QString, module);
    QFETCH(QStringList, folders);
    const auto inSources = keysOf(messagesInSources(folders));
    QVERIFY(inSources.size() > 200);

    for (const QString &language : languages()) {
        const QString file = module + u'_' + language + QStringLiteral(".ts");
        const auto inFile = keysOf(messagesOf(translationFile(file)));
        const auto missing = (inSources - inFile).values();
        QVERIFY2(missing.isEmpty(), qPrintable(file + " lacks\n" + missing.join(u'\n')));
        const auto old = (inFile - inSources).values();
        QVERIFY2(old.isEmpty(), qPrintable(file + " still has\n" + old.join(u'\n')));
    }
}

void TestTranslations::releasedFilesSpeakTheirLanguage_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages()) {
        QTest::addRow("%s", qPrintable(language)) << language;
    }
}

void TestTranslations::releasedFilesSpeakTheirLanguage()
{
    QFETCH(QString, language);
    QTranslator library;
    QTranslator gallery;

    QVERIFY(library.load(releasedFile("txguicommon_" + language + ".qm")));
    QVERIFY(gallery.load(releasedFile("txgallery_" + language + ".qm")));

    QCOMPARE(QLocale(library.language()), QLocale(language));
    QCOMPARE(QLocale(gallery.language()), QLocale(language));
    const QString change = library.translate("LockerUIDialog", "Change Password");
    QVERIFY(!change.isEmpty() && change != u"Change Password");
    const QString style = gallery.translate("GalleryPages", "Language and style");
    QVERIFY(!style.isEmpty() && style != u"Language and style");
}

void TestTranslations::releasedFilesSpeakGerman_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("german");
    QTest::newRow("library") << "txguicommon_de.qm" << QByteArray("LockerUIDialog")
                             << QByteArray("Change Password")
                             << QString::fromUtf8("Passwort ändern");
    QTest::newRow("text of an error, which has no number")
        << "txguicommon_de.qm" << QByteArray("TXDataCrypt")
        << QByteArray("The folder %1 cannot be made") << "Der Ordner %1 kann nicht angelegt werden";
    QTest::newRow("text with a character that is not Latin")
        << "txgallery_de.qm" << QByteArray("MeasurementTablePanel") << QByteArray("ΔE ab&ove:")
        << QString::fromUtf8("ΔE &über:");
    QTest::newRow("text outside a class") << "txgallery_de.qm" << QByteArray("ErrorExamples")
                                          << QByteArray("Colour Profile") << "Farbprofil";
    QTest::newRow("gallery") << "txgallery_de.qm" << QByteArray("GalleryPages")
                             << QByteArray("Language and style") << "Sprache und Stil";
}

void TestTranslations::releasedFilesSpeakGerman()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, context);
    QFETCH(QByteArray, source);
    QTranslator translator;

    QVERIFY(translator.load(releasedFile(file)));

    QTEST(translator.translate(context.constData(), source.constData(), nullptr, -1), "german");
}

int main(int argc, char **argv)
{
    return runTest<TestTranslations>(argc, argv);
}

#include "tst_Translations.moc"
