#include "PixelProbe.h"
#include "PluginUnderTest.h"
#include "TestBase.h"

#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QtDesigner>

#include <QFile>

namespace {

QString settingsForm()
{
    QFile file(QStringLiteral(TX_FORMS "/Settings.ui"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

/// The plug-in inside the parts that Qt Designer, and IDEs with it, are made of.
class TestQtDesigner : public TestBase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void widgetBoxShowsTheGroups();
    void formIsWrittenAsItWasRead();
    void headersAreIncludedAsAHostDoes();
    void containersAreKnown();
    void stackTakesAnotherPage();
    void propertiesCanBeEdited_data();
    void propertiesCanBeEdited();
    void spinnerShowsItsBars();
    void cleanupTestCase();

protected:
    void prepare() override;
    void finish() override;

private:
    QDesignerPropertySheetExtension *sheetOf(const QString &objectName) const;
    QWidget *child(const QString &objectName) const;

    std::unique_ptr<QDesignerFormEditorInterface> core;
    std::unique_ptr<QWidget> window;
    QDesignerFormWindowInterface *form = nullptr;
};

// Only one in a process: Qt Designer keeps things behind that outlive a form editor.
void TestQtDesigner::initTestCase()
{
    QCoreApplication::addLibraryPath(QFileInfo(PluginUnderTest::folder()).path());
    QDesignerComponents::initializeResources();
    core.reset(QDesignerComponents::createFormEditor(nullptr));
    QDesignerComponents::initializePlugins(core.get());
    // There is no property editor to be told.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("nullptr.*::propertyChanged"));
    core->setIntegration(new QDesignerIntegration(core.get(), core.get()));
}

void TestQtDesigner::cleanupTestCase()
{
    core.reset();
}

void TestQtDesigner::prepare()
{
    window = std::make_unique<QWidget>();
    form = core->formWindowManager()->createFormWindow(window.get());
    QVERIFY(form->setContents(settingsForm()));
}

void TestQtDesigner::finish()
{
    form = nullptr;
    window.reset();
}

QWidget *TestQtDesigner::child(const QString &objectName) const
{
    return form->findChild<QWidget *>(objectName);
}

QDesignerPropertySheetExtension *TestQtDesigner::sheetOf(const QString &objectName) const
{
    return qt_extension<QDesignerPropertySheetExtension *>(core->extensionManager(),
                                                           child(objectName));
}

void TestQtDesigner::widgetBoxShowsTheGroups()
{
    auto *box = QDesignerComponents::createWidgetBox(core.get(), window.get());
    core->setWidgetBox(box);
    box->setFileName(QStringLiteral(":/qt-project.org/widgetbox/widgetbox.xml"));
    QVERIFY(box->load());
    QMap<QString, int> shown;
    for (int index = 0; index < box->categoryCount(); ++index) {
        const auto category = box->category(index);
        shown.insert(category.name(), category.widgetCount());
    }
    QMap<QString, int> expected;
    const auto all = PluginUnderTest::widgets();
    for (const QDesignerCustomWidgetInterface *plugin : all) {
        ++expected[plugin->group()];
    }
    QCOMPARE(expected.size(), 4);
    for (auto group = expected.begin(); group != expected.end(); ++group) {
        QCOMPARE(shown.value(group.key()), group.value());
    }
}

void TestQtDesigner::formIsWrittenAsItWasRead()
{
    const QString written = form->contents();
    QVERIFY(form->setContents(written));
    QCOMPARE(form->contents(), written);
    for (const QString &part :
         {QStringLiteral("<enum>RotationLabel::RotateCounterClockwise</enum>"),
          QStringLiteral("<string>Cleaning</string>"),
          QStringLiteral("<property name=\"importButtonVisible\" stdset=\"0\">"),
          QStringLiteral("<widget class=\"QWidget\" name=\"secondPage\">")}) {
        QVERIFY2(written.contains(part), qPrintable(part));
    }
}

void TestQtDesigner::headersAreIncludedAsAHostDoes()
{
    QVERIFY(form->contents().contains(
        QStringLiteral("<header location=\"global\">TXSwitchSlider.h</header>")));
}

void TestQtDesigner::containersAreKnown()
{
    const QStringList containers = {"TXGroupBoxBolded", "TXSplitter", "TXStackedWidget",
                                    "TXUnfolderWidget"};
    const auto *known = core->widgetDataBase();
    const auto all = PluginUnderTest::widgets();
    for (const QDesignerCustomWidgetInterface *plugin : all) {
        const int index = known->indexOfClassName(plugin->name());
        QVERIFY2(index >= 0, qPrintable(plugin->name()));
        QCOMPARE(plugin->isContainer(), containers.contains(plugin->name()));
        QCOMPARE(known->item(index)->isContainer(), containers.contains(plugin->name()));
        QCOMPARE(known->item(index)->includeFile(), plugin->includeFile());
    }
}

void TestQtDesigner::stackTakesAnotherPage()
{
    auto *pages = qt_extension<QDesignerContainerExtension *>(core->extensionManager(),
                                                              child(QStringLiteral("pages")));
    QVERIFY(pages);
    QCOMPARE(pages->count(), 2);
    QWidget *page = core->widgetFactory()->createWidget(QStringLiteral("QWidget"), nullptr);
    page->setObjectName(QStringLiteral("thirdPage"));
    pages->addWidget(page);
    form->manageWidget(page);
    QCOMPARE(pages->count(), 3);
    QVERIFY(form->contents().contains(QStringLiteral("name=\"thirdPage\"")));
}

void TestQtDesigner::propertiesCanBeEdited_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QString>("property");
    QTest::addColumn<bool>("isEditable");

    QTest::newRow("rotation") << "axisLabel"
                              << "rotation" << true;
    QTest::newRow("range") << "toleranceBox"
                           << "maximumValue" << true;
    QTest::newRow("filling") << "inkSquare"
                             << "brush" << true;
    QTest::newRow("message") << "workBar"
                             << "message" << true;
    QTest::newRow("pen") << "inkSquare"
                         << "pen" << false;
}

void TestQtDesigner::propertiesCanBeEdited()
{
    QFETCH(const QString, objectName);
    QFETCH(const QString, property);
    QFETCH(const bool, isEditable);
    auto *sheet = sheetOf(objectName);
    QVERIFY(sheet);
    const int index = sheet->indexOf(property);
    QVERIFY(index >= 0);
    QCOMPARE(sheet->isVisible(index), isEditable);
}

void TestQtDesigner::spinnerShowsItsBars()
{
    QWidget *spinner = core->widgetFactory()->createWidget(QStringLiteral("WaitWidget"), form);
    QVERIFY(spinner);
    const PixelProbe probe(*spinner);
    QVERIFY(probe.countColours(spinner->rect()) > 2);
}

int main(int argc, char **argv)
{
    // Without OpenGL whatever the machine has.
    qputenv("QT_QPA_OFFSCREEN_NO_GLX", "1");
    return runTest<TestQtDesigner>(argc, argv);
}

#include "tst_QtDesigner.moc"
