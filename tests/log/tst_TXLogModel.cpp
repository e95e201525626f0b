#include "TXLogModel.h"

#include "LogTestHelpers.h"
#include "TXResources.h"
#include "TestBase.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTranslator>

#include <memory>
#include <thread>

using LogTest::append;
using LogTest::Item;
using LogTest::makeItem;
using LogTest::makeItemWithChildren;
using LogTest::shownTexts;

namespace {

/// Writes down each announced change: "+/0" a first top-level row, "-a/0" the first row below "a".
class Changes : public QObject
{
    Q_OBJECT

public:
    explicit Changes(const QAbstractItemModel &model)
    {
        connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, this,
                [this](const QModelIndex &parent, int first, int last) {
                    write(u'+', parent, first, last);
                });
        connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                [this](const QModelIndex &parent, int first, int last) {
                    write(u'-', parent, first, last);
                });
        connect(&model, &QAbstractItemModel::modelReset, this,
                [this] { lines.append(QStringLiteral("reset")); });
    }

    QStringList lines;

private:
    void write(QChar sign, const QModelIndex &parent, int first, int last)
    {
        const QString name = parent.siblingAtColumn(1).data().toString();
        lines.append(first == last ? QStringLiteral("%1%2/%3").arg(sign).arg(name).arg(first)
                                   : QStringLiteral("several rows"));
    }
};

/// The search as one would write it down: depth first over what the model shows, and only below
/// items that have children in the log.
QModelIndex findDepthFirst(const TXLogModel &model, const TXLogItem *item, int column,
                           const QModelIndex &parent)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex candidate = model.index(row, column, parent);
        const auto *candidateItem = static_cast<TXLogItem *>(candidate.internalPointer());
        if (candidateItem == item) {
            return candidate;
        }
        if (!candidateItem->children.isEmpty()) {
            const QModelIndex found = findDepthFirst(model, item, column, candidate);
            if (found.isValid()) {
                return found;
            }
        }
    }
    return {};
}

/// Every item below an index, by way of the model.
QList<TXLogItem *> shownItems(const TXLogModel &model, const QModelIndex &parent = {})
{
    QList<TXLogItem *> items;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        items.append(static_cast<TXLogItem *>(index.internalPointer()));
        items.append(shownItems(model, index));
    }
    return items;
}

/// Keeps what is printed from the test's own eyes, to be looked at one by one.
class MessageCollector
{
public:
    MessageCollector() { previous = qInstallMessageHandler(collect); }
    ~MessageCollector()
    {
        qInstallMessageHandler(previous);
        collected.clear();
    }
    Q_DISABLE_COPY_MOVE(MessageCollector)

    [[nodiscard]] QStringList lines() const { return collected; }

private:
    static void collect(QtMsgType, const QMessageLogContext &, const QString &message)
    {
        collected.append(message);
    }

    static inline QStringList collected;
    QtMessageHandler previous = nullptr;
};

/// Answers one text in capitals.
class ShoutingTranslator : public QTranslator
{
    Q_OBJECT

public:
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return qstrcmp(source, "disk full") == 0 ? QStringLiteral("DISK FULL") : QString();
    }

    [[nodiscard]] bool isEmpty() const override { return false; }
};

} // namespace

class TestTXLogModel : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        manager = QSharedPointer<TXLogManager>::create();
        model = std::make_unique<TXLogModel>(manager);
    }

    void finish() override
    {
        model.reset();
        manager.reset();
    }

