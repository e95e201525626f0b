#include "TXSelectionItemWidget.h"

#include "ControlTestHelpers.h"
#include "PixelProbe.h"
#include "SelectionBarHelpers.h"
#include "TestBase.h"

#include <QProxyStyle>
#include <QPushButton>
#include <QScopeGuard>

#include <memory>

namespace {

/// Makes every combo box this high.
class HighBoxStyle : public QProxyStyle
{
public:
    explicit HighBoxStyle(int height)
        : QProxyStyle(QStringLiteral("Fusion"))
        , height(height)
    { }

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override
    {
        const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
        return type == CT_ComboBox ? QSize(usual.width(), height) : usual;
    }

private:
    const int height;
};

/// The side of the squares that all buttons are, or 0 when one is something else.
int sideOfSquares(const TXSelectionItemWidget &bar)
{
    const QList<QAbstractButton *> buttons = buttonsOf(bar);
    const int side = buttons.constFirst()->minimumWidth();
    for (const QAbstractButton *button : buttons) {
        if (button->minimumSize() != QSize(side, side)
            || button->maximumSize() != QSize(side, side)) {
            return 0;
        }
    }
    return side;
}

} // namespace

class TestTXSelectionItemWidgetLook : public TestBase
{
    Q_OBJECT

private slots:
    void buttonsAreSquaresAsHighAsTheBox();
    void hiddenButtonsAreSquaresToo();
    void setModelMakesSquaresAgain();
    void squaresFollowFontAndStyle();
    void squaresFollowTheFontOfTheBoxAlone();
    void squaresFollowTheStyleOfTheApplication();
    void pictureShowsEveryVisibleControl_data();
    void pictureShowsEveryVisibleControl();
};

void TestTXSelectionItemWidgetLook::buttonsAreSquaresAsHighAsTheBox()
{
    TXSelectionItemWidget bar;
    QVERIFY(sideOfSquares(bar) > 0);
    QCOMPARE(sideOfSquares(bar), bar.itemComboBox()->sizeHint().height());
}

void TestTXSelectionItemWidgetLook::hiddenButtonsAreSquaresToo()
{
    TXSelectionItemWidget bar;
    const int side = bar.itemComboBox()->sizeHint().height();
    QCOMPARE(menuButton(bar)->minimumSize(), QSize(side, side));
    bar.hideSaveItemButton();
    bar.saveItemButton()->setFixedSize(5, 6);
    Presets presets;
    bar.setModel(&presets, nullptr, nullptr);
    QCOMPARE(bar.saveItemButton()->minimumSize(), QSize(side, side));
}

void TestTXSelectionItemWidgetLook::setModelMakesSquaresAgain()
{
    TXSelectionItemWidget bar;
    QPushButton added(&bar);
    QWidget inner(&bar);
    QPushButton deeper(&inner);
    bar.itemComboBox()->setIconSize(QSize(60, 60));
    Presets presets;
    presets.item(0)->setIcon(QIcon(QPixmap(60, 60)));
    bar.setModel(&presets, nullptr, nullptr);
    QVERIFY(bar.itemComboBox()->sizeHint().height() > 60);
    QCOMPARE(sideOfSquares(bar), bar.itemComboBox()->sizeHint().height());
    QCOMPARE(added.minimumHeight(), bar.itemComboBox()->sizeHint().height());
    QCOMPARE(deeper.minimumSize(), QSize(0, 0));

    bar.addNewItemButton()->setFixedSize(10, 10);
    bar.setModel(nullptr, nullptr, nullptr);
    QCOMPARE(sideOfSquares(bar), bar.itemComboBox()->sizeHint().height());
}

void TestTXSelectionItemWidgetLook::squaresFollowFontAndStyle()
{
    HighBoxStyle style(55);
    TXSelectionItemWidget bar;
    const int before = sideOfSquares(bar);
    QFont font = bar.font();
    font.setPointSize(40);
    bar.setFont(font);
    QVERIFY(sideOfSquares(bar) > before);
    QCOMPARE(sideOfSquares(bar), bar.itemComboBox()->sizeHint().height());

    bar.setFont(QFont());
    bar.setStyleSheet("QComboBox { min-height: 70px; }");
    QTRY_VERIFY(sideOfSquares(bar) >= 70);
    QCOMPARE(sideOfSquares(bar), bar.itemComboBox()->sizeHint().height());

    bar.setStyleSheet(QString());
    bar.itemComboBox()->setStyle(&style);
    QTRY_COMPARE(sideOfSquares(bar), 55);
}

void TestTXSelectionItemWidgetLook::squaresFollowTheFontOfTheBoxAlone()
{
    TXSelectionItemWidget bar;
    const int before = sideOfSquares(bar);
    QFont font = bar.font();
    font.setPointSize(40);
    bar.itemComboBox()->setFont(font);
    QTRY_VERIFY(sideOfSquares(bar) > before);
    QCOMPARE(sideOfSquares(bar), bar.itemComboBox()->sizeHint().height());
}

void TestTXSelectionItemWidgetLook::squaresFollowTheStyleOfTheApplication()
{
    TXSelectionItemWidget bar;
    QApplication::setStyle(std::make_unique<HighBoxStyle>(61).release());
    const auto restore = qScopeGuard([] { QApplication::setStyle(QStringLiteral("Fusion")); });
    QTRY_COMPARE(sideOfSquares(bar), 61);
}

void TestTXSelectionItemWidgetLook::pictureShowsEveryVisibleControl_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        QTest::addRow("light, ratio %g", ratio) << QPalette() << ratio;
        QTest::addRow("dark, ratio %g", ratio) << darkPalette() << ratio;
    }
}

void TestTXSelectionItemWidgetLook::pictureShowsEveryVisibleControl()
{
    QFETCH(QPalette, palette);
    QFETCH(qreal, ratio);
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setPalette(palette);
    bar.setLabelName("Preset");
    bar.setModel(&presets, nullptr, nullptr);
    const PixelProbe picture(bar, ratio);
    const auto children = bar.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *child : children) {
        const int colours = int(picture.countColours(child->geometry()));
        QVERIFY2(child->isHidden() || colours > 2, qPrintable(child->objectName()));
    }
    QVERIFY(picture.isNear(QPoint(0, 1), palette.color(QPalette::Window)));
}

int main(int argc, char **argv)
{
    return runTest<TestTXSelectionItemWidgetLook>(argc, argv);
}

#include "tst_TXSelectionItemWidgetLook.moc"
