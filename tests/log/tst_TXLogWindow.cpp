#include "TXLogWindow.h"

#include "LogTestHelpers.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <memory>

using LogTest::append;
using LogTest::makeItem;
using LogTest::makeItemWithChildren;
using LogTest::shownTexts;

namespace {

constexpr auto kLevelKey = "LogLevel";

template<class Widget>
Widget *child(const QWidget &parent, const char *name)
{
    return parent.findChild<Widget *>(QString::fromLatin1(name));
}

bool sendWheel(QWidget *widget)
{
    QWheelEvent event(QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    return QApplication::sendEvent(widget, &event);
}

} // namespace

class TestTXLogWindow : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        manager = QSharedPointer<TXLogManager>::create();
        open();
    }

    void finish() override
    {
        window.reset();
        manager.reset();
    }

private slots:
    void formIsAsDesigned();
    void windowFlagsOfferNoMinimising();
    void newestRowStandsFirst();
    void sortingIsAvailableAtOnce();
    void proxyIsASortFilterProxy();

    void filterKeepsTheLevelsOfItsEntry_data();
    void filterKeepsTheLevelsOfItsEntry();
    void hiddenRowHidesItsSubItems();
    void subItemsAreFilteredByTheirOwnLevel();
    void chosenFilterIsRemembered_data();
    void chosenFilterIsRemembered();
    void patternsAreThoseOfTheEntries();

    void rememberedLevelIsShownAndNotApplied();
    void rememberedLevelThatFitsNoEntrySelectsNone_data();
    void rememberedLevelThatFitsNoEntrySelectsNone();
    void levelStoredAsTextOfANumberIsFound();
    void openingWritesNoSetting();

    void wheelDoesNotChangeTheFilter();
    void filterBoxTakesNoFocus();
    void enterDoesNotClearTheLog();

    void numberOfEventsIgnoresFilterAndSubItems();
    void clearButtonEmptiesTheLogItself();
    void closeButtonHidesAndKeepsTheRows();
    void iconIsSetAtEachShow();
    void missingIconIsEmpty();
    void windowFollowsTheLogLive();
    void everyControlHasAName();
    void rowsArePaintedInLightAndDark_data();
    void rowsArePaintedInLightAndDark();

private:
    void open() { window = std::make_unique<TXLogWindow>(manager, nullptr); }
    [[nodiscard]] QComboBox &filter() const { return *child<QComboBox>(*window, "filterComboBox"); }
    [[nodiscard]] QTreeView &tree() const { return *child<QTreeView>(*window, "logTreeView"); }
    [[nodiscard]] QStringList texts() const { return shownTexts(*tree().model()); }
    [[nodiscard]] QSortFilterProxyModel &proxy() const
    {
        return *qobject_cast<QSortFilterProxyModel *>(tree().model());
    }
    void logOneOfEachLevel();

    QSharedPointer<TXLogManager> manager;
    std::unique_ptr<TXLogWindow> window;
};

/// "i1", "w2" and "e3", each with a sub-item of the same level.
void TestTXLogWindow::logOneOfEachLevel()
{
    append(*manager, makeItemWithChildren(QStringLiteral("i1"), 1, 1));
    append(*manager, makeItemWithChildren(QStringLiteral("w2"), 1, 2));
    append(*manager, makeItemWithChildren(QStringLiteral("e3"), 1, 3));
}

void TestTXLogWindow::formIsAsDesigned()
{
    QCOMPARE(window->windowTitle(), QStringLiteral("Log Manager"));
    QCOMPARE(window->size(), QSize(476, 382));
    QVERIFY(child<QVBoxLayout>(*window, "verticalLayout"));
    QVERIFY(child<QHBoxLayout>(*window, "horizontalLayout"));
    QVERIFY(child<QHBoxLayout>(*window, "horizontalLayout_2"));
    QCOMPARE(child<QLabel>(*window, "label")->text(), QStringLiteral("Log Details:"));
    QCOMPARE(child<QPushButton>(*window, "clearButton")->text(), QStringLiteral("Clear List"));
    QCOMPARE(child<QPushButton>(*window, "closeButton")->text(), QStringLiteral("Close"));
    QVERIFY(tree().isSortingEnabled());
    QVERIFY(tree().wordWrap());
    QVERIFY(tree().isColumnHidden(2));
    QCOMPARE(tree().columnWidth(0), 100);

    QStringList entries;
    for (int i = 0; i < filter().count(); ++i) {
        entries.append(filter().itemText(i));
        QCOMPARE(filter().itemData(i), QVariant(i));
        QVERIFY(filter().itemIcon(i).isNull());
    }
    QCOMPARE(entries,
             QStringList({QStringLiteral("All"), QStringLiteral("Warning & Errors"),
                          QStringLiteral("Errors Only")}));
    QCOMPARE(filter().currentIndex(), 0);
}

