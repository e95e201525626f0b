#include "DriveFormHelpers.h"
#include "DriveWindowTest.h"
#include "PixelProbe.h"

#include <QAccessible>
#include <QGridLayout>
#include <QHeaderView>
#include <QMenuBar>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QStyledItemDelegate>
#include <QTranslator>
#include <QVBoxLayout>

namespace {

/// Answers every text in capitals.
class ShoutingTranslator : public QTranslator
{
    Q_OBJECT

public:
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QString::fromUtf8(source).toUpper();
    }

    [[nodiscard]] bool isEmpty() const override { return false; }
};

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
    Q_OBJECT

public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

    int count = 0;
};

/// What a screen reader says for the widget.
QString spokenName(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

} // namespace

class TestAutoMountManagerMainWindow : public DriveWindowTest
{
    Q_OBJECT

private slots:
    void formIsAsDesigned();
    void listIsAsDesigned();
    void smallButtonsAreAsDesigned_data();
    void smallButtonsAreAsDesigned();
    void controlsAreLaidOutAsDesigned();
    void columnsHaveTheirWidths();
    void iconIsTheOneBesideTheProgram();
    void controlsAreReachedInOrderAndHaveNames();

    void languageChangeSetsTheTextsAgain();
    void languageChangePaintsTheHeaderAgain();
    void signsAreSeen_data();
    void signsAreSeen();
    void rowsArePainted_data();
    void rowsArePainted();
    void headerTextWithoutRoomEndsInAnEllipsis();
    void addressesReadTheSameFromRightToLeft_data();
    void addressesReadTheSameFromRightToLeft();
    void switchedOffBoxIsSeen_data();
    void switchedOffBoxIsSeen();

private:
    void openWithPalette();
    [[nodiscard]] QImage drawnCell(int column);
};

void TestAutoMountManagerMainWindow::formIsAsDesigned()
{
    open();

    QCOMPARE(window->objectName(), "AutoMountManagerMainWindow");
    QCOMPARE(window->windowTitle(), "AutoMount Manager");
    QCOMPARE(window->size(), QSize(604, 535));
    QCOMPARE(window->centralWidget(), child<QWidget>("centralWidget"));
    const auto *layout = qobject_cast<QVBoxLayout *>(window->centralWidget()->layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 6);
    QCOMPARE(layout->contentsMargins(), QMargins(11, 11, 11, 11));
    QCOMPARE(editButton()->text(), "Edit...");
    QCOMPARE(enabledBox()->text(), "Enabled");
    QCOMPARE(window->menuBar(), child<QMenuBar>("menuBar"));
    QVERIFY(window->menuBar()->actions().isEmpty());
    QCOMPARE(window->statusBar(), child<QStatusBar>("statusBar"));
    QVERIFY(window->statusBar()->currentMessage().isEmpty());
}

void TestAutoMountManagerMainWindow::listIsAsDesigned()
{
    open();

    QVERIFY(tree().alternatingRowColors());
    QVERIFY(!tree().rootIsDecorated());
    QVERIFY(tree().uniformRowHeights());
    QVERIFY(!tree().itemsExpandable());
    QCOMPARE(tree().header()->minimumSectionSize(), 20);
    const QTreeView untouched;
    QCOMPARE(tree().header()->sectionsMovable(), untouched.header()->sectionsMovable());
    QCOMPARE(tree().header()->stretchLastSection(), untouched.header()->stretchLastSection());
    QCOMPARE(tree().header()->sectionsClickable(), untouched.header()->sectionsClickable());
    QCOMPARE(tree().header()->defaultAlignment(), untouched.header()->defaultAlignment());
    QCOMPARE(tree().model()->metaObject()->className(), "AutoMountNetworkDriveModel");
    QCOMPARE(tree().model()->QObject::parent(), window.get());
}

void TestAutoMountManagerMainWindow::smallButtonsAreAsDesigned_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("add") << QByteArray("buttonAddNetworkDrive") << "+";
    QTest::newRow("remove") << QByteArray("buttonRemoveNetworkDrive") << "-";
}

