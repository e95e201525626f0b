#include "ColourPresetCollection.h"

#include "RegularFile.h"
#include "ShortText.h"

#include "TXError.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace {

constexpr int kHexadecimal = 16;
/// Enough until the year 10889.
constexpr int kTimeDigits = 12;
constexpr int kNumberDigits = 8;

const QString kSuffix = QStringLiteral(".json");

TXStringI18n message(const char *text)
{
    return {"ColourPresetCollection", text, nullptr, -1};
}

/// Always false, for a caller to return.
bool fail(TXError *error, const TXStringI18n &summary, const TXStringI18n &reason)
{
    if (error) {
        *error = TXError();
        error->domain = QCoreApplication::translate("ColourPresetCollection", "Colour presets");
        error->setDescription(summary);
        TXError cause;
        cause.setDescription(reason);
        error->subErrors.append(cause);
    }
    return false;
}

TXStringI18n notSaved(const QString &name)
{
    return message(QT_TRANSLATE_NOOP("ColourPresetCollection", "\"%1\" cannot be saved."))
        .arg(name);
}

TXStringI18n isGone()
{
    return message(QT_TRANSLATE_NOOP("ColourPresetCollection", "There is no such preset."));
}

/// Returns the system's reason, or nothing when the file is written. What is still in the buffer at
/// commit() is written without a look at whether that succeeded, hence flush().
QString writeFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
        && file.flush() && file.commit();
    return isWritten ? QString() : file.errorString();
}

QString makeId(qint64 time, quint32 number)
{
    const QChar zero = u'0';
    return QStringLiteral("%1-%2%3")
        .arg(time, kTimeDigits, kHexadecimal, zero)
        .arg(number, kNumberDigits, kHexadecimal, zero)
        .arg(kSuffix);
}

ColourPreset firstPreset(const char *name, ColourPreset::Intent intent, const LabColour &paper,
                         int inkLimitPercent)
{
    ColourPreset preset;
    preset.name = QCoreApplication::translate("ColourPresetCollection", name);
    preset.intent = intent;
    preset.hasBlackPointCompensation = intent != ColourPreset::Intent::AbsoluteColorimetric;
    preset.paperWhite = paper;
    preset.inkLimitPercent = inkLimitPercent;
    return preset;
}

/// Papers and ink limits as offset presses and proofers have them.
QList<ColourPreset> firstPresets()
{
    using Intent = ColourPreset::Intent;
    return {firstPreset(QT_TRANSLATE_NOOP("ColourPresetCollection", "Coated paper"),
                        Intent::RelativeColorimetric, {95, 1.5, -6}, 300),
            firstPreset(QT_TRANSLATE_NOOP("ColourPresetCollection", "Newsprint"),
                        Intent::Perceptual, {82, 0, 3}, 240),
            firstPreset(QT_TRANSLATE_NOOP("ColourPresetCollection", "Contract proof"),
                        Intent::AbsoluteColorimetric, {95.5, 0.5, -2.5}, 400)};
}

} // namespace

QString ColourPresetCollection::usualFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
        + QStringLiteral("/ColourPresets");
}

ColourPresetCollection::ColourPresetCollection(const QString &folder, QObject *parent)
    : QObject(parent)
    , place(folder)
{ }

bool ColourPresetCollection::load(TXError *error)
{
    const bool isFirstStart = !QFileInfo::exists(place.path());
    emit aboutToLoad();
    readFiles();
    emit loaded();
    if (isFirstStart) {
        return makeFirstPresets(error);
    }
    const QFileInfo folderInfo(place.path());
    if (folderInfo.isDir() && folderInfo.isReadable()) {
        return true;
    }
    return fail(
        error, message(QT_TRANSLATE_NOOP("ColourPresetCollection", "No preset can be loaded.")),
        message(QT_TRANSLATE_NOOP("ColourPresetCollection", "The folder \"%1\" cannot be read."))
            .arg(QDir::toNativeSeparators(place.path())));
}

int ColourPresetCollection::rowOf(const QString &id) const
{
    const auto found = std::find_if(all.cbegin(), all.cend(),
                                    [&id](const ColourPreset &preset) { return preset.id == id; });
    return found == all.cend() ? -1 : int(found - all.cbegin());
}

const ColourPreset *ColourPresetCollection::find(const QString &id) const
{
    const int row = rowOf(id);
    return row < 0 ? nullptr : &all.at(row);
}

