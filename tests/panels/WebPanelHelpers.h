#pragma once

#include "StoredSecret.h"
#include "TXWebInterfaceConfigurationWidget.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextFragment>
#include <QVariant>
#include <QWidget>

/// What the tests of the web interface panel share.
namespace WebTest {

using Settings = QHash<QString, QVariant>;

template<class Child>
Child *child(const QWidget &parent, const char *name)
{
    return parent.findChild<Child *>(QString::fromLatin1(name));
}

inline QTextBrowser &addressView(const QWidget &panel)
{
    return *child<QTextBrowser>(panel, "hostTextEdit");
}

/// The lines as a user reads them.
inline QStringList shownLines(const QWidget &panel)
{
    return addressView(panel).toPlainText().split(u'\n', Qt::SkipEmptyParts);
}

/// All runs of text that are shown in one format, of which a link is one.
inline QList<QTextFragment> shownFragments(const QWidget &panel)
{
    QList<QTextFragment> fragments;
    const QTextDocument &document = *addressView(panel).document();
    for (QTextBlock block = document.begin(); block != document.end(); block = block.next()) {
        for (auto part = block.begin(); part != block.end(); ++part) {
            fragments.append(part.fragment());
        }
    }
    return fragments;
}

/// Where the links lead.
inline QStringList targets(const QWidget &panel)
{
    QStringList all;
    const auto fragments = shownFragments(panel);
    for (const QTextFragment &fragment : fragments) {
        if (fragment.charFormat().isAnchor()) {
            all.append(fragment.charFormat().anchorHref());
        }
    }
    return all;
}

/// The texts of the links.
inline QStringList linkTexts(const QWidget &panel)
{
    QStringList all;
    const auto fragments = shownFragments(panel);
    for (const QTextFragment &fragment : fragments) {
        if (fragment.charFormat().isAnchor()) {
            all.append(fragment.text());
        }
    }
    return all;
}

inline Settings userOf(const Settings &settings)
{
    return settings.value(QStringLiteral("Users")).toList().value(0).toHash();
}

/// The clear password in the settings.
inline QString passwordOf(const Settings &settings)
{
    const QString cipher = userOf(settings).value(QStringLiteral("Password")).toString();
    return QString::fromUtf8(StoredSecret::decipher(cipher));
}

/// The settings of a server that is switched on, as the panel itself would write them.
inline Settings fullSettings()
{
    const Settings user = {{QStringLiteral("Username"), QStringLiteral("mia")},
                           {QStringLiteral("Password"), StoredSecret::encipher("s3cret")}};
    return {{QStringLiteral("Enabled"), true},
            {QStringLiteral("Port"), 9123},
            {QStringLiteral("Path"), QStringLiteral("proofs")},
            {QStringLiteral("Secure"), true},
            {QStringLiteral("Certificate"), QStringLiteral("/etc/mill.pem")},
            {QStringLiteral("Users"), QVariantList(1, user)},
            {QStringLiteral("ExtendedOptions"), QStringLiteral("threads=2")}};
}

/// The settings with one of them replaced.
inline Settings with(const char *key, const QVariant &value)
{
    Settings settings = fullSettings();
    settings.insert(QString::fromLatin1(key), value);
    return settings;
}

} // namespace WebTest
