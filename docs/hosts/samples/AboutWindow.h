#pragma once

#include <AboutAppWindow.h>

//! [about]
class AboutWindow : public AboutAppWindow
{
    Q_OBJECT

public:
    using AboutAppWindow::AboutAppWindow;

    QPixmap applicationLogo() const override;
    QString applicationName() const override { return "Patch Reader"; }
    QString applicationVersion() const override { return "2.1.0"; }
    QString applicationVersionDetail() const override { return {}; }
    QString applicationCopyrightStartYear() const override { return "2026"; }
    QString applicationWebSite() const override { return "https://patchreader.example"; }
    QString patentFileName() const override { return "Notices.html"; }
};
//! [about]
