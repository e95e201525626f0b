#pragma once

#include "TXGUICommonExport.h"

#include <QFont>
#include <QHash>
#include <QObject>
#include <QString>
#include <QTextLayout>

/// What is known of the fonts that labels of monospaced text measure their letters with. Each font
/// is looked at once for each size in pixels that it comes to (a font of points has another one at
/// another resolution), and again when fonts were added or taken away.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT FixedPitchFonts : public QObject
{
    Q_OBJECT

public:
    /// Lengths are counted in these, as Qt's own layouts count them.
    static constexpr int kStepsPerPixel = 64;

    /// A font as Qt lays it out.
    struct Metrics
    {
        /// What each letter that isCounted() takes, in steps; 0 when they differ, or when several
        /// together take another room than one by one.
        qint64 advanceSteps = 0;
        /// In pixels.
        qreal ascent = 0;
        qreal descent = 0;
        qreal leading = 0;
    };

    /// True for the letters from blank to tilde, which a font's common advance counts for.
    [[nodiscard]] static bool isCounted(QChar letter);

    /// Lays all letters of the layout out in one line, however wide, and returns that line.
    static QTextLine layOutInOneLine(QTextLayout &layout);

    /// The metrics of the font at the resolution it was made for, measured now when it is new.
    [[nodiscard]] static Metrics metrics(const QFont &font);

private slots:
    void forget();

private:
    explicit FixedPitchFonts(QObject *parent);

    [[nodiscard]] static FixedPitchFonts &instance();

    /// By the font's description. A QFont here might outlive the fonts of the application.
    QHash<QString, Metrics> known;
};
