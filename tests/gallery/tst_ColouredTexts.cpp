#include "DifferenceLegend.h"
#include "GalleryAboutWindow.h"
#include "GalleryAppearance.h"
#include "GallerySplash.h"
#include "PadlockSign.h"
#include "PageListDelegate.h"
#include "PaperArea.h"
#include "PaperPalette.h"
#include "PatchRunsPanel.h"
#include "PictureOverlay.h"
#include "ServiceText.h"
#include "SpectrumPlot.h"
#include "TXDeltaGradientWidget.h"
#include "TXResources.h"
#include "TXSelectionItemWidget.h"
#include "TXVariantViewer.h"
#include "WorkVeil.h"

#include "Contrast.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QAbstractItemDelegate>
#include <QLabel>
#include <QLayout>
#include <QPainter>
#include <QPushButton>
#include <QStandardItemModel>
#include <QStyleOptionViewItem>
#include <QTableView>
#include <QTextBrowser>

/// A picture of a text in a colour that we have chosen, or of a glyph that means something, on the
/// ground on which it stands, and of nothing else. Colours that are laid down are not here: the
/// black of the spinner and the splitter, the blue of the About window's link, the yellow of the
/// difference bar, the white of a selected date; where the gallery gives them a ground of its own,
/// that is. What stands on paper is in tst_PaperTexts.
using Picture = QImage (*)();
Q_DECLARE_METATYPE(Picture)

namespace {

constexpr qreal kRatio = 2;

QImage pictureOf(QWidget &widget)
{
    return PixelProbe(widget, kRatio).image();
}

/// In points of the widget.
QImage partOf(const QImage &picture, const QRect &part)
{
    return picture.copy(QRect(part.topLeft() * kRatio, part.size() * kRatio));
}

QImage groundFor(const QSize &size, QPalette::ColorRole role)
{
    QImage picture(size * kRatio, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(kRatio);
    picture.fill(QApplication::palette().color(role));
    return picture;
}

/// As it is in a window.
QImage pictureOfLabel(QLabel &label)
{
    QWidget window;
    label.setParent(&window);
    label.adjustSize();
    window.resize(label.size());
    const QImage picture = pictureOf(window);
    label.setParent(nullptr);
    return picture;
}

/// A row of the list of pages, without its bar.
QImage pageRow(QStyle::State state)
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), QStringLiteral("HIM"));
    const PageListDelegate delegate;
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 120, 32);
    option.state = QStyle::State_Enabled | state;
    QImage picture = groundFor(option.rect.size(), QPalette::Window);
    QPainter painter(&picture);
    delegate.paint(&painter, option, model.index(0, 0));
    painter.end();
    return partOf(picture, {12, 8, 60, 16});
}

QImage plainPageRow()
{
    return pageRow(QStyle::State_None);
}

QImage currentPageRow()
{
    return pageRow(QStyle::State_Selected);
}

QImage pageRowUnderTheMouse()
{
    return pageRow(QStyle::State_MouseOver);
}

QImage secondaryText()
{
    QLabel label(QStringLiteral("HIM"));
    label.setForegroundRole(QPalette::PlaceholderText);
    return pictureOfLabel(label);
}

QImage linkInAWindow()
{
    QLabel label(QStringLiteral("<a href='x'>HIM</a>"));
    return pictureOfLabel(label);
}

QImage linkInAView()
{
    QTextBrowser browser;
    browser.setFrameShape(QFrame::NoFrame);
    browser.setHtml(QStringLiteral("<a href='x'>HIM</a>"));
    browser.resize(100, 40);
    return pictureOf(browser);
}

QImage linkOfTheAboutWindow()
{
    GalleryAboutWindow window(GalleryAboutWindow::Version::Plain);
    window.show();
    auto *label = window.findChild<QLabel *>(QStringLiteral("companyWebSiteLabel"));
    return partOf(pictureOf(window), {label->mapTo(&window, QPoint()), label->size()});
}

