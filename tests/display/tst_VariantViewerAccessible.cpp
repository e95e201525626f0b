#include "VariantViewerAccessible.h"

#include "AccessibleEvents.h"
#include "TestBase.h"
#include "VariantPlainText.h"
#include "VariantViewerHelpers.h"

#include <QAccessible>
#include <QClipboard>
#include <QDateTime>
#include <QLabel>
#include <QPushButton>
#include <QUrl>

#include <memory>

using VariantViewerHelpers::entriesOf;
using VariantViewerHelpers::nestedLists;
using VariantViewerHelpers::nestedValue;

namespace {

const QString kStateChange = QString::number(QAccessible::StateChanged);

/// What viewers tell, without the news of their showing that Qt has for every widget.
QStringList toldAboutValues()
{
    QStringList told;
    for (const QString &event : AccessibleEvents::take()) {
        if (event == kStateChange || event.contains(QLatin1Char(' '))) {
            told.append(event);
        }
    }
    return told;
}

QAccessibleInterface *accessible(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

} // namespace

class TestVariantViewerAccessible : public TestBase
{
    Q_OBJECT

private slots:
    void valueAndKindAreTold_data();
    void valueAndKindAreTold();
    void longValueIsCut_data();
    void longValueIsCut();
    void hugeValueIsNotRenderedWhole();
    void treeHoldsItsItemsInOrder();
    void buttonForMoreIsTheLastItem();
    void namesAreKeysAndPlaces();
    void placesGoOnBehindTheButton();
    void foldedEntriesHaveNoPlace();
    void blankKeysAreNamedInQuotes_data();
    void blankKeysAreNamedInQuotes();
    void valueIsToldWithoutAPreview();
    void hostNamesTheRoot();
    void stateTellsWhatCanBeOpened();
    void focusIsTold();
    void actionOpensAndCloses();
    void actionCopies();
    void disabledViewerHasNoActions();
    void foldingAndNewValuesAreTold();
    void nothingIsToldWithoutListeners();

protected:
    void prepare() override;
    void finish() override;

private:
    std::unique_ptr<TXVariantViewer> root;
    QAccessibleInterface *tree = nullptr;
};

void TestVariantViewerAccessible::prepare()
{
    root = std::make_unique<TXVariantViewer>(nullptr);
    root->setValue(nestedValue());
    tree = accessible(root.get());
    QVERIFY(tree);
}

void TestVariantViewerAccessible::finish()
{
    AccessibleEvents::start(false);
    root.reset();
}

void TestVariantViewerAccessible::valueAndKindAreTold_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kind");
    const QVariantList list{1, QVariantList(), QVariantMap()};
    const QVariantMap node{{"a", 1}, {"children", QStringList{"x"}}, {"z", true}};
    QTest::newRow("map") << nestedValue() << R"({a: [1, 2], b: {x: true, y: "text"}, c: 3})"
                         << "dictionary, 3 entries: {a: [1, 2], b: {x: true, y: \"text\"}, c: 3}";
    QTest::newRow("one entry") << QVariant(QVariantHash{{"<k>", 1}}) << "{<k>: 1}"
                               << "dictionary, one entry: {<k>: 1}";
    QTest::newRow("empty map") << QVariant(QVariantMap()) << "{}"
                               << "dictionary, 0 entries: {}";
    QTest::newRow("node") << QVariant(node) << R"({a: 1, z: true, children: ["x"]})"
                          << R"(dictionary, 3 entries: {a: 1, z: true, children: ["x"]})";
    QTest::newRow("children only") << QVariant(QVariantMap{{"children", 1}}) << "{children: 1}"
                                   << "dictionary, one entry: {children: 1}";
    QTest::newRow("list") << QVariant(list) << "[1, [], {}]"
                          << "list, 3 entries: [1, [], {}]";
    QTest::newRow("texts") << QVariant(QStringList{"a", "b"}) << R"(["a", "b"])"
                           << R"(list, 2 entries: ["a", "b"])";
    QTest::newRow("one text") << QVariant(QStringList{"a"}) << R"(["a"])"
                              << R"(list, one entry: ["a"])";
    QTest::newRow("placeholder") << QVariant(QStringList{"%1 %2"}) << R"(["%1 %2"])"
                                 << R"(list, one entry: ["%1 %2"])";
    QTest::newRow("null map") << QVariant(QMetaType(QMetaType::QVariantMap)) << "null"
                              << "null, nothing";
    QTest::newRow("text") << QVariant("a & <b>") << "\"a & <b>\""
                          << "\"a & <b>\", text";
    QTest::newRow("bytes") << QVariant(QByteArray("b")) << "\"b\""
                           << "\"b\", text";
    QTest::newRow("invalid") << QVariant() << "null"
                             << "null, nothing";
    QTest::newRow("bool") << QVariant(false) << "false"
                          << "false, true or false";
    QTest::newRow("int") << QVariant(42) << "42"
                         << "42, whole number";
    QTest::newRow("null int") << QVariant(QMetaType(QMetaType::Int)) << "0"
                              << "0, whole number";
    QTest::newRow("short") << QVariant::fromValue<short>(-3) << "-3"
                           << "-3, whole number";
    QTest::newRow("double") << QVariant(0.25) << "0.25"
                            << "0.25, number";
    QTest::newRow("date") << QVariant(QDate(2024, 2, 29)) << "2024-02-29"
                          << "2024-02-29, date";
    QTest::newRow("time") << QVariant(QTime(13, 5)) << "13:05:00.000"
                          << "13:05:00.000, time";
    QTest::newRow("date and time") << QVariant(QDateTime(QDate(2024, 2, 29), QTime(13, 5), Qt::UTC))
                                   << "2024-02-29T13:05:00.000Z"
                                   << "2024-02-29T13:05:00.000Z, date and time";
    QTest::newRow("address") << QVariant(QUrl("http://localhost/")) << "http://localhost/"
                             << "http://localhost/, address";
    QTest::newRow("other") << QVariant(QChar(u'x')) << "x"
                           << "x, value";
    QTest::newRow("without text") << QVariant::fromValue(QSize(1, 2)) << ""
                                  << "value";
}

