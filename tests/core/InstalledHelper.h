#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <QTest>

/// The French translation that the build makes of coretest_fr.ts.
inline QString builtTranslation()
{
    return QCoreApplication::applicationDirPath()
        + QStringLiteral("/core/translations/coretest_fr.qm");
}

/// An application in a temporary folder: "bin" with localisationhelper.cpp, or another program of
/// the tests, as its program, and room for "Resources" beside it.
class InstalledHelper
{
public:
    /// The place is put between the temporary folder and "bin".
    explicit InstalledHelper(const QString &place = QStringLiteral("app"),
                             const QString &helper = QStringLiteral("localisationhelper"))
        : home(QFileInfo(temporary.path()).canonicalFilePath() + u'/' + place)
    {
        const QString program = QCoreApplication::applicationDirPath() + u'/' + helper;
        isInstalled = QDir().mkpath(programFolder()) && QFile::copy(program, programPath());
    }

    [[nodiscard]] QString path(const QString &name) const { return home + u'/' + name; }
    [[nodiscard]] QString programFolder() const { return path(QStringLiteral("bin")); }

    /// Makes the folders that are missing.
    [[nodiscard]] bool write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        return QDir().mkpath(QFileInfo(file).path()) && file.open(QFile::WriteOnly)
            && file.write(bytes) == bytes.size();
    }

    [[nodiscard]] bool copy(const QString &from, const QString &name) const
    {
        return QDir().mkpath(QFileInfo(path(name)).path()) && QFile::copy(from, path(name));
    }

    /// Fails the test when the program does not end well or prints a warning.
    [[nodiscard]] QJsonObject
    run(const QStringList &arguments,
        const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment()) const
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(programPath(), arguments);
        if (!isInstalled || !process.waitForFinished()
            || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
            QTest::qFail(qPrintable(process.errorString() + process.readAllStandardError()),
                         __FILE__, __LINE__);
        }
        const QByteArray warnings = process.readAllStandardError();
        if (!warnings.isEmpty()) {
            QTest::qFail(warnings.constData(), __FILE__, __LINE__);
        }
        return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    }

private:
    [[nodiscard]] QString programPath() const { return programFolder() + "/program"; }

    QTemporaryDir temporary;
    QString home;
    bool isInstalled = false;
};
