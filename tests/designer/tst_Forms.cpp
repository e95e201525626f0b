#include "DoubleSpinBoxWithSliderWidget.h"
#include "PluginUnderTest.h"
#include "RotationLabel.h"
#include "TXColorSquareWidget.h"
#include "TXComboBox.h"
#include "TXGroupBoxBolded.h"
#include "TXPasswordLineEdit.h"
#include "TXProgressBar.h"
#include "TXSelectionItemWidget.h"
#include "TXSpinBoxDisabled.h"
#include "TXSplitter.h"
#include "TXStackedWidget.h"
#include "TXSwitchSlider.h"
#include "TXTriggerEventWidget.h"
#include "TXUnfolderWidget.h"
#include "TestBase.h"
#include "ui_Settings.h"

#include <QBuffer>
#include <QFile>
#include <QUiLoader>

namespace {

std::unique_ptr<QWidget> load(QIODevice &form)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(PluginUnderTest::folder());
    return std::unique_ptr<QWidget>(loader.load(&form));
}

std::unique_ptr<QWidget> formReadAtRunTime()
{
    QFile file(QStringLiteral(TX_FORMS "/Settings.ui"));
    return file.open(QIODevice::ReadOnly) ? load(file) : nullptr;
}

std::unique_ptr<QWidget> compiledForm()
{
    auto form = std::make_unique<QWidget>();
    Ui::Settings().setupUi(form.get());
    return form;
}

} // namespace

/// Forms made with the widgets: read by a program while it runs, and compiled into it.
class TestForms : public TestBase
{
    Q_OBJECT

private slots:
    void loaderKnowsEveryWidget();
    void loaderMakesEveryWidget_data();
    void loaderMakesEveryWidget();
    void elementFromTheWidgetBoxIsAForm_data();
    void elementFromTheWidgetBoxIsAForm();
    void newSplitterHasTwoPanes();
    void newStackHasTwoPages();
    void valuesArrive_data() { addForms(); }
    void valuesArrive();
    void looksArrive_data() { addForms(); }
    void looksArrive();
    void panelsArrive_data() { addForms(); }
    void panelsArrive();
    void childrenStandInTheirContainers_data() { addForms(); }
    void childrenStandInTheirContainers();
    void pagesStandInTheStack_data() { addForms(); }
    void pagesStandInTheStack();
    void connectionOfTheFormWorks_data() { addForms(); }
    void connectionOfTheFormWorks();

private:
    static void addForms();
    static std::unique_ptr<QWidget> fetchForm();
};

void TestForms::addForms()
{
    QTest::addColumn<bool>("isCompiled");
    QTest::newRow("read at run time") << false;
    QTest::newRow("compiled") << true;
}

std::unique_ptr<QWidget> TestForms::fetchForm()
{
    QFETCH(const bool, isCompiled);
    return isCompiled ? compiledForm() : formReadAtRunTime();
}

void TestForms::loaderKnowsEveryWidget()
{
    QUiLoader loader;
    loader.clearPluginPaths();
    QVERIFY(!loader.availableWidgets().contains(QStringLiteral("TXSwitchSlider")));
    loader.addPluginPath(PluginUnderTest::folder());
    const QStringList known = loader.availableWidgets();
    const auto all = PluginUnderTest::widgets();
    for (const QDesignerCustomWidgetInterface *plugin : all) {
        QVERIFY2(known.contains(plugin->name()), qPrintable(plugin->name()));
    }
}

void TestForms::loaderMakesEveryWidget_data()
{
    PluginUnderTest::addRows();
}

void TestForms::loaderMakesEveryWidget()
{
    QFETCH(const QString, className);
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(PluginUnderTest::folder());
    QWidget form;
    const QWidget *widget = loader.createWidget(className, &form, QStringLiteral("made"));
    QVERIFY(widget);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), className);
    QCOMPARE(widget->objectName(), QStringLiteral("made"));
    QCOMPARE(widget->parentWidget(), &form);
}

void TestForms::elementFromTheWidgetBoxIsAForm_data()
{
    PluginUnderTest::addRows();
}

void TestForms::elementFromTheWidgetBoxIsAForm()
{
    QFETCH(const QString, className);
    QBuffer buffer;
    buffer.setData(PluginUnderTest::widgetOf(className)->domXml().toUtf8());
    const std::unique_ptr<QWidget> widget = load(buffer);
    QVERIFY(widget);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), className);
    QVERIFY(!widget->size().isEmpty());
}

void TestForms::newSplitterHasTwoPanes()
{
    QBuffer buffer;
    buffer.setData(PluginUnderTest::widgetOf(QStringLiteral("TXSplitter"))->domXml().toUtf8());
    const std::unique_ptr<QWidget> splitter = load(buffer);
    QCOMPARE(qobject_cast<TXSplitter *>(splitter.get())->count(), 2);
}

void TestForms::newStackHasTwoPages()
{
    QBuffer buffer;
    buffer.setData(PluginUnderTest::widgetOf(QStringLiteral("TXStackedWidget"))->domXml().toUtf8());
    const std::unique_ptr<QWidget> stack = load(buffer);
    QCOMPARE(qobject_cast<TXStackedWidget *>(stack.get())->count(), 2);
}

