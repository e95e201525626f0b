#include "TXVariantViewer.h"
#include "TestBase.h"

#include <QGridLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QScrollArea>
#include <QSignalSpy>

// A closed viewer: its line of text, its layout, its meta object.
class TestTXVariantViewer : public TestBase
{
    Q_OBJECT

private slots:
    void metaObjectListsTheInterfaceInOrder();
    void propertiesStandOverTheFunctions();
    void newViewerShowsTheInvalidValue();
    void lineIsTheHtmlOfTheValueInASpan();
    void viewerIsExpandableWhenThereIsSomethingInIt_data();
    void viewerIsExpandableWhenThereIsSomethingInIt();
    void expandabilityCostsNoCopy();
    void valueThatCannotExpandFoldsNeitherWay();
    void previewCountsFromTheNextValueOn();
    void eachValueTellsThatTheSizeMayHaveChanged();
    void hoverEffectsAreTheRoots();
    void longLineIsShownToItsEnd_data();
    void longLineIsShownToItsEnd();
    void openViewerAsksForTheSizeOfItsEntries();
};

void TestTXVariantViewer::metaObjectListsTheInterfaceInOrder()
{
    const QMetaObject &meta = TXVariantViewer::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
        QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
    }
    QStringList properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        properties.append(QString::fromLatin1(meta.property(i).name()));
    }

    QCOMPARE(methods.join(QLatin1Char(' ')),
             QStringLiteral("resized() setValue(QVariant) setHoverEffects(bool) setHoverEffects() "
                            "hoverEffects() isExpandable() isExpanded() setExpanded(bool) expand() "
                            "collapse() hasPreview() setPreview(bool)"));
    QCOMPARE(properties.join(QLatin1Char(' ')),
             QStringLiteral("expandable hoverEffects expanded preview"));
    QVERIFY(!meta.property(meta.indexOfProperty("expandable")).isWritable());
}

void TestTXVariantViewer::propertiesStandOverTheFunctions()
{
    TXVariantViewer viewer(nullptr);
    viewer.setValue(QVariantList{1});

    QCOMPARE(viewer.property("expandable"), QVariant(true));
    QCOMPARE(viewer.property("hoverEffects"), QVariant(false));
    QCOMPARE(viewer.property("expanded"), QVariant(false));
    QCOMPARE(viewer.property("preview"), QVariant(true));

    QVERIFY(viewer.setProperty("hoverEffects", true));
    QVERIFY(viewer.setProperty("expanded", true));
    QVERIFY(viewer.setProperty("preview", false));
    QVERIFY(viewer.hoverEffects());
    QVERIFY(viewer.isExpanded());
    QVERIFY(!viewer.hasPreview());

    QVERIFY(QMetaObject::invokeMethod(&viewer, "setExpanded", Q_ARG(bool, false)));
    QVERIFY(!viewer.isExpanded());
    QVERIFY(QMetaObject::invokeMethod(&viewer, "setValue", Q_ARG(QVariant, QVariant(1))));
    QVERIFY(!viewer.isExpandable());
}

