#include "WebSessionPanel.h"

WebSessionPanel::WebSessionPanel(QWidget *parent)
    : SessionPanel(parent)
{
    retranslate();
}

void WebSessionPanel::addVisit(const QString &line)
{
    addEmission(line);
}

void WebSessionPanel::retranslate()
{
    SessionPanel::retranslate();
    setLabels(tr("What the server &got:"), tr("&Own visits:"));
}
