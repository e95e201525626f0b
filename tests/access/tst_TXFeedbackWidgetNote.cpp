#include "FeedbackTestHelpers.h"
#include "LocalFeedbackService.h"
#include "TestBase.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <limits>
#include <memory>

namespace {

QVariantHash nested(int levels)
{
    QVariantHash hash{{QStringLiteral("end"), true}};
    for (int i = 1; i < levels; ++i) {
        hash = {{QStringLiteral("in"), hash}};
    }
    return hash;
}

QString headerOf(const LocalFeedbackService::Request &request, const QString &name)
{
    for (const auto &[key, value] : request.headers) {
        if (key.compare(name, Qt::CaseInsensitive) == 0) {
            return value;
        }
    }
    return {};
}

} // namespace

class TestTXFeedbackWidgetNote : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void requestIsAFormOfOnePart();
    void noteIsWhatWasEntered();
    void nameStandsInForTheAddress();
    void markupAndUnicodeArriveUnchanged_data();
    void markupAndUnicodeArriveUnchanged();
    void longDescriptionArrivesWhole();
    void extraFieldsTravelWithTheNote();
    void fieldsReplaceExtraFieldsOfTheSameName();
    void extraFieldsThatJsonDoesNotHave_data();
    void extraFieldsThatJsonDoesNotHave();
    void entryNestedTooDeepStaysBehind();
    void laterExtraFieldsReplaceTheEarlier();

private:
    LocalFeedbackService::Request send();
    QJsonObject sentNote();

    std::unique_ptr<LocalFeedbackService> service;
    std::unique_ptr<TXFeedbackWidget> form;
};

void TestTXFeedbackWidgetNote::prepare()
{
    service = std::make_unique<LocalFeedbackService>();
    QVERIFY2(service->start(), qPrintable(service->error()));
    form = std::make_unique<TXFeedbackWidget>();
    fillIn(*form);
}

void TestTXFeedbackWidgetNote::finish()
{
    form.reset();
    service.reset();
}

LocalFeedbackService::Request TestTXFeedbackWidgetNote::send()
{
    DialogDriver driver;
    expectYes(driver);
    expectFailure(driver, kRefusedText);
    const DebugLog log;
    form->treatSubmitClick();
    const QList<LocalFeedbackService::Request> requests = service->requests();
    return requests.isEmpty() ? LocalFeedbackService::Request() : requests.last();
}

QJsonObject TestTXFeedbackWidgetNote::sentNote()
{
    const QList<LocalFeedbackService::Part> parts = send().parts;
    return parts.isEmpty() ? QJsonObject()
                           : QJsonDocument::fromJson(parts.first().content).object();
}

void TestTXFeedbackWidgetNote::requestIsAFormOfOnePart()
{
    const LocalFeedbackService::Request request = send();
    QCOMPARE(request.method, QStringLiteral("POST"));
    QCOMPARE(request.path, QStringLiteral("/feedback"));
    QCOMPARE(headerOf(request, QStringLiteral("Host")), QStringLiteral("127.0.0.1:5050"));
    QVERIFY(headerOf(request, QStringLiteral("Content-Type"))
                .startsWith(QStringLiteral("multipart/form-data; boundary=")));
    QCOMPARE(request.parts.size(), 1);
    const LocalFeedbackService::Part &part = request.parts.first();
    QCOMPARE(part.disposition, QStringLiteral("form-data; name=\"content\""));
    QCOMPARE(part.name, QStringLiteral("content"));
    QVERIFY(!part.hasFileName);
}

void TestTXFeedbackWidgetNote::noteIsWhatWasEntered()
{
    const QByteArray content = send().parts.value(0).content;
    QCOMPARE(content,
             QByteArray(R"({"Description":"First line\nSecond line",)"
                        R"("SenderCompany":"Paints & Co","SenderEMailAddress":"Ada Smith",)"
                        R"("SenderName":"Ada Smith","Subject":"Swatches"})"));
}

void TestTXFeedbackWidgetNote::nameStandsInForTheAddress()
{
    const LocalFeedbackService::Request request = send();
    const QByteArray content = request.parts.value(0).content;
    QCOMPARE(QJsonDocument::fromJson(content).object().value(QStringLiteral("SenderEMailAddress")),
             QJsonValue(QStringLiteral("Ada Smith")));
    QVERIFY(!content.contains("paints.example"));
}

void TestTXFeedbackWidgetNote::markupAndUnicodeArriveUnchanged_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("markup") << "<b>5 > 4</b> & \"quoted\" \\ %1 '";
    QTest::newRow("scripts") << QStringLiteral("Grün 色 \U0001F3A8 עברית");
    QTest::newRow("end of a part") << "--boundary_.oOo._--\" Content-Disposition: form-data";
    QTest::newRow("blanks") << "  both ends \t";
    QTest::newRow("zero") << QStringLiteral("a") + QChar() + u'b';
}

void TestTXFeedbackWidgetNote::markupAndUnicodeArriveUnchanged()
{
    QFETCH(QString, text);
    for (const char *name :
         {"senderNameLineEdit", "senderCompanyNameLineEdit", "feedbackSubjectLineEdit"}) {
        lineEdit(*form, name)->setText(text);
        QCOMPARE(lineEdit(*form, name)->text(), text);
    }
    const QString several = text + QStringLiteral("\n\n") + text;
    description(*form)->setPlainText(several);

    const QJsonObject note = sentNote();

    QCOMPARE(note.value(QStringLiteral("SenderName")).toString(), text);
    QCOMPARE(note.value(QStringLiteral("SenderEMailAddress")).toString(), text);
    QCOMPARE(note.value(QStringLiteral("SenderCompany")).toString(), text);
    QCOMPARE(note.value(QStringLiteral("Subject")).toString(), text);
    QCOMPARE(note.value(QStringLiteral("Description")).toString(), several);
}

