#pragma once

#include "GalleryPanel.h"

#include <QList>

class PatchChip;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;
class TXWidgetListWidget;

/// Tints of the chart's patches, from none to several hundred, that flow into rows:
/// TXWidgetListWidget.
class PatchFlowPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit PatchFlowPanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void changeCount();
    void insertChip();
    void removeChip();
    void empty();
    void changeFrame();
    void showNames();
    void showState();

private:
    [[nodiscard]] PatchChip *makeChip();
    [[nodiscard]] QList<PatchChip *> chips() const;
    void setUpControls();
    void setUpLayout();
    void showCount();

    TXWidgetListWidget *flow;
    QLabel *countLabel;
    QSpinBox *countBox;
    QLabel *positionLabel;
    QSpinBox *positionBox;
    QPushButton *insertButton;
    QPushButton *removeButton;
    QPushButton *emptyButton;
    QLabel *frameLabel;
    QComboBox *frameBox;
    QCheckBox *namesBox;
    QLabel *state;
    /// How many chips were made, and so the number of the next tint.
    int madeChips = 0;
};
