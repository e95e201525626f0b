#pragma once

#include "DialogDriver.h"
#include "PageChecks.h"
#include "TestBase.h"
#include "WebClient.h"
#include "WebInterfacePage.h"
#include "WebServerPanel.h"

#include "TXDataCrypt.h"
#include "TXWebInterfaceConfigurationWidget.h"

#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTextBrowser>
#include <QTextCursor>

#include <memory>

/// Base of the tests of the page for the web interface: the page, shown, with nothing running.
class WebPageTest : public TestBase
{
protected:
    static constexpr int kPatienceMilliseconds = 20000;

    void prepare() override { makePage(); }
    void finish() override { page.reset(); }

    void makePage()
    {
        page = std::make_unique<WebInterfacePage>();
        server = page->findChild<WebServerPanel *>();
        configuration = page->findChild<TXWebInterfaceConfigurationWidget *>();
        page->resize(860, 1000);
        page->show();
    }

    /// Settings for a port that is free, for everybody.
    [[nodiscard]] static QHash<QString, QVariant> openSettings(const QString &path = {})
    {
        return {{"Enabled", true}, {"Port", int(freePort())}, {"Path", path}};
    }

    /// Settings as they are, for the user "mia" with this password.
    [[nodiscard]] static QHash<QString, QVariant> withUser(QHash<QString, QVariant> settings,
                                                           const QString &password)
    {
        const QByteArray cipher = TXDataCrypt::encrypt(password.toUtf8(), nullptr);
        const QHash<QString, QVariant> user = {{"Username", "mia"},
                                               {"Password", QString::fromLatin1(cipher)}};
        settings.insert("Users", QVariantList(1, user));
        return settings;
    }

    /// Starts the server with these settings. Another program may take the port just before.
    [[nodiscard]] bool startWith(QHash<QString, QVariant> settings)
    {
        constexpr int kMostTries = 10;
        for (int i = 0; i < kMostTries && !server->isRunning(); ++i) {
            configuration->load(settings);
            server->setRunning(true);
            settings.insert("Port", int(freePort()));
        }
        return server->isRunning();
    }

    /// The link of the panel that leads to this computer itself.
    [[nodiscard]] QUrl link() const
    {
        const auto *list = configuration->findChild<QTextBrowser *>("hostTextEdit");
        const QTextCursor found = list->document()->find(QStringLiteral("//127.0.0.1"));
        return {found.charFormat().anchorHref(), QUrl::StrictMode};
    }

    [[nodiscard]] QString lines(int list) const
    {
        return page->findChildren<QPlainTextEdit *>().at(list)->toPlainText();
    }

    void press(const char *button) const { DialogDriver::click(buttonOf(*page, button)); }

    std::unique_ptr<WebInterfacePage> page;
    WebServerPanel *server = nullptr;
    TXWebInterfaceConfigurationWidget *configuration = nullptr;
};
