#pragma once

#include <QCoreApplication>
#include <QString>

struct WebSettings;

/// The page that the gallery serves: what runs here, how it is served, the pages of the gallery,
/// and the colours of the chart with their differences.
class WebStatusPage
{
    Q_DECLARE_TR_FUNCTIONS(WebStatusPage)

public:
    WebStatusPage() = delete;

    /// As HTML in the language of the moment, without the password and without a script. Nothing
    /// of the settings is read as markup.
    [[nodiscard]] static QString html(const WebSettings &settings);
};