void TestAutoMountManagerMainWindow::smallButtonsAreAsDesigned()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, text);
    open();
    const auto *button = child<QPushButton>(name.constData());

    QCOMPARE(button->text(), text);
    QCOMPARE(button->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
    QCOMPARE(button->maximumSize(), QSize(21, 21));
    QVERIFY(button->autoDefault());
}

void TestAutoMountManagerMainWindow::controlsAreLaidOutAsDesigned()
{
    open();
    window->show();
    const auto *grid = window->findChild<QGridLayout *>();

    QCOMPARE(grid->spacing(), 6);
    QCOMPARE(grid->columnCount(), 5);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), &tree());
    QCOMPARE(grid->itemAtPosition(0, 4)->widget(), &tree());
    QCOMPARE(grid->itemAtPosition(1, 0)->widget(), addButton());
    QVERIFY(grid->itemAtPosition(1, 1)->spacerItem());
    QCOMPARE(grid->itemAtPosition(1, 2)->widget(), removeButton());
    QVERIFY(grid->itemAtPosition(1, 3)->spacerItem());
    QCOMPARE(grid->itemAtPosition(1, 4)->widget(), editButton());

    QVERIFY(removeButton()->x() - addButton()->geometry().right() < 40);
    QVERIFY(editButton()->x() - removeButton()->geometry().right() > 300);
    QVERIFY(enabledBox()->y() > addButton()->geometry().bottom());
    QVERIFY(tree().geometry().bottom() < addButton()->y());
    QCOMPARE(addButton()->size(), QSize(21, 21));
}

void TestAutoMountManagerMainWindow::columnsHaveTheirWidths()
{
    open();
    const QTreeView untouched;
    for (const int column : {0, 1, 2}) {
        QCOMPARE(tree().columnWidth(column), 50);
    }
    QCOMPARE(tree().columnWidth(3), untouched.header()->defaultSectionSize());
    QCOMPARE(tree().columnWidth(4), 100);
    // The last one takes what is left of the window, and its width once that ends.
    tree().header()->setStretchLastSection(false);
    QCOMPARE(tree().columnWidth(5), 100);
}

void TestAutoMountManagerMainWindow::iconIsTheOneBesideTheProgram()
{
    const QString path = DriveFormTest::iconFile();
    open();
    QVERIFY(window->windowIcon().pixmap(16, 16).isNull());

    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QImage picture(16, 16, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(path));
    open();
    const QImage icon = window->windowIcon().pixmap(16, 16).toImage();
    QVERIFY(QFile::remove(path));

    QCOMPARE(icon.pixelColor(8, 8), QColor(Qt::red));
}

void TestAutoMountManagerMainWindow::controlsAreReachedInOrderAndHaveNames()
{
    open();
    window->show();
    window->activate();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    const QList<QWidget *> order = {&tree(), addButton(), removeButton(), editButton(),
                                    enabledBox()};

    tree().setFocus(Qt::TabFocusReason);
    for (QWidget *control : order) {
        QCOMPARE(QApplication::focusWidget(), control);
        QTest::keyClick(control, Qt::Key_Tab);
    }

    QCOMPARE(spokenName(&tree()), "Network Drives");
    QCOMPARE(spokenName(addButton()), "Add Network Drive");
    QCOMPARE(spokenName(removeButton()), "Remove Network Drive");
    QCOMPARE(spokenName(editButton()), "Edit...");
    QCOMPARE(spokenName(enabledBox()), "Enabled");
}

void TestAutoMountManagerMainWindow::languageChangeSetsTheTextsAgain()
{
    open();
    QCOMPARE(tree().model()->headerData(3, Qt::Horizontal).toString(), "Host");
    ShoutingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();
    QTRY_COMPARE(window->windowTitle(), "AUTOMOUNT MANAGER");

    QCOMPARE(editButton()->text(), "EDIT...");
    QCOMPARE(enabledBox()->text(), "ENABLED");
    QCOMPARE(addButton()->text(), "+");
    QCOMPARE(removeButton()->text(), "-");
    QCOMPARE(spokenName(addButton()), "ADD NETWORK DRIVE");
    QCOMPARE(tree().model()->headerData(3, Qt::Horizontal).toString(), "HOST");
    QVERIFY(!enabledBox()->isChecked());
    QCoreApplication::removeTranslator(&translator);
}

