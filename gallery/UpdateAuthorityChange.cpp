#include "UpdateAuthorityChange.h"

#include "TXUpdateService.h"

#include <QList>

#include <utility>

namespace {

/// All changes of the moment, oldest first, and what was there before them.
struct Changes
{
    QString before;
    QList<const UpdateAuthorityChange *> list;
};

Changes &changes()
{
    static Changes all;
    return all;
}

} // namespace

UpdateAuthorityChange::UpdateAuthorityChange(QString newAuthority, QObject *owner)
    : QObject(owner)
    , authority(std::move(newAuthority))
{
    if (changes().list.isEmpty()) {
        changes().before = TXUpdateService::authority();
    }
    changes().list.append(this);
    apply();
}

UpdateAuthorityChange::~UpdateAuthorityChange()
{
    changes().list.removeOne(this);
    apply();
}

void UpdateAuthorityChange::apply()
{
    const Changes &all = changes();
    TXUpdateService::setAuthority(all.list.isEmpty() ? all.before : all.list.last()->authority);
}
