#include "FocusFrame.h"
#include "FocusOutline.h"
#include "GalleryAppearance.h"

#include "Contrast.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyleFactory>
#include <QTabBar>
#include <QTableWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr QSize kSize(120, 60);
/// Of a line around something as small as the handle of a slider.
constexpr int kLeastPixels = 20;

/// As the widgets that paint themselves.
class FramedWidget : public QWidget
{
public:
    FramedWidget() { setFocusPolicy(Qt::StrongFocus); }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        FocusFrame::paint(painter, *this, rect());
    }
};

template<class Widget>
std::unique_ptr<QWidget> make()
{
    return std::make_unique<Widget>();
}

/// With a text, as the focus of some is shown around it.
template<class Button>
std::unique_ptr<QWidget> makeButton()
{
    return std::make_unique<Button>(QStringLiteral("Black point"));
}

/// Read-only, as the cursor in a text is not what is looked for.
template<class Field>
std::unique_ptr<QWidget> makeField()
{
    auto field = std::make_unique<Field>();
    field->setReadOnly(true);
    return field;
}

std::unique_ptr<QWidget> makeFlatButton()
{
    auto button = std::make_unique<QPushButton>(QStringLiteral("Black point"));
    button->setFlat(true);
    return button;
}

std::unique_ptr<QWidget> makeDefaultButton()
{
    auto button = std::make_unique<QPushButton>(QStringLiteral("Black point"));
    button->setDefault(true);
    return button;
}

std::unique_ptr<QWidget> makeToolButton()
{
    auto button = std::make_unique<QToolButton>();
    button->setText(QStringLiteral("Black point"));
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

std::unique_ptr<QWidget> makeBox()
{
    auto box = std::make_unique<QComboBox>();
    box->addItem(QStringLiteral("Black point"));
    return box;
}

std::unique_ptr<QWidget> makeEditableBox()
{
    auto box = std::make_unique<QComboBox>();
    box->setEditable(true);
    box->lineEdit()->setReadOnly(true);
    return box;
}

std::unique_ptr<QWidget> makeSlider()
{
    return std::make_unique<QSlider>(Qt::Horizontal);
}

std::unique_ptr<QWidget> makeTabs()
{
    auto tabs = std::make_unique<QTabBar>();
    tabs->addTab(QStringLiteral("White"));
    tabs->addTab(QStringLiteral("Black"));
    return tabs;
}

std::unique_ptr<QWidget> makeList()
{
    auto list = std::make_unique<QListWidget>();
    list->addItems({QStringLiteral("White"), QStringLiteral("Black")});
    list->setCurrentRow(0);
    return list;
}

std::unique_ptr<QWidget> makeTree()
{
    auto tree = std::make_unique<QTreeWidget>();
    auto *item = new QTreeWidgetItem(tree.get(), {QStringLiteral("White")});
    tree->setCurrentItem(item);
    return tree;
}

std::unique_ptr<QWidget> makeTable()
{
    auto table = std::make_unique<QTableWidget>(1, 2);
    table->setItem(0, 0, new QTableWidgetItem(QStringLiteral("White")));
    table->setCurrentCell(0, 0);
    return table;
}

std::unique_ptr<QWidget> makeGroup()
{
    auto group = std::make_unique<QGroupBox>(QStringLiteral("Black point"));
    group->setCheckable(true);
    return group;
}

std::unique_ptr<QWidget> makeLink()
{
    auto label = std::make_unique<QLabel>(QStringLiteral("<a href=\"x\">Black point</a>"));
    label->setTextInteractionFlags(Qt::TextBrowserInteraction);
    return label;
}

} // namespace

using Maker = std::unique_ptr<QWidget> (*)();
Q_DECLARE_METATYPE(Maker)

