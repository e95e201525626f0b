#include "GalleryAppearance.h"

#include "ContrastStyle.h"
#include "FocusColour.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

#include <array>
#include <memory>

namespace {

struct NamedColours
{
    GalleryColours colours;
    const char *name;
};

constexpr std::array kNames = {
    NamedColours{GalleryColours::System, "system"},
    NamedColours{GalleryColours::Light, "light"},
    NamedColours{GalleryColours::Dark, "dark"},
    NamedColours{GalleryColours::Contrast, "contrast"},
};

/// The few colours from which the roles of a palette are filled.
struct Tones
{
    QColor window;
    QColor base;
    QColor alternateBase;
    QColor button;
    QColor light; ///< the lit edge of what is raised
    QColor text;
    QColor muted;
    QColor disabled;
    QColor line;
    QColor accent;
    QColor onAccent; ///< text that is selected
    QColor disabledAccent;
    QColor link;
    QColor toolTip;
};

const Tones &lightTones()
{
    static const Tones tones = {
        QColor(0xf3, 0xf4, 0xf7), QColor(0xff, 0xff, 0xff), QColor(0xf7, 0xf8, 0xfa),
        QColor(0xfb, 0xfb, 0xfd), QColor(0xff, 0xff, 0xff), QColor(0x1c, 0x22, 0x2e),
        QColor(0x5f, 0x68, 0x77), QColor(0xa3, 0xa9, 0xb4), QColor(0xd5, 0xd9, 0xe0),
        QColor(0x2b, 0x6c, 0xd4), QColor(0xff, 0xff, 0xff), QColor(0xec, 0xee, 0xf2),
        QColor(0x1f, 0x5f, 0xc4), QColor(0x2a, 0x30, 0x3c),
    };
    return tones;
}

const Tones &darkTones()
{
    static const Tones tones = {
        QColor(0x22, 0x25, 0x2b), QColor(0x1a, 0x1d, 0x22), QColor(0x1f, 0x22, 0x28),
        QColor(0x2f, 0x34, 0x3d), QColor(0x33, 0x38, 0x42), QColor(0xe3, 0xe6, 0xeb),
        QColor(0x97, 0xa0, 0xae), QColor(0x78, 0x80, 0x8c), QColor(0x3a, 0x40, 0x4a),
        QColor(0x36, 0x73, 0xd8), QColor(0xff, 0xff, 0xff), QColor(0x3a, 0x40, 0x4a),
        QColor(0x9c, 0xc3, 0xff), QColor(0x3a, 0x40, 0x4b),
    };
    return tones;
}

/// Every text has seven times the light of its ground, or the other way round; a disabled one four
/// and a half times.
const Tones &contrastTones()
{
    static const Tones tones = {
        QColor(0x00, 0x00, 0x00), QColor(0x00, 0x00, 0x00), QColor(0x1a, 0x1a, 0x1a),
        QColor(0x1a, 0x1a, 0x1a), QColor(0xc8, 0xc8, 0xc8), QColor(0xff, 0xff, 0xff),
        QColor(0xe0, 0xe0, 0xe0), QColor(0xb0, 0xb0, 0xb0), QColor(0xb0, 0xb0, 0xb0),
        QColor(0xff, 0xd7, 0x00), QColor(0x00, 0x00, 0x00), QColor(0x3a, 0x3a, 0x3a),
        QColor(0x5f, 0xd7, 0xff), QColor(0x33, 0x33, 0x33),
    };
    return tones;
}

void setShades(QPalette &palette, const Tones &tones)
{
    palette.setColor(QPalette::Light, tones.light);
    palette.setColor(QPalette::Midlight, tones.button.darker(103));
    palette.setColor(QPalette::Mid, tones.line);
    palette.setColor(QPalette::Dark, tones.line.darker(135));
    palette.setColor(QPalette::Shadow, tones.line.darker(260));
}

void setDisabledTexts(QPalette &palette, const Tones &tones)
{
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::HighlightedText, QPalette::PlaceholderText}) {
        palette.setColor(QPalette::Disabled, role, tones.disabled);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, tones.disabledAccent);
    palette.setColor(QPalette::Disabled, QPalette::Base, tones.window);
    // Some styles print a disabled text twice, in this colour first.
    palette.setColor(QPalette::Disabled, QPalette::Light, tones.window);
}

QPalette paletteOf(const Tones &tones)
{
    QPalette palette;
    palette.setColor(QPalette::Window, tones.window);
    palette.setColor(QPalette::WindowText, tones.text);
    palette.setColor(QPalette::Base, tones.base);
    palette.setColor(QPalette::AlternateBase, tones.alternateBase);
    palette.setColor(QPalette::Text, tones.text);
    palette.setColor(QPalette::PlaceholderText, tones.muted);
    palette.setColor(QPalette::Button, tones.button);
    palette.setColor(QPalette::ButtonText, tones.text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Highlight, tones.accent);
    palette.setColor(QPalette::HighlightedText, tones.onAccent);
    palette.setColor(QPalette::Link, tones.link);
    palette.setColor(QPalette::LinkVisited, tones.link.darker(115));
    palette.setColor(QPalette::ToolTipBase, tones.toolTip);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    setShades(palette, tones);
    setDisabledTexts(palette, tones);
    return palette;
}

