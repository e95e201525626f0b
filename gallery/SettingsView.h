#pragma once

#include <QHash>
#include <QTreeWidget>

/// A settings dictionary as a list of key, value and type, in the order of the keys. What differs
/// from the settings that are kept is set in bold.
class SettingsView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SettingsView(QWidget *parent = nullptr);

    /// Shows these settings.
    void showSettings(const QHash<QString, QVariant> &settings,
                      const QHash<QString, QVariant> &kept);

    QSize sizeHint() const override;

    /// Sets the texts again.
    void retranslate();

private:
    [[nodiscard]] int rowHeight() const;
};
