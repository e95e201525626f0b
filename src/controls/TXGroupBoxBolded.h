#pragma once

#include "TXGUICommonExport.h"

#include <QGroupBox>
#include <QHash>

/// A group box with a bold title, whose children keep the weight that they had.
///
/// A widget takes the font of its parent, so that a bold group box alone would make everything in
/// it bold. This one notes at its first show which of its direct children are bold, and sets the
/// weight of each at every show: 700 for those, 400 for all others. A child that comes later counts
/// as not bold and gets its weight with the next show; until then it is as bold as the title. A box
/// that has no child at its first show notes them at the next one, when the title has made them
/// bold.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXGroupBoxBolded : public QGroupBox
{
    Q_OBJECT
    /// See hasBoldTitle() and setBoldTitle().
    Q_PROPERTY(bool boldTitle READ hasBoldTitle WRITE setBoldTitle)

public:
    /// A group box without a title that will be bold when it is shown.
    explicit TXGroupBoxBolded(QWidget *parent = nullptr);

    /// Whether the next show makes the title bold.
    [[nodiscard]] bool hasBoldTitle() const;
    /// Whether a show makes the title bold and sees to the children; true at the start. What a show
    /// has done already stays when this is switched off.
    void setBoldTitle(bool isBold);

protected:
    /// Sets the weights. Does nothing at all without a bold title.
    void showEvent(QShowEvent *event) override;

private slots:
    void forget(QObject *child);

private:
    void noteWeights();

    QHash<QWidget *, bool> childWasBold;
    bool boldTitle = true;
};
