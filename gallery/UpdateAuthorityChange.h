#pragma once

#include <QObject>
#include <QString>

/// Lets TXUpdateService name another service for as long as it exists.
///
/// Several may exist, and go in any order: the youngest counts, and when the last has gone the
/// service is the one from before the first. GUI thread.
class UpdateAuthorityChange final : public QObject
{
    Q_OBJECT

public:
    /// Host and port as in "127.0.0.1:4711". The owner is what the change is to live as long as.
    UpdateAuthorityChange(QString authority, QObject *owner);
    ~UpdateAuthorityChange() override;

private:
    static void apply();

    QString authority;
};
