#include "TXVariantViewer.h"

#include "DialogDriver.h"
#include "TestBase.h"
#include "VariantViewerHelpers.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

#include <functional>
#include <memory>

using VariantViewerHelpers::entriesOf;
using VariantViewerHelpers::nestedLists;
using VariantViewerHelpers::nestedValue;

namespace {

const QString kOldText = QStringLiteral("old");
constexpr int kDeepestNesting = 1024;

/// Asks for the menu and hands it to the answer, which has to close it.
void openMenu(QWidget &widget, const std::function<void(QMenu &)> &answer,
              QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse,
              QPoint globalPlace = QPoint(100, 120))
{
    bool isAnswered = false;
    QTimer::singleShot(0, &widget, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        isAnswered = true;
        answer(*menu);
    });
    QContextMenuEvent event(reason, widget.mapFromGlobal(globalPlace), globalPlace);
    QApplication::sendEvent(&widget, &event);
    QVERIFY(isAnswered);
    QVERIFY(!QApplication::activePopupWidget());
}

void choose(QMenu &menu)
{
    QTest::mouseClick(&menu, Qt::LeftButton, {},
                      menu.actionGeometry(menu.actions().at(0)).center());
}

/// An open viewer and a widget without use for keys, in a window with an action for "copy".
struct WindowWithCopyAction
{
    std::unique_ptr<QWidget> widget = std::make_unique<QWidget>();
    TXVariantViewer *viewer = new TXVariantViewer(widget.get());
    QWidget *other = new QWidget(widget.get());
    QAction *action = new QAction(widget.get());
    std::unique_ptr<QSignalSpy> copies = std::make_unique<QSignalSpy>(action, SIGNAL(triggered()));

    WindowWithCopyAction()
    {
        action->setShortcut(QKeySequence::Copy);
        widget->addAction(action);
        viewer->setValue(QVariantList{1, 2});
        viewer->expand();
        other->setFocusPolicy(Qt::StrongFocus);
        widget->show();
        QVERIFY(QTest::qWaitForWindowActive(widget.get()));
    }
};

QVariant nullOf(QMetaType::Type type)
{
    return QVariant(QMetaType(type));
}

} // namespace

class TestTXVariantViewerMenu : public TestBase
{
    Q_OBJECT

private slots:
    void valueIsCopiedAsItsTypeAsks_data();
    void valueIsCopiedAsItsTypeAsks();
    void menuThatIsClosedCopiesNothing();
    void menuOpensAtTheMouse();
    void menuByKeyOpensAtTheLine();
    void menuByKeyOpensAtTheFoldBoxOfAnOpenViewer();
    void menuOfTheLabelIsThatOfItsViewer();
    void menuWithinIsThatOfTheInnerViewer();
    void menuCopiesTheValueThatItWasOpenedFor();
    void viewerMayDieWhileItsMenuIsOpen();
    void menuLeavesNothingBehind();
    void valueThatJsonRefusesLeavesTheClipboard();
    void deepestValueThatJsonTakesIsCopied();
    void keysForCopyGoBeforeAShortcutOfTheWindow();
    void keysForCopyAreTheWindowsWithTheFocusElsewhere();

protected:
    void prepare() override;
    void finish() override;

private:
    std::unique_ptr<TXVariantViewer> viewer;
};

void TestTXVariantViewerMenu::prepare()
{
    QGuiApplication::clipboard()->setText(kOldText);
    viewer = std::make_unique<TXVariantViewer>(nullptr);
    viewer->resize(300, 100);
    viewer->show();
    QVERIFY(QTest::qWaitForWindowActive(viewer.get()));
}

void TestTXVariantViewerMenu::finish()
{
    viewer.reset();
}