private slots:
    void logThatHoldsItemsAlreadyShowsNone();
    void itemWithThreeSubItemsMakesFourInserts();
    void subItemAppendedLaterGoesToItsParent();
    void subItemOfAnUnknownParentIsNotInserted();
    void childrenOfAnUnknownParentAreStillLookedAt();
    void itemAnnouncedTwiceHasTwoRows();
    void nullItemIsIgnored();

    void rowDeletedDropsTheFirstRow();
    void rowDeletedDropsTheFirstRowWhicheverItemIsNamed();
    void rowDeletedOfASubItemDropsTheFirstSubItem();
    void rowDeletedOfAnUnknownParentRemovesNothing();
    void rowDeletedOfAnotherItemEmptiesThatItem();
    void rowDeletedWithoutRowsRemovesNothing();
    void newItemNeverInheritsTheSubItemsOfADroppedOne();

    void clearEmptiesLogAndViewInOneReset();
    void clearFreesDroppedEntries();
    void managerResetKeepsTheRows();
    void limitOfTheManagerIsFollowed();

    void headerIsAsShown_data();
    void headerIsAsShown();
    void columnsAreThreeEverywhere();
    void indexOutsideIsInvalid();
    void childrenAnswerUnderEveryColumn();
    void parentIsInColumnZero();
    void flagsAllowSelectingOnly();

    void levelIconStandsInTheMessageColumnOfTopLevelRows_data();
    void levelIconStandsInTheMessageColumnOfTopLevelRows();
    void levelColumnNormalisesTheLevel_data();
    void levelColumnNormalisesTheLevel();
    void topLevelRowShowsDateAndMessage();
    void subItemShowsNoDateAndNoIcon();
    void storedFlatMessageIsTranslatedWhenShown();
    void otherRolesAreInvalid();

    void searchEqualsDepthFirstSearch_data();
    void searchEqualsDepthFirstSearch();
    void parentIsFoundBelowManyRows();
    void searchStaysBelowItsParent();

    void modelPassesTheTesterThroughEveryChange();
    void signalsFromOtherThreadsArriveHere();
    void itemsLiveAsLongAsTheirRows();

private:
    TXLogItem &root() { return *manager->rootItem(); }
    QStringList texts() { return shownTexts(*model); }

    QSharedPointer<TXLogManager> manager;
    std::unique_ptr<TXLogModel> model;
};

void TestTXLogModel::logThatHoldsItemsAlreadyShowsNone()
{
    append(*manager, makeItem(QStringLiteral("old")));
    TXLogModel late(manager);
    QCOMPARE(late.rowCount(), 0);

    append(*manager, makeItem(QStringLiteral("new")));

    QCOMPARE(shownTexts(late), QStringList(QStringLiteral("new")));
}

void TestTXLogModel::itemWithThreeSubItemsMakesFourInserts()
{
    Changes changes(*model);

    append(*manager, makeItemWithChildren(QStringLiteral("a"), 3));

    QCOMPARE(changes.lines,
             QStringList({QStringLiteral("+/0"), QStringLiteral("+a/0"), QStringLiteral("+a/1"),
                          QStringLiteral("+a/2")}));
    QCOMPARE(texts(),
             QStringList({QStringLiteral("a"), QStringLiteral(".a/0"), QStringLiteral(".a/1"),
                          QStringLiteral(".a/2")}));
}

void TestTXLogModel::subItemAppendedLaterGoesToItsParent()
{
    const Item first = makeItem(QStringLiteral("a"));
    append(*manager, first);
    append(*manager, makeItem(QStringLiteral("b")));
    Changes changes(*model);

    append(*manager, makeItem(QStringLiteral("late")), first);

    QCOMPARE(changes.lines, QStringList(QStringLiteral("+a/0")));
    QCOMPARE(texts(),
             QStringList({QStringLiteral("a"), QStringLiteral(".late"), QStringLiteral("b")}));
}

void TestTXLogModel::subItemOfAnUnknownParentIsNotInserted()
{
    const Item unknown = makeItemWithChildren(QStringLiteral("unknown"), 1);
    unknown->parent = &root();
    Changes changes(*model);

    emit root().itemAppended(unknown->children.first());

    QCOMPARE(changes.lines, QStringList());
    QCOMPARE(model->rowCount(), 0);
}

