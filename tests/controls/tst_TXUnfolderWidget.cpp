#include "TXUnfolderWidget.h"

#include "ApplicationPicture.h"
#include "ControlTestHelpers.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QAccessible>
#include <QLabel>
#include <QPointer>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <memory>

namespace {

const QColor kClosed(250, 20, 20);
const QColor kOpen(20, 250, 20);

/// The places of this colour, in device-independent pixels.
QRect areaOf(const QColor &colour, QWidget &widget, qreal ratio)
{
    const PixelProbe probe(widget, ratio);
    QRect area;
    for (int y = 0; y < widget.height(); ++y) {
        for (int x = 0; x < widget.width(); ++x) {
            if (probe.isNear({x, y}, colour)) {
                area |= QRect(x, y, 1, 1);
            }
        }
    }
    return area;
}

} // namespace

class TestTXUnfolderWidget : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { box.reset(); }

private slots:
    void startsUnfolded();
    void styleSheetIsExact();
    void titleAloneIsBold();
    void hasOneMetaMethod();
    void triangleShowsTheState();
    void triangleIsFoundInAnyFolder_data();
    void triangleIsFoundInAnyFolder();
    void missingPicturesDoNoHarm();
    void shownChildrenFlipAtEachToggle();
    void childNobodyAskedIsShownFirst();
    void childShownWithItsBoxFlips();
    void hiddenChildStaysHidden();
    void hiddenChildWithoutTheMarkIsShown();
    void foldedChildCountsAsNeverAsked();
    void invisibleBoxHidesNothing();
    void grandchildrenAreNotAsked();
    void argumentDoesNotCount();
    void flatnessStays();
    void childDeletedByAnotherDoesNoHarm();
    void clickAndSpaceToggle();
    void keyboardFocusIsVisible();
    void assistiveToolsSeeACheckBox();

private:
    QLabel *addLabel()
    {
        auto *label = new QLabel("Rendering intent", box.get());
        box->layout()->addWidget(label);
        return label;
    }

    std::unique_ptr<TXUnfolderWidget> box;
};

void TestTXUnfolderWidget::prepare()
{
    box = std::make_unique<TXUnfolderWidget>(nullptr);
    box->setTitle("Conversion");
    new QVBoxLayout(box.get());
    box->resize(200, 120);
}

void TestTXUnfolderWidget::startsUnfolded()
{
    QVERIFY(box->isFlat());
    QVERIFY(box->isCheckable());
    QVERIFY(box->isChecked());
    QCOMPARE(int(box->font().weight()), 700);
}

void TestTXUnfolderWidget::styleSheetIsExact()
{
    const QString images = QDir::cleanPath(QCoreApplication::applicationDirPath()
                                           + QStringLiteral("/../Resources/Images"));
    QVERIFY(!images.contains(".."));
    QCOMPARE(box->styleSheet(),
             "QGroupBox::indicator {width: 13px;height: 13px;}QGroupBox::indicator:unchecked "
             "{image: url('"
                 + images + "/triangle_closed.png');}QGroupBox::indicator:checked {image: url('"
                 + images + "/triangle_open.png');}");
}

void TestTXUnfolderWidget::titleAloneIsBold()
{
    const QLabel *label = addLabel();
    box->show();
    const QLabel *later = addLabel();
    QCOMPARE(int(box->font().weight()), 700);
    QCOMPARE(int(label->font().weight()), 400);
    QCOMPARE(int(later->font().weight()), 400);
}

void TestTXUnfolderWidget::hasOneMetaMethod()
{
    const QMetaObject &meta = TXUnfolderWidget::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(),
             QByteArray("unfolderStatusChanged(bool)"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
}

void TestTXUnfolderWidget::triangleShowsTheState()
{
    const ApplicationPicture closed("triangle_closed.png", {13, 13}, kClosed);
    const ApplicationPicture open("triangle_open.png", {13, 13}, kOpen);
    QVERIFY(closed.isInstalled() && open.isInstalled());
    for (const QPalette &palette : {QPalette(), darkPalette()}) {
        for (const qreal ratio : {1.0, 2.0}) {
            box->setPalette(palette);
            box->setChecked(true);
            QCOMPARE(areaOf(kOpen, *box, ratio).size(), QSize(13, 13));
            QVERIFY(!areaOf(kClosed, *box, ratio).isValid());
            box->setChecked(false);
            QCOMPARE(areaOf(kClosed, *box, ratio).size(), QSize(13, 13));
            QVERIFY(!areaOf(kOpen, *box, ratio).isValid());
        }
    }
}

void TestTXUnfolderWidget::triangleIsFoundInAnyFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("blanks") << "Colour Tools";
    QTest::newRow("apostrophe") << "Mia's tools";
    QTest::newRow("quotation mark") << "so-called \"tools\"";
    QTest::newRow("placeholders") << "100%1 %2 %%1";
    QTest::newRow("end of a rule") << "a');} QGroupBox {image: url('b";
    QTest::newRow("markup") << "<b>&amp; #1;";
    QTest::newRow("umlaut") << QString::fromUtf8("Farbräume");
#ifndef Q_OS_WIN
    QTest::newRow("backslash") << "a\\b\\\\c\\";
    QTest::newRow("line break") << "two\nlines";
#endif
}

