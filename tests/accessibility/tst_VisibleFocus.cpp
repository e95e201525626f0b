#include "Contrast.h"
#include "FormControls.h"
#include "LibraryWidgets.h"
#include "TestBase.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>

namespace {

/// The control as it is seen in its window, with what is around it: the frame of some stands
/// outside of them.
QImage seen(const QWidget &control)
{
    constexpr int kAround = 4;
    QWidget *window = control.window();
    const QRect place(control.mapTo(window, QPoint()), control.size());
    return window->grab(place.adjusted(-kAround, -kAround, kAround, kAround)).toImage();
}

bool isPlainScrollArea(const QWidget &widget)
{
    return widget.metaObject() == &QScrollArea::staticMetaObject;
}

/// A style shows the default button of a dialog like one with the focus; then the mark that the
/// control before has lost tells. A plain scroll area only takes the focus to be scrolled.
bool isLeftToTheStyle(const QWidget &control)
{
    const auto *button = qobject_cast<const QPushButton *>(&control);
    return (button != nullptr && button->isDefault()) || isPlainScrollArea(control);
}

/// Whether the library itself paints the widget: it is no control of Qt's, nor one with more to it.
/// Sliders of the library paint themselves.
bool isOwnPainting(const QWidget &control)
{
    const QMetaObject *type = control.metaObject();
    for (const QMetaObject *styled :
         {&QAbstractButton::staticMetaObject, &QAbstractSpinBox::staticMetaObject,
          &QComboBox::staticMetaObject, &QFrame::staticMetaObject, &QGroupBox::staticMetaObject,
          &QLineEdit::staticMetaObject}) {
        if (type->inherits(styled)) {
            return false;
        }
    }
    return type != &QSlider::staticMetaObject;
}

/// Whether the focus can be told from the picture. What the library paints stands out; how well the
/// rest does is left to the style.
bool showsFocus(QWidget &control, QWidget &elsewhere)
{
    constexpr int kLeastPixels = 20;
    elsewhere.setFocus(Qt::TabFocusReason);
    const QImage before = seen(control);
    control.setFocus(Qt::TabFocusReason);
    const QImage after = seen(control);
    const bool isSeen = isOwnPainting(control)
        ? Contrast::changedPixels(before, after) >= kLeastPixels
        : after != before;
    return control.hasFocus() && isSeen;
}

} // namespace

/// Where the focus is can be seen on every control of the library.
class TestVisibleFocus : public TestBase
{
    Q_OBJECT

private slots:
    void everyControlShowsItsFocus_data();
    void everyControlShowsItsFocus();

protected:
    void prepare() override { QApplication::setCursorFlashTime(0); }
};

void TestVisibleFocus::everyControlShowsItsFocus_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < libraryWidgets().size(); ++row) {
        QTest::newRow(libraryWidgets()[row].name) << row;
    }
}

void TestVisibleFocus::everyControlShowsItsFocus()
{
    QFETCH(int, row);
    QWidget window;
    QWidget elsewhere(&window);
    elsewhere.setFocusPolicy(Qt::StrongFocus);
    std::unique_ptr<QWidget> form = libraryWidgets()[row].make();
    form->setParent(&window, Qt::Widget);
    const QSize size = form->sizeHint().expandedTo(form->minimumSize()).expandedTo({60, 40});
    form->setGeometry(QRect(QPoint(20, 20), size));
    window.resize(size + QSize(40, 40));
    window.setAttribute(Qt::WA_KeyboardFocusChange);
    form->show();
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QStringList found;
    const QList<QWidget *> stops = FormControls::tabStops(*form);
    for (QWidget *stop : stops) {
        window.setAttribute(Qt::WA_KeyboardFocusChange);
        if (!isLeftToTheStyle(*stop) && !showsFocus(*stop, elsewhere)) {
            found.append(FormControls::inWords(*stop));
        }
    }
    QVERIFY2(found.isEmpty(), qPrintable(QLatin1Char('\n') + found.join(QLatin1Char('\n'))));
}

int main(int argc, char **argv)
{
    return runTest<TestVisibleFocus>(argc, argv);
}

#include "tst_VisibleFocus.moc"
