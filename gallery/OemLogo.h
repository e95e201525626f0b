#pragma once

#include <QCoreApplication>
#include <QString>

/// Puts a partner's logo where the splash looks for it, and takes it away again.
///
/// Nothing else is written or removed than the installed logo and the copy of the gallery's
/// product. Results are sentences on what went wrong, in the language of the moment; empty when it
/// went well.
class OemLogo
{
    Q_DECLARE_TR_FUNCTIONS(OemLogo)

public:
    OemLogo() = delete;

    /// The largest logo, in pixels; a larger picture is made smaller to fit.
    static constexpr int kLargestWidth = 960;
    static constexpr int kLargestHeight = 720;

    [[nodiscard]] static QString installedPath();
    [[nodiscard]] static QString cachedPath();

    /// Makes the picture of any format at the path the installed logo, in place of the one before,
    /// as PNG. What is no picture leaves everything as it is.
    [[nodiscard]] static QString put(const QString &path);

    /// A logo that is not there is removed well.
    [[nodiscard]] static QString removeInstalled();
    [[nodiscard]] static QString removeCached();

    /// Why there is no copy although the splash has been asked for with a logo installed.
    [[nodiscard]] static QString reasonForNoCopy();

private:
    [[nodiscard]] static QString remove(const QString &path);
};
