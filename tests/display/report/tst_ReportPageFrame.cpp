#include "ReportPageFrame.h"
#include "TestBase.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <cmath>

class TestReportPageFrame : public TestBase
{
    Q_OBJECT

private slots:
    void linesTakeRoomOnlyWithTextOnThem_data();
    void linesTakeRoomOnlyWithTextOnThem();
    void contentIsNeverNegative_data();
    void contentIsNeverNegative();
    void placeholdersAreFilled_data();
    void placeholdersAreFilled();
    void placesOutsideTheThreeAreIgnored();
    void headerStandsAtTheTopAndFooterAtTheBottom();
    void longTextsDoNotOverlap_data();
    void longTextsDoNotOverlap();
    void shortTextsAreWhole();
    void hugeTextsTakeNoLonger();
};

namespace {

constexpr QRectF kArea(40, 30, 300, 200);

constexpr TXHorizontalAlignment kNoPlace = TXHorizontalAlignment(7);

/// The columns in which anything is painted, as runs of first and last with gaps of three or less
/// closed.
QList<std::pair<int, int>> runsOfInk(const QImage &image)
{
    constexpr int kGapPixels = 5;
    QList<std::pair<int, int>> runs;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (qGray(image.pixel(x, y)) < 200) {
                if (runs.isEmpty() || runs.last().second + kGapPixels < x) {
                    runs.append({x, x});
                }
                runs.last().second = x;
                break;
            }
        }
    }
    return runs;
}

QImage painted(const ReportPageFrame &frame)
{
    QImage image(400, 260, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    frame.paint(&painter, kArea, 4, 9);
    return image;
}

} // namespace

void TestReportPageFrame::linesTakeRoomOnlyWithTextOnThem_data()
{
    QTest::addColumn<QString>("header");
    QTest::addColumn<QString>("footer");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("isHeaderThere");
    QTest::addColumn<bool>("isFooterThere");

    QTest::newRow("nothing") << ""
                             << ""
                             << "T" << false << false;
    QTest::newRow("header") << "a"
                            << ""
                            << "" << true << false;
    QTest::newRow("footer") << ""
                            << "a"
                            << "" << false << true;
    QTest::newRow("both") << "a"
                          << "a"
                          << "" << true << true;
    QTest::newRow("title") << "{title}"
                           << ""
                           << "T" << true << false;
    QTest::newRow("no title") << "{title}"
                              << ""
                              << "" << false << false;
    QTest::newRow("blanks") << "  "
                            << "\n"
                            << "" << false << false;
}

void TestReportPageFrame::linesTakeRoomOnlyWithTextOnThem()
{
    QFETCH(QString, header);
    QFETCH(QString, footer);
    QFETCH(QString, title);
    QFETCH(bool, isHeaderThere);
    QFETCH(bool, isFooterThere);
    ReportPageFrame frame;
    frame.header.setText(header, TXAlignRight);
    frame.footer.setText(footer, TXAlignLeft);
    frame.title = title;

    const double room = QFontMetricsF(frame.font).height() + 4;
    QCOMPARE(frame.font.pixelSize(), 8);
    QCOMPARE(frame.contentRect(kArea),
             kArea.adjusted(0, isHeaderThere ? room : 0, 0, isFooterThere ? -room : 0));
}

void TestReportPageFrame::contentIsNeverNegative_data()
{
    QTest::addColumn<QRectF>("area");

    QTest::newRow("negative") << QRectF(300, 300, -5, -50);
    QTest::newRow("lower than the lines") << QRectF(0, 0, 0, 10);
    QTest::newRow("not a number") << QRectF(std::nan(""), 0, std::nan(""), std::nan(""));
}

void TestReportPageFrame::contentIsNeverNegative()
{
    QFETCH(QRectF, area);
    ReportPageFrame frame;
    frame.header.setText("a", TXAlignLeft);
    frame.footer.setText("a", TXAlignLeft);

    QCOMPARE(frame.contentRect(area).size(), QSizeF(0, 0));
}

void TestReportPageFrame::placeholdersAreFilled_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("filled");

    QTest::newRow("plain") << "a {b} c"
                           << "T"
                           << "a {b} c";
    QTest::newRow("page of pages") << "{page}/{pages}"
                                   << "T"
                                   << "5/9";
    QTest::newRow("twice") << "{page}{page}{title}{title}"
                           << "T"
                           << "55TT";
    QTest::newRow("a title with braces") << "{title} {page}"
                                         << "{page} {title}"
                                         << "{page} {title} 5";
    QTest::newRow("control characters")
        << "a\tb\r\n{title}" << QString("x\u2028y\u0007z") << "a b  x y z";
    QTest::newRow("other writings") << "{title}"
                                    << "שלום 日本 😀"
                                    << "שלום 日本 😀";
}

