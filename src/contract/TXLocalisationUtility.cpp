#include "TXLocalisationUtility.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

bool isPlainName(const QString &name)
{
    static const QRegularExpression unsafe(QStringLiteral(R"([/\\:\x{0}]|\.\.)"));
    return !name.isEmpty() && !name.contains(unsafe);
}

} // namespace

QString TXLocalisationUtility::getLocalisationFile(QString module, QString language)
{
    if (!QCoreApplication::instance() || !isPlainName(module) || !isPlainName(language)) {
        return {};
    }
    const QString folder = QDir::cleanPath(QCoreApplication::applicationDirPath()
                                           + QStringLiteral("/../Resources/translations"));
    for (; !language.isEmpty(); language.truncate(qMax(0, language.lastIndexOf(u'_')))) {
        QString path = folder + u'/' + module + u'_' + language + QStringLiteral(".qm");
        if (QFileInfo(path).isFile()) {
            return path;
        }
    }
    return {};
}
