#pragma once

#include <QHash>
#include <QString>
#include <QTreeWidget>
#include <QVariant>

#include <optional>

/// Shows a settings dictionary as a host would store it: key, type and value, sorted by key. Values
/// read as in a file of settings, the parts of a list of texts with commas between them.
///
/// Its accessible name is "Settings" in the user's language, until its owner gives it another one,
/// which is the owner's to translate.
class DictionaryView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit DictionaryView(QWidget *parent = nullptr);

    /// Whether the column of types is there; true at first.
    void setTypesShown(bool isShown);

    /// Replaces what is shown, and makes the view at least high enough for it. When the settings
    /// that are kept are given, the entries that differ from them, or are not among them, are set
    /// in bold.
    void setDictionary(const QHash<QString, QVariant> &dictionary,
                       const std::optional<QHash<QString, QVariant>> &kept = std::nullopt);

protected:
    void changeEvent(QEvent *event) override;

private:
    void addEntry(const QString &key, const QVariant &value, bool isBold);
    void retranslate();
    void fitHeight();

    // As it was set here, not by the owner.
    QString standardName;
};
