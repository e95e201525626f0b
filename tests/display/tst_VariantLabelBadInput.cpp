#include "VariantLabel.h"

#include "TestBase.h"
#include "VariantHtml.h"

#include <QJsonValue>
#include <QPainter>
#include <QScrollArea>
#include <QVariant>

#include <ctime>

namespace {

constexpr qsizetype kMillion = 1000000;

// What takes longer hangs; it is many times what is needed. Counted is the time of this process, as
// other programs may be at work.
#ifdef __SANITIZE_ADDRESS__
constexpr qint64 kSlowness = 4;
#else
constexpr qint64 kSlowness = 1;
#endif
constexpr qint64 kShownMilliseconds = 1000 * kSlowness;
constexpr qint64 kPaintedMilliseconds = 50 * kSlowness;
constexpr qint64 kHungMilliseconds = 2000 * kSlowness;

class WorkClock
{
public:
    [[nodiscard]] qint64 elapsed() const { return (std::clock() - start) * 1000 / CLOCKS_PER_SEC; }

private:
    std::clock_t start = std::clock();
};

QImage pictureOf(QWidget &widget, const QRect &part)
{
    QImage picture(part.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::magenta);
    widget.render(&picture, QPoint(), QRegion(part));
    return picture;
}

/// The milliseconds that the part takes when it is painted once more; the best of a few times.
qint64 repaintMilliseconds(QWidget &widget, const QRect &part)
{
    qint64 best = kHungMilliseconds;
    for (int i = 0; i < 5; ++i) {
        const WorkClock clock;
        pictureOf(widget, part);
        best = qMin(best, clock.elapsed());
    }
    return best;
}

/// The size, the first picture, and others at both ends and in the middle.
void showsAtOnce(VariantLabel &label)
{
    const WorkClock clock;
    const QSize size = label.sizeHint();
    QVERIFY(size.width() <= QWIDGETSIZE_MAX);
    QVERIFY(size.height() > 5);
    label.resize(size);
    QCOMPARE(label.size(), size);
    pictureOf(label, QRect(0, 0, 800, qMin(size.height(), 800)));
    QVERIFY2(clock.elapsed() < kShownMilliseconds, qPrintable(QString::number(clock.elapsed())));

    for (const int x : {0, size.width() / 2, qMax(0, size.width() - 800)}) {
        const qint64 taken = repaintMilliseconds(label, QRect(x, 0, 800, qMin(size.height(), 800)));
        QVERIFY2(taken < kPaintedMilliseconds, qPrintable(QString::number(taken)));
    }
}

} // namespace

class TestVariantLabelBadInput : public TestBase
{
    Q_OBJECT

private slots:
    void nestedTablesCostNothing();
    void cellsAcrossManyCostNothing_data();
    void cellsAcrossManyCostNothing();
    void namedFilesAreNotRead();
    void longForeignTextIsShownAsItStands();
    void endlessTextsShowAtOnce_data();
    void endlessTextsShowAtOnce();
    void longTextsShowAtOnce_data();
    void longTextsShowAtOnce();
    void widestLineFitsAScrollArea();
};

// Qt's own label takes minutes for eighteen of them.
void TestVariantLabelBadInput::nestedTablesCostNothing()
{
    VariantLabel label;
    const QString tables = QStringLiteral("<table><tr><td>").repeated(500);
    label.setText(VariantHtml::line(tables));

    label.resize(label.sizeHint().boundedTo({800, 50}));

    QCOMPARE(label.visibleText(15), QStringLiteral("<table><tr><td>"));
    pictureOf(label, label.rect());
}

void TestVariantLabelBadInput::cellsAcrossManyCostNothing_data()
{
    QTest::addColumn<QString>("table");

    QTest::newRow("as usual") << QStringLiteral("<table>");
    QTest::newRow("in capitals") << QStringLiteral("<TABLE>");
    QTest::newRow("behind blanks") << QStringLiteral("< \u00a0table>");
    QTest::newRow("in quotes") << QStringLiteral("<\"table\">");
    QTest::newRow("with an entity") << QStringLiteral("<t&#97;ble>");
    QTest::newRow("with quotes and an entity") << QStringLiteral("< \"&#116;able\">");
}

// Cells at both edges of these spans come to millions of places.
void TestVariantLabelBadInput::cellsAcrossManyCostNothing()
{
    QFETCH(const QString, table);
    const QString text = table
        + QStringLiteral("<tr><td rowspan=3><td colspan=20480><tr><td colspan=20480 rowspan=9999>"
                         "<tr><td colspan=20480><tr><td>");
    VariantLabel label;
    const WorkClock clock;

    label.setText(
        VariantHtml::line(VariantHtml::fromVariant(QVariantList{1, QJsonValue(text), 2}, true)));
    label.resize(label.sizeHint().boundedTo({800, 50}));
    pictureOf(label, label.rect());

    QCOMPARE(label.visibleText(4 + table.size()), QStringLiteral("[1, ") + table);
    QVERIFY2(clock.elapsed() < kHungMilliseconds, qPrintable(QString::number(clock.elapsed())));
}

