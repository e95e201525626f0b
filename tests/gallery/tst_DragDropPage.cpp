#include "DragDropPage.h"
#include "EmissionList.h"
#include "FilesToDrag.h"
#include "PageInWindow.h"
#include "TestBase.h"

#include "FolderModel.h"
#include "LineEditDrapAndDrop.h"
#include "TreeViewDragAndDrop.h"

#include <QComboBox>
#include <QDropEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTemporaryDir>

#include <memory>

namespace {

QString outline(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList parts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = outline(model, index);
        parts.append(index.data().toString() + (below.isEmpty() ? "" : "(" + below + ")"));
    }
    return parts.join('|');
}

} // namespace

class TestDragDropPage : public TestBase
{
    Q_OBJECT

private slots:
    void pageFitsTheWindow();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab();
    void everyTextFollowsTheLanguage();
    void selectedFilesComeInTheirOrder();
    void buttonPutsTheSelectedFilesIntoTheField();
    void droppedFilesAreCounted();
    void emptyAndMissingFoldersListNothing();
    void bothTreesOpenAndCloseTogether();
    void bothTreesChooseTogether();
    void buttonsMoveTheChosenFolder();
    void moveThatCannotBeIsTold();
    void newFoldersHaveNamesOfTheirOwn();
    void removedFolderIsGoneFromBoth();
    void ruleDecidesOnDrops_data();
    void ruleDecidesOnDrops();
    void droppedFolderIsListed();
    void pictureShowsADroppedFile();

protected:
    void prepare() override;
    void finish() override;

private:
    [[nodiscard]] QModelIndex find(const QString &name) const;
    void selectAFile() const;
    void choose(const QString &name) const;
    void press(const QString &button) const;
    [[nodiscard]] bool drag(const QString &name, const QPoint &place) const;
    [[nodiscard]] QString emissions() const;

    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<GalleryWindow> window;
    DragDropPage *page = nullptr;
    FolderModel *folders = nullptr;
    TreeViewDragAndDrop *ordered = nullptr;
    TreeViewDragAndDrop *sorted = nullptr;
    LineEditDrapAndDrop *field = nullptr;
};

void TestDragDropPage::prepare()
{
    GallerySettings settings;
    settings.page = "dragdrop";
    languages = std::make_unique<GalleryLanguages>(QString());
    window = std::make_unique<GalleryWindow>(*languages, settings);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    page = qobject_cast<DragDropPage *>(window->currentPage());
    QVERIFY(page);
    folders = page->findChild<FolderModel *>();
    ordered = page->findChild<TreeViewDragAndDrop *>("ordered");
    sorted = page->findChild<TreeViewDragAndDrop *>("sorted");
    field = page->findChild<LineEditDrapAndDrop *>();
    QVERIFY(folders && ordered && sorted && field);
    QTRY_VERIFY(sorted->isExpanded(sorted->toProxyIndex(find("Papers"))));
}

void TestDragDropPage::finish()
{
    window.reset();
    languages.reset();
    QLocale::setDefault(QLocale::system());
}

