#include "TXWidgetUtilities.h"

#include "TestBase.h"

#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>

#include <memory>

namespace {

using State = QHash<QString, QVariant>;

State saved(QWidget *widget)
{
    State state;
    TXWidgetUtilities::saveWidgetStateInHash(widget, state);
    return state;
}

/// The dictionary under the keys, one below the other.
State at(const State &state, const QStringList &path)
{
    State found = state;
    for (const QString &key : path) {
        found = found.value(key).toHash();
    }
    return found;
}

QStringList sortedKeys(const State &state)
{
    QStringList keys = state.keys();
    keys.sort();
    return keys;
}

QByteArray bytes(const State &state, const char *key)
{
    return state.value(QString::fromLatin1(key)).toByteArray();
}

template<class Widget>
Widget *named(Widget *widget, const char *name)
{
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

std::unique_ptr<QTableView> makeTable(QStandardItemModel *model, QHeaderView::ResizeMode horizontal,
                                      QHeaderView::ResizeMode vertical)
{
    auto table = std::make_unique<QTableView>();
    table->setObjectName(QStringLiteral("table"));
    table->setModel(model);
    table->horizontalHeader()->setSectionResizeMode(horizontal);
    table->verticalHeader()->setSectionResizeMode(vertical);
    return table;
}

QStringList widgetNames(const QWidget &parent)
{
    QStringList names;
    const auto children = parent.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *child : children) {
        names.append(child->objectName());
    }
    return names;
}

/// A value of every wrong type, and damaged bytes.
QVariantList wrongValues()
{
    return {QVariant(),     QVariant(7),
            QVariant("no"), QVariant(QVariantList{1, 2}),
            QVariant(true), QVariant(QByteArray("\x01\xd9\xd0\xcb damaged")),
            QVariant(1.5),  QVariant(State{{QStringLiteral("x"), 1}})};
}

} // namespace

class TestTXWidgetUtilities : public TestBase
{
    Q_OBJECT

private slots:
    void nullIsIgnoredEverywhere();
    void plainWidgetHasItsGeometryOnly();
    void otherEntriesOfTheDictionaryStay();
    void laterOfTwoNamesakesIsKept();
    void mainWindowWithSplitterWithTreeGivesThreeLevels();
    void objectsThatAreNoWidgetsAreSkipped();

    void tableKeepsItsHorizontalHeaderOnly();
    void tableWithFixedColumnsKeepsNoHeader_data();
    void tableWithFixedColumnsKeepsNoHeader();
    void oneColumnThatIsNotFixedIsEnough();
    void treeWithoutColumnsKeepsNoHeader();
    void headerOfAListIsNone();

    void treeGetsItsColumnsAndOrderBack();
    void splitterGetsItsSizesBack();
    void mainWindowGetsItsDocksBack();
    void geometryComesBack();
    void headerThatIsFixedByNowStays();
    void verticalStateIsForViewsWithoutHorizontalState();
    void horizontalStateOfAFixedHeaderEndsTheSearch();
    void missingNameStopsTheDescent();
    void emptyEntryStopsTheDescent();
    void entryWithoutGeometryIsRestoredBelow();
    void namesakesAllGetTheSameState();
    void wrongTypesChangeNothing_data();
    void wrongTypesChangeNothing();
    void childThatGoesMeanwhileIsNotTouched();
    void stateSurvivesSettings();

    void largestLabelOfBothDirectionsCounts();
    void mnemonicsOfLabelsTakeNoRoom();
    void labelsArePolishedFirst();
    void buttonsHaveAMarginOfTwoBlanks();
    void percentSignsInButtonsAreJustText();
    void emptyListsNeedNoSize();
    void buttonListsGetTheirSize();
    void disabledSpinBoxLooksLikeAValue();
};

