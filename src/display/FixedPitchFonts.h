#pragma once

#include "TXGUICommonExport.h"

#include <QFont>
#include <QHash>
#include <QObject>
#include <QString>

/// What is known of the fonts that labels of monospaced text measure their letters with. Each font
/// is looked at once, and again when fonts were added or taken away.
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
        /// What each of the letters from blank to tilde takes, in steps; 0 when they differ, or
        /// when several together take another room than one by one.
        qint64 advanceSteps = 0;
        /// In pixels.
        qreal ascent = 0;
        qreal descent = 0;
        qreal leading = 0;
    };

    /// The metrics of the font, measured now when it is a new one.
    [[nodiscard]] static Metrics metrics(const QFont &font);

private slots:
    void forget();

private:
    explicit FixedPitchFonts(QObject *parent);

    [[nodiscard]] static FixedPitchFonts &instance();

    /// By the font's description. A QFont here might outlive the fonts of the application.
    QHash<QString, Metrics> known;
};
