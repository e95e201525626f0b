#include "IconPainter.h"
#include "TXAspectRatioPixmapLabel.h"
#include "TXColorSquareWidget.h"
#include "TXDBNavWidget.h"
#include "TXDeltaGradientWidget.h"
#include "TXImageViewer.h"
#include "TXProgressBar.h"
#include "TXVariantViewer.h"
#include "WaitWidget.h"
#include "WidgetRow.h"

namespace {

constexpr int kSpinnerPixels = 64;

void landscape(IconPainter &icon, const QRectF &frame)
{
    const QPointF corner = frame.bottomLeft();
    icon.disc(frame.topRight() + QPointF(-3, 3.2), 1.6, IconPainter::Orange);
    icon.shape({corner + QPointF(0.8, -0.8), corner + QPointF(frame.width() * 0.4, -6),
                corner + QPointF(frame.width() * 0.65, -3.5),
                corner + QPointF(frame.width() - 0.8, -0.8)},
               IconPainter::Green);
}

void pictureLabelPicture(IconPainter &icon)
{
    icon.fill({1, 5, 3, 14}, 0.5, IconPainter::Soft);
    icon.fill({20, 5, 3, 14}, 0.5, IconPainter::Soft);
    icon.box({5, 5.5, 14, 13}, 1);
    landscape(icon, {5, 5.5, 14, 13});
}

void colourSquarePicture(IconPainter &icon)
{
    icon.box({4, 4, 16, 16}, 4, IconPainter::Accent);
}

void gradientPicture(IconPainter &icon)
{
    icon.shape({{10, 3}, {18, 3}, {14, 8}}, IconPainter::Line);
    icon.blend({1, 9, 13, 10}, IconPainter::Bright, IconPainter::Green);
    icon.blend({14, 9, 9, 10}, IconPainter::Orange, IconPainter::Red);
    icon.line({{1, 9}, {23, 9}, {23, 19}, {1, 19}, {1, 9}});
}

void imageViewerPicture(IconPainter &icon)
{
    icon.box({1, 3, 10.5, 13}, 1);
    icon.box({12.5, 3, 10.5, 13}, 1);
    landscape(icon, {1, 3, 10.5, 13});
    landscape(icon, {12.5, 3, 10.5, 13});
    icon.ring({9, 11, 8, 8}, IconPainter::Accent);
    icon.line({{16, 18}, {20.5, 22.5}}, IconPainter::Accent);
}

void variantPicture(IconPainter &icon)
{
    icon.text({0, 2, 8, 18}, QStringLiteral("{"));
    icon.text({16, 2, 8, 18}, QStringLiteral("}"));
    icon.line({{8, 7}, {16, 7}}, IconPainter::Accent);
    icon.line({{8, 12}, {13, 12}}, IconPainter::Green);
    icon.line({{8, 17}, {15, 17}}, IconPainter::Red);
}

void pageNavigatorPicture(IconPainter &icon)
{
    icon.box({5, 2.5, 14, 19}, 1.5);
    icon.line({{8, 6.5}, {16, 6.5}}, IconPainter::Soft);
    icon.line({{8, 10}, {16, 10}}, IconPainter::Soft);
    icon.line({{8, 13.5}, {16, 13.5}}, IconPainter::Soft);
    icon.shape({{4.5, 14.5}, {4.5, 21.5}, {0.5, 18}}, IconPainter::Accent);
    icon.shape({{19.5, 14.5}, {19.5, 21.5}, {23.5, 18}}, IconPainter::Accent);
    icon.text({7, 14.5, 10, 7}, QStringLiteral("3"), IconPainter::Accent);
}

void progressPicture(IconPainter &icon)
{
    icon.box({1, 8, 14, 8}, 2);
    icon.fill({2, 9, 8, 6}, 1, IconPainter::Accent);
    icon.line({{18, 10}, {23, 10}});
    icon.line({{18, 14}, {21, 14}});
}

void spinnerPicture(IconPainter &icon)
{
    constexpr int kBars = 12;
    for (int bar = 1; bar <= kBars; ++bar) {
        icon.fade(double(bar) / kBars);
        icon.fill({11, 1, 2, 6}, 1, IconPainter::Accent);
        icon.turn(360.0 / kBars);
    }
}

// Without its bars it could not be seen on the form. They stand still.
void showBars(QWidget &widget)
{
    widget.resize(kSpinnerPixels, kSpinnerPixels);
    static_cast<WaitWidget &>(widget).initWaitWidget();
}

QList<WidgetRow> resultWidgets()
{
    return {
        rowFor<TXColorSquareWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Colour Square"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A swatch: a square with round corners, filled and framed."),
            colourSquarePicture,
            {24, 24},
        }),
        rowFor<TXDeltaGradientWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Colour Difference Bar"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A bar that shows how the colour differences of two pictures are "
                              "spread."),
            gradientPicture,
            {300, 73},
        }),
        rowFor<TXDBNavWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Database Page Navigator"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A box that turns the pages of a database table."),
            pageNavigatorPicture,
        }),
        rowFor<TXVariantViewer>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Variant Viewer"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "Shows lists, dictionaries and values as text that the user folds "
                              "open."),
            variantPicture,
        }),
    };
}

QList<WidgetRow> pictureWidgets()
{
    return {
        rowFor<TXAspectRatioPixmapLabel>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Picture Label"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A label whose picture keeps its proportions at any size."),
            pictureLabelPicture,
            {160, 120},
            false,
            R"(<property name="scaledContents"><bool>true</bool></property>)",
        }),
        rowFor<TXImageViewer>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Image Viewer"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "Compares pictures side by side, all at the same place and scale."),
            imageViewerPicture,
            {320, 200},
        }),
        rowFor<TXProgressBar>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Progress Bar with Message"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "A progress bar with a message at its end."),
            progressPicture,
            {157, 21},
            false,
            "",
            {"message", "format"},
        }),
        rowFor<WaitWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Spinner"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A spinner that the program sets going while it works."),
            spinnerPicture,
            {kSpinnerPixels, kSpinnerPixels},
            false,
            "",
            {},
            showBars,
        }),
    };
}

} // namespace

QList<WidgetRow> displayWidgets()
{
    return resultWidgets() + pictureWidgets();
}
