#include "ErrorBoxPanel.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace {

/// In the order of the kinds.
constexpr std::array kIcons = {
    QStyle::SP_MessageBoxInformation,
    QStyle::SP_MessageBoxQuestion,
    QStyle::SP_MessageBoxWarning,
    QStyle::SP_MessageBoxCritical,
};

QLabel *makeNote(QWidget *parent)
{
    auto *note = new QLabel(parent);
    note->setForegroundRole(QPalette::PlaceholderText);
    return note;
}

} // namespace

ErrorBoxPanel::ErrorBoxPanel(QWidget *parent)
    : GalleryPanel(parent)
    , group(new QButtonGroup(this))
    , shortLabel(new QLabel(this))
    , detailLabel(new QLabel(this))
    , shortNote(makeNote(this))
    , detailNote(makeNote(this))
{
    for (size_t kind = 0; kind < kKinds; ++kind) {
        shortButtons[kind] = new QPushButton(this);
        group->addButton(shortButtons[kind], int(kind));
    }
    for (size_t kind = 0; kind < kKinds; ++kind) {
        detailButtons[kind] = new QPushButton(this);
        group->addButton(detailButtons[kind], int(kind) + kKinds);
    }
    setUpLayout();
    showIcons();
    retranslate();
    connect(group, SIGNAL(idClicked(int)), this, SLOT(buttonClicked(int)));
}

void ErrorBoxPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::StyleChange) {
        showIcons();
    }
    GalleryPanel::changeEvent(event);
}

void ErrorBoxPanel::buttonClicked(int id)
{
    emit boxWanted(id % kKinds, id >= kKinds);
}

void ErrorBoxPanel::setUpLayout()
{
    auto *grid = new QGridLayout(this);
    setMargins(grid);
    grid->addWidget(shortLabel, 0, 0);
    grid->addWidget(detailLabel, 1, 0);
    grid->setColumnMinimumWidth(1, kGap);
    for (size_t kind = 0; kind < kKinds; ++kind) {
        grid->addWidget(shortButtons[kind], 0, int(kind) + 2);
        grid->addWidget(detailButtons[kind], 1, int(kind) + 2);
    }
    grid->setColumnMinimumWidth(kKinds + 2, kGap);
    grid->addWidget(shortNote, 0, kKinds + 3);
    grid->addWidget(detailNote, 1, kKinds + 3);
    grid->setColumnStretch(kKinds + 3, 1);
}

void ErrorBoxPanel::showIcons()
{
    for (size_t kind = 0; kind < kKinds; ++kind) {
        const QIcon icon = style()->standardIcon(kIcons[kind], nullptr, this);
        shortButtons[kind]->setIcon(icon);
        detailButtons[kind]->setIcon(icon);
    }
}

void ErrorBoxPanel::retranslate()
{
    setTitle(tr("Show it"));
    shortLabel->setText(tr("Short:"));
    detailLabel->setText(tr("With details:"));
    shortNote->setText(tr("a line for each nested error"));
    detailNote->setText(tr("nested errors folded away"));
    const std::array<QString, kKinds> shortTexts = {tr("&Information"), tr("&Question"),
                                                    tr("&Warning"), tr("&Critical")};
    const std::array<QString, kKinds> detailTexts = {
        tr("In&formation", "with details"), tr("Q&uestion", "with details"),
        tr("War&ning", "with details"), tr("C&ritical", "with details")};
    for (size_t kind = 0; kind < kKinds; ++kind) {
        setButtonText(shortButtons[kind], shortTexts[kind]);
        setButtonText(detailButtons[kind], detailTexts[kind]);
        const QString name = QString(shortTexts[kind]).remove(QLatin1Char('&'));
        shortButtons[kind]->setAccessibleName(tr("%1, short").arg(name));
        detailButtons[kind]->setAccessibleName(tr("%1, with details").arg(name));
    }
}
