#include "PixelProbe.h"
#include "PluginUnderTest.h"
#include "TestBase.h"

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

/// How many pixels of a picture are not wholly transparent.
qsizetype paintedPixels(const QImage &image)
{
    qsizetype count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
        }
    }
    return count;
}

QStringList publicHeaderNames()
{
    QFile list(QStringLiteral(TX_PUBLIC_HEADERS));
    if (!list.open(QIODevice::ReadOnly)) {
        return {};
    }
    QStringList names;
    const QStringList paths = QString::fromUtf8(list.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &path : paths) {
        names.append(QFileInfo(path).fileName());
    }
    return names;
}

qsizetype threads()
{
    return QDir(QStringLiteral("/proc/self/task"))
        .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
        .size();
}

qsizetype sockets()
{
    qsizetype count = 0;
    const auto files =
        QDir(QStringLiteral("/proc/self/fd")).entryInfoList(QDir::Files | QDir::System);
    for (const QFileInfo &file : files) {
        count += QFile::symLinkTarget(file.filePath()).contains(QLatin1String("socket:")) ? 1 : 0;
    }
    return count;
}

/// The timers of the object and of all that is inside it.
qsizetype timersIn(QObject *object)
{
    qsizetype count = QAbstractEventDispatcher::instance()->registeredTimers(object).size();
    const auto children = object->findChildren<QObject *>();
    for (QObject *child : children) {
        count += QAbstractEventDispatcher::instance()->registeredTimers(child).size();
    }
    return count;
}

QWidgetList visibleWindows()
{
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget *window) { return window->isHidden(); });
    return windows;
}

} // namespace

/// What the plug-in tells of each widget, and what it makes.
class TestDesignerWidget : public TestBase
{
    Q_OBJECT

private slots:
    void makesAWidgetOfItsClass_data();
    void makesAWidgetOfItsClass();
    void makingOneStartsNothing_data();
    void makingOneStartsNothing();
    void textsAreOneSentence_data();
    void textsAreOneSentence();
    void includeFileIsAPublicHeader_data();
    void includeFileIsAPublicHeader();
    void iconIsPaintedAtEverySize_data();
    void iconIsPaintedAtEverySize();
    void iconsDiffer();
    void iconFollowsTheColoursOfTheMoment();
    void disabledIconIsFaint();
    void formElementIsWellFormed_data();
    void formElementIsWellFormed();
    void spinnerInAProgramHasNoBarsYet();
};

void TestDesignerWidget::makesAWidgetOfItsClass_data()
{
    PluginUnderTest::addRows();
}

void TestDesignerWidget::makesAWidgetOfItsClass()
{
    QFETCH(const QString, className);
    auto *plugin = PluginUnderTest::widgetOf(className);
    QWidget form;
    QWidget *widget = plugin->createWidget(&form);
    QVERIFY(widget);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), className);
    QCOMPARE(widget->parentWidget(), &form);
    QVERIFY(!widget->isWindow());
    const std::unique_ptr<QWidget> withoutParent(plugin->createWidget(nullptr));
    QVERIFY(withoutParent);
}

void TestDesignerWidget::makingOneStartsNothing_data()
{
    PluginUnderTest::addRows();
}

void TestDesignerWidget::makingOneStartsNothing()
{
    QFETCH(const QString, className);
    QWidget form;
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    const qsizetype threadsBefore = threads();
    const qsizetype socketsBefore = sockets();
    QWidget *widget = PluginUnderTest::widgetOf(className)->createWidget(&form);
    // Before it is painted, for which Qt may use threads of its own.
    QCOMPARE(threads(), threadsBefore);
    QCOMPARE(sockets(), socketsBefore);
    widget->show();
    QCoreApplication::processEvents();
    QCOMPARE(visibleWindows(), QWidgetList({&form}));
    // Item views lay themselves out by a timer that then ends.
    QTRY_COMPARE(timersIn(widget), 0);
    QCOMPARE(sockets(), socketsBefore);
}

void TestDesignerWidget::textsAreOneSentence_data()
{
    PluginUnderTest::addRows();
}

void TestDesignerWidget::textsAreOneSentence()
{
    QFETCH(const QString, className);
    const auto *plugin = PluginUnderTest::widgetOf(className);
    for (const QString &text : {plugin->toolTip(), plugin->whatsThis()}) {
        QVERIFY(text.size() > 10);
        QVERIFY(text.front().isUpper());
        QVERIFY(text.endsWith(u'.'));
        QCOMPARE(text.count(u'.'), 1);
    }
}

