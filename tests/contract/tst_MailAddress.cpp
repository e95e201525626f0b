#include "MailAddress.h"
#include "TestBase.h"

namespace {

constexpr qsizetype kMegabyte = 1 << 20;

QStringList mailboxes(const QList<MailAddress> &addresses)
{
    QStringList texts;
    for (const MailAddress &address : addresses) {
        texts.append(QString::fromLatin1(address.mailbox()));
    }
    return texts;
}

} // namespace

class TestMailAddress : public TestBase
{
    Q_OBJECT

private slots:
    void addressIsRead_data();
    void addressIsRead();
    void headerFormHoldsTheName_data();
    void headerFormHoldsTheName();
    void otherTextIsRefusedInWords_data();
    void otherTextIsRefusedInWords();
    void refusalIsShortForALongText();
    void listIsCutAtCommasAndSemicolons_data();
    void listIsCutAtCommasAndSemicolons();
    void listWithOneBadAddressIsRefused();
    void longListsAreQuick_data();
    void longListsAreQuick();
};

void TestMailAddress::addressIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("mailbox");
    QTest::addColumn<QString>("name");
    const QString plain = "mia@example.org";
    QTest::newRow("plain") << plain << plain << "";
    QTest::newRow("blanks around") << "  mia@example.org " << plain << "";
    QTest::newRow("brackets") << "<mia@example.org>" << plain << "";
    QTest::newRow("name") << "Mia Moll <mia@example.org>" << plain << "Mia Moll";
    QTest::newRow("name without blank") << "Mia<mia@example.org>" << plain << "Mia";
    QTest::newRow("quoted name") << "\"Moll, Mia\" <mia@example.org>" << plain << "Moll, Mia";
    QTest::newRow("escapes") << R"("a \"b\" \\ c" <mia@example.org>)" << plain << R"(a "b" \ c)";
    QTest::newRow("one quote") << "\" <mia@example.org>" << plain << "\"";
    QTest::newRow("bracket in name") << "a < b <mia@example.org>" << plain << "a < b";
    QTest::newRow("control in name") << "Mia\r\nBcc: x <mia@example.org>" << plain << "Mia Bcc: x";
    QTest::newRow("address as name") << "mia@example.org <mia@example.org>" << plain << plain;
    QTest::newRow("no dot") << "root@localhost"
                            << "root@localhost"
                            << "";
    QTest::newRow("signs") << "a.b+c_d'e=f@x-y.org"
                           << "a.b+c_d'e=f@x-y.org"
                           << "";
    QTest::newRow("quoted local part") << R"("mia moll"@x.org)"
                                       << R"("mia moll"@x.org)"
                                       << "";
    QTest::newRow("at in quotes") << R"("a@b"@x.org)"
                                  << R"("a@b"@x.org)"
                                  << "";
    QTest::newRow("address literal") << "mia@[127.0.0.1]"
                                     << "mia@[127.0.0.1]"
                                     << "";
    QTest::newRow("other script") << QStringLiteral("mia@Bücher.example")
                                  << "mia@xn--bcher-kva.example"
                                  << "";
    QTest::newRow("capitals are kept") << "Mia@Example.ORG"
                                       << "Mia@Example.ORG"
                                       << "";
}

void TestMailAddress::addressIsRead()
{
    QFETCH(QString, text);
    QFETCH(QString, mailbox);
    QFETCH(QString, name);
    QString reason;
    const auto address = MailAddress::fromText(text, &reason);
    QVERIFY2(address, qPrintable(reason));
    QCOMPARE(QString::fromLatin1(address->mailbox()), mailbox);
    QCOMPARE(QString::fromLatin1(address->domain()), mailbox.mid(mailbox.lastIndexOf('@') + 1));
    QCOMPARE(address->name(), name);
}

void TestMailAddress::headerFormHoldsTheName_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("form");
    QTest::newRow("no name") << "<m@x.org>" << QByteArray("m@x.org");
    QTest::newRow("name") << "Mia <m@x.org>" << QByteArray("\"Mia\" <m@x.org>");
    QTest::newRow("quotes") << R"(a"b\c <m@x.org>)" << QByteArray(R"("a\"b\\c" <m@x.org>)");
    QTest::newRow("not ASCII") << QStringLiteral("Zoë <m@x.org>")
                               << QByteArray("=?UTF-8?B?Wm/Dqw==?=\r\n <m@x.org>");
    QTest::newRow("like an encoded word")
        << "=?a?= <m@x.org>" << QByteArray("=?UTF-8?B?PT9hPz0=?=\r\n <m@x.org>");
    QTest::newRow("long") << QString(31, 'x') + " <m@x.org>"
                          << "=?UTF-8?B?" + QByteArray(31, 'x').toBase64() + "?=\r\n <m@x.org>";
}

void TestMailAddress::headerFormHoldsTheName()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, form);
    QString reason;
    const auto address = MailAddress::fromText(text, &reason);
    QVERIFY2(address, qPrintable(reason));
    QCOMPARE(address->headerForm(4), form);
}