QImage releaseNotes(const QString &notes)
{
    QLabel label;
    label.setStyleSheet(QStringLiteral("background-color: white;"));
    ServiceText::prepareForNotes(label);
    ServiceText::showNotes(notes, label);
    return pictureOfLabel(label);
}

QImage textOfReleaseNotes()
{
    return releaseNotes(QStringLiteral("<b>HIM</b>"));
}

QImage linkOfReleaseNotes()
{
    return releaseNotes(QStringLiteral("<a href=\"https://www.tovra.example\">HIM</a>"));
}

QImage valueOnPaper(const QVariant &value)
{
    PaperArea area;
    area.setFrameShape(QFrame::NoFrame);
    area.viewer()->setValue(value);
    area.resize(300, 160);
    return pictureOf(area);
}

QImage stringOnPaper()
{
    return valueOnPaper(QStringLiteral("HIM"));
}

QImage integerOnPaper()
{
    return valueOnPaper(11111);
}

QImage realOnPaper()
{
    return valueOnPaper(11111.5);
}

QImage wordOnPaper()
{
    return valueOnPaper(true);
}

/// The captions of the difference bar, on the gallery's paper.
QImage captionsOnPaper()
{
    QWidget paper;
    paper.setPalette(paperPalette());
    TXDeltaGradientWidget bar(&paper);
    bar.setMax(2);
    bar.resize(400, bar.sizeHint().height());
    paper.resize(bar.size());
    return partOf(pictureOf(paper), {0, 0, 400, bar.fontMetrics().height()});
}

QImage scaleOfTheSpectrum()
{
    SpectrumPlot plot;
    plot.resize(plot.sizeHint());
    return partOf(pictureOf(plot), {0, 0, 18, plot.height()});
}

QImage scaleOfTheLegend()
{
    DifferenceLegend legend;
    legend.resize(legend.sizeHint());
    const int textHeight = legend.fontMetrics().height();
    return partOf(pictureOf(legend),
                  {0, legend.height() - textHeight + 2, legend.width(), textHeight - 2});
}

QImage captionOverPictures()
{
    QWidget viewer;
    viewer.resize(200, 100);
    const PictureOverlay overlay(&viewer, {QStringLiteral("HIMHIM")}, false);
    QImage picture = groundFor(viewer.size(), QPalette::Mid);
    QPainter painter(&picture);
    overlay(&painter, 0, false, {}, 1);
    painter.end();
    return partOf(picture, {14, 12, 40, 10});
}

/// On the worst of pictures, a white one.
QImage lineOfTheSplash()
{
    GallerySplash splash;
    QPixmap white(300, 100);
    white.fill(Qt::white);
    splash.setPixmap(white);
    splash.open();
    splash.tell(QStringLiteral("HIM"));
    const QImage picture = splash.grab().toImage();
    splash.hide();
    return picture.copy(0, picture.height() - 20, picture.width(), 20);
}

/// The signs of the bar's buttons, which are drawn from a font.
QImage signOf(bool isEnabled)
{
    TXSelectionItemWidget bar;
    bar.resize(600, 40);
    QPushButton *button = bar.saveItemButton();
    button->setEnabled(isEnabled);
    bar.ensurePolished();
    bar.layout()->activate();
    const QPoint middle = button->mapTo(&bar, button->rect().center());
    return partOf(pictureOf(bar), {middle - QPoint(8, 8), QSize(16, 16)});
}

QImage signOfAButton()
{
    return signOf(true);
}

QImage signOfADisabledButton()
{
    return signOf(false);
}

QImage shackleOfThePadlock()
{
    PadlockSign sign;
    sign.resize(sign.sizeHint());
    return partOf(pictureOf(sign), {0, 0, sign.width(), sign.height() * 2 / 5});
}

/// Its left edge, half on the padlock and half beside it.
QImage bodyOfThePadlock()
{
    PadlockSign sign;
    sign.resize(sign.sizeHint());
    return partOf(pictureOf(sign), {0, sign.height() * 6 / 10, 16, sign.height() / 5});
}