void TestVariantViewerAccessible::valueAndKindAreTold()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QFETCH(QString, kind);
    root->setValue(value);
    QCOMPARE(tree->text(QAccessible::Value), text);
    QCOMPARE(tree->text(QAccessible::Description), kind);
}

void TestVariantViewerAccessible::longValueIsCut_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    const QString x(5000, u'x');
    const QString ellipsis(QChar(0x2026));
    const QString pair = QString::fromUcs4(U"\U0001F600", 1);
    QTest::newRow("fits") << QVariant(x.left(998)) << u'"' + x.left(998) + u'"';
    QTest::newRow("one too many") << QVariant(x.left(999)) << u'"' + x.left(999) + ellipsis;
    QTest::newRow("text") << QVariant(x) << u'"' + x.left(999) + ellipsis;
    QTest::newRow("bytes") << QVariant(x.toLatin1()) << u'"' + x.left(999) + ellipsis;
    QTest::newRow("key") << QVariant(QVariantMap{{x, 1}}) << u'{' + x.left(999) + ellipsis;
    QTest::newRow("surrogates") << QVariant(x.left(998) + pair + x)
                                << u'"' + x.left(998) + ellipsis;
    QTest::newRow("nested") << nestedLists(900)
                            << QString(900, u'[') + u'1' + QString(99, u']') + ellipsis;
}

void TestVariantViewerAccessible::longValueIsCut()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QCOMPARE(VariantPlainText::fromVariant(value), text);
}

void TestVariantViewerAccessible::hugeValueIsNotRenderedWhole()
{
    constexpr int kEntries = 200000;
    constexpr int kReads = 1000;
    const QVariantList list(kEntries, QVariant(QString(100, u'x')));
    const QVariant value(list);
    // Rendered whole this would be 20 GB of text.
    for (int i = 0; i < kReads; ++i) {
        QCOMPARE(VariantPlainText::fromVariant(value).size(), 1001);
    }
}

void TestVariantViewerAccessible::treeHoldsItsItemsInOrder()
{
    QCOMPARE(tree->role(), QAccessible::Tree);
    QCOMPARE(tree->childCount(), 0);
    root->expand();
    const QList<TXVariantViewer *> entries = entriesOf(*root);
    QCOMPARE(tree->childCount(), 3);
    for (int i = 0; i < 3; ++i) {
        QAccessibleInterface *item = tree->child(i);
        QVERIFY(item);
        QCOMPARE(item->object(), entries.at(i));
        QCOMPARE(item->role(), QAccessible::TreeItem);
        QCOMPARE(item->parent()->object(), root.get());
        QCOMPARE(tree->indexOfChild(item), i);
    }
    QVERIFY(!tree->child(-1));
    QVERIFY(!tree->child(3));
    QCOMPARE(tree->indexOfChild(nullptr), -1);
    QCOMPARE(tree->indexOfChild(tree), -1);
    QCOMPARE(tree->indexOfChild(accessible(root->findChild<QLabel *>())), -1);

    root->collapse();
    QCOMPARE(tree->childCount(), 0);
}

