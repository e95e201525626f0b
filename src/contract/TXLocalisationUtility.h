#pragma once

#include "TXCoreCommonExport.h"

#include <QString>

/// Finds the translation files that lie beside the application. Thread: that of the application
/// object.
class TXCORECOMMON_EXPORT TXLocalisationUtility
{
public:
    TXLocalisationUtility() = delete;

    /// The path of "<module>_<language>.qm" in "../Resources/translations/", seen from the folder
    /// of the application. A language such as "zh_Hant_TW" falls back to "zh_Hant", then to "zh".
    ///
    /// Empty when there is no such file, when there is no application object yet, and when one of
    /// the names is empty or could lead out of that folder (holds a separator, a colon or "..").
    [[nodiscard]] static QString getLocalisationFile(QString module, QString language);
};
