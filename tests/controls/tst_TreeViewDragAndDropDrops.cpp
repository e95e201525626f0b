#include "TreeViewDragAndDrop.h"

#include "TestBase.h"
#include "TreeDropHelpers.h"

#include <QEnterEvent>
#include <QStandardItemModel>

#include <memory>

namespace {

const QString kNamelessFormat = QStringLiteral("application/vnd.tpk.queue+xml");
constexpr int kManyUrls = 10000;

/// Data that say they have no format, and yet have something.
class NamelessData : public QMimeData
{
public:
    QStringList formats() const override { return {}; }

protected:
    QVariant retrieveData(const QString &format, QMetaType /*type*/) const override
    {
        return format == kNamelessFormat ? QByteArray("<queue/>") : QByteArray("other");
    }
};

/// A model that notes what is dropped on it.
class NotingModel : public QStandardItemModel
{
public:
    using QStandardItemModel::QStandardItemModel;

    bool dropMimeData(const QMimeData * /*data*/, Qt::DropAction /*action*/, int /*row*/,
                      int /*column*/, const QModelIndex & /*parent*/) override
    {
        ++drops;
        if (whenDropped) {
            whenDropped();
        }
        return false;
    }

    int drops = 0;
    std::function<void()> whenDropped;
};

struct NotingTree
{
    NotingModel model{2, 1};
    DropTree view;
    QSignalSpy dropped{&view, SIGNAL(itemDataDropped(QString, QString))};

    NotingTree() { view.setModel(&model); }

    [[nodiscard]] QString text() const { return dropped.first()[0].toString(); }
    [[nodiscard]] QString format() const { return dropped.first()[1].toString(); }
};

} // namespace

/// Deletes the view as soon as it says something.
class TreeRemover : public QObject
{
    Q_OBJECT

public:
    std::unique_ptr<DropTree> view = std::make_unique<DropTree>();

public slots:
    void remove() { view.reset(); }
};

class TestTreeViewDragAndDropDrops : public TestBase
{
    Q_OBJECT

private slots:
    void firstFormatIsReported();
    void dataWithoutFormatHaveAName();
    void dataOfTheNamelessFormatAreRead();
    void bytesThatAreNoTextAreReported();
    void tenThousandUrlsAreOneText();
    void noDataAreNotReported();
    void dropOnTheEmptyPartIsNoDrop_data();
    void dropOnTheEmptyPartIsNoDrop();
    void placeIsRoundedHalvesAwayFromZero_data();
    void placeIsRoundedHalvesAwayFromZero();
    void placesOutsideTheWorldAreNoItem_data();
    void placesOutsideTheWorldAreNoItem();
    void modelHasTheDropBeforeItIsReported();
    void foldersAreMoved_data();
    void foldersAreMoved();
    void refusedFoldersStayAndAreReported();
    void viewMayBeDeletedByTheReport();
    void mouseIsToldWhenItComesAndGoes();
    void viewMayBeDeletedWhenTheMouseComesOrGoes();
};

void TestTreeViewDragAndDropDrops::firstFormatIsReported()
{
    QMimeData data;
    data.setData("application/x-a", "Prüfdruck");
    data.setData("text/plain", "not this");
    NotingTree tree;

    tree.view.dropOnto(data, tree.model.index(0, 0));

    QCOMPARE(tree.dropped.size(), 1);
    QCOMPARE(tree.text(), QString("Prüfdruck"));
    QCOMPARE(tree.format(), QString("application/x-a"));
}

void TestTreeViewDragAndDropDrops::dataWithoutFormatHaveAName()
{
    const QMimeData data;
    NotingTree tree;

    tree.view.dropOnto(data, tree.model.index(0, 0));

    QCOMPARE(tree.dropped.size(), 1);
    QCOMPARE(tree.text(), QString());
    QCOMPARE(tree.format(), kNamelessFormat);
}

void TestTreeViewDragAndDropDrops::dataOfTheNamelessFormatAreRead()
{
    const NamelessData data;
    NotingTree tree;

    tree.view.dropOnto(data, tree.model.index(0, 0));

    QCOMPARE(tree.text(), QString("<queue/>"));
    QCOMPARE(tree.format(), kNamelessFormat);
}

