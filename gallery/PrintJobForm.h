#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QSpinBox;

/// The settings of a print job: the work that a lock of the user interface is to protect.
class PrintJobForm final : public QWidget
{
    Q_OBJECT

public:
    explicit PrintJobForm(QWidget *parent = nullptr);

    /// Sets all texts in the language of the moment. What is chosen stays.
    void retranslate();

private:
    void setUpLayout();

    QLabel *paperLabel;
    QComboBox *paperBox;
    QLabel *intentLabel;
    QComboBox *intentBox;
    QLabel *inkLabel;
    QSpinBox *inkBox;
    QLabel *toleranceLabel;
    QDoubleSpinBox *toleranceBox;
    QCheckBox *blackPointBox;
};