void TestAutoMountManagerMainWindow::languageChangePaintsTheHeaderAgain()
{
    open();
    PaintCounter paintings(tree().header()->viewport());
    window->show();
    QTRY_VERIFY(paintings.count > 0);
    QCoreApplication::processEvents();
    paintings.count = 0;
    QCoreApplication::processEvents();
    QCOMPARE(paintings.count, 0);
    ShoutingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();
    QTRY_VERIFY(paintings.count > 0);
    QCoreApplication::removeTranslator(&translator);
}

void TestAutoMountManagerMainWindow::signsAreSeen_data()
{
    QTest::addColumn<QColor>("face");
    QTest::addColumn<QColor>("ink");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        QTest::addRow("light, ratio %g", ratio)
            << QColor(239, 239, 239) << QColor(Qt::black) << ratio;
        QTest::addRow("dark, ratio %g", ratio) << QColor(50, 50, 50) << QColor(Qt::white) << ratio;
    }
}

/// Opens the window in the colours of the row, switched on.
void TestAutoMountManagerMainWindow::openWithPalette()
{
    QFETCH(QColor, face);
    QFETCH(QColor, ink);
    QPalette palette(face, face);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, ink);
    }
    palette.setColor(QPalette::Base, face);
    palette.setColor(QPalette::AlternateBase, face.lighter(105));
    open();
    window->setPalette(palette);
    window->activate();
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void TestAutoMountManagerMainWindow::signsAreSeen()
{
    QFETCH(QColor, ink);
    QFETCH(qreal, ratio);
    openWithPalette();

    for (QPushButton *button : {addButton(), removeButton()}) {
        const PixelProbe probe(*button, ratio);
        int inked = 0;
        for (int x = 4; x < 17; ++x) {
            for (int y = 4; y < 17; ++y) {
                inked += probe.isNear({x, y}, ink, 120) ? 1 : 0;
            }
        }
        QVERIFY2(inked >= 3, qPrintable(QStringLiteral("%1: %2").arg(button->text()).arg(inked)));
    }
}

void TestAutoMountManagerMainWindow::rowsArePainted_data()
{
    signsAreSeen_data();
}

void TestAutoMountManagerMainWindow::rowsArePainted()
{
    QFETCH(QColor, face);
    QFETCH(qreal, ratio);
    const QList<int> states = {NetworkDriveConnected, NetworkDriveDisconnected,
                               NetworkDriveReconnectionFailed, NetworkDriveLetterTaken, 7};
    for (int row = 0; row < states.size(); ++row) {
        AutoMountNetworkDrive drive = makeDrive(QStringLiteral("host%1").arg(row), u'K');
        drive.setActivated(row % 2 == 0);
        drive.setStatus(static_cast<NetworkDriveConnectionState>(states.at(row)));
        manager()->add(drive);
    }
    openWithPalette();
    select(1);

    const PixelProbe probe(*tree().viewport(), ratio);

    for (int row = 0; row < states.size(); ++row) {
        for (const int column : {0, 1, 2, 3, 4, 5}) {
            const QRect cell = tree().visualRect(tree().model()->index(row, column));
            QVERIFY2(probe.countColours(cell) > 3,
                     qPrintable(QStringLiteral("row %1, column %2").arg(row).arg(column)));
        }
    }
    const QRect last = tree().visualRect(tree().model()->index(4, 0));
    QVERIFY(probe.isNear(last.bottomLeft() + QPoint(30, 30), face));
}

