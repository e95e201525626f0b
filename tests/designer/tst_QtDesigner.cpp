#include "PixelProbe.h"
#include "PluginUnderTest.h"
#include "RotationLabel.h"
#include "TestBase.h"

#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QtDesigner>

#include <QComboBox>
#include <QFile>
#include <QPluginLoader>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QUndoStack>
#include <QXmlStreamReader>

namespace {

QString formIn(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString settingsForm()
{
    return formIn(QStringLiteral(TX_FORMS "/Settings.ui"));
}

/// The element that the reader has begun, with its attributes.
QString tagAt(const QXmlStreamReader &reader)
{
    QString tag = u'<' + reader.name().toString();
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        tag += u' ' + attribute.name().toString() + u'=' + attribute.value().toString();
    }
    return tag + u'>';
}

/// The element that the reader has begun with all that is in it, in one line.
QString elementAt(QXmlStreamReader &reader)
{
    QString element = tagAt(reader);
    for (int depth = 1; depth > 0 && !reader.atEnd();) {
        reader.readNext();
        if (reader.isStartElement()) {
            ++depth;
            element += tagAt(reader);
        } else if (reader.isEndElement()) {
            --depth;
        } else if (reader.isCharacters() && !reader.isWhitespace()) {
            element += reader.text();
        }
    }
    return element;
}

/// What a form says, in a fixed order: a line for each widget, layout and item, such as
/// "moreBox/moreLayout: <item row=0>", and for each property and end of a connection.
QStringList saidBy(const QString &form)
{
    static const QStringList kOwners = {"widget", "layout", "spacer"};
    static const QStringList kValues = {"property", "sender", "signal", "receiver", "slot"};
    QXmlStreamReader reader(form);
    QStringList owners;
    QStringList said;
    while (!reader.atEnd()) {
        reader.readNext();
        const QString name = reader.name().toString();
        const QString place = owners.join(u'/') + QStringLiteral(": ");
        if (reader.isEndElement() && kOwners.contains(name)) {
            owners.removeLast();
        } else if (reader.isStartElement() && kValues.contains(name)) {
            said.append(place + elementAt(reader));
        } else if (reader.isStartElement() && (kOwners.contains(name) || name == u"item")) {
            said.append(place + tagAt(reader));
        }
        if (reader.isStartElement() && kOwners.contains(name)) {
            owners.append(reader.attributes().value(QStringLiteral("name")).toString());
        }
    }
    said.sort();
    return said;
}

/// What the form says of a property of an object, without "<property name=...>"; empty for nothing.
QString written(const QString &form, const QString &objectName, const QString &property)
{
    const QStringList said = saidBy(form);
    for (const QString &line : said) {
        const QString owner = line.section(QStringLiteral(": "), 0, 0);
        const QString element = line.section(QStringLiteral(": "), 1);
        const QStringList words = element.section(u'>', 0, 0).split(u' ');
        if (owner.section(u'/', -1) == objectName
            && words.contains(QStringLiteral("name=") + property)) {
            return element.section(u'>', 1);
        }
    }
    return {};
}

} // namespace

/// The plug-in inside the parts that Qt Designer, and IDEs with it, are made of.
class TestQtDesigner : public TestBase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void widgetBoxShowsTheGroups();
    void formIsWrittenAsItWasRead_data();
    void formIsWrittenAsItWasRead();
    void headersAreIncludedAsAHostDoes();
    void containersAreKnown();
    void stackTakesAnotherPage();
    void editedPropertyIsWritten_data();
    void editedPropertyIsWritten();
    void propertyEditorShowsWhatCanBeEdited();
    void unfolderOfAFormIsUnfolded();
    void unfolderStaysUnfolded();
    void spinnerShowsItsBars();
    void cleanupTestCase();

protected:
    void prepare() override;
    void finish() override;

private:
    QDesignerPropertySheetExtension *sheetOf(const QString &objectName) const;
    QWidget *child(const QString &objectName) const;

    void edit(const QString &objectName, const QString &property, const QVariant &value);

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
    // Such as the one that keeps the connections. Qt Designer begins them too.
    const QObjectList parts = QPluginLoader::staticInstances();
    for (QObject *part : parts) {
        auto *plugin = qobject_cast<QDesignerFormEditorPluginInterface *>(part);
        if (plugin && !plugin->isInitialized()) {
            plugin->initialize(core.get());
        }
    }
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

void TestQtDesigner::formIsWrittenAsItWasRead_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<int>("leastLines");

    QTest::newRow("settings") << TX_FORMS "/Settings.ui" << 80;
    QTest::newRow("example") << TX_SOURCES "/examples/form/ProofSettings.ui" << 25;
    QTest::newRow("guide") << TX_SOURCES "/docs/hosts/samples/ScanSettings.ui" << 15;
}

