#pragma once

#include "PagedTableHelpers.h"
#include "TXDBNavWidget.h"

#include <QLabel>
#include <QSignalSpy>
#include <QSpinBox>

/// What the tests of the page navigator share.
namespace PagedTable {

/// A navigator, and what it tells.
struct Navigator : TXDBNavWidget
{
    [[nodiscard]] QSpinBox *spinBox() const
    {
        return findChild<QSpinBox *>(QStringLiteral("gotoSpinBox"));
    }

    /// As the user reads it, "3/12".
    [[nodiscard]] QString text() const { return spinBox()->text(); }

    /// What severalPages() told, oldest first.
    [[nodiscard]] QList<bool> told() const
    {
        QList<bool> result;
        for (const QList<QVariant> &arguments : spy) {
            result.append(arguments.at(0).toBool());
        }
        return result;
    }

    QSignalSpy spy{this, SIGNAL(severalPages(bool))};
};

} // namespace PagedTable
