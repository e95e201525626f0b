#pragma once

#include "ConfWidget.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

/// Settings of the head of a measuring report.
///
/// | Key | Value | Default |
/// |---|---|---|
/// | "ReportCompany" | text | empty |
/// | "ReportOperator" | text | empty |
/// | "ReportPaperSize" | "A4", "A3" or "Letter" | "A4" |
/// | "ReportDateOnEachPage" | bool | true |
class ReportPreferencesPage final : public ConfWidget
{
    Q_OBJECT

public:
    explicit ReportPreferencesPage(QWidget *parent = nullptr);

    void load(const QHash<QString, QVariant> &settings) override;
    QHash<QString, QVariant> save() override;

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void valueEdited();

private:
    void setUpLayout();
    void retranslate();

    QLabel *companyLabel;
    QLineEdit *companyEdit;
    QLabel *operatorLabel;
    QLineEdit *operatorEdit;
    QLabel *paperLabel;
    QComboBox *paperBox;
    QCheckBox *dateCheck;
    bool isLoading = false;
};
