#pragma once

#include "TXCoreCommonExport.h"

#include <QString>

class CurlTransfer;

/// @file
/// Why a transfer failed, in translated words for the user, who may know nothing of protocols. Any
/// thread. No secret: neither what libcurl says nor the line of a server that CurlTransfer keeps
/// holds a password.

/// One sentence for a code of libcurl. A code that a transfer to a server does not end with gives
/// libcurl's own English text. 0 gives an empty text.
TXCORECOMMON_PRIVATE_EXPORT QString curlSentence(int code);

/// A sentence, on a second line libcurl's own words where they tell more than the sentence, and on
/// a last line what the server said last, unless that was that all is well. `sentence` replaces
/// that of curlSentence() where the caller knows better. Empty for a transfer that went well.
TXCORECOMMON_PRIVATE_EXPORT QString curlReason(const CurlTransfer &transfer,
                                               const QString &sentence = {});
