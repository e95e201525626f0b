#pragma once

#include "TXGUICommonExport.h"

#include <QString>

/// Makes the quoted places in a style sheet stand below a folder.
class TXGUICOMMON_PRIVATE_EXPORT StyleSheetUrls
{
public:
    StyleSheetUrls() = delete;

    /// The sheet with the folder and a slash put in behind each `url('` and `url("`, and behind
    /// `url(|` as well. The folder comes in as it is, whatever characters it has. Everything else
    /// stays: unquoted places, other spellings such as `URL('` and `url( '`, absolute places.
    ///
    /// Looks at text, not at rules: what stands in a comment changes too. Costs time in proportion
    /// to the sizes of the sheet and of the result.
    [[nodiscard]] static QString below(const QString &folder, const QString &sheet);
};
