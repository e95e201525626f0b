#include "TXWebInterfaceConfigurationWidget.h"

#include "PixelProbe.h"
#include "TestBase.h"
#include "WebPanelHelpers.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QLineEdit>
#include <QNetworkInterface>
#include <QSettings>
#include <QSpinBox>
#include <QUrl>

#include <memory>

using WebTest::child;
using WebTest::linkTexts;
using WebTest::shownLines;
using WebTest::targets;

namespace {

const QString kLoopback = QStringLiteral("127.0.0.1");

/// The IPv4 addresses of this machine, as the system has them now.
QStringList machineAddresses()
{
    QStringList texts;
    const auto addresses = QNetworkInterface::allAddresses();
    for (const QHostAddress &address : addresses) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol) {
            texts.append(address.toString());
        }
    }
    return texts;
}

/// What a link to each of them is, with this before and behind the address.
QStringList linksTo(const QString &scheme, const QString &behind)
{
    QStringList links;
    const QStringList addresses = machineAddresses();
    for (const QString &address : addresses) {
        links.append(scheme + "://" + address + behind);
    }
    return links;
}

} // namespace

/// The list of addresses on this machine.
class TestTXWebInterfaceConfigurationWidgetAddresses : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { panel.reset(); }

private slots:
    void disabledPanelShowsNone();
    void everyIPv4AddressOfTheMachineHasALine();
    void loopbackAloneHasANote();
    void portAndSchemeOfTheLinks_data();
    void portAndSchemeOfTheLinks();
    void editsOfTheControlsRebuildTheList();
    void boxForHttpsAloneDoesNotRebuildTheList();
    void listIsASnapshot();
    void pathIsShownAsItsTrueAddress_data();
    void pathIsShownAsItsTrueAddress();
    void longestPathIsShown();
    void portBeyondTheRangeLeavesNoLine();
    void clickOnALinkOpensIt();
    void linksAreSeen();

private:
    template<class Child>
    [[nodiscard]] Child *find(const char *name) const
    {
        return child<Child>(*panel, name);
    }

    std::unique_ptr<TXWebInterfaceConfigurationWidget> panel;
};

void TestTXWebInterfaceConfigurationWidgetAddresses::prepare()
{
    panel = std::make_unique<TXWebInterfaceConfigurationWidget>();
    find<QCheckBox>("enabledCheckBox")->setChecked(true);
    // Without it most of the tests would show nothing.
    QVERIFY(machineAddresses().contains(kLoopback));
}

void TestTXWebInterfaceConfigurationWidgetAddresses::disabledPanelShowsNone()
{
    QVERIFY(!shownLines(*panel).isEmpty());
    find<QCheckBox>("enabledCheckBox")->setChecked(false);
    QCOMPARE(WebTest::addressView(*panel).toPlainText(), QString());

    const TXWebInterfaceConfigurationWidget fresh;
    QCOMPARE(WebTest::addressView(fresh).toPlainText(), QString());
    panel->load(WebTest::with("Enabled", false));
    QCOMPARE(WebTest::addressView(*panel).toPlainText(), QString());
}

void TestTXWebInterfaceConfigurationWidgetAddresses::everyIPv4AddressOfTheMachineHasALine()
{
    const QStringList expected = linksTo("http", ":8080/");

    QCOMPARE(targets(*panel), expected);
    QCOMPARE(linkTexts(*panel), expected);
    QCOMPARE(shownLines(*panel).size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i) {
        QVERIFY(shownLines(*panel)[i].startsWith(expected[i]));
    }
}

void TestTXWebInterfaceConfigurationWidgetAddresses::loopbackAloneHasANote()
{
    const QStringList links = linksTo("http", ":8080/");
    const QStringList lines = shownLines(*panel);
    QCOMPARE(lines.size(), links.size());
    int notes = 0;
    for (qsizetype i = 0; i < links.size(); ++i) {
        const bool isLoopback = links[i] == QStringLiteral("http://127.0.0.1:8080/");
        // The text of a document has plain spaces for those that do not break.
        const QString note = QStringLiteral("   (to be used only from this computer)");
        QCOMPARE(lines[i], links[i] + (isLoopback ? note : QString()));
        notes += isLoopback ? 1 : 0;
    }
    QCOMPARE(notes, 1);
}

