#pragma once

#include "TXSplashScreen.h"

#include <QString>

/// The gallery's splash: its picture, or the logo that a partner has put in its place, and a line
/// at the bottom that tells what is going on.
class GallerySplash final : public TXSplashScreen
{
    Q_OBJECT

public:
    /// Reads the picture, and keeps the copy of a partner's logo. A null screen is the one that Qt
    /// chooses.
    explicit GallerySplash(QScreen *screen = nullptr);

    /// The gallery's own picture, beside the program.
    [[nodiscard]] static QString ownPicturePath();

    /// Shows the splash at once, unless it has no picture.
    void open();

    /// Writes a short line on the splash, while it is shown.
    void tell(const QString &text);

protected:
    /// The line on a dark strip, so that it is read on every picture.
    void drawContents(QPainter *painter) override;
};