void TestTXFeedbackWidgetNote::longDescriptionArrivesWhole()
{
    QString text;
    for (int i = 0; i < 200'000; ++i) {
        text += QStringLiteral("%1 ü\n").arg(i);
    }
    description(*form)->setPlainText(text);
    QCOMPARE(sentNote().value(QStringLiteral("Description")).toString(), text);
}

void TestTXFeedbackWidgetNote::extraFieldsTravelWithTheNote()
{
    form->setExtraFields({{QStringLiteral("Revision"), 10452},
                          {QStringLiteral("Licence"), QStringLiteral("Größe")},
                          {QStringLiteral("Large"), std::numeric_limits<qint64>::max()},
                          {QString(), QVariantList{1, true, QVariant()}}});
    const QJsonObject note = sentNote();
    QCOMPARE(note.size(), 9);
    QCOMPARE(note.value(QStringLiteral("Revision")).toInteger(), 10452);
    QCOMPARE(note.value(QStringLiteral("Licence")).toString(), QStringLiteral("Größe"));
    QCOMPARE(note.value(QStringLiteral("Large")).toInteger(), std::numeric_limits<qint64>::max());
    QCOMPARE(note.value(QString()).toVariant(),
             QVariant(QVariantList{1, true, QVariant::fromValue(nullptr)}));
    QCOMPARE(note.value(QStringLiteral("Subject")).toString(), QStringLiteral("Swatches"));
}

void TestTXFeedbackWidgetNote::fieldsReplaceExtraFieldsOfTheSameName()
{
    QVariantHash extraFields{{QStringLiteral("subject"), 1}};
    for (const char *key :
         {"SenderName", "SenderEMailAddress", "SenderCompany", "Subject", "Description"}) {
        extraFields.insert(QString::fromLatin1(key), QStringLiteral("host"));
    }
    form->setExtraFields(extraFields);
    const QJsonObject note = sentNote();
    QCOMPARE(note.size(), 6);
    QCOMPARE(note.value(QStringLiteral("subject")).toInt(), 1);
    QCOMPARE(note.value(QStringLiteral("Subject")).toString(), QStringLiteral("Swatches"));
    QCOMPARE(note.value(QStringLiteral("SenderEMailAddress")).toString(),
             QStringLiteral("Ada Smith"));
    QVERIFY(!note.toVariantMap().values().contains(QStringLiteral("host")));
}

void TestTXFeedbackWidgetNote::extraFieldsThatJsonDoesNotHave_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QJsonValue>("sent");
    const QJsonValue null;
    QTest::newRow("no number") << QVariant(qQNaN()) << null;
    QTest::newRow("infinite") << QVariant(-qInf()) << null;
    QTest::newRow("nothing") << QVariant() << null;
    QTest::newRow("picture") << QVariant(QPixmap(2, 2)) << null;
    QTest::newRow("object") << QVariant::fromValue<QObject *>(this) << null;
    QTest::newRow("bytes") << QVariant(QByteArray("a\0b\xff", 4))
                           << QJsonValue(QStringLiteral("a") + QChar() + QStringLiteral("b\uFFFD"));
    QTest::newRow("half a character")
        << QVariant(QString(QChar(0xD83C))) << QJsonValue(QString(QChar(0xD83C)));
    QTest::newRow("nested") << QVariant(nested(3))
                            << QJsonValue(QJsonObject::fromVariantHash(nested(3)));
}

void TestTXFeedbackWidgetNote::extraFieldsThatJsonDoesNotHave()
{
    QFETCH(QVariant, value);
    QFETCH(QJsonValue, sent);
    form->setExtraFields({{QStringLiteral("Extra"), value}});
    const QJsonObject note = sentNote();
    QCOMPARE(note.size(), 6);
    QCOMPARE(note.value(QStringLiteral("Extra")), sent);
    QCOMPARE(note.value(QStringLiteral("Subject")).toString(), QStringLiteral("Swatches"));
}

void TestTXFeedbackWidgetNote::entryNestedTooDeepStaysBehind()
{
    form->setExtraFields(
        {{QStringLiteral("Deep"), nested(2000)}, {QStringLiteral("Flat"), nested(2)}});
    const QJsonObject note = sentNote();
    QCOMPARE(note.size(), 6);
    QVERIFY(note.contains(QStringLiteral("Flat")));
    QCOMPARE(note.value(QStringLiteral("Subject")).toString(), QStringLiteral("Swatches"));
}

void TestTXFeedbackWidgetNote::laterExtraFieldsReplaceTheEarlier()
{
    form->setExtraFields({{QStringLiteral("A"), 1}});
    form->setExtraFields({{QStringLiteral("B"), 2}});
    const QJsonObject note = sentNote();
    QVERIFY(!note.contains(QStringLiteral("A")));
    QCOMPARE(note.value(QStringLiteral("B")).toInt(), 2);
}

int main(int argc, char **argv)
{
    return runTest<TestTXFeedbackWidgetNote>(argc, argv);
}

#include "tst_TXFeedbackWidgetNote.moc"
