#include "TestMailText.h"

#include "TXApplicationInformation.h"
#include "TestBase.h"

#include <QDate>

namespace {

/// What the texts are before there is an application object; filled in by main().
struct
{
    QString body;
    QString subject;
    bool hadApplication = true;
} early;

QString thisYear()
{
    return QString::number(QDate::currentDate().year());
}

} // namespace

class TestTestMailText : public TestBase
{
    Q_OBJECT

protected:
    void finish() override
    {
        QCoreApplication::setOrganizationName(organization);
        QGuiApplication::setApplicationDisplayName(QString());
    }

private slots:
    void bodyNamesTheApplicationYearAndOrganization();
    void subjectNamesTheApplication();
    void placeholdersInNamesStayAsTheyAre();
    void withoutAnApplicationThePublishersProductIsNamed();

private:
    const QString organization = QCoreApplication::organizationName();
};

void TestTestMailText::bodyNamesTheApplicationYearAndOrganization()
{
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Proof Station"));
    QCoreApplication::setOrganizationName(QStringLiteral("Print House"));

    QCOMPARE(TestMailText::body(),
             QStringLiteral("This is a test message sent by Proof Station software.\r\n"
                            "\r\n"
                            "Copyright %1 Print House\r\n"
                            "https://www.tovra.example")
                 .arg(thisYear()));
}

void TestTestMailText::subjectNamesTheApplication()
{
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Proof Station"));

    QCOMPARE(TestMailText::subject(), QStringLiteral("Proof Station test message."));
}

void TestTestMailText::placeholdersInNamesStayAsTheyAre()
{
    QGuiApplication::setApplicationDisplayName(QStringLiteral("100%1 %2 %3"));
    QCoreApplication::setOrganizationName(QStringLiteral("%1 %2"));

    QCOMPARE(TestMailText::subject(), QStringLiteral("100%1 %2 %3 test message."));
    QVERIFY(TestMailText::body().contains(QStringLiteral("sent by 100%1 %2 %3 software.")));
    QVERIFY(TestMailText::body().contains(QStringLiteral("Copyright %1 ").arg(thisYear())
                                          + QStringLiteral("%1 %2\r\n")));
}

void TestTestMailText::withoutAnApplicationThePublishersProductIsNamed()
{
    QVERIFY(!early.hadApplication);
    QCOMPARE(early.subject, QStringLiteral("Tovra ProofKeeper test message."));
    QCOMPARE(early.body,
             QStringLiteral("This is a test message sent by Tovra ProofKeeper software.\r\n"
                            "\r\n"
                            "Copyright %1 Tovra Hue Works\r\n"
                            "https://www.tovra.example")
                 .arg(thisYear()));
}

int main(int argc, char **argv)
{
    early = {TestMailText::body(), TestMailText::subject(), bool(QCoreApplication::instance())};
    return runTest<TestTestMailText>(argc, argv);
}

#include "tst_TestMailText.moc"