void TestQtDesigner::formIsWrittenAsItWasRead()
{
    QFETCH(const QString, fileName);
    QFETCH(const int, leastLines);
    const QStringList said = saidBy(formIn(fileName));
    QVERIFY2(said.size() >= leastLines, qPrintable(said.join(u'\n')));
    QVERIFY(form->setContents(formIn(fileName)));
    const QString first = form->contents();
    QCOMPARE(saidBy(first), said);
    QVERIFY(form->setContents(first));
    QCOMPARE(form->contents(), first);
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

// As the property editor does, so that it can be undone.
void TestQtDesigner::edit(const QString &objectName, const QString &property, const QVariant &value)
{
    form->cursor()->setWidgetProperty(child(objectName), property, value);
}

void TestQtDesigner::editedPropertyIsWritten_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("element");

    const auto row = [](const char *objectName, const char *property, const QVariant &value,
                        const char *element) {
        QTest::newRow(property) << objectName << property << value << element;
    };
    row("axisLabel", "rotation", RotationLabel::RotateClockwise,
        "<enum>RotationLabel::RotateClockwise");
    row("toleranceBox", "maximumValue", 240.0, "<double>240.000000000000000");
    row("toleranceBox", "spinBoxLeftOfSlider", true, "<bool>true");
    row("toleranceBox", "spinBoxMaximumWidth", 90, "<number>90");
    row("inkSquare", "brush", QBrush(QColor(1, 2, 3)),
        "<brush brushstyle=SolidPattern><color alpha=255><red>1<green>2<blue>3");
    row("workBar", "message", "Writing", "<string>Writing");
    row("presetBar", "importName", "Read a file", "<string>Read a file");
    row("presetBar", "removeItemButtonEnabled", false, "<bool>false");
    row("presetBar", "itemComboBoxSizeAdjustPolicy", QComboBox::AdjustToContents,
        "<enum>QComboBox::AdjustToContents");
}

void TestQtDesigner::editedPropertyIsWritten()
{
    QFETCH(const QString, objectName);
    QFETCH(const QString, property);
    QFETCH(const QVariant, value);
    QFETCH(const QString, element);
    auto *sheet = sheetOf(objectName);
    QVERIFY(sheet);
    const int index = sheet->indexOf(property);
    QVERIFY(index >= 0);
    QVERIFY(sheet->isVisible(index));
    const QString before = form->contents();
    QVERIFY(written(before, objectName, property) != element);

    edit(objectName, property, value);
    QCOMPARE(written(form->contents(), objectName, property), element);
    QVERIFY(form->isDirty());
    form->commandHistory()->undo();
    QCOMPARE(form->contents(), before);
}

// Only one editor in a process, too: another one may crash.
void TestQtDesigner::propertyEditorShowsWhatCanBeEdited()
{
    auto *editor = QDesignerComponents::createPropertyEditor(core.get(), window.get());
    const auto shown = [this, editor](const QString &objectName) {
        editor->setObject(child(objectName));
        QStringList names;
        for (QTreeWidgetItemIterator item(editor->findChild<QTreeWidget *>()); *item; ++item) {
            names.append((*item)->text(0));
        }
        return names;
    };
    for (const char *name : {"sizeHint", "brush", "radius", "alignment"}) {
        QVERIFY2(shown("inkSquare").contains(name), name);
    }
    QVERIFY(!shown("inkSquare").contains("pen"));
    for (const char *name : {"spinBoxMinimumWidth", "spinBoxLeftOfSlider", "labelMinimumWidth"}) {
        QVERIFY2(shown("toleranceBox").contains(name), name);
    }
    for (const char *name : {"importName", "itemBasedName", "saveItemButtonEnabled"}) {
        QVERIFY2(shown("presetBar").contains(name), name);
    }
}

void TestQtDesigner::unfolderOfAFormIsUnfolded()
{
    const QString head = QStringLiteral("name=\"moreBox\">");
    QString folded = settingsForm();
    folded.replace(head, head + "<property name=\"checked\"><bool>false</bool></property>");
    QCOMPARE(written(folded, "moreBox", "checked"), QStringLiteral("<bool>false"));
    QVERIFY(form->setContents(folded));
    QVERIFY(child("moreBox")->property("checked").toBool());
    QCOMPARE(written(form->contents(), "moreBox", "checked"), QStringLiteral("<bool>true"));
}

void TestQtDesigner::unfolderStaysUnfolded()
{
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    edit("moreBox", "checked", false);
    QVERIFY(child("moreBox")->property("checked").toBool());
    QVERIFY(!child("hintLabel")->isHidden());
    QCOMPARE(written(form->contents(), "moreBox", "checked"), QStringLiteral("<bool>true"));
    // Elsewhere, such as in a preview of the form, it folds.
    const std::unique_ptr<QWidget> box(
        core->widgetFactory()->createWidget(QStringLiteral("TXUnfolderWidget"), nullptr));
    QVERIFY(box->setProperty("checked", false));
    QVERIFY(!box->property("checked").toBool());
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
