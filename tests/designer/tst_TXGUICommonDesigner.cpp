#include "PluginUnderTest.h"
#include "TestBase.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

namespace {

/// Base classes of Qt that are no widgets. Any other one counts as a widget, so that a new class
/// cannot be overlooked.
const QSet<QString> kNoWidgets = {
    "QAbstractItemModel",
    "QAbstractProxyModel",
    "QAbstractTableModel",
    "QAccessibleWidget",
    "QGraphicsItem",
    "QGraphicsPathItem",
    "QGraphicsPixmapItem",
    "QGraphicsRectItem",
    "QGraphicsScene",
    "QLayout",
    "QObject",
    "QSqlTableModel",
    "QStyledItemDelegate",
    "QThread",
};

const QString kWindow = QStringLiteral("a window of its own");
const QString kAbstract = QStringLiteral("abstract: a host derives from it, and promotes to that");

/// The widgets that cannot be put onto a form, and why.
const QMap<QString, QString> kNotOnForms = {
    {"AboutAppWindow", kWindow},
    {"AutoMountManagerMainWindow", kWindow},
    {"AutoMountNetworkDriveEditor", kWindow},
    {"ConfWidget", kAbstract},
    {"CredentialDialog", kWindow},
    {"FTPConfigurationDialog", kWindow},
    {"LockerFirstPasswordDialog", kWindow},
    {"LockerPasswordDialog", kWindow},
    {"LockerUIDialog", kWindow},
    {"ShareBrowser", kWindow},
    {"TXCheckForUpdateWidget", kWindow},
    {"TXEmbeddableDialog", "a window until setAsWidget() is called: base of a form's class"},
    {"TXFeedbackDialog", kWindow},
    {"TXLogWindow", kWindow},
    {"TXSplashScreen", kWindow},
    {"TXSplitterHandle", "made by its splitter"},
    {"TXWidget", kAbstract},
};

QStringList publicHeaders()
{
    QFile list(QStringLiteral(TX_PUBLIC_HEADERS));
    return list.open(QIODevice::ReadOnly)
        ? QString::fromUtf8(list.readAll()).split(u'\n', Qt::SkipEmptyParts)
        : QStringList();
}

/// The exported classes of the public headers with the first base class of each.
QMap<QString, QString> exportedClasses()
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(^class \w+_EXPORT (\w+)\s*(?:final\s*)?:\s*public\s+(\w+))"),
        QRegularExpression::MultilineOption);
    QMap<QString, QString> classes;
    const QStringList headers = publicHeaders();
    for (const QString &path : headers) {
        QFile header(path);
        if (!header.open(QIODevice::ReadOnly)) {
            return {};
        }
        auto match = pattern.globalMatch(QString::fromUtf8(header.readAll()));
        while (match.hasNext()) {
            const auto found = match.next();
            classes.insert(found.captured(1), found.captured(2));
        }
    }
    return classes;
}

QSet<QString> exportedWidgets()
{
    const QMap<QString, QString> classes = exportedClasses();
    QSet<QString> widgets;
    for (auto entry = classes.begin(); entry != classes.end(); ++entry) {
        QString base = entry.value();
        while (classes.contains(base)) {
            base = classes.value(base);
        }
        if (base.startsWith(u'Q') && !kNoWidgets.contains(base)) {
            widgets.insert(entry.key());
        }
    }
    return widgets;
}

QSet<QString> widgetsOfThePlugin()
{
    QSet<QString> names;
    const auto all = PluginUnderTest::widgets();
    for (const QDesignerCustomWidgetInterface *widget : all) {
        names.insert(widget->name());
    }
    return names;
}

} // namespace

/// The list of widgets as a whole.
class TestTXGUICommonDesigner : public TestBase
{
    Q_OBJECT

private slots:
    void pluginIsLoadedFromItsFile();
    void everyExportedWidgetIsThereOrHasAReason();
    void noReasonHasOutlivedItsClass();
    void noWidgetIsListedTwice();
    void groupsStandTogether();
    void namesInTheBoxDiffer();
};

void TestTXGUICommonDesigner::pluginIsLoadedFromItsFile()
{
    QPluginLoader loader(QStringLiteral(TX_DESIGNER_PLUGIN));
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    QCOMPARE(PluginUnderTest::folder().section(u'/', -2), QStringLiteral("plugins/designer"));
}

void TestTXGUICommonDesigner::everyExportedWidgetIsThereOrHasAReason()
{
    const QSet<QString> exported = exportedWidgets();
    QVERIFY(exported.contains(QStringLiteral("TXSwitchSlider")));
    const QStringList reasons = kNotOnForms.keys();
    const QSet<QString> expected = exported - QSet<QString>(reasons.begin(), reasons.end());
    const QSet<QString> present = widgetsOfThePlugin();
    QCOMPARE(expected - present, QSet<QString>());
    QCOMPARE(present - expected, QSet<QString>());
}

void TestTXGUICommonDesigner::noReasonHasOutlivedItsClass()
{
    const QSet<QString> exported = exportedWidgets();
    for (auto reason = kNotOnForms.begin(); reason != kNotOnForms.end(); ++reason) {
        QVERIFY2(exported.contains(reason.key()), qPrintable(reason.key()));
        QVERIFY(!reason.value().isEmpty());
    }
}

void TestTXGUICommonDesigner::noWidgetIsListedTwice()
{
    QCOMPARE(PluginUnderTest::widgets().size(), widgetsOfThePlugin().size());
}

void TestTXGUICommonDesigner::groupsStandTogether()
{
    QStringList groups;
    const auto all = PluginUnderTest::widgets();
    for (const QDesignerCustomWidgetInterface *widget : all) {
        if (groups.isEmpty() || groups.last() != widget->group()) {
            groups.append(widget->group());
        }
    }
    QCOMPARE(groups,
             QStringList({"TXGUICommon Controls", "TXGUICommon Containers", "TXGUICommon Display",
                          "TXGUICommon Panels"}));
}

void TestTXGUICommonDesigner::namesInTheBoxDiffer()
{
    static const QRegularExpression pattern(QStringLiteral("displayname=\"([^\"]+)\""));
    QSet<QString> names;
    const auto all = PluginUnderTest::widgets();
    for (const QDesignerCustomWidgetInterface *widget : all) {
        const QString name = pattern.match(widget->domXml()).captured(1);
        QVERIFY2(!name.isEmpty() && !names.contains(name), qPrintable(widget->name()));
        names.insert(name);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXGUICommonDesigner>(argc, argv);
}

#include "tst_TXGUICommonDesigner.moc"
