#include "TestBase.h"
#include "TriggerPanelHelpers.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLocale>
#include <QMetaMethod>
#include <QSignalSpy>

using TriggerTest::EachDay;
using TriggerTest::EachHour;
using TriggerTest::EachMinute;
using TriggerTest::EachMonth;
using TriggerTest::EachWeek;
using TriggerTest::Panel;
using TriggerTest::setDebugging;
using TriggerTest::textsOf;
using TriggerTest::valuesOf;

/// The form, and what follows from the period that is selected.
class TestTXTriggerEventWidget : public TestBase
{
    Q_OBJECT

protected:
    void finish() override { QLocale::setDefault(QLocale::system()); }

private slots:
    void formIsAsDesigned();
    void titleCanBeSet();
    void partsStandInARow();
    void labelsStandCloseToTheirLists();
    void tabGoesThroughTheLists();
    void theOnlyMethodIsTheSlot();

    void newPanelIsForTheFirstOfEachMonth();
    void debuggingOffersShortPeriods_data();
    void debuggingOffersShortPeriods();
    void hoursAreNamedTheSameEverywhere_data();
    void hoursAreNamedTheSameEverywhere();

    void periodEnablesWhatItNeeds_data();
    void periodEnablesWhatItNeeds();
    void minutesHaveNoHourOnlyWhileDebugging();
    void foreignPeriodHasHoursButNoDays();
    void monthsHaveTheDaysThatAllMonthsHave();
    void daysOfTheWeekAreNamedInTheLanguage_data();
    void daysOfTheWeekAreNamedInTheLanguage();
    void daysStayForPeriodsWithoutAny();
    void samePeriodAgainDoesNothing();
    void placeOutsideTheListIsEachMonth_data();
    void placeOutsideTheListIsEachMonth();

    void hoursCanBeOffered();
    void hoursOfferedTwiceStandThereTwice();
    void offeringHoursChangesNothingElse();
    void offeringHoursIsDecidedByTheSettingOfTheMoment();
    void missingControlStopsThePanel_data();
    void missingControlStopsThePanel();
};

void TestTXTriggerEventWidget::formIsAsDesigned()
{
    const Panel panel;
    QCOMPARE(panel.widget.objectName(), "TXTriggerEventWidget");
    QCOMPARE(panel.widget.windowTitle(), "Form");
    QCOMPARE(panel.widget.size(), QSize(323, 47));
    QCOMPARE(panel.widget.layout()->objectName(), "horizontalLayout");
    QVERIFY(qobject_cast<QHBoxLayout *>(panel.widget.layout()));
    QCOMPARE(panel.widget.layout()->contentsMargins(), QMargins());
    const auto *box = panel.part<QGroupBox>("triggerBox");
    QCOMPARE(panel.widget.layout()->itemAt(0)->widget(), box);
    QCOMPARE(box->title(), "Trigger");
    QVERIFY(qobject_cast<QHBoxLayout *>(box->layout()));
    QCOMPARE(box->layout()->objectName(), "horizontalLayout_18");
    QCOMPARE(box->layout()->contentsMargins(), QMargins(6, 6, 6, 6));
}

void TestTXTriggerEventWidget::titleCanBeSet()
{
    Panel panel;

    panel.widget.setGroupBoxTitle("Cleaning");

    QCOMPARE(panel.part<QGroupBox>("triggerBox")->title(), "Cleaning");
}

void TestTXTriggerEventWidget::partsStandInARow()
{
    const Panel panel;
    const QLayout *row = panel.part<QGroupBox>("triggerBox")->layout();
    QStringList names;
    QStringList texts;
    for (int place = 0; place < row->count(); ++place) {
        names.append(row->itemAt(place)->widget()->objectName());
        if (const auto *label = qobject_cast<QLabel *>(row->itemAt(place)->widget())) {
            texts.append(label->text());
            QCOMPARE(label->buddy(), row->itemAt(place + 1)->widget());
        }
    }
    QCOMPARE(names,
             QStringList({"periodLabel", "triggerPeriodComboBox", "dayLabel", "dayComboBox",
                          "hourLabel", "hourComboBox"}));
    QCOMPARE(texts, QStringList({"Period", "Day", "Hour"}));
}

void TestTXTriggerEventWidget::labelsStandCloseToTheirLists()
{
    Panel panel;
    panel.widget.resize(1200, 60);
    panel.widget.show();

    // Width to spare goes to the lists.
    for (const auto *label : panel.widget.findChildren<QLabel *>()) {
        QCOMPARE(label->width(), label->sizeHint().width());
        QVERIFY(label->buddy()->width() > 300);
    }
}

