#include "GalleryLanguages.h"
#include "GalleryPages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "Mnemonics.h"
#include "TestBase.h"

#include <QFile>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

namespace {

struct Message
{
    QString context;
    QString source;
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
QList<Message> messagesOf(const QString &name)
{
    QFile file(QStringLiteral(TX_TRANSLATIONS "/") + name);
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

/// The places for arguments, each once, in order.
QStringList placesIn(const QString &text)
{
    static const QRegularExpression pattern("%L?\\d{1,2}|%n|\\{[a-z]+\\}");
    QStringList places;
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        places.append(match.next().captured());
    }
    places.removeDuplicates();
    places.sort();
    return places;
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
    void releasedFilesSpeakGerman_data();
    void releasedFilesSpeakGerman();
    void germanMnemonicsDoNotClash_data();
    void germanMnemonicsDoNotClash();
};

void TestTranslations::finishedTextsFitTheirSources_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("library, German") << "txguicommon_de.ts";
    QTest::newRow("gallery, German") << "txgallery_de.ts";
}

void TestTranslations::finishedTextsFitTheirSources()
{
    QFETCH(QString, name);
    const QList<Message> messages = messagesOf(name);
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
    const QList<Message> messages = messagesOf(name);
    QVERIFY(!messages.isEmpty());

    QStringList unfinished;
    for (const Message &message : messages) {
        if (!message.isFinished) {
            unfinished.append(message.context + ": " + message.source);
        }
    }
    QVERIFY2(unfinished.isEmpty(), qPrintable(unfinished.join(u'\n')));
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

    QVERIFY(translator.load(QCoreApplication::applicationDirPath()
                            + "/../gallery/Resources/translations/" + file));

    QTEST(translator.translate(context.constData(), source.constData(), nullptr, -1), "german");
}

void TestTranslations::germanMnemonicsDoNotClash_data()
{
    QTest::addColumn<QString>("page");
    for (const GalleryPageEntry &entry : galleryPages()) {
        QTest::addRow("%s", entry.id) << entry.name();
    }
}

void TestTranslations::germanMnemonicsDoNotClash()
{
    QFETCH(QString, page);
    QTranslator library;
    QTranslator gallery;
    const QString folder =
        QCoreApplication::applicationDirPath() + "/../gallery/Resources/translations/";
    QVERIFY(library.load(folder + "txguicommon_de.qm") && gallery.load(folder + "txgallery_de.qm"));
    QVERIFY(QCoreApplication::installTranslator(&library));
    QVERIFY(QCoreApplication::installTranslator(&gallery));
    GallerySettings settings;
    settings.page = page;
    GalleryLanguages languages(QString{});

    const GalleryWindow window(languages, settings);

    QCOMPARE(clashingMnemonics(window).join(u'\n'), QString());
}

int main(int argc, char **argv)
{
    return runTest<TestTranslations>(argc, argv);
}

#include "tst_Translations.moc"
