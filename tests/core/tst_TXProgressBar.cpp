#include "TXProgressBar.h"

#include "BracketsTranslator.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QProgressBar>

#include <limits>
#include <memory>

class TestTXProgressBar : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { bar.reset(); }

private slots:
    void formIsAsDescribed();
    void barHasTheRoomThatTheMessageLeaves();
    void messageStandsBesideTheBar();
    void messageIsNoMarkup_data();
    void messageIsNoMarkup();
    void rangeAndValueAreTheBars();
    void valueOutsideTheRangeIsIgnored_data();
    void valueOutsideTheRangeIsIgnored();
    void rangeOfNothingIsBusy();
    void looksAreTheBars();
    void textIsTheBars();
    void slotsComeInTheirOrder();
    void progressIsPainted_data();
    void progressIsPainted();
    void assistiveToolsReadValueAndMessage();
    void languageChangeKeepsMessageAndTitle();

private:
    std::unique_ptr<TXProgressBar> bar;
    QProgressBar *inner = nullptr;
    QLabel *label = nullptr;
};

void TestTXProgressBar::prepare()
{
    bar = std::make_unique<TXProgressBar>(nullptr);
    inner = bar->findChild<QProgressBar *>(QStringLiteral("progressBar"));
    label = bar->findChild<QLabel *>(QStringLiteral("progressMessage"));
    QVERIFY(inner && label);
}

void TestTXProgressBar::formIsAsDescribed()
{
    QCOMPARE(bar->size(), QSize(157, 21));
    QCOMPARE(bar->windowTitle(), "Form");
    QCOMPARE(inner->value(), 24);
    QCOMPARE(bar->value(), 24);
    QCOMPARE(label->text(), QString());
    QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    const auto *layout = bar->findChild<QHBoxLayout *>(QStringLiteral("horizontalLayout"));
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->itemAt(0)->widget(), inner);
    QCOMPARE(layout->itemAt(1)->widget(), label);
}

void TestTXProgressBar::barHasTheRoomThatTheMessageLeaves()
{
    bar->resize(400, 30);
    bar->setMessage(QStringLiteral("Reading the chart"));
    bar->show();
    QVERIFY(QTest::qWaitForWindowExposed(bar.get()));
    QCOMPARE(inner->x(), 0);
    QCOMPARE(label->geometry().right(), 399);
    QVERIFY(label->width() >= label->sizeHint().width());
    QVERIFY(inner->width() > 150);
    QVERIFY(inner->geometry().right() < label->x());
}

void TestTXProgressBar::messageStandsBesideTheBar()
{
    for (const QString &message : {QStringLiteral("Reading R&D.txt"), QString(),
                                   QStringLiteral("two\nlines"), QStringLiteral("测量")}) {
        bar->setMessage(message);
        QCOMPARE(label->text(), message);
        QCOMPARE(inner->accessibleDescription(), message);
    }
    QCOMPARE(label->buddy(), nullptr); // it would swallow the "&"
}

void TestTXProgressBar::messageIsNoMarkup_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("bold") << QStringLiteral("<b>x</b>");
    QTest::newRow("picture") << QStringLiteral("<img src='/etc/hostname'>");
}

void TestTXProgressBar::messageIsNoMarkup()
{
    QFETCH(QString, message);
    bar->setMessage(message);
    const QFontMetrics metrics(label->font());
    QVERIFY(label->sizeHint().width() >= metrics.horizontalAdvance(message));
}

void TestTXProgressBar::rangeAndValueAreTheBars()
{
    QCOMPARE(bar->minimum(), 0);
    QCOMPARE(bar->maximum(), 100);
    bar->setRange(-50, 50);
    bar->setValue(-7);
    QCOMPARE(inner->minimum(), -50);
    QCOMPARE(inner->maximum(), 50);
    QCOMPARE(inner->value(), -7);
    inner->setRange(1, 9);
    inner->setValue(3);
    QCOMPARE(bar->minimum(), 1);
    QCOMPARE(bar->maximum(), 9);
    QCOMPARE(bar->value(), 3);
    bar->setRange(10, 5);
    QCOMPARE(bar->minimum(), 10);
    QCOMPARE(bar->maximum(), 10);
}

void TestTXProgressBar::valueOutsideTheRangeIsIgnored_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("above") << 101;
    QTest::newRow("below") << -1;
    QTest::newRow("least") << std::numeric_limits<int>::min();
    QTest::newRow("most") << std::numeric_limits<int>::max();
}