void TestTXLogModel::childrenOfAnUnknownParentAreStillLookedAt()
{
    // The sub-item's parent is unknown, but what the sub-item brings hangs below a shown row.
    const Item shown = makeItem(QStringLiteral("shown"));
    append(*manager, shown);
    const Item unknown = makeItemWithChildren(QStringLiteral("unknown"), 1);
    const Item subItem = unknown->children.first();
    const Item deep = makeItem(QStringLiteral("deep"));
    deep->parent = shown.data();
    subItem->children.append(deep);

    emit root().itemAppended(subItem);

    QCOMPARE(texts(), QStringList({QStringLiteral("shown"), QStringLiteral(".deep")}));
}

void TestTXLogModel::itemAnnouncedTwiceHasTwoRows()
{
    const Item item = makeItem(QStringLiteral("a"));
    append(*manager, item);
    append(*manager, makeItemWithChildren(QStringLiteral("b"), 1));

    emit root().itemAppended(item);
    append(*manager, makeItemWithChildren(QStringLiteral("c"), 1));

    QCOMPARE(texts(),
             QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral(".b/0"),
                          QStringLiteral("a"), QStringLiteral("c"), QStringLiteral(".c/0")}));
    QCOMPARE(model->index(item.data(), 0, QModelIndex()).row(), 0);
}

void TestTXLogModel::nullItemIsIgnored()
{
    Changes changes(*model);

    emit root().itemAppended(Item());
    emit root().itemDeleted(Item());

    QCOMPARE(changes.lines, QStringList());
}

void TestTXLogModel::rowDeletedDropsTheFirstRow()
{
    append(*manager, makeItem(QStringLiteral("a")));
    append(*manager, makeItem(QStringLiteral("b")));
    Changes changes(*model);

    emit root().itemDeleted(root().takeFirstChild());

    QCOMPARE(changes.lines, QStringList(QStringLiteral("-/0")));
    QCOMPARE(texts(), QStringList(QStringLiteral("b")));
}

void TestTXLogModel::rowDeletedDropsTheFirstRowWhicheverItemIsNamed()
{
    const Item last = makeItem(QStringLiteral("c"));
    append(*manager, makeItem(QStringLiteral("a")));
    append(*manager, makeItem(QStringLiteral("b")));
    append(*manager, last);

    emit root().itemDeleted(last);

    QCOMPARE(texts(), QStringList({QStringLiteral("b"), QStringLiteral("c")}));
}

void TestTXLogModel::rowDeletedOfASubItemDropsTheFirstSubItem()
{
    const Item item = makeItemWithChildren(QStringLiteral("a"), 3);
    append(*manager, item);
    Changes changes(*model);

    emit root().itemDeleted(item->children.at(1));

    QCOMPARE(changes.lines, QStringList(QStringLiteral("-a/0")));
    QCOMPARE(texts(),
             QStringList({QStringLiteral("a"), QStringLiteral(".a/1"), QStringLiteral(".a/2")}));
}

void TestTXLogModel::rowDeletedOfAnUnknownParentRemovesNothing()
{
    append(*manager, makeItem(QStringLiteral("a")));
    const Item unknown = makeItemWithChildren(QStringLiteral("unknown"), 1);
    unknown->parent = &root();
    Changes changes(*model);

    emit root().itemDeleted(unknown->children.first());

    QCOMPARE(changes.lines, QStringList());
}

void TestTXLogModel::rowDeletedOfAnotherItemEmptiesThatItem()
{
    // Naming "b" drops the row of "a"; the sub-items of "b" are then dropped from the row that
    // stays.
    const Item second = makeItemWithChildren(QStringLiteral("b"), 2);
    append(*manager, makeItem(QStringLiteral("a")));
    append(*manager, second);
    Changes changes(*model);

    emit root().itemDeleted(second);

    QCOMPARE(changes.lines,
             QStringList({QStringLiteral("-/0"), QStringLiteral("-b/0"), QStringLiteral("-b/0")}));
    QCOMPARE(texts(), QStringList(QStringLiteral("b")));
}

void TestTXLogModel::rowDeletedWithoutRowsRemovesNothing()
{
    append(*manager, makeItem(QStringLiteral("a")));
    TXLogModel late(manager);
    Changes changes(late);

    emit root().itemDeleted(root().takeFirstChild());

    QCOMPARE(changes.lines, QStringList());
    QCOMPARE(late.rowCount(), 0);
}