// Reading this one would never end.
void TestVariantLabelBadInput::namedFilesAreNotRead()
{
    VariantLabel label;
    label.setText(VariantHtml::line(QStringLiteral("a<img src=\"/dev/zero\">b")));

    label.resize(label.sizeHint());

    QVERIFY(label.sizeHint().width() < 40);
    pictureOf(label, label.rect());
}

void TestVariantLabelBadInput::longForeignTextIsShownAsItStands()
{
    VariantLabel label;
    const QString words = QStringLiteral("0123456789").repeated(2500);
    label.setText(VariantHtml::line(QStringLiteral("<i>") + words));

    QCOMPARE(label.visibleText(5), QStringLiteral("<i>01"));
    VariantLabel escaped;
    escaped.setText(VariantHtml::line(QStringLiteral("&lt;i&gt;") + words));
    QCOMPARE(label.sizeHint(), escaped.sizeHint());
    label.resize(800, 20);
    escaped.resize(800, 20);
    QCOMPARE(pictureOf(label, label.rect()), pictureOf(escaped, escaped.rect()));
}

void TestVariantLabelBadInput::endlessTextsShowAtOnce_data()
{
    QTest::addColumn<QString>("piece");

    QTest::newRow("letters") << QStringLiteral("a");
    QTest::newRow("tags") << QStringLiteral("<b>a</b>c");
    QTest::newRow("foreign tags") << QStringLiteral("<table>");
    QTest::newRow("null characters") << QString(QChar(0));
    QTest::newRow("han") << QStringLiteral("語");
    QTest::newRow("marks") << QStringLiteral("\u0301");
    QTest::newRow("joiners") << QStringLiteral("\U0001f468\u200d");
    QTest::newRow("hebrew") << QStringLiteral("\u05d0<b>\u05d1</b>");
    QTest::newRow("overrides") << QStringLiteral("\u202e");
    QTest::newRow("half pairs") << QString(QChar(0xd83d));
    QTest::newRow("thai") << QStringLiteral("\u0e01\u0e33");
    QTest::newRow("blanks without width") << QStringLiteral("\u200b");
    QTest::newRow("joiners alone") << QStringLiteral("\u200d");
    QTest::newRow("byte order marks") << QStringLiteral("\ufeff");
    QTest::newRow("soft hyphens") << QStringLiteral("\u00ad");
}

void TestVariantLabelBadInput::endlessTextsShowAtOnce()
{
    QFETCH(const QString, piece);
    VariantLabel label;

    label.setText(VariantHtml::line(piece.repeated(5 * kMillion / piece.size())));

    showsAtOnce(label);
}

void TestVariantLabelBadInput::longTextsShowAtOnce_data()
{
    QTest::addColumn<QString>("content");

    QTest::newRow("paragraphs") << QStringLiteral("<pre>") + QStringLiteral("a\n").repeated(9900);
    QTest::newRow("few paragraphs")
        << QStringLiteral("<pre>") + QStringLiteral("a\n").repeated(2400);
    QTest::newRow("hebrew") << QStringLiteral("\u05d0").repeated(19000);
    QTest::newRow("some hebrew") << QStringLiteral("\u05d0").repeated(4900);
}

void TestVariantLabelBadInput::longTextsShowAtOnce()
{
    QFETCH(const QString, content);
    VariantLabel label;

    label.setText(VariantHtml::line(content));

    showsAtOnce(label);
}

// The words at the far end stand where they belong, and can be scrolled to.
void TestVariantLabelBadInput::widestLineFitsAScrollArea()
{
    QScrollArea area;
    auto *label = new VariantLabel;
    label->setText(VariantHtml::line(QStringLiteral("|").repeated(3 * kMillion)));
    area.setWidget(label);
    area.setWidgetResizable(true);
    area.resize(400, 100);

    area.show();

    QVERIFY(QTest::qWaitForWindowExposed(&area));
    QCOMPARE(label->width(), QWIDGETSIZE_MAX);
    area.ensureVisible(label->width(), 0);
    const QImage end = pictureOf(*label, QRect(label->width() - 100, 0, 100, label->height()));
    VariantLabel blank;
    blank.resize(100, label->height());
    QVERIFY(end != pictureOf(blank, blank.rect()));
}

int main(int argc, char **argv)
{
    return runTest<TestVariantLabelBadInput>(argc, argv);
}

#include "tst_VariantLabelBadInput.moc"
