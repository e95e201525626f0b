#include "DialogDriver.h"
#include "PageInWindow.h"
#include "SchedulePage.h"
#include "TestBase.h"
#include "TriggerSchedule.h"

#include "TXSelectDefaultEncodingWidget.h"
#include "TXTriggerEventWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QTimer>
#include <QTreeWidget>

#include <memory>

class TestSchedulePage : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void eventsFollowFromWhatIsSaved_data();
    void eventsFollowFromWhatIsSaved();
    void loadingBringsBackWhatIsKept();
    void eventsAreNewWhenOneIsOver();
    void hoursAreOfferedAndTakenBack();
    void renewedPanelKeepsItsPlaceInTheTabOrder();

    void exampleReadsInTheEncodingThatIsSaved();
    void wrongEncodingIsSeen();
    void unreadablePlacesAreCounted();
    void chosenFileIsRead();
    void nextChosenFileReplacesTheFirst();
    void cancelledChoiceChangesNothing();
    void fileThatIsGoneTellsSo();
    void pageComesWithoutAFolderForItsExamples();
    void examplesGoWithThePage();

    void textsFollowTheLanguage();
    void newLanguageKeepsWhatIsShown();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab();
    void pageIsNotTooWide();

private:
    [[nodiscard]] TXTriggerEventWidget *trigger() const
    {
        return page->findChild<TXTriggerEventWidget *>();
    }
    [[nodiscard]] TXSelectDefaultEncodingWidget *encoding() const
    {
        return page->findChild<TXSelectDefaultEncodingWidget *>();
    }
    [[nodiscard]] QComboBox *list(const char *name) const
    {
        return page->findChild<QComboBox *>(QLatin1String(name));
    }
    [[nodiscard]] QComboBox *files() const
    {
        return qobject_cast<QComboBox *>(labelOf(*page, "Text file:")->buddy());
    }
    [[nodiscard]] QString text() const
    {
        return page->findChild<QPlainTextEdit *>()->toPlainText();
    }
    [[nodiscard]] QString kept(const QString &key) const;
    void click(const QString &group, const QString &button) const;
    void readAs(const QString &codec) const;
    void choose(const QString &path) const;

    std::unique_ptr<SchedulePage> page;
};

void TestSchedulePage::prepare()
{
    QLocale::setDefault(QLocale("en_GB"));
    page = std::make_unique<SchedulePage>();
    page->resize(845, 700);
    page->show();
}

void TestSchedulePage::finish()
{
    page.reset();
    QLocale::setDefault(QLocale::system());
}

/// The value that one of the views of settings shows.
QString TestSchedulePage::kept(const QString &key) const
{
    const auto views = page->findChildren<QTreeWidget *>();
    for (const QTreeWidget *view : views) {
        const auto found = view->findItems(key, Qt::MatchExactly);
        if (!found.isEmpty()) {
            return found.first()->text(2);
        }
    }
    return {};
}

void TestSchedulePage::click(const QString &group, const QString &button) const
{
    const auto boxes = page->findChildren<QGroupBox *>();
    for (const QGroupBox *box : boxes) {
        if (box->title() == group) {
            DialogDriver::click(buttonOf(*box, button));
            return;
        }
    }
    QFAIL("no such group");
}

void TestSchedulePage::readAs(const QString &codec) const
{
    encoding()->selectEncoding(codec);
    QCOMPARE(encoding()->selectedEncoding(), codec);
    click("Default encoding", "Save");
}

/// Clicks "Choose File..." and picks the file.
void TestSchedulePage::choose(const QString &path) const
{
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        dialog.findChild<QLineEdit *>("fileNameEdit")->setText(path);
        DialogDriver::click(dialog, QDialogButtonBox::Open);
    });
    click("Default encoding", "Choose File...");
}

void TestSchedulePage::eventsFollowFromWhatIsSaved_data()
{
    QTest::addColumn<int>("period");
    QTest::addColumn<int>("day");
    QTest::addColumn<int>("hour");
    QTest::newRow("month") << 0 << 17 << 5;
    QTest::newRow("week") << 1 << 3 << 23;
    QTest::newRow("day") << 2 << 1 << 12;
}

