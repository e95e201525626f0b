#pragma once

#include "PatchTint.h"

#include <QWidget>

/// A tint as a swatch, with its name below for who wants it.
class PatchChip final : public QWidget
{
    Q_OBJECT

public:
    explicit PatchChip(const PatchTint &tint, QWidget *parent = nullptr);

    /// Shows the name; hidden at first. It counts in the size hint, which no layout is told of.
    void setNameShown(bool isShown);

    /// Sets the name in the language of the moment.
    void retranslate();

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    PatchTint tint;
    QColor colour;
    QString name;
    bool isNameShown = false;
};