void TestTXLogModel::newItemNeverInheritsTheSubItemsOfADroppedOne()
{
    // Many rounds, so that an address would be given out again if the model let it go.
    manager->setMaximumCount(1);
    for (int i = 0; i < 200; ++i) {
        append(*manager, makeItemWithChildren(QStringLiteral("a"), 2));
        append(*manager, makeItem(QStringLiteral("b")));
        QCOMPARE(texts(), QStringList(QStringLiteral("b")));
    }
}

void TestTXLogModel::clearEmptiesLogAndViewInOneReset()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 2));
    append(*manager, makeItem(QStringLiteral("b")));
    Changes changes(*model);
    QSignalSpy deleted(&root(), SIGNAL(itemDeleted(QSharedPointer<TXLogItem>)));

    model->clear();

    QCOMPARE(changes.lines, QStringList(QStringLiteral("reset")));
    QCOMPARE(deleted.count(), 0);
    QVERIFY(root().children.isEmpty());
    QCOMPARE(model->rowCount(), 0);

    append(*manager, makeItem(QStringLiteral("c")));
    QCOMPARE(texts(), QStringList(QStringLiteral("c")));
}

void TestTXLogModel::clearFreesDroppedEntries()
{
    Item entry = makeItemWithChildren(QStringLiteral("a"), 1);
    const QWeakPointer<TXLogItem> child = entry->children.first();
    const QWeakPointer<TXLogItem> parent = entry;
    append(*manager, entry);
    entry.reset();
    emit root().itemDeleted(root().takeFirstChild());
    QCOMPARE(model->rowCount(), 0);
    QVERIFY(child);

    model->clear();

    QVERIFY(!child);
    QVERIFY(!parent);
}

void TestTXLogModel::managerResetKeepsTheRows()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 1));
    const QStringList before = texts();
    Changes changes(*model);

    manager->reset();

    QCOMPARE(changes.lines, QStringList(QStringLiteral("reset")));
    QCOMPARE(texts(), before);
    QCOMPARE(model->rowCount(), 1);
}

void TestTXLogModel::limitOfTheManagerIsFollowed()
{
    manager->setMaximumCount(2);

    for (const char *text : {"a", "b", "c", "d"}) {
        append(*manager, makeItemWithChildren(QString::fromLatin1(text), 1));
    }

    QCOMPARE(texts(),
             QStringList({QStringLiteral("c"), QStringLiteral(".c/0"), QStringLiteral("d"),
                          QStringLiteral(".d/0")}));
}

void TestTXLogModel::headerIsAsShown_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("expected");
    const int display = Qt::DisplayRole;
    QTest::addRow("date") << 0 << Qt::Horizontal << display << QVariant(QStringLiteral("Date"));
    QTest::addRow("message") << 1 << Qt::Horizontal << display
                             << QVariant(QStringLiteral("Message"));
    QTest::addRow("level") << 2 << Qt::Horizontal << display << QVariant(QString());
    QTest::addRow("outside") << 9 << Qt::Horizontal << display << QVariant(QString());
    QTest::addRow("vertical") << 7 << Qt::Vertical << display << QVariant(QStringLiteral("7"));
    QTest::addRow("decoration") << 0 << Qt::Horizontal << int(Qt::DecorationRole) << QVariant();
    QTest::addRow("vertical decoration")
        << 7 << Qt::Vertical << int(Qt::DecorationRole) << QVariant();
    QTest::addRow("edit role") << 0 << Qt::Horizontal << int(Qt::EditRole) << QVariant();
}

void TestTXLogModel::headerIsAsShown()
{
    QFETCH(int, section);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, role);
    QFETCH(QVariant, expected);

    const QVariant header = model->headerData(section, orientation, role);

    QCOMPARE(header, expected);
    QCOMPARE(header.isValid(), expected.isValid());
}

