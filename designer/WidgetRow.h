#pragma once

#include <QList>
#include <QMetaObject>
#include <QSize>
#include <QWidget>

class IconPainter;

/// One widget of the library as Qt Designer is told of it. The texts are English, marked for
/// translation in the context "TXGUICommonDesigner".
///
/// A new widget is a row in one of the lists below, and a function that paints its picture.
struct WidgetRow
{
    /// How the widget box names it, in words.
    const char *name;
    /// What it is for: one sentence, for the tooltip and for "What's This?".
    const char *purpose;
    /// Paints what the icon shows.
    void (*picture)(IconPainter &);
    /// The size on a form that a layout does not decide; the size hint when empty.
    QSize size = {};
    /// Whether other widgets can be put into it.
    bool isContainer = false;
    /// Elements of a form file that every new one has in it: properties and pages.
    const char *contents = "";
    /// Its text properties that hold one line without markup.
    QList<const char *> singleLineTexts = {};
    /// What is done to one on a form in Qt Designer, and not in a program that reads a form.
    void (*prepareForDesigner)(QWidget &) = nullptr;

    /// Filled in by rowFor().
    const QMetaObject *metaObject = nullptr;
    /// Filled in by rowFor(). Makes one; the parent may be null.
    QWidget *(*create)(QWidget *parent) = nullptr;
};

/// Completes the row of a widget by what follows from its class.
template<class Widget>
WidgetRow rowFor(WidgetRow row)
{
    row.metaObject = &Widget::staticMetaObject;
    row.create = [](QWidget *parent) -> QWidget * {
        return new Widget(parent);
    };
    return row;
}

/// What the user enters values with, or picks from: the group "TXGUICommon Controls".
QList<WidgetRow> controlWidgets();
/// What other widgets stand in: the group "TXGUICommon Containers".
QList<WidgetRow> containerWidgets();
/// What shows data or progress: the group "TXGUICommon Display".
QList<WidgetRow> displayWidgets();
/// Ready-made panels for settings, and the feedback form: the group "TXGUICommon Panels".
QList<WidgetRow> panelWidgets();
