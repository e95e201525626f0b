#include "DriveEditorFormTest.h"
#include "DriveFormHelpers.h"
#include "PixelProbe.h"

#include <QAccessible>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QMetaMethod>

using DriveEditorTest::field;
using DriveEditorTest::kTabOrder;
using DriveFormTest::darkPalette;
using DriveFormTest::iconFile;
using DriveFormTest::inkIn;

namespace {

constexpr int kHeight = 292;

/// The row of the grid in which the widget stands, be it in a layout of its own.
int rowOf(const QGridLayout &grid, QWidget *widget)
{
    for (int index = 0; index < grid.count(); ++index) {
        QLayoutItem *item = grid.itemAt(index);
        const bool isThere =
            item->widget() == widget || (item->layout() && item->layout()->indexOf(widget) >= 0);
        if (isThere) {
            int row = -1;
            int column = -1;
            int rowSpan = 0;
            int columnSpan = 0;
            grid.getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
            return rowSpan == 1 ? row : -1;
        }
    }
    return -1;
}

} // namespace

/// The form of the editor: what is where, in which direction, size and colours.
class TestAutoMountNetworkDriveEditorForm : public DriveEditorFormTest
{
    Q_OBJECT

private slots:
    void windowIsAsDesigned();
    void controlsStandInTheGrid_data();
    void controlsStandInTheGrid();
    void protocolsAreTwo();
    void buttonsAreOkAndCancel();
    void slotsCanBeBoundByName();

    void everyControlHasAName();

    void iconIsSetAtEachShow();
    void missingIconIsEmpty();

    void labelsStandBesideTheirControls_data();
    void labelsStandBesideTheirControls();
    void everythingFitsIntoTheFixedHeight_data();
    void everythingFitsIntoTheFixedHeight();
    void largeTextsAreNotCut_data();
    void largeTextsAreNotCut();
    void dialogOpensWideEnoughForLargeTexts();
    void formIsReadableOnLightAndDark_data();
    void formIsReadableOnLightAndDark();

private:
    /// The place of a control in the window.
    [[nodiscard]] QRect placeOf(const QString &name) const
    {
        const auto *widget = find<QWidget>(name);
        return {widget->mapTo(editor.get(), QPoint()), widget->size()};
    }

    void showActive() const
    {
        editor->show();
        QVERIFY(QTest::qWaitForWindowActive(editor.get()));
    }
};

void TestAutoMountNetworkDriveEditorForm::windowIsAsDesigned()
{
    QCOMPARE(editor->windowTitle(), "Network Drive");
    QCOMPARE(editor->size(), QSize(477, kHeight));
    QCOMPARE(editor->minimumHeight(), kHeight);
    QCOMPARE(editor->maximumHeight(), kHeight);
    QCOMPARE(editor->maximumWidth(), QWIDGETSIZE_MAX);

    showActive();
    QCOMPARE(editor->size(), QSize(477, kHeight));
    editor->resize(700, 500);
    QCOMPARE(editor->size(), QSize(700, kHeight));
}

void TestAutoMountNetworkDriveEditorForm::controlsStandInTheGrid_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("placeholder");
    QTest::addColumn<bool>("hidden");
    const auto add = [](const char *name, int row, const char *className, const char *text = "",
                        const char *placeholder = "", bool hidden = false) {
        QTest::newRow(name) << row << QByteArray(className) << QString(text) << QString(placeholder)
                            << hidden;
    };
    add("labelProtocol", 0, "QLabel", "Protocol", "", true);
    add("comboBoxProtocol", 0, "QComboBox", "", "", true);
    add("labelHost", 1, "QLabel", "Host");
    add("lineEditHost", 1, "QLineEdit", "", "(required)");
    add("chooseButton", 1, "QPushButton", "Browse...");
    add("labelDomain", 2, "QLabel", "Domain");
    add("lineEditDomain", 2, "QLineEdit");
    add("labelUserName", 3, "QLabel", "Username");
    add("lineEditUsername", 3, "QLineEdit", "", "(required)");
    add("labelPassword", 4, "QLabel", "Password");
    add("lineEditPassword", 4, "TXPasswordLineEdit", "", "Password");
    add("labelFolder", 5, "QLabel", "Folder");
    add("lineEditFolder", 5, "QLineEdit", "", "(required)");
    add("labelMountPoint", 6, "QLabel", "Network Drive");
    add("lineEditMountPoint", 6, "QLineEdit", "", "", true);
    add("comboBoxMountPoint", 6, "QComboBox");
}

