#include "VariantLabel.h"

#include "TestBase.h"
#include "VariantHtml.h"

#include <QLoggingCategory>
#include <QPainter>
#include <QVBoxLayout>
#include <QVariant>

namespace {

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
    for (const qreal ratio : {1.0, 1.25, 1.5, 2.0}) {
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

/// A label on a screen of any resolution.
class ScreenLabel : public VariantLabel
{
public:
    using VariantLabel::VariantLabel;

    int dotsPerInch = 96;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        const bool isResolution = metric == PdmDpiX || metric == PdmDpiY;
        return isResolution ? dotsPerInch : VariantLabel::metric(metric);
    }
};

} // namespace

class TestVariantLabel : public TestBase
{
    Q_OBJECT

private slots:
    void looksLikeQtsLabel_data();
    void looksLikeQtsLabel();
    void lettersInNoFontLookLikeQtsLabel();
    void fontsLookAsInQtsLabel_data();
    void fontsLookAsInQtsLabel();
    void settingsCountAsInQtsLabel_data();
    void settingsCountAsInQtsLabel();
    void partsOfALongLineLookLikeQtsLabel();
    void textMayBeSetThroughQtsLabel();
    void partsOfADocumentLookLikeQtsLabel();
    void otherFontIsMeasured();
    void otherResolutionIsMeasured_data();
    void otherResolutionIsMeasured();
    void otherPaletteIsPainted();
    void textStaysAsItWasGiven();
    void hiddenLabelLooksTheSameWhenItIsShownAgain();
    void wrappingTheWordsChangesNoHeight();
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
    row("soft hyphens", QStringLiteral("a\u00adb<b>\u00ad</b>c\u00ad"));
    row("chunks with soft hyphens", QStringLiteral("x\u00ad").repeated(400));
    row("chunks of soft hyphens", QStringLiteral("\u00ad").repeated(600) + u'x');
    row("chunks of bold soft hyphens", QStringLiteral("<b>words\u00ad</b>a").repeated(60));
}

void TestVariantLabel::looksLikeQtsLabel()
{
    QFETCH(const QString, markup);
    Pair pair(markup);

    compareAll(pair);
}

// Qt shows them as boxes, which are not as high as the letters of the font.
void TestVariantLabel::lettersInNoFontLookLikeQtsLabel()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    for (const QString &content : {QStringLiteral("\u0915\u0916"), QStringLiteral("a \u0915"),
                                   QStringLiteral("\u0915").repeated(900)}) {
        Pair pair(VariantHtml::line(content));
        compareAll(pair);
    }
    QLoggingCategory::setFilterRules(QString());
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
    row("indent without a side", [](QLabel &label) {
        label.setAlignment(Qt::AlignVCenter);
        label.setIndent(7);
    });
    row("frame without a side", [](QLabel &label) {
        label.setAlignment(Qt::AlignTop);
        label.setFrameStyle(QFrame::Box | QFrame::Plain);
    });
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

void TestVariantLabel::partsOfADocumentLookLikeQtsLabel()
{
    Pair pair(VariantHtml::line(QStringLiteral("<pre>") + QStringLiteral("ÅÇj\n").repeated(40)));
    compareSizes(pair);
    pair.resize(pair.theirs.sizeHint());

    for (int y = 0; y < pair.ours.height(); y += 7) {
        compareParts(pair, QRect(y % 11, y, 9, 1 + y % 5));
    }
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

void TestVariantLabel::otherResolutionIsMeasured_data()
{
    QTest::addColumn<QString>("markup");

    QTest::newRow("line") << sampleMarkup();
    QTest::newRow("document") << VariantHtml::line(QStringLiteral("a<i>b</i>"));
}

void TestVariantLabel::otherResolutionIsMeasured()
{
    QFETCH(const QString, markup);
    QWidget parent;
    auto *layout = new QVBoxLayout(&parent);
    auto *label = new ScreenLabel(&parent);
    layout->addWidget(label);
    label->setText(markup);
    const QSize before = label->sizeHint();
    const QSize outerBefore = layout->sizeHint();

    label->dotsPerInch *= 2;
    QEvent change(QEvent::ScreenChangeInternal);
    QCoreApplication::sendEvent(label, &change);

    QVERIFY(label->sizeHint().width() > 3 * before.width() / 2);
    QVERIFY(label->sizeHint().height() > 3 * before.height() / 2);
    QCOMPARE(layout->sizeHint() - outerBefore, label->sizeHint() - before);
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

void TestVariantLabel::hiddenLabelLooksTheSameWhenItIsShownAgain()
{
    Pair pair(longMarkup(6));
    pair.ours.show();
    compareAll(pair);

    pair.ours.hide();

    compareAll(pair);
}

void TestVariantLabel::wrappingTheWordsChangesNoHeight()
{
    VariantLabel label;
    label.setText(sampleMarkup());
    label.setWordWrap(true);

    QVERIFY(!label.hasHeightForWidth());
    QCOMPARE(label.heightForWidth(10), label.sizeHint().height());
}

int main(int argc, char **argv)
{
    return runTest<TestVariantLabel>(argc, argv);
}

#include "tst_VariantLabel.moc"
