#pragma once

#include "TXGUICommonExport.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

/// Who made a PDF and what it is called: facts that are appended to a PDF that Qt has written, as
/// Qt knows no author.
///
/// What is appended is an update in the sense of the PDF format: a new information dictionary, the
/// cross-reference that names it and a trailer that points back to the one before. Nothing that is
/// written already changes.
struct TXGUICOMMON_PRIVATE_EXPORT PdfDocumentInfo
{
    /// What the document is called.
    QString title;
    /// Who wrote it.
    QString author;
    /// The program that made the document.
    QString creator;
    /// When it was made. An invalid time is left out.
    QDateTime creationTime;

    /// Whether Qt's own dictionary does not do: there is an author, or a text with a byte in it
    /// that readers take for the end of a line, as Qt writes it.
    [[nodiscard]] bool needsUpdate() const;

    /// What is to be appended to a PDF of `size` bytes that ends with `tail`, its trailer at least.
    /// Empty when that is no trailer of a kind that is understood: a plain one, the only one in
    /// the document, with an information dictionary.
    [[nodiscard]] QByteArray update(const QByteArray &tail, qint64 size) const;

private:
    [[nodiscard]] QByteArray dictionary() const;
};
