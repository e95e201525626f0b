#include "VariantCopyAction.h"

#include "TXJSONSerializer.h"
#include "TXVariantViewer.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QVariant>

namespace {

bool isContainer(int type)
{
    return type == QMetaType::QVariantMap || type == QMetaType::QVariantHash
        || type == QMetaType::QVariantList || type == QMetaType::QStringList;
}

bool isJsonWanted(const QVariant &value)
{
    return value.isNull() || !value.isValid() || value.typeId() == QMetaType::Bool
        || isContainer(value.typeId());
}

} // namespace

QString VariantCopyAction::text(const QVariant &value)
{
    const int type = value.typeId();
    if (isContainer(type)) {
        return TXVariantViewer::tr("Copy value (JSON encoded)");
    }
    if (type == QMetaType::QString || type == QMetaType::QByteArray) {
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
