#include "VariantLabel.h"

#include "TestBase.h"
#include "VariantHtml.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QVariant>

namespace {

constexpr qsizetype kMillion = 1000000;

QString sampleMarkup()
{
    const QVariantMap value{
        {QStringLiteral("a <key>"), QStringLiteral("text with \"quotes\" & more; AVAVA fi")},
        {QStringLiteral("b"), QVariantList{1, 2.5, true, QVariant(), 3U}},
        {QStringLiteral("children"), QVariantList{QVariantMap()}},
    };
    return VariantHtml::line(VariantHtml::fromVariant(value, true));
}

QString longMarkup(int records)
{
    QVariantList list;
    for (int i = 0; i < records; ++i) {
        list.append(QVariantMap{{QStringLiteral("name"), QStringLiteral("sample %1").arg(i)},
                                {QStringLiteral("value"), i * 0.37},
                                {QStringLiteral("isValid"), i % 3 == 0}});
    }
    return VariantHtml::line(VariantHtml::fromVariant(list, true));
}

/// A label of ours and Qt's own with the same text, for comparison.
struct Pair
{
    VariantLabel ours;
    QLabel theirs;

    explicit Pair(const QString &markup)
    {
        theirs.setAutoFillBackground(true);
        setText(markup);
        for (QLabel *label : {static_cast<QLabel *>(&ours), &theirs}) {
            label->setAttribute(Qt::WA_DontShowOnScreen);
        }
    }

    void setText(const QString &markup)
    {
        ours.setText(markup);
        theirs.setText(markup);
    }

    template<class Change>
    void change(Change change)
    {
        change(static_cast<QLabel &>(ours));
        change(theirs);
    }

