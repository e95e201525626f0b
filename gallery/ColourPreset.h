#pragma once

#include "LabColour.h"

#include "TXStringI18n.h"

#include <QString>
#include <QVariant>

#include <array>
#include <optional>

struct ColourPresetReading;

/// The settings with which a picture is converted for a press: what a host calls a preset.
struct ColourPreset
{
    /// How a colour is treated that the press cannot print.
    enum class Intent { Perceptual, RelativeColorimetric, Saturation, AbsoluteColorimetric };

    static constexpr std::array kIntents = {Intent::Perceptual, Intent::RelativeColorimetric,
                                            Intent::Saturation, Intent::AbsoluteColorimetric};
    /// The longest name, in UTF-16 units.
    static constexpr int kLongestName = 100;
    static constexpr double kLargestLightness = 100;
    /// Of a and b, on both sides of 0.
    static constexpr double kLargestChroma = 128;
    /// All four inks in full.
    static constexpr int kLargestInkPercent = 400;

    /// Names the preset within its collection for good, whatever it is called: the name of its
    /// file. Not in the JSON form: a file that is copied holds the same settings, not the same
    /// preset.
    QString id;
    /// What the user calls it.
    QString name;
    Intent intent = Intent::RelativeColorimetric;
    /// Whether the darkest colour of the picture becomes the darkest one of the press.
    bool hasBlackPointCompensation = true;
    /// The colour of the bare paper.
    LabColour paperWhite = {95, 0, -2};
    /// The most ink on one spot, all inks together, in percent of one; 0 to 400.
    int inkLimitPercent = 300;

    /// The user's word for an intent, in the language of the moment.
    [[nodiscard]] static QString intentName(Intent intent);

    /// Why a preset cannot have this name: it is blank, too long, or has characters that a list or
    /// a file cannot show. Empty for a good one.
    [[nodiscard]] static TXStringI18n nameProblem(const QString &name);

    /// The settings in one line, without the name, in the language of the moment.
    [[nodiscard]] QString summary() const;

    /// A name for a file to export to: the start of the preset's own, with "_" for what the name of
    /// a file cannot have everywhere.
    [[nodiscard]] QString fileName() const;

    /// Whether all settings and the name are the same; the id does not count.
    [[nodiscard]] bool hasSameSettings(const ColourPreset &other) const;

    /// The form that fromJson() reads, indented, in UTF-8.
    [[nodiscard]] QByteArray toJson() const;

    /// Reads a JSON value as readJsonText() gives it. Every setting has to be there, of its kind
    /// and in its range, and nothing else: what is not understood would be lost when the preset is
    /// saved. The preset has no id yet.
    [[nodiscard]] static ColourPresetReading fromJson(const QVariant &value);

    /// Reads a file with the limits of readJsonFile().
    [[nodiscard]] static ColourPresetReading fromFile(const QString &path);
};

/// The preset that was read, or why there is none.
struct ColourPresetReading
{
    std::optional<ColourPreset> preset;
    /// One or more sentences for the user; empty when there is a preset.
    TXStringI18n error;
};
