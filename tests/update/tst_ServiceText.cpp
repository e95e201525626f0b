#include "ServiceText.h"

#include "PixelProbe.h"
#include "TestBase.h"
#include "UpdateDialogTools.h"

#include <QImage>
#include <QLabel>
#include <QPalette>
#include <QScreen>
#include <QScrollArea>

using UpdateDialogTools::clearDownloads;
using UpdateDialogTools::Dialog;
using UpdateDialogTools::newReleaseWith;
using UpdateDialogTools::part;
using UpdateDialogTools::receive;
using UpdateDialogTools::useNoService;

namespace {

constexpr qsizetype kTenMegabytes = 10000000;
constexpr QChar kEllipsis(0x2026);

QString repeated(const QString &text, qsizetype size)
{
    return text.repeated(size / text.size());
}

/// The notes as they are painted.
QImage paintedNotes(const Dialog &dialog)
{
    return PixelProbe(*part<QLabel>(dialog, "descriptionLabel")).image();
}

/// The colour with the least light: the ink, on white paper.
QColor darkest(const QImage &image)
{
    // The frame at the edge is not ink.
    const QRect inside = image.rect().adjusted(3, 3, -3, -3);
    QColor ink(Qt::white);
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            if (qGray(colour.rgb()) < qGray(ink.rgb())) {
                ink = colour;
            }
        }
    }
    return ink;
}

QPalette darkPalette()
{
    QPalette palette(QColor(40, 40, 40), QColor(40, 40, 40));
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::Link, QColor(190, 220, 255));
    return palette;
}

} // namespace

class TestServiceText : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        useNoService();
        clearDownloads();
        lightPalette = QApplication::palette();
    }

    void finish() override { QApplication::setPalette(lightPalette); }

private slots:
    void inkIsDarkInEveryPalette_data();
    void inkIsDarkInEveryPalette();
    void linksAreLegibleInEveryPalette_data();
    void linksAreLegibleInEveryPalette();
    void longNotesScroll();
    void lineStaysLetterForLetter_data();
    void lineStaysLetterForLetter();
    void longLineIsCut_data();
    void longLineIsCut();
    void clippedLineHasAToolTip();
    void longNamesLeaveTheDialogOnTheScreen_data();
    void longNamesLeaveTheDialogOnTheScreen();

private:
    QPalette lightPalette;
};

void TestServiceText::inkIsDarkInEveryPalette_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<QString>("notes");
    for (const bool isDark : {false, true}) {
        const char *palette = isDark ? "dark" : "light";
        QTest::addRow("plain, %s", palette) << isDark << QStringLiteral("MMMM HHHH");
        QTest::addRow("rich, %s", palette) << isDark << QStringLiteral("<b>MMMM HHHH</b>");
    }
}

void TestServiceText::inkIsDarkInEveryPalette()
{
    QFETCH(bool, isDark);
    QFETCH(QString, notes);
    Dialog dialog;
    if (isDark) {
        // Also for a dialog that is there when the palette changes.
        QApplication::setPalette(darkPalette());
    }
    receive(dialog, newReleaseWith("Description", notes));
    const QImage picture = paintedNotes(dialog);
    QVERIFY(qGray(darkest(picture).rgb()) < 60);
    QCOMPARE(picture.pixelColor(picture.width() / 2, picture.height() - 10), QColor(Qt::white));

    Dialog later;
    receive(later, newReleaseWith("Description", notes));
    QVERIFY(qGray(darkest(paintedNotes(later)).rgb()) < 60);
}

void TestServiceText::linksAreLegibleInEveryPalette_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void TestServiceText::linksAreLegibleInEveryPalette()
{
    QFETCH(bool, isDark);
    if (isDark) {
        QApplication::setPalette(darkPalette());
    }
    Dialog dialog;
    for (const char *words : {"MMMM HHHH", "HHHH MMMM"}) {
        receive(
            dialog,
            newReleaseWith(
                "Description",
                QStringLiteral("<a href=\"https://a.example\">%1</a>").arg(QLatin1String(words))));
        const QColor ink = darkest(paintedNotes(dialog));
        QVERIFY2(qGray(ink.rgb()) < 110, qPrintable(ink.name()));
        QVERIFY2(ink.blue() > ink.red() + 60, qPrintable(ink.name()));
    }
}

void TestServiceText::longNotesScroll()
{
    Dialog dialog;
    receive(
        dialog,
        newReleaseWith("Description", repeated(QStringLiteral("Reads patches faster. "), 5000)));
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const auto *area = part<QScrollArea>(dialog, "scrollArea");
    const auto *label = part<QLabel>(dialog, "descriptionLabel");
    QVERIFY(label->height() > area->viewport()->height());
    QVERIFY(label->width() <= area->viewport()->width());
    QCOMPARE(dialog.height(), 324);
}

void TestServiceText::lineStaysLetterForLetter_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("markup") << QStringLiteral("  Patch  Reader <b>3</b> & more ");
    QTest::newRow("wider than the screen") << QString(500, u'W');
}

void TestServiceText::lineStaysLetterForLetter()
{
    QFETCH(QString, text);
    QCOMPARE(ServiceText::line(text), text);
    Dialog dialog;
    receive(dialog, newReleaseWith("ProductName", text));
    QCOMPARE(part<QLabel>(dialog, "updateNameLabel")->text(), text);
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(dialog.width() <= dialog.screen()->availableGeometry().width());
}

void TestServiceText::longLineIsCut_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("words") << repeated(QStringLiteral("Patch Reader "), kTenMegabytes);
    QTest::newRow("word") << QString(kTenMegabytes, u'x');
    QTest::newRow("lines") << repeated(QStringLiteral("a\n"), kTenMegabytes);
    QTest::newRow("one too many") << QString(501, u'i');
}

void TestServiceText::longLineIsCut()
{
    QFETCH(QString, text);
    const QString start = QString(text).left(500).replace(u'\n', u' ');
    QCOMPARE(ServiceText::line(text), QString(start + kEllipsis));
}

void TestServiceText::clippedLineHasAToolTip()
{
    QLabel label;
    const QString name = QStringLiteral("Tovra Patch Reader <b>3</b>");
    ServiceText::showLine(name.repeated(10), label);
    QVERIFY(label.toolTip().contains(u"&lt;b&gt;"));
    ServiceText::showLine(name, label);
    QCOMPARE(label.toolTip(), QString());
    QVERIFY(label.minimumWidth() >= label.fontMetrics().horizontalAdvance(name));
}

void TestServiceText::longNamesLeaveTheDialogOnTheScreen_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("words") << repeated(QStringLiteral("Patch Reader "), kTenMegabytes);
    QTest::newRow("word") << QString(kTenMegabytes, u'W');
    QTest::newRow("lines") << repeated(QStringLiteral("a\n"), kTenMegabytes);
}

void TestServiceText::longNamesLeaveTheDialogOnTheScreen()
{
    QFETCH(QString, name);
    Dialog dialog(name, 7, false);
    const QSize screen = dialog.screen()->availableGeometry().size();
    receive(dialog, newReleaseWith("ProductName", name));
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(dialog.width() <= screen.width());
    QVERIFY(dialog.height() <= screen.height());
    dialog.updateState(Dialog::UpToDate);
    QCoreApplication::processEvents();
    QVERIFY(dialog.width() <= screen.width());
    QVERIFY(dialog.height() <= screen.height());
}

int main(int argc, char **argv)
{
    return runTest<TestServiceText>(argc, argv);
}

#include "tst_ServiceText.moc"
