#pragma once

#include "TXGUICommonExport.h"

#include <QWidget>

#include <memory>

namespace Ui {
class TXCheckForUpdateConfigWidget;
}

/// A panel for an application's preferences: whether it looks for newer releases by itself, and a
/// button that looks for one at once.
///
/// Unlike the panels that give a host a settings dictionary, it keeps its two settings itself, in
/// the application's QSettings, where TXCheckForUpdateWidget reads them:
/// - "CheckForUpdatesAtStartup": bool. When missing the panel shows true, although the dialog takes
///   it as false: an application does not check at its start until the panel was saved once.
/// - "CheckForUpdatesAutoPeriod": int, days between automatic checks, none for less than 1; 7 when
///   missing.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXCheckForUpdateConfigWidget : public QWidget
{
    Q_OBJECT
    /// See hasBoldGroupBoxTitle() and setBoldGroupBoxTitle().
    Q_PROPERTY(bool boldGroupBoxTitle READ hasBoldGroupBoxTitle WRITE setBoldGroupBoxTitle)

public:
    /// A panel with neither box checked: load() shows the settings.
    explicit TXCheckForUpdateConfigWidget(QWidget *parent = nullptr);
    ~TXCheckForUpdateConfigWidget() override;

    /// Shows the settings. A value that is no number counts as no days.
    void load();

    /// Stores the settings: 7 days or none, so that another number of days becomes 7. The days
    /// count at once for TXCheckForUpdateWidget::instance(), where there is one; the check at
    /// startup from the next start on.
    void save();

    /// Whether the next show makes the title bold.
    [[nodiscard]] bool hasBoldGroupBoxTitle() const;
    /// Whether the title is bold, as it is at first.
    void setBoldGroupBoxTitle(bool isBold);

public slots:
    /// Hides TXCheckForUpdateWidget::instance(), where there is one, and runs a dialog of its own,
    /// with the global details, that checks at once. Returns when that is closed, or when the panel
    /// is destroyed meanwhile.
    void on_checkNowButton_clicked();

protected:
    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::TXCheckForUpdateConfigWidget> ui;
};
