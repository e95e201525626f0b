#pragma once

#include <QObject>

class QLabel;

/// Lets the text of a label be copied without a mouse too: Tab comes to the label and selects all
/// of it. For texts that somebody wants elsewhere, as addresses, paths and errors; each costs a
/// press of Tab. A child of the label.
class CopyableText final : public QObject
{
    Q_OBJECT

public:
    /// Takes care of the label for as long as it lives. A label that is shown though it has nothing
    /// to copy is to be given Qt::ClickFocus for that time.
    static void allow(QLabel *label);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    explicit CopyableText(QLabel *label);
};
