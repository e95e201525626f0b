#pragma once

#include "GalleryPage.h"

class ReportOptionsPanel;
class ReportOutputPanel;
class ReportView;
class ReportViewBar;

/// A report on two sets of colours of a chart, as pages on the screen and on their way to paper.
class ReportPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit ReportPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override;

private slots:
    void showReport();
    void setBusy(bool isBusy);

private:
    void setUpLayout();

    ReportOptionsPanel *optionsPanel;
    ReportOutputPanel *outputPanel;
    ReportView *view;
    ReportViewBar *bar;
};
