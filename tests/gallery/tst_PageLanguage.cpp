#include "EMailSenderWidget.h"
#include "GalleryLanguages.h"
#include "GalleryPage.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "LongTranslator.h"
#include "PageViews.h"
#include "ShownTexts.h"
#include "TXComboBoxEditable.h"
#include "TXDatabaseConfigurationWidget.h"
#include "TXWebInterfaceConfigurationWidget.h"
#include "TestBase.h"

namespace {

/// These panels keep the texts with which they were made, whole or in part, since hosts rely on it.
bool isPartOfStayingPanel(const QWidget *widget)
{
    while (widget && qobject_cast<const EMailSenderWidget *>(widget) == nullptr
           && qobject_cast<const TXDatabaseConfigurationWidget *>(widget) == nullptr
           && qobject_cast<const TXWebInterfaceConfigurationWidget *>(widget) == nullptr) {
        widget = widget->parentWidget();
    }
    return widget != nullptr;
}

/// What is still said in the language that has gone. The presets of the page "Selection bar" are
/// files, named in the language in which they were made.
QStringList oldTexts(const QWidget &window)
{
    QStringList old = ShownTexts::of(window, [](const QWidget *widget) {
        return !isPartOfStayingPanel(widget)
            && qobject_cast<const TXComboBoxEditable *>(widget) == nullptr;
    });
    old.removeIf([](const QString &text) { return !LongTranslator::isSpoken(text); });
    return old;
}

} // namespace

/// Each page in the gallery's window while the language changes: nothing stays in the old one.
class TestPageLanguage : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { useGalleryPlugins(); }

private slots:
    void nothingStaysInTheOldLanguage_data();
    void nothingStaysInTheOldLanguage();
};

void TestPageLanguage::nothingStaysInTheOldLanguage_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("plugin");
    for (const PageView &view : pageViews()) {
        QTest::newRow(view.name.constData()) << view.page << view.plugin;
    }
}

void TestPageLanguage::nothingStaysInTheOldLanguage()
{
    QFETCH(QString, page);
    QFETCH(QString, plugin);
    LongTranslator translator;
    QCoreApplication::installTranslator(&translator);
    GallerySettings settings;
    settings.page = page;
    GalleryLanguages languages(QString{});
    GalleryWindow window(languages, settings);
    window.show();
    QVERIFY(choosePlugin(window, plugin));
    QCoreApplication::processEvents();
    QVERIFY(ShownTexts::of(window).filter(LongTranslator::lengthened("About...")).size() == 1);

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    const QStringList old = oldTexts(window);
    QVERIFY2(old.isEmpty(), qPrintable(old.join(u'\n')));
}

int main(int argc, char **argv)
{
    return runTest<TestPageLanguage>(argc, argv);
}

#include "tst_PageLanguage.moc"