void TestTXLogWindow::windowFlagsOfferNoMinimising()
{
    // Qt itself adds the system menu to every window that has a close button.
    QCOMPARE(window->windowFlags() & ~Qt::WindowSystemMenuHint,
             Qt::Window | Qt::WindowTitleHint | Qt::WindowMaximizeButtonHint
                 | Qt::WindowCloseButtonHint);
}

void TestTXLogWindow::newestRowStandsFirst()
{
    for (int minute = 0; minute < 3; ++minute) {
        const auto item = makeItem(QString::number(minute));
        item->date = item->date.addSecs(qint64(60) * minute);
        append(*manager, item);
    }

    QCOMPARE(texts(), QStringList({QStringLiteral("2"), QStringLiteral("1"), QStringLiteral("0")}));
}

void TestTXLogWindow::sortingIsAvailableAtOnce()
{
    for (const char *text : {"b", "c", "a"}) {
        append(*manager, makeItem(QString::fromLatin1(text)));
    }
    window->show();

    tree().header()->setSortIndicator(1, Qt::AscendingOrder);
    QCOMPARE(texts(), QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}));

    tree().header()->setSortIndicator(1, Qt::DescendingOrder);
    QCOMPARE(texts(), QStringList({QStringLiteral("c"), QStringLiteral("b"), QStringLiteral("a")}));
}

void TestTXLogWindow::proxyIsASortFilterProxy()
{
    auto *proxy = qobject_cast<QSortFilterProxyModel *>(tree().model());

    QVERIFY(proxy);
    QCOMPARE(proxy->QObject::parent(), window.get());
    QVERIFY(proxy->dynamicSortFilter());
    QVERIFY(!proxy->isRecursiveFilteringEnabled());
    QCOMPARE(proxy->sourceModel()->QObject::parent(), window.get());
}

void TestTXLogWindow::filterKeepsTheLevelsOfItsEntry_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QStringList>("shown");
    QTest::addRow("all") << 0
                         << QStringList(
                                {QStringLiteral("e3"), QStringLiteral("w2"), QStringLiteral("i1")});
    QTest::addRow("warnings and errors")
        << 1 << QStringList({QStringLiteral("e3"), QStringLiteral("w2")});
    QTest::addRow("errors") << 2 << QStringList(QStringLiteral("e3"));
}

void TestTXLogWindow::filterKeepsTheLevelsOfItsEntry()
{
    QFETCH(int, entry);
    QFETCH(QStringList, shown);
    int minute = 0;
    for (const auto &[text, level] : {std::pair("i1", 1), {"w2", 2}, {"e3", 3}}) {
        const auto item = makeItem(QString::fromLatin1(text), level);
        item->date = item->date.addSecs(qint64(60) * minute++);
        append(*manager, item);
    }

    filter().setCurrentIndex(2);
    filter().setCurrentIndex(entry);

    QCOMPARE(texts(), shown);
}

void TestTXLogWindow::hiddenRowHidesItsSubItems()
{
    append(*manager, makeItem(QStringLiteral("quiet"), 1));
    const auto parent = makeItem(QStringLiteral("information"), 1);
    parent->addChild(makeItem(QStringLiteral("error below"), 3));
    append(*manager, parent);

    filter().setCurrentIndex(1);

    QCOMPARE(texts(), QStringList());
}

void TestTXLogWindow::subItemsAreFilteredByTheirOwnLevel()
{
    const auto parent = makeItem(QStringLiteral("warning"), 2);
    parent->addChild(makeItem(QStringLiteral("detail"), 1));
    parent->addChild(makeItem(QStringLiteral("cause"), 3));
    append(*manager, parent);

    filter().setCurrentIndex(1);

    QCOMPARE(texts(), QStringList({QStringLiteral("warning"), QStringLiteral(".cause")}));
}

