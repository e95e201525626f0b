#include "PluginUnderTest.h"
#include "RotationLabel.h"
#include "TXColorSquareWidget.h"
#include "TXPasswordLineEdit.h"
#include "TXSwitchSlider.h"
#include "TXUnfolderWidget.h"
#include "TestBase.h"

#include <QBuffer>
#include <QMetaProperty>
#include <QPixmap>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUiLoader>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

namespace {

constexpr char kPictureName[] = "picture.png";
constexpr QSize kPictureSize(7, 5);

/// A value of a property other than the one that it has at first, and how a form writes it.
struct Probe
{
    QString element;
    QVariant value;
};

QString element(const char *tag, const QString &content)
{
    return QStringLiteral("<%1>%2</%1>").arg(QLatin1String(tag), content);
}

Probe probeOfEnumeration(const QMetaProperty &property, const QVariant &first)
{
    const QMetaEnum keys = property.enumerator();
    const QString scope = QString::fromLatin1(keys.scope()) + QLatin1String("::");
    if (property.isFlagType()) {
        return {element("set", scope + "AlignRight|" + scope + "AlignBottom"),
                int(Qt::AlignRight | Qt::AlignBottom)};
    }
    int index = 0;
    while (keys.value(index) == first.toInt()) {
        ++index;
    }
    return {element("enum", scope + QLatin1String(keys.key(index))), keys.value(index)};
}

/// One more, or one less where there is nothing above.
Probe probeOfNumber(int first)
{
    const int value = first < QWIDGETSIZE_MAX ? first + 1 : first - 1;
    return {element("number", QString::number(value)), value};
}

std::optional<Probe> probeFor(const QMetaProperty &property, const QVariant &first)
{
    if (property.isEnumType()) {
        return probeOfEnumeration(property, first);
    }
    switch (property.typeId()) {
    case QMetaType::Bool:
        return Probe{element("bool", first.toBool() ? "false" : "true"), !first.toBool()};
    case QMetaType::Int:
        return probeOfNumber(first.toInt());
    case QMetaType::Double:
        return Probe{element("double", QString::number(first.toDouble() + 1)),
                     first.toDouble() + 1};
    case QMetaType::QString:
        return Probe{element("string", "Größe & mehr").replace(u'&', "&amp;"), "Größe & mehr"};
    case QMetaType::QSize:
        return Probe{element("size", "<width>31</width><height>17</height>"), QSize(31, 17)};
    case QMetaType::QBrush:
        return Probe{"<brush brushstyle=\"SolidPattern\"><color alpha=\"255\"><red>1</red>"
                     "<green>2</green><blue>3</blue></color></brush>",
                     QBrush(QColor(1, 2, 3))};
    case QMetaType::QPixmap:
        return Probe{element("pixmap", kPictureName), kPictureSize};
    default:
        return {};
    }
}

QByteArray formWith(const QString &className, const QMetaProperty &property, const Probe &probe)
{
    const QString form =
        QStringLiteral(R"(<ui version="4.0"><class>Form</class><widget class="%1" name="probed">)"
                       R"(<property name="%2">%3</property></widget></ui>)");
    return form.arg(className, QLatin1String(property.name()), probe.element).toUtf8();
}

/// What can be compared of a value.
QVariant comparable(const QVariant &value)
{
    if (value.typeId() == QMetaType::QPixmap) {
        return value.value<QPixmap>().size();
    }
    return value.metaType().flags().testFlag(QMetaType::IsEnumeration) ? value.toInt() : value;
}

/// True for what a widget of ours offers in Qt Designer beyond what its base class has.
bool isOwn(const QMetaProperty &property)
{
    return property.isDesignable() && property.isWritable()
        && !QByteArray(property.enclosingMetaObject()->className()).startsWith('Q');
}

QMetaProperty propertyOf(const QObject &object, const char *name)
{
    return object.metaObject()->property(object.metaObject()->indexOfProperty(name));
}

} // namespace

/// The properties that the widgets offer to forms.
class TestFormProperties : public TestBase
{
    Q_OBJECT

private slots:
    void isReadFromAForm_data();
    void isReadFromAForm();
    void wholeBarsAreOffered_data();
    void wholeBarsAreOffered();
    void isNotOffered_data();
    void isNotOffered();
    void readOnlyPropertiesAreThoseOfTheViewer();
    void passwordIsNoProperty();
    void textOfAPasswordFieldIsStillThatOfALineEdit();
    void propertiesOfTheBaseNotifyAsThere();
    void changeOfTheSwitchIsNotifiedWhateverSetsIt();
    void writtenRotationIsSeenAtOnce();
    void writtenSizeOfASquareIsSeenAtOnce();

private:
    std::unique_ptr<QWidget> load(const QByteArray &form);

    QTemporaryDir folder;
};

