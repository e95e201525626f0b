#include "LibraryForms.h"
#include "LongTranslator.h"
#include "TestBase.h"
#include "TextRoom.h"

#include <QLayout>
#include <QStackedWidget>

/// Each form of the library in a language that needs half as much room again as English: every text
/// can be read whole, in the first size of the form and in the smallest.
class TestFormTextRoom : public TestBase
{
    Q_OBJECT

private slots:
    void textsHaveRoom_data();
    void textsHaveRoom();
};

void TestFormTextRoom::textsHaveRoom_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("isSmallest");
    for (int row = 0; row < libraryForms().size(); ++row) {
        QTest::addRow("%s", libraryForms()[row].name) << row << false;
        QTest::addRow("%s, smallest", libraryForms()[row].name) << row << true;
    }
}

void TestFormTextRoom::textsHaveRoom()
{
    QFETCH(int, row);
    QFETCH(bool, isSmallest);
    LongTranslator translator;
    QCoreApplication::installTranslator(&translator);
    const QSharedPointer<QWidget> form = libraryForms()[row].create();
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
    problems.removeDuplicates();
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
}

int main(int argc, char **argv)
{
    return runTest<TestFormTextRoom>(argc, argv);
}

#include "tst_FormTextRoom.moc"