void TestTXLogModel::columnsAreThreeEverywhere()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 1));

    QCOMPARE(model->columnCount(), 3);
    QCOMPARE(model->columnCount(model->index(0, 0)), 3);
    QCOMPARE(model->columnCount(model->index(0, 2)), 3);
}

void TestTXLogModel::indexOutsideIsInvalid()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 1));
    const QModelIndex item = model->index(0, 0);

    QVERIFY(model->index(0, 2).isValid());
    for (const auto &[row, column] : {std::pair(1, 0), {-1, 0}, {0, 3}, {0, -1}}) {
        QVERIFY(!model->index(row, column).isValid());
        QVERIFY(!model->index(row, column, item).isValid());
    }
    QVERIFY(!model->index(0, 0, model->index(0, 0, item)).isValid());
}

void TestTXLogModel::childrenAnswerUnderEveryColumn()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 2));

    for (int column = 0; column < 3; ++column) {
        const QModelIndex parent = model->index(0, column);
        QCOMPARE(model->rowCount(parent), 2);
        QCOMPARE(model->index(1, 1, parent).data().toString(), QStringLiteral("a/1"));
    }
}

void TestTXLogModel::parentIsInColumnZero()
{
    append(*manager, makeItem(QStringLiteral("a")));
    append(*manager, makeItemWithChildren(QStringLiteral("b"), 2));
    const QModelIndex top = model->index(1, 1);
    const QModelIndex child = model->index(1, 2, top);

    QCOMPARE(model->parent(child), model->index(1, 0));
    QVERIFY(!model->parent(top).isValid());
    QVERIFY(!model->parent(QModelIndex()).isValid());
}

void TestTXLogModel::flagsAllowSelectingOnly()
{
    append(*manager, makeItem(QStringLiteral("a")));

    QCOMPARE(model->flags(model->index(0, 1)), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    QCOMPARE(model->flags(QModelIndex()), Qt::NoItemFlags);
}

void TestTXLogModel::levelIconStandsInTheMessageColumnOfTopLevelRows_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QImage>("icon");
    QTest::addRow("0") << 0 << QImage();
    QTest::addRow("1") << 1 << TXDisplayLittleInformationBulletStaticImage().toImage();
    QTest::addRow("2") << 2 << TXDisplayLittleWarningBulletStaticImage().toImage();
    QTest::addRow("3") << 3 << TXDisplayLittleErrorBulletStaticImage().toImage();
    QTest::addRow("4") << 4 << QImage();
}

void TestTXLogModel::levelIconStandsInTheMessageColumnOfTopLevelRows()
{
    QFETCH(int, level);
    QFETCH(QImage, icon);
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 1, level));

    const QVariant shown = model->index(0, 1).data(Qt::DecorationRole);

    QCOMPARE(shown.isValid(), !icon.isNull());
    QCOMPARE(shown.value<QPixmap>().toImage(), icon);
    QVERIFY(!model->index(0, 0).data(Qt::DecorationRole).isValid());
    QVERIFY(!model->index(0, 2).data(Qt::DecorationRole).isValid());
    QVERIFY(!model->index(0, 1, model->index(0, 0)).data(Qt::DecorationRole).isValid());
}

void TestTXLogModel::levelColumnNormalisesTheLevel_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("shown");
    QTest::addRow("-1") << -1 << 1;
    QTest::addRow("0") << 0 << 1;
    QTest::addRow("1") << 1 << 1;
    QTest::addRow("2") << 2 << 2;
    QTest::addRow("3") << 3 << 3;
    QTest::addRow("4") << 4 << 1;
}

void TestTXLogModel::levelColumnNormalisesTheLevel()
{
    QFETCH(int, level);
    QFETCH(int, shown);
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 1, level));

    const QModelIndex top = model->index(0, 2);
    QCOMPARE(top.data(), QVariant(shown));
    QCOMPARE(top.data(Qt::EditRole), QVariant(shown));
    QCOMPARE(model->index(0, 2, model->index(0, 0)).data(), QVariant(shown));
}

