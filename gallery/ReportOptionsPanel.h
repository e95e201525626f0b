#pragma once

#include "ChartReportOptions.h"
#include "GalleryPanel.h"

class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;

/// The choices that make a chart report what it is.
class ReportOptionsPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit ReportOptionsPanel(QWidget *parent = nullptr);

    /// What is chosen now.
    [[nodiscard]] ChartReportOptions options() const;

signals:
    /// The user has chosen something else.
    void optionsChanged();

protected:
    void retranslate() override;

private:
    void addRow(QFormLayout *form, QLabel *label, QWidget *field);

    QLabel *formulaLabel;
    QComboBox *formulaBox;
    QLabel *toleranceLabel;
    QDoubleSpinBox *toleranceBox;
    QLabel *orderLabel;
    QComboBox *orderBox;
    QLabel *paperLabel;
    QComboBox *paperBox;
    QLabel *orientationLabel;
    QComboBox *orientationBox;
};
