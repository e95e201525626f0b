#include "ApplicationTranslator.h"

#include "InstalledHelper.h"
#include "TestBase.h"

#include <QSharedPointer>

class TestApplicationTranslator : public TestBase
{
    Q_OBJECT

private slots:
    void belongsToTheApplication();
    void goesWithTheLastPointer();
    void outlivesTheApplicationAsLongAsAPointerIsThere_data();
    void outlivesTheApplicationAsLongAsAPointerIsThere();
};

void TestApplicationTranslator::belongsToTheApplication()
{
    const ApplicationTranslator translator(qApp);

    QCOMPARE(translator.parent(), qApp);
    QVERIFY(translator.isEmpty());
}

void TestApplicationTranslator::goesWithTheLastPointer()
{
    QSharedPointer<QTranslator> first(new ApplicationTranslator(qApp));
    QVERIFY(first->load(builtTranslation()));
    QVERIFY(QCoreApplication::installTranslator(first.data()));
    const QPointer<QTranslator> watched = first.data();
    QSharedPointer<QTranslator> second = first;

    first.reset();
    QVERIFY(watched);
    QCOMPARE(tr("none"), "none");
    QCOMPARE(QObject::tr("No Style has been loaded."),
             u"Aucun style n'a \u00e9t\u00e9 charg\u00e9."_qs);

    second.reset();
    QVERIFY(!watched);
    QCOMPARE(QObject::tr("No Style has been loaded."), "No Style has been loaded.");
}

void TestApplicationTranslator::outlivesTheApplicationAsLongAsAPointerIsThere_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"core", "gui", "widgets"}) {
        QTest::newRow(kind) << QString(kind);
    }
}

// Another process, since this one has to keep its application.
void TestApplicationTranslator::outlivesTheApplicationAsLongAsAPointerIsThere()
{
    QFETCH(QString, kind);
    const InstalledHelper helper;
    QVERIFY(helper.copy(builtTranslation(), "Resources/translations/app_fr.qm"));

    const QJsonObject answer = helper.run({kind, "outlive", "app"});

    QVERIFY(answer["isChild"].toBool());
    QVERIFY(answer["isThereWithoutApplication"].toBool());
    QCOMPARE(answer["text"].toString(), u"Aucun style n'a \u00e9t\u00e9 charg\u00e9."_qs);
    QVERIFY(answer["isGoneWithThePointer"].toBool());
}

int main(int argc, char **argv)
{
    return runTest<TestApplicationTranslator>(argc, argv);
}

#include "tst_ApplicationTranslator.moc"