namespace {

struct NamedMaker
{
    const char *name;
    Maker maker;
};

constexpr std::array kControls = {
    NamedMaker{"painted widget", make<FramedWidget>},
    NamedMaker{"check box", makeButton<QCheckBox>},
    NamedMaker{"check box without text", make<QCheckBox>},
    NamedMaker{"choice", makeButton<QRadioButton>},
    NamedMaker{"button", makeButton<QPushButton>},
    NamedMaker{"flat button", makeFlatButton},
    NamedMaker{"default button", makeDefaultButton},
    NamedMaker{"tool button", makeToolButton},
    NamedMaker{"combo box", makeBox},
    NamedMaker{"editable combo box", makeEditableBox},
    NamedMaker{"field", makeField<QLineEdit>},
    NamedMaker{"number", makeField<QSpinBox>},
    NamedMaker{"slider", makeSlider},
    NamedMaker{"tabs", makeTabs},
    NamedMaker{"list", makeList},
    NamedMaker{"empty list", make<QListWidget>},
    NamedMaker{"tree", makeTree},
    NamedMaker{"table", makeTable},
    NamedMaker{"text", makeField<QPlainTextEdit>},
    NamedMaker{"group", makeGroup},
    NamedMaker{"link", makeLink},
};

/// A window with something that has the focus, and below it the widget.
class Form : public QWidget
{
public:
    explicit Form(Maker maker)
        : elsewhere(new FramedWidget)
        , widget(maker().release())
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(elsewhere);
        layout->addWidget(widget);
        widget->setFixedSize(kSize);
        elsewhere->setMinimumSize(kSize);
    }

    /// False when it did not become active.
    bool open()
    {
        show();
        activateWindow();
        elsewhere->setFocus();
        return QTest::qWaitForWindowActive(this) && elsewhere->hasFocus();
    }

    /// Moves the focus to the widget; in a text, to its link.
    void tabToWidget() const
    {
        QTest::keyClick(elsewhere, Qt::Key_Tab);
        if (qobject_cast<QLabel *>(widget)) {
            QTest::keyClick(widget, Qt::Key_Tab);
        }
    }

    /// The widget on its ground.
    [[nodiscard]] QImage picture(qreal ratio = 1)
    {
        const QRect place = widget->geometry();
        const QRectF pixels(QPointF(place.topLeft()) * ratio, QSizeF(place.size()) * ratio);
        return PixelProbe(*this, ratio).image().copy(pixels.toAlignedRect());
    }

    QWidget *elsewhere;
    QWidget *widget;
};

} // namespace

/// What tells a keyboard user where the focus is stands out in each palette and style.
class TestFocusMarks : public TestBase
{
    Q_OBJECT

private slots:
    void focusIsSeen_data();
    void focusIsSeen();
    void clickShowsNoMoreThanTheStyle_data();
    void clickShowsNoMoreThanTheStyle();
    void sizesAreTheStylesOwn_data();
    void sizesAreTheStylesOwn();
    void focusIsSeenUnderASheet_data();
    void focusIsSeenUnderASheet();
    void listOfABoxHasNoOutline();

protected:
    void prepare() override;
    void finish() override;

private:
    std::unique_ptr<FocusOutline> outline;
};

void TestFocusMarks::prepare()
{
    // The cursor of a field does not count, whether it is seen at the moment or not.
    QApplication::setCursorFlashTime(0);
    outline = std::make_unique<FocusOutline>(nullptr);
}

void TestFocusMarks::finish()
{
    outline.reset();
    qApp->setStyleSheet(QString());
    applyGalleryStyle(QStringLiteral("Fusion"));
    applyGalleryColours(GalleryColours::System);
}

void TestFocusMarks::focusIsSeen_data()
{
    QTest::addColumn<GalleryColours>("colours");
    QTest::addColumn<QString>("style");
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<qreal>("ratio");
    for (const auto colours : {GalleryColours::System, GalleryColours::Light, GalleryColours::Dark,
                               GalleryColours::Contrast}) {
        for (const char *style : {"Fusion", "Windows"}) {
            for (const auto &[name, maker] : kControls) {
                for (const qreal ratio : {1.0, 1.5, 2.0}) {
                    QTest::addRow("%s, %s, %s at %g", qPrintable(galleryColoursName(colours)),
                                  style, name, ratio)
                        << colours << QString(style) << maker << ratio;
                }
            }
        }
    }
}

