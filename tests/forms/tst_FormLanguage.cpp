#include "FTPConfigurationWidget.h"
#include "LibraryWidgets.h"
#include "LockerPasswordDialog.h"
#include "LongTranslator.h"
#include "ShownTexts.h"
#include "TXCheckForUpdateWidget.h"
#include "TXLogManager.h"
#include "TXLogWindow.h"
#include "TXSelectionItemWidget.h"
#include "TXTriggerEventWidget.h"
#include "TestBase.h"
#include "TextRoom.h"

#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStringListModel>
#include <QToolButton>

namespace {

/// The texts that stay as they were when the form was made, because hosts rely on it: those of two
/// panels, headings and choices of a third one, and a title that no host shows.
const QRegularExpression kStaying(
    QStringLiteral("^(QLabel (smtpMailLabel|senderAddressLabel|destinationAddressLabel)|QComboBox "
                   "encryptionComboBox):"
                   "|^\\w+ \\w+: Form"));

bool staysWhole(const QString &form)
{
    return form == u"TXDatabaseConfigurationWidget" || form == u"TXWebInterfaceConfigurationWidget";
}

/// What one of these says is all the host's; the other one paints its texts.
bool hasTheTextsOfTheHost(const QString &form)
{
    return form == u"DoubleSpinBoxWithSliderWidget" || form == u"TXDeltaGradientWidget";
}

/// With a new language these three show their own title, whatever the host has set.
bool takesItsTitleBack(const QString &form)
{
    return form == u"AboutAppWindow" || form == u"AutoMountManagerMainWindow"
        || form == u"AutoMountNetworkDriveEditor";
}

QStringList textsOf(const QWidget &form)
{
    QStringList texts = ShownTexts::of(form);
    texts.removeIf([](const QString &text) { return kStaying.match(text).hasMatch(); });
    texts.sort();
    return texts;
}

/// The window of updates would begin its check.
void show(QWidget &form)
{
    form.setVisible(qobject_cast<TXCheckForUpdateWidget *>(&form) == nullptr);
}

/// A form that is made now, and so in the language of the moment.
QStringList textsOfNew(const LibraryWidget &kind)
{
    const std::unique_ptr<QWidget> form = kind.make();
    show(*form);
    return textsOf(*form);
}

} // namespace

/// Each form of the library while the language changes: it says what one says that is made in the
/// new language.
class TestFormLanguage : public TestBase
{
    Q_OBJECT

private slots:
    void everyFormOfTheSourcesIsWalked();
    void textsFollowTheLanguage_data();
    void textsFollowTheLanguage();
    void titleOfTheHostStays_data();
    void titleOfTheHostStays();
    void verdictOnAConnectionIsToldAgain();
    void checkOfAConnectionIsToldAgain();
    void triggerKeepsTheTitleOfTheHost();
    void triggerKeepsPeriodsOfTheHost();
    void triggerWithoutAPartTakesTheRest();
    void barKeepsTheTextsOfTheHost();
    void logKeepsItsFilter();
    void stateOfTheUpdateIsToldAgain_data();
    void stateOfTheUpdateIsToldAgain();
    void fixedDialogGrowsWithItsTexts();

protected:
    void finish() override { QCoreApplication::removeTranslator(&translator); }

private:
    /// From here on until the end of the function.
    void speakLong()
    {
        QCoreApplication::installTranslator(&translator);
        QCoreApplication::processEvents();
    }

    LongTranslator translator;
};

/// Here and where the room of texts is measured, over the same list: a form that is made later on
/// has to come into it, with texts of its own.
void TestFormLanguage::everyFormOfTheSourcesIsWalked()
{
    QCOMPARE(formsMissingIn(libraryWidgetsWithTexts()), QStringList());
    const QList<LibraryWidget> fewer = libraryWidgetsWithTexts().mid(1);
    QCOMPARE(formsMissingIn(fewer), QStringList("AboutAppWindow"));
}