/// This very program, from another folder.
void TestTXUnfolderWidget::triangleIsFoundInAnyFolder()
{
    QFETCH(QString, folder);
    const QTemporaryDir place;
    const QString bin = place.filePath(folder) + "/bin";
    QVERIFY(QDir().mkpath(bin));
    const QString program =
        bin + "/" + QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));

    QProcess process;
    process.start(program, {"triangleShowsTheState", "-nocrashhandler"});
    QVERIFY(process.waitForFinished());

    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
             process.readAllStandardOutput());
    QVERIFY(QFileInfo(place.filePath(folder) + "/Resources/Images").isDir());
}

void TestTXUnfolderWidget::missingPicturesDoNoHarm()
{
    QVERIFY(!QFileInfo::exists(ApplicationPicture::pathOf("triangle_open.png")));
    QVERIFY(box->grab().toImage() != QImage());
    box->setChecked(false);
    QVERIFY(!box->isChecked());
    QCOMPARE(box->grab().size(), box->size());
}

void TestTXUnfolderWidget::shownChildrenFlipAtEachToggle()
{
    QLabel *first = addLabel();
    QLabel *second = addLabel();
    first->show();
    second->show();
    box->show();
    for (int round = 0; round < 3; ++round) {
        box->setChecked(false);
        QVERIFY(first->isHidden() && second->isHidden());
        box->setChecked(true);
        QVERIFY(first->isVisible() && second->isVisible());
        QVERIFY(first->isEnabled());
    }
}

/// A toggle before the box appears finds children that have not been asked anything.
void TestTXUnfolderWidget::childNobodyAskedIsShownFirst()
{
    const QLabel *label = addLabel();
    QVERIFY(!label->testAttribute(Qt::WA_WState_ExplicitShowHide));
    box->setChecked(false);
    QVERIFY(label->testAttribute(Qt::WA_WState_ExplicitShowHide));
    box->show();

    QVERIFY(label->isVisible());
    box->setChecked(true);
    QVERIFY(label->isHidden());
    box->setChecked(false);
    QVERIFY(label->isVisible());
}

void TestTXUnfolderWidget::childShownWithItsBoxFlips()
{
    const QLabel *label = addLabel();
    box->show();
    const QLabel *later = addLabel();
    QTRY_VERIFY(later->isVisible());
    box->setChecked(false);
    QVERIFY(label->isHidden() && later->isHidden());
    box->setChecked(true);
    QVERIFY(label->isVisible() && later->isVisible());
}

void TestTXUnfolderWidget::hiddenChildStaysHidden()
{
    QLabel *hidden = addLabel();
    QLabel *shown = addLabel();
    hidden->hide();
    shown->show();
    box->show();
    for (int round = 0; round < 4; ++round) {
        box->setChecked(!box->isChecked());
        QVERIFY(hidden->isHidden());
        QVERIFY(hidden->testAttribute(Qt::WA_WState_ExplicitShowHide));
        QCOMPARE(shown->isVisible(), box->isChecked());
    }
}

void TestTXUnfolderWidget::hiddenChildWithoutTheMarkIsShown()
{
    QLabel *label = addLabel();
    label->hide();
    label->setAttribute(Qt::WA_WState_ExplicitShowHide, false);
    box->show();
    QVERIFY(!label->isVisible());

    box->setChecked(false);

    QVERIFY(label->isVisible());
}