/// Compared with the same widget without the focus, pixel by pixel.
void TestFocusMarks::focusIsSeen()
{
    QFETCH(GalleryColours, colours);
    QFETCH(QString, style);
    QFETCH(Maker, maker);
    QFETCH(qreal, ratio);
    QVERIFY(applyGalleryStyle(style));
    applyGalleryColours(colours);
    Form form(maker);
    QVERIFY(form.open());
    const QImage before = form.picture(ratio);

    form.tabToWidget();
    QTRY_VERIFY(form.widget->hasFocus());
    const int seen = Contrast::changedPixels(before, form.picture(ratio));

    QVERIFY2(seen >= kLeastPixels * ratio, qPrintable(QString::number(seen)));
}

void TestFocusMarks::clickShowsNoMoreThanTheStyle_data()
{
    QTest::addColumn<Maker>("maker");
    for (const auto &[name, maker] : kControls) {
        QTest::newRow(name) << maker;
    }
}

void TestFocusMarks::clickShowsNoMoreThanTheStyle()
{
    QFETCH(Maker, maker);
    applyGalleryColours(GalleryColours::Light);
    const auto pictureOfFocused = [maker] {
        Form form(maker);
        const bool isOpen = form.open();
        form.widget->setFocus(Qt::MouseFocusReason);
        return isOpen && form.widget->hasFocus() ? form.picture() : QImage();
    };
    const QImage picture = pictureOfFocused();
    QVERIFY(!picture.isNull());

    QApplication::setStyle(QStringLiteral("Fusion"));

    // Rows are marked after clicks too, by Qt itself.
    const QImage plain = pictureOfFocused();
    const bool isInRow =
        maker == Maker(makeList) || maker == Maker(makeTree) || maker == Maker(makeTable);
    QCOMPARE(picture == plain, !isInRow);
}

void TestFocusMarks::sizesAreTheStylesOwn_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<QString>("style");
    for (const auto &[name, maker] : kControls) {
        QTest::addRow("Fusion, %s", name) << maker << QStringLiteral("Fusion");
        QTest::addRow("Windows, %s", name) << maker << QStringLiteral("Windows");
    }
}

void TestFocusMarks::sizesAreTheStylesOwn()
{
    QFETCH(Maker, maker);
    QFETCH(QString, style);
    QVERIFY(applyGalleryStyle(style));
    const std::unique_ptr<QWidget> widget = maker();
    const QSize marked = widget->sizeHint();

    QApplication::setStyle(style);

    QCOMPARE(maker()->sizeHint(), marked);
}

void TestFocusMarks::focusIsSeenUnderASheet_data()
{
    QTest::addColumn<GalleryColours>("colours");
    QTest::addColumn<Maker>("maker");
    for (const auto colours :
         {GalleryColours::Light, GalleryColours::Dark, GalleryColours::Contrast}) {
        for (const auto &[name, maker] : kControls) {
            QTest::addRow("%s, %s", qPrintable(galleryColoursName(colours)), name)
                << colours << maker;
        }
    }
}

/// One that draws some of the controls itself, and not the others.
void TestFocusMarks::focusIsSeenUnderASheet()
{
    QFETCH(GalleryColours, colours);
    QFETCH(Maker, maker);
    applyGalleryColours(colours);
    qApp->setStyleSheet(QStringLiteral("QPushButton, QCheckBox { background: palette(button);"
                                       " border: 1px solid palette(mid); padding: 4px; }"));
    Form form(maker);
    QVERIFY(form.open());
    const QImage before = form.picture();

    form.tabToWidget();
    QTRY_VERIFY(form.widget->hasFocus());
    const int seen = Contrast::changedPixels(before, form.picture());

    QVERIFY2(seen >= kLeastPixels, qPrintable(QString::number(seen)));
}

/// It has the keyboard whenever it is seen.
void TestFocusMarks::listOfABoxHasNoOutline()
{
    Form form(makeBox);
    QVERIFY(form.open());
    form.tabToWidget();
    auto *box = qobject_cast<QComboBox *>(form.widget);
    const auto frames = [box] {
        return box->view()->findChildren<QWidget *>().size();
    };
    const auto before = frames();

    box->showPopup();
    box->view()->window()->setAttribute(Qt::WA_KeyboardFocusChange);
    QTRY_VERIFY(box->view()->hasFocus());

    QCOMPARE(frames(), before);
}

int main(int argc, char **argv)
{
    return runTest<TestFocusMarks>(argc, argv);
}

#include "tst_FocusMarks.moc"
