#include "TXWidget.h"

#include "TestBase.h"

#include <QSignalSpy>

#include <type_traits>

static_assert(std::is_abstract_v<TXWidget>);

namespace {

class Page : public TXWidget
{
    Q_OBJECT

public:
    using TXWidget::TXWidget;

    void updateContents() override { ++updates; }
    bool isValid() override { return valid; }
    void finish() { emit editionFinished(); }

    int updates = 0;
    int shown = 0;
    int hidden = 0;
    bool valid = true;

protected:
    void showEvent(QShowEvent *event) override
    {
        TXWidget::showEvent(event);
        ++shown;
    }

    void hideEvent(QHideEvent *event) override
    {
        TXWidget::hideEvent(event);
        ++hidden;
    }
};

/// Defines what it must and nothing else.
class BarePage : public TXWidget
{
public:
    void updateContents() override { }
};

} // namespace

class TestTXWidget : public TestBase
{
    Q_OBJECT

private slots:
    void parentOwnsThePage();
    void withoutAParentItIsAWindow();
    void pageIsValidUnlessItKnowsBetter();
    void libraryDoesNotUpdateThePage();
    void showAndHideReachTheBase();
    void finishingIsForThePageToTell();
};

void TestTXWidget::parentOwnsThePage()
{
    QWidget window;
    auto *page = new Page(&window);

    QCOMPARE(page->parentWidget(), &window);
    QVERIFY(!page->isWindow());
}

void TestTXWidget::withoutAParentItIsAWindow()
{
    const Page page;

    QVERIFY(page.isWindow());
    QCOMPARE(page.windowType(), Qt::Window);
}

void TestTXWidget::pageIsValidUnlessItKnowsBetter()
{
    BarePage bare;
    Page page;
    page.valid = false;
    TXWidget &base = page;

    QVERIFY(bare.isValid());
    QVERIFY(!base.isValid());
}

void TestTXWidget::libraryDoesNotUpdateThePage()
{
    Page page;
    page.show();
    page.hide();
    QCOMPARE(page.updates, 0);

    static_cast<TXWidget &>(page).updateContents();
    QCOMPARE(page.updates, 1);
}

void TestTXWidget::showAndHideReachTheBase()
{
    Page page;
    page.show();
    QCOMPARE(page.shown, 1);
    QVERIFY(page.isVisible());
    page.hide();
    QCOMPARE(page.hidden, 1);
    QVERIFY(!page.isVisible());
}

void TestTXWidget::finishingIsForThePageToTell()
{
    Page page;
    QSignalSpy finished(&page, SIGNAL(editionFinished()));
    page.show();
    page.updateContents();
    page.close();
    QCOMPARE(finished.count(), 0);

    page.finish();
    QCOMPARE(finished.count(), 1);
}

int main(int argc, char **argv)
{
    return runTest<TestTXWidget>(argc, argv);
}

#include "tst_TXWidget.moc"