QImage keyholeOfThePadlock()
{
    PadlockSign sign;
    sign.resize(sign.sizeHint());
    return partOf(pictureOf(sign), {16, sign.height() / 2, 24, sign.height() * 3 / 10});
}

QImage spinnerOverAList()
{
    QWidget list;
    list.setBackgroundRole(QPalette::Base);
    list.setAutoFillBackground(true);
    list.resize(120, 120);
    WorkVeil veil(&list);
    veil.begin(64);
    return partOf(pictureOf(list), {34, 34, 52, 52});
}

/// A cell of the table in which the gallery shows TXDateTimeDelegate, in a window that is active.
QImage selectedDate()
{
    PatchRunsPanel panel;
    const auto *view = panel.findChild<QTableView *>();
    const QModelIndex index = view->model()->index(0, view->model()->columnCount() - 1);
    QStyleOptionViewItem option;
    option.palette = view->palette();
    option.rect = QRect(0, 0, 220, 36);
    option.state = QStyle::State_Enabled | QStyle::State_Active | QStyle::State_Selected;
    QImage picture = groundFor(option.rect.size(), QPalette::Base);
    QPainter painter(&picture);
    view->itemDelegateForIndex(index)->paint(&painter, option, index);
    return picture;
}

QImage sampleOf(const char *name)
{
    const QImage sign(QCoreApplication::applicationDirPath() + "/../gallery/Resources/Images/"
                      + name);
    QImage picture = groundFor(sign.size() + QSize(40, 40), QPalette::Window);
    QPainter painter(&picture);
    painter.drawImage(QRect({20, 20}, sign.size()), sign);
    return picture;
}

QImage openTriangle()
{
    return sampleOf("triangle_open@2x.png");
}

QImage closedTriangle()
{
    return sampleOf("triangle_closed@2x.png");
}

QImage gripOfASplitter()
{
    return sampleOf("HorizontalSplitter@2x.png");
}

struct Row
{
    const char *name;
    Picture picture;
    qreal least;
    /// In high contrast.
    qreal leastHigh;
};

/// A new text in a colour of its own is one row here.
constexpr Row kRows[] = {
    {"page in the list", plainPageRow, Contrast::kText, Contrast::kHigh},
    {"current page", currentPageRow, Contrast::kText, Contrast::kHigh},
    {"page under the mouse", pageRowUnderTheMouse, Contrast::kText, Contrast::kHigh},
    {"secondary text", secondaryText, Contrast::kText, Contrast::kHigh},
    {"link in a window", linkInAWindow, Contrast::kText, Contrast::kHigh},
    {"link in a view", linkInAView, Contrast::kText, Contrast::kHigh},
    {"link of the About window", linkOfTheAboutWindow, Contrast::kText, Contrast::kHigh},
    {"text of release notes", textOfReleaseNotes, Contrast::kText, Contrast::kHigh},
    {"link of release notes", linkOfReleaseNotes, Contrast::kText, Contrast::kHigh},
    {"string on paper", stringOnPaper, Contrast::kText, Contrast::kText},
    {"integer on paper", integerOnPaper, Contrast::kText, Contrast::kText},
    {"real on paper", realOnPaper, Contrast::kText, Contrast::kText},
    {"word on paper", wordOnPaper, Contrast::kText, Contrast::kText},
    {"captions on paper", captionsOnPaper, Contrast::kText, Contrast::kHigh},
    {"scale of the spectrum", scaleOfTheSpectrum, Contrast::kText, Contrast::kHigh},
    {"scale of the legend", scaleOfTheLegend, Contrast::kText, Contrast::kHigh},
    {"caption over pictures", captionOverPictures, Contrast::kText, Contrast::kHigh},
    {"line of the splash", lineOfTheSplash, Contrast::kText, Contrast::kText},
    {"date that is selected", selectedDate, Contrast::kText, 6.5},
    {"sign of a button", signOfAButton, Contrast::kText, Contrast::kHigh},
    {"sign of a disabled button", signOfADisabledButton, Contrast::kDisabled, Contrast::kText},
    {"shackle", shackleOfThePadlock, Contrast::kGlyph, Contrast::kGlyph},
    {"padlock", bodyOfThePadlock, Contrast::kGlyph, Contrast::kGlyph},
    {"keyhole", keyholeOfThePadlock, Contrast::kGlyph, Contrast::kGlyph},
    {"spinner", spinnerOverAList, Contrast::kGlyph, Contrast::kGlyph},
    {"open triangle", openTriangle, Contrast::kGlyph, Contrast::kGlyph},
    {"closed triangle", closedTriangle, Contrast::kGlyph, Contrast::kGlyph},
    {"grip of a splitter", gripOfASplitter, Contrast::kGlyph, Contrast::kGlyph},
};