void TestTXTriggerEventWidget::tabGoesThroughTheLists()
{
    Panel panel;
    panel.widget.show();
    panel.widget.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&panel.widget));
    panel.periods->setFocus();

    QTest::keyClick(panel.periods, Qt::Key_Tab);
    QVERIFY(panel.days->hasFocus());
    QTest::keyClick(panel.days, Qt::Key_Tab);
    QVERIFY(panel.hours->hasFocus());
}

void TestTXTriggerEventWidget::theOnlyMethodIsTheSlot()
{
    const QMetaObject &meta = TXTriggerEventWidget::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodSignature(), "currentTriggerPeriodChanged(int)");
    QCOMPARE(method.methodType(), QMetaMethod::Slot);
}

void TestTXTriggerEventWidget::newPanelIsForTheFirstOfEachMonth()
{
    const Panel panel;
    QCOMPARE(panel.periods->currentText(), "Each Month");
    QCOMPARE(panel.days->currentText(), "1");
    QCOMPARE(panel.days->count(), 28);
    QCOMPARE(panel.hours->currentIndex(), 0);
    for (const QWidget *control : panel.widget.findChildren<QWidget *>()) {
        QVERIFY2(control->isEnabled(), qPrintable(control->objectName()));
    }
}

void TestTXTriggerEventWidget::debuggingOffersShortPeriods_data()
{
    QTest::addColumn<QVariant>("setting");
    QTest::addColumn<bool>("isOffered");
    QTest::newRow("missing") << QVariant() << false;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("text true") << QVariant("true") << true;
    QTest::newRow("text false") << QVariant("false") << false;
    QTest::newRow("list") << QVariant(QVariantList({1, 2})) << false;
}

void TestTXTriggerEventWidget::debuggingOffersShortPeriods()
{
    QFETCH(QVariant, setting);
    QFETCH(bool, isOffered);
    if (setting.isValid()) {
        setDebugging(setting);
    }

    const Panel panel;

    QStringList texts = {"Each Month", "Each Week", "Each Day"};
    QList<int> values = {0, 1, 2};
    if (isOffered) {
        texts += {"Each Hour", "Each Minute"};
        values += {3, 4};
    }
    QCOMPARE(textsOf(*panel.periods), texts);
    QCOMPARE(valuesOf(*panel.periods), values);
    QCOMPARE(panel.periods->currentIndex(), 0);
}

void TestTXTriggerEventWidget::hoursAreNamedTheSameEverywhere_data()
{
    QTest::addColumn<QString>("locale");
    for (const char *name : {"en_US", "de_DE", "fr_FR", "ja_JP", "ar_EG"}) {
        QTest::newRow(name) << QString(name);
    }
}

void TestTXTriggerEventWidget::hoursAreNamedTheSameEverywhere()
{
    QFETCH(QString, locale);
    QLocale::setDefault(QLocale(locale));

    const Panel panel;

    QCOMPARE(panel.hours->count(), 24);
    for (int hour = 0; hour < 24; ++hour) {
        const int ofTwelve = hour % 12 == 0 ? 12 : hour % 12;
        QCOMPARE(panel.hours->itemText(hour),
                 QString::asprintf("%02d:00 %s", ofTwelve, hour < 12 ? "am" : "pm"));
        QCOMPARE(panel.hours->itemData(hour), QVariant(hour));
    }
}

void TestTXTriggerEventWidget::periodEnablesWhatItNeeds_data()
{
    QTest::addColumn<int>("period");
    QTest::addColumn<bool>("hasDay");
    QTest::addColumn<bool>("hasHour");
    QTest::newRow("month") << int(EachMonth) << true << true;
    QTest::newRow("week") << int(EachWeek) << true << true;
    QTest::newRow("day") << int(EachDay) << false << true;
    QTest::newRow("hour") << int(EachHour) << false << false;
    QTest::newRow("minute") << int(EachMinute) << false << false;
}

void TestTXTriggerEventWidget::periodEnablesWhatItNeeds()
{
    QFETCH(int, period);
    QFETCH(bool, hasDay);
    QFETCH(bool, hasHour);
    setDebugging(true);
    const Panel panel;

    // From one that enables nothing as well as from one that enables all.
    for (const int before : {int(EachHour), int(EachWeek)}) {
        panel.selectPeriod(before);
        panel.selectPeriod(period);

        QCOMPARE(panel.days->isEnabled(), hasDay);
        QCOMPARE(panel.dayLabel->isEnabled(), hasDay);
        QCOMPARE(panel.hours->isEnabled(), hasHour);
        QCOMPARE(panel.hourLabel->isEnabled(), hasHour);
    }
}