    void resize(const QSize &size)
    {
        change([size](QLabel &label) { label.resize(size); });
    }
};

QImage pictureOf(QWidget &widget, const QRect &part, qreal ratio)
{
    QImage picture(part.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::magenta);
    widget.render(&picture, QPoint(), QRegion(part));
    return picture;
}

void compareParts(Pair &pair, const QRect &part)
{
    for (const qreal ratio : {1.0, 2.0}) {
        const QImage ours = pictureOf(pair.ours, part, ratio);
        const QImage theirs = pictureOf(pair.theirs, part, ratio);
        QVERIFY2(
            ours == theirs,
            qPrintable(
                QStringLiteral("at ratio %1, %2 pixels wide").arg(ratio).arg(pair.ours.width())));
    }
}

void compareSizes(const Pair &pair)
{
    QCOMPARE(pair.ours.sizeHint(), pair.theirs.sizeHint());
    QCOMPARE(pair.ours.minimumSizeHint(), pair.theirs.minimumSizeHint());
}

/// Sizes, and the whole pictures at their natural size and in a larger room.
void compareAll(Pair &pair)
{
    compareSizes(pair);
    const QSize natural = pair.theirs.sizeHint().expandedTo(QSize(1, 1)).boundedTo({4000, 500});
    for (const QSize &size : {natural, natural + QSize(33, 16), QSize(20, 9)}) {
        pair.resize(size);
        compareParts(pair, QRect(QPoint(), size));
    }
}

/// Counts the presses that come through to it.
class PressCounter : public QWidget
{
public:
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

} // namespace

class TestVariantLabel : public TestBase
{
    Q_OBJECT

private slots:
    void looksLikeQtsLabel_data();
    void looksLikeQtsLabel();
    void fontsLookAsInQtsLabel_data();
    void fontsLookAsInQtsLabel();
    void settingsCountAsInQtsLabel_data();
    void settingsCountAsInQtsLabel();
    void partsOfALongLineLookLikeQtsLabel();
    void textMayBeSetThroughQtsLabel();
    void otherFontIsMeasured();
    void otherPaletteIsPainted();
    void textStaysAsItWasGiven();
    void pressesGoToTheParent();
    void screenReadersReadTheWords();
    void nestedTablesCostNothing();
    void namedFilesAreNotRead();
    void longForeignTextIsShownAsItStands();
    void endlessTextsShowAtOnce_data();
    void endlessTextsShowAtOnce();
    void widestLineFitsAScrollArea();
};

void TestVariantLabel::looksLikeQtsLabel_data()
{
    QTest::addColumn<QString>("markup");

    const auto row = [](const char *name, const QString &content) {
        QTest::newRow(name) << VariantHtml::line(content);
    };
    row("empty", QString());
    row("one letter", QStringLiteral("a"));
    row("letter wider than its room", QStringLiteral("a&amp;"));
    row("blank at the end", QStringLiteral("a "));
    row("bold only", QStringLiteral("<b>[</b>"));
    row("bold at the end", QStringLiteral("ab<b>W</b>"));
    row("tabs", QStringLiteral("a\tb"));
    row("null characters", QStringLiteral("a") + QChar(0) + u'b');
    row("accents", QStringLiteral("héllo wörld Ω Ж"));
    row("marks", QStringLiteral("e\u0301a\u0308\u0323 x"));
    row("han", QStringLiteral("color 語言 한국어"));
    row("emoji", QStringLiteral("\U0001f600 x \U0001f468\u200d\U0001f469"));
    row("other fonts", QStringLiteral("\u0e01\u0e33 \u1f00 \u200b"));
    row("hebrew", QStringLiteral("a <b>\u05d0\u05d1</b> c"));
    row("arabic", QStringLiteral("\u0627\u0644\u0633 1"));
    row("foreign tags", QStringLiteral("a<i>b</i><br>c"));
    row("less than", QStringLiteral("1 < 2"));
    row("foreign entity", QStringLiteral("a&nbsp;&eacute;"));
    row("paragraphs", QStringLiteral("a\u2029b"));
    QTest::newRow("value") << sampleMarkup();
    QTest::newRow("key") << VariantHtml::key(QStringLiteral("a <key>"));
    QTest::newRow("many chunks") << longMarkup(12);
    row("chunks of accents", QStringLiteral("é").repeated(600));
    row("chunks of letters in other fonts", QStringLiteral("\u0e01x").repeated(300));
    row("chunks of marks", QStringLiteral("e\u0301").repeated(400));
    row("chunks of pairs", QStringLiteral("\U0001f600").repeated(300));
}

void TestVariantLabel::looksLikeQtsLabel()
{
    QFETCH(const QString, markup);
    Pair pair(markup);

    compareAll(pair);
}

void TestVariantLabel::fontsLookAsInQtsLabel_data()
{
    QTest::addColumn<QFont>("font");

    for (const qreal points : {6.0, 8.5, 13.0, 24.0}) {
        QFont font;
        font.setPointSizeF(points);
        QTest::addRow("%g points", points) << font;
    }
    QFont font;
    font.setPixelSize(17);
    QTest::newRow("pixels") << font;
    font.setBold(true);
    QTest::newRow("bold") << font;
    font.setItalic(true);
    QTest::newRow("bold and italic") << font;
    font = QFont();
    font.setUnderline(true);
    QTest::newRow("underlined") << font;
    font = QFont();
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
    QTest::newRow("spaced") << font;
    font = QFont();
    font.setWordSpacing(3.0);
    QTest::newRow("words apart") << font;
    font = QFont();
    font.setCapitalization(QFont::AllUppercase);
    QTest::newRow("capitals") << font;
    font = QFont(QStringLiteral("DejaVu Serif"));
    font.setStretch(150);
    QTest::newRow("stretched") << font;
}

void TestVariantLabel::fontsLookAsInQtsLabel()
{
    QFETCH(const QFont, font);
    for (const QString &markup : {sampleMarkup(), longMarkup(8), VariantHtml::line(QString()),
                                  VariantHtml::line(QStringLiteral("é 語 x"))}) {
        Pair pair(markup);
        pair.change([&font](QLabel &label) { label.setFont(font); });

        compareAll(pair);
    }
}

using Setting = void (*)(QLabel &);
Q_DECLARE_METATYPE(Setting)

void TestVariantLabel::settingsCountAsInQtsLabel_data()
{
    QTest::addColumn<Setting>("setting");

    const auto row = [](const char *name, Setting setting) {
        QTest::newRow(name) << setting;
    };
    row("disabled", [](QLabel &label) { label.setEnabled(false); });
    row("dark", [](QLabel &label) {
        QPalette dark(QColor(0x30, 0x30, 0x34));
        label.setPalette(dark);
    });
    row("dark and disabled", [](QLabel &label) {
        label.setPalette(QPalette(QColor(0x30, 0x30, 0x34)));
        label.setEnabled(false);
    });
    row("foreground of its own", [](QLabel &label) {
        QPalette palette;
        palette.setColor(QPalette::Highlight, Qt::red);
        label.setPalette(palette);
        label.setForegroundRole(QPalette::Highlight);
    });
    row("top", [](QLabel &label) { label.setAlignment(Qt::AlignLeft | Qt::AlignTop); });
    row("bottom", [](QLabel &label) { label.setAlignment(Qt::AlignLeft | Qt::AlignBottom); });
    row("right", [](QLabel &label) { label.setAlignment(Qt::AlignRight | Qt::AlignVCenter); });
    row("centre", [](QLabel &label) { label.setAlignment(Qt::AlignCenter); });
    row("indent", [](QLabel &label) { label.setIndent(7); });
    row("indent at the bottom right", [](QLabel &label) {
        label.setAlignment(Qt::AlignRight | Qt::AlignBottom);
        label.setIndent(5);
    });
    row("margin", [](QLabel &label) { label.setMargin(4); });
    row("contents margins", [](QLabel &label) { label.setContentsMargins(3, 1, 5, 2); });
    row("frame", [](QLabel &label) { label.setFrameStyle(QFrame::Box | QFrame::Sunken); });
    row("frame and margin", [](QLabel &label) {
        label.setFrameStyle(QFrame::Panel | QFrame::Raised);
        label.setLineWidth(3);
        label.setMargin(2);
    });
    row("minimum", [](QLabel &label) { label.setMinimumSize(100, 40); });
    row("mirrored", [](QLabel &label) { label.setLayoutDirection(Qt::RightToLeft); });
    row("style sheet", [](QLabel &label) {
        label.setStyleSheet(QStringLiteral("color: #804020; padding: 3px; font-size: 15px"));
    });
}

void TestVariantLabel::settingsCountAsInQtsLabel()
{
    QFETCH(const Setting, setting);
    for (const QString &markup : {VariantHtml::line(QString()), sampleMarkup(), longMarkup(6),
                                  VariantHtml::line(QStringLiteral("a<i>b</i> \u05d0"))}) {
        Pair pair(markup);
        pair.change(setting);

        compareAll(pair);
    }
}

void TestVariantLabel::partsOfALongLineLookLikeQtsLabel()
{
    Pair pair(longMarkup(120));
    compareSizes(pair);
    pair.resize(pair.theirs.sizeHint());

    for (int x = 0; x < pair.ours.width(); x += 1777) {
        compareParts(pair, QRect(x, 0, 300, pair.ours.height()));
        compareParts(pair, QRect(x + 11, 3, 2, 5));
    }
    compareParts(pair, QRect(pair.ours.width() - 100, 0, 100, pair.ours.height()));
}

void TestVariantLabel::textMayBeSetThroughQtsLabel()
{
    Pair pair(sampleMarkup());
    compareAll(pair);
    QLabel *const label = &pair.ours;

    for (const QString &markup :
         {longMarkup(3), VariantHtml::line(QStringLiteral("a<i>b</i>")),
          VariantHtml::line(QStringLiteral("ab")), VariantHtml::line(QStringLiteral("cd"))}) {
        label->setText(markup);
        pair.theirs.setText(markup);
        compareAll(pair);
    }
}

void TestVariantLabel::otherFontIsMeasured()
{
    QWidget parent;
    auto *label = new VariantLabel(&parent);
    label->setText(sampleMarkup());
    const QSize before = label->sizeHint();
    QFont font = parent.font();
    font.setPointSize(20);

    parent.setFont(font);

    QVERIFY(label->sizeHint().height() > before.height());
    QVERIFY(label->sizeHint().width() > 3 * before.width() / 2);
}

void TestVariantLabel::otherPaletteIsPainted()
{
    Pair pair(sampleMarkup());
    compareAll(pair);

    pair.change([](QLabel &label) { label.setPalette(QPalette(Qt::darkBlue)); });

    compareAll(pair);
}

void TestVariantLabel::textStaysAsItWasGiven()
{
    VariantLabel label;
    label.setText(sampleMarkup());
    label.resize(label.sizeHint());

    QCOMPARE(label.text(), sampleMarkup());
    QVERIFY(label.autoFillBackground());
    QCOMPARE(label.cursor().shape(), Qt::ArrowCursor);
    QVERIFY(!label.hasSelectedText());
}

void TestVariantLabel::pressesGoToTheParent()
{
    PressCounter parent;
    auto *label = new VariantLabel(&parent);
    label->setText(VariantHtml::line(QStringLiteral("<a href=\"file:///\">link</a>")));
    label->resize(label->sizeHint());
    parent.show();

    QTest::mouseClick(label, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseClick(label, Qt::RightButton, {}, QPoint(5, 5));

    QCOMPARE(parent.presses, 2);
}

void TestVariantLabel::screenReadersReadTheWords()
{
    VariantLabel label;
    label.setText(VariantHtml::line(QStringLiteral("<b>a</b> &lt; <span style=\"color: "
                                                   "#000080\">true</span>")));
    QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(&label);
    QVERIFY(reader);

    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("a < true"));
    QCOMPARE(reader->role(), QAccessible::StaticText);
    label.setText(VariantHtml::line(QStringLiteral("a<i>b</i>")));
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("ab"));
    label.setText(VariantHtml::line(QStringLiteral("x").repeated(kMillion)));
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("x").repeated(1000));
    label.setAccessibleName(QStringLiteral("given"));
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("given"));
}

