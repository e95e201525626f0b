#pragma once

#include "TXGUICommonExport.h"

#include <QLatin1String>
#include <QString>
#include <QUrl>
#include <QVariantHash>

class QDateTime;

/// What is read from a release record, the answer of the update service about one release.
///
/// The service may send anything: a value of a wrong type reads as if it were missing. Nothing
/// here keeps state; any thread.
class TXGUICOMMON_PRIVATE_EXPORT ReleaseRecord
{
public:
    /// Keys of the service.
    static constexpr QLatin1String kProductNameKey{"ProductName"};
    static constexpr QLatin1String kVersionKey{"Version"};
    static constexpr QLatin1String kStatusKey{"Status"};
    static constexpr QLatin1String kRevisionKey{"Revision"};
    static constexpr QLatin1String kDescriptionKey{"Description"};
    static constexpr QLatin1String kFilenameKey{"Filename"};
    static constexpr QLatin1String kFilesizeKey{"Filesize"};
    static constexpr QLatin1String kReleaseIdKey{"ReleaseId"};
    /// Keys of ours: where the installer is downloaded from, and the file it is written to.
    static constexpr QLatin1String kUrlKey{"Url"};
    static constexpr QLatin1String kPathKey{"Path"};
    /// The mark of an answer without content.
    static constexpr QLatin1String kEmptyKey{"empty"};

    ReleaseRecord() = delete;

    /// The record as a dialog uses it: empty for an empty one and for one with the mark. When it
    /// names an installer it gets the address of the download and, where the platform has a folder
    /// for downloads, the path of the file there. What the service has sent under these two keys is
    /// dropped in any case: it does not name places.
    [[nodiscard]] static QVariantHash completed(const QVariantHash &record, int productType);

    /// The address that the installer is downloaded from.
    [[nodiscard]] static QUrl downloadUrl(const QVariantHash &record, int productType,
                                          const QDateTime &now);

    /// The name of the installer's file without any folder: the last component of what the service
    /// sent, whichever kind of slash it used. Empty when there is none that a file can have.
    [[nodiscard]] static QString fileName(const QVariantHash &record);

    /// The revision; 0 when it is missing or beyond the range of int.
    [[nodiscard]] static int revision(const QVariantHash &record);

    /// The size of the installer in bytes; 0 when it is missing.
    [[nodiscard]] static qint64 fileSize(const QVariantHash &record);

    /// Product, version, status unless the release is final, and revision, for the user to read.
    [[nodiscard]] static QString title(const QVariantHash &record);

    /// Whether the release is newer than this build.
    [[nodiscard]] static bool isNewer(const QVariantHash &record);
};
