#include "TranslationFile.h"

#include <QBitArray>
#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr qsizetype kMarkBytes = 16;
constexpr qsizetype kSectionHeadBytes = 5;
constexpr qsizetype kHashBytes = 8;
constexpr qsizetype kLengthBytes = 4;
/// The smallest there is.
constexpr qsizetype kPageBytes = 4096;
constexpr int kMostFiles = 100;

enum SectionTag { Contexts = 0x2f, Hashes = 0x42, Messages = 0x69, Dependencies = 0x96 };
enum MessageTag { Translation = 3, Obsolete = 5, SourceText = 6, Context = 7, Comment = 8 };

struct Sections
{
    QByteArrayView contexts;
    /// From the first context to the end of the file.
    QByteArrayView fromContexts;
    QByteArrayView hashes;
    QByteArrayView messages;
    QByteArrayView dependencies;
};

quint32 number32(QByteArrayView bytes, qsizetype at)
{
    return qFromBigEndian<quint32>(bytes.data() + at);
}

quint16 number16(QByteArrayView bytes, qsizetype at)
{
    return qFromBigEndian<quint16>(bytes.data() + at);
}

Sections readSections(QByteArrayView bytes)
{
    Sections sections;
    qsizetype at = kMarkBytes;
    while (bytes.size() - at > kSectionHeadBytes) {
        const int tag = uchar(bytes[at]);
        const qsizetype size = number32(bytes, at + 1);
        at += kSectionHeadBytes;
        // Here Qt stops too.
        if (tag == 0 || size == 0 || size > bytes.size() - at) {
            break;
        }
        const QByteArrayView section = bytes.sliced(at, size);
        if (tag == Contexts) {
            sections.contexts = section;
            sections.fromContexts = bytes.sliced(at);
        } else if (tag == Hashes) {
            sections.hashes = section;
        } else if (tag == Messages) {
            sections.messages = section;
        } else if (tag == Dependencies) {
            sections.dependencies = section;
        }
        at += size;
    }
    return sections;
}

bool hasText(int tag)
{
    return tag == Translation || tag == SourceText || tag == Context || tag == Comment;
}

/// Goes from tag to tag as Qt does, until one ends the message. Places seen before are not gone
/// through again, since any number of messages may lead there.
bool isMessageHarmless(QByteArrayView messages, qsizetype at, QBitArray *seen)
{
    while (at < messages.size() && !seen->testBit(at)) {
        seen->setBit(at);
        const int tag = uchar(messages[at++]);
        if (tag == Obsolete) {
            at += kLengthBytes;
            continue;
        }
        if (!hasText(tag)) {
            return true;
        }
        if (messages.size() - at < kLengthBytes) {
            return false;
        }
        const quint32 size = number32(messages, at);
        // Half a character: Qt takes it for no translation, and so it is written.
        if (tag == Translation && size % 2 != 0) {
            return true;
        }
        at += kLengthBytes;
        // Something has to follow; Qt looks at the first byte even of an empty comment.
        if (size >= messages.size() - at) {
            return false;
        }
        at += size;
    }
    return true;
}

bool areMessagesHarmless(QByteArrayView hashes, QByteArrayView messages)
{
    QBitArray seen(messages.size());
    for (qsizetype at = 0; at < hashes.size(); at += kHashBytes) {
        if (hashes.size() - at < kHashBytes
            || !isMessageHarmless(messages, number32(hashes, at + kLengthBytes), &seen)) {
            return false;
        }
    }
    return true;
}

/// Goes through names, each behind its length, up to an empty one. Qt's own tool leaves that out
/// behind every other list. Then Qt goes on through the next list, and behind the last one through
/// whatever there is, up to the first zero.
bool isListOfContextsHarmless(QByteArrayView bytes, qsizetype at, qsizetype readableEnd,
                              QBitArray *seen)
{
    while (at < bytes.size() && !seen->testBit(at)) {
        seen->setBit(at);
        const int size = uchar(bytes[at]);
        if (size == 0) {
            return true;
        }
        at += 1 + size;
    }
    return at < readableEnd;
}

bool areContextsHarmless(const Sections &sections, qsizetype zeroesBehindTheFile)
{
    constexpr qsizetype kNumberBytes = 2;
    const QByteArrayView contexts = sections.contexts;
    const QByteArrayView bytes = sections.fromContexts;
    if (contexts.isEmpty()) {
        return true;
    }
    // Qt divides by the size of the table.
    const qsizetype count = contexts.size() < kNumberBytes ? 0 : number16(contexts, 0);
    const qsizetype tableEnd = kNumberBytes * (1 + count);
    if (count == 0 || tableEnd > contexts.size()) {
        return false;
    }
    QBitArray seen(bytes.size());
    for (qsizetype at = kNumberBytes; at < tableEnd; at += kNumberBytes) {
        const qsizetype list = number16(contexts, at);
        if (list != 0
            && !isListOfContextsHarmless(bytes, tableEnd + kNumberBytes * list,
                                         bytes.size() + zeroesBehindTheFile, &seen)) {
            return false;
        }
    }
    return true;
}

bool areTextsHarmless(const Sections &sections, qsizetype fileBytes)
{
    const qsizetype zeroesBehindTheFile = (kPageBytes - fileBytes % kPageBytes) % kPageBytes;
    return areContextsHarmless(sections, zeroesBehindTheFile)
        && areMessagesHarmless(sections.hashes, sections.messages);
}

QStringList readDependencies(QByteArrayView section)
{
    QStringList names;
    QDataStream stream(QByteArray::fromRawData(section.data(), section.size()));
    while (!stream.atEnd() && names.size() <= kMostFiles) {
        QString name;
        stream >> name;
        names.append(name);
    }
    return names;
}

/// The file that Qt takes for this name: with ".qm" or without, and with ever less behind the last
/// "_" and "."; empty when there is none.
QString pathFor(const QString &name, const QString &folder)
{
    // Qt warns of a name with a NUL.
    if (name.contains(QChar::Null)) {
        return {};
    }
    const QString prefix = QFileInfo(name).isRelative() ? folder + u'/' : QString();
    for (QString rest = name;;) {
        const QString path = prefix + rest;
        for (const QString &candidate : {path + QStringLiteral(".qm"), path}) {
            const QFileInfo info(candidate);
            if (info.isFile() && info.isReadable()) {
                return candidate;
            }
        }
        const qsizetype size = qMax(rest.lastIndexOf(u'_'), rest.lastIndexOf(u'.'));
        if (size <= 0) {
            return {};
        }
        rest.truncate(size);
    }
}

// Counts each file as often as it is named, as Qt loads it as often.
bool isFileHarmless(const QString &name, const QString &folder, int *filesLeft)
{
    QFile file(pathFor(name, folder));
    if (--*filesLeft < 0 || file.fileName().isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const uchar *bytes = file.map(0, file.size());
    const Sections sections = readSections(QByteArrayView(bytes, bytes ? file.size() : 0));
    const QStringList dependencies = readDependencies(sections.dependencies);
    return areTextsHarmless(sections, file.size())
        && std::all_of(dependencies.begin(), dependencies.end(), [&](const QString &dependency) {
               return isFileHarmless(dependency, folder, filesLeft);
           });
}

} // namespace

bool TranslationFile::isHarmless(const QString &name, const QString &folder)
{
    int filesLeft = kMostFiles;
    return isFileHarmless(name, folder, &filesLeft);
}

bool TranslationFile::areHarmless(QByteArrayView bytes)
{
    return areTextsHarmless(readSections(bytes), bytes.size());
}
