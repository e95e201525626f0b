#pragma once

#include "TXWidgetUtilities.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QMainWindow>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>

/// Shorthands for tests of the state of widgets.
namespace WidgetStateTest {

using State = QHash<QString, QVariant>;

inline const QString kGeometry = QStringLiteral("geometry");
inline const QString kState = QStringLiteral("state");
inline const QString kHeaderState = QStringLiteral("headerState");
inline const QString kHorizontal = QStringLiteral("horizontalState");
inline const QString kVertical = QStringLiteral("verticalState");
inline const QString kChildren = QStringLiteral("children");

template<class Widget>
Widget *named(const char *name, QWidget *parent = nullptr)
{
    auto *widget = new Widget(parent);
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

inline State saved(QWidget *widget)
{
    State state;
    TXWidgetUtilities::saveWidgetStateInHash(widget, state);
    return state;
}

inline void restore(QWidget *widget, const State &state)
{
    TXWidgetUtilities::restoreWidgetStateInHash(widget, state);
}

/// The entry of the widget that is reached by these names from the outermost one.
inline State entryAt(const State &state, const QStringList &names)
{
    State entry = state.value(names.constFirst()).toHash();
    for (const QString &name : names.mid(1)) {
        entry = entry.value(kChildren).toHash().value(name).toHash();
    }
    return entry;
}

inline QSet<QString> keysOf(const State &state)
{
    const QStringList keys = state.keys();
    return {keys.cbegin(), keys.cend()};
}

/// What is kept of windows, splitters and headers, without the places of widgets, which layouts
/// have the last word on.
inline State withoutGeometries(const State &state)
{
    State rest;
    for (auto value = state.cbegin(); value != state.cend(); ++value) {
        if (value->typeId() == QMetaType::QVariantHash) {
            rest.insert(value.key(), withoutGeometries(value->toHash()));
        } else if (value.key() != kGeometry) {
            rest.insert(value.key(), value.value());
        }
    }
    return rest;
}

/// A window with a splitter with a tree beside a table.
class Window
{
public:
    explicit Window(bool isShown = true)
        : splitter(named<QSplitter>("splitter"))
        , tree(named<QTreeView>("tree"))
        , table(named<QTableView>("table"))
        , model(3, 4)
    {
        window.setObjectName(QStringLiteral("window"));
        window.resize(400, 300);
        window.setCentralWidget(splitter);
        splitter->addWidget(tree);
        splitter->addWidget(table);
        tree->setModel(&model);
        tree->setSortingEnabled(true);
        table->setModel(&model);
        window.setVisible(isShown);
    }

    void change()
    {
        window.resize(500, 350);
        splitter->setSizes({1000, 300});
        tree->header()->resizeSection(1, 44);
        tree->sortByColumn(2, Qt::AscendingOrder);
        table->horizontalHeader()->resizeSection(1, 66);
        table->verticalHeader()->resizeSection(1, 50);
        deliver();
    }

    static void deliver() { QCoreApplication::processEvents(); }

    QMainWindow window;
    QSplitter *splitter;
    QTreeView *tree;
    QTableView *table;
    QStandardItemModel model;
};

} // namespace WidgetStateTest
