#include "BracketsTranslator.h"
#include "TXVariantViewer.h"
#include "TestBase.h"

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

constexpr int kAtOnce = TXVariantViewer::kEntriesAtOnce;

QVariantList list(int size)
{
    QVariantList values;
    for (int i = 0; i < size; ++i) {
        values.append(i);
    }
    return values;
}

QVariantHash hash(int size)
{
    QVariantHash values;
    values.reserve(size);
    for (int i = 0; i < size; ++i) {
        values.insert(QStringLiteral("%1").arg(i, 7, 10, QLatin1Char('0')), i);
    }
    return values;
}

qsizetype viewerCount(const QWidget &viewer)
{
    return viewer.findChildren<TXVariantViewer *>(QString(), Qt::FindDirectChildrenOnly).size();
}

QPushButton *moreButton(const QWidget &viewer)
{
    return viewer.findChild<QPushButton *>(QString(), Qt::FindDirectChildrenOnly);
}

QGridLayout *gridOf(const QWidget &viewer)
{
    return qobject_cast<QGridLayout *>(viewer.layout());
}

QWidget *lastWidget(const QWidget &viewer)
{
    return viewer.layout()->itemAt(viewer.layout()->count() - 1)->widget();
}

void flushDeleted()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

// Levels of more entries than are made at once, and values that are deep or long.
class TestTXVariantViewerLarge : public TestBase
{
    Q_OBJECT

private slots:
    void entriesUpToTheLimitComeAtOnce();
    void buttonBringsTheLastEntry();
    void buttonBringsTheEntriesInPortions_data();
    void buttonBringsTheEntriesInPortions();
    void buttonFollowsTheLanguage();
    void buttonGoesWithTheFold();
    void manyRowsGoWithTheFold();
    void buttonIsReachedByTheKeyboard_data();
    void buttonIsReachedByTheKeyboard();
    void buttonIsNotPressedByReturnInADialog();
    void millionKeysOpen();
    void deepValueOpensLevelByLevel();
    void valuesAreShared();
};

void TestTXVariantViewerLarge::entriesUpToTheLimitComeAtOnce()
{
    QCOMPARE(kAtOnce, 5000);
    TXVariantViewer viewer(nullptr);
    viewer.setPreview(false);
    viewer.setValue(list(kAtOnce));

    viewer.expand();

    QCOMPARE(viewerCount(viewer), kAtOnce);
    QCOMPARE(viewer.layout()->count(), kAtOnce);
    QVERIFY(moreButton(viewer) == nullptr);
}

void TestTXVariantViewerLarge::buttonBringsTheLastEntry()
{
    TXVariantViewer viewer(nullptr);
    viewer.setPreview(false);
    viewer.setValue(list(kAtOnce + 1));
    viewer.expand();
    QCOMPARE(viewerCount(viewer), kAtOnce);
    QCOMPARE(lastWidget(viewer), moreButton(viewer));
    QCOMPARE(moreButton(viewer)->text(), QStringLiteral("Show 1 more of 5,001"));
    QVERIFY(!moreButton(viewer)->isHidden());
    const QSignalSpy resized(&viewer, SIGNAL(resized()));

    moreButton(viewer)->click();
    flushDeleted();

    QCOMPARE(resized.count(), 1);
    QCOMPARE(viewerCount(viewer), kAtOnce + 1);
    QVERIFY(moreButton(viewer) == nullptr);
    QVERIFY(lastWidget(viewer)->findChild<QLabel *>()->text().contains(QStringLiteral(">5000<")));
}

void TestTXVariantViewerLarge::buttonBringsTheEntriesInPortions_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("list") << QVariant(list(12000));
    QTest::newRow("hash") << QVariant(hash(12000));
}