void TestTreeViewDragAndDropDrops::bytesThatAreNoTextAreReported()
{
    QMimeData data;
    data.setData("application/x-profile", QByteArray("a\xff\xfe\0b", 5));
    NotingTree tree;

    tree.view.dropOnto(data, tree.model.index(0, 0));

    QCOMPARE(tree.text(), QString("a\uFFFD\uFFFD") + QChar(0) + "b");
}

void TestTreeViewDragAndDropDrops::tenThousandUrlsAreOneText()
{
    QList<QUrl> urls;
    for (int i = 0; i < kManyUrls; ++i) {
        urls.append(QUrl::fromLocalFile(QStringLiteral("/tmp/%1.icc").arg(i)));
    }
    QMimeData data;
    data.setUrls(urls);
    NotingTree tree;

    tree.view.dropOnto(data, tree.model.index(0, 0));

    QCOMPARE(tree.format(), QString("text/uri-list"));
    QCOMPARE(tree.text().count("file:///tmp/"), kManyUrls);
}

void TestTreeViewDragAndDropDrops::noDataAreNotReported()
{
    NotingTree tree;
    const QPointF place = tree.view.visualRect(tree.model.index(0, 0)).center();
    QDropEvent event(place, Qt::CopyAction, nullptr, Qt::LeftButton, Qt::NoModifier);

    tree.view.dropEvent(&event);

    QCOMPARE(tree.model.drops, 1);
    QCOMPARE(tree.dropped.size(), 0);
}

void TestTreeViewDragAndDropDrops::dropOnTheEmptyPartIsNoDrop_data()
{
    QTest::addColumn<bool>("hasModel");

    QTest::newRow("below the items") << true;
    QTest::newRow("without a model") << false;
}

void TestTreeViewDragAndDropDrops::dropOnTheEmptyPartIsNoDrop()
{
    QFETCH(const bool, hasModel);
    QMimeData data;
    data.setText("dropped");
    NotingTree tree;
    if (!hasModel) {
        tree.view.setModel(nullptr);
    }

    tree.view.drop(data, QPointF(20, 280));

    QCOMPARE(tree.model.drops, 0);
    QCOMPARE(tree.dropped.size(), 0);
}

void TestTreeViewDragAndDropDrops::placeIsRoundedHalvesAwayFromZero_data()
{
    QTest::addColumn<qreal>("beyondTheItems");
    QTest::addColumn<int>("drops");

    // Counted from the last line of pixels of the last item.
    QTest::newRow("below the half") << 0.49 << 1;
    QTest::newRow("half") << 0.5 << 0;
}

void TestTreeViewDragAndDropDrops::placeIsRoundedHalvesAwayFromZero()
{
    QFETCH(const qreal, beyondTheItems);
    QMimeData data;
    data.setText("dropped");
    NotingTree tree;
    const QRect last = tree.view.visualRect(tree.model.index(1, 0));

    tree.view.drop(data, QPointF(last.center().x(), last.bottom() + beyondTheItems));

    QTEST(int(tree.dropped.size()), "drops");
    QTEST(tree.model.drops, "drops");
}

void TestTreeViewDragAndDropDrops::placesOutsideTheWorldAreNoItem_data()
{
    QTest::addColumn<QPointF>("place");

    QTest::newRow("half a pixel left of all") << QPointF(-0.5, 5);
    QTest::newRow("far right") << QPointF(1e9, 5);
    QTest::newRow("beyond whole numbers") << QPointF(1e300, 5);
    QTest::newRow("endless") << QPointF(-qInf(), -qInf());
    QTest::newRow("no number") << QPointF(qQNaN(), 5);
}

void TestTreeViewDragAndDropDrops::placesOutsideTheWorldAreNoItem()
{
    QFETCH(const QPointF, place);
    QMimeData data;
    data.setText("dropped");
    NotingTree tree;

    tree.view.drop(data, QPointF(-0.4, 5));
    QCOMPARE(tree.dropped.size(), 1);
    tree.view.drop(data, place);

    QCOMPARE(tree.dropped.size(), 1);
}

