#include "TXError.h"

#include "TestBase.h"

#include <QCoreApplication>
#include <QTranslator>

namespace {

constexpr int kVeryDeep = 100000;

TXError described(const char *description)
{
    TXError error;
    error.setDescription(TXStringI18n(description));
    return error;
}

TXError nested(int depth)
{
    TXError error = described("innermost");
    for (int i = 0; i < depth; ++i) {
        TXError outer = described("outer");
        outer.subErrors.append(std::move(error));
        error = std::move(outer);
    }
    return error;
}

} // namespace

class TestTXError : public TestBase
{
    Q_OBJECT

private slots:
    void defaultHasNothingToReport();
    void oneThingToReportMakesItValid();
    void userInfoAloneIsNothingToReport();
    void membersStandInTheirOrder();
    void descriptionFollowsTheLanguage();
    void completeTextOfADescriptionAloneIsTheDescription();
    void completeTextShowsNestedErrorsByDepth();
    void completeTextLeavesOutWhatIsEmpty();
    void nestedDescriptionOfSeveralLinesIsIndentedAsAWhole();
    void completeTextContainsTheDescription();
    void nestedErrorMayBeAssignedToItsOwner();
    void nestedErrorMayBeMovedToItsOwner();
    void copyIsIndependent();
    void copyOutlivesTheOriginal();
    void veryDeepNestingNeedsNoStack();
    void sharedDeepNestingNeedsNoStack();
};

void TestTXError::defaultHasNothingToReport()
{
    const TXError error;

    QVERIFY(!error.isValid());
    QCOMPARE(error.code, 0);
    QCOMPARE(error.getLocalizedDescription(), QString());
    QCOMPARE(error.getCompletLocalizedDescription(), QString());
}

void TestTXError::oneThingToReportMakesItValid()
{
    TXError domain;
    domain.domain = QStringLiteral("D");
    TXError code;
    code.code = -1;
    TXError nesting;
    nesting.subErrors.append(TXError());

    QVERIFY(domain.isValid());
    QVERIFY(code.isValid());
    QVERIFY(nesting.isValid());
    QVERIFY(described("text").isValid());
    QVERIFY(!described("").isValid());
}

void TestTXError::userInfoAloneIsNothingToReport()
{
    TXError error;
    error.userInfo.insert(QStringLiteral("MessageBoxTitle"), QStringLiteral("Title"));

    QVERIFY(!error.isValid());
}

void TestTXError::membersStandInTheirOrder()
{
    const TXError error;
    const auto *domain = reinterpret_cast<const char *>(&error.domain);
    const auto *code = reinterpret_cast<const char *>(&error.code);
    const auto *userInfo = reinterpret_cast<const char *>(&error.userInfo);
    const auto *subErrors = reinterpret_cast<const char *>(&error.subErrors);

    QVERIFY(domain < code);
    QVERIFY(code < userInfo);
    QVERIFY(userInfo < subErrors);
}

void TestTXError::descriptionFollowsTheLanguage()
{
    class Translator : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *, const char *source, const char *, int) const override
        {
            return QByteArray(source) == "No %1" ? QStringLiteral("Kein %1") : QString();
        }
    } translator;
    TXError error;
    error.setDescription(TXStringI18n("Files", "No %1", nullptr, -1).arg(QStringLiteral("x")));

    QCOMPARE(error.getLocalizedDescription(), QStringLiteral("No x"));
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(error.getLocalizedDescription(), QStringLiteral("Kein x"));
    QCOMPARE(error.getCompletLocalizedDescription(), QStringLiteral("Kein x"));
}

void TestTXError::completeTextOfADescriptionAloneIsTheDescription()
{
    QCOMPARE(described("It failed").getCompletLocalizedDescription(), QStringLiteral("It failed"));
}

