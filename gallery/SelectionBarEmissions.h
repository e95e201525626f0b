#pragma once

#include "GalleryPanel.h"

#include <QVariant>

class EmissionList;
class QAction;
class TXSelectionItemWidget;

/// Lists the signals of a selection bar as they come, with what they carry.
class SelectionBarEmissions final : public GalleryPanel
{
    Q_OBJECT

public:
    /// Made before the host connects the bar, it lists a signal before what the host makes of it.
    explicit SelectionBarEmissions(const TXSelectionItemWidget *bar, QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void note();
    void noteEntry(QAction *entry);
    void noteName(const QString &name);
    void noteValue(const QVariant &value);

private:
    [[nodiscard]] QString nameOfSignal() const;

    EmissionList *emissions;
};