QString ColourPresetCollection::freeName(const QString &name) const
{
    QSet<QString> used;
    for (const ColourPreset &preset : all) {
        used.insert(preset.name.toCaseFolded());
    }
    QString candidate = name;
    for (int number = 2; used.contains(candidate.toCaseFolded()); ++number) {
        const QString ending = u' ' + QString::number(number);
        candidate = startOf(name, ColourPreset::kLongestName - ending.size()) + ending;
    }
    return candidate;
}

QString ColourPresetCollection::add(const ColourPreset &preset, TXError *error)
{
    const TXStringI18n problem = nameProblem(preset.name, {});
    if (!problem.isEmpty()) {
        fail(error, notSaved(preset.name), problem);
        return {};
    }
    ColourPreset newPreset = preset;
    newPreset.id = newId();
    return append(newPreset, error) ? newPreset.id : QString();
}

QString ColourPresetCollection::duplicate(const QString &id, TXError *error)
{
    const ColourPreset *original = find(id);
    if (!original) {
        fail(error,
             message(QT_TRANSLATE_NOOP("ColourPresetCollection", "Nothing can be duplicated.")),
             isGone());
        return {};
    }
    ColourPreset copy = *original;
    copy.name = freeName(copy.name);
    return add(copy, error);
}

QString ColourPresetCollection::importFile(const QString &path, TXError *error)
{
    ColourPresetReading reading = ColourPreset::fromFile(path);
    if (!reading.preset) {
        fail(error,
             message(QT_TRANSLATE_NOOP("ColourPresetCollection", "\"%1\" cannot be imported."))
                 .arg(QDir::toNativeSeparators(path)),
             reading.error);
        return {};
    }
    reading.preset->name = freeName(reading.preset->name);
    return add(*reading.preset, error);
}

bool ColourPresetCollection::replace(const ColourPreset &preset, TXError *error)
{
    const int row = rowOf(preset.id);
    if (row < 0) {
        return fail(error, notSaved(preset.name), isGone());
    }
    const bool isRenamed = preset.name != all.at(row).name;
    const TXStringI18n problem = isRenamed ? nameProblem(preset.name, preset.id) : TXStringI18n();
    if (!problem.isEmpty()) {
        return fail(error, notSaved(all.at(row).name), problem);
    }
    if (!isAsKnown(row, notSaved(preset.name), error) || !write(preset, error)) {
        return false;
    }
    all[row] = preset;
    emit changed(row);
    return true;
}

bool ColourPresetCollection::rename(const QString &id, const QString &name, TXError *error)
{
    const ColourPreset *present = find(id);
    ColourPreset renamed = present ? *present : ColourPreset();
    renamed.name = name;
    return replace(renamed, error);
}

bool ColourPresetCollection::exportFile(const QString &id, const QString &path,
                                        TXError *error) const
{
    const TXStringI18n summary =
        message(QT_TRANSLATE_NOOP("ColourPresetCollection", "\"%1\" cannot be written."))
            .arg(QDir::toNativeSeparators(path));
    const ColourPreset *preset = find(id);
    if (!preset) {
        return fail(error, summary, isGone());
    }
    if (isInFolder(path)) {
        return fail(error, summary,
                    message(QT_TRANSLATE_NOOP("ColourPresetCollection",
                                              "That is the folder of the presets themselves.")));
    }
    if (isNoRegularFile(path)) {
        return fail(error, summary,
                    message(QT_TRANSLATE_NOOP("ColourPresetCollection", "It is no file.")));
    }
    const QString reason = writeFile(path, preset->toJson());
    return reason.isEmpty() || fail(error, summary, TXStringI18n::fromString(reason));
}

bool ColourPresetCollection::remove(const QString &id, TXError *error)
{
    const int row = rowOf(id);
    if (row < 0) {
        return true;
    }
    const TXStringI18n summary =
        message(QT_TRANSLATE_NOOP("ColourPresetCollection", "\"%1\" cannot be deleted."))
            .arg(all.at(row).name);
    if (!isAsKnown(row, summary, error)) {
        return false;
    }
    QFile file(pathOf(id));
    if (file.exists() && !file.remove()) {
        return fail(error, summary, TXStringI18n::fromString(file.errorString()));
    }
    emit aboutToRemove(row);
    all.removeAt(row);
    emit removed();
    return true;
}

bool ColourPresetCollection::makeFirstPresets(TXError *error)
{
    QList<ColourPreset> presets = firstPresets();
    for (int i = 0; i < presets.size(); ++i) {
        // The same for every user.
        presets[i].id = makeId(0, quint32(i));
        if (!append(presets.at(i), error)) {
            // An empty folder would count as one that the user has emptied.
            place.rmdir(place.path());
            return false;
        }
    }
    return true;
}