void TestTXLogWindow::chosenFilterIsRemembered_data()
{
    QTest::addColumn<int>("entry");
    for (int entry = 0; entry < 3; ++entry) {
        QTest::addRow("%d", entry) << entry;
    }
}

void TestTXLogWindow::chosenFilterIsRemembered()
{
    QFETCH(int, entry);
    filter().setCurrentIndex(-1);

    filter().setCurrentIndex(entry);

    QCOMPARE(QSettings().value(kLevelKey).toInt(), entry);
    open();
    QCOMPARE(filter().currentIndex(), entry);
}

void TestTXLogWindow::patternsAreThoseOfTheEntries()
{
    filter().setCurrentIndex(1);
    QCOMPARE(proxy().filterRegularExpression().pattern(), QStringLiteral("[2-3]"));
    QCOMPARE(proxy().filterKeyColumn(), 2);

    filter().setCurrentIndex(2);
    QCOMPARE(proxy().filterRegularExpression().pattern(), QStringLiteral("3"));

    filter().setCurrentIndex(0);
    QCOMPARE(proxy().filterRegularExpression().pattern(), QString());
    QCOMPARE(proxy().filterKeyColumn(), 2);
}

void TestTXLogWindow::rememberedLevelIsShownAndNotApplied()
{
    QSettings().setValue(kLevelKey, 2);
    open();
    logOneOfEachLevel();

    QCOMPARE(filter().currentText(), QStringLiteral("Errors Only"));
    QCOMPARE(tree().model()->rowCount(), 3);

    filter().setCurrentIndex(0);
    filter().setCurrentIndex(2);
    QCOMPARE(texts(), QStringList({QStringLiteral("e3"), QStringLiteral(".e3/0")}));
}

void TestTXLogWindow::rememberedLevelThatFitsNoEntrySelectsNone_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addRow("other number") << QVariant(7);
    QTest::addRow("negative") << QVariant(-1);
    QTest::addRow("text") << QVariant(QStringLiteral("Errors Only"));
    QTest::addRow("list") << QVariant(QStringList({QStringLiteral("1"), QStringLiteral("2")}));
    QTest::addRow("bytes") << QVariant(QByteArray("\x01\xff", 2));
}

void TestTXLogWindow::rememberedLevelThatFitsNoEntrySelectsNone()
{
    QFETCH(QVariant, stored);
    QSettings().setValue(kLevelKey, stored);

    open();
    logOneOfEachLevel();

    QCOMPARE(filter().currentIndex(), -1);
    QCOMPARE(tree().model()->rowCount(), 3);
    QCOMPARE(QSettings().value(kLevelKey), stored);
}

void TestTXLogWindow::levelStoredAsTextOfANumberIsFound()
{
    // A number comes back from the settings file of the last run as a text.
    QSettings().setValue(kLevelKey, QStringLiteral("1"));

    open();

    QCOMPARE(filter().currentIndex(), 1);
}

void TestTXLogWindow::openingWritesNoSetting()
{
    window->show();
    open();

    QVERIFY(!QSettings().contains(kLevelKey));
}

void TestTXLogWindow::wheelDoesNotChangeTheFilter()
{
    window->show();
    filter().setCurrentIndex(1);

    QVERIFY(sendWheel(&filter()));

    QCOMPARE(filter().currentIndex(), 1);
}

void TestTXLogWindow::filterBoxTakesNoFocus()
{
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));

    QSet<QWidget *> focused;
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(window.get(), Qt::Key_Tab);
        focused.insert(QApplication::focusWidget());
    }

    QCOMPARE(filter().focusPolicy(), Qt::NoFocus);
    QVERIFY(!focused.contains(&filter()));
    QVERIFY(focused.contains(&tree()));
    QVERIFY(focused.contains(child<QPushButton>(*window, "clearButton")));
    QVERIFY(focused.contains(child<QPushButton>(*window, "closeButton")));
}