void TestTXTriggerEventWidget::minutesHaveNoHourOnlyWhileDebugging()
{
    setDebugging(true);
    const Panel panel;
    setDebugging(false);

    panel.selectPeriod(EachMinute);
    QVERIFY(!panel.days->isEnabled());
    QVERIFY(panel.hours->isEnabled());
    QVERIFY(panel.hourLabel->isEnabled());

    panel.selectPeriod(EachDay);
    setDebugging(true);
    panel.selectPeriod(EachMinute);
    QVERIFY(!panel.hours->isEnabled());
}

void TestTXTriggerEventWidget::foreignPeriodHasHoursButNoDays()
{
    const Panel panel;
    panel.periods->addItem("Each Year", 5);

    panel.selectPeriod(5);

    QVERIFY(!panel.days->isEnabled());
    QVERIFY(!panel.dayLabel->isEnabled());
    QVERIFY(panel.hours->isEnabled());
    QVERIFY(panel.hourLabel->isEnabled());
}

void TestTXTriggerEventWidget::monthsHaveTheDaysThatAllMonthsHave()
{
    const Panel panel;
    panel.selectPeriod(EachWeek);
    panel.days->setCurrentIndex(3);

    panel.selectPeriod(EachMonth);

    QCOMPARE(panel.days->count(), 28);
    for (int day = 1; day <= 28; ++day) {
        QCOMPARE(panel.days->itemText(day - 1), QString::number(day));
        QCOMPARE(panel.days->itemData(day - 1), QVariant(day));
    }
    QCOMPARE(panel.days->currentIndex(), 0);
}

void TestTXTriggerEventWidget::daysOfTheWeekAreNamedInTheLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("monday");
    QTest::addColumn<QString>("sunday");
    QTest::newRow("de") << "de_DE"
                        << "Montag"
                        << "Sonntag";
    QTest::newRow("fr") << "fr_FR"
                        << "lundi"
                        << "dimanche";
    QTest::newRow("ja") << "ja_JP" << QString::fromUtf8("月曜日") << QString::fromUtf8("日曜日");
    QTest::newRow("ar") << "ar_EG" << QString::fromUtf8("الاثنين") << QString::fromUtf8("الأحد");
}

void TestTXTriggerEventWidget::daysOfTheWeekAreNamedInTheLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, monday);
    QFETCH(QString, sunday);
    const Panel panel;
    // The language counts at the moment of filling.
    QLocale::setDefault(QLocale(locale));

    panel.selectPeriod(EachWeek);

    QCOMPARE(valuesOf(*panel.days), QList<int>({1, 2, 3, 4, 5, 6, 7}));
    QCOMPARE(panel.days->itemText(0), monday);
    QCOMPARE(panel.days->itemText(6), sunday);
    QCOMPARE(panel.days->currentIndex(), 0);
}

void TestTXTriggerEventWidget::daysStayForPeriodsWithoutAny()
{
    setDebugging(true);
    const Panel panel;
    panel.selectPeriod(EachWeek);
    panel.days->setCurrentIndex(4);

    for (const int period : {int(EachDay), int(EachHour), int(EachMinute)}) {
        panel.selectPeriod(period);
        QCOMPARE(panel.days->count(), 7);
        QCOMPARE(panel.days->currentIndex(), 4);
    }
}

void TestTXTriggerEventWidget::samePeriodAgainDoesNothing()
{
    const Panel panel;
    panel.days->setCurrentIndex(10);
    QSignalSpy removals(panel.days->model(), SIGNAL(rowsRemoved(QModelIndex, int, int)));

    panel.periods->setCurrentIndex(0);

    QCOMPARE(panel.days->currentIndex(), 10);
    QCOMPARE(removals.count(), 0);
}

void TestTXTriggerEventWidget::placeOutsideTheListIsEachMonth_data()
{
    QTest::addColumn<int>("place");
    QTest::newRow("none") << -1;
    QTest::newRow("behind") << 3;
    QTest::newRow("far behind") << 2000000000;
}

void TestTXTriggerEventWidget::placeOutsideTheListIsEachMonth()
{
    QFETCH(int, place);
    Panel panel;
    panel.selectPeriod(EachWeek);
    panel.days->setCurrentIndex(2);

    panel.widget.currentTriggerPeriodChanged(place);

    QCOMPARE(panel.days->count(), 28);
    QCOMPARE(panel.days->currentIndex(), 0);
    QVERIFY(panel.days->isEnabled());
    QVERIFY(panel.hours->isEnabled());

    // As is saved of a list that a host has emptied.
    panel.selectPeriod(EachDay);
    panel.periods->clear();
    QCOMPARE(panel.widget.save().value("Period"), QVariant(0));
    QVERIFY(panel.days->isEnabled());
}

