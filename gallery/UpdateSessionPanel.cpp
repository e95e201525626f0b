#include "UpdateSessionPanel.h"

#include <QMetaEnum>

namespace {

/// The value's name in the source, which is what a developer looks for.
QString nameOf(TXCheckForUpdateWidget::State state)
{
    const char *name = QMetaEnum::fromType<TXCheckForUpdateWidget::State>().valueToKey(state);
    return name ? QString::fromLatin1(name) : QString::number(state);
}

} // namespace

UpdateSessionPanel::UpdateSessionPanel(QWidget *parent)
    : SessionPanel(parent)
{
    retranslate();
}

void UpdateSessionPanel::addState(TXCheckForUpdateWidget::State state)
{
    addEmission(QStringLiteral("stateChanged(%1)").arg(nameOf(state)));
}

void UpdateSessionPanel::addRelease(const QVariantHash &info)
{
    const QString revision = info.value(QStringLiteral("Revision")).toString();
    const QString content =
        info.isEmpty() ? QString() : QStringLiteral("Revision: %1, ...").arg(revision);
    addEmission(QStringLiteral("updateRefreshed({%1})").arg(content));
}

void UpdateSessionPanel::retranslate()
{
    SessionPanel::retranslate();
    setLabels(tr("What the service &got:"), tr("Signals of t&he dialog:"));
}
