#pragma once

#include "TXGUICommonExport.h"

#include <QByteArray>
#include <QIODevice>
#include <QSaveFile>

/// The file that a PDF is written to: it appears, or replaces an earlier one, only when it is
/// committed, and it remembers its last bytes for whoever appends to the PDF.
class TXGUICOMMON_PRIVATE_EXPORT ReportPdfFile : public QIODevice
{
    Q_OBJECT

public:
    /// How many of the last bytes are there to read at least, once so many are written.
    static constexpr qsizetype kTailBytes = 1024;

    /// Nothing is opened yet.
    explicit ReportPdfFile(const QString &fileName);

    /// Opens the file for writing, in whatever mode is asked for. Fails where a file of this name
    /// can't be replaced by a finished one, as with devices and pipes.
    bool open(OpenMode mode) override;
    /// True: a PDF is written from its start to its end.
    [[nodiscard]] bool isSequential() const override { return true; }

    /// Whether anything could not be written. All that comes after is thrown away.
    [[nodiscard]] bool hasFailed() const;
    /// Why, in the words of the system.
    [[nodiscard]] QString reason() const;
    /// Gives the file up for a reason of the caller's.
    void fail(const QString &reason);

    /// How many bytes are written.
    [[nodiscard]] qint64 writtenBytes() const { return written; }
    /// The last of them.
    [[nodiscard]] QByteArray tail() const { return lastBytes.right(kTailBytes); }

    /// Puts the file to its place; false when that, or any writing before, has failed.
    [[nodiscard]] bool commit();

protected:
    qint64 readData(char *data, qint64 maximum) override;
    qint64 writeData(const char *data, qint64 length) override;

private:
    [[nodiscard]] QString refusal() const;
    [[nodiscard]] bool flushWaiting();

    QSaveFile file;
    QString failure;
    QByteArray waiting;
    QByteArray lastBytes;
    qint64 written = 0;
};
