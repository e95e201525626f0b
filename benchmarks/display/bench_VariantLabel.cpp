#include "RatioReporter.h"
#include "TXVariantViewer.h"
#include "VariantHtml.h"
#include "VariantLabel.h"

#include <QImage>
#include <QScrollArea>
#include <QScrollBar>
#include <QVariant>

#include <array>
#include <memory>

// The line of a value, of ten kilobytes to ten megabytes of markup, beside Qt's rich text; and
// lines that cannot be measured by counting their letters.

namespace {

constexpr qsizetype kKilobyte = 1000;
constexpr qsizetype kMarkupOfARecord = 500;
constexpr QSize kWindow(800, 60);
constexpr qsizetype kMillion = 1000000;
constexpr qsizetype kHebrewCharacters = 4900;
constexpr int kPlaces = 2;

QVariantList records(qsizetype count)
{
    QVariantList list;
    list.reserve(count);
    for (qsizetype i = 0; i < count; ++i) {
        list.append(QVariantMap{{QStringLiteral("name"), QStringLiteral("sample %1").arg(i)},
                                {QStringLiteral("lightness"), double(i) * 0.37},
                                {QStringLiteral("isValid"), i % 3 == 0},
                                {QStringLiteral("count"), int(i)}});
    }
    return list;
}

/// So many thousand characters, or a few more.
QString markup(qsizetype kilobytes)
{
    const qsizetype count = kilobytes * kKilobyte / kMarkupOfARecord;
    return VariantHtml::line(VariantHtml::fromVariant(records(qMax<qsizetype>(count, 1)), true));
}

void paint(QWidget &widget)
{
    QImage picture(kWindow, QImage::Format_ARGB32_Premultiplied);
    widget.render(&picture, QPoint(), QRegion(QRect(QPoint(), kWindow)));
}

/// The widget in a scroll area in which it takes the room that it asks for.
std::unique_ptr<QScrollArea> inScrollArea(QWidget *widget)
{
    auto area = std::make_unique<QScrollArea>();
    area->setAttribute(Qt::WA_DontShowOnScreen);
    area->setWidgetResizable(true);
    area->setWidget(widget);
    area->resize(kWindow);
    area->show();
    return area;
}

void failUnless(bool isWell, benchmark::State &state)
{
    if (!isWell) {
        state.SkipWithError("not as wide as the text");
    }
}

/// From the markup to the first picture.
template<class Label>
void show(benchmark::State &state)
{
    const QString text = markup(state.range(0));
    for (auto step : state) {
        auto *label = new Label;
        label->setText(text);
        const std::unique_ptr<QScrollArea> area = inScrollArea(label);
        paint(*area);
        failUnless(label->width() > kWindow.width(), state);
    }
    state.counters["characters"] = double(text.size());
}

/// The picture of the middle once more.
template<class Label>
void repaint(benchmark::State &state)
{
    auto *label = new Label;
    label->setText(markup(state.range(0)));
    const std::unique_ptr<QScrollArea> area = inScrollArea(label);
    area->ensureVisible(label->width() / 2, 0);
    paint(*area);
    for (auto step : state) {
        paint(*area);
    }
}

/// A million characters of one piece; of Hebrew, which shows by way of a document, as many as may.
struct HardText
{
    const char *name;
    QString piece;
    qsizetype characters;
};

const std::array<HardText, 5> &hardTexts()
{
    static const std::array<HardText, 5> kTexts{{
        {"han", QStringLiteral("語"), kMillion},
        {"one word", QStringLiteral("é"), kMillion},
        {"Thai", QStringLiteral("\u0e01\u0e33"), kMillion},
        {"zero width", QStringLiteral("\u200b"), kMillion},
        {"Hebrew records", QStringLiteral("[\u05d0\u05d1\u05d2: <b>1</b>], "), kHebrewCharacters},
    }};
    return kTexts;
}

std::unique_ptr<QScrollArea> hardLabel(const HardText &text)
{
    auto *label = new VariantLabel;
    label->setText(VariantHtml::line(text.piece.repeated(text.characters / text.piece.size())));
    return inScrollArea(label);
}

void showHard(benchmark::State &state)
{
    const HardText &text = hardTexts().at(std::size_t(state.range(0)));
    state.SetLabel(text.name);
    for (auto step : state) {
        const std::unique_ptr<QScrollArea> area = hardLabel(text);
        paint(*area);
    }
}

/// At the start, in the middle, or at the end.
void repaintHard(benchmark::State &state)
{
    const HardText &text = hardTexts().at(std::size_t(state.range(0)));
    state.SetLabel(text.name);
    const std::unique_ptr<QScrollArea> area = hardLabel(text);
    QScrollBar &bar = *area->horizontalScrollBar();
    bar.setValue(int(bar.maximum() * state.range(1) / kPlaces));
    paint(*area);
    for (auto step : state) {
        paint(*area);
    }
}

/// From the value to the first picture of the viewer, of lists of records of five nodes each.
void showValue(benchmark::State &state)
{
    const QVariant value = records(state.range(0));
    for (auto step : state) {
        auto *viewer = new TXVariantViewer;
        viewer->setValue(value);
        const std::unique_ptr<QScrollArea> area = inScrollArea(viewer);
        paint(*area);
        failUnless(viewer->width() > kWindow.width(), state);
    }
}

/// The part of it that the making of the markup takes.
void makeMarkup(benchmark::State &state)
{
    const QVariant value = records(state.range(0));
    for (auto step : state) {
        benchmark::DoNotOptimize(VariantHtml::line(VariantHtml::fromVariant(value, true)));
    }
}

constexpr int kTenKilobytes = 10;
constexpr int kMegabyte = 1000;
constexpr int kTenMegabytes = 10 * kMegabyte;
constexpr int kThousandRecords = 1000;
constexpr int kHundredThousandNodes = 20000;

void addSizes(benchmark::internal::Benchmark *family)
{
    family->RangeMultiplier(10)->Range(kTenKilobytes, kMegabyte)->Unit(benchmark::kMillisecond);
}

void addValues(benchmark::internal::Benchmark *family)
{
    family->Arg(kThousandRecords)->Arg(kHundredThousandNodes)->Unit(benchmark::kMillisecond);
}

void addHardTexts(benchmark::internal::Benchmark *family)
{
    family->DenseRange(0, int(hardTexts().size()) - 1)->Unit(benchmark::kMillisecond);
}

void addHardPlaces(benchmark::internal::Benchmark *family)
{
    for (int i = 0; i < int(hardTexts().size()); ++i) {
        for (int place = 0; place <= kPlaces; ++place) {
            family->Args({i, place});
        }
    }
    family->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(show<VariantLabel>)->Name("ShowText/ours")->Apply(addSizes)->Arg(kTenMegabytes);
BENCHMARK(show<QLabel>)->Name("ShowText/QLabel")->Apply(addSizes);

BENCHMARK(repaint<VariantLabel>)->Name("RepaintText/ours")->Apply(addSizes)->Arg(kTenMegabytes);
BENCHMARK(repaint<QLabel>)->Name("RepaintText/QLabel")->Apply(addSizes);

BENCHMARK(showHard)->Name("ShowHardText/ours")->Apply(addHardTexts);
BENCHMARK(repaintHard)->Name("RepaintHardText/ours")->ArgNames({"", "place"})->Apply(addHardPlaces);

BENCHMARK(showValue)->Name("ShowValue/ours")->Apply(addValues);
BENCHMARK(makeMarkup)->Name("MakeMarkup/ours")->Apply(addValues);
