#include "DictionaryView.h"
#include "PageHelpers.h"
#include "TestBase.h"

class TestDictionaryView : public TestBase
{
    Q_OBJECT

private slots:
    void entriesAreSortedByKey();
    void newDictionaryReplacesTheOld();
    void partsOfAListAreSeparatedByCommas();
    void whatDiffersFromTheKeptIsBold();
    void nothingIsBoldWithoutTheKept();
    void everyRowIsSeenWithoutScrolling();
    void typesMayBeHidden();
    void headersFollowTheLanguage();
};

void TestDictionaryView::entriesAreSortedByKey()
{
    DictionaryView view;

    view.setDictionary({{"b", 25}, {"a", true}, {"c", "text"}});

    QStringList lines;
    for (int row = 0; row < view.topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = view.topLevelItem(row);
        lines.append(item->text(0) + '|' + item->text(1) + '|' + item->text(2));
    }
    QCOMPARE(lines, QStringList({"a|bool|true", "b|int|25", "c|QString|text"}));
}

void TestDictionaryView::newDictionaryReplacesTheOld()
{
    DictionaryView view;
    view.setDictionary({{"a", 1}, {"b", 2}});

    view.setDictionary({{"a", 3}});

    QCOMPARE(view.topLevelItemCount(), 1);
    QCOMPARE(view.topLevelItem(0)->text(2), "3");
}

void TestDictionaryView::partsOfAListAreSeparatedByCommas()
{
    DictionaryView view;

    view.setDictionary({{"a", QStringList({"left", "right"})}});

    QCOMPARE(view.topLevelItem(0)->text(2), "left, right");
}

void TestDictionaryView::whatDiffersFromTheKeptIsBold()
{
    DictionaryView view;

    view.setDictionary({{"a", 1}, {"b", 2}, {"c", 3}}, {{{"a", 1}, {"b", 7}}});

    for (int column = 0; column < view.columnCount(); ++column) {
        QVERIFY(!view.topLevelItem(0)->font(column).bold());
        QVERIFY(view.topLevelItem(1)->font(column).bold());
        QVERIFY(view.topLevelItem(2)->font(column).bold());
    }
}

void TestDictionaryView::nothingIsBoldWithoutTheKept()
{
    DictionaryView view;

    view.setDictionary({{"a", 1}});

    QVERIFY(!view.topLevelItem(0)->font(0).bold());
}

void TestDictionaryView::everyRowIsSeenWithoutScrolling()
{
    DictionaryView view;
    QHash<QString, QVariant> dictionary;
    for (int i = 0; i < 12; ++i) {
        dictionary.insert(QString::number(i), i);
    }

    view.setDictionary(dictionary);
    view.resize(600, view.minimumHeight());
    view.show();

    const QTreeWidgetItem *last = view.topLevelItem(11);
    QVERIFY(view.viewport()->rect().contains(view.visualItemRect(last)));
}

void TestDictionaryView::typesMayBeHidden()
{
    DictionaryView view;
    QVERIFY(!view.isColumnHidden(1));

    view.setTypesShown(false);

    QVERIFY(view.isColumnHidden(1));
}

void TestDictionaryView::headersFollowTheLanguage()
{
    DictionaryView view;
    QCOMPARE(view.headerItem()->text(0), "Key");
    PageTest::StarTranslator translator;

    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&view, &change);
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(view.headerItem()->text(0), "*Key");
    QCOMPARE(view.headerItem()->text(2), "*Value");
}

int main(int argc, char **argv)
{
    return runTest<TestDictionaryView>(argc, argv);
}

#include "tst_DictionaryView.moc"
