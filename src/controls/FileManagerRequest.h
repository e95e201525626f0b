#pragma once

#include <QDBusPendingCallWatcher>

/// A request to the file manager of the desktop, by the service "org.freedesktop.FileManager1" of
/// the session's message bus.
///
/// The file manager may need seconds to start, so nobody waits for its answer. When the answer is
/// an error (it did not start, it does not know the call, it ended first), the folder is opened
/// by the program that opens folders, so that the user sees something in the end.
///
/// Owned by the application, deletes itself with the answer. Thread: the GUI thread.
class FileManagerRequest : public QDBusPendingCallWatcher
{
    Q_OBJECT

public:
    /// Asks the service to show the folder, or the file selected in its folder. False when there is
    /// no bus, no such service, or no word of the bus within a second; no file manager was asked
    /// then.
    static bool send(const QString &absolutePath);

private slots:
    void openFolderUnlessShown();

private:
    FileManagerRequest(const QDBusPendingCall &call, const QString &path, QObject *parent);

    QString path;
};