void TestDesignerWidget::includeFileIsAPublicHeader_data()
{
    PluginUnderTest::addRows();
}

void TestDesignerWidget::includeFileIsAPublicHeader()
{
    QFETCH(const QString, className);
    const QString file = PluginUnderTest::widgetOf(className)->includeFile();
    QVERIFY(file.startsWith(u'<') && file.endsWith(u'>'));
    QVERIFY(publicHeaderNames().contains(file.mid(1, file.size() - 2)));
}

void TestDesignerWidget::iconIsPaintedAtEverySize_data()
{
    PluginUnderTest::addRows();
}

void TestDesignerWidget::iconIsPaintedAtEverySize()
{
    QFETCH(const QString, className);
    const QIcon icon = PluginUnderTest::widgetOf(className)->icon();
    QVERIFY(!icon.isNull());
    QVERIFY(!icon.availableSizes().isEmpty());
    for (const int side : {22, 64}) {
        for (const qreal ratio : {1.0, 2.0}) {
            const QPixmap picture = icon.pixmap(QSize(side, side), ratio);
            QCOMPARE(picture.devicePixelRatio(), ratio);
            QCOMPARE(picture.size(), QSize(side, side) * ratio);
            const qsizetype painted = paintedPixels(picture.toImage());
            const qsizetype all = qsizetype(picture.width()) * picture.height();
            QVERIFY(painted > all / 12 && painted < all);
        }
    }
}

void TestDesignerWidget::iconsDiffer()
{
    QList<QImage> pictures;
    const auto all = PluginUnderTest::widgets();
    for (const QDesignerCustomWidgetInterface *plugin : all) {
        const QImage picture = plugin->icon().pixmap(22, 22).toImage();
        QVERIFY2(!pictures.contains(picture), qPrintable(plugin->name()));
        pictures.append(picture);
    }
}

void TestDesignerWidget::iconFollowsTheColoursOfTheMoment()
{
    const QIcon icon = PluginUnderTest::widgetOf(QStringLiteral("TXSplitter"))->icon();
    const QPalette former = QApplication::palette();
    QPalette colours = former;
    for (const QColor &ink : {QColor(Qt::black), QColor(Qt::white)}) {
        colours.setColor(QPalette::WindowText, ink);
        QApplication::setPalette(colours);
        // The left edge of the left pane.
        const PixelProbe probe(icon.pixmap(48, 48).toImage());
        QVERIFY(probe.isNear({2, 24}, ink, 40));
    }
    QApplication::setPalette(former);
}

void TestDesignerWidget::disabledIconIsFaint()
{
    const QIcon icon = PluginUnderTest::widgetOf(QStringLiteral("TXSwitchSlider"))->icon();
    const QPoint onTheSwitch(8, 24);
    const QColor usual = icon.pixmap(48, 48).toImage().pixelColor(onTheSwitch);
    const QColor faint = icon.pixmap(48, 48, QIcon::Disabled).toImage().pixelColor(onTheSwitch);
    QCOMPARE(usual.alpha(), 255);
    QVERIFY(faint.alpha() > 50 && faint.alpha() < 150);
}

void TestDesignerWidget::formElementIsWellFormed_data()
{
    PluginUnderTest::addRows();
}

void TestDesignerWidget::formElementIsWellFormed()
{
    QFETCH(const QString, className);
    QXmlStreamReader reader(PluginUnderTest::widgetOf(className)->domXml());
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.name(), QStringLiteral("ui"));
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.attributes().value(QStringLiteral("class")), className);
    const QString name = reader.attributes().value(QStringLiteral("name")).toString();
    QVERIFY(!name.isEmpty() && name.front().isLower());
    while (!reader.atEnd()) {
        reader.readNext();
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
}

void TestDesignerWidget::spinnerInAProgramHasNoBarsYet()
{
    QWidget form;
    auto *plugin = PluginUnderTest::widgetOf(QStringLiteral("WaitWidget"));
    QVERIFY(!plugin->isInitialized());
    QWidget *spinner = plugin->createWidget(&form);
    spinner->resize(64, 64);
    const PixelProbe probe(*spinner);
    QCOMPARE(probe.countColours({0, 0, 64, 64}), 1);
}

int main(int argc, char **argv)
{
    return runTest<TestDesignerWidget>(argc, argv);
}

#include "tst_DesignerWidget.moc"