void TestTreeViewDragAndDropDrops::modelHasTheDropBeforeItIsReported()
{
    QMimeData data;
    data.setText("dropped");
    NotingTree tree;
    qsizetype reportsBefore = -1;
    tree.model.whenDropped = [&tree, &reportsBefore] {
        reportsBefore = tree.dropped.size();
    };

    tree.view.dropOnto(data, tree.model.index(0, 0));

    QCOMPARE(reportsBefore, 0);
    QCOMPARE(tree.dropped.size(), 1);
}

void TestTreeViewDragAndDropDrops::foldersAreMoved_data()
{
    QTest::addColumn<bool>("hasProxy");

    QTest::newRow("in the folder model") << false;
    QTest::newRow("through a proxy") << true;
}

void TestTreeViewDragAndDropDrops::foldersAreMoved()
{
    QFETCH(const bool, hasProxy);
    ProfileFolders<> folders;
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&folders.model);
    DropTree view;
    view.setModel(hasProxy ? static_cast<QAbstractItemModel *>(&proxy) : &folders.model);
    view.expandAllItems();
    const QSignalSpy dropped(&view, SIGNAL(itemDataDropped(QString, QString)));
    const std::unique_ptr<QMimeData> data(folders.model.mimeData({folders.coated}));

    QVERIFY(view.moveOnto(*data, view.toProxyIndex(folders.screens)));
    view.dropOnto(*data, view.toProxyIndex(folders.screens));

    QCOMPARE(folders.coated.parent(), QModelIndex(folders.screens));
    QCOMPARE(folders.glossy.parent(), QModelIndex(folders.coated));
    QCOMPARE(dropped.size(), 1);
    QCOMPARE(dropped.first()[1].toString(), data->formats().first());
}

void TestTreeViewDragAndDropDrops::refusedFoldersStayAndAreReported()
{
    ProfileFolders<> folders;
    DropTree view;
    view.setModel(&folders.model);
    view.expandAllItems();
    const QSignalSpy dropped(&view, SIGNAL(itemDataDropped(QString, QString)));
    const std::unique_ptr<QMimeData> data(folders.model.mimeData({folders.printing}));

    QVERIFY(!view.moveOnto(*data, folders.glossy));
    view.dropOnto(*data, folders.glossy);

    QVERIFY(!folders.printing.parent().isValid());
    QCOMPARE(dropped.size(), 1);
}

void TestTreeViewDragAndDropDrops::viewMayBeDeletedByTheReport()
{
    QMimeData data;
    data.setText("dropped");
    NotingModel model(1, 1);
    TreeRemover remover;
    remover.view->setModel(&model);
    connect(remover.view.get(), SIGNAL(itemDataDropped(QString, QString)), &remover,
            SLOT(remove()));

    remover.view->dropOnto(data, model.index(0, 0));

    QVERIFY(!remover.view);
}

void TestTreeViewDragAndDropDrops::mouseIsToldWhenItComesAndGoes()
{
    DropTree view;
    const QSignalSpy moved(&view, SIGNAL(cursorEntreLeaveWidget(bool)));
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QEvent leave(QEvent::Leave);

    QApplication::sendEvent(&view, &enter);
    QApplication::sendEvent(&view, &leave);

    QCOMPARE(moved.size(), 2);
    QCOMPARE(moved[0].first().toBool(), true);
    QCOMPARE(moved[1].first().toBool(), false);
}

void TestTreeViewDragAndDropDrops::viewMayBeDeletedWhenTheMouseComesOrGoes()
{
    for (const bool comes : {true, false}) {
        TreeRemover remover;
        connect(remover.view.get(), SIGNAL(cursorEntreLeaveWidget(bool)), &remover, SLOT(remove()));
        QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QEvent leave(QEvent::Leave);

        if (comes) {
            remover.view->enterEvent(&enter);
        } else {
            remover.view->leaveEvent(&leave);
        }

        QVERIFY(!remover.view);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTreeViewDragAndDropDrops>(argc, argv);
}

#include "tst_TreeViewDragAndDropDrops.moc"
