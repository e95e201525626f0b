#include "VariantCopyAction.h"

#include "TXJSONSerializer.h"
#include "TXVariantViewer.h"
#include "VariantKind.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QVariant>

namespace {

bool isJsonWanted(const QVariant &value)
{
    return value.isNull() || value.typeId() == QMetaType::Bool || VariantKind::isContainer(value);
}

} // namespace

QString VariantCopyAction::text(const QVariant &value)
{
    if (VariantKind::isContainer(value)) {
        return TXVariantViewer::tr("Copy value (JSON encoded)");
    }
    if (VariantKind::isText(value)) {
        return TXVariantViewer::tr("Copy string value");
    }
    return TXVariantViewer::tr("Copy value");
}

bool VariantCopyAction::copy(const QVariant &value)
{
    if (!isJsonWanted(value)) {
        QGuiApplication::clipboard()->setText(value.toString());
        return true;
    }
    const QByteArray json = TXJSONSerializer::serialize(value, false);
    if (json.isEmpty()) {
        return false;
    }
    QGuiApplication::clipboard()->setText(QString::fromUtf8(json));
    return true;
}
