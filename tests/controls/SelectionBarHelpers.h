#pragma once

#include "TXSelectionItemWidget.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QStringList>
#include <QTest>
#include <QToolButton>

#include <memory>

// What the tests of the selection bar share.

/// Writes down what a bar emits, in the order in which it comes, such as "changed 2".
class EmissionLog : public QObject
{
public:
    explicit EmissionLog(TXSelectionItemWidget &bar)
    {
        using Bar = TXSelectionItemWidget;
        note(bar, &Bar::addNewItemHasBeenRequest, "add");
        note(bar, &Bar::removeItemHasBeenRequest, "remove");
        note(bar, &Bar::duplicateItemHasBeenRequest, "duplicate");
        note(bar, qOverload<>(&Bar::importItemHasBeenRequest), "import");
        note(bar, &Bar::exportItemHasBeenRequest, "export");
        note(bar, &Bar::editItemHasBeenRequest, "edit");
        note(bar, &Bar::saveItemHasBeenRequest, "save");
        connect(&bar, qOverload<QAction *>(&Bar::importItemHasBeenRequest), this,
                [this](QAction *action) {
                    lines.append("entry " + (action ? action->text() : QString("none")));
                });
        connect(&bar, &Bar::itemNameChanged, this,
                [this](const QString &name) { lines.append("name " + name); });
        connect(&bar, &Bar::itemSelectionChanged, this,
                [this](const QVariant &value) { lines.append("changed " + textOf(value)); });
        connect(&bar, &Bar::itemSelectionUpdated, this,
                [this](const QVariant &value) { lines.append("updated " + textOf(value)); });
    }

    /// What has come since the last call.
    QStringList take()
    {
        const QStringList taken = lines;
        lines.clear();
        return taken;
    }

private:
    template<class Signal>
    void note(TXSelectionItemWidget &bar, Signal signal, const char *text)
    {
        connect(&bar, signal, this, [this, text] { lines.append(text); });
    }

    static QString textOf(const QVariant &value)
    {
        return value.isValid() ? value.toString() : QStringLiteral("nothing");
    }

    QStringList lines;
};

/// A row with a name and, unless it is invalid, a value.
inline QStandardItem *makeItem(const QString &name, const QVariant &value)
{
    auto item = std::make_unique<QStandardItem>(name);
    if (value.isValid()) {
        item->setData(value, Qt::UserRole);
    }
    return item.release();
}

/// The collection of most tests: "Proof" with the value 1, "Press" with 2, "Draft" with 3.
class Presets : public QStandardItemModel
{
public:
    Presets()
    {
        appendRow(makeItem("Proof", 1));
        appendRow(makeItem("Press", 2));
        appendRow(makeItem("Draft", 3));
    }
};

/// The button with the menu, which the bar does not give.
inline QToolButton *menuButton(TXSelectionItemWidget &bar)
{
    return bar.findChild<QToolButton *>("importButton");
}

/// All buttons that stand in the bar itself, from the left.
inline QList<QAbstractButton *> buttonsOf(const TXSelectionItemWidget &bar)
{
    return bar.findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
}

/// The texts of all rows that the box shows.
inline QStringList shownNames(TXSelectionItemWidget &bar)
{
    QStringList names;
    for (int row = 0; row < bar.itemComboBox()->count(); ++row) {
        names.append(bar.itemComboBox()->itemText(row));
    }
    return names;
}

/// Calls a slot that hosts reach by name as well.
template<class... Arguments>
void call(TXSelectionItemWidget &bar, const char *slot, Arguments... arguments)
{
    QVERIFY(QMetaObject::invokeMethod(&bar, slot, Qt::DirectConnection, arguments...));
}
