#include "ConfWidget.h"

#include "TXWidget.h"
#include "TestBase.h"

#include <QSignalSpy>

#include <type_traits>

static_assert(std::is_abstract_v<ConfWidget>);
static_assert(!std::is_base_of_v<TXWidget, ConfWidget>);

namespace {

class Page : public ConfWidget
{
    Q_OBJECT

public:
    using ConfWidget::ConfWidget;

    void load(const QHash<QString, QVariant> &settings) override { values = settings; }
    QHash<QString, QVariant> save() override { return values; }
    void change() { emit confWidgetChanged(); }

private:
    QHash<QString, QVariant> values;
};

} // namespace

class TestConfWidget : public TestBase
{
    Q_OBJECT

private slots:
    void parentOwnsThePage();
    void withoutAParentItIsAWindow();
    void settingsPassThroughTheBase();
    void changesAreForThePageToTell();
};

void TestConfWidget::parentOwnsThePage()
{
    QWidget window;
    auto *page = new Page(&window);

    QCOMPARE(page->parentWidget(), &window);
    QVERIFY(!page->isWindow());
}

void TestConfWidget::withoutAParentItIsAWindow()
{
    const Page page;

    QCOMPARE(page.windowType(), Qt::Window);
}

void TestConfWidget::settingsPassThroughTheBase()
{
    const QHash<QString, QVariant> settings{{QStringLiteral("depth"), 16},
                                            {QString(), QByteArray("x")}};
    Page page;
    ConfWidget &base = page;
    base.load(settings);

    QCOMPARE(base.save(), settings);
}

void TestConfWidget::changesAreForThePageToTell()
{
    Page page;
    QSignalSpy changed(&page, SIGNAL(confWidgetChanged()));
    page.show();
    page.load({});
    page.save();
    page.close();
    QCOMPARE(changed.count(), 0);

    page.change();
    QCOMPARE(changed.count(), 1);
}

int main(int argc, char **argv)
{
    return runTest<TestConfWidget>(argc, argv);
}

#include "tst_ConfWidget.moc"