void TestTXUnfolderWidget::foldedChildCountsAsNeverAsked()
{
    QLabel *label = addLabel();
    label->show();
    box->show();
    box->setChecked(false);
    QVERIFY(!label->testAttribute(Qt::WA_WState_ExplicitShowHide));
    QVERIFY(label->isHidden());

    label->hide(); // the host's own, while folded
    box->setChecked(true);

    QVERIFY(label->isHidden());
}

void TestTXUnfolderWidget::invisibleBoxHidesNothing()
{
    QLabel *label = addLabel();
    label->show();
    box->setChecked(false);
    QVERIFY(!label->isHidden());
    box->show();
    QVERIFY(label->isVisible());
}

void TestTXUnfolderWidget::grandchildrenAreNotAsked()
{
    auto *child = new QWidget(box.get());
    auto *grandchild = new QLabel("Black point", child);
    child->show();
    grandchild->show();
    box->show();

    box->setChecked(false);

    QVERIFY(child->isHidden());
    QVERIFY(!grandchild->isHidden());
    QVERIFY(grandchild->testAttribute(Qt::WA_WState_ExplicitShowHide));
}

void TestTXUnfolderWidget::argumentDoesNotCount()
{
    QLabel *label = addLabel();
    label->show();
    box->show();
    box->unfolderStatusChanged(true);
    QVERIFY(label->isHidden());
    box->unfolderStatusChanged(true);
    QVERIFY(label->isVisible());
    box->unfolderStatusChanged(false);
    QVERIFY(label->isHidden());
    QVERIFY(box->isChecked());
}

void TestTXUnfolderWidget::flatnessStays()
{
    box->show();
    box->setChecked(false);
    QVERIFY(box->isFlat());
    box->setChecked(true);
    QVERIFY(box->isFlat());
    box->setFlat(false);
    box->setChecked(false);
    QVERIFY(!box->isFlat());
}

void TestTXUnfolderWidget::childDeletedByAnotherDoesNoHarm()
{
    /// Deletes another widget as soon as it is hidden.
    class Deleter : public QWidget
    {
    public:
        using QWidget::QWidget;
        QWidget *victim = nullptr;

    protected:
        void hideEvent(QHideEvent *) override { delete std::exchange(victim, nullptr); }
    };
    auto *deleter = new Deleter(box.get());
    const QPointer<QLabel> next = addLabel();
    QLabel *last = addLabel();
    deleter->victim = next;
    deleter->show();
    next->show();
    last->show();
    box->show();

    box->setChecked(false);

    QVERIFY(next.isNull());
    QVERIFY(last->isHidden());
}

void TestTXUnfolderWidget::clickAndSpaceToggle()
{
    QLabel *label = addLabel();
    label->show();
    box->show();
    QVERIFY(QTest::qWaitForWindowActive(box.get()));
    const QSignalSpy toggled(box.get(), SIGNAL(toggled(bool)));
    QVERIFY(box->focusPolicy() & Qt::TabFocus);

    QTest::mouseClick(box.get(), Qt::LeftButton, {}, {8, 8});
    QVERIFY(label->isHidden());
    box->setFocus(Qt::TabFocusReason);
    QTest::keyClick(box.get(), Qt::Key_Space);
    QVERIFY(label->isVisible());
    QTest::keyClick(box.get(), Qt::Key_Space);
    QVERIFY(label->isHidden());

    QCOMPARE(toggled, QList<QVariantList>({{false}, {true}, {false}}));
}

void TestTXUnfolderWidget::keyboardFocusIsVisible()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *other = new QLabel("Other", &window);
    other->setFocusPolicy(Qt::StrongFocus);
    auto *inner = new TXUnfolderWidget(&window);
    inner->setTitle("Conversion");
    layout->addWidget(other);
    layout->addWidget(inner);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    other->setFocus();
    const QImage unfocused = inner->grab().toImage();
    QTest::keyClick(other, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), inner);
    QVERIFY(inner->grab().toImage() != unfocused);
}

void TestTXUnfolderWidget::assistiveToolsSeeACheckBox()
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(box.get());
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::CheckBox);
    QCOMPARE(accessible->text(QAccessible::Name), "Conversion");
    QVERIFY(accessible->state().checked);
    accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(!box->isChecked());
    QVERIFY(!accessible->state().checked);
}

int main(int argc, char **argv)
{
    return runTest<TestTXUnfolderWidget>(argc, argv);
}

#include "tst_TXUnfolderWidget.moc"