void TestTXWidgetUtilities::nullIsIgnoredEverywhere()
{
    State state = {{QStringLiteral("before"), 1}};
    TXWidgetUtilities::saveWidgetStateInHash(nullptr, state);
    QCOMPARE(state.size(), 1);
    TXWidgetUtilities::restoreWidgetStateInHash(nullptr, state);
    TXWidgetUtilities::treatWhenSpinBoxDisabled(nullptr);
    TXWidgetUtilities::setFixedWidthToButtonList({nullptr, nullptr}, 10);
    TXWidgetUtilities::setFixedSizeToButtonList({nullptr}, QSize(10, 10));
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForLabelList({nullptr}), QSize(0, 0));
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForButtonList({nullptr}), QSize(0, 0));
}

void TestTXWidgetUtilities::plainWidgetHasItsGeometryOnly()
{
    QWidget widget;
    widget.setObjectName("plain");
    const State state = saved(&widget);
    QCOMPARE(state.keys(), QStringList("plain"));
    QCOMPARE(sortedKeys(at(state, {"plain"})), QStringList("geometry"));
    QCOMPARE(bytes(at(state, {"plain"}), "geometry"), widget.saveGeometry());
}

void TestTXWidgetUtilities::otherEntriesOfTheDictionaryStay()
{
    QWidget widget;
    widget.setObjectName("mine");
    State state = {{QStringLiteral("other"), 5}, {QStringLiteral("mine"), 6}};
    TXWidgetUtilities::saveWidgetStateInHash(&widget, state);
    QCOMPARE(sortedKeys(state), QStringList({"mine", "other"}));
    QCOMPARE(state.value("other"), QVariant(5));
    QCOMPARE(bytes(at(state, {"mine"}), "geometry"), widget.saveGeometry());
}

void TestTXWidgetUtilities::laterOfTwoNamesakesIsKept()
{
    QWidget parent;
    parent.setObjectName("parent");
    auto *first = named(new QWidget(&parent), "same");
    auto *second = named(new QWidget(&parent), "same");
    first->setGeometry(1, 32, 30, 40);
    second->setGeometry(5, 36, 70, 80);
    QVERIFY(first->saveGeometry() != second->saveGeometry());

    const State children = at(saved(&parent), {"parent", "children"});
    QCOMPARE(children.size(), 1);
    QCOMPARE(bytes(at(children, {"same"}), "geometry"), second->saveGeometry());

    first->raise(); // Is the last of children() now.
    const State raised = at(saved(&parent), {"parent", "children", "same"});
    QCOMPARE(bytes(raised, "geometry"), first->saveGeometry());
}

void TestTXWidgetUtilities::mainWindowWithSplitterWithTreeGivesThreeLevels()
{
    QStandardItemModel model(2, 3);
    QMainWindow window;
    window.setObjectName("window");
    auto *splitter = named(new QSplitter(&window), "splitter");
    auto *tree = named(new QTreeView(splitter), "tree");
    tree->setModel(&model);
    window.setCentralWidget(splitter);

    const State state = saved(&window);
    const State top = at(state, {"window"});
    const State middle = at(top, {"children", "splitter"});
    const State bottom = at(middle, {"children", "tree"});
    QCOMPARE(bytes(top, "state"), window.saveState(0));
    QCOMPARE(bytes(middle, "state"), splitter->saveState());
    QVERIFY(!bottom.contains("state"));
    QVERIFY(!top.contains("headerState"));
    QVERIFY(!middle.contains("headerState"));
    QCOMPARE(sortedKeys(at(bottom, {"headerState"})), QStringList("horizontalState"));
    QCOMPARE(bytes(at(bottom, {"headerState"}), "horizontalState"), tree->header()->saveState());
}

void TestTXWidgetUtilities::objectsThatAreNoWidgetsAreSkipped()
{
    QWidget parent;
    parent.setObjectName("parent");
    auto *between = named(new QObject(&parent), "between");
    QObject below(between);
    QVERIFY(!at(saved(&parent), {"parent"}).contains("children"));
}

