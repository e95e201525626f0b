#include "TestBase.h"
#include "TextRoom.h"

#include "TXUnfolderWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTabBar>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>

namespace {

const QString kText = QStringLiteral("Measuring condition");

bool isAny(const QString &text)
{
    return !text.isEmpty();
}

QString problemsOf(const QWidget &window)
{
    return TextRoom::problems(window, &isAny).join(u'\n');
}

using Maker = std::function<QWidget *(QWidget *parent)>;

template<class Widget>
QWidget *makeTexted(QWidget *parent)
{
    auto *widget = new Widget(parent);
    widget->setText(kText);
    return widget;
}

QWidget *makeFrame(QWidget *parent)
{
    return new QGroupBox(kText, parent);
}

QWidget *makeCheckableFrame(QWidget *parent)
{
    auto *group = new QGroupBox(kText, parent);
    group->setCheckable(true);
    return group;
}

QWidget *makeTabs(QWidget *parent)
{
    auto *tabs = new QTabBar(parent);
    tabs->setUsesScrollButtons(false);
    tabs->setElideMode(Qt::ElideNone);
    tabs->addTab(kText);
    return tabs;
}

QWidget *makeChoice(QWidget *parent)
{
    auto *box = new QComboBox(parent);
    box->addItems({"M0", kText});
    return box;
}

QWidget *makePlaceholder(QWidget *parent)
{
    auto *edit = new QLineEdit(parent);
    edit->setPlaceholderText(kText);
    return edit;
}

QWidget *makeNumber(QWidget *parent)
{
    auto *box = new QSpinBox(parent);
    box->setSpecialValueText(kText);
    return box;
}

QWidget *makeColumn(QWidget *parent)
{
    auto *table = new QTableWidget(0, 1, parent);
    table->setHorizontalHeaderLabels({kText});
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

QWidget *makeWrapped(QWidget *parent)
{
    auto *label = new QLabel(kText + u' ' + kText, parent);
    label->setWordWrap(true);
    return label;
}

QWidget *makeRich(QWidget *parent)
{
    return new QLabel("<b>" + kText + "</b>", parent);
}

} // namespace

Q_DECLARE_METATYPE(Maker)

class TestTextRoom : public TestBase
{
    Q_OBJECT

private slots:
    void cutTextIsFound_data();
    void cutTextIsFound();
    void checkMarkTakesRoomFromATitle();
    void foldingBoxHasRoomForItsTitle();
    void cutTextThatTheTooltipSaysIsReadable();
    void textOfNoInterestIsLeftOut();
    void widgetOutsideItsParentIsFound();
    void scrolledWidgetMayBeOutside();
    void scrollingTheOtherWayDoesNotHelp();
    void coveredWidgetIsFound();
};

void TestTextRoom::cutTextIsFound_data()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("label") << Maker(makeTexted<QLabel>);
    QTest::newRow("wrapped label") << Maker(makeWrapped);
    QTest::newRow("rich label") << Maker(makeRich);
    QTest::newRow("button") << Maker(makeTexted<QPushButton>);
    QTest::newRow("tool button") << Maker(makeTexted<QToolButton>);
    QTest::newRow("check box") << Maker(makeTexted<QCheckBox>);
    QTest::newRow("radio button") << Maker(makeTexted<QRadioButton>);
    QTest::newRow("frame") << Maker(makeFrame);
    QTest::newRow("frame to check") << Maker(makeCheckableFrame);
    QTest::newRow("tab") << Maker(makeTabs);
    QTest::newRow("choice") << Maker(makeChoice);
    QTest::newRow("placeholder") << Maker(makePlaceholder);
    QTest::newRow("number") << Maker(makeNumber);
    QTest::newRow("column") << Maker(makeColumn);
}

void TestTextRoom::cutTextIsFound()
{
    QFETCH(Maker, make);
    QWidget window;
    QWidget *widget = make(&window);
    window.resize(600, 300);
    window.show();

    widget->resize(400, 200);
    QCOMPARE(problemsOf(window), QString());

    widget->resize(60, 20);
    QVERIFY2(problemsOf(window).contains("needs"), qPrintable(problemsOf(window)));
}

void TestTextRoom::checkMarkTakesRoomFromATitle()
{
    QWidget window;
    QGroupBox group(kText, &window);
    // Just enough, so that the mark makes the difference.
    group.resize(group.fontMetrics().horizontalAdvance(kText) + 8, 100);
    window.resize(600, 300);
    window.show();
    QCOMPARE(problemsOf(window), QString());

    group.setCheckable(true);

    QVERIFY(problemsOf(window).contains("needs"));
}

void TestTextRoom::foldingBoxHasRoomForItsTitle()
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QWidget window;
        window.setLayoutDirection(direction);
        TXUnfolderWidget box(&window);
        box.setTitle(kText);
        box.resize(400, 100);
        window.resize(600, 300);
        window.show();
        QCOMPARE(problemsOf(window), QString());
    }
}

void TestTextRoom::cutTextThatTheTooltipSaysIsReadable()
{
    QWidget window;
    QWidget *label = makeTexted<QLabel>(&window);
    label->resize(60, 20);
    window.show();

    label->setToolTip("<p>" + kText + "</p>");
    QCOMPARE(problemsOf(window), QString());

    label->setToolTip("M1");
    QVERIFY(problemsOf(window).contains("needs"));
}

void TestTextRoom::textOfNoInterestIsLeftOut()
{
    QWidget window;
    makeTexted<QLabel>(&window)->resize(60, 20);
    window.show();

    const auto isOther = [](const QString &text) {
        return text != kText;
    };

    QCOMPARE(TextRoom::problems(window, isOther), QStringList());
}

void TestTextRoom::widgetOutsideItsParentIsFound()
{
    QWidget window;
    QWidget *label = makeTexted<QLabel>(&window);
    label->setGeometry(10, 10, 400, 30);
    window.resize(600, 300);
    window.show();
    QCOMPARE(problemsOf(window), QString());

    label->move(300, 10);

    QVERIFY(problemsOf(window).contains("reaches out"));
}

void TestTextRoom::scrolledWidgetMayBeOutside()
{
    QScrollArea area;
    auto *label = new QLabel(kText);
    label->resize(900, 900);
    area.setWidget(label);
    area.resize(300, 200);
    area.show();

    QCOMPARE(problemsOf(area), QString());
}

void TestTextRoom::scrollingTheOtherWayDoesNotHelp()
{
    QScrollArea area;
    area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *label = new QLabel(kText);
    label->resize(900, 900);
    area.setWidget(label);
    area.resize(300, 200);
    area.show();

    QVERIFY(problemsOf(area).contains("reaches out"));
}

void TestTextRoom::coveredWidgetIsFound()
{
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    column->addWidget(makeTexted<QLabel>(&window));
    QWidget *second = makeTexted<QPushButton>(&window);
    column->addWidget(second);
    window.resize(400, 200);
    window.show();
    QCOMPARE(problemsOf(window), QString());

    second->move(second->x(), 20);

    QVERIFY(problemsOf(window).contains("covers"));
}

int main(int argc, char **argv)
{
    return runTest<TestTextRoom>(argc, argv);
}

#include "tst_TextRoom.moc"
