#include "DragDropEmissions.h"

#include "EmissionList.h"
#include "ShortText.h"

#include "LineEditDrapAndDrop.h"
#include "TreeViewDragAndDrop.h"

#include <QLocale>
#include <QMetaMethod>
#include <QVBoxLayout>

#include <array>

DragDropEmissions::DragDropEmissions(QWidget *parent)
    : GalleryPanel(parent)
    , emissions(new EmissionList(this))
{
    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(emissions);
    retranslate();
}

void DragDropEmissions::listen(const LineEditDrapAndDrop *field)
{
    connect(field, SIGNAL(urlFileListHaveBeenDropped(QList<QUrl>)), this,
            SLOT(noteUrls(QList<QUrl>)));
}

void DragDropEmissions::listen(const TreeViewDragAndDrop *tree)
{
    const std::array ofFolders = {
        SIGNAL(hasBeenCollapsed(QModelIndex)), SIGNAL(hasBeenExpanded(QModelIndex)),
        SIGNAL(hasToBeCollasped(QModelIndex)), SIGNAL(hasToBeExpanded(QModelIndex))};
    for (const char *signature : ofFolders) {
        connect(tree, signature, this, SLOT(noteFolder(QModelIndex)));
    }
    connect(tree, SIGNAL(cursorEntreLeaveWidget(bool)), this, SLOT(noteMouse(bool)));
    connect(tree, SIGNAL(itemDataDropped(QString, QString)), this,
            SLOT(noteData(QString, QString)));
}

void DragDropEmissions::retranslate()
{
    setTitle(tr("Signals"));
    emissions->retranslate(tr("Signals o&f the page: %1"), tr("Signals of the page"));
}

void DragDropEmissions::noteUrls(const QList<QUrl> &urls)
{
    const QString first = urls.isEmpty() ? QString() : shortText(urls.first().toDisplayString());
    note(tr("%1: %2").arg(locale().toString(urls.size()), first));
}

void DragDropEmissions::noteFolder(const QModelIndex &folder)
{
    note(folder.isValid() ? shortText(folder.data().toString()) : QStringLiteral("invalid"));
}

void DragDropEmissions::noteMouse(bool isOver)
{
    note(isOver ? QStringLiteral("true") : QStringLiteral("false"));
}

void DragDropEmissions::noteData(const QString &data, const QString &format)
{
    note(QStringLiteral("\"%1\", %2").arg(shortText(data).simplified(), format));
}

void DragDropEmissions::note(const QString &arguments)
{
    const QMetaMethod method = sender()->metaObject()->method(senderSignalIndex());
    const QString line =
        QStringLiteral("%1(%2)").arg(QString::fromLatin1(method.name()), arguments);
    const QString name = sender()->objectName();
    emissions->append(name.isEmpty() ? line : name + QStringLiteral(": ") + line);
}