QModelIndex TestDragDropPage::find(const QString &name) const
{
    return folders
        ->match(folders->index(0, 0), Qt::DisplayRole, name, 1,
                Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

/// In place of the files beside the program, of which a test program has none.
void TestDragDropPage::selectAFile() const
{
    auto *files = page->findChild<FilesToDrag *>();
    files->clear();
    auto *item = new QListWidgetItem("screen.icc", files);
    item->setData(Qt::UserRole, QUrl("file:///tmp/screen.icc"));
    files->setCurrentItem(item);
}

void TestDragDropPage::choose(const QString &name) const
{
    ordered->setCurrentIndex(find(name));
}

void TestDragDropPage::press(const QString &button) const
{
    QTest::mouseClick(buttonOf(*page, button), Qt::LeftButton);
}

/// Whether the folder may be dropped at the place in the tree in the user's order.
bool TestDragDropPage::drag(const QString &name, const QPoint &place) const
{
    const std::unique_ptr<QMimeData> data(folders->mimeData({find(name)}));
    QDragEnterEvent enter(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(ordered->viewport(), &enter);
    QDragMoveEvent move(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(ordered->viewport(), &move);
    QDropEvent drop(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    if (move.isAccepted()) {
        QApplication::sendEvent(ordered->viewport(), &drop);
    } else {
        QDragLeaveEvent leave;
        QApplication::sendEvent(ordered->viewport(), &leave);
    }
    return move.isAccepted();
}

QString TestDragDropPage::emissions() const
{
    return page->findChild<EmissionList *>()->findChild<QPlainTextEdit *>()->toPlainText();
}

void TestDragDropPage::pageFitsTheWindow()
{
    QVERIFY(page->width() <= page->parentWidget()->width());
}

void TestDragDropPage::mnemonicsAreNotShared()
{
    QCOMPARE(mnemonicsClashingAt("dragdrop"), QStringList());
}

void TestDragDropPage::everyControlHasANameAndIsReachedByTab()
{
    QCOMPARE(namelessControls(*window), QStringList());
    QCOMPARE(controlsOutOfReach(*window), QStringList());
}

void TestDragDropPage::everyTextFollowsTheLanguage()
{
    choose("Proofs");
    press("Move Up");
    CapitalTranslator capitals;

    QApplication::installTranslator(&capitals);
    QCoreApplication::sendPostedEvents();

    QCOMPARE(smallTexts(*page, {}), QStringList());
    QCOMPARE(page->findChild<QComboBox *>()->currentText(),
             QString("ONTO FOLDERS AND BETWEEN THEM"));
    QApplication::removeTranslator(&capitals);
}

void TestDragDropPage::selectedFilesComeInTheirOrder()
{
    QTemporaryDir folder;
    for (const QString &name : {QString("B.icc"), QString("a.icc"), QString("sub/c.icc")}) {
        QVERIFY(QDir(folder.path()).mkpath("sub"));
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QFile::WriteOnly));
    }
    FilesToDrag files(folder.path());
    QCOMPARE(files.count(), 3);
    QCOMPARE(files.item(2)->text(), QDir::toNativeSeparators("sub/c.icc"));

    files.clearSelection();
    files.item(2)->setSelected(true);
    files.item(0)->setSelected(true);

    QCOMPARE(files.selectedUrls(),
             (QList<QUrl>{QUrl::fromLocalFile(folder.filePath("a.icc")),
                          QUrl::fromLocalFile(folder.filePath("sub/c.icc"))}));
}

void TestDragDropPage::buttonPutsTheSelectedFilesIntoTheField()
{
    selectAFile();
    QVERIFY(isRead(*page, "Nothing dropped yet"));

    press("Put Into Field");

    QCOMPARE(field->text(), QString("/tmp/screen.icc"));
    QVERIFY(isRead(*page, "Dropped: 1"));
    page->findChild<FilesToDrag *>()->clearSelection();
    press("Put Into Field");
    QCOMPARE(field->text(), QString("/tmp/screen.icc"));
}

void TestDragDropPage::droppedFilesAreCounted()
{
    QMimeData data;
    data.setUrls({QUrl("file:///tmp/a.icc"), QUrl("http://example.org/b.icc")});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);

    QApplication::sendEvent(field, &enter);
    QApplication::sendEvent(field, &drop);

    QCOMPARE(field->text(), QString("/tmp/a.icc"));
    QVERIFY(isRead(*page, "Dropped: 2, not on this computer: 1"));
    QVERIFY(emissions().contains("urlFileListHaveBeenDropped(2: file:///tmp/a.icc)"));
}

void TestDragDropPage::emptyAndMissingFoldersListNothing()
{
    const QTemporaryDir folder;
    const FilesToDrag none(folder.path());
    const FilesToDrag missing(folder.filePath("missing"));

    QCOMPARE(none.count(), 0);
    QCOMPARE(missing.count(), 0);
    QCOMPARE(missing.selectedUrls(), QList<QUrl>());
}

void TestDragDropPage::bothTreesOpenAndCloseTogether()
{
    const QModelIndex papers = find("Papers");

    ordered->collapse(papers);
    QVERIFY(!sorted->isExpanded(sorted->toProxyIndex(papers)));
    QVERIFY(!folders->isExpanded(papers));
    sorted->expand(sorted->toProxyIndex(papers));

    QVERIFY(ordered->isExpanded(papers));
    QVERIFY(folders->isExpanded(papers));
    QVERIFY(emissions().contains("ordered: hasBeenCollapsed(Papers)"));
    QVERIFY(emissions().contains("sorted: hasToBeCollasped(Papers)"));
}

void TestDragDropPage::bothTreesChooseTogether()
{
    choose("Laptops");
    QCOMPARE(sorted->currentIndex().data().toString(), QString("Laptops"));

    sorted->setCurrentIndex(sorted->toProxyIndex(find("Proofs")));
    QCOMPARE(ordered->currentIndex(), find("Proofs"));
}

void TestDragDropPage::buttonsMoveTheChosenFolder()
{
    choose("Charts");
    press("Move Up");
    QCOMPARE(find("Charts").row(), 1);
    QVERIFY(isRead(*page, "“Charts” is moved"));
    press("Move Down");
    QCOMPARE(find("Charts").row(), 2);
    press("Move In");
    QCOMPARE(find("Charts").parent(), find("Screens"));
    QCOMPARE(sorted->currentIndex().data().toString(), QString("Charts"));
    press("Move Out");
    QVERIFY(!find("Charts").parent().isValid());
    QCOMPARE(find("Charts").row(), 2);
}

void TestDragDropPage::moveThatCannotBeIsTold()
{
    const QString before = outline(*folders);
    choose("Printing");
    for (const QString &button : {QString("Move Up"), QString("Move In"), QString("Move Out")}) {
        press(button);
        QVERIFY(isRead(*page, "“Printing” cannot move there"));
    }
    choose("Charts");
    press("Move Down");

    QVERIFY(isRead(*page, "“Charts” cannot move there"));
    QCOMPARE(outline(*folders), before);
}

void TestDragDropPage::newFoldersHaveNamesOfTheirOwn()
{
    for (int i = 0; i < 3; ++i) {
        choose("Proofs");
        press("New Folder");
    }

    QVERIFY(outline(*folders).contains("Proofs(New folder|New folder 2|New folder 3)"));
    QCOMPARE(ordered->currentIndex(), find("New folder 3"));
}

void TestDragDropPage::removedFolderIsGoneFromBoth()
{
    choose("Papers");
    press("Remove");

    QVERIFY(!find("Papers").isValid());
    QVERIFY(!find("Uncoated").isValid());
    QVERIFY(!outline(*sorted->model()).contains("Papers"));
    while (folders->rowCount() > 0) {
        press("Remove");
    }
    press("Remove");
    press("Move Up");
    press("New Folder");
    QCOMPARE(outline(*folders), QString("New folder"));
}

void TestDragDropPage::ruleDecidesOnDrops_data()
{
    QTest::addColumn<int>("rule");
    QTest::addColumn<bool>("onto");
    QTest::addColumn<bool>("between");

    QTest::newRow("onto and between") << 0 << true << true;
    QTest::newRow("onto") << 1 << true << false;
    QTest::newRow("between") << 2 << false << true;
    QTest::newRow("nothing") << 3 << false << false;
}

void TestDragDropPage::ruleDecidesOnDrops()
{
    QFETCH(const int, rule);
    page->findChild<QComboBox *>()->setCurrentIndex(rule);
    const QRect screens = ordered->visualRect(find("Screens"));

    QTEST(drag("Proofs", screens.center()), "onto");
    // The folders may stand elsewhere by now.
    const QRect charts = ordered->visualRect(find("Charts"));
    QTEST(drag("Uncoated", QPoint(charts.center().x(), charts.top())), "between");
}

void TestDragDropPage::droppedFolderIsListed()
{
    QVERIFY(drag("Proofs", ordered->visualRect(find("Screens")).center()));

    QCOMPARE(find("Proofs").parent(), find("Screens"));
    QVERIFY(emissions().contains("ordered: itemDataDropped("));
    QVERIFY(emissions().contains("application/x-txfolders)"));
}

void TestDragDropPage::pictureShowsADroppedFile()
{
    selectAFile();

    page->fillForPicture();

    QVERIFY(page->isReady());
    QCOMPARE(field->text(), QString("/tmp/screen.icc"));
}

int main(int argc, char **argv)
{
    return runTest<TestDragDropPage>(argc, argv);
}

#include "tst_DragDropPage.moc"