std::unique_ptr<QWidget> TestFormProperties::load(const QByteArray &form)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(PluginUnderTest::folder());
    loader.setWorkingDirectory(QDir(folder.path()));
    QBuffer buffer;
    buffer.setData(form);
    return std::unique_ptr<QWidget>(loader.load(&buffer));
}

void TestFormProperties::isReadFromAForm_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<int>("index");
    const auto all = PluginUnderTest::widgets();
    for (QDesignerCustomWidgetInterface *plugin : all) {
        const std::unique_ptr<QWidget> widget(plugin->createWidget(nullptr));
        for (int index = 0; index < widget->metaObject()->propertyCount(); ++index) {
            const QMetaProperty property = widget->metaObject()->property(index);
            // Nothing is expanded as long as there is no value.
            if (isOwn(property) && QByteArray(property.name()) != "expanded") {
                QTest::newRow(qPrintable(plugin->name() + u'.' + QLatin1String(property.name())))
                    << plugin->name() << index;
            }
        }
    }
}

void TestFormProperties::isReadFromAForm()
{
    QFETCH(const QString, className);
    QFETCH(const int, index);
    QPixmap picture(kPictureSize);
    picture.fill(Qt::red);
    QVERIFY(picture.save(folder.filePath(QString::fromLatin1(kPictureName))));
    const std::unique_ptr<QWidget> fresh(
        PluginUnderTest::widgetOf(className)->createWidget(nullptr));
    const QMetaProperty property = fresh->metaObject()->property(index);
    const auto probe = probeFor(property, property.read(fresh.get()));
    QVERIFY2(probe, "no probe for this type");
    QVERIFY(comparable(property.read(fresh.get())) != probe->value);

    const std::unique_ptr<QWidget> widget = load(formWith(className, property, *probe));
    QVERIFY(widget);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), className);
    QCOMPARE(comparable(property.read(widget.get())), probe->value);
}

void TestFormProperties::wholeBarsAreOffered_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("value") << "DoubleSpinBoxWithSliderWidget"
                           << QStringList({"decimals", "minimumValue", "maximumValue", "singleStep",
                                           "value", "spinBoxSuffix", "specialValueText",
                                           "spinBoxButtonSymbol", "spinBoxMinimumWidth",
                                           "spinBoxMaximumWidth", "spinBoxLeftOfSlider", "dataName",
                                           "labelMinimumWidth", "labelVisible", "minLabelName",
                                           "maxLabelName"});
    QTest::newRow("selection") << "TXSelectionItemWidget"
                               << QStringList({"labelName",
                                               "itemLabelVisible",
                                               "labelMinimumWidth",
                                               "itemBasedName",
                                               "importViaComboBox",
                                               "importButtonVisible",
                                               "comboboxNameEditionAllowed",
                                               "itemComboBoxSizeAdjustPolicy",
                                               "itemComboBoxMaximumWidth",
                                               "itemComboBoxEnabled",
                                               "removeItemButtonEnabled",
                                               "exportItemButtonEnabled",
                                               "duplicateItemButtonEnabled",
                                               "editionItemButtonEnabled",
                                               "saveItemButtonEnabled",
                                               "createNewItemMenuEnabled",
                                               "duplicateItemMenuEnabled",
                                               "importItemMenuEnabled",
                                               "importName",
                                               "exportButtonToolTip"});
    QTest::newRow("server") << "FTPConfigurationWidget"
                            << QStringList({"visibleStatus", "visibleActiveCheckBox",
                                            "visibleEraseSrcFilesItems", "importer"});
    QTest::newRow("progress") << "TXProgressBar"
                              << QStringList({"minimum", "maximum", "value", "message", "format",
                                              "textVisible", "alignment", "orientation",
                                              "invertedAppearance", "textDirection"});
    QTest::newRow("square") << "TXColorSquareWidget"
                            << QStringList({"sizeHint", "brush", "radius", "alignment"});
}

void TestFormProperties::wholeBarsAreOffered()
{
    QFETCH(const QString, className);
    QFETCH(const QStringList, names);
    const std::unique_ptr<QWidget> widget(
        PluginUnderTest::widgetOf(className)->createWidget(nullptr));
    const QMetaObject *meta = widget->metaObject();
    QStringList offered;
    for (int index = meta->propertyOffset(); index < meta->propertyCount(); ++index) {
        if (meta->property(index).isDesignable()) {
            offered.append(QString::fromLatin1(meta->property(index).name()));
        }
    }
    // The order counts: a form sets the decimals before the range, and the range before the value.
    QCOMPARE(offered, names);
}

void TestFormProperties::isNotOffered_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QByteArray>("name");

    QTest::newRow("a step of an animation") << "WaitWidget" << QByteArray("currentElement");
    QTest::newRow("a pen") << "TXColorSquareWidget" << QByteArray("pen");
}