void TestFormLanguage::textsFollowTheLanguage_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < libraryWidgetsWithTexts().size(); ++row) {
        QTest::addRow("%s", libraryWidgetsWithTexts()[row].name) << row;
    }
}

void TestFormLanguage::textsFollowTheLanguage()
{
    QFETCH(int, row);
    const LibraryWidget &kind = libraryWidgetsWithTexts()[row];
    const std::unique_ptr<QWidget> form = kind.make();
    show(*form);
    const QStringList english = textsOf(*form);

    speakLong();

    const QStringList wanted = staysWhole(kind.name) ? english : textsOfNew(kind);
    QCOMPARE(textsOf(*form).join(u'\n'), wanted.join(u'\n'));
    QCOMPARE(wanted != english, !staysWhole(kind.name) && !hasTheTextsOfTheHost(kind.name));

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::processEvents();
    QCOMPARE(textsOf(*form).join(u'\n'), english.join(u'\n'));
}

void TestFormLanguage::titleOfTheHostStays_data()
{
    textsFollowTheLanguage_data();
}

void TestFormLanguage::titleOfTheHostStays()
{
    QFETCH(int, row);
    const LibraryWidget &kind = libraryWidgetsWithTexts()[row];
    const std::unique_ptr<QWidget> form = kind.make();
    form->setWindowTitle("Proofs of the Week");
    const QSignalSpy changes(form.get(), SIGNAL(windowTitleChanged(QString)));

    speakLong();

    if (!takesItsTitleBack(kind.name)) {
        QCOMPARE(form->windowTitle(), "Proofs of the Week");
        QCOMPARE(changes.count(), 0);
    } else {
        QVERIFY(LongTranslator::isSpoken(form->windowTitle()));
    }
}

void TestFormLanguage::verdictOnAConnectionIsToldAgain()
{
    FTPConfigurationWidget panel;
    panel.setIsImporter(false);
    panel.onFinished(FTPConfigurationWidget::FtpLoginError);

    speakLong();

    QCOMPARE(panel.findChild<QLabel *>("eraseDistantLabel")->text(),
             LongTranslator::lengthened("Erase Local Files"));
    const auto *sign = panel.findChild<QLabel *>("progressLabel");
    QCOMPARE(sign->toolTip(),
             LongTranslator::lengthened("Please check the user name and password"));
    QCOMPARE(sign->accessibleName(), LongTranslator::lengthened("Connection failed"));
    QVERIFY(!sign->pixmap(Qt::ReturnByValue).isNull());
}

void TestFormLanguage::checkOfAConnectionIsToldAgain()
{
    FTPConfigurationWidget panel;
    panel.findChild<QLineEdit *>("hostLineEdit")->setText("127.0.0.1");
    panel.findChild<QSpinBox *>("portSpinBox")->setValue(1);
    QSignalSpy ends(&panel, SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)));
    panel.checkFTP();

    // Without the loop, in which the check might end.
    QCoreApplication::installTranslator(&translator);
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&panel, &change);

    const auto *sign = panel.findChild<QLabel *>("progressLabel");
    QCOMPARE(sign->accessibleName(), LongTranslator::lengthened("Checking the connection"));
    QVERIFY(sign->movie());
    QTRY_COMPARE(ends.count(), 1);
}

void TestFormLanguage::triggerKeepsTheTitleOfTheHost()
{
    TXTriggerEventWidget panel;
    auto *period = panel.findChild<QComboBox *>("triggerPeriodComboBox");
    auto *day = panel.findChild<QComboBox *>("dayComboBox");
    panel.setGroupBoxTitle("Cleaning");
    period->setCurrentIndex(1);
    day->setCurrentIndex(4);

    QLocale::setDefault(QLocale("fr"));
    speakLong();
    const QString friday = day->currentText();
    QLocale::setDefault(QLocale::system());

    QCOMPARE(panel.findChild<QGroupBox *>()->title(), "Cleaning");
    QCOMPARE(period->currentText(), LongTranslator::lengthened("Each Week"));
    QCOMPARE(friday, "vendredi");
    QCOMPARE(panel.findChild<QLabel *>("hourLabel")->text(), LongTranslator::lengthened("Hour"));
}

