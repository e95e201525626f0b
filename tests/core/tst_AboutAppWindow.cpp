#include "AboutWindows.h"
#include "BracketsTranslator.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextDocument>

namespace {

class WindowOfASite final : public TestAboutWindow
{
public:
    QString applicationWebSite() const override { return site; }
    QString site;
};

QLabel *label(const AboutAppWindow &window, const char *name)
{
    return window.findChild<QLabel *>(QString::fromLatin1(name));
}

/// The three labels of one name, from above and from the left: name, "Version", version.
QList<QLabel *> namedAlike(const AboutAppWindow &window)
{
    return window.findChildren<QLabel *>(QStringLiteral("AboutAppLabel"));
}

QLabel *labelIn(const AboutAppWindow &window, const char *layout, int index)
{
    auto *box = window.findChild<QBoxLayout *>(QString::fromLatin1(layout));
    return box ? qobject_cast<QLabel *>(box->itemAt(index)->widget()) : nullptr;
}

QLabel *nameLabel(const AboutAppWindow &window)
{
    return labelIn(window, "verticalLayout", 0);
}

QLabel *versionLabel(const AboutAppWindow &window)
{
    return labelIn(window, "horizontalLayout", 1);
}

/// The first link of a rich text and its own text.
std::pair<QString, QString> linkOf(const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    for (auto it = document.firstBlock().begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (fragment.charFormat().isAnchor()) {
            return {fragment.charFormat().anchorHref(), fragment.text()};
        }
    }
    return {};
}

} // namespace

class TestAboutAppWindow : public TestBase
{
    Q_OBJECT

private slots:
    void formIsAsDesigned();
    void controlsAreInTheirLayouts();
    void nothingIsAskedBeforeItIsShown();
    void linkStandsThereFromTheStart();
    void everyShowFillsTheWindow();
    void titleAndNameAreTheApplications();
    void versionLine_data();
    void versionLine();
    void copyrightLine();
    void webSiteIsTheMakersByDefault();
    void webSiteDocumentIsAsWritten();
    void webSiteIsNoMarkup_data();
    void webSiteIsNoMarkup();
    void placeMarkersAreNotFilledAgain();
    void logoIsShown();
    void threeLabelsShareOneName();
    void nameIsSmallerByPoints();
    void nameFontInPixelsIsLeftAlone_data();
    void nameFontInPixelsIsLeftAlone();
    void thereIsNoHelpButton();
    void textsFollowTheLanguage();
    void keyboardReachesLinkAndButton();
    void escapeCloses();
    void logoIsPainted_data();
    void logoIsPainted();
};