/// The style takes the outline of a box from the colour of the window, and makes it darker. On a
/// dark ground that leaves nothing to be seen of a box that is not checked, or of an empty field.
/// Only for what paints no ground and no grid of this colour.
void setOutlines(const QPalette &palette, const Tones &tones)
{
    QPalette outlined = palette;
    outlined.setColor(QPalette::Window, tones.muted);
    for (const char *className : {"QCheckBox", "QRadioButton", "QTreeView", "QLineEdit",
                                  "QAbstractSpinBox", "QTextEdit", "QPlainTextEdit"}) {
        QApplication::setPalette(outlined, className);
    }
    // The header of a tree would take the tree's, and is filled with it beside the last column.
    QApplication::setPalette(palette, "QHeaderView");
}

/// The frame that shows the focus of a picture has the Highlight, and stands on the Mid around the
/// picture. In the dark that leaves it too little contrast.
void setPictureFrames(QPalette palette)
{
    palette.setColor(QPalette::Highlight, focusColour(palette));
    QApplication::setPalette(palette, "TXImageViewer");
}

void setPalette(GalleryColours colours)
{
    switch (colours) {
    case GalleryColours::Light:
        QApplication::setPalette(paletteOf(lightTones()));
        break;
    case GalleryColours::Dark:
        QApplication::setPalette(paletteOf(darkTones()));
        setOutlines(paletteOf(darkTones()), darkTones());
        setPictureFrames(paletteOf(darkTones()));
        break;
    case GalleryColours::Contrast:
        QApplication::setPalette(paletteOf(contrastTones()));
        break;
    case GalleryColours::System:
        // A palette without set roles gives the application's own back.
        QApplication::setPalette(QPalette());
        break;
    }
}

/// Under a style sheet, Qt leaves the widgets there are in the colours that they have, and hides
/// which style there is. So the sheet is taken off for as long as this lives.
class WithoutStyleSheet
{
public:
    WithoutStyleSheet()
        : sheet(qApp->styleSheet())
    {
        qApp->setStyleSheet(QString());
    }
    ~WithoutStyleSheet() { qApp->setStyleSheet(sheet); }
    Q_DISABLE_COPY_MOVE(WithoutStyleSheet)

private:
    QString sheet;
};

bool isContrastStyle()
{
    return qobject_cast<const ContrastStyle *>(QApplication::style()) != nullptr;
}

const FocusStyle *focusStyle()
{
    return qobject_cast<const FocusStyle *>(QApplication::style());
}

void setStyle(const QString &key, bool isContrast)
{
    std::unique_ptr<FocusStyle> style;
    if (isContrast) {
        style = std::make_unique<ContrastStyle>(key);
    } else {
        style = std::make_unique<FocusStyle>(key);
    }
    // The application owns it from here on.
    QApplication::setStyle(style.release());
}

} // namespace

void applyGalleryColours(GalleryColours colours)
{
    const WithoutStyleSheet pause;
    const bool isContrast = colours == GalleryColours::Contrast;
    if (!focusStyle() || isContrast != isContrastStyle()) {
        setStyle(galleryStyleName(), isContrast);
    }
    setPalette(colours);
}

bool applyGalleryStyle(const QString &name)
{
    const QString key = galleryStyleKey(name);
    if (key.isEmpty()) {
        return false;
    }
    const WithoutStyleSheet pause;
    setStyle(key, isContrastStyle());
    return true;
}

QString galleryStyleName()
{
    const FocusStyle *style = focusStyle();
    return style ? style->baseStyle()->name() : QApplication::style()->name();
}

QString galleryStyleKey(const QString &name)
{
    const QStringList keys = QStyleFactory::keys();
    for (const QString &key : keys) {
        if (key.compare(name, Qt::CaseInsensitive) == 0) {
            return key;
        }
    }
    return {};
}

GalleryColours shownGalleryColours(const QPalette &palette)
{
    constexpr int kMiddleLightness = 128;
    const Tones &contrast = contrastTones();
    const QColor window = palette.color(QPalette::Window);
    if (window == contrast.window && palette.color(QPalette::Highlight) == contrast.accent) {
        return GalleryColours::Contrast;
    }
    return window.lightness() < kMiddleLightness ? GalleryColours::Dark : GalleryColours::Light;
}

QString galleryColoursName(GalleryColours colours)
{
    for (const NamedColours &entry : kNames) {
        if (entry.colours == colours) {
            return QString::fromLatin1(entry.name);
        }
    }
    return {};
}

GalleryColours galleryColoursFromName(const QString &name, GalleryColours fallback)
{
    for (const NamedColours &entry : kNames) {
        if (name == QLatin1String(entry.name)) {
            return entry.colours;
        }
    }
    return fallback;
}
