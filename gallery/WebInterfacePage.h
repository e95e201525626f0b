#pragma once

#include "GalleryPage.h"

class QGroupBox;
class TXWebInterfaceConfigurationWidget;
class WebServerPanel;
class WebSessionPanel;
class WebSettingsPanel;
class WebVisit;

/// The library's panel for a web interface beside a real web server on this computer, which serves
/// a page with what runs here.
class WebInterfacePage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit WebInterfacePage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    void fillForPicture() override;
    [[nodiscard]] bool isReady() const override { return !isFilling; }

protected:
    void changeEvent(QEvent *event) override;
    void retranslate() override;

private slots:
    void visit();
    void visitEnded(const QString &line);

private:
    void setUpLayout();

    QGroupBox *configurationBox;
    TXWebInterfaceConfigurationWidget *configuration;
    WebServerPanel *serverPanel;
    WebSessionPanel *sessionPanel;
    WebSettingsPanel *settingsPanel;
    WebVisit *visitor;
    bool isFilling = false;
};