void TestTXLogWindow::enterDoesNotClearTheLog()
{
    logOneOfEachLevel();
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    tree().setFocus();

    QTest::keyClick(&tree(), Qt::Key_Return);

    QCOMPARE(window->nbEventLogged(), 3);
}

void TestTXLogWindow::numberOfEventsIgnoresFilterAndSubItems()
{
    QCOMPARE(window->nbEventLogged(), 0);
    logOneOfEachLevel();
    QCOMPARE(window->nbEventLogged(), 3);

    filter().setCurrentIndex(2);

    QCOMPARE(tree().model()->rowCount(), 1);
    QCOMPARE(window->nbEventLogged(), 3);
}

void TestTXLogWindow::clearButtonEmptiesTheLogItself()
{
    logOneOfEachLevel();
    window->show();

    QTest::mouseClick(child<QPushButton>(*window, "clearButton"), Qt::LeftButton);

    QCOMPARE(window->nbEventLogged(), 0);
    QCOMPARE(texts(), QStringList());
    QVERIFY(manager->rootItem()->children.isEmpty());
}

void TestTXLogWindow::closeButtonHidesAndKeepsTheRows()
{
    logOneOfEachLevel();
    window->show();

    QTest::mouseClick(child<QPushButton>(*window, "closeButton"), Qt::LeftButton);
    QVERIFY(!window->isVisible());
    append(*manager, makeItem(QStringLiteral("meanwhile")));
    window->show();

    QCOMPARE(window->nbEventLogged(), 4);
    QCOMPARE(tree().model()->rowCount(), 4);
}

void TestTXLogWindow::iconIsSetAtEachShow()
{
    const QString path =
        QDir::cleanPath(QCoreApplication::applicationDirPath()
                        + QStringLiteral("/../Resources/Images/text_file_icon.png"));
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QImage picture(16, 16, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(path));

    window->show();
    const bool isSet = !window->windowIcon().isNull();
    window->hide();
    window->setWindowIcon(QIcon());
    window->show();
    const bool isSetAgain = !window->windowIcon().isNull();
    QVERIFY(QFile::remove(path));

    QVERIFY(isSet);
    QVERIFY(isSetAgain);
}

void TestTXLogWindow::missingIconIsEmpty()
{
    window->show();

    QVERIFY(window->windowIcon().pixmap(16, 16).isNull());
}

void TestTXLogWindow::windowFollowsTheLogLive()
{
    window->show();

    manager->append(1, TXStringI18n::fromString(QStringLiteral("live")));

    QTRY_COMPARE(texts(), QStringList(QStringLiteral("live")));
}

void TestTXLogWindow::everyControlHasAName()
{
    window->show();
    for (QWidget *widget : {static_cast<QWidget *>(&tree()), static_cast<QWidget *>(&filter()),
                            static_cast<QWidget *>(child<QPushButton>(*window, "clearButton")),
                            static_cast<QWidget *>(child<QPushButton>(*window, "closeButton"))}) {
        const auto *accessible = QAccessible::queryAccessibleInterface(widget);
        QVERIFY(accessible);
        QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
    }
}

void TestTXLogWindow::rowsArePaintedInLightAndDark_data()
{
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<qreal>("ratio");
    QTest::addRow("light") << QColor(Qt::white) << QColor(Qt::black) << 1.0;
    QTest::addRow("dark") << QColor(30, 30, 30) << QColor(Qt::white) << 1.0;
    QTest::addRow("dark, ratio 2") << QColor(30, 30, 30) << QColor(Qt::white) << 2.0;
}

void TestTXLogWindow::rowsArePaintedInLightAndDark()
{
    QFETCH(QColor, base);
    QFETCH(QColor, text);
    QFETCH(qreal, ratio);
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    window->setPalette(palette);
    append(*manager, makeItem(QStringLiteral("a message"), TXLogItem::Error));
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));

    const QRect row = tree().visualRect(tree().model()->index(0, 1));
    const PixelProbe probe(*tree().viewport(), ratio);

    QVERIFY(probe.countColours(row) > 3);
    QVERIFY(probe.isNear({row.right() - 2, row.bottom() + 30}, base));
}

int main(int argc, char **argv)
{
    return runTest<TestTXLogWindow>(argc, argv);
}

#include "tst_TXLogWindow.moc"