void TestSchedulePage::eventsFollowFromWhatIsSaved()
{
    QFETCH(int, period);
    QFETCH(int, day);
    QFETCH(int, hour);
    const QHash<QString, QVariant> settings = {
        {"Period", period}, {"DayNumber", day}, {"HourInDay", hour}};
    trigger()->load(settings);
    QCOMPARE(kept("HourInDay"), "0");

    // An event may come between the click and the look.
    const QDateTime before = QDateTime::currentDateTime();
    click("Trigger event", "Save");

    QCOMPARE(kept("Period"), QString::number(period));
    QCOMPARE(kept("DayNumber"), QString::number(day));
    QCOMPARE(kept("HourInDay"), QString::number(hour));
    const QDateTime after = QDateTime::currentDateTime();
    const auto isTold = [this](const QList<QDateTime> &events) {
        const QString told = allTexts(*page);
        return std::all_of(events.cbegin(), events.cend(), [&](const QDateTime &event) {
            return told.contains(QLocale().toString(event.date(), QLocale::LongFormat) + ", "
                                 + QLocale().toString(event.time(), QLocale::ShortFormat));
        });
    };
    QVERIFY(isTold(nextEvents(settings, before, 3)) || isTold(nextEvents(settings, after, 3)));
}

void TestSchedulePage::loadingBringsBackWhatIsKept()
{
    const QHash<QString, QVariant> settings = {{"Period", 1}, {"DayNumber", 4}, {"HourInDay", 6}};
    trigger()->load(settings);
    click("Trigger event", "Save");
    readAs("ISO-8859-15");

    trigger()->load({});
    encoding()->selectEncoding("ISO-8859-1");
    click("Trigger event", "Load");
    click("Default encoding", "Load");

    QCOMPARE(trigger()->save(), settings);
    QCOMPARE(encoding()->selectedEncoding(), "ISO-8859-15");
}

void TestSchedulePage::eventsAreNewWhenOneIsOver()
{
    auto *label = [this] {
        for (QLabel *candidate : page->findChildren<QLabel *>()) {
            if (candidate->text().startsWith("By the settings")) {
                return candidate;
            }
        }
        return static_cast<QLabel *>(nullptr);
    }();
    QVERIFY(label);
    const QString told = label->text();
    // It runs until the next event, but not longer than an hour.
    const auto *timer = label->parent()->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(timer);
    QVERIFY(timer->isActive());
    QVERIFY(timer->isSingleShot());
    QVERIFY(timer->interval() <= 60 * 60 * 1000);

    label->setText("over");
    QTimerEvent event(timer->timerId());
    QCoreApplication::sendEvent(const_cast<QTimer *>(timer), &event);

    QCOMPARE(label->text(), told);
    QVERIFY(timer->isActive());
}

void TestSchedulePage::hoursAreOfferedAndTakenBack()
{
    auto *box = qobject_cast<QCheckBox *>(buttonOf(*page, "Offer hours"));
    trigger()->load({{"Period", 1}, {"DayNumber", 4}, {"HourInDay", 6}});
    QCOMPARE(list("triggerPeriodComboBox")->count(), 3);

    DialogDriver::click(box);
    QCOMPARE(list("triggerPeriodComboBox")->count(), 4);
    QCOMPARE(trigger()->save().value("DayNumber"), QVariant(4));
    QVERIFY(trigger()->isVisible());
    trigger()->load({{"Period", 3}});
    click("Trigger event", "Save");
    QCOMPARE(kept("Period"), "3");

    // What is not offered any more becomes each week.
    DialogDriver::click(box);
    QCOMPARE(list("triggerPeriodComboBox")->count(), 3);
    click("Trigger event", "Load");
    QCOMPARE(trigger()->save().value("Period"), QVariant(1));
}

void TestSchedulePage::renewedPanelKeepsItsPlaceInTheTabOrder()
{
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    auto *box = buttonOf(*page, "Offer hours");

    DialogDriver::click(box);

    list("triggerPeriodComboBox")->setFocus();
    for (const char *next : {"dayComboBox", "hourComboBox"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), list(next));
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), box);
    QCOMPARE(controlsOutOfReach(*page), QStringList());
}

void TestSchedulePage::exampleReadsInTheEncodingThatIsSaved()
{
    readAs("UTF-8");

    QCOMPARE(files()->currentText(), "Example in UTF-8");
    QCOMPARE(kept("DefaultMeasurementTextFileEncoding"), "UTF-8");
    const QString read = text();
    QVERIFY(read.contains(QString::fromUtf8("Prüfstelle")));
    QVERIFY(isRead(*page, QStringLiteral("Bytes read as UTF-8: %1.").arg(read.toUtf8().size())));

    files()->setCurrentIndex(1);
    readAs("ISO-8859-1");
    QCOMPARE(files()->currentText(), "Example in ISO-8859-1");
    QCOMPARE(text(), read);
    QVERIFY(isRead(*page, QStringLiteral("Bytes read as ISO-8859-1: %1.").arg(read.size())));
}

void TestSchedulePage::wrongEncodingIsSeen()
{
    readAs("ISO-8859-1");
    QVERIFY(text().contains(QString::fromUtf8("PrÃ¼fstelle")));

    // The choice counts when it is saved.
    encoding()->selectEncoding("UTF-8");
    QVERIFY(text().contains(QString::fromUtf8("PrÃ¼fstelle")));
}