void TestMailAddress::otherTextIsRefusedInWords_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("word");
    QTest::newRow("empty") << ""
                           << "not a mail address";
    QTest::newRow("no at") << "mia"
                           << "not a mail address";
    QTest::newRow("at and dot") << "@."
                                << "not a mail address";
    QTest::newRow("no domain") << "mia@"
                               << "not a mail address";
    QTest::newRow("no local part") << "@example.org"
                                   << "not a mail address";
    QTest::newRow("dot behind at") << "mia@.org"
                                   << "not a mail address";
    QTest::newRow("dot at the end") << "mia@example."
                                    << "not a mail address";
    QTest::newRow("blank") << "mia moll@example.org"
                           << "not a mail address";
    QTest::newRow("two") << "a@x.org b@x.org"
                         << "not a mail address";
    QTest::newRow("bracket inside") << "a@x.org>,<b@x.org"
                                    << "not a mail address";
    QTest::newRow("bracket not closed") << "Mia <mia@x.org"
                                        << "not a mail address";
    QTest::newRow("options") << "<mia@x.org> SIZE=1"
                             << "not a mail address";
    QTest::newRow("empty brackets") << "Mia <>"
                                    << "not a mail address";
    QTest::newRow("quote not closed") << R"("mia@x.org)"
                                      << "not a mail address";
    QTest::newRow("bad domain") << "mia@a/b"
                                << "not a mail address";
    QTest::newRow("bad literal") << "mia@[a b]"
                                 << "not a mail address";
    QTest::newRow("local part not ASCII") << QStringLiteral("zoë@x.org") << "before the '@'";
    QTest::newRow("line break") << "mia@x.org\r\nBcc: b@x.org"
                                << "line break";
    QTest::newRow("line break behind") << "mia@x.org\n"
                                       << "line break";
    QTest::newRow("break in brackets") << "Mia <mia\r\n@x.org>"
                                       << "line break";
    QTest::newRow("one a line") << "a@x.org\r\n<b@x.org>"
                                << "line break";
    QTest::newRow("NUL") << QString::fromLatin1("mia\0@x.org", 10) << "control character";
    QTest::newRow("separator") << QStringLiteral("mia@x\u2028.org") << "line break";
    QTest::newRow("too long") << QString(250, 'x') + "@x.org"
                              << "too long";
    QTest::newRow("too long as ASCII") << "m@" + QStringLiteral("ü.").repeated(120) + "org"
                                       << "not a mail address";
}

void TestMailAddress::otherTextIsRefusedInWords()
{
    QFETCH(QString, text);
    QFETCH(QString, word);
    QString reason;
    QVERIFY(!MailAddress::fromText(text, &reason));
    QVERIFY2(reason.contains(word), qPrintable(reason));
    QVERIFY(!reason.contains('\n'));
}

void TestMailAddress::refusalIsShortForALongText()
{
    QString reason;
    QVERIFY(!MailAddress::fromText(QString(kMegabyte, 'x'), &reason));
    QVERIFY(reason.size() < 200);
}

void TestMailAddress::listIsCutAtCommasAndSemicolons_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("empty") << "" << QStringList();
    QTest::newRow("blanks") << "  " << QStringList();
    QTest::newRow("separators only") << " , ;; ," << QStringList();
    QTest::newRow("one") << "a@x.org" << QStringList{"a@x.org"};
    QTest::newRow("comma") << "a@x.org,b@x.org" << QStringList{"a@x.org", "b@x.org"};
    QTest::newRow("semicolon") << "a@x.org; b@x.org" << QStringList{"a@x.org", "b@x.org"};
    QTest::newRow("superfluous") << ",a@x.org,; b@x.org;" << QStringList{"a@x.org", "b@x.org"};
    QTest::newRow("names") << "\"A, B; C\" <a@x.org>, D <d@x.org>"
                           << QStringList{"a@x.org", "d@x.org"};
    QTest::newRow("escaped quote")
        << R"("A\", B" <a@x.org>; b@x.org)" << QStringList{"a@x.org", "b@x.org"};
    QTest::newRow("same twice") << "a@x.org,a@x.org" << QStringList{"a@x.org", "a@x.org"};
}

void TestMailAddress::listIsCutAtCommasAndSemicolons()
{
    QFETCH(QString, text);
    QFETCH(QStringList, expected);
    QString reason;
    const auto addresses = MailAddress::listFromText(text, &reason);
    QVERIFY2(addresses, qPrintable(reason));
    QCOMPARE(mailboxes(*addresses), expected);
}

void TestMailAddress::listWithOneBadAddressIsRefused()
{
    for (const QString text : {"a@x.org, b, c@x.org", "a@x.org, \"b\\", "Doe, Jane <j@x.org>"}) {
        QString reason;
        QVERIFY2(!MailAddress::listFromText(text, &reason), qPrintable(text));
        QVERIFY2(reason.contains("not a mail address"), qPrintable(reason));
    }
}

void TestMailAddress::longListsAreQuick_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("addresses") << QStringLiteral("a@x.org,").repeated(20000) << 20000;
    QTest::newRow("separators") << QString(kMegabyte, ',') << 0;
    QTest::newRow("blanks") << QString(kMegabyte, ' ') << 0;
    QTest::newRow("a long name") << QString(kMegabyte, u'ä') + " <a@x.org>" << 1;
    QTest::newRow("quotes") << QString(kMegabyte, '"') + " <a@x.org>" << 1;
    QTest::newRow("brackets") << QString(kMegabyte, '<') + "a@x.org>" << 1;
}

void TestMailAddress::longListsAreQuick()
{
    QFETCH(QString, text);
    QFETCH(int, count);
    QString reason;
    QElapsedTimer timer;
    timer.start();
    const auto addresses = MailAddress::listFromText(text, &reason);
    QVERIFY2(addresses, qPrintable(reason));
    QCOMPARE(addresses->size(), count);
    for (const MailAddress &address : *addresses) {
        QVERIFY(!address.headerForm(4).isEmpty());
    }
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
}

int main(int argc, char **argv)
{
    return runTest<TestMailAddress>(argc, argv);
}

#include "tst_MailAddress.moc"
