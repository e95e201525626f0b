#pragma once

#include "TXLogManager.h"

#include <QThread>

/// What the tests of TXLogManager share.
namespace LogManagerTest {

using Item = QSharedPointer<TXLogItem>;

inline TXStringI18n plain(const QString &text)
{
    return TXStringI18n::fromString(text);
}

inline QStringList childTexts(const TXLogItem &item)
{
    QStringList texts;
    for (const Item &child : item.children) {
        texts.append(child->message.toString(nullptr));
    }
    return texts;
}

/// Writes down what the root item tells, in order: "+text" and "-text".
class Protocol : public QObject
{
public:
    explicit Protocol(const TXLogManager &manager)
    {
        const TXLogItem *root = manager.rootItem().data();
        connect(root, &TXLogItem::itemAppended, this,
                [this](const Item &item) { write(u'+', item); });
        connect(root, &TXLogItem::itemDeleted, this,
                [this](const Item &item) { write(u'-', item); });
    }

    QStringList lines;
    QList<QThread *> threads;

private:
    void write(QChar sign, const Item &item)
    {
        lines.append(sign + item->message.toString(nullptr));
        threads.append(QThread::currentThread());
    }
};

} // namespace LogManagerTest