void TestAutoMountManagerMainWindow::headerTextWithoutRoomEndsInAnEllipsis()
{
    open();
    window->activate();
    window->show();
    QHeaderView *header = tree().header();
    QVERIFY(header->sectionSize(2) < header->fontMetrics().horizontalAdvance("Network Drive"));
    const QRect section(header->sectionViewportPosition(2), 0, header->sectionSize(2),
                        header->height());
    // Without the frames of the sections.
    const QImage picture =
        PixelProbe(*header->viewport()).image().copy(section.adjusted(2, 2, -2, -2));
    const QRect text = DriveFormTest::inkIn(picture);
    QVERIFY(text.width() > 20);
    // The last that is drawn is low: a dot, and not a letter.
    const QRect last(text.right() - 1, 0, 2, picture.height());
    QVERIFY(DriveFormTest::inkIn(picture.copy(last)).height() <= 2);
}

void TestAutoMountManagerMainWindow::addressesReadTheSameFromRightToLeft_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("mount point") << 2;
    QTest::newRow("host") << 3;
    QTest::newRow("share") << 4;
    QTest::newRow("user") << 5;
}

/// The letters of a cell of the first row, from right to left.
QImage TestAutoMountManagerMainWindow::drawnCell(int column)
{
    for (int each = 0; each < tree().model()->columnCount(); ++each) {
        tree().setColumnWidth(each, 90);
    }
    const QRect cell = tree().visualRect(tree().model()->index(0, column));
    const QImage picture = PixelProbe(*tree().viewport()).image().copy(cell);
    return picture.copy(DriveFormTest::inkIn(picture));
}

void TestAutoMountManagerMainWindow::addressesReadTheSameFromRightToLeft()
{
    QFETCH(int, column);
    AutoMountNetworkDrive drive = makeDrive(QStringLiteral("192.168.0.7"), u'L');
    QUrl url = drive.getUrl();
    url.setUserName(QStringLiteral("mia."));
    drive.setUrl(url);
    manager()->add(drive);
    open();
    window->setLayoutDirection(Qt::RightToLeft);
    tree().header()->setStretchLastSection(false);
    window->activate();
    window->show();

    const QString text = tree().model()->index(0, column).data().toString();
    const QImage drawn = drawnCell(column);
    QVERIFY(drawn.width() > 8);
    // The same text, said to go from left to right, and as it is by itself.
    QStandardItemModel texts(1, 6);
    tree().setItemDelegate(new QStyledItemDelegate(window.get()));
    tree().setModel(&texts);
    texts.setData(texts.index(0, column), QString(u'\u2066' + text + u'\u2069'));
    QCOMPARE(drawn, drawnCell(column));
    texts.setData(texts.index(0, column), text);
    QCOMPARE(drawn != drawnCell(column), column != 3);
    window.reset();
}

void TestAutoMountManagerMainWindow::switchedOffBoxIsSeen_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<bool>("isSelected");
    for (const bool isSelected : {false, true}) {
        QTest::addRow("light, selected %d", isSelected) << QPalette() << isSelected;
        QTest::addRow("dark, selected %d", isSelected)
            << DriveFormTest::darkPalette() << isSelected;
    }
}

void TestAutoMountManagerMainWindow::switchedOffBoxIsSeen()
{
    QFETCH(QPalette, palette);
    QFETCH(bool, isSelected);
    manager()->add(makeDrive(QStringLiteral("a"), u'K'));
    open();
    window->setPalette(palette);
    window->activate();
    window->show();
    if (isSelected) {
        select(0);
    }
    const PixelProbe probe(*tree().viewport());
    const QRect cell = tree().visualRect(tree().model()->index(0, 1));
    const int background = probe.at(cell.bottomRight() - QPoint(3, 3)).lightness();
    int farthest = 0;
    for (int x = cell.left(); x < cell.left() + 24; ++x) {
        const int there = probe.at({x, cell.center().y()}).lightness();
        farthest = qMax(farthest, qAbs(there - background));
    }
    QVERIFY2(farthest >= 60, qPrintable(QString::number(farthest)));
}

int main(int argc, char **argv)
{
    return runTest<TestAutoMountManagerMainWindow>(argc, argv);
}

#include "tst_AutoMountManagerMainWindow.moc"