void TestAboutAppWindow::formIsAsDesigned()
{
    const TestAboutWindow window;

    QCOMPARE(window.size(), QSize(504, 561));
    QCOMPARE(window.windowTitle(), "About");
    QCOMPARE(window.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    const auto *box = window.findChild<QGroupBox *>("groupBox");
    QVERIFY(box->title().isEmpty());
    QCOMPARE(box->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(box->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(label(window, "appLogo")->sizePolicy(),
             QSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum));
    const auto *frame = window.findChild<QFrame *>("frame");
    QCOMPARE(frame->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(frame->sizePolicy().verticalPolicy(), QSizePolicy::Maximum);
    QCOMPARE(frame->layout()->contentsMargins(), QMargins());
    QVERIFY(label(window, "companyWebSiteLabel")->openExternalLinks());
    QCOMPARE(label(window, "copyrightLabel")->text(), "Company Copyright");
    QCOMPARE(label(window, "copyrightLabel")->alignment(), Qt::AlignCenter);
    QCOMPARE(window.findChild<QPushButton *>("patentButton")->text(), "Patent and Legal Notices");
}

void TestAboutAppWindow::controlsAreInTheirLayouts()
{
    const TestAboutWindow window;

    const auto *rows = qobject_cast<QBoxLayout *>(window.layout());
    QCOMPARE(rows->objectName(), "verticalLayout_3");
    QCOMPARE(rows->count(), 3);
    QCOMPARE(rows->itemAt(0)->widget()->objectName(), "groupBox");
    QCOMPARE(rows->itemAt(1)->widget()->objectName(), "copyrightLabel");
    const auto *below = qobject_cast<QBoxLayout *>(rows->itemAt(2)->layout());
    QCOMPARE(below->objectName(), "horizontalLayout_3");
    QVERIFY(below->itemAt(0)->spacerItem());
    QCOMPARE(below->itemAt(1)->widget()->objectName(), "patentButton");
    const auto *above = window.findChild<QBoxLayout *>("horizontalLayout_2");
    QCOMPARE(above->parentWidget()->objectName(), "groupBox");
    QCOMPARE(above->itemAt(0)->widget()->objectName(), "appLogo");
    const auto *texts = qobject_cast<QBoxLayout *>(above->itemAt(1)->layout());
    QCOMPARE(texts->objectName(), "verticalLayout");
    QCOMPARE(nameLabel(window)->text(), "Application Name");
    QCOMPARE(texts->itemAt(1)->widget()->objectName(), "frame");
    QCOMPARE(texts->itemAt(2)->widget()->objectName(), "companyWebSiteLabel");
    QCOMPARE(labelIn(window, "horizontalLayout", 0)->text(), "Version");
    QCOMPARE(labelIn(window, "horizontalLayout", 0)->font().weight(), QFont::Bold);
    QCOMPARE(labelIn(window, "horizontalLayout", 0)->sizePolicy().horizontalPolicy(),
             QSizePolicy::Maximum);
    QCOMPARE(versionLabel(window)->text(), "0.0.0.0");
}

void TestAboutAppWindow::nothingIsAskedBeforeItIsShown()
{
    TestAboutWindow window;
    QCOMPARE(window.calls, 0);

    window.updateAboutWindow();

    QVERIFY(window.calls > 0);
    QCOMPARE(nameLabel(window)->text(), "Colour Tool");
}

/// As the other texts of the form do, until the window is filled.
void TestAboutAppWindow::linkStandsThereFromTheStart()
{
    const TestAboutWindow window;

    const auto [target, text] = linkOf(label(window, "companyWebSiteLabel")->text());

    QVERIFY(!text.isEmpty());
    QCOMPARE(target, text);
    QCOMPARE(label(window, "companyWebSiteLabel")->textFormat(), Qt::RichText);
}

void TestAboutAppWindow::everyShowFillsTheWindow()
{
    TestAboutWindow window;
    window.show();
    QCOMPARE(nameLabel(window)->text(), "Colour Tool");

    window.name = "Other Tool";
    QCOMPARE(nameLabel(window)->text(), "Colour Tool");
    window.hide();
    window.show();

    QCOMPARE(nameLabel(window)->text(), "Other Tool");
    QCOMPARE(window.windowTitle(), "About Other Tool");
}

void TestAboutAppWindow::titleAndNameAreTheApplications()
{
    TestAboutWindow window;

    window.show();

    QCOMPARE(window.windowTitle(), "About Colour Tool");
    QCOMPARE(nameLabel(window)->text(), "Colour Tool");
}

void TestAboutAppWindow::versionLine_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("detail");
    QTest::addColumn<QString>("line");
    QTest::newRow("version") << "2.1.0" << QString() << "2.1.0";
    QTest::newRow("empty detail") << "2.1.0"
                                  << ""
                                  << "2.1.0";
    QTest::newRow("detail") << "2.1.0"
                            << "(Qt 6.4)"
                            << "2.1.0 (Qt 6.4)";
    QTest::newRow("blank detail") << "2.1.0"
                                  << " "
                                  << "2.1.0  ";
    QTest::newRow("detail only") << ""
                                 << "beta"
                                 << " beta";
}

void TestAboutAppWindow::versionLine()
{
    QFETCH(QString, version);
    QFETCH(QString, detail);
    QFETCH(QString, line);
    TestAboutWindow window;
    window.version = version;
    window.detail = detail;

    window.show();

    QCOMPARE(versionLabel(window)->text(), line);
}

/// Its last year and its words stay as they are in every language.
void TestAboutAppWindow::copyrightLine()
{
    BracketsTranslator translator("AboutAppWindow");
    QCoreApplication::installTranslator(&translator);
    TestAboutWindow window;

    window.show();

    QCOMPARE(label(window, "copyrightLabel")->text(),
             QString::fromUtf8("© Copyright 2019-2024 Tovra Hue Works"));
}

void TestAboutAppWindow::webSiteIsTheMakersByDefault()
{
    TestAboutWindow window;

    window.show();

    QCOMPARE(window.applicationWebSite(), "https://www.tovra.example");
    const auto [target, text] = linkOf(label(window, "companyWebSiteLabel")->text());
    QCOMPARE(target, "https://www.tovra.example");
    QCOMPARE(text, "https://www.tovra.example");
}

void TestAboutAppWindow::webSiteDocumentIsAsWritten()
{
    TestAboutWindow window;

    window.show();

    const QString html = label(window, "companyWebSiteLabel")->text();
    for (const char *part :
         {"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\"",
          "\"http://www.w3.org/TR/REC-html40/strict.dtd\">",
          "<meta name=\"qrichtext\" content=\"1\" />", "p, li { white-space: pre-wrap; }",
          "font-family:'Lucida Grande'; font-size:13pt; font-weight:400; font-style:normal;",
          "margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px;",
          "-qt-block-indent:0; text-indent:0px;", "text-decoration: underline; color:#0000ff;"}) {
        QVERIFY2(html.contains(QLatin1String(part)), part);
    }
    QCOMPARE(html.count("<p "), 1);
}

void TestAboutAppWindow::webSiteIsNoMarkup_data()
{
    QTest::addColumn<QString>("site");
    QTest::newRow("query") << "https://a.example/?x=1&copy=2";
    QTest::newRow("quotes") << "https://a.example/\"><b>bold</b>'x'";
    QTest::newRow("tag") << "<script>";
    QTest::newRow("place marker") << "https://a.example/%1%2%20";
}

void TestAboutAppWindow::webSiteIsNoMarkup()
{
    QFETCH(QString, site);
    WindowOfASite window;
    window.site = site;

    window.show();

    const auto [target, text] = linkOf(label(window, "companyWebSiteLabel")->text());
    QCOMPARE(target, site);
    QCOMPARE(text, site);
}

void TestAboutAppWindow::placeMarkersAreNotFilledAgain()
{
    TestAboutWindow window;
    window.name = "%1 %2";
    window.startYear = "%2%3";
    window.version = "%1";
    window.detail = "%1";

    window.show();

    QCOMPARE(window.windowTitle(), "About %1 %2");
    QCOMPARE(nameLabel(window)->text(), "%1 %2");
    QCOMPARE(versionLabel(window)->text(), "%1 %1");
    QCOMPARE(label(window, "copyrightLabel")->text(),
             QString::fromUtf8("© Copyright %2%3-2024 Tovra Hue Works"));
}

void TestAboutAppWindow::logoIsShown()
{
    TestAboutWindow window;
    window.show();
    QVERIFY(label(window, "appLogo")->pixmap(Qt::ReturnByValue).isNull());

    window.logo = QPixmap(96, 48);
    window.updateAboutWindow();
    QCOMPARE(label(window, "appLogo")->pixmap(Qt::ReturnByValue).size(), QSize(96, 48));

    window.logo = QPixmap();
    window.updateAboutWindow();
    QVERIFY(label(window, "appLogo")->pixmap(Qt::ReturnByValue).isNull());
}

void TestAboutAppWindow::threeLabelsShareOneName()
{
    const TestAboutWindow window;

    const QList<QLabel *> labels = namedAlike(window);

    QCOMPARE(labels.size(), 3);
    QVERIFY(labels.contains(nameLabel(window)));
    QVERIFY(labels.contains(versionLabel(window)));
    QVERIFY(labels.contains(labelIn(window, "horizontalLayout", 0)));
    for (const char *name : {"appNameLabel", "versionLabel", "versionTitleLabel"}) {
        QVERIFY2(!label(window, name), name);
    }
}

void TestAboutAppWindow::nameIsSmallerByPoints()
{
    TestAboutWindow window;
    window.show();

    const QFont font = nameLabel(window)->font();

    QCOMPARE(font.pointSizeF(), 18.0);
    QCOMPARE(font.family(), "Helvetica");
    QCOMPARE(font.weight(), QFont::Bold);
    QCOMPARE(nameLabel(window)->styleSheet(), "font-weight:bold;");
}

void TestAboutAppWindow::nameFontInPixelsIsLeftAlone_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<qreal>("points");
    QTest::newRow("pixels") << "40px" << 40 << -1.0;
    QTest::newRow("few points") << "6pt" << -1 << 6.0;
    QTest::newRow("points") << "30pt" << -1 << 30.0;
}

/// Qt would remark on a size of no points. In the last row the sheet wins over what was set.
void TestAboutAppWindow::nameFontInPixelsIsLeftAlone()
{
    QFETCH(QString, size);
    QFETCH(int, pixels);
    QFETCH(qreal, points);
    qApp->setStyleSheet(QStringLiteral("QLabel { font-size: %1; }").arg(size));
    const auto restore = qScopeGuard([] { qApp->setStyleSheet({}); });
    TestAboutWindow window;

    window.show();

    QCOMPARE(nameLabel(window)->font().pixelSize(), pixels);
    QCOMPARE(nameLabel(window)->font().pointSizeF(), points);
}

void TestAboutAppWindow::thereIsNoHelpButton()
{
    const TestAboutWindow window;

    QVERIFY(!window.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QCOMPARE(window.windowFlags() & Qt::WindowType_Mask, Qt::Dialog);
}

void TestAboutAppWindow::textsFollowTheLanguage()
{
    TestAboutWindow window;
    window.show();
    BracketsTranslator translator("AboutAppWindow");

    QCoreApplication::installTranslator(&translator);

    QTRY_COMPARE(window.findChild<QPushButton *>("patentButton")->text(),
                 "[Patent and Legal Notices]");
    QCOMPARE(nameLabel(window)->text(), "Colour Tool");
    QCOMPARE(versionLabel(window)->text(), "2.1.0");
    QCOMPARE(labelIn(window, "horizontalLayout", 0)->text(), "[Version]");
    QCOMPARE(window.windowTitle(), "[About Colour Tool]");
}

void TestAboutAppWindow::keyboardReachesLinkAndButton()
{
    TestAboutWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QCOMPARE(QApplication::focusWidget(), label(window, "companyWebSiteLabel"));

    auto *link = label(window, "companyWebSiteLabel");
    QCOMPARE(link->selectedText(), window.applicationWebSite());
    QTest::keyClick(link, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), window.findChild<QPushButton *>("patentButton"));
    QCOMPARE(link->selectedText(), QString());

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), link);
    QTest::keyClick(link, Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), window.findChild<QPushButton *>("patentButton"));
}

void TestAboutAppWindow::escapeCloses()
{
    TestAboutWindow window;
    window.show();
    const QSignalSpy rejected(&window, SIGNAL(rejected()));

    QTest::keyClick(&window, Qt::Key_Escape);

    QCOMPARE(rejected.size(), 1);
    QVERIFY(!window.isVisible());
}

void TestAboutAppWindow::logoIsPainted_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("2") << 2.0;
}

void TestAboutAppWindow::logoIsPainted()
{
    QFETCH(qreal, ratio);
    TestAboutWindow window;
    window.logo = QPixmap(QSize(64, 64) * ratio);
    window.logo.setDevicePixelRatio(ratio);
    window.logo.fill(Qt::red);
    window.show();
    const QLabel *logo = label(window, "appLogo");
    const QRect place(logo->mapTo(&window, QPoint()), logo->size());

    const PixelProbe probe(window, ratio);

    QVERIFY(probe.isNear(place.center(), Qt::red));
    QVERIFY(!probe.isNear(place.topLeft() - QPoint(4, 4), Qt::red));
}

int main(int argc, char **argv)
{
    return runTest<TestAboutAppWindow>(argc, argv);
}

#include "tst_AboutAppWindow.moc"