void TestFormProperties::isNotOffered()
{
    QFETCH(const QString, className);
    QFETCH(const QByteArray, name);
    const std::unique_ptr<QWidget> widget(
        PluginUnderTest::widgetOf(className)->createWidget(nullptr));
    const QMetaProperty property = propertyOf(*widget, name);
    QVERIFY(property.isValid());
    QVERIFY(!property.isDesignable());
}

void TestFormProperties::readOnlyPropertiesAreThoseOfTheViewer()
{
    QStringList readOnly;
    const auto all = PluginUnderTest::widgets();
    for (QDesignerCustomWidgetInterface *plugin : all) {
        const std::unique_ptr<QWidget> widget(plugin->createWidget(nullptr));
        const QMetaObject *meta = widget->metaObject();
        for (int index = meta->propertyOffset(); index < meta->propertyCount(); ++index) {
            if (!meta->property(index).isWritable()) {
                readOnly.append(plugin->name() + u'.'
                                + QLatin1String(meta->property(index).name()));
            }
        }
    }
    QCOMPARE(readOnly, QStringList({"TXVariantViewer.expandable"}));
}

void TestFormProperties::passwordIsNoProperty()
{
    const QString secret = QStringLiteral("correct horse");
    TXPasswordLineEdit edit;
    edit.setText(secret);
    QCOMPARE(edit.text(), secret);
    for (int index = 0; index < edit.metaObject()->propertyCount(); ++index) {
        const QMetaProperty property = edit.metaObject()->property(index);
        QVERIFY2(!property.read(&edit).toString().contains(secret), property.name());
    }
    QCOMPARE(edit.property("text").toString(), QString(25, u'|'));
}

void TestFormProperties::textOfAPasswordFieldIsStillThatOfALineEdit()
{
    TXPasswordLineEdit edit;
    QVERIFY(edit.setProperty("text", QStringLiteral("typed")));
    QCOMPARE(edit.QLineEdit::text(), QStringLiteral("typed"));
    QCOMPARE(QByteArray(edit.metaObject()->userProperty().name()), QByteArray("text"));
}

void TestFormProperties::propertiesOfTheBaseNotifyAsThere()
{
    TXPasswordLineEdit edit;
    const QMetaProperty text = propertyOf(edit, "text");
    QCOMPARE(text.notifySignal(), QMetaMethod::fromSignal(&QLineEdit::textChanged));
    QSignalSpy edited(&edit, text.notifySignal());
    edit.setText(QStringLiteral("correct horse"));
    QCOMPARE(edited.size(), 1);

    TXUnfolderWidget box;
    const QMetaProperty checked = propertyOf(box, "checked");
    QCOMPARE(checked.notifySignal(), QMetaMethod::fromSignal(&QGroupBox::toggled));
    QSignalSpy toggled(&box, checked.notifySignal());
    box.setChecked(false);
    QCOMPARE(toggled.size(), 1);
    QCOMPARE(QByteArray(box.metaObject()->userProperty().name()), QByteArray("checked"));
}

void TestFormProperties::changeOfTheSwitchIsNotifiedWhateverSetsIt()
{
    TXSwitchSlider toggle;
    const QMetaProperty checked = propertyOf(toggle, "checked");
    QSignalSpy notified(&toggle, checked.notifySignal());
    toggle.setValue(1);
    QVERIFY(checked.read(&toggle).toBool());
    QCOMPARE(notified.size(), 1);
    QVERIFY(checked.write(&toggle, false));
    QCOMPARE(notified.size(), 2);
    toggle.setValue(0);
    QCOMPARE(notified.size(), 2);
}

void TestFormProperties::writtenRotationIsSeenAtOnce()
{
    QWidget form;
    QVBoxLayout layout(&form);
    RotationLabel label;
    label.setText(QStringLiteral("Lightness"));
    layout.addWidget(&label, 0, Qt::AlignCenter);
    form.resize(200, 200);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QVERIFY(label.width() > label.height());
    QVERIFY(label.setProperty("rotation", RotationLabel::RotateClockwise));
    QTRY_VERIFY(label.height() > label.width());
}

void TestFormProperties::writtenSizeOfASquareIsSeenAtOnce()
{
    QWidget form;
    QVBoxLayout layout(&form);
    TXColorSquareWidget square;
    layout.addWidget(&square, 0, Qt::AlignCenter);
    form.resize(200, 200);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QCOMPARE(square.size(), QSize(24, 24));
    QVERIFY(square.setProperty("sizeHint", QSize(60, 50)));
    QTRY_COMPARE(square.size(), QSize(60, 50));
}

int main(int argc, char **argv)
{
    return runTest<TestFormProperties>(argc, argv);
}

#include "tst_FormProperties.moc"
