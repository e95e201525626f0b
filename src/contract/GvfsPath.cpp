#include "GvfsPath.h"

#include "ProgramRun.h"

#include <QFile>
#include <QRegularExpression>

std::optional<GvfsPath> GvfsPath::of(const QString &path)
{
    const QRegularExpression shape(QStringLiteral("^(.*?/\\.?gvfs)/(smb-share:[^/]+)"));
    const QRegularExpressionMatch match = shape.match(path);
    if (!match.hasMatch()) {
        return {};
    }
    return GvfsPath{match.captured(1), match.captured(2)};
}

QStringList GvfsPath::listArguments() const
{
    // A name a line, unsorted, as it is, whatever the environment says of quoting.
    return {QStringLiteral("-1UN"), QStringLiteral("--"), folder};
}

GvfsPath::Standing GvfsPath::standing(const ProgramResult &listed) const
{
    if (listed.end != ProgramResult::End::Finished) {
        return Standing::Unknown;
    }
    // As bytes: other names may be in no encoding at all.
    const QByteArray name = '\n' + QFile::encodeName(share) + '\n';
    return ('\n' + listed.output).contains(name) ? Standing::Connected : Standing::Gone;
}
