#pragma once

#include "GalleryPanel.h"

#include <QList>

class QAbstractSpinBox;
class QLabel;
class QPushButton;

/// TXSpinBoxDisabled and TXDoubleSpinBoxDisabled, enabled and disabled, each beside the plain one:
/// a disabled one looks like a value, not like a field.
class DisabledSpinBoxPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit DisabledSpinBoxPanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void swap();

private:
    /// One class of spin box, twice.
    struct Row
    {
        QLabel *caption;
        QAbstractSpinBox *left;
        QAbstractSpinBox *right;
    };

    template<class SpinBox>
    Row makeRow();
    template<class SpinBox>
    Row makeDoubleRow();
    void setUpLayout();
    void enableColumns();

    QList<Row> rows;
    QLabel *leftHeading;
    QLabel *rightHeading;
    QPushButton *swapButton;
    bool isLeftEnabled = true;
};