// Qt's own label takes minutes for eighteen of them.
void TestVariantLabel::nestedTablesCostNothing()
{
    VariantLabel label;
    const QString tables = QStringLiteral("<table><tr><td>").repeated(500);
    label.setText(VariantHtml::line(tables));

    label.resize(label.sizeHint().boundedTo({800, 50}));

    QCOMPARE(label.visibleText(15), QStringLiteral("<table><tr><td>"));
    pictureOf(label, label.rect(), 1.0);
}

// Reading this one would never end.
void TestVariantLabel::namedFilesAreNotRead()
{
    VariantLabel label;
    label.setText(VariantHtml::line(QStringLiteral("a<img src=\"/dev/zero\">b")));

    label.resize(label.sizeHint());

    QVERIFY(label.sizeHint().width() < 40);
    pictureOf(label, label.rect(), 1.0);
}

void TestVariantLabel::longForeignTextIsShownAsItStands()
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
    QCOMPARE(pictureOf(label, label.rect(), 1.0), pictureOf(escaped, escaped.rect(), 1.0));
}

void TestVariantLabel::endlessTextsShowAtOnce_data()
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
}

void TestVariantLabel::endlessTextsShowAtOnce()
{
    QFETCH(const QString, piece);
    VariantLabel label;

    label.setText(VariantHtml::line(piece.repeated(5 * kMillion / piece.size())));
    const QSize size = label.sizeHint();

    QVERIFY(size.width() <= QWIDGETSIZE_MAX);
    QVERIFY(size.height() > 5);
    label.resize(size);
    QCOMPARE(label.size(), size);
    pictureOf(label, QRect(0, 0, 800, size.height()), 1.0);
    pictureOf(label, QRect(size.width() / 2, 0, 800, size.height()), 1.0);
    pictureOf(label, QRect(qMax(0, size.width() - 800), 0, 800, size.height()), 1.0);
}

// The words at the far end stand where they belong, and can be scrolled to.
void TestVariantLabel::widestLineFitsAScrollArea()
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
    const QImage end = pictureOf(*label, QRect(label->width() - 100, 0, 100, label->height()), 1.0);
    VariantLabel blank;
    blank.resize(100, label->height());
    QVERIFY(end != pictureOf(blank, blank.rect(), 1.0));
}

int main(int argc, char **argv)
{
    return runTest<TestVariantLabel>(argc, argv);
}

#include "tst_VariantLabel.moc"
