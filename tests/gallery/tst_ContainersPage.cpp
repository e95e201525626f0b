#include "ContainersPage.h"
#include "DialogDriver.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "LabPlane.h"
#include "PageChecks.h"
#include "PatchChip.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include "QSingleItemSquareLayout.h"
#include "RotationLabel.h"
#include "TXGroupBoxBolded.h"
#include "TXSplitter.h"
#include "TXUnfolderWidget.h"
#include "TXWidgetListWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPointer>
#include <QScrollArea>
#include <QSpinBox>

#include <memory>

class TestContainersPage : public TestBase
{
    Q_OBJECT

private slots:
    void pageFitsTheWindow();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab();
    void everyTextFollowsTheLanguage();
    void swatchesComeAndGo();
    void swatchesFlowIntoRows();
    void swatchIsInsertedAndRemovedAtItsPosition();
    void emptyFlowTakesASwatchAgain();
    void longestNameDecidesForAllCells();
    void frameIsThatOfTheChoice();
    void planeIsSquareWhateverTheMargins();
    void planeIsTakenOutAndPutBack();
    void takenPlaneGoesWithItsPage();
    void lightnessChangesThePlane();
    void labelIsTurned();
    void splittersTurn();
    void splittersHaveTheirGrips();
    void patchOfTheListIsShown();
    void settingsFold();
    void keyFoldsToo();
    void noteKeptHiddenSurvivesFolding();
    void noteFreedWhileFoldedComesWithTheRest();
    void settingsAreTold();
    void addedResultIsBoldUntilTheWeightsAreUpdated();
    void plainBoxMakesAllBold();

protected:
    void prepare() override;
    void finish() override;

private:
    template<class Widget>
    Widget *only() const
    {
        const auto found = page->findChildren<Widget *>();
        return found.size() == 1 ? found.first() : nullptr;
    }
    /// The control beside the label of this text.
    template<class Control>
    Control *beside(const char *text) const
    {
        const QLabel *label = labelOf(*page, text);
        return label ? qobject_cast<Control *>(label->buddy()) : nullptr;
    }
    TXWidgetListWidget *flow() const { return only<TXWidgetListWidget>(); }
    QString nameAt(int index) const { return flow()->widgetAt(index)->accessibleName(); }
    void click(const char *button) const { DialogDriver::click(buttonOf(*page, button)); }
    RotationLabel *upLabel() const
    {
        return qobject_cast<RotationLabel *>(labelOf(*page, "b*: blue to yellow"));
    }

    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<GalleryWindow> window;
    GalleryPage *page = nullptr;
};

void TestContainersPage::prepare()
{
    GallerySettings settings;
    settings.page = "containers";
    languages = std::make_unique<GalleryLanguages>(QString());
    window = std::make_unique<GalleryWindow>(*languages, settings);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    page = window->currentPage();
    QVERIFY(qobject_cast<ContainersPage *>(page));
}

void TestContainersPage::finish()
{
    window.reset();
    languages.reset();
    QLocale::setDefault(QLocale::system());
}

void TestContainersPage::pageFitsTheWindow()
{
    QVERIFY(page->width() <= page->parentWidget()->width());
}

void TestContainersPage::mnemonicsAreNotShared()
{
    QVERIFY(mnemonicsOn(*page) >= 15);
    QCOMPARE(clashingMnemonics(*window), QStringList());
}

void TestContainersPage::everyControlHasANameAndIsReachedByTab()
{
    QCOMPARE(namelessControls(*window), QStringList());
    QCOMPARE(controlsOutOfReach(*window), QStringList());
}

void TestContainersPage::everyTextFollowsTheLanguage()
{
    CapitalTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();

    QCOMPARE(smallTexts(*page, {}), QStringList());
    QCOMPARE(nameAt(0), "DARK SKIN");
    QVERIFY(isRead(*page, "RELATIVE COLORIMETRIC, BLACK POINT COMPENSATED"));
    QCOMPARE(only<QListWidget>()->item(1)->text(), "LIGHT SKIN");
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(nameAt(0), "Dark skin");
}