void TestAutoMountNetworkDriveEditorForm::controlsStandInTheGrid()
{
    QFETCH(int, row);
    QFETCH(QByteArray, className);
    QFETCH(QString, text);
    QFETCH(QString, placeholder);
    QFETCH(bool, hidden);
    editor = std::make_unique<AutoMountNetworkDriveEditor>(AutoMountNetworkDrive());
    showActive();
    auto *widget = find<QWidget>(QTest::currentDataTag());
    QVERIFY(widget);

    QCOMPARE(QByteArray(widget->metaObject()->className()), className);
    QCOMPARE(widget->property("text").toString(), text);
    QCOMPARE(widget->property("placeholderText").toString(), placeholder);
    QCOMPARE(widget->isHidden(), hidden);
    QCOMPARE(widget->isVisible(), !hidden);
    QCOMPARE(rowOf(*find<QGridLayout>(QStringLiteral("gridLayout")), widget), row);
    if (const auto *label = qobject_cast<QLabel *>(widget)) {
        QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    }
    if (const auto *edit = qobject_cast<QLineEdit *>(widget)) {
        const bool isPassword = className == "TXPasswordLineEdit";
        QCOMPARE(edit->echoMode(), isPassword ? QLineEdit::Password : QLineEdit::Normal);
    }
}

void TestAutoMountNetworkDriveEditorForm::protocolsAreTwo()
{
    const auto *box = find<QComboBox>(QStringLiteral("comboBoxProtocol"));
    QCOMPARE(box->count(), 2);
    QCOMPARE(box->itemText(0), "AFP");
    QCOMPARE(box->itemText(1), "SMB");
}