void TestTXWidgetUtilities::tableKeepsItsHorizontalHeaderOnly()
{
    QStandardItemModel model(2, 3);
    const auto table = makeTable(&model, QHeaderView::Stretch, QHeaderView::Interactive);
    const State header = at(saved(table.get()), {"table", "headerState"});
    QCOMPARE(sortedKeys(header), QStringList("horizontalState"));
    QCOMPARE(bytes(header, "horizontalState"), table->horizontalHeader()->saveState());
}

void TestTXWidgetUtilities::tableWithFixedColumnsKeepsNoHeader_data()
{
    QTest::addColumn<QHeaderView::ResizeMode>("vertical");
    QTest::newRow("rows fixed too") << QHeaderView::Fixed;
    QTest::newRow("rows free") << QHeaderView::Interactive;
}

void TestTXWidgetUtilities::tableWithFixedColumnsKeepsNoHeader()
{
    QFETCH(QHeaderView::ResizeMode, vertical);
    QStandardItemModel model(2, 3);
    const auto table = makeTable(&model, QHeaderView::Fixed, vertical);
    QVERIFY(!at(saved(table.get()), {"table"}).contains("headerState"));
}

void TestTXWidgetUtilities::oneColumnThatIsNotFixedIsEnough()
{
    QStandardItemModel model(2, 3);
    const auto table = makeTable(&model, QHeaderView::Fixed, QHeaderView::Fixed);
    table->horizontalHeader()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
    QVERIFY(at(saved(table.get()), {"table"}).contains("headerState"));
}

void TestTXWidgetUtilities::treeWithoutColumnsKeepsNoHeader()
{
    QStandardItemModel model;
    QTreeView tree;
    tree.setObjectName("tree");
    tree.setModel(&model);
    QVERIFY(!at(saved(&tree), {"tree"}).contains("headerState"));
}

void TestTXWidgetUtilities::headerOfAListIsNone()
{
    QHeaderView header(Qt::Horizontal);
    header.setObjectName("header");
    QVERIFY(!at(saved(&header), {"header"}).contains("headerState"));
}

void TestTXWidgetUtilities::treeGetsItsColumnsAndOrderBack()
{
    QStandardItemModel model(5, 3);
    QTreeView tree;
    tree.setObjectName("tree");
    tree.setModel(&model);
    tree.setSortingEnabled(true);
    tree.sortByColumn(1, Qt::DescendingOrder);
    tree.header()->setStretchLastSection(false);
    tree.setColumnWidth(0, 111);
    tree.setColumnWidth(2, 77);
    const State state = saved(&tree);

    tree.sortByColumn(2, Qt::AscendingOrder);
    tree.setColumnWidth(0, 30);
    tree.setColumnWidth(2, 200);
    TXWidgetUtilities::restoreWidgetStateInHash(&tree, state);
    QCOMPARE(tree.columnWidth(0), 111);
    QCOMPARE(tree.columnWidth(2), 77);
    QCOMPARE(tree.header()->sortIndicatorSection(), 1);
    QCOMPARE(tree.header()->sortIndicatorOrder(), Qt::DescendingOrder);
}

void TestTXWidgetUtilities::splitterGetsItsSizesBack()
{
    QSplitter splitter;
    splitter.setObjectName("splitter");
    splitter.resize(400, 100);
    splitter.addWidget(named(new QWidget, "left"));
    splitter.addWidget(named(new QWidget, "right"));
    splitter.show();
    splitter.setSizes({100, 295});
    const QList<int> sizes = splitter.sizes();
    const State state = saved(&splitter);

    splitter.setSizes({300, 95});
    QVERIFY(splitter.sizes() != sizes);
    TXWidgetUtilities::restoreWidgetStateInHash(&splitter, state);
    QCOMPARE(splitter.sizes(), sizes);
}

void TestTXWidgetUtilities::mainWindowGetsItsDocksBack()
{
    QMainWindow window;
    window.setObjectName("window");
    auto *dock = named(new QDockWidget(&window), "dock");
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    const State state = saved(&window);

    window.addDockWidget(Qt::BottomDockWidgetArea, dock);
    TXWidgetUtilities::restoreWidgetStateInHash(&window, state);
    QCOMPARE(window.dockWidgetArea(dock), Qt::LeftDockWidgetArea);
}

