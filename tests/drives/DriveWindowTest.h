#pragma once

#include "AutoMountManagerMainWindow.h"
#include "AutoMountNetworkDrive.h"
#include "DialogDriver.h"
#include "DriveModelHelpers.h"
#include "NetworkDriveFolder.h"
#include "TXAutoMountManager.h"
#include "TXLogItem.h"
#include "TXLogManager.h"
#include "TestBase.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTreeView>

#include <memory>

/// Base of the tests of the window of the network drives. Each test starts with a stopped manager
/// without drives, nothing stored, an empty log, all drive letters free, and no window; open()
/// makes one.
class DriveWindowTest : public TestBase
{
protected:
    static constexpr auto kStoredKey = "NetworkDrives";

    void prepare() override
    {
        log()->flush();
        log()->reset();
    }

    void finish() override
    {
        window.reset();
        manager()->stop();
        while (manager()->count() > 0) {
            manager()->remove(0);
        }
        QDir(NetworkDriveFolder::path()).removeRecursively();
    }

    static TXAutoMountManager *manager() { return TXAutoMountManager::getInstance(); }
    static QSharedPointer<TXLogManager> log() { return TXLogManager::applicationLog(); }

    /// The texts of the application's log, oldest first.
    static QStringList logLines()
    {
        log()->flush();
        QStringList lines;
        for (const auto &item : log()->rootItem()->children) {
            lines.append(item->message.toString(nullptr));
        }
        return lines;
    }

    /// A drive of the user mia with a password, on the share "share", as the editor makes them.
    static AutoMountNetworkDrive makeDrive(const QString &host, QChar letter)
    {
        return DriveTest::makeDrive(host, letter);
    }

    /// Three drives on the hosts "a", "b" and "c", with the letters K, L and M.
    static void addThreeDrives()
    {
        manager()->add(makeDrive(QStringLiteral("a"), u'K'));
        manager()->add(makeDrive(QStringLiteral("b"), u'L'));
        manager()->add(makeDrive(QStringLiteral("c"), u'M'));
    }

    static QString hosts()
    {
        QStringList found;
        for (int row = 0; row < manager()->count(); ++row) {
            found.append(manager()->getDrive(row).getUrl().host());
        }
        return found.join(u' ');
    }

    /// Takes the letters from A to Z, but for one.
    static void takeLettersExcept(QChar free)
    {
        QVERIFY(QDir().mkpath(NetworkDriveFolder::path()));
        for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
            if (letter != free) {
                QVERIFY(NetworkDriveFolder::place(letter, QStringLiteral("/elsewhere")));
            }
        }
    }

    static void takeAllLetters() { takeLettersExcept(QChar()); }

    /// Whether the list was stored since the last forgetStored().
    static bool isStored() { return QSettings().contains(QLatin1String(kStoredKey)); }
    static void forgetStored() { QSettings().remove(QLatin1String(kStoredKey)); }
    /// The stored drives, one text each.
    static QStringList stored()
    {
        return QSettings().value(QLatin1String(kStoredKey)).toStringList();
    }

    static QLineEdit *field(const QDialog &editor, const char *name)
    {
        return editor.findChild<QLineEdit *>(QString::fromLatin1(name));
    }

    /// Fills in an editor as a user would.
    static void fillIn(const QDialog &editor, const QString &host)
    {
        field(editor, "lineEditHost")->setText(host);
        field(editor, "lineEditUsername")->setText(QStringLiteral("mia"));
        field(editor, "lineEditFolder")->setText(QStringLiteral("share"));
    }

    void open(QWidget *parent = nullptr)
    {
        window = std::make_unique<AutoMountManagerMainWindow>(parent);
    }

    template<class Widget>
    Widget *child(const char *name) const
    {
        return window->findChild<Widget *>(QString::fromLatin1(name));
    }

    QTreeView &tree() const { return *child<QTreeView>("treeView"); }
    QPushButton *addButton() const { return child<QPushButton>("buttonAddNetworkDrive"); }
    QPushButton *removeButton() const { return child<QPushButton>("buttonRemoveNetworkDrive"); }
    QPushButton *editButton() const { return child<QPushButton>("buttonEditNetworkDrive"); }
    QCheckBox *enabledBox() const { return child<QCheckBox>("checkBoxEnabled"); }

    /// Selects the row, with the given column as the current one.
    void select(int row, int column = 0) const
    {
        tree().setCurrentIndex(tree().model()->index(row, column));
    }

    /// The selected rows.
    QList<int> selectedRows() const
    {
        QList<int> rows;
        for (const QModelIndex &index : tree().selectionModel()->selectedRows()) {
            rows.append(index.row());
        }
        return rows;
    }

    std::unique_ptr<AutoMountManagerMainWindow> window;
};