void TestSchedulePage::unreadablePlacesAreCounted()
{
    readAs("UTF-8");
    QVERIFY(!allTexts(*page).contains("cannot read"));

    files()->setCurrentIndex(1);

    const auto lost = text().count(QChar(QChar::ReplacementCharacter));
    QVERIFY(lost > 0);
    QVERIFY(allTexts(*page).contains(
        QStringLiteral("Places that this encoding cannot read: %1.").arg(lost)));
}

void TestSchedulePage::chosenFileIsRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("Grad.txt");
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    file.write("5 \xB0\n");
    file.close();

    choose(path);

    QCOMPARE(files()->currentText(), "Grad.txt");
    readAs("windows-1252");
    QCOMPARE(text(), QString::fromUtf8("5 °\n"));
}

void TestSchedulePage::nextChosenFileReplacesTheFirst()
{
    const QTemporaryDir folder;
    for (const char *name : {"first.txt", "second.txt"}) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QFile::WriteOnly));
        file.write(name);
        file.close();
        choose(folder.filePath(name));
        QCOMPARE(text(), QString(name));
    }
    QCOMPARE(files()->count(), 3);
    QCOMPARE(files()->currentText(), "second.txt");
}

void TestSchedulePage::cancelledChoiceChangesNothing()
{
    const QString before = text();
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { dialog.reject(); });

    click("Default encoding", "Choose File...");

    QCOMPARE(files()->count(), 2);
    QCOMPARE(text(), before);
}

void TestSchedulePage::fileThatIsGoneTellsSo()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("short lived.txt");
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    file.close();
    choose(path);
    QVERIFY(file.remove());

    click("Default encoding", "Save");

    QCOMPARE(text(), QString());
    QVERIFY(isRead(*page, "The file is not shown. It cannot be read: No such file or directory."));
}

void TestSchedulePage::pageComesWithoutAFolderForItsExamples()
{
    const QByteArray before = qgetenv("TMPDIR");
    // Nothing can be made there, not even by the superuser.
    qputenv("TMPDIR", "/proc");
    page = std::make_unique<SchedulePage>();
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    page->show();

    QCOMPARE(text(), QString());
    QVERIFY(allTexts(*page).contains("The file is not shown."));
}

void TestSchedulePage::examplesGoWithThePage()
{
    const QString example = files()->itemData(0).toString();
    QVERIFY(QFile::exists(example));

    page.reset();

    QVERIFY(!QFile::exists(example));
}

void TestSchedulePage::textsFollowTheLanguage()
{
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    QStringList texts = smallTexts(*page, {});
    // Dates, and the name of the codec, are no words of these texts.
    texts.removeIf([](const QString &shown) {
        return shown.startsWith("BY THE SETTINGS") || shown.startsWith("BYTES READ AS");
    });
    QCOMPARE(texts, QStringList());
    QCOMPARE(list("triggerPeriodComboBox")->itemText(0), "EACH MONTH");
    QCOMPARE(trigger()->findChild<QGroupBox *>()->title(), "CALIBRATION OF THE INSTRUMENT");

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QVERIFY(buttonOf(*page, "Offer hours"));
    QVERIFY(labelOf(*page, "Default Encoding"));
}

void TestSchedulePage::newLanguageKeepsWhatIsShown()
{
    const QHash<QString, QVariant> settings = {{"Period", 1}, {"DayNumber", 4}, {"HourInDay", 6}};
    trigger()->load(settings);
    encoding()->selectEncoding("UTF-16");
    QLocale::setDefault(QLocale("de_DE"));

    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(page.get(), &event);

    QCOMPARE(trigger()->save(), settings);
    QCOMPARE(list("dayComboBox")->currentText(), "Donnerstag");
    QCOMPARE(encoding()->selectedEncoding(), "UTF-16");
    QCOMPARE(page->findChildren<TXTriggerEventWidget *>().size(), 1);
    QCOMPARE(page->findChildren<TXSelectDefaultEncodingWidget *>().size(), 1);
}

void TestSchedulePage::mnemonicsAreNotShared()
{
    QCOMPARE(mnemonicsClashingAt(QStringLiteral("schedule")), QStringList());
}

void TestSchedulePage::everyControlHasANameAndIsReachedByTab()
{
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    QCOMPARE(namelessControls(*page), QStringList());
    QCOMPARE(controlsOutOfReach(*page), QStringList());
}

void TestSchedulePage::pageIsNotTooWide()
{
    QVERIFY2(page->minimumSizeHint().width() <= 850,
             qPrintable(QString::number(page->minimumSizeHint().width())));
}

int main(int argc, char **argv)
{
    return runTest<TestSchedulePage>(argc, argv);
}

#include "tst_SchedulePage.moc"
