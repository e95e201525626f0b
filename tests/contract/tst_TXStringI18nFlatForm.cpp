#include "TXStringI18n.h"

#include "StringI18nHelpers.h"
#include "TXFlatString.h"
#include "TestBase.h"

using StringI18nTest::copied;
using StringI18nTest::InstalledGerman;
using StringI18nTest::plain;

Q_DECLARE_METATYPE(TXStringI18n)

/// Plain texts, and the form in which a text is stored.
class TestTXStringI18nFlatForm : public TestBase
{
    Q_OBJECT

private slots:
    void plainTextStaysUnchanged_data();
    void plainTextStaysUnchanged();
    void plainTextIsNeitherCopiedNorTranslated();
    void plainTextTakesArguments();
    void shownMessageReadsBackReadable();
    void flatFormGivesAnEqualText_data();
    void flatFormGivesAnEqualText();
    void flatFormIsPrintableAscii();
    void flatFormStaysTranslatable();
    void damagedFlatFormIsPlainText();
    void intactLineOfOtherFieldsIsPlainText_data();
    void intactLineOfOtherFieldsIsPlainText();
    void constructorDoesNotReadFlatForms();
    void textsThatDifferAreNotEqual_data();
    void textsThatDifferAreNotEqual();
};

void TestTXStringI18nFlatForm::plainTextStaysUnchanged_data()
{
    QTest::addColumn<QString>("text");
    QTest::addRow("null") << QString();
    QTest::addRow("words") << "There is no Network Drive letter available.";
    QTest::addRow("markers") << "100 %1 %n %L2";
    QTest::addRow("several lines") << "a\nb\r\n\tc";
    QTest::addRow("not ASCII") << QStringLiteral("\u00e9 \u4e2d \U0001F600");
    QTest::addRow("NUL") << QString(QChar(0));
    QTest::addRow("unpaired surrogate") << QString(QChar(0xd800));
    QTest::addRow("only the mark") << "@TXi18n1:";
    QTest::addRow("mark and separator") << "@TXi18n1:;";
    QTest::addRow("mark and words") << "@TXi18n1:00000000;hello";
}

void TestTXStringI18nFlatForm::plainTextStaysUnchanged()
{
    QFETCH(QString, text);

    QCOMPARE(plain(text).toString(nullptr), text);
    QCOMPARE(plain(text).toFlatString(), text);
}

void TestTXStringI18nFlatForm::plainTextIsNeitherCopiedNorTranslated()
{
    const InstalledGerman installed;
    const QString text = QString::fromLatin1("No context");

    const TXStringI18n fromText = plain(text);

    QCOMPARE(fromText.toString(nullptr), text);
    QCOMPARE(static_cast<const void *>(fromText.toString(nullptr).constData()),
             static_cast<const void *>(text.constData()));
}

void TestTXStringI18nFlatForm::plainTextTakesArguments()
{
    const TXStringI18n text = plain(QStringLiteral("%1 of %2"));

    QCOMPARE(text.arg(QStringLiteral("a")).arg(QStringLiteral("b")).toString(nullptr),
             QStringLiteral("a of b"));
}

void TestTXStringI18nFlatForm::shownMessageReadsBackReadable()
{
    const InstalledGerman installed;
    const QString shown = copied().toString(nullptr);

    QCOMPARE(TXStringI18n::fromString(shown).toString(nullptr), shown);
}

void TestTXStringI18nFlatForm::flatFormGivesAnEqualText_data()
{
    QTest::addColumn<TXStringI18n>("text");
    const QString strange = QStringLiteral("a;b%3b \n\u00e9") + QChar(0) + QChar(0xdc00);

    QTest::addRow("empty") << TXStringI18n();
    QTest::addRow("source") << TXStringI18n("No context");
    QTest::addRow("arguments") << copied();
    QTest::addRow("all of it") << TXStringI18n("Files", "%n %1;%2", "a;b", 7)
                                      .arg(strange, -12, u'\n')
                                      .arg(QString(), 3, QChar(0xd800));
    QTest::addRow("largest number") << TXStringI18n("Files", "%n", nullptr, INT_MAX);
    QTest::addRow("negative number") << TXStringI18n("Files", "%n", nullptr, INT_MIN);
    QTest::addRow("bytes that are not UTF-8") << TXStringI18n("\xff", "\xfe\x80", "\xc3", -1);
    QTest::addRow("plain") << plain(strange);
    QTest::addRow("plain like a flat form") << plain(TXFlatString::join({copied().toFlatString()}));
    const TXStringI18n nested = plain(TXFlatString::join({copied().toFlatString()}));
    QTest::addRow("twice") << plain(TXFlatString::join({nested.toFlatString()}));
    QTest::addRow("plain of foreign fields") << plain(TXFlatString::join({"a", "b"}));
}

void TestTXStringI18nFlatForm::flatFormGivesAnEqualText()
{
    QFETCH(TXStringI18n, text);

    const TXStringI18n back = TXStringI18n::fromString(text.toFlatString());

    QVERIFY(back == text);
    QCOMPARE(back.toString(nullptr), text.toString(nullptr));
    QCOMPARE(back.toFlatString(), text.toFlatString());
}