void TestTXLogModel::topLevelRowShowsDateAndMessage()
{
    const Item item = makeItem(QStringLiteral("a"));
    append(*manager, item);

    QCOMPARE(model->index(0, 0).data(), QVariant(item->date));
    QCOMPARE(model->index(0, 0).data(Qt::EditRole), QVariant(item->date));
    QCOMPARE(model->index(0, 1).data(), QVariant(QStringLiteral("a")));
    QCOMPARE(model->index(0, 1).data(Qt::EditRole), QVariant(QStringLiteral("a")));
}

void TestTXLogModel::subItemShowsNoDateAndNoIcon()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 1, TXLogItem::Error));
    const QModelIndex parent = model->index(0, 0);

    QVERIFY(!model->index(0, 0, parent).data().isValid());
    QVERIFY(!model->index(0, 1, parent).data(Qt::DecorationRole).isValid());
    QCOMPARE(model->index(0, 1, parent).data(), QVariant(QStringLiteral("a/0")));
}

void TestTXLogModel::storedFlatMessageIsTranslatedWhenShown()
{
    const QString flat = TXStringI18n("Disks", "disk full", nullptr, -1).toFlatString();
    const Item item = makeItem(QString());
    item->message = TXStringI18n(flat.toUtf8().constData());
    append(*manager, item);
    const QModelIndex message = model->index(0, 1);
    QCOMPARE(message.data().toString(), QStringLiteral("disk full"));

    ShoutingTranslator translator;
    QCoreApplication::installTranslator(&translator);

    QCOMPARE(message.data().toString(), QStringLiteral("DISK FULL"));
    QCOMPARE(message.data(Qt::EditRole).toString(), flat);
}

void TestTXLogModel::otherRolesAreInvalid()
{
    append(*manager, makeItem(QStringLiteral("a"), TXLogItem::Error));

    for (int column = 0; column < 3; ++column) {
        for (const int role : {Qt::FontRole, Qt::ForegroundRole, Qt::BackgroundRole,
                               Qt::SizeHintRole, Qt::ToolTipRole, Qt::UserRole}) {
            QVERIFY(!model->index(0, column).data(role).isValid());
        }
    }
    QVERIFY(!model->data(QModelIndex(), Qt::DisplayRole).isValid());
}

void TestTXLogModel::searchEqualsDepthFirstSearch_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 12; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void TestTXLogModel::searchEqualsDepthFirstSearch()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    QList<Item> all;
    const auto any = [&] {
        return all.isEmpty() ? Item() : all.at(random.bounded(all.size()));
    };

    for (int step = 0; step < 150; ++step) {
        const QString name = QString::number(step);
        switch (random.bounded(8)) {
        case 0:
        case 1:
        case 2:
            all.append(makeItemWithChildren(name, random.bounded(3)));
            all.append(all.last()->children);
            append(*manager, all.at(all.size() - 1 - all.last()->children.size()));
            break;
        case 3:
        case 4:
            all.append(makeItem(name));
            append(*manager, all.last(), any());
            break;
        case 5:
            if (const Item gone = root().takeFirstChild()) {
                emit root().itemDeleted(gone);
            }
            break;
        case 6:
            if (const Item item = any(); item && item->parent) {
                emit random.bounded(2) ? root().itemDeleted(item) : root().itemAppended(item);
            }
            break;
        default:
            if (random.bounded(10) == 0) {
                model->clear();
            }
        }

        const QList<TXLogItem *> shown = shownItems(*model);
        const QModelIndex start =
            random.bounded(2) ? model->index(random.bounded(5), 0) : QModelIndex();
        for (const Item &item : qAsConst(all)) {
            QCOMPARE(model->index(item.data(), 1, QModelIndex()),
                     findDepthFirst(*model, item.data(), 1, QModelIndex()));
            QCOMPARE(model->index(item.data(), 0, start),
                     findDepthFirst(*model, item.data(), 0, start));
        }
        for (TXLogItem *item : shown) {
            if (item->parent && item->parent->parent) {
                const QModelIndex index = findDepthFirst(*model, item, 0, QModelIndex());
                QCOMPARE(model->parent(index).internalPointer(), item->parent);
            }
        }
    }
}