void TestTXWidgetUtilities::geometryComesBack()
{
    QWidget widget;
    widget.setObjectName("widget");
    widget.setGeometry(20, 30, 200, 150);
    const State state = saved(&widget);
    widget.setGeometry(50, 60, 300, 250);
    TXWidgetUtilities::restoreWidgetStateInHash(&widget, state);
    QCOMPARE(widget.geometry(), QRect(20, 30, 200, 150));
}

void TestTXWidgetUtilities::headerThatIsFixedByNowStays()
{
    QStandardItemModel model(2, 2);
    const auto table = makeTable(&model, QHeaderView::Interactive, QHeaderView::Interactive);
    table->setColumnWidth(0, 111);
    const State state = saved(table.get());

    table->setColumnWidth(0, 55);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    TXWidgetUtilities::restoreWidgetStateInHash(table.get(), state);
    QCOMPARE(table->columnWidth(0), 55);
    QCOMPARE(table->horizontalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
}

void TestTXWidgetUtilities::verticalStateIsForViewsWithoutHorizontalState()
{
    QStandardItemModel model(2, 2);
    const auto table = makeTable(&model, QHeaderView::Interactive, QHeaderView::Interactive);
    table->setRowHeight(0, 44);
    const State header = {{QStringLiteral("verticalState"), table->verticalHeader()->saveState()}};
    const State state = {{QStringLiteral("table"), State{{QStringLiteral("headerState"), header}}}};
    table->setRowHeight(0, 99);
    TXWidgetUtilities::restoreWidgetStateInHash(table.get(), state);
    QCOMPARE(table->rowHeight(0), 44);

    table->setRowHeight(0, 99);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    TXWidgetUtilities::restoreWidgetStateInHash(table.get(), state);
    QCOMPARE(table->rowHeight(0), 99);
}

void TestTXWidgetUtilities::horizontalStateOfAFixedHeaderEndsTheSearch()
{
    QStandardItemModel model(2, 2);
    const auto table = makeTable(&model, QHeaderView::Interactive, QHeaderView::Interactive);
    table->setRowHeight(0, 44);
    const State header = {
        {QStringLiteral("horizontalState"), table->horizontalHeader()->saveState()},
        {QStringLiteral("verticalState"), table->verticalHeader()->saveState()}};
    const State state = {{QStringLiteral("table"), State{{QStringLiteral("headerState"), header}}}};
    table->setRowHeight(0, 99);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    TXWidgetUtilities::restoreWidgetStateInHash(table.get(), state);
    QCOMPARE(table->rowHeight(0), 99);
}

void TestTXWidgetUtilities::missingNameStopsTheDescent()
{
    QWidget top;
    top.setObjectName("top");
    auto *middle = named(new QWidget(&top), "middle");
    auto *bottom = named(new QWidget(middle), "bottom");
    bottom->setGeometry(1, 32, 30, 40);
    const State state = saved(&top);

    bottom->setGeometry(5, 36, 70, 80);
    middle->setObjectName("renamed");
    TXWidgetUtilities::restoreWidgetStateInHash(&top, state);
    QCOMPARE(bottom->geometry(), QRect(5, 36, 70, 80));

    middle->setObjectName("middle");
    TXWidgetUtilities::restoreWidgetStateInHash(&top, state);
    QCOMPARE(bottom->geometry(), QRect(1, 32, 30, 40));
}

void TestTXWidgetUtilities::emptyEntryStopsTheDescent()
{
    QWidget widget;
    widget.setObjectName("widget");
    const QRect before = widget.geometry();
    TXWidgetUtilities::restoreWidgetStateInHash(&widget, {{QStringLiteral("widget"), State()}});
    QCOMPARE(widget.geometry(), before);
}

void TestTXWidgetUtilities::entryWithoutGeometryIsRestoredBelow()
{
    QWidget top;
    top.setObjectName("top");
    auto *child = named(new QWidget(&top), "child");
    child->setGeometry(1, 32, 30, 40);
    const State children = at(saved(&top), {"top", "children"});
    const QRect before = top.geometry();

    child->setGeometry(5, 36, 70, 80);
    TXWidgetUtilities::restoreWidgetStateInHash(
        &top, {{QStringLiteral("top"), State{{QStringLiteral("children"), children}}}});
    QCOMPARE(child->geometry(), QRect(1, 32, 30, 40));
    QCOMPARE(top.geometry(), before);
}

void TestTXWidgetUtilities::namesakesAllGetTheSameState()
{
    QWidget parent;
    parent.setObjectName("parent");
    auto *first = named(new QWidget(&parent), "same");
    auto *second = named(new QWidget(&parent), "same");
    first->setGeometry(1, 32, 30, 40);
    second->setGeometry(5, 36, 70, 80);
    TXWidgetUtilities::restoreWidgetStateInHash(&parent, saved(&parent));
    QCOMPARE(first->geometry(), QRect(5, 36, 70, 80));
    QCOMPARE(second->geometry(), QRect(5, 36, 70, 80));
}

void TestTXWidgetUtilities::wrongTypesChangeNothing_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key : {"geometry", "state", "headerState", "children", "horizontalState"}) {
        QTest::newRow(key) << QString::fromLatin1(key);
    }
}

