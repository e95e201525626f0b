#pragma once

#include "TXGUICommonExport.h"

#include <QString>

/// Places of files in style sheets.
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

    /// The path as it has to stand between the single quotes of `url('…')` to be found: an
    /// apostrophe, a backslash and a line break are escaped, and everything else stays.
    [[nodiscard]] static QString inSingleQuotes(const QString &path);
};
