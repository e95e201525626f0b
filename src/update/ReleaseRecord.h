#pragma once

#include "TXGUICommonExport.h"

#include <QLatin1String>
#include <QString>
#include <QUrl>
#include <QVariantHash>

class QDateTime;

/// What is read from a release record, the answer of the update service about one release.
///
/// The service may send anything. A value that is to be text or a number is converted as QVariant
/// does it: a number reads as its digits, "10453" as a number, true as "true" or 1. What cannot be
/// converted, such as null, a list or an object, reads as if it were missing. Nothing here keeps
/// state; any thread.
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
    /// names an installer, see fileName(), it gets the address of the download and, where the
    /// platform has a folder for downloads, the path of the file there; otherwise it gets neither.
    /// What the service has sent under these two keys is dropped in any case: it does not name
    /// places. All other keys stay as they came.
    [[nodiscard]] static QVariantHash completed(const QVariantHash &record, int productType);

    /// The address that the installer is downloaded from, with the time in UTC.
    [[nodiscard]] static QUrl downloadUrl(const QVariantHash &record, int productType,
                                          const QDateTime &now);

    /// The name of the installer's file without any folder, see InstallerName; empty when there is
    /// none.
    [[nodiscard]] static QString fileName(const QVariantHash &record);

    /// The revision, rounded to the nearest whole number; 0 when it is missing or beyond the range
    /// of int.
    [[nodiscard]] static int revision(const QVariantHash &record);

    /// The size of the installer in bytes as the service sent it, also a negative one; 0 when it is
    /// missing or beyond the range of qint64.
    [[nodiscard]] static qint64 fileSize(const QVariantHash &record);

    /// For the user to read: product and version, then the status, unless it is empty or "Finale",
    /// and in brackets the revision as text, unless it is empty: "Reader 2.1 Beta (rev 10453)".
    /// What the service sent may be anything, so this is plain text.
    [[nodiscard]] static QString title(const QVariantHash &record);

    /// Whether the release is newer than this build: revision() is the greater one.
    [[nodiscard]] static bool isNewer(const QVariantHash &record);
};