void TestTXVariantViewerMenu::valueIsCopiedAsItsTypeAsks_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("copied");
    const QString json = QStringLiteral("Copy value (JSON encoded)");
    const QString string = QStringLiteral("Copy string value");
    const QString plain = QStringLiteral("Copy value");
    const QString key = QStringLiteral("k");
    QTest::newRow("map") << QVariant(QVariantMap{{key, 1}}) << json << R"({"k":1})";
    QTest::newRow("empty map") << QVariant(QVariantMap()) << json << "{}";
    QTest::newRow("hash") << QVariant(QVariantHash{{key, true}}) << json << R"({"k":true})";
    QTest::newRow("list") << QVariant(QVariantList{1, "a\nb"}) << json << R"([1,"a\nb"])";
    QTest::newRow("texts") << QVariant(QStringList{key}) << json << R"(["k"])";
    QTest::newRow("text") << QVariant("say \"<b>\"\n") << string << "say \"<b>\"\n";
    QTest::newRow("empty text") << QVariant(QString()) << string << "";
    QTest::newRow("bytes") << QVariant(QByteArray("\xc3\xa4")) << string << QString(QChar(0xe4));
    QTest::newRow("true") << QVariant(true) << plain << "true";
    QTest::newRow("false") << QVariant(false) << plain << "false";
    QTest::newRow("invalid") << QVariant() << plain << "null";
    QTest::newRow("null pointer") << QVariant::fromValue(nullptr) << plain << "null";
    QTest::newRow("null text") << nullOf(QMetaType::QString) << string << "\"\"";
    QTest::newRow("null int") << nullOf(QMetaType::Int) << plain << "0";
    QTest::newRow("null date") << nullOf(QMetaType::QDate) << plain << "null";
    QTest::newRow("int") << QVariant(-5) << plain << "-5";
    QTest::newRow("long") << QVariant(Q_INT64_C(9007199254740993)) << plain << "9007199254740993";
    QTest::newRow("double") << QVariant(0.5) << plain << "0.5";
    QTest::newRow("float") << QVariant(0.5F) << plain << "0.5";
    QTest::newRow("date") << QVariant(QDate(2024, 2, 29)) << plain << "2024-02-29";
    QTest::newRow("no text") << QVariant::fromValue(QSize(1, 2)) << plain << "";
}

void TestTXVariantViewerMenu::valueIsCopiedAsItsTypeAsks()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QFETCH(QString, copied);
    viewer->setValue(value);
    openMenu(*viewer, [&](QMenu &menu) {
        QCOMPARE(menu.actions().size(), 1);
        QCOMPARE(menu.actions().at(0)->text(), text);
        choose(menu);
    });
    QCOMPARE(QGuiApplication::clipboard()->text(), copied);

    QGuiApplication::clipboard()->setText(kOldText);
    viewer->setFocus();
    QTest::keySequence(viewer.get(), QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), copied);
}

void TestTXVariantViewerMenu::menuThatIsClosedCopiesNothing()
{
    viewer->setValue(5);
    openMenu(*viewer, [](QMenu &menu) { QTest::keyClick(&menu, Qt::Key_Escape); });
    QCOMPARE(QGuiApplication::clipboard()->text(), kOldText);
}

void TestTXVariantViewerMenu::menuOpensAtTheMouse()
{
    viewer->setValue(5);
    openMenu(*viewer, [](QMenu &menu) {
        QCOMPARE(menu.pos(), QPoint(100, 120));
        menu.close();
    });
}

void TestTXVariantViewerMenu::menuByKeyOpensAtTheLine()
{
    viewer->setValue(nestedValue());
    const auto *label = viewer->findChild<QLabel *>();
    QCoreApplication::processEvents();
    const QPoint place = viewer->mapToGlobal(QPoint(0, label->geometry().bottom()));
    openMenu(
        *viewer,
        [place](QMenu &menu) {
            QCOMPARE(menu.pos(), place);
            menu.close();
        },
        QContextMenuEvent::Keyboard);
}

void TestTXVariantViewerMenu::menuByKeyOpensAtTheFoldBoxOfAnOpenViewer()
{
    viewer->setValue(nestedValue());
    viewer->expand();
    const QRect box(viewer->mapToGlobal(QPoint(0, 0)), QSize(21, 30));
    openMenu(
        *viewer,
        [box](QMenu &menu) {
            QVERIFY(box.contains(menu.pos()));
            menu.close();
        },
        QContextMenuEvent::Keyboard);
}

void TestTXVariantViewerMenu::menuOfTheLabelIsThatOfItsViewer()
{
    viewer->setValue(QStringLiteral("text"));
    auto *label = viewer->findChild<QLabel *>();
    openMenu(*label, [](QMenu &menu) { choose(menu); });
    QCOMPARE(QGuiApplication::clipboard()->text(), "text");
}

