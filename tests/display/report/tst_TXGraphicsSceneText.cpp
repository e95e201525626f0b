#include "TXGraphicsScene.h"

#include "PixelProbe.h"
#include "ReportTestFont.h"
#include "SceneTestHelpers.h"
#include "TestBase.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QGraphicsSimpleTextItem>
#include <QPen>

using SceneTestHelpers::exactly;
using SceneTestHelpers::onlyItem;
using SceneTestHelpers::rendered;

namespace {

const QSize kArea(120, 60);
const QString kText = QStringLiteral("Patch 7");

QSizeF measured(const QString &text)
{
    return QFontMetricsF(reportTestFont(10)).size(Qt::TextShowMnemonic, text);
}

void drawInRect(TXGraphicsScene &scene, const QString &text, const QRectF &rect, quint32 horizontal,
                quint32 vertical, const QSizeF &margins = QSizeF(2.0, 3.0))
{
    scene.drawTextInRect(text, rect, TXHorizontalAlignment(horizontal),
                         TXVerticalAlignment(vertical), reportTestFont(10), Qt::red, margins);
}

/// The smallest rectangle around all that is not white.
QRect inked(const PixelProbe &probe, const QSize &area)
{
    QRect around;
    for (int y = 0; y < area.height(); ++y) {
        for (int x = 0; x < area.width(); ++x) {
            if (probe.at({x, y}) != QColor(Qt::white)) {
                around |= QRect(x, y, 1, 1);
            }
        }
    }
    return around;
}

} // namespace

class TestTXGraphicsSceneText : public TestBase
{
    Q_OBJECT

private slots:
    void textIsAPlainItemAtItsPlace();
    void boundingRectIsThatOfTheMetrics_data();
    void boundingRectIsThatOfTheMetrics();
    void ampersandTakesNoRoomButIsDrawn();
    void emptyTextDrawsNothing();
    void textIsAligned_data();
    void textIsAligned();
    void leftTextStandsOffByTheMargin();
    void alignedTextIsSeenAtItsSide_data();
    void alignedTextIsSeenAtItsSide();
    void drawnTextHasColourAndFont_data();
    void drawnTextHasColourAndFont();
    void textRunsOverItsRectangle();
    void unusualTextsAreDrawn_data();
    void unusualTextsAreDrawn();
    void textOfAMegabyteIsDrawn();
};

void TestTXGraphicsSceneText::textIsAPlainItemAtItsPlace()
{
    TXGraphicsScene scene;
    const QFont font = reportTestFont(10);
    const QBrush brush(Qt::blue, Qt::Dense3Pattern);

    scene.drawText(kText, QPointF(12.34567890123, -5.5), font, brush);

    const auto *item = onlyItem<QGraphicsSimpleTextItem>(scene);
    QVERIFY(item);
    QCOMPARE(item->type(), int(QGraphicsSimpleTextItem::Type));
    QCOMPARE(item->text(), kText);
    QCOMPARE(exactly(item->pos()), exactly(QPointF(12.34567890123, -5.5)));
    QVERIFY(item->transform().isIdentity());
    QCOMPARE(item->font(), font);
    QCOMPARE(item->brush(), brush);
    QCOMPARE(item->pen(), QPen(Qt::NoPen));
}

void TestTXGraphicsSceneText::boundingRectIsThatOfTheMetrics_data()
{
    QTest::addColumn<QString>("text");
    QTest::addRow("empty") << QString();
    QTest::addRow("word") << kText;
    QTest::addRow("lines") << QStringLiteral("one\ntwo\nthree");
    QTest::addRow("mnemonic") << QStringLiteral("R&D");
}

void TestTXGraphicsSceneText::boundingRectIsThatOfTheMetrics()
{
    QFETCH(QString, text);

    for (int round = 0; round < 2; ++round) {
        const QRectF rect = TXGraphicsScene::getBoundingRectOfText(text, reportTestFont(10));
        QCOMPARE(exactly(rect.topLeft()), exactly(QPointF(0, 0)));
        QCOMPARE(exactly(rect.bottomRight()),
                 exactly(QPointF(measured(text).width(), measured(text).height())));
    }
}