void TestContainersPage::swatchesComeAndGo()
{
    auto *count = beside<QSpinBox>("Swatches:");
    QCOMPARE(flow()->count(), 72);
    for (const int wanted : {600, 7, 0, 31}) {
        count->setValue(wanted);
        QCOMPARE(flow()->count(), wanted);
        const auto chips = page->findChildren<PatchChip *>();
        QCOMPARE(chips.size(), wanted);
        for (const PatchChip *chip : chips) {
            QVERIFY(chip->isVisible());
        }
    }
    QVERIFY(beside<QSpinBox>("Position:")->maximum() == 32);
}

void TestContainersPage::swatchesFlowIntoRows()
{
    QTRY_VERIFY(flow()->widgetAt(71)->y() > flow()->widgetAt(0)->y());
    QCOMPARE(flow()->widgetAt(1)->y(), flow()->widgetAt(0)->y());
    QVERIFY(flow()->widgetAt(1)->x() >= flow()->widgetAt(0)->geometry().right());
    for (int i = 0; i < flow()->count(); ++i) {
        QCOMPARE(flow()->widgetAt(i)->size(), QSize(40, 30));
        QVERIFY(flow()->widgetAt(i)->geometry().right() < flow()->width());
    }
    const PixelProbe probe(*flow()->widgetAt(4)); // blue flower
    QVERIFY(probe.isNear({20, 15}, PatchTint::at(4).colour().toScreen()));
}

void TestContainersPage::swatchIsInsertedAndRemovedAtItsPosition()
{
    const QString third = nameAt(2);
    beside<QSpinBox>("Position:")->setValue(3);

    click("Insert");
    QCOMPARE(flow()->count(), 73);
    QCOMPARE(beside<QSpinBox>("Swatches:")->value(), 73);
    QCOMPARE(nameAt(2), PatchTint::at(72).translatedName());
    QCOMPARE(nameAt(3), third);
    QVERIFY(flow()->widgetAt(2)->isVisible());

    const QPointer<QWidget> inserted = flow()->widgetAt(2);
    click("Remove");
    QVERIFY(inserted.isNull());
    QCOMPARE(flow()->count(), 72);
    QCOMPARE(nameAt(2), third);

    beside<QSpinBox>("Position:")->setValue(73);
    QVERIFY(!buttonOf(*page, "Remove")->isEnabled());
    click("Insert");
    QCOMPARE(flow()->count(), 73);
    QVERIFY(buttonOf(*page, "Remove")->isEnabled());
}

void TestContainersPage::emptyFlowTakesASwatchAgain()
{
    click("Clear");
    QCOMPARE(flow()->count(), 0);
    QCOMPARE(page->findChildren<PatchChip *>().size(), 0);
    QVERIFY(isRead(*page, "No swatch"));
    QVERIFY(!buttonOf(*page, "Remove")->isEnabled());
    QVERIFY(!buttonOf(*page, "Clear")->isEnabled());

    click("Insert");
    QCOMPARE(flow()->count(), 1);
    QVERIFY(isRead(*page, "40 × 30 pixels each"));
}

void TestContainersPage::longestNameDecidesForAllCells()
{
    QTest::mouseClick(buttonOf<QCheckBox>(*page, "Names"), Qt::LeftButton, {}, {5, 8});
    int longest = 0;
    for (int i = 0; i < flow()->count(); ++i) {
        longest = std::max(longest, flow()->widgetAt(i)->sizeHint().width());
    }
    QVERIFY(longest > 60);
    QVERIFY(flow()->widgetAt(0)->sizeHint().width() < longest);
    for (int i = 0; i < flow()->count(); ++i) {
        QCOMPARE(flow()->widgetAt(i)->minimumWidth(), longest);
    }
    beside<QSpinBox>("Swatches:")->setValue(73);
    QCOMPARE(flow()->widgetAt(72)->minimumWidth(), longest);
}

void TestContainersPage::frameIsThatOfTheChoice()
{
    const auto *area = flow()->findChild<QScrollArea *>();
    auto *frame = beside<QComboBox>("Frame:");
    frame->setCurrentIndex(frame->findText("None"));
    QCOMPARE(area->frameShape(), QFrame::NoFrame);
    frame->setCurrentIndex(frame->findText("Box"));
    QCOMPARE(area->frameShape(), QFrame::Box);
}