void TestTXVariantViewer::newViewerShowsTheInvalidValue()
{
    TXVariantViewer viewer(nullptr);
    const auto *grid = qobject_cast<QGridLayout *>(viewer.layout());
    const auto *label = viewer.findChild<QLabel *>();

    QVERIFY(viewer.autoFillBackground());
    QVERIFY(grid != nullptr);
    QCOMPARE(grid->contentsMargins(), QMargins());
    QCOMPARE(grid->horizontalSpacing(), 0);
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(grid->count(), 1);
    QCOMPARE(grid->itemAt(0)->widget(), label);
    QVERIFY(label->autoFillBackground());
    QCOMPARE(label->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(viewer.cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(label->text(),
             QStringLiteral("<span style=\"font-family: monospace; overflow: hidden\"><span "
                            "style=\"color: #000080\">null</span></span>"));
    QVERIFY(!viewer.isExpandable());
    QVERIFY(!viewer.isExpanded());
    QVERIFY(viewer.hasPreview());
    QVERIFY(!viewer.hoverEffects());
}

void TestTXVariantViewer::lineIsTheHtmlOfTheValueInASpan()
{
    TXVariantViewer viewer(nullptr);
    // A pattern of QString::arg() in the value stays as it is.
    const QVariant value = QVariantList{QStringLiteral("%1 <b>"), 1};

    viewer.setValue(value);

    QCOMPARE(viewer.findChild<QLabel *>()->text(),
             QStringLiteral("<span style=\"font-family: monospace; overflow: hidden\">")
                 + TXVariantViewer::variantToHtml(value, true) + QStringLiteral("</span>"));
}

void TestTXVariantViewer::viewerIsExpandableWhenThereIsSomethingInIt_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isExpandable");

    const QString text = QStringLiteral("a");
    QTest::newRow("list") << QVariant(QVariantList{QVariant()}) << true;
    QTest::newRow("strings") << QVariant(QStringList{QString()}) << true;
    QTest::newRow("map") << QVariant(QVariantMap{{text, 1}}) << true;
    QTest::newRow("hash") << QVariant(QVariantHash{{text, 1}}) << true;
    QTest::newRow("empty list") << QVariant(QVariantList()) << false;
    QTest::newRow("empty strings") << QVariant(QStringList()) << false;
    QTest::newRow("empty map") << QVariant(QVariantMap()) << false;
    QTest::newRow("empty hash") << QVariant(QVariantHash()) << false;
    QTest::newRow("null list") << QVariant(QMetaType::fromType<QVariantList>()) << false;
    QTest::newRow("null map") << QVariant(QMetaType::fromType<QVariantMap>()) << false;
    QTest::newRow("text") << QVariant(text) << false;
    QTest::newRow("number") << QVariant(1) << false;
    QTest::newRow("invalid") << QVariant() << false;
    QTest::newRow("list of another type") << QVariant::fromValue(QList<int>{1}) << false;
}

void TestTXVariantViewer::viewerIsExpandableWhenThereIsSomethingInIt()
{
    QFETCH(QVariant, value);
    QFETCH(bool, isExpandable);
    TXVariantViewer viewer(nullptr);

    viewer.setValue(value);

    const Qt::CursorShape cursor = isExpandable ? Qt::PointingHandCursor : Qt::ArrowCursor;
    QCOMPARE(viewer.isExpandable(), isExpandable);
    QCOMPARE(viewer.layout()->contentsMargins(), QMargins(isExpandable ? 14 : 0, 0, 0, 0));
    QCOMPARE(viewer.cursor().shape(), cursor);
    QCOMPARE(viewer.findChild<QLabel *>()->cursor().shape(), cursor);

    viewer.setValue(1);
    QCOMPARE(viewer.layout()->contentsMargins(), QMargins());
    QCOMPARE(viewer.cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(viewer.findChild<QLabel *>()->cursor().shape(), Qt::ArrowCursor);
}

void TestTXVariantViewer::expandabilityCostsNoCopy()
{
    QVariantHash hash;
    QStringList strings;
    for (int i = 0; i < 200000; ++i) {
        strings.append(QString::number(i));
        hash.insert(strings.constLast(), i);
    }
    TXVariantViewer viewer(nullptr);
    viewer.setPreview(false);

    // With a copy of the whole for each question this takes hours.
    for (const QVariant &value : {QVariant(hash), QVariant(strings)}) {
        viewer.setValue(value);
        for (int i = 0; i < 100000; ++i) {
            QVERIFY(viewer.isExpandable());
        }
    }
}

void TestTXVariantViewer::valueThatCannotExpandFoldsNeitherWay()
{
    TXVariantViewer viewer(nullptr);
    viewer.setValue(QVariantList());
    const QSignalSpy resized(&viewer, SIGNAL(resized()));

    viewer.expand();
    viewer.collapse();
    viewer.setExpanded(true);
    QTest::mouseClick(&viewer, Qt::LeftButton, {}, {1, 1});

    QVERIFY(!viewer.isExpanded());
    QCOMPARE(resized.count(), 0);
    QCOMPARE(viewer.layout()->count(), 1);
    QCOMPARE(viewer.layout()->contentsMargins(), QMargins());
}

void TestTXVariantViewer::previewCountsFromTheNextValueOn()
{
    TXVariantViewer viewer(nullptr);
    const QVariant value = QVariantList{1};
    viewer.setValue(value);
    const QString with = viewer.findChild<QLabel *>()->text();
    const QSignalSpy resized(&viewer, SIGNAL(resized()));

    viewer.setPreview(false);
    QVERIFY(!viewer.hasPreview());
    QCOMPARE(viewer.findChild<QLabel *>()->text(), with);
    QCOMPARE(resized.count(), 0);

    viewer.setValue(value);
    QCOMPARE(viewer.findChild<QLabel *>()->text(),
             QStringLiteral("<span style=\"font-family: monospace; overflow: hidden\"></span>"));
    QVERIFY(viewer.isExpandable());
}

void TestTXVariantViewer::eachValueTellsThatTheSizeMayHaveChanged()
{
    TXVariantViewer viewer(nullptr);
    const QSignalSpy resized(&viewer, SIGNAL(resized()));

    viewer.setValue(1);
    viewer.setValue(1);
    viewer.setValue(QVariant());

    QCOMPARE(resized.count(), 3);
}

void TestTXVariantViewer::hoverEffectsAreTheRoots()
{
    TXVariantViewer root(nullptr);
    root.setValue(QVariantList{QVariantList{1}});
    root.expand();
    auto *middle = root.findChild<TXVariantViewer *>(QString(), Qt::FindDirectChildrenOnly);
    middle->expand();
    auto *inner = middle->findChild<TXVariantViewer *>();

    inner->setHoverEffects();
    QVERIFY(!inner->hoverEffects());
    root.setHoverEffects();
    QVERIFY(middle->hoverEffects());
    inner->setHoverEffects(false);
    QVERIFY(inner->hoverEffects());
    root.setHoverEffects(false);
    QVERIFY(!inner->hoverEffects());
}

void TestTXVariantViewer::longLineIsShownToItsEnd_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("margin");

    const QString text(200000, QLatin1Char('x'));
    QTest::newRow("text") << QVariant(text) << 0;
    QTest::newRow("list") << QVariant(QStringList{text}) << 14;
}

void TestTXVariantViewer::longLineIsShownToItsEnd()
{
    QFETCH(QVariant, value);
    QFETCH(int, margin);
    QScrollArea area;
    auto *viewer = new TXVariantViewer(&area);
    area.setWidget(viewer);
    area.setWidgetResizable(true);
    viewer->setValue(value);
    const auto *label = viewer->findChild<QLabel *>();
    const QSize line = label->sizeHint();

    // More than a layout takes.
    QVERIFY(line.width() > 524287);
    QCOMPARE(viewer->sizeHint(), QSize(line.width() + margin, line.height()));
    QCOMPARE(viewer->minimumSizeHint(), viewer->sizeHint());
    area.show();
    QTRY_COMPARE(label->width(), line.width());
}

void TestTXVariantViewer::openViewerAsksForTheSizeOfItsEntries()
{
    TXVariantViewer viewer(nullptr);
    viewer.setValue(QStringList{QString(1000, QLatin1Char('x')), QStringLiteral("a")});
    const QSize closed = viewer.sizeHint();

    viewer.expand();

    QCOMPARE(viewer.sizeHint(), viewer.layout()->totalSizeHint());
    QCOMPARE(viewer.minimumSizeHint(), viewer.layout()->totalMinimumSize());
    QCOMPARE(viewer.sizeHint().height(), 2 * closed.height());
    QVERIFY(viewer.sizeHint().width() < closed.width());
}

int main(int argc, char **argv)
{
    return runTest<TestTXVariantViewer>(argc, argv);
}

#include "tst_TXVariantViewer.moc"
