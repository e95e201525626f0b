#include "UpdateSessionPanel.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextOption>

namespace {

constexpr int kListHeight = 70;

/// The value's name in the source, which is what a developer looks for.
QString nameOf(TXCheckForUpdateWidget::State state)
{
    const char *name = QMetaEnum::fromType<TXCheckForUpdateWidget::State>().valueToKey(state);
    return name ? QString::fromLatin1(name) : QString::number(state);
}

} // namespace

UpdateSessionPanel::UpdateSessionPanel(QWidget *parent)
    : GalleryPanel(parent)
    , requestsLabel(new QLabel(this))
    , requests(makeList(requestsLabel))
    , emissionsLabel(new QLabel(this))
    , emissions(makeList(emissionsLabel))
    , clearButton(new QPushButton(this))
{
    setUpLayout();
    retranslate();
    connect(clearButton, SIGNAL(clicked()), requests, SLOT(clear()));
    connect(clearButton, SIGNAL(clicked()), emissions, SLOT(clear()));
}

void UpdateSessionPanel::addRequest(const QString &line)
{
    requests->appendPlainText(line);
}

void UpdateSessionPanel::addState(TXCheckForUpdateWidget::State state)
{
    emissions->appendPlainText(QStringLiteral("stateChanged(%1)").arg(nameOf(state)));
}

void UpdateSessionPanel::addRelease(const QVariantHash &info)
{
    const QString revision = info.value(QStringLiteral("Revision")).toString();
    const QString content =
        info.isEmpty() ? QString() : QStringLiteral("Revision: %1, ...").arg(revision);
    emissions->appendPlainText(QStringLiteral("updateRefreshed({%1})").arg(content));
}

void UpdateSessionPanel::retranslate()
{
    setTitle(tr("Session"));
    requestsLabel->setText(tr("What the service &got:"));
    emissionsLabel->setText(tr("Signals of t&he dialog:"));
    setButtonText(clearButton, tr("Clea&r"));
}

QPlainTextEdit *UpdateSessionPanel::makeList(QLabel *label)
{
    auto *list = new QPlainTextEdit(this);
    list->setReadOnly(true);
    list->setTabChangesFocus(true);
    list->setMaximumBlockCount(kMaximumLines);
    list->setMinimumHeight(kListHeight);
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    // Requests are long, and have no blanks.
    list->setWordWrapMode(QTextOption::WrapAnywhere);
    list->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    label->setBuddy(list);
    return list;
}

void UpdateSessionPanel::setUpLayout()
{
    auto *emissionsRow = new QHBoxLayout;
    emissionsRow->addWidget(emissionsLabel);
    emissionsRow->addStretch();
    emissionsRow->addWidget(clearButton);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(requestsLabel);
    rows->addWidget(requests, 3);
    rows->addLayout(emissionsRow);
    rows->addWidget(emissions, 2);
}
