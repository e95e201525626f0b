#include "ComboBoxPanel.h"
#include "PageChecks.h"
#include "TestBase.h"

#include "TXComboBox.h"
#include "TXComboBoxEditable.h"
#include "TXComboSeparatorDrawDelegate.h"
#include "TXTreeComboBox.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeView>

#include <memory>

class TestComboBoxPanel : public TestBase
{
    Q_OBJECT

private slots:
    void everyBoxStandsBesideTheSameDisabled();
    void tooltipIsReadBesideTheBox();
    void keysPassOverTheSeparator();
    void returnTakesTheName();
    void beginningOfAnotherNameIsNotCompleted();
    void goingAwayTakesTheName();
    void emptyNameIsNotTaken();
    void openedListDoesNotEndTheRenaming();
    void focusLossesAreCounted();
    void ownFolderIsShownFirst();
    void folderOfTheTreeIsChosen();
    void folderOfTheKeysIsReadToo();
    void hoveredFolderIsNotRead();
    void folderThatLooksLikeMarkupIsReadAsItIs();
    void wheelChangesNothing();

protected:
    void prepare() override;
    void finish() override { panel.reset(); }

private:
    void startRenaming(const QString &name);

    std::unique_ptr<ComboBoxPanel> panel;
    TXComboBox *condition = nullptr;
    TXComboBoxEditable *paper = nullptr;
    TXTreeComboBox *folder = nullptr;
};

void TestComboBoxPanel::prepare()
{
    panel = std::make_unique<ComboBoxPanel>();
    panel->show();
    QVERIFY(QTest::qWaitForWindowActive(panel.get()));
    condition = controlOf<TXComboBox>(*panel, "Measured under");
    paper = controlOf<TXComboBoxEditable>(*panel, "Paper");
    folder = controlOf<TXTreeComboBox>(*panel, "Folder");
    QVERIFY(condition && paper && folder);
}

void TestComboBoxPanel::startRenaming(const QString &name)
{
    QTest::mouseClick(buttonOf(*panel, "Rename"), Qt::LeftButton);
    QVERIFY(paper->isEditable());
    QVERIFY(paper->hasFocus());
    if (name.isEmpty()) {
        QTest::keyClick(paper, Qt::Key_Delete);
    } else {
        QTest::keyClicks(paper, name);
    }
}

void TestComboBoxPanel::everyBoxStandsBesideTheSameDisabled()
{
    QStringList enabled;
    QStringList disabled;
    const auto boxes = panel->findChildren<QComboBox *>();
    for (const QComboBox *box : boxes) {
        const QString text = box->metaObject()->className() + (" " + box->currentText());
        (box->isEnabled() ? enabled : disabled).append(text);
    }

    QCOMPARE(enabled.size(), 3);
    QCOMPARE(disabled, enabled);
}

void TestComboBoxPanel::tooltipIsReadBesideTheBox()
{
    QVERIFY(isRead(*panel, "Light of a tungsten lamp, the ultraviolet undefined"));

    condition->setFocus();
    QTest::keyClick(condition, Qt::Key_End);

    QCOMPARE(condition->currentText(), "M3");
    QCOMPARE(condition->toolTip(), "Without ultraviolet, with polarising filters");
    QVERIFY(isRead(*panel, condition->toolTip()));
}

void TestComboBoxPanel::keysPassOverTheSeparator()
{
    QVERIFY(qobject_cast<TXComboSeparatorDrawDelegate *>(condition->itemDelegate()));
    condition->setCurrentIndex(1);

    QTest::keyClick(condition, Qt::Key_Down);

    QCOMPARE(condition->currentText(), "M2");
}

void TestComboBoxPanel::returnTakesTheName()
{
    startRenaming(" Gloss coated ");

    QTest::keyClick(paper, Qt::Key_Return);

    QVERIFY(!paper->isEditable());
    QCOMPARE(paper->count(), 4);
    QCOMPARE(paper->itemText(0), "Gloss coated");
    QCOMPARE(paper->currentText(), "Gloss coated");
}

void TestComboBoxPanel::beginningOfAnotherNameIsNotCompleted()
{
    startRenaming("P");

    QTest::keyClick(paper, Qt::Key_Return);

    QCOMPARE(paper->currentText(), "P");
    QCOMPARE(paper->count(), 4);
}

void TestComboBoxPanel::goingAwayTakesTheName()
{
    startRenaming("Newsprint");

    condition->setFocus();

    QVERIFY(!paper->isEditable());
    QCOMPARE(paper->currentText(), "Newsprint");
    QCOMPARE(paper->count(), 4);
}

