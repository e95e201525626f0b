#include "TXVariantViewer.h"
#include "TestBase.h"
#include "VariantViewerHelpers.h"

#include <QLabel>
#include <QWindow>

using VariantViewerHelpers::entriesOf;
using VariantViewerHelpers::nestedValue;

// A program in which each widget has a window of its own.
class TestTXVariantViewerNative : public TestBase
{
    Q_OBJECT

private slots:
    void entriesAreShown();
};

void TestTXVariantViewerNative::entriesAreShown()
{
    TXVariantViewer viewer(nullptr);
    viewer.setValue(nestedValue());
    viewer.show();

    viewer.expand();
    entriesOf(viewer).first()->expand();

    const QList<QWidget *> widgets = viewer.findChildren<QWidget *>();
    QCOMPARE(widgets.count(), 14);
    for (const QWidget *widget : widgets) {
        QVERIFY(widget->internalWinId() != 0);
        QCOMPARE(widget->windowHandle()->isVisible(), !widget->isHidden());
    }
    QVERIFY(entriesOf(*entriesOf(viewer).first()).last()->windowHandle()->isVisible());
}

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_NativeWindows);
    return runTest<TestTXVariantViewerNative>(argc, argv);
}

#include "tst_TXVariantViewerNative.moc"
