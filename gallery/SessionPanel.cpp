#include "SessionPanel.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextOption>
#include <QVBoxLayout>

namespace {

constexpr int kListHeight = 70;

} // namespace

SessionPanel::SessionPanel(QWidget *parent)
    : GalleryPanel(parent)
    , receivedLabel(new QLabel(this))
    , received(makeList(receivedLabel))
    , emissionsLabel(new QLabel(this))
    , emissions(makeList(emissionsLabel))
    , clearButton(new QPushButton(this))
{
    setUpLayout();
    setTabOrder(received, clearButton);
    setTabOrder(clearButton, emissions);
    connect(clearButton, SIGNAL(clicked()), received, SLOT(clear()));
    connect(clearButton, SIGNAL(clicked()), emissions, SLOT(clear()));
}

void SessionPanel::addReceived(const QString &line)
{
    received->appendPlainText(line);
}

void SessionPanel::addEmission(const QString &line)
{
    emissions->appendPlainText(line);
}

void SessionPanel::setLabels(const QString &ofReceived, const QString &ofEmissions)
{
    receivedLabel->setText(ofReceived);
    emissionsLabel->setText(ofEmissions);
}

void SessionPanel::retranslate()
{
    setTitle(tr("Session"));
    setButtonText(clearButton, tr("Clea&r"));
}

QPlainTextEdit *SessionPanel::makeList(QLabel *label)
{
    auto *list = new QPlainTextEdit(this);
    list->setReadOnly(true);
    list->setTabChangesFocus(true);
    list->setMaximumBlockCount(kMaximumLines);
    list->setMinimumHeight(kListHeight);
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    // Lines of a server may be long, and have no blanks.
    list->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    list->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    label->setBuddy(list);
    return list;
}

void SessionPanel::setUpLayout()
{
    auto *emissionsRow = new QHBoxLayout;
    emissionsRow->addWidget(emissionsLabel);
    emissionsRow->addStretch();
    emissionsRow->addWidget(clearButton);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(receivedLabel);
    rows->addWidget(received, 3);
    rows->addLayout(emissionsRow);
    rows->addWidget(emissions, 2);
}
