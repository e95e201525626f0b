#pragma once

#include "TXGUICommonExport.h"

#include <QByteArrayView>
#include <QString>

/// Looks into translation files before they are used.
///
/// Qt checks the sections of a ".qm" file, and trusts what stands in them: a length or a place in a
/// damaged file leads it out of the file, at the first text that is looked up, and the program
/// ends. It also follows a file that names itself as its own dependency, until the stack is full.
class TXGUICOMMON_PRIVATE_EXPORT TranslationFile
{
public:
    TranslationFile() = delete;

    /// True when neither loading the file nor a text that is looked up in it leads Qt astray. Looks
    /// at the file that QTranslator::load() finds by this name in the folder, and at those that it
    /// needs as its dependencies, up to 100 in all. False when one of them is not there or cannot
    /// be read. What is no translation at all counts as harmless, since Qt does not load it.
    [[nodiscard]] static bool isHarmless(const QString &name, const QString &folder);

    /// The same for the contents of a file without its dependencies. Looks at each byte once at
    /// most. Takes the file for one that is mapped into memory: with zeroes behind its end, up to
    /// the end of the page.
    [[nodiscard]] static bool areHarmless(QByteArrayView bytes);
};
