#include "WebSettingsPanel.h"

#include "DictionaryView.h"
#include "ShortText.h"
#include "WaitCursor.h"
#include "WebCertificate.h"

#include "TXDataCrypt.h"
#include "TXWebInterfaceConfigurationWidget.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHostAddress>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QTcpServer>

namespace {

const QString kStoredKey = QStringLiteral("Gallery/WebInterface");
const QString kOfferKey = QStringLiteral("EnableHTTPS");
const QString kUsersKey = QStringLiteral("Users");

const QString kUser = QStringLiteral("mia");
const QString kPassword = QStringLiteral("s3cret");
const QString kPath = QStringLiteral("gallery");

QHash<QString, QVariant> storedSettings()
{
    return QSettings().value(kStoredKey).toHash();
}

/// The entries with those of the users beside them, as "Users/0/Username".
QHash<QString, QVariant> flattened(QHash<QString, QVariant> settings)
{
    const QVariantList users = settings.take(kUsersKey).toList();
    for (qsizetype i = 0; i < users.size(); ++i) {
        const QHash<QString, QVariant> user = users[i].toHash();
        for (auto part = user.begin(); part != user.end(); ++part) {
            settings.insert(QStringLiteral("%1/%2/%3").arg(kUsersKey).arg(i).arg(part.key()),
                            part.value());
        }
    }
    return settings;
}

/// A port that nobody has at this moment; 0 when the system gives none.
int freePort()
{
    QTcpServer server;
    return server.listen(QHostAddress(QHostAddress::AnyIPv4)) ? server.serverPort() : 0;
}

} // namespace

WebSettingsPanel::WebSettingsPanel(TXWebInterfaceConfigurationWidget *configuration,
                                   QWidget *parent)
    : GalleryPanel(parent)
    , configuration(configuration)
    , exampleButton(new QPushButton(this))
    , offerBox(new QCheckBox(this))
    , certificateButton(new QPushButton(this))
    , showButton(new QPushButton(this))
    , saveButton(new QPushButton(this))
    , loadButton(new QPushButton(this))
    , view(new DictionaryView(this))
    , deedLabel(new QLabel(this))
{
    offerBox->setChecked(QSettings().value(kOfferKey, false).toBool());
    view->setTypesShown(false);
    // Beside a label that wraps, a layout forgets the height of a view without a wish of its own.
    view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setUpLayout();
    retranslate();
    if (!storedSettings().isEmpty()) {
        load();
    }
    connect(offerBox, SIGNAL(toggled(bool)), this, SLOT(offerHttps(bool)));
    connect(certificateButton, SIGNAL(clicked()), this, SLOT(makeCertificate()));
    connect(exampleButton, SIGNAL(clicked()), this, SLOT(fillInExample()));
    connect(showButton, SIGNAL(clicked()), this, SLOT(showSettings()));
    connect(saveButton, SIGNAL(clicked()), this, SLOT(save()));
    connect(loadButton, SIGNAL(clicked()), this, SLOT(load()));
}

void WebSettingsPanel::showSettings()
{
    view->setDictionary(flattened(configuration->save()));
}

void WebSettingsPanel::fillInExample()
{
    const QByteArray cipher = TXDataCrypt::encrypt(kPassword.toUtf8(), nullptr);
    const QHash<QString, QVariant> user = {
        {QStringLiteral("Username"), kUser},
        {QStringLiteral("Password"), QString::fromLatin1(cipher)}};
    QHash<QString, QVariant> settings = configuration->save();
    settings.insert(QStringLiteral("Enabled"), true);
    settings.insert(QStringLiteral("Port"), freePort());
    settings.insert(QStringLiteral("Path"), kPath);
    settings.insert(QStringLiteral("Secure"), false);
    settings.insert(kUsersKey, QVariantList(1, user));
    configuration->load(settings);
    show(Deed::ExampleFilledIn);
}

void WebSettingsPanel::retranslate()
{
    setTitle(tr("Settings"));
    offerBox->setText(tr("Offer &HTTPS"));
    setButtonText(certificateButton, tr("Make &Certificate"));
    setButtonText(exampleButton, tr("Fill In E&xample"));
    setButtonText(showButton, tr("Sho&w Settings"));
    setButtonText(saveButton, tr("Sav&e"));
    setButtonText(loadButton, tr("Loa&d"));
    view->setAccessibleName(tr("Settings of the web interface"));
    deedLabel->setText(deedText());
}

void WebSettingsPanel::save()
{
    QSettings().setValue(kStoredKey, configuration->save());
    showSettings();
    show(Deed::Saved);
}

void WebSettingsPanel::load()
{
    const QHash<QString, QVariant> settings = storedSettings();
    if (settings.isEmpty()) {
        show(Deed::NothingToLoad);
        return;
    }
    configuration->load(settings);
    showSettings();
    show(Deed::Loaded);
}

void WebSettingsPanel::offerHttps(bool isOffered)
{
    QSettings().setValue(kOfferKey, isOffered);
    configuration->refresh();
}

void WebSettingsPanel::makeCertificate()
{
    const WaitCursor cursor;
    const WebCertificate certificate;
    if (!certificate.isValid()) {
        show(Deed::CertificateFailed, certificate.error());
        return;
    }
    QHash<QString, QVariant> settings = configuration->save();
    settings.insert(QStringLiteral("Secure"), true);
    settings.insert(QStringLiteral("Certificate"), WebCertificate::file());
    configuration->load(settings);
    show(Deed::CertificateMade);
}

void WebSettingsPanel::show(Deed newDeed, const QString &newReason)
{
    deed = newDeed;
    reason = newReason;
    deedLabel->setText(deedText());
}

QString WebSettingsPanel::deedText() const
{
    switch (deed) {
    case Deed::None:
        break;
    case Deed::Saved:
        return tr("Saved in the settings of the gallery.");
    case Deed::Loaded:
        return tr("Loaded from the settings of the gallery.");
    case Deed::NothingToLoad:
        return tr("Nothing has been saved yet.");
    case Deed::ExampleFilledIn:
        return tr("The example is for the user \"%1\" with the password \"%2\".")
            .arg(kUser, kPassword);
    case Deed::CertificateMade:
        return tr("A certificate for localhost and 127.0.0.1 is in %1. A browser warns of it.")
            .arg(WebCertificate::file());
    case Deed::CertificateFailed:
        return tr("No certificate was made: %1").arg(shortText(reason));
    }
    return {};
}

void WebSettingsPanel::setUpLayout()
{
    deedLabel->setTextFormat(Qt::PlainText);
    deedLabel->setWordWrap(true);
    deedLabel->setForegroundRole(QPalette::PlaceholderText);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(exampleButton);
    buttons->addWidget(offerBox);
    buttons->addWidget(certificateButton);
    buttons->addStretch();
    buttons->addWidget(showButton);
    buttons->addWidget(saveButton);
    buttons->addWidget(loadButton);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(buttons);
    rows->addWidget(view);
    rows->addWidget(deedLabel);
}