constexpr std::pair<const char *, GalleryColours> kPalettes[] = {
    {"light", GalleryColours::Light},
    {"dark", GalleryColours::Dark},
    {"contrast", GalleryColours::Contrast},
};

} // namespace

/// The contrast of what we colour ourselves, measured on what is painted, in each palette.
class TestColouredTexts : public TestBase
{
    Q_OBJECT

private slots:
    void standOutFromTheirGround_data();
    void standOutFromTheirGround();
    void stockPicturesStandOut_data();
    void stockPicturesStandOut();

protected:
    void finish() override { applyGalleryColours(GalleryColours::System); }
};

void TestColouredTexts::standOutFromTheirGround_data()
{
    QTest::addColumn<GalleryColours>("colours");
    QTest::addColumn<Picture>("picture");
    QTest::addColumn<qreal>("least");
    for (const auto &[palette, colours] : kPalettes) {
        for (const Row &row : kRows) {
            const bool isHigh = colours == GalleryColours::Contrast;
            QTest::addRow("%s, %s", palette, row.name)
                << colours << row.picture << (isHigh ? row.leastHigh : row.least);
        }
    }
}

void TestColouredTexts::standOutFromTheirGround()
{
    QFETCH(GalleryColours, colours);
    QFETCH(Picture, picture);
    QFETCH(qreal, least);
    applyGalleryColours(colours);

    const qreal found = Contrast::ofText(picture());

    QVERIFY2(found >= least, qPrintable(QString::number(found)));
}

void TestColouredTexts::stockPicturesStandOut_data()
{
    QTest::addColumn<QPixmap>("picture");
    QTest::newRow("success") << TXDisplayFixBulletStaticImage();
    QTest::newRow("failure") << TXDisplayErrorBulletStaticImage();
    QTest::newRow("warning") << TXDisplayWarningBulletStaticImage();
    QTest::newRow("little information") << TXDisplayLittleInformationBulletStaticImage();
    QTest::newRow("little warning") << TXDisplayLittleWarningBulletStaticImage();
    QTest::newRow("little failure") << TXDisplayLittleErrorBulletStaticImage();
}

/// The coloured shape from whatever is behind it, and the white mark from the shape.
void TestColouredTexts::stockPicturesStandOut()
{
    QFETCH(QPixmap, picture);
    const QColor shape = Contrast::groundOf(picture.toImage());

    QVERIFY(Contrast::between(shape, Qt::white) >= Contrast::kGlyph);
    for (const auto &[name, colours] : kPalettes) {
        applyGalleryColours(colours);
        for (const auto role : {QPalette::Window, QPalette::Base, QPalette::AlternateBase}) {
            const qreal found = Contrast::between(shape, QApplication::palette().color(role));
            QVERIFY2(found >= Contrast::kGlyph, qPrintable(name + QString::number(found)));
        }
    }
}

int main(int argc, char **argv)
{
    return runTest<TestColouredTexts>(argc, argv);
}

#include "tst_ColouredTexts.moc"
