#include "TXProgressBar.h"

#include "ui_TXProgressBar.h"

#include <QEvent>

TXProgressBar::TXProgressBar(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::TXProgressBar>())
{
    ui->setupUi(this);
    nameBar();
}

TXProgressBar::~TXProgressBar() = default;

QString TXProgressBar::message() const
{
    return ui->progressMessage->text();
}

void TXProgressBar::setMessage(const QString &message)
{
    ui->progressMessage->setText(message);
    // As a buddy of the bar the label would take a "&" of the message for a mnemonic.
    ui->progressBar->setAccessibleDescription(message);
}

void TXProgressBar::setRange(int minimum, int maximum)
{
    ui->progressBar->setRange(minimum, maximum);
}

void TXProgressBar::setValue(int value)
{
    ui->progressBar->setValue(value);
}

void TXProgressBar::setOrientation(Qt::Orientation orientation)
{
    ui->progressBar->setOrientation(orientation);
}

Qt::Alignment TXProgressBar::alignment() const
{
    return ui->progressBar->alignment();
}

void TXProgressBar::setAlignment(Qt::Alignment alignment)
{
    ui->progressBar->setAlignment(alignment);
}

QString TXProgressBar::format() const
{
    return ui->progressBar->format();
}

void TXProgressBar::setFormat(const QString &format)
{
    ui->progressBar->setFormat(format);
}

bool TXProgressBar::invertedAppearance()
{
    return ui->progressBar->invertedAppearance();
}

bool TXProgressBar::invertedAppearance() const
{
    return ui->progressBar->invertedAppearance();
}

void TXProgressBar::setInvertedAppearance(bool inverted)
{
    ui->progressBar->setInvertedAppearance(inverted);
}

bool TXProgressBar::isTextVisible() const
{
    return ui->progressBar->isTextVisible();
}

void TXProgressBar::setTextVisible(bool visible)
{
    ui->progressBar->setTextVisible(visible);
}

int TXProgressBar::maximum() const
{
    return ui->progressBar->maximum();
}

void TXProgressBar::setMaximum(int maximum)
{
    ui->progressBar->setMaximum(maximum);
}

int TXProgressBar::minimum() const
{
    return ui->progressBar->minimum();
}

void TXProgressBar::setMinimum(int minimum)
{
    ui->progressBar->setMinimum(minimum);
}

int TXProgressBar::value() const
{
    return ui->progressBar->value();
}

Qt::Orientation TXProgressBar::orientation() const
{
    return ui->progressBar->orientation();
}

QString TXProgressBar::text() const
{
    return ui->progressBar->text();
}

QProgressBar::Direction TXProgressBar::textDirection()
{
    return ui->progressBar->textDirection();
}

QProgressBar::Direction TXProgressBar::textDirection() const
{
    return ui->progressBar->textDirection();
}

void TXProgressBar::setTextDirection(QProgressBar::Direction direction)
{
    ui->progressBar->setTextDirection(direction);
}

void TXProgressBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        nameBar();
    }
}

void TXProgressBar::nameBar()
{
    ui->progressBar->setAccessibleName(tr("Progress"));
}
