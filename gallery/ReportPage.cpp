#include "ReportPage.h"

#include "ChartReport.h"
#include "GalleryPanel.h"
#include "ReportOptionsPanel.h"
#include "ReportOutputPanel.h"
#include "ReportView.h"
#include "ReportViewBar.h"
#include "TabOrder.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <memory>

ReportPage::ReportPage(QWidget *parent)
    : GalleryPage(parent)
    , optionsPanel(new ReportOptionsPanel(this))
    , outputPanel(new ReportOutputPanel(this))
    , view(new ReportView(this))
    , bar(new ReportViewBar(view, this))
{
    setUpLayout();
    setTabOrderOfParts({optionsPanel, outputPanel, bar, view});
    retranslate();
    connect(optionsPanel, SIGNAL(optionsChanged()), this, SLOT(showReport()));
    connect(outputPanel, SIGNAL(busyChanged(bool)), this, SLOT(setBusy(bool)));
}

QString ReportPage::description() const
{
    return tr("A colour comparison as pages of paper: drawn on the report canvas, with tables cut "
              "into pages, and taken to a PDF file or a printer.");
}

void ReportPage::retranslate()
{
    view->setAccessibleName(tr("Pages of the report"));
    // Its texts are made with it.
    showReport();
}

void ReportPage::showReport()
{
    const ChartReportOptions options = optionsPanel->options();
    outputPanel->setOptions(options);
    const auto report = std::make_shared<ChartReport>(options);
    view->setDocument(std::shared_ptr<TXReportDocument>(report, &report->document()));
}

void ReportPage::setBusy(bool isBusy)
{
    optionsPanel->setEnabled(!isBusy);
}

void ReportPage::setUpLayout()
{
    constexpr int kGap = GalleryPanel::kGap;
    auto *left = new QVBoxLayout;
    left->setSpacing(kGap);
    left->addWidget(optionsPanel);
    left->addWidget(outputPanel);
    left->addStretch();

    auto *right = new QVBoxLayout;
    right->addWidget(bar);
    right->addWidget(view, 1);

    auto *columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(kGap);
    columns->addLayout(left);
    columns->addLayout(right, 1);
}