void TestTXWebInterfaceConfigurationWidgetAddresses::portAndSchemeOfTheLinks_data()
{
    QTest::addColumn<bool>("isSecure");
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QString>("behind");
    QTest::newRow("http 80") << false << 80 << "http"
                             << "/proofs/";
    QTest::newRow("http 443") << false << 443 << "http"
                              << ":443/proofs/";
    QTest::newRow("https 80") << true << 80 << "https"
                              << ":80/proofs/";
    QTest::newRow("https 443") << true << 443 << "https"
                               << "/proofs/";
    QTest::newRow("http 8080") << false << 8080 << "http"
                               << ":8080/proofs/";
    QTest::newRow("https 8080") << true << 8080 << "https"
                                << ":8080/proofs/";
    QTest::newRow("least") << false << 1 << "http"
                           << ":1/proofs/";
    QTest::newRow("greatest") << true << 65535 << "https"
                              << ":65535/proofs/";
}

void TestTXWebInterfaceConfigurationWidgetAddresses::portAndSchemeOfTheLinks()
{
    QFETCH(bool, isSecure);
    QFETCH(int, port);
    QFETCH(QString, scheme);
    QFETCH(QString, behind);
    WebTest::Settings settings = WebTest::with("Port", port);
    settings.insert("Secure", isSecure);

    panel->load(settings);

    QCOMPARE(targets(*panel), linksTo(scheme, behind));
    QCOMPARE(linkTexts(*panel), linksTo(scheme, behind));
}

void TestTXWebInterfaceConfigurationWidgetAddresses::editsOfTheControlsRebuildTheList()
{
    find<QSpinBox>("portSpinBox")->setValue(81);
    QCOMPARE(targets(*panel), linksTo("http", ":81/"));

    QTest::keyClicks(find<QLineEdit>("pathLineEdit"), QStringLiteral("we"));
    QCOMPARE(targets(*panel), linksTo("http", ":81/we/"));
    QTest::keyClick(find<QLineEdit>("pathLineEdit"), Qt::Key_Backspace);
    QCOMPARE(targets(*panel), linksTo("http", ":81/w/"));

    QSettings().setValue("EnableHTTPS", true);
    panel->refresh();
    find<QCheckBox>("httpsCertificateCheckBox")->click();
    QCOMPARE(targets(*panel), linksTo("https", "/w/"));
}

void TestTXWebInterfaceConfigurationWidgetAddresses::boxForHttpsAloneDoesNotRebuildTheList()
{
    // Only the user's click does; a host calls refresh().
    find<QCheckBox>("httpsCertificateCheckBox")->setChecked(true);
    QCOMPARE(targets(*panel), linksTo("http", ":8080/"));

    panel->refresh();
    QCOMPARE(targets(*panel), linksTo("https", ":8080/"));
}

void TestTXWebInterfaceConfigurationWidgetAddresses::listIsASnapshot()
{
    // As if there had been another address, whose interface has gone since.
    QTextBrowser &list = WebTest::addressView(*panel);
    list.setHtml(QStringLiteral("<a href=\"http://192.0.2.99/\">http://192.0.2.99/</a><br/>"));
    const QStringList old = {QStringLiteral("http://192.0.2.99/")};

    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
    find<QLineEdit>("usernameLineEdit")->setText(QStringLiteral("mia"));
    find<QLineEdit>("optionsLineEdit")->setText(QStringLiteral("threads=2"));
    panel->resize(500, 400);
    QVERIFY(!panel->save().isEmpty());
    panel->hide();
    panel->show();
    QCoreApplication::processEvents();
    QCOMPARE(targets(*panel), old);

    panel->refresh();
    QCOMPARE(targets(*panel), linksTo("http", ":8080/"));
}

void TestTXWebInterfaceConfigurationWidgetAddresses::pathIsShownAsItsTrueAddress_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("path");
    QTest::newRow("slash before") << "/web"
                                  << "//web/";
    QTest::newRow("blanks") << "  my web "
                            << "/my%20web/";
    QTest::newRow("markup") << "<b>&lt;i&gt;</b>"
                            << "/%3Cb%3E&lt;i&gt;%3C/b%3E/";
    QTest::newRow("entity") << "&lt;b&gt;"
                            << "/&lt;b&gt;/";
    QTest::newRow("entity without end") << "a&copy"
                                        << "/a&copy/";
    QTest::newRow("end of the link") << "\"><img src=\"x\"/>'"
                                     << "/%22%3E%3Cimg%20src=%22x%22/%3E'/";
    QTest::newRow("script") << "<script>alert(1)</script>"
                            << "/%3Cscript%3Ealert(1)%3C/script%3E/";
    QTest::newRow("query") << "a?b&c#d%"
                           << "/a%3Fb&c%23d%25/";
    QTest::newRow("non-ASCII") << QString::fromUtf8("zoë") << "/zo%C3%AB/";
    QTest::newRow("argument") << "%1%20"
                              << "/%251%2520/";
}

