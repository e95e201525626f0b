#pragma once

#include "LocalUpdateService.h"

/// What the local update service tells a program that asks for a newer release. The order is that
/// of the box.
enum class UpdateOffer {
    Newer, ///< a final release with a small file
    Beta, ///< the same, not final
    Slow, ///< the file takes some seconds
    Broken, ///< the connection breaks in the midst of the file
    WithoutFile, ///< nothing to download
    LongDescription, ///< ten megabytes of release notes
    Same, ///< the revision of this build
    Older,
    Empty, ///< an answer without content
    NotJson,
    NotFound, ///< status 404
    NobodyThere, ///< no answer at all: nobody listens
};

/// What the service answers to a check.
[[nodiscard]] LocalWebReply checkReplyFor(UpdateOffer offer);

/// What the service answers to a download: a text that says that it is harmless.
[[nodiscard]] LocalWebReply downloadReplyFor(UpdateOffer offer);
