#pragma once

#include "ShareBrowserDiscoryThread.h"
#include "TXGUICommonExport.h"

#include <QDialog>
#include <QUrl>

#include <memory>

namespace Ui {
class ShareBrowser;
}

/// Lists the hosts and shared folders of the network while they are found, and lets the user pick
/// one; a double click picks and accepts.
///
/// The search begins with the constructor and goes on when the dialog is hidden or ended, until it
/// is over or the dialog is deleted; that waits for it, a fraction of a second.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT ShareBrowser : public QDialog
{
    Q_OBJECT

public:
    /// An empty URL searches the network at large; one with a host lists the shares of that host,
    /// with the URL's user and password if there are any.
    explicit ShareBrowser(QUrl url, QWidget *parent = nullptr);
    ~ShareBrowser() override;

    /// What the user has picked; empty when nothing is selected.
    [[nodiscard]] QUrl selectedUrl() const;

public slots:
    /// Adds a row at the end, at once: the decoded host, " - " and the decoded path, with the URL
    /// under Qt::UserRole; the row is complete when it appears. A find that comes twice gets two
    /// rows. Takes the same time however many rows there are; the list lays them out once in a
    /// turn of the event loop in which some came.
    void newShare(QUrl share);
    /// Takes the busy bar away.
    void discoveryFinished();

protected:
    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::ShareBrowser> ui;
    ShareBrowserDiscoryThread thread;
};