void TestTXWebInterfaceConfigurationWidgetAddresses::pathIsShownAsItsTrueAddress()
{
    QFETCH(QString, typed);
    QFETCH(QString, path);

    find<QLineEdit>("pathLineEdit")->setText(typed);

    QCOMPARE(targets(*panel), linksTo("http", ":8080" + path));
    QCOMPARE(linkTexts(*panel), linksTo("http", ":8080" + path));
    // The link leads to what has been typed, and to nothing beside it.
    const QUrl url(targets(*panel).constFirst(), QUrl::StrictMode);
    QCOMPARE(url.path(QUrl::FullyDecoded), "/" + typed.trimmed() + "/");
    QVERIFY(!url.hasQuery() && !url.hasFragment());
    const auto fragments = WebTest::shownFragments(*panel);
    for (const QTextFragment &fragment : fragments) {
        QVERIFY(!fragment.charFormat().isImageFormat());
        QVERIFY(fragment.charFormat().fontWeight() <= QFont::Normal);
    }
    QCOMPARE(panel->save().value("Path"), QVariant(typed));
}

void TestTXWebInterfaceConfigurationWidgetAddresses::longestPathIsShown()
{
    find<QLineEdit>("pathLineEdit")->setText(QString(100'000, u'<'));

    // The field cuts it.
    QString encoded;
    for (int i = 0; i < 32767; ++i) {
        encoded += QStringLiteral("%3C");
    }
    QCOMPARE(targets(*panel), linksTo("http", ":8080/" + encoded + "/"));
}

void TestTXWebInterfaceConfigurationWidgetAddresses::portBeyondTheRangeLeavesNoLine()
{
    // A host can reach the spin box by its name.
    find<QSpinBox>("portSpinBox")->setMaximum(100'000);
    find<QSpinBox>("portSpinBox")->setValue(65535);
    QVERIFY(!shownLines(*panel).isEmpty());

    find<QSpinBox>("portSpinBox")->setValue(65536);

    QCOMPARE(WebTest::addressView(*panel).toPlainText(), QString());
    QVERIFY(find<QTextBrowser>("hostTextEdit")->isEnabled());
}

/// Takes the place of the user's web browser as long as it lives.
class Opener : public QObject
{
    Q_OBJECT

public:
    Opener() { QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "open"); }
    ~Opener() override { QDesktopServices::unsetUrlHandler(QStringLiteral("http")); }
    Q_DISABLE_COPY_MOVE(Opener)

    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened.append(url); }
};

void TestTXWebInterfaceConfigurationWidgetAddresses::clickOnALinkOpensIt()
{
    Opener opener;
    find<QLineEdit>("pathLineEdit")->setText(QStringLiteral("&lt; %"));
    panel->resize(500, 500);
    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
    QTextBrowser &list = WebTest::addressView(*panel);
    QTextCursor cursor(list.document());
    cursor.setPosition(3);
    const QString shown = list.toPlainText();

    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.cursorRect(cursor).center());

    QCOMPARE(opener.opened.size(), 1);
    QCOMPARE(opener.opened.first().toString(QUrl::FullyEncoded), targets(*panel).constFirst());
    QCOMPARE(opener.opened.first().path(QUrl::FullyDecoded), QStringLiteral("/&lt; %/"));
    QCOMPARE(list.toPlainText(), shown);
}

void TestTXWebInterfaceConfigurationWidgetAddresses::linksAreSeen()
{
    panel->resize(500, 500);
    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
    QTextBrowser &list = WebTest::addressView(*panel);
    QTextCursor cursor(list.document());
    cursor.setPosition(1);
    const QRect line = list.cursorRect(cursor);
    const QPoint place = list.viewport()->mapTo(panel.get(), line.topLeft());
    const QRect rect(place, QSize(100, line.height()));

    for (const qreal ratio : {1.0, 2.0}) {
        const QImage with = PixelProbe(*panel, ratio).image();
        WebTest::addressView(*panel).clear();
        const QImage without = PixelProbe(*panel, ratio).image();
        panel->refresh();
        const QRect pixels(rect.topLeft() * ratio, rect.size() * ratio);
        QVERIFY(with.copy(pixels) != without.copy(pixels));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXWebInterfaceConfigurationWidgetAddresses>(argc, argv);
}

#include "tst_TXWebInterfaceConfigurationWidgetAddresses.moc"