void TestContainersPage::planeIsSquareWhateverTheMargins()
{
    const auto *plane = only<LabPlane>();
    const QWidget *area = plane->parentWidget();
    const int side = plane->width();
    QCOMPARE(plane->size(), QSize(side, side));
    QCOMPARE(side, std::min(area->width(), area->height()));

    beside<QSpinBox>("Margins:")->setValue(25);
    QCOMPARE(plane->size(), QSize(side - 50, side - 50));
    window->resize(window->width() + 120, window->height() + 300);
    QCoreApplication::processEvents();
    const int newSide = std::min(area->width(), area->height()) - 50;
    QCOMPARE(plane->size(), QSize(newSide, newSide));
    QVERIFY((plane->geometry().center() - area->rect().center()).manhattanLength() <= 2);
}

void TestContainersPage::planeIsTakenOutAndPutBack()
{
    auto *plane = only<LabPlane>();
    const QRect place = plane->geometry();
    auto *square = qobject_cast<QSingleItemSquareLayout *>(plane->parentWidget()->layout());
    QVERIFY(square);

    click("Take Out");
    QVERIFY(!square->hasItem());
    QVERIFY(plane->isHidden());
    window->resize(window->width() + 60, window->height() - 40);
    QCoreApplication::processEvents();
    window->resize(window->width() - 60, window->height() + 40);
    QCoreApplication::processEvents();

    click("Put Back");
    QVERIFY(square->hasItem());
    QVERIFY(plane->isVisible());
    QCOMPARE(plane->geometry(), place);
}

void TestContainersPage::takenPlaneGoesWithItsPage()
{
    const QPointer<LabPlane> plane = only<LabPlane>();
    click("Take Out");
    window.reset();
    QVERIFY(plane.isNull());
}

void TestContainersPage::lightnessChangesThePlane()
{
    auto *plane = only<LabPlane>();
    const QImage before = plane->grab().toImage();
    beside<QSpinBox>("Lightness:")->setValue(20);
    QVERIFY(plane->grab().toImage() != before);
    QCOMPARE(plane->accessibleName(), "Colours of lightness 20, with the patches of the chart");
    beside<QSpinBox>("Lightness:")->setValue(60);
    QCOMPARE(plane->grab().toImage(), before);
}

void TestContainersPage::labelIsTurned()
{
    auto *turn = beside<QComboBox>("Vertical axis:");
    QCOMPARE(upLabel()->rotation(), RotationLabel::RotateCounterClockwise);
    QVERIFY(upLabel()->width() < upLabel()->fontMetrics().horizontalAdvance(upLabel()->text()));
    turn->setCurrentIndex(turn->findText("Upright"));
    QCOMPARE(upLabel()->rotation(), RotationLabel::NoRotation);
    QTRY_VERIFY(upLabel()->width()
                >= upLabel()->fontMetrics().horizontalAdvance(upLabel()->text()));
    turn->setCurrentIndex(turn->findText("Clockwise"));
    QCOMPARE(upLabel()->rotation(), RotationLabel::RotateClockwise);
}

void TestContainersPage::splittersTurn()
{
    const auto splitters = page->findChildren<TXSplitter *>();
    QCOMPARE(splitters.size(), 2);
    QVERIFY(splitters[0]->orientation() != splitters[1]->orientation());
    const QList<Qt::Orientation> before = {splitters[0]->orientation(),
                                           splitters[1]->orientation()};
    QTest::mouseClick(buttonOf<QCheckBox>(*page, "Side by side"), Qt::LeftButton, {}, {5, 8});
    QVERIFY(splitters[0]->orientation() == before[1] && splitters[1]->orientation() == before[0]);
}

void TestContainersPage::splittersHaveTheirGrips()
{
    const auto splitters = page->findChildren<TXSplitter *>();
    QCOMPARE(splitters.size(), 2);
    beside<QSpinBox>("Grip width:")->setValue(13);
    for (TXSplitter *splitter : splitters) {
        QCOMPARE(splitter->handleWidth(), 13);
        auto *handle = qobject_cast<TXSplitterHandle *>(splitter->handle(1));
        QVERIFY(handle);
        QCoreApplication::sendPostedEvents();
        const bool isUpright = splitter->orientation() == Qt::Horizontal;
        QTRY_COMPARE(isUpright ? handle->width() : handle->height(), 13);
        QVERIFY(PixelProbe(*handle).isNear(isUpright ? QPoint(6, 5) : QPoint(5, 6), Qt::black));
    }
}