void TestAutoMountNetworkDriveEditorForm::buttonsAreOkAndCancel()
{
    auto *box = find<QDialogButtonBox>(QStringLiteral("buttonBox"));
    QCOMPARE(box->orientation(), Qt::Horizontal);
    QCOMPARE(box->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

    showActive();
    QVERIFY(placeOf(QStringLiteral("buttonBox")).top()
            > placeOf(QStringLiteral("comboBoxMountPoint")).bottom());
    QTest::mouseClick(box->button(QDialogButtonBox::Cancel), Qt::LeftButton);
    QVERIFY(!editor->isVisible());
    QCOMPARE(editor->result(), int(QDialog::Rejected));
    showActive();
    QTest::mouseClick(box->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QVERIFY(!editor->isVisible());
    QCOMPARE(editor->result(), int(QDialog::Accepted));
}

void TestAutoMountNetworkDriveEditorForm::slotsCanBeBoundByName()
{
    const QMetaObject &meta = AutoMountNetworkDriveEditor::staticMetaObject;
    for (const char *slot : {"chooseFolder()", "checkRequiredElement()"}) {
        const int index = meta.indexOfSlot(slot);
        QVERIFY2(index >= 0, slot);
        QCOMPARE(meta.method(index).access(), QMetaMethod::Public);
    }
}

void TestAutoMountNetworkDriveEditorForm::everyControlHasAName()
{
    const QList<std::pair<const char *, const char *>> names = {
        {"lineEditHost", "Host"},         {"chooseButton", "Browse..."},
        {"lineEditDomain", "Domain"},     {"lineEditUsername", "Username"},
        {"lineEditPassword", "Password"}, {"lineEditFolder", "Folder"}};
    for (const auto &[object, name] : names) {
        auto *accessible = QAccessible::queryAccessibleInterface(find<QWidget>(object));
        QVERIFY2(accessible, object);
        QCOMPARE(accessible->text(QAccessible::Name), QString(name));
    }

    // On this platform the name that reading aids hear of a combo box is its current text.
    QCOMPARE(find<QComboBox>("comboBoxMountPoint")->accessibleName(), "Network Drive");
    QCOMPARE(find<QLabel>("labelMountPoint")->buddy(), find<QWidget>("comboBoxMountPoint"));
    QCOMPARE(find<QLabel>("labelProtocol")->buddy(), find<QWidget>("comboBoxProtocol"));
    // No one hears the length of a password that has been set.
    auto *password = QAccessible::queryAccessibleInterface(find<QWidget>("lineEditPassword"));
    QCOMPARE(password->text(QAccessible::Value).size(), 25);
}

void TestAutoMountNetworkDriveEditorForm::iconIsSetAtEachShow()
{
    QVERIFY(QDir().mkpath(QFileInfo(iconFile()).path()));
    QImage picture(16, 16, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(iconFile()));

    const bool isSetBefore = !editor->windowIcon().isNull();
    editor->show();
    const QImage shown = editor->windowIcon().pixmap(16).toImage();
    editor->hide();
    editor->setWindowIcon(QIcon());
    editor->show();
    const QImage shownAgain = editor->windowIcon().pixmap(16).toImage();
    QVERIFY(QFile::remove(iconFile()));

    QVERIFY(!isSetBefore);
    QCOMPARE(shown.pixelColor(8, 8), QColor(Qt::red));
    QCOMPARE(shownAgain.pixelColor(8, 8), QColor(Qt::red));
}

void TestAutoMountNetworkDriveEditorForm::missingIconIsEmpty()
{
    editor->show();

    QVERIFY(editor->windowIcon().pixmap(16).isNull());
}

void TestAutoMountNetworkDriveEditorForm::labelsStandBesideTheirControls_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void TestAutoMountNetworkDriveEditorForm::labelsStandBesideTheirControls()
{
    QFETCH(Qt::LayoutDirection, direction);
    editor->setLayoutDirection(direction);
    showActive();
    const bool isMirrored = direction == Qt::RightToLeft;

    const auto labels = editor->findChildren<QLabel *>();
    QCOMPARE(labels.size(), 7);
    for (QLabel *label : labels) {
        // A label goes by the direction of its own text.
        label->setText(isMirrored ? u"\u05DE\u05D0\u05E8\u05D7"_qs : label->text());
    }
    for (const QLabel *label : labels) {
        if (!label->isVisible()) {
            continue;
        }
        const QRect beside = placeOf(label->buddy()->objectName());
        const QRect place = placeOf(label->objectName());
        QVERIFY2(isMirrored ? beside.right() < place.left() : place.right() < beside.left(),
                 qPrintable(label->objectName()));
        QVERIFY(qAbs(place.center().y() - beside.center().y()) <= 1);
        // The text ends where the control begins.
        const QImage picture = PixelProbe(*editor).image().copy(place);
        const QRect text = inkIn(picture);
        QVERIFY(text.isValid());
        const int gap = isMirrored ? text.left() : picture.width() - 1 - text.right();
        QVERIFY2(gap <= 3, qPrintable(label->objectName()));
    }
}

void TestAutoMountNetworkDriveEditorForm::everythingFitsIntoTheFixedHeight_data()
{
    QTest::addColumn<int>("points");
    QTest::newRow("default") << 9;
    QTest::newRow("large") << 12;
    QTest::newRow("very large") << 15;
}

void TestAutoMountNetworkDriveEditorForm::everythingFitsIntoTheFixedHeight()
{
    QFETCH(int, points);
    QFont font = editor->font();
    font.setPointSize(points);
    editor->setFont(font);
    showActive();

    QVERIFY(editor->layout()->totalMinimumSize().height() <= kHeight);
    int bottom = 0;
    const QStringList names = kTabOrder + QStringList{QStringLiteral("buttonBox")};
    for (const QString &name : names) {
        const QRect place = placeOf(name);
        QVERIFY2(editor->rect().contains(place), qPrintable(name));
        QVERIFY2(place.height() >= find<QWidget>(name)->minimumSizeHint().height(),
                 qPrintable(name));
        QVERIFY2(name == QStringLiteral("chooseButton") || place.top() > bottom, qPrintable(name));
        bottom = place.bottom();
    }
}

void TestAutoMountNetworkDriveEditorForm::largeTextsAreNotCut_data()
{
    everythingFitsIntoTheFixedHeight_data();
    QTest::newRow("huge") << 24;
}

/// Compares each text with the same one in a widget of its own, with all the room that it wants.
void TestAutoMountNetworkDriveEditorForm::largeTextsAreNotCut()
{
    QFETCH(int, points);
    QFont font = editor->font();
    font.setPointSize(points);
    editor->setFont(font);
    for (const char *name : {"lineEditHost", "lineEditDomain", "lineEditUsername"}) {
        field(*editor, name)->setText(QStringLiteral("Hlyjg"));
    }
    showActive();
    find<QDialogButtonBox>(QStringLiteral("buttonBox"))->button(QDialogButtonBox::Ok)->setFocus();
    const QImage form = PixelProbe(*editor).image();

    QLineEdit free(QStringLiteral("Hlyjg"));
    free.setFont(font);
    free.resize(free.sizeHint());
    const QImage ample = PixelProbe(free).image();
    const QImage expected = ample.copy(inkIn(ample));
    QVERIFY(expected.height() > points);
    for (const char *name : {"lineEditHost", "lineEditDomain", "lineEditUsername"}) {
        const QImage shown = form.copy(placeOf(QString::fromLatin1(name)));
        QCOMPARE(shown.copy(inkIn(shown)), expected);
    }

    for (QLabel *label : editor->findChildren<QLabel *>()) {
        if (label->isVisible()) {
            QLabel freeLabel(label->text());
            freeLabel.setFont(font);
            freeLabel.resize(freeLabel.sizeHint());
            const QImage wanted = PixelProbe(freeLabel).image();
            const QImage shown = form.copy(placeOf(label->objectName()));
            QCOMPARE(inkIn(shown).height(), inkIn(wanted).height());
            QVERIFY(qAbs(inkIn(shown).width() - inkIn(wanted).width()) <= 1);
        }
    }
}

void TestAutoMountNetworkDriveEditorForm::dialogOpensWideEnoughForLargeTexts()
{
    QFont font = editor->font();
    font.setPointSize(24);
    editor->setFont(font);
    showActive();

    QVERIFY(editor->width() > 477);
    QCOMPARE(editor->height(), kHeight);
    const auto *host = field(*editor, "lineEditHost");
    QVERIFY(host->width() >= host->sizeHint().width());
    const int wide = editor->width() + 50;
    editor->resize(wide, kHeight);
    editor->hide();
    showActive();
    QCOMPARE(editor->width(), wide);
}

void TestAutoMountNetworkDriveEditorForm::formIsReadableOnLightAndDark_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("light") << false << 1.0;
    QTest::newRow("light, fine screen") << false << 2.0;
    QTest::newRow("dark") << true << 1.0;
    QTest::newRow("dark, fine screen") << true << 2.0;
}

void TestAutoMountNetworkDriveEditorForm::formIsReadableOnLightAndDark()
{
    QFETCH(bool, dark);
    QFETCH(qreal, ratio);
    if (dark) {
        editor->setPalette(darkPalette());
    }
    showActive();
    const PixelProbe probe(*editor, ratio);

    const int background = probe.at(QPoint(3, 3)).lightness();
    QCOMPARE(background < 128, dark);
    // The letters of "Network Drive" stand out from it.
    const QRect label = placeOf(QStringLiteral("labelMountPoint"));
    int farthest = 0;
    for (int x = label.left(); x <= label.right(); ++x) {
        for (int y = label.top(); y <= label.bottom(); ++y) {
            farthest = qMax(farthest, qAbs(probe.at(QPoint(x, y)).lightness() - background));
        }
    }
    QVERIFY(farthest > 120);
}

int main(int argc, char **argv)
{
    return runTest<TestAutoMountNetworkDriveEditorForm>(argc, argv);
}

#include "tst_AutoMountNetworkDriveEditorForm.moc"
