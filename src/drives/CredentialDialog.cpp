#include "CredentialDialog.h"

#include "OwnTitle.h"
#include "ui_CredentialDialog.h"

#include <QEvent>
#include <QLayout>

#include <utility>

CredentialDialog::CredentialDialog(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::CredentialDialog>())
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    ui->setupUi(this);
    OwnTitle::remember(*this);
    designedSize = size();
    setRemember(nullptr);
    connect(
        ui->buttonBox, &QDialogButtonBox::accepted, this, [this] { callBack(); },
        Qt::DirectConnection);
}

CredentialDialog::~CredentialDialog() = default;

void CredentialDialog::setLabel(QString text)
{
    ui->serverName->setText(text);
    // The layout makes it larger again as far as that name needs it.
    layout()->activate();
    resize(designedSize);
}

void CredentialDialog::setRemember(std::function<void(const QString &, const QString &)> callback)
{
    rememberCallback = std::move(callback);
    ui->rememberCheckBox->setVisible(static_cast<bool>(rememberCallback));
}

QString CredentialDialog::userName() const
{
    return ui->userEdit->text();
}

QString CredentialDialog::password() const
{
    return ui->passwordEdit->text();
}

bool CredentialDialog::remember() const
{
    return ui->rememberCheckBox->isChecked();
}

void CredentialDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        OwnTitle::retranslate(*ui, *this);
    }
}

void CredentialDialog::callBack() const
{
    // A copy, since the callback may set another one or delete the dialog.
    const std::function<void(const QString &, const QString &)> callback = rememberCallback;
    if (!callback || userName().isEmpty() || password().isEmpty()) {
        return;
    }
    callback(userName(), password());
}
