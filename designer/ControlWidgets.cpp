#include "DoubleSpinBoxWithSliderWidget.h"
#include "IconPainter.h"
#include "LineEditDrapAndDrop.h"
#include "RotationLabel.h"
#include "TXComboBox.h"
#include "TXComboBoxEditable.h"
#include "TXDoubleSpinBoxDisabled.h"
#include "TXPasswordLineEdit.h"
#include "TXSelectionItemWidget.h"
#include "TXSpinBoxDisabled.h"
#include "TXSwitchSlider.h"
#include "TXTreeComboBox.h"
#include "TreeViewDragAndDrop.h"
#include "WidgetRow.h"

namespace {

void downArrow(IconPainter &icon, const QPointF &tip, IconPainter::Ink ink = IconPainter::Line)
{
    icon.shape({tip + QPointF(-3, -3.5), tip + QPointF(3, -3.5), tip}, ink);
}

void spinArrows(IconPainter &icon)
{
    icon.shape({{16.5, 10.5}, {20.5, 10.5}, {18.5, 7.5}}, IconPainter::Soft);
    icon.shape({{16.5, 13.5}, {20.5, 13.5}, {18.5, 16.5}}, IconPainter::Soft);
}

void switchPicture(IconPainter &icon)
{
    icon.fill({1, 6, 22, 12}, 6, IconPainter::Accent);
    icon.disc({17, 12}, 4.5, IconPainter::Bright);
}

void sliderPicture(IconPainter &icon)
{
    icon.line({{1.5, 12}, {11, 12}});
    icon.disc({5.5, 12}, 3, IconPainter::Accent);
    icon.box({13, 6.5, 10, 11}, 2);
    icon.shape({{15.5, 11}, {20.5, 11}, {18, 8}}, IconPainter::Line);
    icon.shape({{15.5, 13}, {20.5, 13}, {18, 16}}, IconPainter::Line);
}

void spinBoxPicture(IconPainter &icon)
{
    icon.fill({1, 5.5, 22, 13}, 2, IconPainter::Soft);
    icon.text({2, 7.5, 14, 9}, QStringLiteral("12"));
    spinArrows(icon);
}

void doubleSpinBoxPicture(IconPainter &icon)
{
    icon.fill({1, 5.5, 22, 13}, 2, IconPainter::Soft);
    icon.text({2, 7.5, 14, 9}, QStringLiteral("1.2"), IconPainter::Accent);
    spinArrows(icon);
}

void comboBoxPicture(IconPainter &icon)
{
    icon.box({1.5, 3.5, 21, 10}, 2);
    icon.line({{4.5, 8.5}, {12, 8.5}});
    downArrow(icon, {18, 10.5});
    icon.shape({{10, 17}, {12, 14.5}, {14, 17}}, IconPainter::Accent);
    icon.fill({6, 16.5, 16, 6.5}, 1.5, IconPainter::Accent);
    icon.line({{9, 19.7}, {19, 19.7}}, IconPainter::Bright);
}

void editableComboBoxPicture(IconPainter &icon)
{
    icon.box({1.5, 7, 21, 10}, 2);
    icon.line({{4.5, 12}, {8, 12}});
    icon.line({{11, 4.5}, {11, 19.5}}, IconPainter::Accent);
    icon.line({{9.5, 4.5}, {12.5, 4.5}}, IconPainter::Accent);
    icon.line({{9.5, 19.5}, {12.5, 19.5}}, IconPainter::Accent);
    downArrow(icon, {18, 14});
}

void treeComboBoxPicture(IconPainter &icon)
{
    icon.box({1.5, 1.5, 21, 8}, 2);
    downArrow(icon, {18, 7.5});
    icon.line({{4.5, 5.5}, {12, 5.5}});
    icon.line({{5, 12}, {5, 20.5}, {9, 20.5}}, IconPainter::Soft);
    icon.line({{5, 14.5}, {9, 14.5}}, IconPainter::Soft);
    icon.fill({10, 12.5, 10, 4}, 1, IconPainter::Accent);
    icon.fill({10, 18.5, 10, 4}, 1, IconPainter::Soft);
}

void selectionBarPicture(IconPainter &icon)
{
    icon.box({1, 7.5, 11, 9}, 1.5);
    downArrow(icon, {8.5, 13.8});
    icon.fill({13.5, 7, 4.6, 10}, 1, IconPainter::Accent);
    icon.line({{14.8, 12}, {16.8, 12}}, IconPainter::Bright);
    icon.line({{15.8, 11}, {15.8, 13}}, IconPainter::Bright);
    icon.fill({19, 7, 4.6, 10}, 1, IconPainter::Soft);
    icon.line({{20.3, 12}, {22.3, 12}});
}

void dropLineEditPicture(IconPainter &icon)
{
    icon.box({1.5, 14, 21, 8.5}, 2);
    icon.line({{12, 1.5}, {12, 13}}, IconPainter::Accent);
    icon.shape({{7.5, 11}, {16.5, 11}, {12, 17.5}}, IconPainter::Accent);
}

void passwordPicture(IconPainter &icon)
{
    icon.box({1.5, 7, 21, 10}, 2);
    for (const double x : {6.0, 10.5, 15.0}) {
        icon.disc({x, 12}, 1.7, IconPainter::Accent);
    }
    icon.line({{19, 9.5}, {19, 14.5}});
}

void treeViewPicture(IconPainter &icon)
{
    icon.shape({{1.5, 3}, {6, 3}, {7.5, 5}, {12, 5}, {12, 11}, {1.5, 11}}, IconPainter::Orange);
    icon.line({{4.5, 13}, {4.5, 19.5}, {9, 19.5}});
    icon.shape({{11, 15.5}, {15, 15.5}, {16.5, 17.5}, {21, 17.5}, {21, 22.5}, {11, 22.5}},
               IconPainter::Orange);
    icon.arc({10, 4.5, 9, 9}, 90, -90, IconPainter::Accent);
    icon.shape({{15.5, 9.5}, {22.5, 9.5}, {19, 14}}, IconPainter::Accent);
}

void rotationPicture(IconPainter &icon)
{
    icon.arc({3, 3, 18, 18}, 60, 150, IconPainter::Accent);
    icon.shape({{0, 12}, {7, 12}, {3.5, 17}}, IconPainter::Accent);
    icon.turn(-90);
    icon.text({4.5, 5.5, 13, 15}, QStringLiteral("A"));
}

QList<WidgetRow> valueWidgets()
{
    return {
        rowFor<TXSwitchSlider>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Switch"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "An on/off switch that a click toggles."),
            switchPicture,
            {60, 30},
            false,
            R"(<property name="minimumSize"><size><width>60</width><height>30</height></size></property><property name="maximumSize"><size><width>60</width><height>30</height></size></property>)",
        }),
        rowFor<DoubleSpinBoxWithSliderWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Spin Box with Slider"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A number that is entered in a box or with the slider beside it."),
            sliderPicture,
            {260, 39},
            false,
            "",
            {"dataName", "spinBoxSuffix", "specialValueText", "minLabelName", "maxLabelName"},
        }),
        rowFor<TXSpinBoxDisabled>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Plain Spin Box"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A spin box for whole numbers that looks like a plain value while it "
                              "is disabled."),
            spinBoxPicture,
        }),
        rowFor<TXDoubleSpinBoxDisabled>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Plain Double Spin Box"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A spin box for decimal numbers that looks like a plain value while "
                              "it is disabled."),
            doubleSpinBoxPicture,
        }),
        rowFor<LineEditDrapAndDrop>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "File Drop Line Edit"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A line edit that takes dropped files and tells which they are."),
            dropLineEditPicture,
        }),
        rowFor<TXPasswordLineEdit>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Password Line Edit"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A line edit for a password that never shows a stored one."),
            passwordPicture,
        }),
        rowFor<RotationLabel>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Rotated Label"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A line of text that can be turned by a quarter."),
            rotationPicture,
            {},
            false,
            R"(<property name="text"><string>RotationLabel</string></property>)",
            {"text"},
        }),
    };
}

QList<WidgetRow> choiceWidgets()
{
    return {
        rowFor<TXComboBox>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Combo Box with Item Tooltips"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A combo box that shows the tooltip of its current item."),
            comboBoxPicture,
        }),
        rowFor<TXComboBoxEditable>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Combo Box for Renaming"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A combo box in which an item can be renamed in place."),
            editableComboBoxPicture,
        }),
        rowFor<TXTreeComboBox>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Tree Combo Box"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "A combo box whose list is a tree."),
            treeComboBoxPicture,
        }),
        rowFor<TXSelectionItemWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Selection Item Bar"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A bar with which the user picks, creates, edits and removes the "
                              "items of a collection."),
            selectionBarPicture,
            {653, 38},
            false,
            "",
            {"labelName", "itemBasedName", "importName"},
        }),
        rowFor<TreeViewDragAndDrop>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Folder Tree View"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A tree of folders that asks for each place whether a drop may "
                              "happen there."),
            treeViewPicture,
            {256, 192},
        }),
    };
}

} // namespace

QList<WidgetRow> controlWidgets()
{
    return valueWidgets() + choiceWidgets();
}
