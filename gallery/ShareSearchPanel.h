#pragma once

#include "GalleryPanel.h"

#include <QSharedPointer>
#include <QUrl>

#include <memory>

class QLabel;
class SambaServerPanel;
class ShareBrowser;
class TXLogItem;
class TXLogManager;

/// Opens the library's browser of hosts and shares over the local server or over the network, and
/// shows what was chosen in it, never with a password. Of a search that has found nothing it tells
/// why, in the words of the library's log.
class ShareSearchPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    /// The server, not null, is to live as long as the panel.
    explicit ShareSearchPanel(const SambaServerPanel *server, QWidget *parent = nullptr);
    ~ShareSearchPanel() override;

    /// The browser that was opened last, null before the first. Owned.
    [[nodiscard]] ShareBrowser *browser() const { return openBrowser.get(); }

    /// Whether the browser that was opened last still searches.
    [[nodiscard]] bool isSearching() const { return searching; }

public slots:
    /// Whether there is a server to browse; false at first.
    void setServerRunning(bool isRunning);

    /// Opens a browser of the local server's shares, in place of the one before.
    void browseServer();

    /// The same over the network at large.
    void browseNetwork();

signals:
    /// The user has chosen a share of the local server.
    void shareChosen(const QString &share);

    /// A search has ended, and isSearching() is false.
    void searchEnded();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void retranslate() override;

private slots:
    void take();
    void noteLogEntry(QSharedPointer<TXLogItem> entry);

private:
    enum class Outcome {
        None, ///< none asked yet
        Chosen,
        Nothing, ///< cancelled, or confirmed with nothing chosen
        NothingFound, ///< the search has ended with an empty list
    };

    void browse(const QUrl &url);
    void endSearch();
    [[nodiscard]] bool hasFound() const;
    [[nodiscard]] Outcome outcomeOfChoice() const;
    void showOutcome();
    [[nodiscard]] QString outcomeText() const;

    const SambaServerPanel *server;
    QPushButton *serverButton;
    QPushButton *networkButton;
    QLabel *outcomeLabel;
    std::unique_ptr<ShareBrowser> openBrowser;
    bool isOfServer = false;
    bool searching = false;
    Outcome outcome = Outcome::None;
    QUrl chosen;
    QSharedPointer<TXLogManager> log;
    // The last that the log has told of the search, which may be after its end.
    QString reason;
};
