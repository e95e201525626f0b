#pragma once

#include <QHash>
#include <QTreeWidget>
#include <QVariant>

/// Shows a dictionary of widget states: each key in its place, and beside it how many bytes stand
/// there.
class WidgetStateTree final : public QTreeWidget
{
    Q_OBJECT

public:
    explicit WidgetStateTree(QWidget *parent = nullptr);

    /// Shows this state in place of the former one, with everything unfolded that a host has
    /// named.
    void showState(const QHash<QString, QVariant> &state);

    /// Sets the headings in the language of the moment.
    void retranslate();

    QSize sizeHint() const override;
};