void TestTXTriggerEventWidget::hoursCanBeOffered()
{
    Panel panel;

    panel.widget.addHourTriggerPeriod();

    QCOMPARE(textsOf(*panel.periods),
             QStringList({"Each Month", "Each Week", "Each Day", "Each Hour"}));
    QCOMPARE(valuesOf(*panel.periods), QList<int>({0, 1, 2, 3}));
    panel.selectPeriod(EachHour);
    QVERIFY(!panel.days->isEnabled());
    QVERIFY(!panel.hours->isEnabled());
}

void TestTXTriggerEventWidget::hoursOfferedTwiceStandThereTwice()
{
    Panel panel;

    panel.widget.addHourTriggerPeriod();
    panel.widget.addHourTriggerPeriod();
    QCOMPARE(valuesOf(*panel.periods), QList<int>({0, 1, 2, 3, 3}));

    // One connection is left: one change fills in the days once.
    QSignalSpy insertions(panel.days->model(), SIGNAL(rowsInserted(QModelIndex, int, int)));
    panel.selectPeriod(EachWeek);
    QCOMPARE(insertions.count(), 7);
}

void TestTXTriggerEventWidget::offeringHoursChangesNothingElse()
{
    Panel panel;
    panel.selectPeriod(EachWeek);
    panel.days->setCurrentIndex(3);
    panel.hours->setCurrentIndex(5);
    // What a host has changed is not set again.
    panel.days->setEnabled(false);
    QSignalSpy changes(panel.periods, SIGNAL(currentIndexChanged(int)));

    panel.widget.addHourTriggerPeriod();

    QCOMPARE(changes.count(), 0);
    QCOMPARE(panel.periods->currentText(), "Each Week");
    QCOMPARE(panel.days->currentIndex(), 3);
    QCOMPARE(panel.hours->currentIndex(), 5);
    QVERIFY(!panel.days->isEnabled());

    // A host that has emptied the list: the first entry is selected by itself, without a slot.
    panel.periods->clear();
    panel.widget.addHourTriggerPeriod();
    QCOMPARE(panel.periods->currentText(), "Each Hour");
    QVERIFY(panel.hours->isEnabled());
}

void TestTXTriggerEventWidget::offeringHoursIsDecidedByTheSettingOfTheMoment()
{
    Panel panel;
    setDebugging(true);
    panel.widget.addHourTriggerPeriod();
    QCOMPARE(valuesOf(*panel.periods), QList<int>({0, 1, 2}));

    Panel debugging;
    debugging.widget.addHourTriggerPeriod();
    QCOMPARE(valuesOf(*debugging.periods), QList<int>({0, 1, 2, 3, 4}));
    setDebugging(false);
    debugging.widget.addHourTriggerPeriod();
    QCOMPARE(valuesOf(*debugging.periods), QList<int>({0, 1, 2, 3, 4, 3}));
}

void TestTXTriggerEventWidget::missingControlStopsThePanel_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"triggerPeriodComboBox", "dayComboBox", "dayLabel", "hourComboBox",
                             "hourLabel", "triggerBox"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void TestTXTriggerEventWidget::missingControlStopsThePanel()
{
    QFETCH(QByteArray, name);
    Panel panel;
    delete panel.part<QWidget>(name);
    const QPointer<QComboBox> days = panel.part<QComboBox>("dayComboBox");

    panel.widget.currentTriggerPeriodChanged(1);
    panel.widget.addHourTriggerPeriod();
    panel.widget.load({{"Period", 1}});
    panel.widget.setGroupBoxTitle("Cleaning");

    QVERIFY(!days || days->count() == 28);
    const TriggerTest::Settings saved = panel.widget.save();
    QCOMPARE(saved.size(), 3);
    QCOMPARE(saved.value("Period"), QVariant(0));
    QCOMPARE(saved.value("DayNumber"), QVariant(1));
    const bool hasHours = panel.part<QComboBox>("hourComboBox") != nullptr;
    QCOMPARE(saved.value("HourInDay"), QVariant(hasHours ? 0 : 1));
}

int main(int argc, char **argv)
{
    return runTest<TestTXTriggerEventWidget>(argc, argv);
}

#include "tst_TXTriggerEventWidget.moc"
