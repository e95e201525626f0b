#include "TransferSettingsChange.h"

#include "TXTransferSettings.h"

#include <QList>

#include <utility>

namespace {

struct Settings
{
    QString certificateAuthoritiesFile;
    int connectTimeout = 0;
    int totalTimeout = 0;
};

Settings presentSettings()
{
    return {TXTransferSettings::certificateAuthoritiesFile(), TXTransferSettings::connectTimeout(),
            TXTransferSettings::totalTimeout()};
}

void apply(const Settings &settings)
{
    TXTransferSettings::setCertificateAuthoritiesFile(settings.certificateAuthoritiesFile);
    TXTransferSettings::setConnectTimeout(settings.connectTimeout);
    TXTransferSettings::setTotalTimeout(settings.totalTimeout);
}

void change(Settings &settings, const TransferSettingsWish &wish)
{
    if (!wish.certificateAuthoritiesFile.isEmpty()) {
        settings.certificateAuthoritiesFile = wish.certificateAuthoritiesFile;
    }
    if (wish.timeoutMilliseconds > 0) {
        settings.connectTimeout = wish.timeoutMilliseconds;
        settings.totalTimeout = wish.timeoutMilliseconds;
    }
}

/// All wishes of the moment, oldest first, and what was there before them.
struct Wishes
{
    Settings before;
    QList<const TransferSettingsWish *> list;

    void applyAll() const
    {
        Settings settings = before;
        for (const TransferSettingsWish *wish : list) {
            change(settings, *wish);
        }
        apply(settings);
    }
};

Wishes &wishes()
{
    static Wishes all;
    return all;
}

} // namespace

TransferSettingsChange::TransferSettingsChange(TransferSettingsWish newWish)
    : wish(std::move(newWish))
{
    if (wishes().list.isEmpty()) {
        wishes().before = presentSettings();
    }
    wishes().list.append(&wish);
    wishes().applyAll();
}

TransferSettingsChange::~TransferSettingsChange()
{
    wishes().list.removeOne(&wish);
    wishes().applyAll();
}
