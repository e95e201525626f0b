#include "TXDatabaseConfigurationWidget.h"

#include "DatabaseConnectOptions.h"
#include "StoredSecret.h"
#include "TXResources.h"
#include "WholeNumber.h"
#include "ui_TXDatabaseConfigurationWidget.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QSqlDatabase>
#include <QUuid>
#include <QVBoxLayout>

#include <utility>

namespace {

const QLatin1String kDriverKey("Driver");
const QLatin1String kConnectionKey("Connection");
const QLatin1String kParametersKey("Parameters");

const QLatin1String kHostKey("Host");
const QLatin1String kPortKey("Port");
const QLatin1String kUserKey("User");
const QLatin1String kPasswordKey("Password");
const QLatin1String kOptionsKey("Options");

const QLatin1String kInternalDriver("QSQLITE");
const QLatin1String kServerDriver("QMYSQL");

QString clearPassword(const QHash<QString, QVariant> &parameters)
{
    return QString::fromUtf8(StoredSecret::decipher(parameters.value(kPasswordKey).toString()));
}

/// A number beyond int would lose its upper half, and might look like a port then.
int portIn(const QHash<QString, QVariant> &parameters)
{
    return WholeNumber::rounded(parameters.value(kPortKey).toDouble());
}

/// Shows a wait cursor as long as it lives, over whatever cursor the host has set.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(WaitCursor)
};

bool canOpen(QSqlDatabase database, const QHash<QString, QVariant> &settings)
{
    const QHash<QString, QVariant> parameters = settings.value(kParametersKey).toHash();
    database.setDatabaseName(settings.value(kConnectionKey).toString());
    database.setHostName(parameters.value(kHostKey).toString());
    database.setUserName(parameters.value(kUserKey).toString());
    database.setPassword(clearPassword(parameters));
    database.setPort(parameters.value(kPortKey).toInt());
    database.setConnectOptions(DatabaseConnectOptions::forTest(
        database.driverName(), parameters.value(kOptionsKey).toString()));
    const bool isOpen = database.open();
    if (isOpen) {
        database.close();
    }
    return isOpen;
}

} // namespace

TXDatabaseConfigurationWidget::TXDatabaseConfigurationWidget(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::TXDatabaseConfigurationWidget>())
{
    ui->setupUi(this);
    refresh();
}

TXDatabaseConfigurationWidget::~TXDatabaseConfigurationWidget() = default;

// By value: hosts are built against this signature.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
bool TXDatabaseConfigurationWidget::load(QHash<QString, QVariant> settings)
{
    const QString driver = settings.value(kDriverKey).toString();
    const bool isServer = driver == kServerDriver;
    (isServer ? ui->mysqlDBRadio : ui->internalDBRadio)->setChecked(true);
    if (isServer) {
        showServer(settings.value(kConnectionKey).toString(),
                   settings.value(kParametersKey).toHash());
    }
    refresh();
    return isServer || driver == kInternalDriver;
}

QHash<QString, QVariant> TXDatabaseConfigurationWidget::settings() const
{
    const bool isServer = !ui->internalDBRadio->isChecked();
    QHash<QString, QVariant> parameters;
    if (isServer) {
        parameters.insert(kHostKey, ui->hostEdit->text());
        parameters.insert(kPortKey, ui->portEdit->value());
        parameters.insert(kUserKey, ui->userEdit->text());
        parameters.insert(kPasswordKey, StoredSecret::encipher(ui->passwordEdit->text().toUtf8()));
        parameters.insert(kOptionsKey, ui->optionsEdit->text());
    }
    return {{kDriverKey, QString(isServer ? kServerDriver : kInternalDriver)},
            {kConnectionKey, isServer ? ui->databaseNameEdit->text() : QString()},
            {kParametersKey, parameters}};
}

QHash<QString, QVariant> TXDatabaseConfigurationWidget::save() const
{
    return isValid() ? settings() : QHash<QString, QVariant>();
}

bool TXDatabaseConfigurationWidget::isValid() const
{
    if (ui->internalDBRadio->isChecked()) {
        return true;
    }
    const WaitCursor cursor;
    const QHash<QString, QVariant> tried = settings();
    QString name = QUuid::createUuid().toString();
    bool isOpen = false;
    {
        const QSqlDatabase database =
            QSqlDatabase::addDatabase(tried.value(kDriverKey).toString(), name);
        name = database.connectionName();
        isOpen = canOpen(database, tried);
    }
    // A connection can be removed once no object uses it any more.
    QSqlDatabase::removeDatabase(name);
    return isOpen;
}

void TXDatabaseConfigurationWidget::refresh()
{
    ui->mysqlWidget->setEnabled(ui->mysqlDBRadio->isChecked());
}

QHash<QString, QVariant> TXDatabaseConfigurationWidget::ask(const QString &title,
                                                            QHash<QString, QVariant> settings)
{
    QDialog dialog;
    dialog.setWindowTitle(title);
    auto *layout = new QVBoxLayout(&dialog);
    auto *panel = new TXDatabaseConfigurationWidget(&dialog);
    panel->load(std::move(settings));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    connect(buttons, SIGNAL(accepted()), &dialog, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), &dialog, SLOT(reject()));
    layout->addWidget(panel);
    layout->addWidget(buttons);
    if (dialog.exec() != QDialog::Accepted || !panel->isValid()) {
        return {};
    }
    return panel->settings();
}

void TXDatabaseConfigurationWidget::on_internalDBRadio_clicked()
{
    refresh();
}

void TXDatabaseConfigurationWidget::on_mysqlDBRadio_clicked()
{
    refresh();
}

void TXDatabaseConfigurationWidget::on_testButton_clicked()
{
    const bool isGood = isValid();
    ui->validLabel->setPixmap(isGood ? TXDisplayFixBulletStaticImage()
                                     : TXDisplayErrorBulletStaticImage());
    ui->validLabel->setAccessibleName(isGood ? tr("Connection succeeded")
                                             : tr("Connection failed"));
}

void TXDatabaseConfigurationWidget::showServer(const QString &database,
                                               const QHash<QString, QVariant> &parameters)
{
    ui->hostEdit->setText(parameters.value(kHostKey).toString());
    ui->portEdit->setValue(portIn(parameters));
    ui->userEdit->setText(parameters.value(kUserKey).toString());
    // The field ignores an empty text, and the password of another account must not stay.
    ui->passwordEdit->clear();
    ui->passwordEdit->setText(clearPassword(parameters));
    ui->optionsEdit->setText(parameters.value(kOptionsKey).toString());
    ui->databaseNameEdit->setText(database);
}
