#include "ShareSearchPanel.h"

#include "CopyableText.h"
#include "SambaServerPanel.h"

#include "ShareBrowser.h"
#include "TXLogItem.h"
#include "TXLogManager.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

namespace {

constexpr int kOutcomeLines = 2;

/// How the log begins to tell of drives that are being connected. It is in English in all
/// languages.
const QString kOfConnections = QStringLiteral("Network drive ");

} // namespace

ShareSearchPanel::ShareSearchPanel(const SambaServerPanel *server, QWidget *parent)
    : GalleryPanel(parent)
    , server(server)
    , serverButton(new QPushButton(this))
    , networkButton(new QPushButton(this))
    , outcomeLabel(new QLabel(this))
    , log(TXLogManager::applicationLog())
{
    // The network may tell any text.
    outcomeLabel->setTextFormat(Qt::PlainText);
    outcomeLabel->setWordWrap(true);
    CopyableText::allow(outcomeLabel);
    outcomeLabel->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    // The page keeps its place when a short text follows a long one.
    outcomeLabel->setMinimumHeight(kOutcomeLines * outcomeLabel->fontMetrics().lineSpacing());
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(serverButton);
    buttons->addWidget(networkButton);
    buttons->addStretch();
    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(buttons);
    rows->addWidget(outcomeLabel);
    rows->addStretch();
    setServerRunning(false);
    retranslate();
    connect(serverButton, SIGNAL(clicked()), this, SLOT(browseServer()));
    connect(networkButton, SIGNAL(clicked()), this, SLOT(browseNetwork()));
    connect(log->rootItem().data(), SIGNAL(itemAppended(QSharedPointer<TXLogItem>)), this,
            SLOT(noteLogEntry(QSharedPointer<TXLogItem>)));
}

ShareSearchPanel::~ShareSearchPanel() = default;

void ShareSearchPanel::setServerRunning(bool isRunning)
{
    serverButton->setEnabled(isRunning);
}

void ShareSearchPanel::browseServer()
{
    isOfServer = true;
    browse(server->serverUrl());
}

void ShareSearchPanel::browseNetwork()
{
    isOfServer = false;
    browse({});
}

/// The busy bar goes when the search has ended.
bool ShareSearchPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide || event->type() == QEvent::HideToParent) {
        const auto *bar = qobject_cast<QProgressBar *>(watched);
        if (bar && bar->isHidden()) {
            endSearch();
        }
    }
    return GalleryPanel::eventFilter(watched, event);
}

void ShareSearchPanel::retranslate()
{
    setTitle(tr("Share browser"));
    setButtonText(serverButton, tr("&Browse This Server..."));
    setButtonText(networkButton, tr("Browse the &Network..."));
    showOutcome();
}

void ShareSearchPanel::take()
{
    chosen = openBrowser->result() == QDialog::Accepted ? openBrowser->selectedUrl() : QUrl();
    outcome = outcomeOfChoice();
    showOutcome();
    if (isOfServer && outcome == Outcome::Chosen) {
        emit shareChosen(chosen.path(QUrl::FullyDecoded).remove(u'/'));
    }
}

/// Warnings only: those of a search are why it finds less than there is.
void ShareSearchPanel::noteLogEntry(QSharedPointer<TXLogItem> entry)
{
    const QString line = entry->message.toString();
    const bool isOfSearch = searching || outcome == Outcome::NothingFound;
    if (isOfSearch && entry->level == TXLogItem::Warning && !line.startsWith(kOfConnections)) {
        reason = line;
        showOutcome();
    }
}

void ShareSearchPanel::browse(const QUrl &url)
{
    outcome = Outcome::None;
    reason.clear();
    showOutcome();
    openBrowser = std::make_unique<ShareBrowser>(url, this);
    connect(openBrowser.get(), SIGNAL(finished(int)), this, SLOT(take()));
    auto *bar = openBrowser->findChild<QProgressBar *>();
    searching = !bar->isHidden();
    bar->installEventFilter(this);
    openBrowser->open();
}

void ShareSearchPanel::endSearch()
{
    if (searching) {
        searching = false;
        outcome = hasFound() ? outcome : Outcome::NothingFound;
        showOutcome();
        emit searchEnded();
    }
}

bool ShareSearchPanel::hasFound() const
{
    return openBrowser->findChild<QListWidget *>()->count() > 0;
}

ShareSearchPanel::Outcome ShareSearchPanel::outcomeOfChoice() const
{
    if (!chosen.isEmpty()) {
        return Outcome::Chosen;
    }
    return searching || hasFound() ? Outcome::Nothing : Outcome::NothingFound;
}

void ShareSearchPanel::showOutcome()
{
    outcomeLabel->setText(outcomeText());
}

QString ShareSearchPanel::outcomeText() const
{
    switch (outcome) {
    case Outcome::None:
        break;
    case Outcome::Chosen:
        return tr("Chosen: %1").arg(chosen.toDisplayString(QUrl::RemoveUserInfo));
    case Outcome::Nothing:
        return tr("Nothing was chosen.");
    case Outcome::NothingFound:
        return tr("Nothing was found. %1")
            .arg(reason.isEmpty() ? tr("The log of the drives says why.") : reason);
    }
    return tr("Choose a share of the server for the drives that are added.");
}