void TestTXProgressBar::valueOutsideTheRangeIsIgnored()
{
    QFETCH(int, value);
    bar->setValue(value);
    QCOMPARE(bar->value(), 24);
}

void TestTXProgressBar::rangeOfNothingIsBusy()
{
    bar->setRange(0, 0);
    QCOMPARE(bar->minimum(), 0);
    QCOMPARE(bar->maximum(), 0);
    QCOMPARE(bar->text(), QString());
}

void TestTXProgressBar::looksAreTheBars()
{
    const TXProgressBar &fixed = *bar;
    QCOMPARE(bar->orientation(), Qt::Horizontal);
    bar->setOrientation(Qt::Vertical);
    QCOMPARE(inner->orientation(), Qt::Vertical);
    QCOMPARE(bar->orientation(), Qt::Vertical);

    bar->setAlignment(Qt::AlignRight);
    QCOMPARE(inner->alignment(), Qt::AlignRight);
    QCOMPARE(bar->alignment(), Qt::AlignRight);

    QVERIFY(!bar->invertedAppearance());
    bar->setInvertedAppearance(true);
    QVERIFY(inner->invertedAppearance() && bar->invertedAppearance());
    QVERIFY(fixed.invertedAppearance());

    QVERIFY(bar->isTextVisible());
    bar->setTextVisible(false);
    QVERIFY(!inner->isTextVisible() && !bar->isTextVisible());

    QCOMPARE(bar->textDirection(), QProgressBar::TopToBottom);
    bar->setTextDirection(QProgressBar::BottomToTop);
    QCOMPARE(inner->textDirection(), QProgressBar::BottomToTop);
    QCOMPARE(bar->textDirection(), QProgressBar::BottomToTop);
    QCOMPARE(fixed.textDirection(), QProgressBar::BottomToTop);
}

void TestTXProgressBar::textIsTheBars()
{
    QCOMPARE(bar->format(), "%p%");
    QCOMPARE(bar->text(), "24%");
    bar->setFormat(QStringLiteral("%v of %m"));
    QCOMPARE(inner->format(), "%v of %m");
    QCOMPARE(bar->format(), "%v of %m");
    QCOMPARE(bar->text(), "24 of 100");
}

void TestTXProgressBar::slotsComeInTheirOrder()
{
    const QMetaObject &meta = TXProgressBar::staticMetaObject;
    const QList<QByteArray> expected = {"setRange(int,int)", "setValue(int)",
                                        "setOrientation(Qt::Orientation)"};
    QList<QByteArray> found;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
        found.append(meta.method(i).methodSignature());
    }
    QCOMPARE(found, expected);
}

void TestTXProgressBar::progressIsPainted_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("ratio 1") << 1.0;
    QTest::newRow("ratio 2") << 2.0;
}

void TestTXProgressBar::progressIsPainted()
{
    QFETCH(double, ratio);
    bar->resize(200, 24);
    bar->setTextVisible(false);
    bar->setValue(50);
    bar->show();
    QVERIFY(QTest::qWaitForWindowExposed(bar.get()));
    const int middle = bar->height() / 2;
    const PixelProbe half(*bar, ratio);
    bar->setValue(100);
    const PixelProbe full(*bar, ratio);
    const QPoint early(inner->width() / 4, middle);
    const QPoint late(inner->width() * 3 / 4, middle);
    QCOMPARE(half.at(early), full.at(early));
    QVERIFY(half.at(late) != full.at(late));
}

void TestTXProgressBar::assistiveToolsReadValueAndMessage()
{
    bar->setMessage(QStringLiteral("Reading R&D.txt"));
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(inner);
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::ProgressBar);
    QCOMPARE(accessible->text(QAccessible::Name), "Progress");
    QCOMPARE(accessible->text(QAccessible::Description), "Reading R&D.txt");
    QCOMPARE(accessible->valueInterface()->currentValue().toInt(), 24);
}

void TestTXProgressBar::languageChangeKeepsMessageAndTitle()
{
    bar->setMessage(QStringLiteral("Reading"));
    bar->setWindowTitle(QStringLiteral("Import"));
    BracketsTranslator translator("TXProgressBar");
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    const QString named = inner->accessibleName();
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(named, "[Progress]");
    QCOMPARE(inner->accessibleName(), "Progress");
    QCOMPARE(label->text(), "Reading");
    QCOMPARE(bar->windowTitle(), "Import");
}

int main(int argc, char **argv)
{
    return runTest<TestTXProgressBar>(argc, argv);
}

#include "tst_TXProgressBar.moc"