void TestReportPageFrame::placeholdersAreFilled()
{
    QFETCH(QString, text);
    QFETCH(QString, title);
    QFETCH(QString, filled);
    ReportTextLine line;
    line.setText(text, TXAlignRight);

    QCOMPARE(line.filledText(TXAlignRight, {5, 9, title}), filled);
    QCOMPARE(line.filledText(TXAlignLeft, {5, 9, title}), QString());
}

void TestReportPageFrame::placesOutsideTheThreeAreIgnored()
{
    ReportTextLine line;
    line.setText("a", kNoPlace);

    QCOMPARE(line.text(kNoPlace), QString());
    QVERIFY(line.isBlank({}));
}

void TestReportPageFrame::headerStandsAtTheTopAndFooterAtTheBottom()
{
    ReportPageFrame frame;
    frame.header.setText("XXXX", TXAlignLeft);
    frame.footer.setText("XXXX", TXAlignRight);
    const QImage image = painted(frame);
    const int height = int(std::ceil(QFontMetricsF(frame.font).height()));

    const QImage head = image.copy(0, 30, 400, height);
    const QImage foot = image.copy(0, 230 - height, 400, height);
    QCOMPARE(runsOfInk(head).size(), 1);
    QVERIFY(std::abs(runsOfInk(head).first().first - 40) <= 1);
    QCOMPARE(runsOfInk(foot).size(), 1);
    QVERIFY(std::abs(runsOfInk(foot).first().second - 339) <= 1);
    QCOMPARE(runsOfInk(image.copy(0, 0, 400, 30)).size(), 0);
    QCOMPARE(runsOfInk(image.copy(0, 30 + height, 400, 200 - 2 * height)).size(), 0);
    QCOMPARE(runsOfInk(image.copy(0, 230, 400, 30)).size(), 0);
}

void TestReportPageFrame::longTextsDoNotOverlap_data()
{
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("centre");
    QTest::addColumn<int>("right");

    for (const int left : {0, 3, 30, 500}) {
        for (const int centre : {0, 3, 30, 500}) {
            for (const int right : {0, 3, 30, 500}) {
                QTest::addRow("%d %d %d", left, centre, right) << left << centre << right;
            }
        }
    }
}

void TestReportPageFrame::longTextsDoNotOverlap()
{
    QFETCH(int, left);
    QFETCH(int, centre);
    QFETCH(int, right);
    ReportPageFrame frame;
    frame.header.setText(QString(left, 'H'), TXAlignLeft);
    frame.header.setText(QString(centre, 'H'), TXAlignHorizontallyCentred);
    frame.header.setText(QString(right, 'H'), TXAlignRight);

    const QList<std::pair<int, int>> runs = runsOfInk(painted(frame));

    QCOMPARE(runs.size(), (left > 0 ? 1 : 0) + (centre > 0 ? 1 : 0) + (right > 0 ? 1 : 0));
    if (!runs.isEmpty()) {
        QVERIFY(runs.first().first >= 39);
        QVERIFY(runs.last().second <= 340);
    }
}

void TestReportPageFrame::shortTextsAreWhole()
{
    ReportPageFrame shown;
    shown.header.setText("{title} left", TXAlignLeft);
    shown.header.setText("page {page} of {pages}", TXAlignHorizontallyCentred);
    shown.title = "T";
    ReportPageFrame wanted;
    wanted.header.setText("T left", TXAlignLeft);
    wanted.header.setText("page 5 of 9", TXAlignHorizontallyCentred);

    QCOMPARE(painted(shown), painted(wanted));
    wanted.header.setText("page 5 of 8", TXAlignHorizontallyCentred);
    QVERIFY(painted(shown) != painted(wanted));
}

void TestReportPageFrame::hugeTextsTakeNoLonger()
{
    ReportPageFrame frame;
    frame.header.setText(QString(10'000'000, 'H'), TXAlignLeft);
    ReportPageFrame shorter;
    shorter.header.setText(QString(2000, 'H'), TXAlignLeft);

    QCOMPARE(painted(frame), painted(shorter));
}

int main(int argc, char **argv)
{
    return runTest<TestReportPageFrame>(argc, argv);
}

#include "tst_ReportPageFrame.moc"
