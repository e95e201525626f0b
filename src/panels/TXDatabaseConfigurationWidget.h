#pragma once

#include "TXGUICommonExport.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <memory>

namespace Ui {
class TXDatabaseConfigurationWidget;
}

/// The panel on which a user chooses where an application keeps its data: in the internal SQLite
/// database or on a MySQL or MariaDB server, which he can try.
///
/// The settings dictionary has three keys, all of them at each call:
/// - "Driver": string, "QSQLITE" for the internal database, "QMYSQL" for a server.
/// - "Connection": string, the name of the database; empty for the internal one.
/// - "Parameters": hash of string to variant, empty for the internal database; for a server with
///   all of "Host" (string), "Port" (int, 1 to 65535), "User" (string), "Password" (string,
///   enciphered for this user; empty when there is no key to encipher with) and "Options" (string,
///   connect options in the words of QSqlDatabase::setConnectOptions()).
///
/// A host that opens its connection by the dictionary appends ";MYSQL_OPT_RECONNECT=1" to the
/// options, as the test does. Nothing is told in words: a server that cannot be reached shows as a
/// bullet, as false and as an empty dictionary.
///
/// Texts stay in the language of construction. Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXDatabaseConfigurationWidget : public QWidget
{
    Q_OBJECT

public:
    /// Shows the internal database, and for a server 127.0.0.1 at port 3306 and the user root.
    explicit TXDatabaseConfigurationWidget(QWidget *parent = nullptr);
    ~TXDatabaseConfigurationWidget() override;

    /// Shows the settings. Returns whether "Driver" is one of the two, letter for letter; any other
    /// one, and none, shows as the internal database. Without "QMYSQL" the fields of the server
    /// keep what they hold. With it all of them are replaced: a missing key, and a password that
    /// another user or machine has enciphered, leaves its field empty. A port out of range becomes
    /// the nearest end of it; one that is missing or no number becomes 1.
    bool load(QHash<QString, QVariant> settings);

    /// The settings as they stand in the controls, whether they work or not.
    [[nodiscard]] QHash<QString, QVariant> settings() const;

    /// The settings if isValid() holds, otherwise an empty dictionary.
    [[nodiscard]] QHash<QString, QVariant> save() const;

    /// Whether a connection can be opened with the settings; the internal database always can, and
    /// nothing is opened for it.
    ///
    /// Blocks for as long as the server takes, without running the event loop and under a wait
    /// cursor: for 15 seconds on a server that does not answer up to the log-in, unless the user's
    /// options set MYSQL_OPT_CONNECT_TIMEOUT themselves. No connection of QSqlDatabase is left
    /// behind, and those of the host are not touched. Qt prints a warning about options that it
    /// does not know.
    [[nodiscard]] bool isValid() const;

    /// Enables the fields of the server when the server is chosen, disables them otherwise.
    void refresh();

    /// Lets the user edit the settings in a modal dialog of that title. Returns them when he has
    /// accepted and a connection can be opened, and an empty dictionary otherwise: the dialog does
    /// not stay open for settings that fail.
    [[nodiscard]] static QHash<QString, QVariant> ask(const QString &title,
                                                      QHash<QString, QVariant> settings);

public slots:
    /// The same as refresh().
    void on_internalDBRadio_clicked();

    /// The same as refresh().
    void on_mysqlDBRadio_clicked();

    /// Shows by a bullet whether isValid() holds. The bullet stays until the next test, also when
    /// fields are edited or other settings are loaded.
    void on_testButton_clicked();

private:
    void showServer(const QString &database, const QHash<QString, QVariant> &parameters);

    std::unique_ptr<Ui::TXDatabaseConfigurationWidget> ui;
};
