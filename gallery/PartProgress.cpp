#include "PartProgress.h"

#include "ObservedProgress.h"

#include "TXStringI18n.h"

#include <QCoreApplication>

namespace {

constexpr float kWholePercent = 100.0F;

} // namespace

PartProgress::PartProgress(ObservedProgress *whole, int part, int parts)
    : whole(whole)
    , part(part)
    , parts(parts)
{ }

void PartProgress::onProgressionUpdated(QList<QString> path, float progress)
{
    if (whole) {
        // Exactly 100 for the end of the last part: the quotient is 1 then.
        const float done = (float(part) + progress / kWholePercent) / float(parts);
        whole->onProgressionUpdated(path, done * kWholePercent);
    }
    QCoreApplication::processEvents();
}

void PartProgress::onMessageUpdated(QList<QString> path, const TXStringI18n &message)
{
    if (whole) {
        const TXStringI18n text(
            "PartProgress", QT_TRANSLATE_NOOP("PartProgress", "Report %1 of %2: %3"), nullptr, -1);
        whole->onMessageUpdated(path,
                                text.arg(QString::number(part + 1))
                                    .arg(QString::number(parts))
                                    .arg(message.toString()));
    }
}

// What fails is told by the result of the work.
void PartProgress::onLogAppended(QList<QString> /*path*/, const TXError & /*error*/) { }

void PartProgress::onMetadataEdited(QList<QString> /*path*/, QString /*key*/, QVariant /*value*/) {
}