void TestTXLogModel::parentIsFoundBelowManyRows()
{
    for (int i = 0; i < 5000; ++i) {
        manager->append(makeItem(QString::number(i)));
    }
    const Item last = makeItem(QStringLiteral("last"));
    append(*manager, last);
    append(*manager, makeItem(QStringLiteral("sub")), last);

    const QModelIndex parent = model->index(5000, 0);
    QCOMPARE(model->index(0, 0, parent).parent(), parent);
    QCOMPARE(model->index(last->children.first().data(), 1, QModelIndex()),
             model->index(0, 1, parent));
}

void TestTXLogModel::searchStaysBelowItsParent()
{
    const Item first = makeItemWithChildren(QStringLiteral("a"), 1);
    const Item second = makeItemWithChildren(QStringLiteral("b"), 1);
    append(*manager, first);
    append(*manager, second);

    QVERIFY(!model->index(second->children.first().data(), 0, model->index(0, 0)).isValid());
    QVERIFY(!model->index(first.data(), 0, model->index(0, 0)).isValid());
    QVERIFY(!model->index(first.data(), 3, QModelIndex()).isValid());
    QVERIFY(!model->index(nullptr, 0, QModelIndex()).isValid());
    QVERIFY(!model->index(&root(), 0, QModelIndex()).isValid());
    QCOMPARE(model->index(second->children.first().data(), 2, model->index(1, 1)),
             model->index(0, 2, model->index(1, 0)));
}

void TestTXLogModel::modelPassesTheTesterThroughEveryChange()
{
    // The tester wants an item's children under its first column only, this model has them under
    // each. All its other rules are kept.
    const MessageCollector complaints;
    QAbstractItemModelTester tester(model.get(),
                                    QAbstractItemModelTester::FailureReportingMode::Warning);

    append(*manager, makeItem(QStringLiteral("a")));
    append(*manager, makeItemWithChildren(QStringLiteral("b"), 2));
    append(*manager, makeItem(QStringLiteral("late")), root().children.last());
    manager->setMaximumCount(2);
    append(*manager, makeItemWithChildren(QStringLiteral("c"), 1));
    manager->reset();
    model->clear();
    append(*manager, makeItem(QStringLiteral("d")));

    QCOMPARE(texts(), QStringList(QStringLiteral("d")));
    static const QRegularExpression childrenUnderOtherColumns(
        QStringLiteral("childIndex != childIndex1"
                       "|\\(model->parent\\(index\\)\\) QModelIndex\\((\\d+),0,(\\w+),"
                       "[\\s\\S]*\\(parent\\) +QModelIndex\\(\\1,[12],\\2,"));
    const QStringList failures = complaints.lines().filter(QStringLiteral("FAIL!"));
    QVERIFY(!failures.isEmpty());
    for (const QString &failure : failures) {
        QVERIFY2(failure.contains(childrenUnderOtherColumns), qPrintable(failure));
    }
}

void TestTXLogModel::signalsFromOtherThreadsArriveHere()
{
    std::thread([this] {
        const Item item = makeItem(QStringLiteral("a"));
        root().addChild(item);
        emit root().itemAppended(item);
    }).join();
    QCOMPARE(model->rowCount(), 0);

    QTRY_COMPARE(model->rowCount(), 1);

    std::thread([this] { emit root().itemDeleted(root().takeFirstChild()); }).join();
    QTRY_COMPARE(model->rowCount(), 0);
}

void TestTXLogModel::itemsLiveAsLongAsTheirRows()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 1));

    const QWeakPointer<TXLogItem> item = root().children.first();

    manager->reset();
    QVERIFY(item);
    QCOMPARE(texts(), QStringList({QStringLiteral("a"), QStringLiteral(".a/0")}));

    model.reset();
    QVERIFY(!item);
}

int main(int argc, char **argv)
{
    return runTest<TestTXLogModel>(argc, argv);
}

#include "tst_TXLogModel.moc"
