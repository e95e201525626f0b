#include "WrappedLabel.h"

#include "DrawnInk.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QFont>
#include <QPalette>

namespace {

const QString kWords = QStringLiteral("many words ").repeated(20);

void makeDark(QWidget &widget)
{
    QPalette palette(widget.palette());
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::white);
    widget.setPalette(palette);
}

/// With some room at the left.
QImage paintedFromRightToLeft(const QString &text)
{
    WrappedLabel label;
    label.setText(text);
    label.setLayoutDirection(Qt::RightToLeft);
    label.resize(label.sizeHint() + QSize(20, 0));
    return PixelProbe(label).image();
}

} // namespace

class TestWrappedLabel : public TestBase
{
    Q_OBJECT

private slots:
    void eachLineIsPainted_data();
    void eachLineIsPainted();
    void hintHasRoomForAllThatIsPainted_data();
    void hintHasRoomForAllThatIsPainted();
    void hintIsTheLeastSize();
    void hintGrowsWithTheFont();
    void textStandsInTheMiddleOfTheHeight();
    void markupIsDrawnAsLetters();
    void linesBeginWhereTheLayoutBegins();
    void nameReadsTheSameFromRightToLeft();
    void otherDirectionOfTheTextIsKept();
    void textIsPaintedInTheLabelsColour_data();
    void textIsPaintedInTheLabelsColour();
    void longTextIsCut();
};

void TestWrappedLabel::eachLineIsPainted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        for (const bool isDark : {false, true}) {
            const auto add = [&](const char *name, const QString &text) {
                QTest::addRow("%s, %s, ratio %g", name, isDark ? "dark" : "light", ratio)
                    << text << isDark << ratio;
            };
            add("words", kWords);
            add("one word", QString(253, u'n'));
            add("lines", QStringLiteral("nas\nlocal\nnas"));
        }
    }
}

void TestWrappedLabel::eachLineIsPainted()
{
    QFETCH(QString, text);
    QFETCH(bool, isDark);
    QFETCH(qreal, ratio);
    WrappedLabel label;
    label.setText(text);
    if (isDark) {
        makeDark(label);
    }
    label.resize(label.sizeHint());
    const int lineHeight = label.fontMetrics().height();
    const int lines = label.height() / lineHeight;
    QVERIFY(lines >= 3);
    const QImage picture = PixelProbe(label, ratio).image();
    const int step = qRound(lineHeight * ratio);
    for (int line = 0; line < lines; ++line) {
        const QImage part = picture.copy(0, line * step, picture.width(), step);
        QVERIFY2(!DrawnInk::rect(part).isNull(), qPrintable(QString::number(line)));
    }
}

void TestWrappedLabel::hintHasRoomForAllThatIsPainted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("points");
    for (const int points : {6, 9, 16, 30}) {
        QTest::addRow("name, %d", points) << QStringLiteral("nas.local") << points;
        QTest::addRow("words, %d", points) << kWords << points;
        QTest::addRow("one word, %d", points) << QString(253, u'g') << points;
    }
}

void TestWrappedLabel::hintHasRoomForAllThatIsPainted()
{
    QFETCH(QString, text);
    QFETCH(int, points);
    WrappedLabel label;
    QFont font = label.font();
    font.setPointSize(points);
    label.setFont(font);
    label.setText(text);
    const QSize hint = label.sizeHint();
    label.resize(hint);
    const QSize shown = DrawnInk::rect(PixelProbe(label).image()).size();
    label.resize(hint + QSize(0, 100));
    QCOMPARE(shown, DrawnInk::rect(PixelProbe(label).image()).size());
    QVERIFY(hint.width() <= 50 * label.fontMetrics().averageCharWidth());
}

void TestWrappedLabel::hintIsTheLeastSize()
{
    WrappedLabel label;
    QCOMPARE(label.minimumSizeHint(), label.sizeHint());
    QCOMPARE(label.sizeHint().height(), label.fontMetrics().height());
    label.setText(kWords);
    QCOMPARE(label.minimumSizeHint(), label.sizeHint());
}

