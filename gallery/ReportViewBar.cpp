#include "ReportViewBar.h"

#include "ReportView.h"
#include "TabOrder.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

namespace {

constexpr int kFitWidthIndex = 0;
constexpr int kFitPageIndex = 1;
/// The line for a percentage that is none of the others: what fits, or what the wheel came to.
constexpr int kOtherIndex = 2;
constexpr int kPercentages[] = {50, 75, 100, 125, 150, 200, 300, 400};

QToolButton *makeButton(const QString &sign, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setText(sign);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QToolButton *makeArrow(Qt::ArrowType arrow, QWidget *parent)
{
    QToolButton *button = makeButton({}, parent);
    button->setArrowType(arrow);
    return button;
}

QString percentText(double percent)
{
    return ReportViewBar::tr("%1 %").arg(QLocale().toString(qRound(percent)));
}

} // namespace

ReportViewBar::ReportViewBar(ReportView *view, QWidget *parent)
    : QWidget(parent)
    , view(view)
    , backButton(makeArrow(Qt::UpArrow, this))
    , onButton(makeArrow(Qt::DownArrow, this))
    , pageLabel(new QLabel(this))
    , pageBox(new QSpinBox(this))
    , countLabel(new QLabel(this))
    , smallerButton(makeButton(QStringLiteral("−"), this))
    , largerButton(makeButton(QStringLiteral("+"), this))
    , zoomLabel(new QLabel(this))
    , zoomBox(new QComboBox(this))
{
    pageLabel->setBuddy(pageBox);
    zoomLabel->setBuddy(zoomBox);
    pageBox->setKeyboardTracking(false);
    for (int i = 0; i <= kOtherIndex; ++i) {
        zoomBox->addItem(QString());
    }
    for (const int percent : kPercentages) {
        zoomBox->addItem(QString(), percent);
    }
    zoomBox->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    setUpLayout();
    retranslate();
    connect(view, SIGNAL(pageChanged()), this, SLOT(showPage()));
    connect(view, SIGNAL(zoomChanged()), this, SLOT(showZoom()));
    connect(backButton, SIGNAL(clicked()), this, SLOT(goBack()));
    connect(onButton, SIGNAL(clicked()), this, SLOT(goOn()));
    connect(pageBox, SIGNAL(valueChanged(int)), this, SLOT(goToPage(int)));
    connect(smallerButton, SIGNAL(clicked()), view, SLOT(zoomOut()));
    connect(largerButton, SIGNAL(clicked()), view, SLOT(zoomIn()));
    connect(zoomBox, SIGNAL(activated(int)), this, SLOT(zoomChosen(int)));
}

void ReportViewBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

void ReportViewBar::showPage()
{
    const QSignalBlocker blocker(pageBox);
    const int count = view->pageCount();
    pageBox->setRange(count == 0 ? 0 : 1, count);
    pageBox->setValue(view->currentPage() + 1);
    countLabel->setText(tr("of %1").arg(locale().toString(count)));
    backButton->setEnabled(view->currentPage() > 0);
    onButton->setEnabled(view->currentPage() < count - 1);
}

void ReportViewBar::showZoom()
{
    const double percent = view->zoomPercent();
    zoomBox->setItemText(kOtherIndex, percentText(percent));
    switch (view->zoomMode()) {
    case ReportView::ZoomMode::FitWidth:
        zoomBox->setCurrentIndex(kFitWidthIndex);
        break;
    case ReportView::ZoomMode::FitPage:
        zoomBox->setCurrentIndex(kFitPageIndex);
        break;
    case ReportView::ZoomMode::Fixed:
        const int index = percent == qRound(percent) ? zoomBox->findData(qRound(percent)) : -1;
        zoomBox->setCurrentIndex(index < 0 ? kOtherIndex : index);
        break;
    }
    smallerButton->setEnabled(percent > ReportView::kSmallestZoomPercent);
    largerButton->setEnabled(percent < ReportView::kLargestZoomPercent);
}

void ReportViewBar::goToPage(int number)
{
    view->goToPage(number - 1);
}

void ReportViewBar::goBack()
{
    view->goToPage(view->currentPage() - 1);
}

void ReportViewBar::goOn()
{
    view->goToPage(view->currentPage() + 1);
}

void ReportViewBar::zoomChosen(int index)
{
    switch (index) {
    case kFitWidthIndex:
        view->setZoomMode(ReportView::ZoomMode::FitWidth);
        break;
    case kFitPageIndex:
        view->setZoomMode(ReportView::ZoomMode::FitPage);
        break;
    case kOtherIndex:
        view->setZoomMode(ReportView::ZoomMode::Fixed);
        break;
    default:
        view->setZoomPercent(zoomBox->itemData(index).toInt());
    }
}

void ReportViewBar::retranslate()
{
    pageLabel->setText(tr("Pa&ge:"));
    zoomLabel->setText(tr("&Zoom:"));
    zoomBox->setItemText(kFitWidthIndex, tr("Fit width"));
    zoomBox->setItemText(kFitPageIndex, tr("Fit page"));
    for (int i = kOtherIndex + 1; i < zoomBox->count(); ++i) {
        zoomBox->setItemText(i, percentText(zoomBox->itemData(i).toInt()));
    }
    const QList<std::pair<QToolButton *, QString>> buttons = {
        {backButton, tr("Previous page")},
        {onButton, tr("Next page")},
        {smallerButton, tr("Smaller")},
        {largerButton, tr("Larger")},
    };
    for (const auto &[button, name] : buttons) {
        button->setAccessibleName(name);
        button->setToolTip(name);
    }
    pageBox->setAccessibleName(tr("Page"));
    zoomBox->setAccessibleName(tr("Zoom"));
    showPage();
    showZoom();
}

void ReportViewBar::setUpLayout()
{
    constexpr int kGroupGap = 18;
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    const QList<QWidget *> paging = {pageLabel, pageBox, countLabel, backButton, onButton};
    for (QWidget *widget : paging) {
        row->addWidget(widget);
    }
    row->addStretch();
    row->addSpacing(kGroupGap);
    const QList<QWidget *> zooming = {zoomLabel, zoomBox, smallerButton, largerButton};
    for (QWidget *widget : zooming) {
        row->addWidget(widget);
    }
    setTabOrderOfParts(paging + zooming);
}