void TestTXError::completeTextShowsNestedErrorsByDepth()
{
    TXError first = described("first");
    first.subErrors = {described("first of first"), described("second of first")};
    TXError error = described("top");
    error.domain = QStringLiteral("Domain%1");
    error.code = 12;
    error.subErrors = {first, described("second")};

    QCOMPARE(error.getCompletLocalizedDescription(),
             QStringLiteral("top\n"
                            "    first\n"
                            "        first of first\n"
                            "        second of first\n"
                            "    second\n"
                            "Domain: Domain%1\n"
                            "Code: 12"));
}

void TestTXError::completeTextLeavesOutWhatIsEmpty()
{
    TXError unnamed;
    unnamed.domain = QStringLiteral("Inner");
    unnamed.code = 3;
    TXError empty;
    empty.subErrors = {described("below the empty one")};
    TXError error;
    error.domain = QStringLiteral("Outer");
    error.subErrors = {TXError(), unnamed, empty};

    QCOMPARE(error.getCompletLocalizedDescription(),
             QStringLiteral("    Domain: Inner, Code: 3\n"
                            "        below the empty one\n"
                            "Domain: Outer"));
}

void TestTXError::nestedDescriptionOfSeveralLinesIsIndentedAsAWhole()
{
    TXError error = described("top");
    error.subErrors = {described("one\ntwo")};

    QCOMPARE(error.getCompletLocalizedDescription(), QStringLiteral("top\n    one\n    two"));
}

void TestTXError::completeTextContainsTheDescription()
{
    const TXError error = nested(3);

    QVERIFY(error.getCompletLocalizedDescription().startsWith(error.getLocalizedDescription()));
}

void TestTXError::nestedErrorMayBeAssignedToItsOwner()
{
    TXError error = nested(2);

    error = error.subErrors.constFirst().subErrors.constFirst();

    QCOMPARE(error.getLocalizedDescription(), QStringLiteral("innermost"));
    QVERIFY(error.subErrors.isEmpty());
}

void TestTXError::nestedErrorMayBeMovedToItsOwner()
{
    TXError error = nested(2);

    error = std::move(error.subErrors.first().subErrors.first());

    QCOMPARE(error.getLocalizedDescription(), QStringLiteral("innermost"));
    QVERIFY(error.subErrors.isEmpty());
}

void TestTXError::copyIsIndependent()
{
    TXError error = nested(1);
    TXError copy(error);

    copy.subErrors.first().setDescription(TXStringI18n("changed"));
    copy.setDescription(TXStringI18n("changed"));

    QCOMPARE(error.getCompletLocalizedDescription(), QStringLiteral("outer\n    innermost"));
    QCOMPARE(copy.getCompletLocalizedDescription(), QStringLiteral("changed\n    changed"));
}

void TestTXError::copyOutlivesTheOriginal()
{
    TXError inner;
    {
        const TXError error = nested(3);
        inner = error.subErrors.constFirst();
    }

    QCOMPARE(inner.getCompletLocalizedDescription(),
             QStringLiteral("outer\n    outer\n        innermost"));
}

void TestTXError::veryDeepNestingNeedsNoStack()
{
    const TXError error = nested(kVeryDeep);

    const QString text = error.getCompletLocalizedDescription();

    QCOMPARE(text.count(u'\n'), kVeryDeep);
    QVERIFY(text.endsWith(QStringLiteral(" innermost")));
    // Indentation that grew without end would make this 20 GB.
    QVERIFY(text.size() < qsizetype(kVeryDeep) * 200);
}

void TestTXError::sharedDeepNestingNeedsNoStack()
{
    TXError kept;
    {
        TXError error = nested(kVeryDeep);
        QList<TXError> copies(3, error);
        kept = error;
        error.subErrors.first().code = 1;
        QVERIFY(kept.subErrors.constFirst().code == 0);
    }

    QCOMPARE(kept.getCompletLocalizedDescription().count(u'\n'), kVeryDeep);
}

int main(int argc, char **argv)
{
    return runTest<TestTXError>(argc, argv);
}

#include "tst_TXError.moc"
