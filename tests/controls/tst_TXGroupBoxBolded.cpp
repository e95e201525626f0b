#include "TXGroupBoxBolded.h"

#include "TestBase.h"

#include <QLabel>
#include <QVBoxLayout>

#include <memory>
#include <new>

namespace {

constexpr int kBold = 700;
constexpr int kNotBold = 400;

QFont withWeight(const QFont &font, int weight)
{
    QFont changed = font;
    changed.setWeight(QFont::Weight(weight));
    return changed;
}

} // namespace

class TestTXGroupBoxBolded : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { box.reset(); }

private slots:
    void titleIsBoldOnceShown();
    void childrenKeepTheirWeight_data();
    void childrenKeepTheirWeight();
    void onlyTheWeightChanges();
    void grandchildrenFollowTheirParents();
    void laterChildIsNotBold();
    void weightsAreNotedOnce();
    void boxWithoutChildrenNotesAtTheNextShow();
    void withoutBoldTitleNothingHappens();
    void boldTitleSwitchedOffLeavesWhatIs();
    void deletedChildDoesNoHarm();
    void childAtTheAddressOfADeletedOneIsNotBold();
    void lastChildGoneIsNoFirstShow();
    void childMovedAwayIsLeftAlone();
    void fontChangeThatDeletesTheNextChildDoesNoHarm();

private:
    QLabel *addLabel(int weight)
    {
        auto *label = new QLabel("Paper white", box.get());
        label->setFont(withWeight(label->font(), weight));
        return label;
    }

    void showAgain()
    {
        box->hide();
        box->show();
    }

    std::unique_ptr<TXGroupBoxBolded> box;
};

void TestTXGroupBoxBolded::prepare()
{
    box = std::make_unique<TXGroupBoxBolded>(nullptr);
    box->setTitle("Proof");
}

void TestTXGroupBoxBolded::titleIsBoldOnceShown()
{
    QCOMPARE(int(box->font().weight()), kNotBold);
    box->show();
    QCOMPARE(int(box->font().weight()), kBold);
}

void TestTXGroupBoxBolded::childrenKeepTheirWeight_data()
{
    QTest::addColumn<int>("weight");
    QTest::addColumn<int>("shown");
    QTest::newRow("thin") << 100 << kNotBold;
    QTest::newRow("normal") << 400 << kNotBold;
    QTest::newRow("medium") << 500 << kNotBold;
    QTest::newRow("just heavier") << 501 << kBold;
    QTest::newRow("demi-bold") << 600 << kBold;
    QTest::newRow("bold") << 700 << kBold;
    QTest::newRow("black") << 900 << kBold;
}

void TestTXGroupBoxBolded::childrenKeepTheirWeight()
{
    QFETCH(int, weight);
    QFETCH(int, shown);
    const QLabel *plain = new QLabel("Black point", box.get());
    const QLabel *label = addLabel(weight);

    box->show();

    QCOMPARE(int(label->font().weight()), shown);
    QCOMPARE(int(plain->font().weight()), kNotBold);
    showAgain();
    QCOMPARE(int(label->font().weight()), shown);
    QCOMPARE(int(plain->font().weight()), kNotBold);
}

void TestTXGroupBoxBolded::onlyTheWeightChanges()
{
    QLabel *label = addLabel(700);
    QFont font = label->font();
    font.setItalic(true);
    font.setPixelSize(23);
    label->setFont(font);
    const QLabel *plain = addLabel(400);
    const QString family = plain->font().family();

    box->show();

    QVERIFY(label->font().italic());
    QCOMPARE(label->font().pixelSize(), 23);
    QCOMPARE(plain->font().family(), family);
    QVERIFY(!plain->font().italic());
}

void TestTXGroupBoxBolded::grandchildrenFollowTheirParents()
{
    auto *child = new QWidget(box.get());
    const QLabel *plain = new QLabel("Ink limit", child);
    auto *heavy = new QLabel("Total", child);
    heavy->setFont(withWeight(heavy->font(), 800));

    box->show();

    QCOMPARE(int(plain->font().weight()), kNotBold);
    QCOMPARE(int(heavy->font().weight()), 800);
}

void TestTXGroupBoxBolded::laterChildIsNotBold()
{
    const QLabel *first = addLabel(700);
    box->show();
    const QLabel *inherits = new QLabel("Later", box.get());
    const QLabel *heavy = addLabel(900);
    QCOMPARE(int(inherits->font().weight()), kBold);

    showAgain();

    QCOMPARE(int(inherits->font().weight()), kNotBold);
    QCOMPARE(int(heavy->font().weight()), kNotBold);
    QCOMPARE(int(first->font().weight()), kBold);
}

