#include "FormControls.h"
#include "LibraryWidgets.h"
#include "TestBase.h"

#include <algorithm>

/// Every form of the library by the Tab key, in a window of its own.
class TestFormTabOrder : public TestBase
{
    Q_OBJECT

private slots:
    void tabReachesEveryControlAndComesBack_data() { addForms(); }
    void tabReachesEveryControlAndComesBack();
    void backtabGoesTheSameWayBack_data() { addForms(); }
    void backtabGoesTheSameWayBack();
    void tabFollowsTheOrderOfReading_data() { addForms(); }
    void tabFollowsTheOrderOfReading();

private:
    static void addForms();
    /// Shows the form of the current row; null when it did not become active.
    static std::unique_ptr<QWidget> shownForm();
};

void TestFormTabOrder::addForms()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < libraryWidgets().size(); ++row) {
        QTest::newRow(libraryWidgets()[row].name) << row;
    }
}

std::unique_ptr<QWidget> TestFormTabOrder::shownForm()
{
    QFETCH(int, row);
    std::unique_ptr<QWidget> form = libraryWidgets()[row].make();
    form->show();
    return QTest::qWaitForWindowActive(form.get()) ? std::move(form) : nullptr;
}

void TestFormTabOrder::tabReachesEveryControlAndComesBack()
{
    const std::unique_ptr<QWidget> form = shownForm();
    QVERIFY(form);
    const QList<QWidget *> stops = FormControls::tabStops(*form);
    if (stops.isEmpty()) {
        // What only shows something takes no focus, nor does what waits for a server.
        const QList<QWidget *> controls = FormControls::of(*form);
        QVERIFY(std::none_of(controls.begin(), controls.end(),
                             [](const QWidget *control) { return control->isVisible(); }));
        return;
    }
    const QList<QWidget *> steps = FormControls::walk(*stops.first(), true);
    QVERIFY2(steps.last() == stops.first(), qPrintable(FormControls::inWords(*steps.last())));
    const QStringList missing = FormControls::missing(steps, stops);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1String(", "))));
}

void TestFormTabOrder::backtabGoesTheSameWayBack()
{
    const std::unique_ptr<QWidget> form = shownForm();
    QVERIFY(form);
    const QList<QWidget *> stops = FormControls::tabStops(*form);
    QList<QWidget *> there;
    QList<QWidget *> back;
    if (!stops.isEmpty()) {
        there = FormControls::walk(*stops.first(), true);
        back = FormControls::walk(*stops.first(), false);
        QCOMPARE(back.size(), there.size());
        there.removeLast();
        back.removeLast();
    }
    std::reverse(back.begin(), back.end());
    QCOMPARE(back, there);
}

void TestFormTabOrder::tabFollowsTheOrderOfReading()
{
    QFETCH(int, row);
    if (qstrcmp(libraryWidgets()[row].name, "EMailSenderWidget") == 0) {
        // Its order leads from the buttons back to the fields; tst_EMailSenderWidget has it.
        return;
    }
    const std::unique_ptr<QWidget> form = shownForm();
    QVERIFY(form);
    const QList<QWidget *> stops = FormControls::tabStops(*form);
    QStringList backwards;
    if (!stops.isEmpty()) {
        QWidget *first = FormControls::firstStop(*form, stops);
        QList<QWidget *> steps = FormControls::walk(*first, true);
        steps.removeLast();
        steps.prepend(first);
        backwards = FormControls::backwardSteps(steps, *form);
    }
    QVERIFY2(backwards.isEmpty(), qPrintable(backwards.join(QLatin1Char('\n'))));
}

int main(int argc, char **argv)
{
    return runTest<TestFormTabOrder>(argc, argv);
}

#include "tst_FormTabOrder.moc"
