#include "TestBase.h"
#include "WidgetStateHelpers.h"

#include <functional>

using WidgetStateTest::kChildren;
using WidgetStateTest::kGeometry;
using WidgetStateTest::kState;
using WidgetStateTest::restore;
using WidgetStateTest::saved;
using WidgetStateTest::State;
using WidgetStateTest::Window;
using WidgetStateTest::withoutGeometries;

namespace {

/// Puts a value in the place of each value of the dictionary in turn, at all depths, and hands each
/// changed dictionary on.
void forEachReplaced(const State &state, const std::function<QVariant(const QVariant &)> &change,
                     const std::function<void(const State &)> &use)
{
    for (auto value = state.cbegin(); value != state.cend(); ++value) {
        State changed = state;
        changed.insert(value.key(), change(value.value()));
        use(changed);
        if (value->typeId() == QMetaType::QVariantHash) {
            forEachReplaced(value->toHash(), change, [&](const State &inner) {
                changed.insert(value.key(), inner);
                use(changed);
            });
        }
    }
}

} // namespace

class TestDamagedWidgetState : public TestBase
{
    Q_OBJECT

private slots:
    void valueOfAnotherTypeDoesNoHarm_data();
    void valueOfAnotherTypeDoesNoHarm();
    void bytesThatAreCutShortDoNoHarm();
    void bytesOfAnotherWidgetDoNoHarm();
};

void TestDamagedWidgetState::valueOfAnotherTypeDoesNoHarm_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("truth") << QVariant(true);
    QTest::newRow("number") << QVariant(12);
    QTest::newRow("fraction") << QVariant(1.5);
    QTest::newRow("text") << QVariant(QStringLiteral("geometry"));
    QTest::newRow("megabyte of text") << QVariant(QString(1000000, u'x'));
    QTest::newRow("empty bytes") << QVariant(QByteArray());
    QTest::newRow("megabyte of zeros") << QVariant(QByteArray(1000000, '\0'));
    QTest::newRow("list") << QVariant(QVariantList{1, QByteArray("x")});
    QTest::newRow("texts") << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b")});
    QTest::newRow("empty dictionary") << QVariant(State());
    QTest::newRow("dictionary") << QVariant(State{{kGeometry, 1}, {kState, 2}, {kChildren, 3}});
    QTest::newRow("map") << QVariant(QVariantMap{{kGeometry, 1}});
    QTest::newRow("size") << QVariant(QSize(3, 4));
    QTest::newRow("null pointer") << QVariant::fromValue(nullptr);
}

void TestDamagedWidgetState::valueOfAnotherTypeDoesNoHarm()
{
    QFETCH(QVariant, value);
    Window window;
    const State state = saved(&window.window);
    const State kept = withoutGeometries(state);
    int replaced = 0;
    int changes = 0;
    forEachReplaced(
        state, [&value](const QVariant &) { return value; },
        [&](const State &changed) {
            ++replaced;
            restore(&window.window, changed);
            Window::deliver();
            // What is of no use changes nothing, and the rest is what it was anyway.
            const bool isKept = withoutGeometries(saved(&window.window)) == kept
                && window.window.size() == QSize(400, 300);
            changes += isKept ? 0 : 1;
        });

    QVERIFY(replaced > 20);
    QCOMPARE(changes, 0);
}

void TestDamagedWidgetState::bytesThatAreCutShortDoNoHarm()
{
    Window window;
    const State state = saved(&window.window);
    for (const int part : {1, 4, 8, 20, 50, 90}) {
        forEachReplaced(
            state,
            [part](const QVariant &value) {
                return value.typeId() == QMetaType::QByteArray
                    ? QVariant(value.toByteArray().left(value.toByteArray().size() * part / 100))
                    : value;
            },
            [&](const State &changed) {
                restore(&window.window, changed);
                Window::deliver();
            });
    }
    restore(&window.window, state);
    Window::deliver();

    QCOMPARE(withoutGeometries(saved(&window.window)), withoutGeometries(state));
}

void TestDamagedWidgetState::bytesOfAnotherWidgetDoNoHarm()
{
    Window window;
    const State state = saved(&window.window);
    for (const QByteArray &bytes :
         {window.window.saveGeometry(), window.window.saveState(0), window.splitter->saveState(),
          window.tree->header()->saveState(), window.table->verticalHeader()->saveState()}) {
        forEachReplaced(
            state,
            [&bytes](const QVariant &value) {
                return value.typeId() == QMetaType::QByteArray ? QVariant(bytes) : value;
            },
            [&](const State &changed) {
                restore(&window.window, changed);
                Window::deliver();
            });
    }
    restore(&window.window, state);
    Window::deliver();

    QCOMPARE(window.splitter->count(), 2);
    QCOMPARE(window.tree->header()->count(), 4);
}

int main(int argc, char **argv)
{
    return runTest<TestDamagedWidgetState>(argc, argv);
}

#include "tst_DamagedWidgetState.moc"