void TestVariantViewerAccessible::namesAreKeysAndPlaces()
{
    QCOMPARE(tree->text(QAccessible::Name), "Value");
    root->setValue(QVariantMap{{"a < b  &c", QVariantList{5, 6}}});
    root->expand();
    TXVariantViewer *entry = entriesOf(*root).first();
    QTRY_COMPARE(tree->child(0)->text(QAccessible::Name), "a < b  &c");
    entry->expand();
    QCOMPARE(tree->child(0)->child(0)->text(QAccessible::Name), "[0]");
    QCOMPARE(tree->child(0)->child(1)->text(QAccessible::Name), "[1]");
    QCOMPARE(tree->child(0)->child(1)->text(QAccessible::Value), "6");
}

/// Those of a list count on over the portions, and a dictionary has them as well.
void TestVariantViewerAccessible::placesGoOnBehindTheButton()
{
    constexpr int kCount = TXVariantViewer::kEntriesAtOnce + 7;
    QVariantMap map;
    for (int i = 0; i < kCount; ++i) {
        map.insert(QStringLiteral("%1").arg(i, 5, 10, QLatin1Char('0')), i);
    }
    root->setPreview(false);
    for (const QVariant &value : {QVariant(QVariantList(kCount, 7)), QVariant(map)}) {
        root->setValue(value);
        root->expand();
        tree->child(TXVariantViewer::kEntriesAtOnce)->actionInterface()->doAction("Press");
        // A button is pressed for a moment before it acts.
        QTRY_COMPARE(tree->childCount(), kCount);
        for (int i = 0; i < kCount; ++i) {
            const QAccessibleInterface *item = tree->child(i);
            const QString name = item->text(QAccessible::Name);
            QCOMPARE(tree->indexOfChild(item), i);
            QCOMPARE(name.mid(value == map ? 0 : 1).section(u']', 0, 0).toInt(), i);
        }
    }
}

void TestVariantViewerAccessible::foldedEntriesHaveNoPlace()
{
    root->setValue(QVariantList{1, 2, 3});
    root->expand();
    TXVariantViewer *first = entriesOf(*root).first();
    TXVariantViewer *third = entriesOf(*root).at(2);
    QCOMPARE(tree->indexOfChild(accessible(third)), 2);
    // They live until the event loop goes on.
    root->setValue(QVariantMap{{"a", 1}, {"b", 2}});
    QCOMPARE(tree->indexOfChild(accessible(third)), -1);
    root->expand();
    QCOMPARE(tree->indexOfChild(accessible(first)), -1);
    QCOMPARE(tree->indexOfChild(accessible(third)), -1);
    QCOMPARE(tree->indexOfChild(tree->child(0)), 0);
    QCOMPARE(tree->indexOfChild(tree->child(1)), 1);
    // Nor has one of another tree that has the same place there.
    TXVariantViewer other;
    other.setValue(QVariantList{1, 2});
    other.expand();
    QCOMPARE(tree->indexOfChild(accessible(entriesOf(other).at(1))), -1);
}

void TestVariantViewerAccessible::blankKeysAreNamedInQuotes_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString() << "\"\"";
    QTest::newRow("spaces") << "  "
                            << "\"  \"";
    QTest::newRow("spaces around a letter") << " a "
                                            << " a ";
}

void TestVariantViewerAccessible::blankKeysAreNamedInQuotes()
{
    QFETCH(QString, key);
    root->setValue(QVariantMap{{key, 1}});
    root->expand();
    QTEST(tree->child(0)->text(QAccessible::Name), "name");
}

void TestVariantViewerAccessible::valueIsToldWithoutAPreview()
{
    root->setPreview(false);
    root->setValue(QVariantList{1, 2});
    QCOMPARE(tree->text(QAccessible::Value), "[1, 2]");
    QCOMPARE(tree->text(QAccessible::Description), "list, 2 entries: [1, 2]");
}

void TestVariantViewerAccessible::buttonForMoreIsTheLastItem()
{
    constexpr int kAtOnce = TXVariantViewer::kEntriesAtOnce;
    root->setPreview(false);
    root->setValue(QVariantList(kAtOnce + 1, 7));
    QCOMPARE(tree->childCount(), 0);
    root->expand();
    QCOMPARE(tree->childCount(), kAtOnce + 1);
    auto *widget = root->findChild<QPushButton *>(QString(), Qt::FindDirectChildrenOnly);
    QAccessibleInterface *button = tree->child(kAtOnce);
    QVERIFY(button);
    QCOMPARE(button->object(), widget);
    QCOMPARE(button->role(), QAccessible::PushButton);
    QCOMPARE(button->text(QAccessible::Name), "Show 1 more of 5,001");
    QCOMPARE(button->parent(), tree);
    QCOMPARE(tree->indexOfChild(button), kAtOnce);
    QCOMPARE(tree->child(kAtOnce - 1)->object(), entriesOf(*root).last());
    QVERIFY(!tree->child(kAtOnce + 1));

    widget->click();
    QCOMPARE(tree->childCount(), kAtOnce + 1);
    QCOMPARE(tree->child(kAtOnce)->object(), entriesOf(*root).last());
    QCOMPARE(tree->indexOfChild(accessible(widget)), -1);
}