void TestTXGroupBoxBolded::weightsAreNotedOnce()
{
    QLabel *light = addLabel(400);
    QLabel *heavy = addLabel(700);
    box->show();
    light->setFont(withWeight(light->font(), 900));
    heavy->setFont(withWeight(heavy->font(), 100));

    showAgain();

    QCOMPARE(int(light->font().weight()), kNotBold);
    QCOMPARE(int(heavy->font().weight()), kBold);
}

void TestTXGroupBoxBolded::boxWithoutChildrenNotesAtTheNextShow()
{
    box->show();
    const QLabel *inherits = new QLabel("Later", box.get());
    const QLabel *light = addLabel(400);

    showAgain();

    QCOMPARE(int(inherits->font().weight()), kBold);
    QCOMPARE(int(light->font().weight()), kNotBold);
}

void TestTXGroupBoxBolded::withoutBoldTitleNothingHappens()
{
    const QLabel *heavy = addLabel(900);
    QLabel *light = addLabel(100);
    box->setBoldTitle(false);

    box->show();

    QCOMPARE(int(box->font().weight()), kNotBold);
    QCOMPARE(int(heavy->font().weight()), 900);
    QCOMPARE(int(light->font().weight()), 100);
    // Nothing was noted either: the next show finds the weights of then.
    light->setFont(withWeight(light->font(), 800));
    box->setBoldTitle(true);
    showAgain();
    QCOMPARE(int(light->font().weight()), kBold);
}

void TestTXGroupBoxBolded::boldTitleSwitchedOffLeavesWhatIs()
{
    const QLabel *light = addLabel(100);
    box->show();
    box->setBoldTitle(false);
    showAgain();
    QCOMPARE(int(box->font().weight()), kBold);
    QCOMPARE(int(light->font().weight()), kNotBold);
}

void TestTXGroupBoxBolded::deletedChildDoesNoHarm()
{
    delete addLabel(700);
    const QLabel *gone = addLabel(700);
    const QLabel *stays = addLabel(700);
    box->show();
    delete gone;

    showAgain();

    QCOMPARE(int(stays->font().weight()), kBold);
}

void TestTXGroupBoxBolded::childAtTheAddressOfADeletedOneIsNotBold()
{
    // The same storage twice, so that the address is surely the same.
    alignas(QLabel) std::byte storage[sizeof(QLabel)];
    auto *first = new (storage) QLabel(box.get());
    first->setFont(withWeight(first->font(), 700));
    box->show();
    QCOMPARE(int(first->font().weight()), kBold);
    first->~QLabel();
    auto *second = new (storage) QLabel(box.get());
    QCOMPARE(static_cast<void *>(second), static_cast<void *>(first));

    showAgain();

    const int weight = second->font().weight();
    second->~QLabel();
    QCOMPARE(weight, kNotBold);
}

void TestTXGroupBoxBolded::lastChildGoneIsNoFirstShow()
{
    const QLabel *only = addLabel(400);
    box->show();
    delete only;
    const QLabel *later = addLabel(700);

    showAgain();

    QCOMPARE(int(later->font().weight()), kNotBold);
}

void TestTXGroupBoxBolded::childMovedAwayIsLeftAlone()
{
    auto child = std::unique_ptr<QLabel>(addLabel(700));
    const QLabel *stays = addLabel(700);
    box->show();
    child->setParent(nullptr);
    child->setFont(withWeight(child->font(), 300));

    showAgain();

    QCOMPARE(int(child->font().weight()), 300);
    QCOMPARE(int(stays->font().weight()), kBold);
    box.reset();
    child.reset(); // tells a box that is gone
}

void TestTXGroupBoxBolded::fontChangeThatDeletesTheNextChildDoesNoHarm()
{
    /// Deletes another widget as soon as its own font changes.
    class Deleter : public QWidget
    {
    public:
        using QWidget::QWidget;
        QWidget *victim = nullptr;

    protected:
        void changeEvent(QEvent *event) override
        {
            QWidget::changeEvent(event);
            if (event->type() == QEvent::FontChange) {
                delete std::exchange(victim, nullptr);
            }
        }
    };
    auto *deleter = new Deleter(box.get());
    deleter->setFont(withWeight(deleter->font(), 600));
    const QPointer<QWidget> next = addLabel(700);
    const QLabel *last = addLabel(700);
    deleter->victim = next;

    box->show();

    QVERIFY(next.isNull());
    QCOMPARE(int(last->font().weight()), kBold);
}

int main(int argc, char **argv)
{
    return runTest<TestTXGroupBoxBolded>(argc, argv);
}

#include "tst_TXGroupBoxBolded.moc"