void TestTXVariantViewerLarge::buttonBringsTheEntriesInPortions()
{
    QFETCH(QVariant, value);
    TXVariantViewer viewer(nullptr);
    viewer.setPreview(false);
    viewer.setValue(value);

    viewer.expand();
    QCOMPARE(moreButton(viewer)->text(), QStringLiteral("Show 5,000 more of 12,000"));
    moreButton(viewer)->click();
    QCOMPARE(viewerCount(viewer), 2 * kAtOnce);
    QCOMPARE(moreButton(viewer)->text(), QStringLiteral("Show 2,000 more of 12,000"));
    QCOMPARE(lastWidget(viewer), moreButton(viewer));
    moreButton(viewer)->click();
    flushDeleted();

    QVERIFY(moreButton(viewer) == nullptr);
    QCOMPARE(viewerCount(viewer), 12000);
    const auto *grid = gridOf(viewer);
    const bool isMap = value.typeId() == QMetaType::QVariantHash;
    for (const int place : {0, 4999, 5000, 9999, 10000, 11999}) {
        const QWidget *entry = grid->itemAtPosition(isMap ? place : place + 1, isMap)->widget();
        QVERIFY(entry->findChild<QLabel *>()->text().contains(QStringLiteral(">%1<").arg(place)));
    }
}

void TestTXVariantViewerLarge::buttonFollowsTheLanguage()
{
    TXVariantViewer viewer(nullptr);
    viewer.setPreview(false);
    viewer.setValue(list(12000));
    viewer.expand();
    const QString english = moreButton(viewer)->text();
    {
        BracketsTranslator translator("VariantMoreButton");
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCoreApplication::processEvents();
        QCOMPARE(moreButton(viewer)->text(), QStringLiteral("[Show 5,000 more of 12,000]"));

        moreButton(viewer)->click();
        QCOMPARE(moreButton(viewer)->text(), QStringLiteral("[Show 2,000 more of 12,000]"));
    }
    QCoreApplication::processEvents();
    QCOMPARE(english, QStringLiteral("Show 5,000 more of 12,000"));
    QCOMPARE(moreButton(viewer)->text(), QStringLiteral("Show 2,000 more of 12,000"));
}

void TestTXVariantViewerLarge::buttonGoesWithTheFold()
{
    TXVariantViewer viewer(nullptr);
    viewer.setPreview(false);
    viewer.setValue(list(kAtOnce + 1));
    viewer.expand();

    viewer.collapse();
    flushDeleted();
    QVERIFY(moreButton(viewer) == nullptr);
    QCOMPARE(viewerCount(viewer), 0);
    QCOMPARE(viewer.layout()->count(), 1);

    viewer.expand();
    viewer.expand();
    flushDeleted();
    QCOMPARE(viewerCount(viewer), kAtOnce);
    QCOMPARE(viewer.findChildren<QPushButton *>().size(), 1);
    viewer.setValue(1);
    flushDeleted();
    QVERIFY(moreButton(viewer) == nullptr);
}

void TestTXVariantViewerLarge::manyRowsGoWithTheFold()
{
    constexpr int kEntries = 1500;
    TXVariantViewer viewer(nullptr);
    viewer.setPreview(false);
    viewer.setValue(list(kEntries));
    viewer.expand();
    QVERIFY(gridOf(viewer)->rowCount() >= kEntries);

    viewer.collapse();

    QVERIFY(gridOf(viewer)->rowCount() < 10);
    QCOMPARE(gridOf(viewer)->contentsMargins(), QMargins(14, 0, 0, 0));
    QCOMPARE(gridOf(viewer)->horizontalSpacing(), 0);
    QCOMPARE(gridOf(viewer)->verticalSpacing(), 0);
    QCOMPARE(gridOf(viewer)->count(), 1);
    QCOMPARE(lastWidget(viewer), viewer.findChild<QLabel *>());

    viewer.expand();
    viewer.expand();
    QCOMPARE(gridOf(viewer)->count(), kEntries);
    QCOMPARE(gridOf(viewer)->contentsMargins(), QMargins(21, 0, 0, 0));
    viewer.setValue(7);
    QCOMPARE(gridOf(viewer)->contentsMargins(), QMargins());
}