void TestTXGraphicsSceneText::ampersandTakesNoRoomButIsDrawn()
{
    QCOMPARE(measured(QStringLiteral("R&D")), measured(QStringLiteral("RD")));
    TXGraphicsScene scene;

    drawInRect(scene, QStringLiteral("R&D"), QRectF(0, 0, 100, 50), 0, 0);

    const auto *item = onlyItem<QGraphicsSimpleTextItem>(scene);
    QVERIFY(item);
    QCOMPARE(item->text(), QStringLiteral("R&D"));
    QVERIFY(item->boundingRect().width() > measured(QStringLiteral("R&D")).width() + 5);
}

void TestTXGraphicsSceneText::emptyTextDrawsNothing()
{
    TXGraphicsScene scene;

    drawInRect(scene, QString(), QRectF(0, 0, 100, 50), 0, 0);
    drawInRect(scene, QStringLiteral(""), QRectF(0, 0, 100, 50), 2, 2);

    QVERIFY(scene.items().isEmpty());
}

void TestTXGraphicsSceneText::textIsAligned_data()
{
    QTest::addColumn<quint32>("horizontal");
    QTest::addColumn<quint32>("vertical");
    QTest::addColumn<QPointF>("place");

    // The rectangle below: its place is 0.1 in single precision, its size counts as 100 by 50.
    const double width = measured(kText).width();
    const double height = measured(kText).height();
    constexpr float kStart = 0.1F;
    const auto place = [](double right, double down) {
        return QPointF(float(kStart + right), float(kStart + down));
    };
    QTest::addRow("left top") << 0U << 0U << place(2, 3);
    QTest::addRow("right bottom") << 1U << 1U << place(100 - width - 2, 50 - height - 3);
    QTest::addRow("centred") << 2U << 2U << place((100 - width) * 0.5, (50 - height) * 0.5);
    QTest::addRow("any other number") << 7U << 7U << place(0, 0);
    QTest::addRow("left, other") << 0U << 3U << place(2, 0);
    QTest::addRow("other, bottom") << 3U << 1U << place(0, 50 - height - 3);
}

void TestTXGraphicsSceneText::textIsAligned()
{
    QFETCH(quint32, horizontal);
    QFETCH(quint32, vertical);
    QFETCH(QPointF, place);
    TXGraphicsScene scene;

    drawInRect(scene, kText, QRectF(0.1, 0.1, 100.9, 50.9), horizontal, vertical);

    const auto *item = onlyItem<QGraphicsSimpleTextItem>(scene);
    QVERIFY(item);
    QCOMPARE(exactly(item->pos()), exactly(place));
}

void TestTXGraphicsSceneText::leftTextStandsOffByTheMargin()
{
    TXGraphicsScene scene;

    drawInRect(scene, kText, QRectF(10, 20, 100, 50), 0, 0, QSizeF(2.0, 2.0));

    QCOMPARE(onlyItem<QGraphicsSimpleTextItem>(scene)->pos(), QPointF(12, 22));
}

void TestTXGraphicsSceneText::alignedTextIsSeenAtItsSide_data()
{
    QTest::addColumn<quint32>("horizontal");
    QTest::addColumn<quint32>("vertical");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        for (const quint32 horizontal : {0U, 1U, 2U}) {
            for (const quint32 vertical : {0U, 1U, 2U}) {
                QTest::addRow("%u across, %u down, ratio %g", horizontal, vertical, ratio)
                    << horizontal << vertical << ratio;
            }
        }
    }
}

void TestTXGraphicsSceneText::alignedTextIsSeenAtItsSide()
{
    QFETCH(quint32, horizontal);
    QFETCH(quint32, vertical);
    QFETCH(qreal, ratio);
    TXGraphicsScene scene;
    drawInRect(scene, QStringLiteral("HHH"), QRectF(QPointF(0, 0), kArea), horizontal, vertical);

    const QRect ink = inked(rendered(scene, kArea, ratio), kArea);

    const int left = ink.left();
    const int right = kArea.width() - 1 - ink.right();
    const int top = ink.top();
    const int bottom = kArea.height() - 1 - ink.bottom();
    QVERIFY(ink.width() > 15 && ink.width() < 30);
    // A letter stands up to 2 off its own side, a line leaves up to 4 above and below.
    switch (horizontal) {
    case 0:
        QVERIFY(left >= 2 && left <= 4);
        break;
    case 1:
        QVERIFY(right >= 2 && right <= 4);
        break;
    default:
        QVERIFY(qAbs(left - right) <= 1);
    }
    switch (vertical) {
    case 0:
        QVERIFY(top >= 3 && top <= 7);
        break;
    case 1:
        QVERIFY(bottom >= 3 && bottom <= 7);
        break;
    default:
        QVERIFY(qAbs(top - bottom) <= 2);
    }
}

