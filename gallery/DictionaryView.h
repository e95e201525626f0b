#pragma once

#include <QHash>
#include <QString>
#include <QTreeWidget>
#include <QVariant>

/// Shows a settings dictionary as a host would store it: key, type and value, sorted by key.
class DictionaryView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit DictionaryView(QWidget *parent = nullptr);

    /// Whether the column of types is there; true at first.
    void setTypesShown(bool isShown);

    /// Replaces what is shown, and makes the view at least high enough for it.
    void setDictionary(const QHash<QString, QVariant> &dictionary);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void fitHeight();
};
