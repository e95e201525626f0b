#pragma once

#include "GalleryPanel.h"

#include <QHash>
#include <QVariant>

class DictionaryView;
class QCheckBox;
class QLabel;
class QTimer;
class TXTriggerEventWidget;

/// The library's panel for an event that comes back, and what a host does around it: it keeps the
/// settings, and works out from them when the event comes next.
class TriggerPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit TriggerPanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void save();
    void load();
    void showSettings();
    void showEvents();
    void renew();

private:
    [[nodiscard]] QString eventsText(const QList<QDateTime> &events) const;
    void setTexts();
    void nameEvent();
    void setUpLayout();

    // Made anew where it cannot be changed: it drops no period, and keeps its language.
    TXTriggerEventWidget *widget;
    QCheckBox *hoursBox;
    QPushButton *saveButton;
    QPushButton *loadButton;
    DictionaryView *view;
    QLabel *eventsLabel;
    // Runs until the next event.
    QTimer *timer;
    QHash<QString, QVariant> kept;
};
