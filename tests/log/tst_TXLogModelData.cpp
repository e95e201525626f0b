#include "TXLogModel.h"

#include "LogModelTest.h"
#include "LogTestHelpers.h"
#include "TXResources.h"

#include <QRandomGenerator>
#include <QTranslator>

using LogTest::append;
using LogTest::Item;
using LogTest::makeItem;
using LogTest::makeItemWithChildren;

namespace {

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

/// What the rows show, and how they are found.
class TestTXLogModelData : public LogModelTest
{
    Q_OBJECT

private slots:
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
};

void TestTXLogModelData::headerIsAsShown_data()
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

void TestTXLogModelData::headerIsAsShown()
{
    QFETCH(int, section);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, role);
    QFETCH(QVariant, expected);

    const QVariant header = model->headerData(section, orientation, role);

    QCOMPARE(header, expected);
    QCOMPARE(header.isValid(), expected.isValid());
}

void TestTXLogModelData::columnsAreThreeEverywhere()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 1));

    QCOMPARE(model->columnCount(), 3);
    QCOMPARE(model->columnCount(model->index(0, 0)), 3);
    QCOMPARE(model->columnCount(model->index(0, 2)), 3);
}

void TestTXLogModelData::indexOutsideIsInvalid()
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

void TestTXLogModelData::childrenAnswerUnderEveryColumn()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 2));

    for (int column = 0; column < 3; ++column) {
        const QModelIndex parent = model->index(0, column);
        QCOMPARE(model->rowCount(parent), 2);
        QCOMPARE(model->index(1, 1, parent).data().toString(), QStringLiteral("a/1"));
    }
}

void TestTXLogModelData::parentIsInColumnZero()
{
    append(*manager, makeItem(QStringLiteral("a")));
    append(*manager, makeItemWithChildren(QStringLiteral("b"), 2));
    const QModelIndex top = model->index(1, 1);
    const QModelIndex child = model->index(1, 2, top);

    QCOMPARE(model->parent(child), model->index(1, 0));
    QVERIFY(!model->parent(top).isValid());
    QVERIFY(!model->parent(QModelIndex()).isValid());
}

void TestTXLogModelData::flagsAllowSelectingOnly()
{
    append(*manager, makeItem(QStringLiteral("a")));

    QCOMPARE(model->flags(model->index(0, 1)), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    QCOMPARE(model->flags(QModelIndex()), Qt::NoItemFlags);
}

void TestTXLogModelData::levelIconStandsInTheMessageColumnOfTopLevelRows_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QImage>("icon");
    QTest::addRow("0") << 0 << QImage();
    QTest::addRow("1") << 1 << TXDisplayLittleInformationBulletStaticImage().toImage();
    QTest::addRow("2") << 2 << TXDisplayLittleWarningBulletStaticImage().toImage();
    QTest::addRow("3") << 3 << TXDisplayLittleErrorBulletStaticImage().toImage();
    QTest::addRow("4") << 4 << QImage();
}

void TestTXLogModelData::levelIconStandsInTheMessageColumnOfTopLevelRows()
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

void TestTXLogModelData::levelColumnNormalisesTheLevel_data()
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

void TestTXLogModelData::levelColumnNormalisesTheLevel()
{
    QFETCH(int, level);
    QFETCH(int, shown);
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 1, level));

    const QModelIndex top = model->index(0, 2);
    QCOMPARE(top.data(), QVariant(shown));
    QCOMPARE(top.data(Qt::EditRole), QVariant(shown));
    QCOMPARE(model->index(0, 2, model->index(0, 0)).data(), QVariant(shown));
}

void TestTXLogModelData::topLevelRowShowsDateAndMessage()
{
    const Item item = makeItem(QStringLiteral("a"));
    append(*manager, item);

    QCOMPARE(model->index(0, 0).data(), QVariant(item->date));
    QCOMPARE(model->index(0, 0).data(Qt::EditRole), QVariant(item->date));
    QCOMPARE(model->index(0, 1).data(), QVariant(QStringLiteral("a")));
    QCOMPARE(model->index(0, 1).data(Qt::EditRole), QVariant(QStringLiteral("a")));
}

void TestTXLogModelData::subItemShowsNoDateAndNoIcon()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 1, TXLogItem::Error));
    const QModelIndex parent = model->index(0, 0);

    QVERIFY(!model->index(0, 0, parent).data().isValid());
    QVERIFY(!model->index(0, 1, parent).data(Qt::DecorationRole).isValid());
    QCOMPARE(model->index(0, 1, parent).data(), QVariant(QStringLiteral("a/0")));
}

void TestTXLogModelData::storedFlatMessageIsTranslatedWhenShown()
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

void TestTXLogModelData::otherRolesAreInvalid()
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

void TestTXLogModelData::searchEqualsDepthFirstSearch_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 12; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void TestTXLogModelData::searchEqualsDepthFirstSearch()
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

void TestTXLogModelData::parentIsFoundBelowManyRows()
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

void TestTXLogModelData::searchStaysBelowItsParent()
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

int main(int argc, char **argv)
{
    return runTest<TestTXLogModelData>(argc, argv);
}

#include "tst_TXLogModelData.moc"
