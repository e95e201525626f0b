#include "LockerDialogs.h"

#include <QCryptographicHash>
#include <QDialog>
#include <QLineEdit>

QString LockerDialogs::storedForm(const QString &password, bool useHash)
{
    if (!useHash) {
        return password;
    }
    const QByteArray digest = QCryptographicHash::hash(password.toUtf8(), QCryptographicHash::Md5);
    return QString::fromLatin1(digest.toHex());
}

bool LockerDialogs::isEnteredTwice(const QLineEdit &first, const QLineEdit &second)
{
    return !first.text().isEmpty() && first.text() == second.text();
}

void LockerDialogs::setUpWindow(QDialog &dialog)
{
    dialog.setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
}

void LockerDialogs::fixSize(QDialog &dialog)
{
    dialog.setFixedSize(dialog.minimumWidth(), dialog.sizeHint().height());
}