void TestFormLanguage::triggerKeepsPeriodsOfTheHost()
{
    TXTriggerEventWidget panel;
    auto *period = panel.findChild<QComboBox *>("triggerPeriodComboBox");
    period->addItem("Each Year", 12);
    period->addItem("Never");
    const QSignalSpy choices(period, SIGNAL(currentIndexChanged(int)));

    speakLong();

    QCOMPARE(period->itemText(3), "Each Year");
    QCOMPARE(period->itemText(4), "Never");
    QCOMPARE(period->itemText(0), LongTranslator::lengthened("Each Month"));
    QCOMPARE(choices.count(), 0);
}

void TestFormLanguage::triggerWithoutAPartTakesTheRest()
{
    TXTriggerEventWidget panel;
    delete panel.findChild<QLabel *>("dayLabel");

    speakLong();

    QCOMPARE(panel.findChild<QComboBox *>("triggerPeriodComboBox")->itemText(0),
             LongTranslator::lengthened("Each Month"));
}

void TestFormLanguage::barKeepsTheTextsOfTheHost()
{
    QStringListModel model({"Coated"});
    TXSelectionItemWidget bar;
    bar.setModel(&model, nullptr, nullptr);
    bar.setExportButtonToolTip("Save beside the proof");
    bar.setImportName("Take Over");

    speakLong();

    QCOMPARE(bar.exportItemButton()->toolTip(), "Save beside the proof");
    QCOMPARE(bar.exportItemButton()->accessibleName(), LongTranslator::lengthened("Export"));
    const auto entries = bar.findChild<QToolButton *>()->menu()->actions();
    QCOMPARE(entries.first()->text(), LongTranslator::lengthened("Create New"));
    QCOMPARE(entries.last()->text(), "Take Over");
    const auto *box = bar.itemComboBox();
    QCOMPARE(box->itemText(box->count() - 1), LongTranslator::lengthened("Load"));
}

void TestFormLanguage::logKeepsItsFilter()
{
    TXLogWindow window(QSharedPointer<TXLogManager>::create(), nullptr);
    auto *filter = window.findChild<QComboBox *>("filterComboBox");
    filter->setCurrentIndex(1);
    const QSignalSpy changes(filter, SIGNAL(currentIndexChanged(int)));

    speakLong();

    QCOMPARE(filter->currentText(), LongTranslator::lengthened("Warning & Errors"));
    QCOMPARE(changes.count(), 0);
}

void TestFormLanguage::stateOfTheUpdateIsToldAgain_data()
{
    QTest::addColumn<TXCheckForUpdateWidget::State>("state");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing new") << TXCheckForUpdateWidget::UpToDate << "updateNameLabel"
                                 << LongTranslator::lengthened("%1 is up to date.").arg("Proofs");
    QTest::newRow("no service") << TXCheckForUpdateWidget::ServiceError << "shortDescLabel"
                                << LongTranslator::lengthened(
                                       "Impossible to connect to the Check for Updates service, "
                                       "please check your Internet connection.");
}

void TestFormLanguage::stateOfTheUpdateIsToldAgain()
{
    QFETCH(TXCheckForUpdateWidget::State, state);
    QFETCH(QString, label);
    TXCheckForUpdateWidget dialog("Proofs", 1, false);
    dialog.updateState(state);

    speakLong();

    QTEST(dialog.findChild<QLabel *>(label)->text(), "text");
}

void TestFormLanguage::fixedDialogGrowsWithItsTexts()
{
    LockerPasswordDialog dialog(true);
    dialog.show();

    speakLong();

    QCOMPARE(TextRoom::problems(dialog, &LongTranslator::isSpoken), QStringList());
}

int main(int argc, char **argv)
{
    return runTest<TestFormLanguage>(argc, argv);
}

#include "tst_FormLanguage.moc"