void TestTXWidgetUtilities::wrongTypesChangeNothing()
{
    QFETCH(QString, key);
    QStandardItemModel model(2, 2);
    QMainWindow window;
    window.setObjectName("window");
    auto *splitter = named(new QSplitter(&window), "splitter");
    auto *tree = named(new QTreeView(splitter), "tree");
    tree->setModel(&model);
    window.setCentralWidget(splitter);
    const State before = saved(&window);
    const QVariantList values = wrongValues();
    for (const QVariant &value : values) {
        const State entry = key == "horizontalState"
            ? State{{QStringLiteral("headerState"), State{{key, value}}}}
            : State{{key, value}};
        const State ofSplitter = {{QStringLiteral("children"), State{{"tree", entry}}}};
        TXWidgetUtilities::restoreWidgetStateInHash(&window, {{"window", entry}});
        TXWidgetUtilities::restoreWidgetStateInHash(&window, {{"window", value}});
        TXWidgetUtilities::restoreWidgetStateInHash(splitter, {{"splitter", entry}});
        TXWidgetUtilities::restoreWidgetStateInHash(splitter, {{"splitter", ofSplitter}});
        QCOMPARE(saved(&window), before);
    }
}

void TestTXWidgetUtilities::childThatGoesMeanwhileIsNotTouched()
{
    // A child that deletes its later sibling when it is resized.
    class Jealous : public QWidget
    {
    public:
        explicit Jealous(QWidget *parent)
            : QWidget(parent)
        { }
        std::unique_ptr<QWidget> sibling;

    protected:
        void resizeEvent(QResizeEvent *) override { sibling.reset(); }
    };
    QWidget parent;
    parent.setObjectName("parent");
    auto *jealous = named(new Jealous(&parent), "jealous");
    named(new QWidget(&parent), "sibling");
    parent.show();
    const State state = saved(&parent);
    jealous->resize(7, 7);
    jealous->sibling.reset(parent.findChild<QWidget *>("sibling"));
    TXWidgetUtilities::restoreWidgetStateInHash(&parent, state);
    QCOMPARE(widgetNames(parent), QStringList("jealous"));
}

void TestTXWidgetUtilities::stateSurvivesSettings()
{
    QSplitter splitter;
    splitter.setObjectName("splitter");
    splitter.addWidget(named(new QWidget, "left"));
    const State state = saved(&splitter);
    {
        QSettings settings;
        settings.setValue("window", state);
    }
    QCOMPARE(QSettings().value("window").toHash(), state);
}

