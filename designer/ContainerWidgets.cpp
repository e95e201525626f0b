#include "IconPainter.h"
#include "TXGroupBoxBolded.h"
#include "TXSplitter.h"
#include "TXStackedWidget.h"
#include "TXUnfolderWidget.h"
#include "TXWidgetListWidget.h"
#include "WidgetRow.h"

namespace {

void groupBoxPicture(IconPainter &icon)
{
    icon.box({1.5, 5, 21, 17}, 2);
    icon.fill({4, 2, 12, 5.5}, 1.5, IconPainter::Accent);
    icon.line({{6.5, 4.7}, {13.5, 4.7}}, IconPainter::Bright);
    icon.line({{5.5, 12}, {18, 12}}, IconPainter::Soft);
    icon.line({{5.5, 17}, {14, 17}}, IconPainter::Soft);
}

void unfolderPicture(IconPainter &icon)
{
    icon.shape({{1.5, 3}, {10, 3}, {5.75, 9}}, IconPainter::Accent);
    icon.line({{12.5, 6}, {22, 6}});
    icon.box({4.5, 11, 18, 11.5}, 1.5);
    icon.line({{8, 15}, {19, 15}}, IconPainter::Soft);
    icon.line({{8, 18.7}, {15, 18.7}}, IconPainter::Soft);
}

void splitterPicture(IconPainter &icon)
{
    icon.box({1, 3.5, 8.5, 17}, 1.5);
    icon.box({14.5, 3.5, 8.5, 17}, 1.5);
    icon.line({{12, 2}, {12, 8.5}}, IconPainter::Accent);
    icon.line({{12, 15.5}, {12, 22}}, IconPainter::Accent);
    icon.disc({12, 12}, 1.4, IconPainter::Accent);
}

void stackPicture(IconPainter &icon)
{
    icon.box({7.5, 1.5, 15, 12}, 1.5);
    icon.box({4.5, 5.5, 15, 12}, 1.5);
    icon.box({1.5, 9.5, 15, 13}, 1.5, IconPainter::Accent);
    icon.line({{4.5, 14}, {13.5, 14}}, IconPainter::Bright);
    icon.line({{4.5, 18}, {10, 18}}, IconPainter::Bright);
}

void widgetListPicture(IconPainter &icon)
{
    for (const double y : {2.0, 13.0}) {
        for (const double x : {1.0, 8.5, 16.0}) {
            icon.fill({x, y, 6.5, 9}, 1, x + y < 4 ? IconPainter::Accent : IconPainter::Soft);
        }
    }
}

bool isBeingDesigned(const QWidget &widget)
{
    const QWidget *parent = widget.parentWidget();
    while (parent && !parent->inherits("QDesignerFormWindowInterface")) {
        parent = parent->parentWidget();
    }
    return parent != nullptr;
}

// A form sets "checked" before the children are there, when folding hides nothing: from then on the
// box would show them folded, and hide them unfolded. So it opens again at once.
void keepUnfolded(QWidget &widget)
{
    auto &box = static_cast<TXUnfolderWidget &>(widget);
    QObject::connect(&box, &QGroupBox::toggled, &box, [&box](bool isUnfolded) {
        if (!isUnfolded && isBeingDesigned(box)) {
            box.setChecked(true);
        }
    });
}

} // namespace

QList<WidgetRow> containerWidgets()
{
    return {
        rowFor<TXGroupBoxBolded>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Bold Group Box"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A group box with a bold title, whose children keep their weight."),
            groupBoxPicture,
            {200, 120},
            true,
            R"(<property name="title"><string>GroupBox</string></property>)",
            {"title"},
        }),
        rowFor<TXUnfolderWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Unfolder"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A group box that folds: a triangle hides and shows what is in it."),
            unfolderPicture,
            {200, 120},
            true,
            R"(<property name="title"><string>Unfolder</string></property>)",
            {"title"},
            keepUnfolded,
        }),
        rowFor<TXSplitter>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Splitter"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "Panes side by side with handles between them that the user drags."),
            splitterPicture,
            {300, 160},
            true,
            R"(<property name="orientation"><enum>Qt::Horizontal</enum></property><widget class="QWidget" name="firstPane"/><widget class="QWidget" name="secondPane"/>)",
        }),
        rowFor<TXStackedWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Stacked Widget"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A stack of pages that asks for the size of the page on top."),
            stackPicture,
            {200, 120},
            true,
            R"(<widget class="QWidget" name="firstPage"/><widget class="QWidget" name="secondPage"/>)",
        }),
        rowFor<TXWidgetListWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Widget List"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A list that the program fills with widgets of one size, laid out in "
                              "rows like words on a page."),
            widgetListPicture,
            {230, 223},
        }),
    };
}
