#include "WebCertificate.h"

#include "LocalCertificate.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

WebCertificate::WebCertificate()
{
    const LocalCertificate made;
    reason = made.isValid() ? write(contentOf(made.certificateFile()) + contentOf(made.keyFile()))
                            : made.error();
}

QString WebCertificate::file()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
        + QStringLiteral("/WebInterface/localhost.pem");
}

QString WebCertificate::write(const QByteArray &content) const
{
    const QString folder = QFileInfo(file()).path();
    if (!QDir().mkpath(folder)) {
        return tr("the folder %1 cannot be made").arg(folder);
    }
    // A new file: one that is there may be open to others, or lead elsewhere.
    QFile::remove(file());
    QFile target(file());
    if (!target.open(QFile::WriteOnly | QFile::NewOnly, QFile::ReadOwner | QFile::WriteOwner)
        || target.write(content) != content.size() || !target.flush()) {
        return target.errorString();
    }
    return {};
}