void TestTXWidgetUtilities::largestLabelOfBothDirectionsCounts()
{
    QLabel wide(QStringLiteral("a rather wide text on one line"));
    QLabel high(QStringLiteral("a\nb\nc"));
    const QFontMetrics metrics(wide.font());
    const QSize size = TXWidgetUtilities::maxSizeNeededForLabelList({&wide, nullptr, &high});
    QCOMPARE(size.width(), metrics.size(Qt::TextShowMnemonic, wide.text()).width());
    QCOMPARE(size.height(), metrics.size(Qt::TextShowMnemonic, high.text()).height());
}

void TestTXWidgetUtilities::mnemonicsOfLabelsTakeNoRoom()
{
    QLabel plain(QStringLiteral("Login"));
    QLabel marked(QStringLiteral("&Login"));
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForLabelList({&marked}),
             TXWidgetUtilities::maxSizeNeededForLabelList({&plain}));
}

void TestTXWidgetUtilities::labelsArePolishedFirst()
{
    QWidget parent;
    parent.setStyleSheet(QStringLiteral("QLabel { font-size: 40px; }"));
    QLabel label(QStringLiteral("Login"), &parent);
    QVERIFY(TXWidgetUtilities::maxSizeNeededForLabelList({&label}).height() >= 40);
}

void TestTXWidgetUtilities::buttonsHaveAMarginOfTwoBlanks()
{
    QPushButton button(QStringLiteral("Apply"));
    const QFontMetrics metrics(button.font());
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForButtonList({nullptr, &button}),
             metrics.size(Qt::TextShowMnemonic, QStringLiteral("  Apply  ")));
}

void TestTXWidgetUtilities::percentSignsInButtonsAreJustText()
{
    QPushButton button(QStringLiteral("100 %1 %2"));
    const QFontMetrics metrics(button.font());
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForButtonList({&button}),
             metrics.size(Qt::TextShowMnemonic, QStringLiteral("  100 %1 %2  ")));
}

void TestTXWidgetUtilities::emptyListsNeedNoSize()
{
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForLabelList({}), QSize(0, 0));
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForButtonList({}), QSize(0, 0));
}

void TestTXWidgetUtilities::buttonListsGetTheirSize()
{
    QPushButton first;
    QPushButton second;
    TXWidgetUtilities::setFixedWidthToButtonList({&first, nullptr, &second}, 123);
    for (const QPushButton *button : {&first, &second}) {
        QCOMPARE(button->minimumWidth(), 123);
        QCOMPARE(button->maximumWidth(), 123);
        QCOMPARE(button->minimumHeight(), 0);
    }
    TXWidgetUtilities::setFixedSizeToButtonList({&first, nullptr, &second}, QSize(45, 67));
    for (const QPushButton *button : {&first, &second}) {
        QCOMPARE(button->minimumSize(), QSize(45, 67));
        QCOMPARE(button->maximumSize(), QSize(45, 67));
    }
}

void TestTXWidgetUtilities::disabledSpinBoxLooksLikeAValue()
{
    QDoubleSpinBox box;
    box.setEnabled(false);
    TXWidgetUtilities::treatWhenSpinBoxDisabled(&box);
    QVERIFY(!box.hasFrame());
    QVERIFY(box.isReadOnly());
    QCOMPARE(box.buttonSymbols(), QAbstractSpinBox::NoButtons);

    box.setEnabled(true);
    box.setButtonSymbols(QAbstractSpinBox::PlusMinus);
    TXWidgetUtilities::treatWhenSpinBoxDisabled(&box);
    QVERIFY(box.hasFrame());
    QVERIFY(!box.isReadOnly());
    QCOMPARE(box.buttonSymbols(), QAbstractSpinBox::UpDownArrows);
}

int main(int argc, char **argv)
{
    return runTest<TestTXWidgetUtilities>(argc, argv);
}

#include "tst_TXWidgetUtilities.moc"
