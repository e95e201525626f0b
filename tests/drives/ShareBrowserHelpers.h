#pragma once

#include <QDialog>
#include <QListWidget>
#include <QProgressBar>
#include <QString>
#include <QUrl>

/// What the tests of the share browser, and of those who open one, share.
namespace ShareBrowserTest {

template<class Widget>
Widget *child(const QDialog &dialog, const char *name)
{
    return dialog.findChild<Widget *>(QString::fromLatin1(name));
}

inline QListWidget *listOf(const QDialog &browser)
{
    return child<QListWidget>(browser, "listWidget");
}

inline QProgressBar *barOf(const QDialog &browser)
{
    return child<QProgressBar>(browser, "progressDiscovery");
}

/// A search that finds nothing and ends at once.
inline QUrl nowhere()
{
    return {QStringLiteral("none:")};
}

} // namespace ShareBrowserTest