void TestComboBoxPanel::emptyNameIsNotTaken()
{
    startRenaming(QString());
    QCOMPARE(paper->currentText(), QString());

    QTest::keyClick(paper, Qt::Key_Return);

    QVERIFY(!paper->isEditable());
    QCOMPARE(paper->currentText(), "PS1");
}

void TestComboBoxPanel::openedListDoesNotEndTheRenaming()
{
    startRenaming("Newsprint");

    paper->showPopup();
    QTRY_VERIFY(paper->view()->isVisible());
    QVERIFY(paper->isEditable());
    paper->hidePopup();
    QTRY_VERIFY(paper->hasFocus());

    QTest::keyClick(paper, Qt::Key_Return);
    QCOMPARE(paper->itemText(0), "Newsprint");
}

void TestComboBoxPanel::focusLossesAreCounted()
{
    QVERIFY(isRead(*panel, "Focus lost: 0"));
    paper->setFocus();
    condition->setFocus();
    QVERIFY(isRead(*panel, "Focus lost: 1"));
    paper->setFocus();
    folder->setFocus();
    QVERIFY(isRead(*panel, "Focus lost: 2"));
}

void TestComboBoxPanel::ownFolderIsShownFirst()
{
    const QString own = QCoreApplication::applicationDirPath();

    QCOMPARE(folder->currentText(), QFileInfo(own).fileName());
    QVERIFY(isRead(*panel, QDir::toNativeSeparators(own)));
}

void TestComboBoxPanel::folderOfTheTreeIsChosen()
{
    const auto *files = qobject_cast<QFileSystemModel *>(folder->model());
    const QString parent = QFileInfo(QCoreApplication::applicationDirPath()).path();

    folder->showPopup();
    QTRY_VERIFY(folder->view()->isVisible());
    QTest::keyClick(folder->treeView(), Qt::Key_Left);
    QTRY_COMPARE(files->filePath(folder->treeView()->currentIndex()), parent);
    QTest::keyClick(folder->treeView(), Qt::Key_Return);

    QTRY_VERIFY(!folder->view()->isVisible());
    QCOMPARE(folder->currentText(), QFileInfo(parent).fileName());
    QVERIFY(isRead(*panel, QDir::toNativeSeparators(parent)));
}

void TestComboBoxPanel::folderOfTheKeysIsReadToo()
{
    const QString own = QCoreApplication::applicationDirPath();
    QTRY_VERIFY(folder->count() > 1);
    const bool isLast = folder->currentIndex() == folder->count() - 1;

    QTest::keyClick(folder, isLast ? Qt::Key_Up : Qt::Key_Down);

    QVERIFY(folder->currentText() != QFileInfo(own).fileName());
    const QString chosen = QFileInfo(own).path() + '/' + folder->currentText();
    QVERIFY(isRead(*panel, QDir::toNativeSeparators(chosen)));
}

void TestComboBoxPanel::hoveredFolderIsNotRead()
{
    folder->showPopup();
    QTRY_VERIFY(folder->view()->isVisible());
    QTest::keyClick(folder->treeView(), Qt::Key_Left);
    QTest::keyClick(folder->treeView(), Qt::Key_Escape);
    QTRY_VERIFY(!folder->view()->isVisible());

    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(panel.get(), &change);

    const QString own = QCoreApplication::applicationDirPath();
    QCOMPARE(folder->currentText(), QFileInfo(own).fileName());
    QVERIFY(isRead(*panel, QDir::toNativeSeparators(own)));
}

void TestComboBoxPanel::folderThatLooksLikeMarkupIsReadAsItIs()
{
    const QTemporaryDir place;
    QVERIFY(QDir(place.path()).mkdir("<b>Bold"));
    const QString path = place.filePath("<b>Bold");
    QVERIFY(Qt::mightBeRichText(path));
    const auto *files = qobject_cast<QFileSystemModel *>(folder->model());

    folder->setCurrentModelIndex(files->index(path));

    const QLabel *label = labelOf(*panel, QDir::toNativeSeparators(path));
    QVERIFY(label);
    QCOMPARE(label->textFormat(), Qt::PlainText);
}

void TestComboBoxPanel::wheelChangesNothing()
{
    const QList<QComboBox *> boxes{condition, paper, folder};
    QTRY_VERIFY(folder->count() > 1);
    for (QComboBox *box : boxes) {
        const QString text = box->currentText();
        for (const int degrees : {-120, 120}) {
            const QPointF place = box->rect().center();
            QWheelEvent turn(place, box->mapToGlobal(place), {}, {0, degrees}, Qt::NoButton,
                             Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(box, &turn);
            QCOMPARE(box->currentText(), text);
        }
    }
}

int main(int argc, char **argv)
{
    return runTest<TestComboBoxPanel>(argc, argv);
}

#include "tst_ComboBoxPanel.moc"
