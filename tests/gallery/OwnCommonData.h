#pragma once

#include <QDir>
#include <QFile>
#include <QString>

#include <unistd.h>

#include <cstdlib>

/// A folder for all users of the test's own, in which the library keeps copies of logos.
///
/// The library reads its place when it is loaded, so the program starts itself once more: make this
/// object first of all in main(). The folder goes with the object.
class OwnCommonData
{
public:
    explicit OwnCommonData(char **arguments)
    {
        if (!qEnvironmentVariableIsSet(kVariable)) {
            QByteArray pattern =
                QFile::encodeName(QDir::tempPath() + QStringLiteral("/commonXXXXXX"));
            qputenv(kVariable, ::mkdtemp(pattern.data()));
            qputenv("ALLUSERSPROFILE", qgetenv(kVariable));
            ::execv("/proc/self/exe", arguments);
            std::abort();
        }
    }
    ~OwnCommonData() { QDir(qEnvironmentVariable(kVariable)).removeRecursively(); }
    OwnCommonData(const OwnCommonData &) = delete;
    OwnCommonData &operator=(const OwnCommonData &) = delete;

    /// Where the copies go. Not made by this class.
    [[nodiscard]] static QString folder()
    {
        return qEnvironmentVariable(kVariable) + QStringLiteral("/Tovra Hue Works");
    }

private:
    static constexpr const char *kVariable = "TX_TEST_COMMON_DATA";
};
