#pragma once

#include "GalleryPanel.h"

class QLabel;
class QPushButton;
class TXGroupBoxBolded;

/// The result of a proof in a TXGroupBoxBolded, beside the same in a plain group box whose font is
/// bold: in that one everything becomes bold.
class BoldTitlePanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit BoldTitlePanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void addResult();
    void updateWeights();

private:
    /// A line of both boxes.
    struct Line
    {
        QLabel *left;
        QLabel *right;
    };

    void addLine();
    void setUpLayout();
    [[nodiscard]] QString textOf(qsizetype line) const;

    TXGroupBoxBolded *bolded;
    QGroupBox *plain;
    QList<Line> lines;
    QPushButton *addButton;
    QPushButton *weightsButton;
};