void TestTXVariantViewerMenu::menuWithinIsThatOfTheInnerViewer()
{
    viewer->setValue(nestedValue());
    viewer->expand();
    openMenu(*entriesOf(*viewer).last(), [](QMenu &menu) { choose(menu); });
    QCOMPARE(QGuiApplication::clipboard()->text(), "3");
}

void TestTXVariantViewerMenu::menuCopiesTheValueThatItWasOpenedFor()
{
    viewer->setValue(QVariantList{1, 2});
    openMenu(*viewer, [this](QMenu &menu) {
        viewer->setValue(QStringLiteral("secret"));
        QCOMPARE(menu.actions().at(0)->text(), "Copy value (JSON encoded)");
        choose(menu);
    });
    QCOMPARE(QGuiApplication::clipboard()->text(), "[1,2]");
}

void TestTXVariantViewerMenu::viewerMayDieWhileItsMenuIsOpen()
{
    viewer->setValue(nestedValue());
    viewer->expand();
    TXVariantViewer *inner = entriesOf(*viewer).first();
    QPointer<QMenu> opened;
    bool isOpened = false;
    QTimer::singleShot(0, viewer.get(), [&] {
        opened = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        isOpened = !opened.isNull();
        viewer.reset();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(1, 1), QPoint(100, 100));
    QApplication::sendEvent(inner, &event);

    QVERIFY(isOpened);
    QVERIFY(!opened);
    QVERIFY(!viewer);
    QCOMPARE(QGuiApplication::clipboard()->text(), kOldText);
}

void TestTXVariantViewerMenu::menuLeavesNothingBehind()
{
    viewer->setValue(5);
    QPointer<QMenu> opened;
    openMenu(*viewer, [&](QMenu &menu) {
        opened = &menu;
        choose(menu);
    });
    QTRY_VERIFY(!opened);
}

void TestTXVariantViewerMenu::valueThatJsonRefusesLeavesTheClipboard()
{
    viewer->setValue(nestedLists(kDeepestNesting + 1));
    DialogDriver driver;
    for (int way = 0; way < 2; ++way) {
        driver.expectMessageBox([&](QMessageBox &box) {
            QCOMPARE(box.icon(), QMessageBox::Warning);
            QCOMPARE(box.parentWidget(), viewer.get());
            QVERIFY(box.text().contains(QStringLiteral("1024 levels")));
            QCOMPARE(box.textFormat(), Qt::PlainText);
            DialogDriver::click(box.button(QMessageBox::Ok));
        });
        if (way == 0) {
            openMenu(*viewer, [](QMenu &menu) { choose(menu); });
        } else {
            QTest::keySequence(viewer.get(), QKeySequence::Copy);
        }
        QCOMPARE(QGuiApplication::clipboard()->text(), kOldText);
    }
}

void TestTXVariantViewerMenu::deepestValueThatJsonTakesIsCopied()
{
    viewer->setValue(nestedLists(kDeepestNesting));
    openMenu(*viewer, [](QMenu &menu) { choose(menu); });
    QCOMPARE(QGuiApplication::clipboard()->text(),
             QString(kDeepestNesting, u'[') + u'1' + QString(kDeepestNesting, u']'));
}

void TestTXVariantViewerMenu::keysForCopyGoBeforeAShortcutOfTheWindow()
{
    const WindowWithCopyAction window;
    TXVariantViewer *inner = entriesOf(*window.viewer).constLast();
    for (TXVariantViewer *target : {window.viewer, inner}) {
        QGuiApplication::clipboard()->setText(kOldText);
        target->setFocus();
        QTest::keySequence(window.widget->windowHandle(), QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->text(), target == inner ? "2" : "[1,2]");
    }
    QCOMPARE(window.copies->count(), 0);
}

void TestTXVariantViewerMenu::keysForCopyAreTheWindowsWithTheFocusElsewhere()
{
    const WindowWithCopyAction window;
    window.other->setFocus();
    QTest::keySequence(window.widget->windowHandle(), QKeySequence::Copy);
    QCOMPARE(window.copies->count(), 1);
    QCOMPARE(QGuiApplication::clipboard()->text(), kOldText);
}

int main(int argc, char **argv)
{
    return runTest<TestTXVariantViewerMenu>(argc, argv);
}

#include "tst_TXVariantViewerMenu.moc"
