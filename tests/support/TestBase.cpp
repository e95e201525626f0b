#include "TestBase.h"

#include <QRegularExpression>
#include <QSettings>

namespace {

// The offscreen platform cannot pass size hints to a window manager or raise windows, and says so.
const QRegularExpression
    kEveryWarningButThePlatforms(QStringLiteral("^(?!This plugin does not support)"));

void deliverPostedEvents()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QStringList namesOfTopLevelWidgets()
{
    QStringList names;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets) {
        names.append(QString::fromLatin1(widget->metaObject()->className()));
    }
    return names;
}

} // namespace

void TestBase::init()
{
    QTest::failOnWarning(kEveryWarningButThePlatforms);
    QSettings().clear();
    prepare();
}

void TestBase::cleanup()
{
    finish();
    deliverPostedEvents();
    const QStringList left = namesOfTopLevelWidgets();
    QVERIFY2(left.isEmpty(), qPrintable(QStringLiteral("left behind: ") + left.join(u", ")));
}
