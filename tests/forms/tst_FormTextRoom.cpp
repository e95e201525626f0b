#include "LibraryWidgets.h"
#include "LongTranslator.h"
#include "TXSelectionItemWidget.h"
#include "TestBase.h"
#include "TextRoom.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLayout>
#include <QStackedWidget>
#include <QStringListModel>

namespace {

/// In its smallest size the bar leaves its box no room for the entries: they are read in the list
/// that the box opens.
bool isReadInTheList(const QString &problem)
{
    return problem.startsWith(u"TXComboBoxEditable itemComboBox needs");
}

} // namespace

/// Each form of the library in a language that needs half as much room again as English: every text
/// can be read whole, in the first size of the form and in the smallest.
class TestFormTextRoom : public TestBase
{
    Q_OBJECT

private slots:
    void textsHaveRoom_data();
    void textsHaveRoom();
    void listOfANarrowBoxHasRoom();
};

void TestFormTextRoom::textsHaveRoom_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("isSmallest");
    for (int row = 0; row < libraryWidgetsWithTexts().size(); ++row) {
        QTest::addRow("%s", libraryWidgetsWithTexts()[row].name) << row << false;
        QTest::addRow("%s, smallest", libraryWidgetsWithTexts()[row].name) << row << true;
    }
}

void TestFormTextRoom::textsHaveRoom()
{
    QFETCH(int, row);
    QFETCH(bool, isSmallest);
    LongTranslator translator;
    QCoreApplication::installTranslator(&translator);
    const std::unique_ptr<QWidget> form = libraryWidgetsWithTexts()[row].make();
    if (isSmallest) {
        // A painted widget may have no smallest size.
        form->resize(form->layout() ? form->minimumSizeHint() : form->sizeHint());
    }
    form->show();
    QVERIFY(QTest::qWaitForWindowExposed(form.get()));

    QStringList problems = TextRoom::problems(*form, &LongTranslator::isSpoken);
    const auto stacks = form->findChildren<QStackedWidget *>();
    for (QStackedWidget *stack : stacks) {
        for (int page = 0; page < stack->count(); ++page) {
            stack->setCurrentIndex(page);
            QCoreApplication::processEvents();
            problems += TextRoom::problems(*form, &LongTranslator::isSpoken);
        }
    }
    if (isSmallest) {
        problems.removeIf(isReadInTheList);
    }
    problems.removeDuplicates();
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
}

void TestFormTextRoom::listOfANarrowBoxHasRoom()
{
    LongTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QStringListModel model({"Coated", "Newsprint"});
    TXSelectionItemWidget bar;
    bar.setLabelName("Paper");
    bar.setModel(&model, nullptr, nullptr);
    bar.resize(bar.minimumSizeHint());
    bar.show();
    auto *box = bar.itemComboBox();

    box->showPopup();

    const int needed = box->view()->sizeHintForColumn(0);
    QVERIFY(box->width() < needed);
    QVERIFY(box->view()->viewport()->width() >= needed);
}

int main(int argc, char **argv)
{
    return runTest<TestFormTextRoom>(argc, argv);
}

#include "tst_FormTextRoom.moc"