void TestVariantViewerAccessible::hostNamesTheRoot()
{
    root->setAccessibleName(QStringLiteral("Settings"));
    root->setAccessibleDescription(QStringLiteral("All of them"));
    QCOMPARE(tree->text(QAccessible::Name), "Settings");
    QVERIFY(tree->text(QAccessible::Description).startsWith("All of them\n"));
    QVERIFY(tree->text(QAccessible::Description).endsWith(tree->text(QAccessible::Value)));
}

void TestVariantViewerAccessible::stateTellsWhatCanBeOpened()
{
    QVERIFY(tree->state().expandable);
    QVERIFY(tree->state().collapsed);
    QVERIFY(!tree->state().expanded);
    root->expand();
    QVERIFY(tree->state().expanded);
    QVERIFY(!tree->state().collapsed);
    const QAccessible::State number = tree->child(2)->state();
    QVERIFY(!number.expandable);
    QVERIFY(!number.expanded);
    QVERIFY(!number.collapsed);
    QVERIFY(number.focusable);
}

void TestVariantViewerAccessible::focusIsTold()
{
    root->expand();
    root->show();
    QVERIFY(QTest::qWaitForWindowActive(root.get()));
    entriesOf(*root).at(1)->setFocus();
    QVERIFY(!tree->state().focused);
    QVERIFY(tree->child(1)->state().focused);
    QCOMPARE(tree->focusChild()->object(), entriesOf(*root).at(1));
}

void TestVariantViewerAccessible::actionOpensAndCloses()
{
    const QString toggle = QAccessibleActionInterface::toggleAction();
    QAccessibleActionInterface *actions = tree->actionInterface();
    QVERIFY(actions);
    QVERIFY(actions->actionNames().contains(toggle));
    QCOMPARE(actions->localizedActionName(toggle), "Expand");
    QCOMPARE(actions->keyBindingsForAction(toggle), QStringList("Space"));
    actions->doAction(toggle);
    QVERIFY(root->isExpanded());
    QCOMPARE(actions->localizedActionName(toggle), "Collapse");
    QVERIFY(!tree->child(2)->actionInterface()->actionNames().contains(toggle));
    actions->doAction(toggle);
    QVERIFY(!root->isExpanded());
}

void TestVariantViewerAccessible::actionCopies()
{
    QAccessibleActionInterface *actions = tree->actionInterface();
    const QString copy = actions->actionNames().last();
    QCOMPARE(actions->localizedActionName(copy), "Copy value (JSON encoded)");
    root->setValue(QVariantList{1, 2});
    actions->doAction(copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), "[1,2]");
    actions->doAction(QStringLiteral("unknown"));
    QCOMPARE(QGuiApplication::clipboard()->text(), "[1,2]");
}

void TestVariantViewerAccessible::disabledViewerHasNoActions()
{
    root->setEnabled(false);
    QAccessibleActionInterface *actions = tree->actionInterface();
    QVERIFY(actions->actionNames().isEmpty());
    actions->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(!root->isExpanded());
}

void TestVariantViewerAccessible::foldingAndNewValuesAreTold()
{
    root->show();
    QVERIFY(QTest::qWaitForWindowExposed(root.get()));
    AccessibleEvents::start(true);
    root->expand();
    QCOMPARE(toldAboutValues(), QStringList(kStateChange));
    root->collapse();
    QCOMPARE(toldAboutValues(), QStringList(kStateChange));
    root->setValue(42);
    QCOMPARE(toldAboutValues(), QStringList("description 42, whole number"));
}

void TestVariantViewerAccessible::nothingIsToldWithoutListeners()
{
    root->show();
    QVERIFY(QTest::qWaitForWindowExposed(root.get()));
    AccessibleEvents::start(false);
    root->expand();
    root->setValue(5);
    QCOMPARE(toldAboutValues(), QStringList());
}

int main(int argc, char **argv)
{
    return runTest<TestVariantViewerAccessible>(argc, argv);
}

#include "tst_VariantViewerAccessible.moc"
