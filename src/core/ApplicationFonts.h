#pragma once

#include "TXGUICommonExport.h"

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

class QFileInfo;

/// The fonts that the application has been given from files.
///
/// Qt keeps a font once more each time that its file is added, and has every text laid out again.
/// Hosts load their fonts with each change of the style, so a file that is there already is not
/// added again, unless it has changed or its font has been removed since.
///
/// Belongs to the application object and goes with it. Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT ApplicationFonts : public QObject
{
    Q_OBJECT

public:
    /// Adds the fonts "*.ttf" of a folder, also "*.TTF". What cannot be used is left out silently:
    /// a file that is no font or cannot be read, a folder, a pipe (to open it would wait for
    /// somebody who writes). Does nothing without a QGuiApplication, as there are no fonts then.
    static void load(const QString &folder);

private:
    /// A file as it was when it was added, and what came of it.
    struct Added
    {
        QDateTime modified;
        qint64 bytes = 0;
        int id = -1;
        QStringList families;
    };

    explicit ApplicationFonts(QObject *application);
    static ApplicationFonts *ofApplication(QObject *application);
    [[nodiscard]] bool isThere(const QFileInfo &file) const;
    void add(const QFileInfo &file);

    QHash<QString, Added> addedFiles;
};
