#pragma once

#include "SessionPanel.h"

/// What happens between visitors and the web server: the requests that it gets, and how the visits
/// of the gallery itself ended.
class WebSessionPanel final : public SessionPanel
{
    Q_OBJECT

public:
    explicit WebSessionPanel(QWidget *parent = nullptr);

public slots:
    /// A visit has ended, as the line tells.
    void addVisit(const QString &line);

protected:
    void retranslate() override;
};
