#include "NestedErrorsText.h"
#include "TestBase.h"

class TestNestedErrorsText : public TestBase
{
    Q_OBJECT

private slots:
    void textComesBackAsItShouldRead_data();
    void textComesBackAsItShouldRead();
    void indentedLinesBelongToTheOneAbove();
    void errorWithoutADescriptionIsNamedByItsDomain();
    void namelessErrorLeavesItsPlaceToThoseBelow();
    void deepTextEndsFlat();
    void muchTextIsRead();
};

void TestNestedErrorsText::textComesBackAsItShouldRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read");
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("blanks") << " \n\t\n"
                            << "";
    QTest::newRow("siblings") << "a\nb\nc"
                              << "a\nb\nc";
    QTest::newRow("empty lines between") << "a\n\n\nb\n"
                                         << "a\nb";
    QTest::newRow("tree") << "a\n  b\n    c\n  d\ne"
                          << "a\n  b\n    c\n  d\ne";
    QTest::newRow("one blank is no step") << "a\n b"
                                          << "a\nb";
    QTest::newRow("three blanks are one step") << "a\n   b"
                                               << "a\n  b";
    QTest::newRow("two steps at once") << "a\n      b\n  c"
                                       << "a\n  b\n  c";
    QTest::newRow("nothing above") << "    a\nb"
                                   << "a\nb";
    QTest::newRow("blanks at the end") << "a  \n  b  "
                                       << "a\n  b";
}

void TestNestedErrorsText::textComesBackAsItShouldRead()
{
    QFETCH(QString, text);

    QTEST(textOfNestedErrors(nestedErrorsFromText(text)), "read");
}

void TestNestedErrorsText::indentedLinesBelongToTheOneAbove()
{
    const QList<TXError> errors = nestedErrorsFromText("disk\n  sector\n  cable\nnetwork");

    QCOMPARE(errors.size(), 2);
    QCOMPARE(errors[0].getLocalizedDescription(), "disk");
    QCOMPARE(errors[0].subErrors.size(), 2);
    QCOMPARE(errors[0].subErrors[1].getLocalizedDescription(), "cable");
    QVERIFY(errors[1].subErrors.isEmpty());
}

void TestNestedErrorsText::errorWithoutADescriptionIsNamedByItsDomain()
{
    TXError error;
    error.domain = "DiskErrorDomain";

    QCOMPARE(textOfNestedErrors({error}), "DiskErrorDomain");
}

void TestNestedErrorsText::namelessErrorLeavesItsPlaceToThoseBelow()
{
    TXError named;
    named.setDescription("cable");
    TXError nameless;
    nameless.code = 7;
    nameless.subErrors = {named, named};

    QCOMPARE(textOfNestedErrors({named, nameless}), "cable\ncable\ncable");
}

void TestNestedErrorsText::deepTextEndsFlat()
{
    QStringList lines;
    for (qsizetype depth = 0; depth < 2000; ++depth) {
        lines.append(QString(2 * depth, ' ') + "reason");
    }

    const QList<TXError> errors = nestedErrorsFromText(lines.join('\n'));

    int depth = 0;
    const TXError *error = &errors.first();
    for (; !error->subErrors.isEmpty(); error = &error->subErrors.first()) {
        ++depth;
    }
    QCOMPARE(depth, 32);
    QCOMPARE(textOfNestedErrors(errors).count('\n'), 1999);
}

void TestNestedErrorsText::muchTextIsRead()
{
    const QString text = QStringLiteral("a\n  b\n").repeated(100000).trimmed();

    QCOMPARE(textOfNestedErrors(nestedErrorsFromText(text)), text);
}

int main(int argc, char **argv)
{
    return runTest<TestNestedErrorsText>(argc, argv);
}

#include "tst_NestedErrorsText.moc"
