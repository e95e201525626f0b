#pragma once

#include "GalleryPanel.h"

class QCheckBox;
class QLabel;
class QListWidget;
class QSpinBox;
class TXColorSquareWidget;
class TXSplitter;

/// The patches of the chart beside what is known of one of them, with TXSplitter between: the list
/// from the patch, and in there the colour from its numbers.
class PatchSplitPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit PatchSplitPanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void showPatch();
    void changeOrientation();
    void changeWidth();

private:
    void fillList();
    void setUpSplitters();
    void setUpLayout();

    TXSplitter *outer;
    TXSplitter *inner;
    QListWidget *list;
    TXColorSquareWidget *swatch;
    QLabel *numbers;
    QCheckBox *besideBox;
    QLabel *widthLabel;
    QSpinBox *widthBox;
};
