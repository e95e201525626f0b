#include "TXDataCrypt.h"
#include "TXDataCryptKey.h"

#include <QByteArray>
#include <QString>

#include <iostream>
#include <string>

// Not a test of its own: the tests of the cipher run it as the other process.
//
// It answers each line of its standard input with one line. "key PATH" is answered with the key
// that the file gives, "encrypt TEXT" and "decrypt DATA" with what the cipher makes of it.

namespace {

QByteArray answer(const QByteArray &command, const QByteArray &argument)
{
    if (command == "key") {
        TXDataCryptKey key(QString::fromUtf8(argument));
        const unsigned char *bytes = key.bytes(nullptr);
        return bytes
            ? QByteArray(reinterpret_cast<const char *>(bytes), TXDataCryptKey::kBytes).toHex()
            : QByteArray("none");
    }
    return command == "encrypt" ? TXDataCrypt::encrypt(argument, nullptr)
                                : TXDataCrypt::decrypt(argument, nullptr);
}

} // namespace

int main()
{
    std::string line;
    while (std::getline(std::cin, line)) {
        const QByteArray text = QByteArray::fromStdString(line);
        const qsizetype blank = text.indexOf(' ');
        std::cout << answer(text.left(blank), text.mid(blank + 1)).toStdString() << std::endl;
    }
    return 0;
}
