#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class TXProgressBar;

/// The controls for how a TXProgressBar looks: its text, its format, and which way it grows. They
/// act at once, also while a delegate moves the bar.
class ProgressBarSwitches final : public QWidget
{
    Q_OBJECT

public:
    /// The bar has to outlive the switches.
    explicit ProgressBarSwitches(TXProgressBar *bar, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void apply();

private:
    void retranslate();
    void setUpLayout();

    TXProgressBar *bar;
    QCheckBox *textBox;
    QLabel *formatLabel;
    QLineEdit *formatEdit;
    QCheckBox *invertedBox;
    QCheckBox *uprightBox;
};
