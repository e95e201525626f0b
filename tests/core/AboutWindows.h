#pragma once

#include "AboutAppWindow.h"

#include <QPixmap>
#include <QString>

/// An application's About window with texts that a test can change.
class TestAboutWindow : public AboutAppWindow
{
public:
    using AboutAppWindow::AboutAppWindow;

    QPixmap applicationLogo() const override { return logo; }
    QString applicationName() const override
    {
        ++calls;
        return name;
    }
    QString applicationVersion() const override { return version; }
    QString applicationVersionDetail() const override { return detail; }
    QString applicationCopyrightStartYear() const override { return startYear; }
    QString patentFileName() const override { return notices; }

    QPixmap logo;
    QString name = QStringLiteral("Colour Tool");
    QString version = QStringLiteral("2.1.0");
    QString detail;
    QString startYear = QStringLiteral("2019");
    QString notices;
    /// How often the window asked.
    mutable int calls = 0;
};
