#include "LocalServerPanel.h"

#include "CopyableText.h"
#include "LocalServer.h"
#include "WaitCursor.h"
#include "WheelGuard.h"

#include "TXResources.h"
#include "TXSwitchSlider.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr QSize kSwitchSize(44, 22);
constexpr int kPartGap = 8;

/// What went wrong, and the last line of what the script printed, without the lines of its stack.
QString shortened(const QString &reason)
{
    const QStringList lines = reason.split(u'\n', Qt::SkipEmptyParts);
    if (lines.size() < 2) {
        return reason;
    }
    return lines.first() + u'\n' + lines.last().trimmed();
}

} // namespace

LocalServerPanel::LocalServerPanel(QWidget *parent)
    : GalleryPanel(parent)
    , slider(new TXSwitchSlider(this))
    , sliderLabel(new QLabel(this))
    , state(new QLabel(this))
    , fillInButton(new QPushButton(this))
    , options(new QHBoxLayout)
    , errorPicture(new QLabel(this))
    , errorText(new QLabel(this))
{
    slider->setFixedSize(kSwitchSize);
    sliderLabel->setBuddy(slider);
    CopyableText::allow(state);
    errorPicture->setPixmap(TXDisplayLittleErrorBulletStaticImage());
    errorText->setTextFormat(Qt::PlainText);
    errorText->setWordWrap(true);
    CopyableText::allow(errorText);
    setUpLayout();
    errorPicture->hide();
    errorText->hide();
    connect(slider, SIGNAL(clicked(bool)), this, SLOT(switchTo(bool)));
    connect(fillInButton, SIGNAL(clicked()), this, SIGNAL(fillInWanted()));
}

LocalServerPanel::~LocalServerPanel()
{
    // A server tells what is left to tell while it stops, and there is nobody any more.
    if (server) {
        server->disconnect(this);
    }
}

quint16 LocalServerPanel::port() const
{
    return server ? server->port() : quint16(0);
}

QString LocalServerPanel::error() const
{
    return errorText->text();
}

void LocalServerPanel::catchUp()
{
    if (server) {
        static_cast<void>(server->log());
    }
}

void LocalServerPanel::setRunning(bool isWanted)
{
    slider->setChecked(isWanted);
}

void LocalServerPanel::restart()
{
    if (server) {
        switchTo(false);
        start();
    }
}

void LocalServerPanel::addOption(QLabel *label, QWidget *option)
{
    const int place = options->count() - 1;
    auto *parts = new QHBoxLayout;
    parts->setSpacing(kPartGap);
    if (label) {
        label->setBuddy(option);
        parts->addWidget(label);
    }
    parts->addWidget(option);
    // A turn of the wheel while scrolling past would restart the server at each step.
    WheelGuard::protect(option);
    options->insertLayout(place, parts);
}

bool LocalServerPanel::isHelpedBySetup(const QString &) const
{
    return true;
}

void LocalServerPanel::hideFillIn()
{
    fillInButton->hide();
}

void LocalServerPanel::setEntries(QComboBox *box, const QStringList &texts)
{
    if (box->count() == 0) {
        box->addItems(texts);
    }
    for (int i = 0; i < texts.size(); ++i) {
        box->setItemText(i, texts[i]);
    }
}

void LocalServerPanel::retranslate()
{
    sliderLabel->setText(tr("Ser&ver:"));
    slider->setAccessibleName(title());
    setButtonText(fillInButton, tr("&Fill In the Panel"));
    showState();
    showFailure();
}

void LocalServerPanel::switchTo(bool isOn)
{
    if (isOn) {
        start();
        return;
    }
    server.reset();
    settingsChange.reset();
    showState();
}

void LocalServerPanel::serverStopped()
{
    setFailure(Failure::Stopped, server->error());
    // Its signal is what this is called by.
    server->disconnect(this);
    server.release()->deleteLater();
    slider->setChecked(false);
}

void LocalServerPanel::start()
{
    const WaitCursor cursor;
    setFailure(Failure::None);
    server = makeServer();
    if (!server->start()) {
        setFailure(Failure::NotStarted, server->error());
        slider->setChecked(false);
        return;
    }
    settingsChange.emplace(transferSettings());
    connect(server.get(), SIGNAL(logged(QString)), this, SIGNAL(logged(QString)));
    connect(server.get(), SIGNAL(stoppedByItself()), this, SLOT(serverStopped()));
    showState();
    emit started();
}

void LocalServerPanel::showState()
{
    const QString place = QStringLiteral("127.0.0.1:%1").arg(port());
    state->setText(isRunning() ? tr("on, at %1").arg(place) : tr("off"));
    // Only an address is worth a stop of Tab.
    state->setFocusPolicy(isRunning() ? Qt::StrongFocus : Qt::ClickFocus);
    state->setForegroundRole(isRunning() ? QPalette::WindowText : QPalette::PlaceholderText);
    slider->setAccessibleDescription(state->text());
    fillInButton->setEnabled(isRunning());
}

void LocalServerPanel::setFailure(Failure newFailure, const QString &newReason)
{
    failure = newFailure;
    reason = shortened(newReason);
    showFailure();
}

void LocalServerPanel::showFailure()
{
    errorText->setText(failureText());
    errorText->setVisible(failure != Failure::None);
    errorPicture->setVisible(failure != Failure::None);
}

QString LocalServerPanel::failureText() const
{
    switch (failure) {
    case Failure::None:
        break;
    case Failure::NotStarted:
        return tr("The server did not start: %1").arg(reason)
            + (isHelpedBySetup(reason) ? u'\n' + tr("\"./dev setup\" installs what is needed.")
                                       : QString());
    case Failure::Stopped:
        return reason.isEmpty() ? tr("The server has stopped by itself.")
                                : tr("The server has stopped by itself: %1").arg(reason);
    }
    return {};
}

void LocalServerPanel::setUpLayout()
{
    auto *switchRow = new QHBoxLayout;
    switchRow->setSpacing(kPartGap);
    switchRow->addWidget(sliderLabel);
    switchRow->addWidget(slider);
    switchRow->addWidget(state, 1);
    switchRow->addWidget(fillInButton);

    options->setSpacing(2 * kGap);
    options->addStretch();

    auto *errorRow = new QHBoxLayout;
    errorRow->setSpacing(kPartGap);
    errorRow->addWidget(errorPicture, 0, Qt::AlignTop);
    errorRow->addWidget(errorText, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(switchRow);
    rows->addLayout(options);
    rows->addLayout(errorRow);
}
