#include "TextSizeCache.h"

#include "FontChanges.h"
#include "TextSizeTable.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QRawFont>

#include <algorithm>
#include <vector>

namespace {

/// The size on the font's device, by which equal fonts of different devices differ.
double pixelSizeOnDevice(const QFont &font)
{
    const bool isSetInPixels = font.pixelSize() >= 0;
    return isSetInPixels ? font.pixelSize()
                         : QRawFont::fromFont(TextSizeCache::separateCopy(font)).pixelSize();
}

/// A font with the texts that were measured in it.
struct MeasuredFont
{
    explicit MeasuredFont(const QFont &font)
        : latest(font)
        , metrics(TextSizeCache::separateCopy(font))
        , pixelSize(pixelSizeOnDevice(font))
    { }

    [[nodiscard]] bool isLike(const QFont &font) const
    {
        return latest == font && pixelSize == pixelSizeOnDevice(font);
    }

    /// Held, so that a font which is a copy of it is certain to be unchanged.
    QFont latest;
    QFontMetricsF metrics;
    double pixelSize;
    TextSizeTable sizes;
};

struct WeightedFont
{
    [[nodiscard]] bool isOf(const QFont &font, QFont::Weight ofWeight) const
    {
        // Copies share all but the mask of what was set explicitly.
        return weight == ofWeight && source.isCopyOf(font)
            && source.resolveMask() == font.resolveMask();
    }

    QFont source;
    QFont::Weight weight;
    QFont weighted;
};

/// An application that is a global object ends after its thread's memory has gone.
thread_local bool hasMemoryGone = false;

/// What a thread remembers.
class Memory
{
public:
    Memory() = default;
    ~Memory() { hasMemoryGone = true; }
    Q_DISABLE_COPY_MOVE(Memory)

    /// This thread's, emptied if fonts have changed since it was last asked for.
    static Memory &current();

    MeasuredFont &measuredFont(const QFont &font);
    void remember(MeasuredFont &font, const QString &text, size_t hash, const QSizeF &size);
    const QFont &weightedFont(const QFont &font, QFont::Weight weight);
    void forget();

    [[nodiscard]] qsizetype textCount() const { return texts; }
    [[nodiscard]] qsizetype fontCount() const { return qsizetype(measuredFonts.size()); }

private:
    void forgetTexts();

    std::vector<MeasuredFont> measuredFonts;
    std::vector<WeightedFont> weightedFonts;
    qsizetype texts = 0;
    int fontChanges = -1;
};

Memory &Memory::current()
{
    thread_local Memory memory;
    const int fontChanges = FontChanges::count();
    if (memory.fontChanges != fontChanges) {
        memory.fontChanges = fontChanges;
        memory.forget();
        // Fonts must not outlive the application that loaded them.
        qRemovePostRoutine(TextSizeCache::forget);
        qAddPostRoutine(TextSizeCache::forget);
    }
    return memory;
}

void Memory::forget()
{
    measuredFonts.clear();
    weightedFonts.clear();
    texts = 0;
}

void Memory::forgetTexts()
{
    for (MeasuredFont &font : measuredFonts) {
        font.sizes.clear();
    }
    texts = 0;
}

MeasuredFont &Memory::measuredFont(const QFont &font)
{
    const auto end = measuredFonts.end();
    auto found = std::find_if(measuredFonts.begin(), end, [&](const MeasuredFont &candidate) {
        return candidate.latest.isCopyOf(font);
    });
    if (found != end) {
        return *found;
    }
    found = std::find_if(measuredFonts.begin(), end,
                         [&](const MeasuredFont &candidate) { return candidate.isLike(font); });
    if (found != end) {
        found->latest = font;
        return *found;
    }
    if (measuredFonts.size() == TextSizeCache::kMaximumFonts) {
        measuredFonts.clear();
        texts = 0;
    }
    return measuredFonts.emplace_back(font);
}

void Memory::remember(MeasuredFont &font, const QString &text, size_t hash, const QSizeF &size)
{
    if (text.size() > TextSizeCache::kLongestText) {
        return;
    }
    if (texts == TextSizeCache::kMaximumTexts) {
        forgetTexts();
    }
    font.sizes.add(text, hash, size);
    ++texts;
}

const QFont &Memory::weightedFont(const QFont &font, QFont::Weight weight)
{
    const auto found =
        std::find_if(weightedFonts.cbegin(), weightedFonts.cend(),
                     [&](const WeightedFont &candidate) { return candidate.isOf(font, weight); });
    if (found != weightedFonts.cend()) {
        return found->weighted;
    }
    if (weightedFonts.size() == TextSizeCache::kMaximumFonts) {
        weightedFonts.clear();
    }
    QFont weighted = TextSizeCache::separateCopy(font);
    weighted.setWeight(weight);
    weightedFonts.push_back({font, weight, weighted});
    return weightedFonts.back().weighted;
}

} // namespace

QSizeF TextSizeCache::textSize(const QString &text, const QFont &font)
{
    Memory &memory = Memory::current();
    MeasuredFont &measured = memory.measuredFont(font);
    const size_t hash = TextSizeTable::hash(text);
    if (const QSizeF *known = measured.sizes.find(text, hash)) {
        return *known;
    }
    const QSizeF size = measured.metrics.size(Qt::TextShowMnemonic, text);
    memory.remember(measured, text, hash, size);
    return size;
}

QSizeF TextSizeCache::measuredTextSize(const QString &text, const QFont &font)
{
    return Memory::current().measuredFont(font).metrics.size(Qt::TextShowMnemonic, text);
}

QFont TextSizeCache::separateCopy(const QFont &font)
{
    QFont copy = font;
    copy.setUnderline(!font.underline());
    copy.setUnderline(font.underline());
    copy.setResolveMask(font.resolveMask());
    return copy;
}

QFont TextSizeCache::fontWithWeight(const QFont &font, QFont::Weight weight)
{
    return Memory::current().weightedFont(font, weight);
}

qsizetype TextSizeCache::textCount()
{
    return Memory::current().textCount();
}

qsizetype TextSizeCache::fontCount()
{
    return Memory::current().fontCount();
}

void TextSizeCache::forget()
{
    if (!hasMemoryGone) {
        Memory::current().forget();
    }
}