void TestForms::valuesArrive()
{
    const std::unique_ptr<QWidget> form = fetchForm();
    QVERIFY(form);
    QVERIFY(form->findChild<TXSwitchSlider *>()->isChecked());
    const auto *tolerance = form->findChild<DoubleSpinBoxWithSliderWidget *>();
    QCOMPARE(tolerance->decimals(), 3);
    QCOMPARE(tolerance->minimumValue(), 150.0);
    QCOMPARE(tolerance->maximumValue(), 250.0);
    QCOMPARE(tolerance->singleStep(), 0.125);
    QCOMPARE(tolerance->value(), 151.125);
    const TXProgressBar *work = form->findChild<TXProgressBar *>();
    QCOMPARE(work->minimum(), -10);
    QCOMPARE(work->maximum(), 10);
    QCOMPARE(work->value(), 5);
    QCOMPARE(work->message(), QStringLiteral("Reading"));
    QCOMPARE(work->textDirection(), QProgressBar::BottomToTop);
    QCOMPARE(form->findChild<TXSpinBoxDisabled *>()->value(), 7);
}

void TestForms::looksArrive()
{
    const std::unique_ptr<QWidget> form = fetchForm();
    QVERIFY(form);
    QCOMPARE(form->findChild<RotationLabel *>()->rotation(), RotationLabel::RotateCounterClockwise);
    const auto *square = form->findChild<TXColorSquareWidget *>();
    QCOMPARE(square->sizeHint(), QSize(40, 40));
    QCOMPARE(square->property("brush").value<QBrush>(), QBrush(QColor(200, 30, 60)));
    QCOMPARE(square->property("radius").toDouble(), 6.5);
    QCOMPARE(square->property("alignment").value<Qt::Alignment>(), Qt::AlignCenter);
    const auto *tolerance = form->findChild<DoubleSpinBoxWithSliderWidget *>();
    QCOMPARE(tolerance->spinBoxSuffix(), QStringLiteral(" mm"));
    QCOMPARE(tolerance->spinBoxButtonSymbol(), QAbstractSpinBox::PlusMinus);
    QCOMPARE(tolerance->minLabelName(), QStringLiteral("strict"));
    QCOMPARE(tolerance->maxLabelName(), QStringLiteral("lax"));
    QVERIFY(!form->findChild<TXGroupBoxBolded *>(QStringLiteral("areaBox"))->hasBoldTitle());
    QVERIFY(!form->findChild<TXSpinBoxDisabled *>()->hasFrame());
}

void TestForms::panelsArrive()
{
    const std::unique_ptr<QWidget> form = fetchForm();
    QVERIFY(form);
    QCOMPARE(form->findChild<TXTriggerEventWidget *>()->groupBoxTitle(),
             QStringLiteral("Cleaning"));
    const auto *presets = form->findChild<TXSelectionItemWidget *>();
    QCOMPARE(presets->labelName(), QStringLiteral("Preset"));
    QVERIFY(!presets->isImportViaComboBox());
    QVERIFY(presets->isImportButtonVisible());
}

void TestForms::childrenStandInTheirContainers()
{
    const std::unique_ptr<QWidget> form = fetchForm();
    QVERIFY(form);
    QCOMPARE(QString::fromLatin1(
                 form->findChild<TXSpinBoxDisabled *>()->parentWidget()->metaObject()->className()),
             QStringLiteral("TXGroupBoxBolded"));
    auto *more = form->findChild<TXUnfolderWidget *>();
    QVERIFY(more->isChecked());
    QCOMPARE(form->findChild<QWidget *>(QStringLiteral("hintLabel"))->parentWidget(), more);
    const auto *splitter = form->findChild<TXSplitter *>();
    QCOMPARE(splitter->count(), 2);
    QCOMPARE(splitter->widget(1), form->findChild<TXPasswordLineEdit *>());
}

void TestForms::pagesStandInTheStack()
{
    const std::unique_ptr<QWidget> form = fetchForm();
    QVERIFY(form);
    const auto *pages = form->findChild<TXStackedWidget *>();
    QCOMPARE(pages->count(), 2);
    QCOMPARE(pages->currentIndex(), 1);
    auto *inks = form->findChild<TXComboBox *>();
    QCOMPARE(inks->count(), 2);
    QVERIFY(pages->widget(0)->isAncestorOf(inks));
    QVERIFY(pages->widget(1)->isAncestorOf(form->findChild<TXTriggerEventWidget *>()));
}

void TestForms::connectionOfTheFormWorks()
{
    const std::unique_ptr<QWidget> form = fetchForm();
    QVERIFY(form);
    form->show();
    QVERIFY(QTest::qWaitForWindowExposed(form.get()));
    auto *active = form->findChild<TXSwitchSlider *>();
    const auto *tolerance = form->findChild<DoubleSpinBoxWithSliderWidget *>();
    QVERIFY(tolerance->isEnabled());
    QTest::mouseClick(active, Qt::LeftButton);
    QVERIFY(!active->isChecked());
    QVERIFY(!tolerance->isEnabled());
}

int main(int argc, char **argv)
{
    return runTest<TestForms>(argc, argv);
}

#include "tst_Forms.moc"