void TestWrappedLabel::hintGrowsWithTheFont()
{
    WrappedLabel label;
    label.setText(kWords);
    const QSize before = label.sizeHint();
    QFont font = label.font();
    font.setPointSize(2 * font.pointSize());
    label.setFont(font);
    QVERIFY(label.sizeHint().width() > 3 * before.width() / 2);
    QVERIFY(label.sizeHint().height() > 3 * before.height() / 2);
}

void TestWrappedLabel::textStandsInTheMiddleOfTheHeight()
{
    WrappedLabel label;
    label.setText(QStringLiteral("nas"));
    label.resize(label.sizeHint());
    const int top = DrawnInk::rect(PixelProbe(label).image()).top();
    label.resize(label.width(), label.height() + 40);
    QCOMPARE(DrawnInk::rect(PixelProbe(label).image()).top(), top + 20);
}

void TestWrappedLabel::markupIsDrawnAsLetters()
{
    WrappedLabel label;
    label.setTextFormat(Qt::PlainText);
    label.setText(QStringLiteral("<b>n</b>&amp;&n"));
    label.resize(label.sizeHint());
    const int letters = label.fontMetrics().horizontalAdvance(label.text());
    const int painted = DrawnInk::rect(PixelProbe(label).image()).width();
    QVERIFY2(qAbs(painted - letters) <= 3, qPrintable(QString::number(painted)));
}

void TestWrappedLabel::linesBeginWhereTheLayoutBegins()
{
    WrappedLabel label;
    label.setText(QStringLiteral("nas\nnas.local"));
    label.resize(label.sizeHint() + QSize(100, 0));
    QVERIFY(DrawnInk::rect(PixelProbe(label).image()).right() < label.width() - 90);
    label.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(DrawnInk::rect(PixelProbe(label).image()).left() > 90);
}

void TestWrappedLabel::nameReadsTheSameFromRightToLeft()
{
    const QImage picture = paintedFromRightToLeft(QStringLiteral("/nnnnnn"));
    const QRect ink = DrawnInk::rect(picture);
    QVERIFY(ink.width() > 20);
    // Only the slash is as high as that.
    const QRect slash = DrawnInk::rect(picture.copy(0, ink.top(), picture.width(), 1));
    QVERIFY(slash.right() < ink.center().x());
}

void TestWrappedLabel::otherDirectionOfTheTextIsKept()
{
    // A slash behind a Hebrew word stands at its left.
    const QImage picture = paintedFromRightToLeft(QString(6, QChar(0x05dd)) + u'/');
    const QRect ink = DrawnInk::rect(picture);
    QVERIFY(ink.width() > 20);
    const QRect slash = DrawnInk::rect(picture.copy(0, ink.bottom(), picture.width(), 1));
    QVERIFY(slash.right() < ink.center().x());
}

void TestWrappedLabel::textIsPaintedInTheLabelsColour_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("light") << false << 1.0;
    QTest::newRow("light, ratio 2") << false << 2.0;
    QTest::newRow("dark") << true << 1.0;
    QTest::newRow("dark, ratio 2") << true << 2.0;
}

void TestWrappedLabel::textIsPaintedInTheLabelsColour()
{
    QFETCH(bool, isDark);
    QFETCH(qreal, ratio);
    WrappedLabel label;
    QFont font = label.font();
    font.setPointSize(40);
    label.setFont(font);
    if (isDark) {
        makeDark(label);
    }
    label.setText(QStringLiteral("|"));
    label.resize(label.sizeHint());
    const PixelProbe probe(label, ratio);
    const QRect ink = DrawnInk::rect(probe.image());
    QVERIFY(!ink.isNull());
    const QColor painted = probe.image().pixelColor(ink.center());
    QCOMPARE(painted.rgb(), label.palette().color(QPalette::WindowText).rgb());
    QVERIFY(probe.isNear({0, 0}, label.palette().color(QPalette::Window)));
}

void TestWrappedLabel::longTextIsCut()
{
    WrappedLabel label;
    label.setText(QString(1000, u'n') + QStringLiteral("tail"));
    const QSize cut = label.sizeHint();
    label.setText(QString(1000, u'n') + u'\u2026');
    QCOMPARE(cut, label.sizeHint());
    label.setText(QString(100'000, u'n'));
    QCOMPARE(cut, label.sizeHint());
}

int main(int argc, char **argv)
{
    return runTest<TestWrappedLabel>(argc, argv);
}

#include "tst_WrappedLabel.moc"