bool ColourPresetCollection::append(const ColourPreset &preset, TXError *error)
{
    if (!write(preset, error)) {
        return false;
    }
    emit aboutToAdd(int(all.size()));
    all.append(preset);
    emit added();
    return true;
}

void ColourPresetCollection::readFiles()
{
    all.clear();
    damaged.clear();
    place.refresh();
    const QStringList names =
        place.entryList({u'*' + kSuffix}, QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
    for (const QString &name : names) {
        const ColourPresetReading reading = readFile(name);
        if (reading.preset) {
            all.append(*reading.preset);
        } else {
            damaged.append({name, reading.error});
        }
    }
}

ColourPresetReading ColourPresetCollection::readFile(const QString &fileName) const
{
    if (QFileInfo(place, fileName).isSymLink()) {
        // Saving would replace a file elsewhere.
        return {
            std::nullopt,
            message(QT_TRANSLATE_NOOP("ColourPresetCollection", "It is a link to another place."))};
    }
    ColourPresetReading reading = ColourPreset::fromFile(pathOf(fileName));
    if (reading.preset) {
        reading.preset->id = fileName;
    }
    return reading;
}

/// What others have done to the file is not lost without a word. Their settings are known from then
/// on, so that a second attempt gets through.
bool ColourPresetCollection::isAsKnown(int row, const TXStringI18n &summary, TXError *error)
{
    const QFileInfo file(place, all.at(row).id);
    if (!file.exists() && !file.isSymLink()) {
        return true;
    }
    const ColourPresetReading reading = readFile(file.fileName());
    if (!reading.preset) {
        return fail(error, summary, reading.error);
    }
    // Compared as text, whatever becomes of the last digits of a number on its way there and back.
    if (reading.preset->toJson() == all.at(row).toJson()) {
        return true;
    }
    all[row] = *reading.preset;
    emit changed(row);
    return fail(error, summary,
                message(QT_TRANSLATE_NOOP("ColourPresetCollection",
                                          "Another program has changed it in the meantime. Try "
                                          "again if that is to be lost.")));
}

/// Begins with the time, so that the files are in the order in which they were made, also within a
/// millisecond. What another gallery makes at the same time differs behind it.
QString ColourPresetCollection::newId() const
{
    qint64 time = QDateTime::currentMSecsSinceEpoch();
    if (!all.isEmpty()) {
        const qint64 latest =
            all.constLast().id.left(kTimeDigits).toLongLong(nullptr, kHexadecimal);
        time = std::max(time, latest + 1);
    }
    return makeId(time, QRandomGenerator::global()->generate());
}

QString ColourPresetCollection::pathOf(const QString &id) const
{
    return place.filePath(id);
}

bool ColourPresetCollection::isInFolder(const QString &path) const
{
    const QFileInfo file(path);
    const QFileInfo target(file.isSymLink() ? file.symLinkTarget() : path);
    const QString folderOfTarget = target.absoluteDir().canonicalPath();
    return !folderOfTarget.isEmpty() && folderOfTarget == place.canonicalPath();
}

TXStringI18n ColourPresetCollection::nameProblem(const QString &name, const QString &ownId) const
{
    const TXStringI18n problem = ColourPreset::nameProblem(name);
    if (!problem.isEmpty()) {
        return problem;
    }
    const QString folded = name.toCaseFolded();
    const bool isUsed = std::any_of(all.cbegin(), all.cend(), [&](const ColourPreset &preset) {
        return preset.id != ownId && preset.name.toCaseFolded() == folded;
    });
    return isUsed
        ? message(QT_TRANSLATE_NOOP("ColourPresetCollection", "Another preset is called \"%1\"."))
              .arg(name)
        : TXStringI18n();
}

bool ColourPresetCollection::write(const ColourPreset &preset, TXError *error) const
{
    if (!place.mkpath(QStringLiteral("."))) {
        return fail(error, notSaved(preset.name),
                    message(QT_TRANSLATE_NOOP("ColourPresetCollection",
                                              "The folder \"%1\" cannot be made."))
                        .arg(QDir::toNativeSeparators(place.path())));
    }
    const QString reason = writeFile(pathOf(preset.id), preset.toJson());
    return reason.isEmpty() || fail(error, notSaved(preset.name), TXStringI18n::fromString(reason));
}
