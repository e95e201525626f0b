#pragma once

#include <QString>

/// What a page wants TXTransferSettings to be for a while.
struct TransferSettingsWish
{
    /// A file of certificates to trust; empty leaves the setting alone.
    QString certificateAuthoritiesFile;
    /// For connecting and for the whole, in milliseconds; 0 leaves both settings alone.
    int timeoutMilliseconds = 0;
};

/// Changes TXTransferSettings for as long as it exists.
///
/// Several may exist, and go in any order: of those that wish the same setting the youngest counts,
/// and when the last has gone the settings are those from before the first. GUI thread.
class TransferSettingsChange
{
public:
    explicit TransferSettingsChange(TransferSettingsWish wish);
    ~TransferSettingsChange();

    TransferSettingsChange(const TransferSettingsChange &) = delete;
    TransferSettingsChange &operator=(const TransferSettingsChange &) = delete;

private:
    TransferSettingsWish wish;
};