void TestTXVariantViewerLarge::buttonIsReachedByTheKeyboard_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("list") << QVariant(list(kAtOnce + 1));
    QTest::newRow("hash") << QVariant(hash(kAtOnce + 1));
}

void TestTXVariantViewerLarge::buttonIsReachedByTheKeyboard()
{
    QFETCH(QVariant, value);
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *viewer = new TXVariantViewer(&window);
    layout->addWidget(viewer);
    viewer->setPreview(false);
    viewer->setValue(value);
    viewer->expand();
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    QCOMPARE(moreButton(*viewer)->focusPolicy(), Qt::ClickFocus);
    moreButton(*viewer)->setFocus();
    QTest::keyClick(moreButton(*viewer), Qt::Key_Space);

    QCOMPARE(lastWidget(*viewer), QApplication::focusWidget());
    flushDeleted();
    QVERIFY(moreButton(*viewer) == nullptr);
}

void TestTXVariantViewerLarge::buttonIsNotPressedByReturnInADialog()
{
    QDialog dialog;
    auto *layout = new QVBoxLayout(&dialog);
    auto *input = new QLineEdit(&dialog);
    auto *viewer = new TXVariantViewer(&dialog);
    layout->addWidget(input);
    layout->addWidget(viewer);
    viewer->setPreview(false);
    viewer->setValue(list(kAtOnce + 1));
    viewer->expand();
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    input->setFocus();
    const QSignalSpy clicked(moreButton(*viewer), SIGNAL(clicked()));

    QTest::keyClick(input, Qt::Key_Return);

    QCOMPARE(clicked.count(), 0);
    QCOMPARE(viewerCount(*viewer), kAtOnce);
}

void TestTXVariantViewerLarge::millionKeysOpen()
{
    TXVariantViewer viewer(nullptr);
    viewer.setPreview(false);
    viewer.setValue(hash(1000000));

    viewer.expand();

    QCOMPARE(viewerCount(viewer), kAtOnce);
    QCOMPARE(moreButton(viewer)->text(), QStringLiteral("Show 5,000 more of 1,000,000"));
    const auto *grid = gridOf(viewer);
    const auto *last = qobject_cast<QLabel *>(grid->itemAtPosition(4999, 0)->widget());
    QVERIFY(last->text().contains(QStringLiteral("0004999: ")));
}

void TestTXVariantViewerLarge::deepValueOpensLevelByLevel()
{
    constexpr int kDepth = 10000;
    constexpr int kOpened = 300;
    QVariant value = 1;
    for (int level = 0; level < kDepth; ++level) {
        value = QVariantList{value};
    }
    TXVariantViewer viewer(nullptr);
    viewer.setPreview(false);
    viewer.setValue(value);
    viewer.show();

    TXVariantViewer *open = &viewer;
    for (int level = 0; level < kOpened; ++level) {
        open->expand();
        open = open->findChild<TXVariantViewer *>();
        QVERIFY(open != nullptr);
    }

    QVERIFY(open->isExpandable());
}

void TestTXVariantViewerLarge::valuesAreShared()
{
    QString text(1000, QLatin1Char('a'));
    const QChar *characters = text.constData();
    TXVariantViewer viewer(nullptr);
    viewer.setPreview(false);

    viewer.setValue(QVariantList{QVariantMap{{QStringLiteral("a"), text}}});
    viewer.expand();
    viewer.findChild<TXVariantViewer *>()->expand();

    // The text is held by others too, and still the one that was handed over.
    QCOMPARE(text.constData(), characters);
    QVERIFY(!text.isDetached());
}

int main(int argc, char **argv)
{
    return runTest<TestTXVariantViewerLarge>(argc, argv);
}

#include "tst_TXVariantViewerLarge.moc"