void TestContainersPage::patchOfTheListIsShown()
{
    auto *list = only<QListWidget>();
    list->setCurrentRow(0);
    QTest::keyClick(list, Qt::Key_Down);
    QVERIFY(allTexts(*page).contains("L* 64.66\na* 19.27\nb* 17.50\nOn the screen: #"));
}

void TestContainersPage::settingsFold()
{
    auto *unfolder = only<TXUnfolderWidget>();
    const auto *intent = beside<QComboBox>("Rendering intent:");
    const int before = unfolder->height();
    for (int round = 0; round < 2; ++round) {
        unfolder->setChecked(false);
        QVERIFY(intent->isHidden());
        QTRY_VERIFY(unfolder->sizeHint().height() < before);
        unfolder->setChecked(true);
        QVERIFY(intent->isVisible() && intent->isEnabled());
    }
}

void TestContainersPage::keyFoldsToo()
{
    auto *unfolder = only<TXUnfolderWidget>();
    unfolder->setFocus(Qt::TabFocusReason);
    QTest::keyClick(unfolder, Qt::Key_Space);
    QVERIFY(!unfolder->isChecked());
    QVERIFY(beside<QComboBox>("Rendering intent:")->isHidden());
}

void TestContainersPage::noteKeptHiddenSurvivesFolding()
{
    auto *unfolder = only<TXUnfolderWidget>();
    const auto *note = labelOf(*page, "The black point counts for relative colorimetric alone.");
    auto *keep = buttonOf<QCheckBox>(*page, "Keep the note hidden");
    keep->setChecked(true);
    for (const bool isOpen : {false, true, false, true}) {
        unfolder->setChecked(isOpen);
        QVERIFY(note->isHidden());
    }
    keep->setChecked(false);
    QVERIFY(note->isVisible());
    unfolder->setChecked(false);
    QVERIFY(note->isHidden());
}

void TestContainersPage::noteFreedWhileFoldedComesWithTheRest()
{
    auto *unfolder = only<TXUnfolderWidget>();
    const auto *note = labelOf(*page, "The black point counts for relative colorimetric alone.");
    auto *keep = buttonOf<QCheckBox>(*page, "Keep the note hidden");
    unfolder->setChecked(false);
    keep->setChecked(true);
    keep->setChecked(false);
    QVERIFY(note->isHidden());
    unfolder->setChecked(true);
    QVERIFY(note->isVisible());
}

void TestContainersPage::settingsAreTold()
{
    auto *intent = beside<QComboBox>("Rendering intent:");
    buttonOf<QCheckBox>(*page, "Simulate the paper")->setChecked(true);
    QVERIFY(isRead(*page, "Relative colorimetric, black point compensated, paper simulated"));
    intent->setCurrentIndex(intent->findText("Perceptual"));
    QVERIFY(isRead(*page, "Perceptual, paper simulated"));
}

void TestContainersPage::addedResultIsBoldUntilTheWeightsAreUpdated()
{
    const auto *box = only<TXGroupBoxBolded>();
    QVERIFY(box->font().bold());
    const qsizetype before = box->findChildren<QLabel *>().size();
    click("Add Result");
    const auto labels = box->findChildren<QLabel *>();
    QCOMPARE(labels.size(), before + 1);
    QTRY_VERIFY(labels.last()->isVisible());
    QVERIFY(labels.last()->font().bold());

    click("Update Weights");

    QVERIFY(box->isVisible());
    QVERIFY(!labels.last()->font().bold());
    QVERIFY(labels.first()->font().bold());
    QVERIFY(!labels.at(1)->font().bold());
}

void TestContainersPage::plainBoxMakesAllBold()
{
    for (int round = 0; round < 6; ++round) {
        click("Add Result");
    }
    QVERIFY(!buttonOf(*page, "Add Result")->isEnabled());
    const auto boxes = page->findChildren<QGroupBox *>();
    const auto plain = std::find_if(boxes.begin(), boxes.end(), [](const QGroupBox *box) {
        return box->title() == "Proof, bold font";
    });
    QVERIFY(plain != boxes.end());
    const auto labels = (*plain)->findChildren<QLabel *>();
    QCOMPARE(labels.size(), 9);
    for (const QLabel *label : labels) {
        QVERIFY(label->font().bold());
    }
}

int main(int argc, char **argv)
{
    return runTest<TestContainersPage>(argc, argv);
}

#include "tst_ContainersPage.moc"