void TestTXGraphicsSceneText::drawnTextHasColourAndFont_data()
{
    SceneTestHelpers::addRatios();
}

void TestTXGraphicsSceneText::drawnTextHasColourAndFont()
{
    QFETCH(qreal, ratio);
    TXGraphicsScene scene;
    // Full block, as high as the line and more.
    scene.drawText(QStringLiteral("\u2588\u2588"), QPointF(10, 10), reportTestFont(20),
                   QColor(0, 128, 255));

    const PixelProbe probe = rendered(scene, kArea, ratio);

    QCOMPARE(probe.at({20, 22}), QColor(0, 128, 255));
    QCOMPARE(probe.at({8, 22}), QColor(Qt::white));
    QCOMPARE(probe.at({60, 22}), QColor(Qt::white));
}

void TestTXGraphicsSceneText::textRunsOverItsRectangle()
{
    TXGraphicsScene scene;

    drawInRect(scene, QStringLiteral("far wider than this"), QRectF(50, 20, 10, 10), 2, 2);

    const QRect ink = inked(rendered(scene, kArea), kArea);
    QVERIFY(ink.left() < 30);
    QVERIFY(ink.right() > 80);
    QVERIFY(ink.height() < 12);
}

void TestTXGraphicsSceneText::unusualTextsAreDrawn_data()
{
    QTest::addColumn<QString>("text");
    QTest::addRow("line breaks") << QStringLiteral("one\ntwo\r\nthree\u2028four");
    QTest::addRow("tabs") << QStringLiteral("a\tb\t\tc");
    QTest::addRow("right to left") << QStringLiteral("\u05e9\u05dc\u05d5\u05dd 12 abc");
    QTest::addRow("direction marks") << QStringLiteral("\u202Eabc\u202C\u2067def");
    QTest::addRow("combining") << QStringLiteral("e\u0301") + QString(500, QChar(0x0301))
            + QStringLiteral("x");
    QTest::addRow("astral") << QStringLiteral("\U0001D50A\U0001F600\U0010FFFF");
    QTest::addRow("halves of a pair") << QString(QChar(0xDC00)) + QString(QChar(0xD800));
    QTest::addRow("control characters") << QString(QChar(0)) + QStringLiteral("\x01\x7f\uFFFF");
}

void TestTXGraphicsSceneText::unusualTextsAreDrawn()
{
    QFETCH(QString, text);
    TXGraphicsScene scene;

    drawInRect(scene, text, QRectF(0, 0, 100, 50), 1, 1);

    const auto *item = onlyItem<QGraphicsSimpleTextItem>(scene);
    QVERIFY(item);
    QCOMPARE(item->text(), text);
    const QSizeF size = measured(text);
    QCOMPARE(exactly(item->pos()),
             exactly(QPointF(float(100 - size.width() - 2), float(50 - size.height() - 3))));
    (void)rendered(scene, kArea, 2.0);
}

void TestTXGraphicsSceneText::textOfAMegabyteIsDrawn()
{
    constexpr int kLetters = 512 * 1024;
    const QString text(kLetters, QLatin1Char('x'));
    TXGraphicsScene scene;

    drawInRect(scene, text, QRectF(0, 0, 100, 50), 0, 0);

    QCOMPARE(onlyItem<QGraphicsSimpleTextItem>(scene)->pos(), QPointF(2, 3));
    QVERIFY(!inked(rendered(scene, kArea), kArea).isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestTXGraphicsSceneText>(argc, argv);
}

#include "tst_TXGraphicsSceneText.moc"
