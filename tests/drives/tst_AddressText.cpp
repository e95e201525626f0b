#include "AddressText.h"

#include "TestBase.h"

#include <QString>

namespace {

QString isolated(const QString &text)
{
    return u'\u2066' + text + u'\u2069';
}

} // namespace

class TestAddressText : public TestBase
{
    Q_OBJECT

private slots:
    void textIsDrawnOnOneReadableLine_data();
    void textIsDrawnOnOneReadableLine();
    void nothingIsDrawnOfAnEmptyText();
};

void TestAddressText::textIsDrawnOnOneReadableLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("drawn");
    QTest::newRow("plain") << "nas - /pictures"
                           << "nas - /pictures";
    QTest::newRow("markup") << "nas - /<b>&amp;</b>"
                            << "nas - /<b>&amp;</b>";
    QTest::newRow("line break") << "nas - /a\nb\r\nc" << u"nas - /a\uFFFDb\uFFFD\uFFFDc"_qs;
    QTest::newRow("line separator") << u"a\u2028b\u2029c"_qs << u"a\uFFFDb\uFFFDc"_qs;
    QTest::newRow("control") << u"a\u0000b\u0007c\u009fd\te"_qs
                             << u"a\uFFFDb\uFFFDc\uFFFDd\uFFFDe"_qs;
    QTest::newRow("direction") << u"a\u202Eb\u2067c\u200Fd"_qs << u"a\uFFFDb\uFFFDc\uFFFDd"_qs;
    QTest::newRow("end of an isolate") << u"a\u2069/b"_qs << u"a\uFFFD/b"_qs;
    QTest::newRow("other script") << u"nas - /\u0645\u0634\u0627\u200D\u5199\u771F"_qs
                                  << u"nas - /\u0645\u0634\u0627\u200D\u5199\u771F"_qs;
    QTest::newRow("500") << QString(500, u'x') << QString(500, u'x');
    QTest::newRow("100,000") << QString(100'000, u'x') << QString(500, u'x') + u'\u2026';
    QTest::newRow("cut in a pair")
        << QString(499, u'x') + u"\U0001F600"_qs << QString(499, u'x') + u'\u2026';
}

void TestAddressText::textIsDrawnOnOneReadableLine()
{
    QFETCH(QString, text);
    QFETCH(QString, drawn);
    QCOMPARE(AddressText::drawn(text), isolated(drawn));
}

void TestAddressText::nothingIsDrawnOfAnEmptyText()
{
    QCOMPARE(AddressText::drawn({}), QString());
}

int main(int argc, char **argv)
{
    return runTest<TestAddressText>(argc, argv);
}

#include "tst_AddressText.moc"
