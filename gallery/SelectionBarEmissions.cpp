#include "SelectionBarEmissions.h"

#include "EmissionList.h"

#include "TXSelectionItemWidget.h"

#include <QAction>
#include <QMetaMethod>
#include <QVBoxLayout>

#include <array>

SelectionBarEmissions::SelectionBarEmissions(const TXSelectionItemWidget *bar, QWidget *parent)
    : GalleryPanel(parent)
    , emissions(new EmissionList(this))
{
    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(emissions);
    retranslate();

    const std::array requests = {
        SIGNAL(addNewItemHasBeenRequest()),    SIGNAL(removeItemHasBeenRequest()),
        SIGNAL(duplicateItemHasBeenRequest()), SIGNAL(importItemHasBeenRequest()),
        SIGNAL(exportItemHasBeenRequest()),    SIGNAL(editItemHasBeenRequest()),
        SIGNAL(saveItemHasBeenRequest())};
    for (const char *request : requests) {
        connect(bar, request, this, SLOT(note()));
    }
    connect(bar, SIGNAL(importItemHasBeenRequest(QAction *)), this, SLOT(noteEntry(QAction *)));
    connect(bar, SIGNAL(itemNameChanged(QString)), this, SLOT(noteName(QString)));
    connect(bar, SIGNAL(itemSelectionChanged(QVariant)), this, SLOT(noteValue(QVariant)));
    connect(bar, SIGNAL(itemSelectionUpdated(QVariant)), this, SLOT(noteValue(QVariant)));
}

void SelectionBarEmissions::retranslate()
{
    setTitle(tr("Signals"));
    emissions->retranslate(tr("Si&gnals of the bar: %1"), tr("Signals of the bar"));
}

void SelectionBarEmissions::note()
{
    emissions->append(nameOfSignal());
}

void SelectionBarEmissions::noteEntry(QAction *entry)
{
    emissions->append(QStringLiteral("%1(%2)").arg(
        nameOfSignal(), entry ? entry->text() : QStringLiteral("nullptr")));
}

void SelectionBarEmissions::noteName(const QString &name)
{
    emissions->append(QStringLiteral("%1(\"%2\")").arg(nameOfSignal(), name));
}

void SelectionBarEmissions::noteValue(const QVariant &value)
{
    const QString text = value.isValid() ? value.toString() : QStringLiteral("invalid");
    emissions->append(QStringLiteral("%1(%2)").arg(nameOfSignal(), text));
}

QString SelectionBarEmissions::nameOfSignal() const
{
    const QMetaMethod method = sender()->metaObject()->method(senderSignalIndex());
    return QString::fromLatin1(method.name());
}