void TestTXStringI18nFlatForm::flatFormIsPrintableAscii()
{
    const QString flat = TXStringI18n("Files", "\xc3\xa9\n%1", nullptr, -1)
                             .arg(QStringLiteral("\u4e2d\t"))
                             .toFlatString();

    for (const QChar character : flat) {
        QVERIFY(character > u' ' && character <= u'~');
    }
}

void TestTXStringI18nFlatForm::flatFormStaysTranslatable()
{
    const TXStringI18n back = TXStringI18n::fromString(copied().toFlatString());
    const InstalledGerman installed;

    QCOMPARE(back.toString(nullptr), QStringLiteral("Nach /b wurde a.png kopiert"));
}

void TestTXStringI18nFlatForm::damagedFlatFormIsPlainText()
{
    const QString flat = copied().toFlatString();
    for (qsizetype i = 0; i < flat.size(); ++i) {
        QString changed = flat;
        changed[i] = QChar(flat.at(i).unicode() ^ 1);
        const QStringList damaged = {changed, flat.left(i), QString(flat).remove(i, 1),
                                     QString(flat).insert(i, u'x')};
        for (const QString &text : damaged) {
            QCOMPARE(TXStringI18n::fromString(text).toString(nullptr), text);
            QCOMPARE(TXStringI18n::fromString(text).toFlatString(), text);
        }
    }
    QCOMPARE(TXStringI18n::fromString(flat + u'\n').toString(nullptr), QString(flat + u'\n'));
}

void TestTXStringI18nFlatForm::intactLineOfOtherFieldsIsPlainText_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addRow("two") << QStringList{"Files", "Empty"};
    QTest::addRow("half an argument") << QStringList{"Files", "%1", "", "-1", "a"};
    QTest::addRow("no source") << QStringList{"Files", "", "", "-1"};
    QTest::addRow("words for the number") << QStringList{"Files", "%1", "", "many"};
    QTest::addRow("words for the width") << QStringList{"Files", "%1", "", "-1", "a", "wide", " "};
    QTest::addRow("too wide") << QStringList{"Files", "%1", "", "-1", "a", "65536", " "};
    QTest::addRow("too wide, left-aligned")
        << QStringList{"Files", "%1", "", "-1", "a", "-2147483648", " "};
    QTest::addRow("no fill character") << QStringList{"Files", "%1", "", "-1", "a", "0", ""};
    QStringList many = {"Files", "%1", "", "-1"};
    for (int i = 0; i <= TXStringI18n::kMostArguments; ++i) {
        many << "a"
             << "0"
             << " ";
    }
    QTest::addRow("too many arguments") << many;
}

void TestTXStringI18nFlatForm::intactLineOfOtherFieldsIsPlainText()
{
    QFETCH(QStringList, fields);
    const QString line = TXFlatString::join(fields);

    QCOMPARE(TXStringI18n::fromString(line).toString(nullptr), line);
}

void TestTXStringI18nFlatForm::constructorDoesNotReadFlatForms()
{
    const QString flat = copied().toFlatString();

    QCOMPARE(TXStringI18n(flat.toLatin1().constData()).toString(nullptr), flat);
}

void TestTXStringI18nFlatForm::textsThatDifferAreNotEqual_data()
{
    QTest::addColumn<TXStringI18n>("text");
    QTest::addRow("empty") << TXStringI18n();
    QTest::addRow("source") << TXStringI18n("Files", "Empty %1", nullptr, -1);
    QTest::addRow("context") << TXStringI18n("Filed", "Empty", nullptr, -1);
    QTest::addRow("disambiguation") << TXStringI18n("Files", "Empty", "verb", -1);
    QTest::addRow("number") << TXStringI18n("Files", "Empty", nullptr, 1);
    const TXStringI18n base("Files", "Empty", nullptr, -1);
    QTest::addRow("argument") << base.arg(QStringLiteral("a"));
    QTest::addRow("plain") << plain(QStringLiteral("Empty"));
}

void TestTXStringI18nFlatForm::textsThatDifferAreNotEqual()
{
    QFETCH(TXStringI18n, text);
    const TXStringI18n base("Files", "Empty", nullptr, -1);

    QVERIFY(base != text);
    QVERIFY(text != base);
    QVERIFY(text == text);
    QVERIFY(base == TXStringI18n("Files", "Empty", "", -1));
    QVERIFY(base.arg(QStringLiteral("a")) != base.arg(QStringLiteral("b")));
    QVERIFY(base.arg(QStringLiteral("a")) != base.arg(QStringLiteral("a"), 1));
    QVERIFY(base.arg(QStringLiteral("a")) != base.arg(QStringLiteral("a"), 0, u'.'));
}

int main(int argc, char **argv)
{
    return runTest<TestTXStringI18nFlatForm>(argc, argv);
}

#include "tst_TXStringI18nFlatForm.moc"
