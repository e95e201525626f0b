#include "TXPasswordLineEdit.h"

#include "StoredSecret.h"

namespace {

constexpr int kMaskLength = 25;
constexpr QChar kMaskCharacter = u'|';

} // namespace

TXPasswordLineEdit::TXPasswordLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setEchoMode(Password);
    connect(this, SIGNAL(textEdited(QString)), this, SLOT(treatTextEdited(QString)));
}

QString TXPasswordLineEdit::text() const
{
    if (encrypted.isEmpty()) {
        return QLineEdit::text();
    }
    return QString::fromUtf8(StoredSecret::decipher(encrypted));
}

void TXPasswordLineEdit::setText(const QString &text)
{
    if (text.isEmpty()) {
        return;
    }
    encrypted = StoredSecret::encipher(text.toUtf8());
    // Without a cipher the mask would itself be read as the value.
    QLineEdit::setText(encrypted.isEmpty() ? QString() : QString(kMaskLength, kMaskCharacter));
}

void TXPasswordLineEdit::treatTextEdited(const QString &newText)
{
    if (encrypted.isEmpty()) {
        return;
    }
    encrypted.clear();
    QString typed = newText;
    QLineEdit::setText(typed.remove(kMaskCharacter));
}

void TXPasswordLineEdit::clear()
{
    encrypted.clear();
    QLineEdit::clear();
}
