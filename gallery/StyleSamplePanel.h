#pragma once

#include "GalleryPanel.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class TXProgressBar;

/// A few controls of a print job, to see what language and style do to them.
class StyleSamplePanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit StyleSamplePanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void showProgress();

private:
    void setUpLayout();

    QLabel *nameLabel;
    QLineEdit *nameEdit;
    QLabel *paperLabel;
    QComboBox *paperBox;
    QLabel *copiesLabel;
    QSpinBox *copiesBox;
    QCheckBox *trimBox;
    QLabel *sign;
    QLabel *signText;
    TXProgressBar *progress;
    QPushButton *printButton;
    QPushButton *cancelButton;
};
