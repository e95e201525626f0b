#include "ImagesPage.h"

#include "ChartPatches.h"
#include "ChartPicture.h"
#include "DifferencePicture.h"
#include "GalleryPanel.h"
#include "ImageViewBar.h"
#include "MouseMarker.h"
#include "MouseRepeater.h"
#include "OverviewPanel.h"
#include "PictureOverlay.h"
#include "PictureWork.h"
#include "PicturesPanel.h"
#include "PrintSimulation.h"

#include "TXImageViewer.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QShortcut>
#include <QVBoxLayout>

#include <cmath>

namespace {

/// So that the page needs no scroll bar in the gallery's first size.
constexpr int kViewerHeight = 240;
constexpr double kWholePercent = 100;
/// "Red", whose print differs much, for a picture of the page.
constexpr int kExamplePatch = 14;

QList<QPixmap> pixmapsOf(const PictureSet &set, const QList<int> &numbers)
{
    QList<QPixmap> pixmaps;
    for (const int number : numbers) {
        pixmaps.append(QPixmap::fromImage(set.pictures[number].image));
    }
    return pixmaps;
}

} // namespace

ImagesPage::ImagesPage(QWidget *parent)
    : GalleryPage(parent)
    , work(new PictureWork(this))
    , bar(new ImageViewBar(this))
    , viewer(new TXImageViewer(this))
    , readout(new PixelReadout(this))
    , picturesPanel(new PicturesPanel(this))
    , overviewPanel(new OverviewPanel(this))
{
    setUpViewer();
    setUpLayout();
    connect(bar, SIGNAL(overlayWanted(bool)), this, SLOT(setOverlayShown(bool)));
    connect(bar, SIGNAL(markerWanted(bool)), this, SLOT(setMarkerShown(bool)));
    connect(picturesPanel, SIGNAL(chartWanted()), this, SLOT(showChart()));
    connect(picturesPanel, SIGNAL(filesChosen(QStringList)), this, SLOT(openFiles(QStringList)));
    connect(picturesPanel, SIGNAL(shownChanged()), this, SLOT(showChosen()));
    // What could not be read is told until the user goes on.
    connect(picturesPanel, SIGNAL(shownChanged()), this, SLOT(dropTroubles()));
    connect(bar, SIGNAL(overlayWanted(bool)), this, SLOT(dropTroubles()));
    connect(bar, SIGNAL(markerWanted(bool)), this, SLOT(dropTroubles()));
    connect(bar, SIGNAL(scaleChosen()), this, SLOT(dropTroubles()));
    connect(work, SIGNAL(finished()), this, SLOT(workEnded()));
    showChart();
    retranslate();
}

QString ImagesPage::description() const
{
    return tr("Pictures side by side at one scale and position: a colour chart, the same chart in "
              "a simulated print, and how the two differ. Drag them, and turn the wheel to look "
              "closer.");
}

void ImagesPage::fillForPicture()
{
    isExampleWanted = true;
    if (isReady()) {
        showExample();
    }
}

bool ImagesPage::isReady() const
{
    return !work->isRunning();
}

void ImagesPage::retranslate()
{
    viewer->setAccessibleName(tr("Pictures side by side"));
    picturesPanel->rename(names());
    readout->setNames(names());
    showPixel();
    showOverlay();
    showMessage();
}

void ImagesPage::showChart()
{
    work->makeChart();
    begin();
}

void ImagesPage::openFiles(const QStringList &paths)
{
    wantedFiles = paths.size();
    work->readFiles(paths);
    begin();
}

void ImagesPage::begin()
{
    picturesPanel->setBusy(true);
    showMessage();
}

/// When something could not be read, what was shown stays.
void ImagesPage::workEnded()
{
    picturesPanel->setBusy(false);
    areTroublesTold = !work->troubles().isEmpty();
    if (!areTroublesTold) {
        set = work->result();
        chosenFiles = set.isChart ? 0 : wantedFiles;
        showSet();
    }
    showMessage();
    if (isExampleWanted) {
        showExample();
    }
    emit becameReady();
}

void ImagesPage::showSet()
{
    picturesPanel->setNames(names(), set.isChart);
    readout->setNames(names());
    overviewPanel->setPicture(set.overview, set.isChart);
    showChosen();
    // Other pictures may have another size.
    viewer->setPosition({});
    viewer->scale(TXImageViewer::ScaleFit);
}

void ImagesPage::showExample()
{
    isExampleWanted = false;
    if (set.isChart) {
        lookAt(0, ChartPicture::patchRect(kExamplePatch).center());
    }
}

void ImagesPage::showChosen()
{
    viewer->setPixmaps(pixmapsOf(set, picturesPanel->shown()));
    lookAway();
    showOverlay();
}

void ImagesPage::setOverlayShown(bool isShown)
{
    isOverlayShown = isShown;
    showOverlay();
}

void ImagesPage::setMarkerShown(bool isShown)
{
    viewer->setMouseMarker(isShown ? MouseMarker::make(devicePixelRatioF()) : QPixmap(),
                           MouseMarker::kHotSpot);
}

void ImagesPage::dropTroubles()
{
    if (areTroublesTold) {
        areTroublesTold = false;
        showMessage();
    }
}

/// Each picture by its own size. The viewer's word on what is inside is that of the first picture,
/// without its last row and column.
void ImagesPage::hover(const QPointF &localPos, Qt::MouseButton /*button*/,
                       Qt::MouseButtons /*buttons*/, Qt::KeyboardModifiers /*modifiers*/,
                       bool /*isInside*/, int zoneIndex, QPoint pixmapCoord)
{
    isMiddleLookedAt = false;
    const QList<int> shown = picturesPanel->shown();
    const bool isPicture = zoneIndex >= 0 && zoneIndex < shown.size();
    if (isPicture && isBehindCorner(localPos, zoneIndex)
        && set.pictures[shown[zoneIndex]].image.rect().contains(pixmapCoord)) {
        lookAt(shown[zoneIndex], pixmapCoord);
    } else {
        lookAway();
    }
}

/// For those who have no mouse: the pixel in the middle of the first picture's zone, from now on
/// until the mouse comes.
void ImagesPage::startAtMiddle()
{
    isMiddleLookedAt = true;
    lookAtMiddle();
}

void ImagesPage::lookAtMiddle()
{
    if (!isMiddleLookedAt) {
        return;
    }
    const QList<QPixmap> pictures = viewer->pixmaps();
    if (pictures.isEmpty()) {
        return;
    }
    const QPointF middle = QRectF(pictures.constFirst().rect()).center() - viewer->position();
    const QPoint pixel(int(std::floor(middle.x())), int(std::floor(middle.y())));
    const int picture = picturesPanel->shown().constFirst();
    if (set.pictures[picture].image.rect().contains(pixel)) {
        lookAt(picture, pixel);
    } else {
        lookAway();
    }
}

/// Whatever moves the pictures paints them; the readout waits until they are painted.
bool ImagesPage::eventFilter(QObject *object, QEvent *event)
{
    if (isMiddleLookedAt && object == viewer && event->type() == QEvent::Paint) {
        QMetaObject::invokeMethod(this, "lookAtMiddle", Qt::QueuedConnection);
    }
    return GalleryPage::eventFilter(object, event);
}

/// Whether a place in the viewer is not above or to the left of the zone's picture: there, too, the
/// nearest pixel is told to have the coordinate 0.
bool ImagesPage::isBehindCorner(const QPointF &place, int zone) const
{
    const QList<QPixmap> shown = viewer->pixmaps();
    const double zoneWidth = double(viewer->width()) / double(shown.size());
    const QPointF middle(zoneWidth * (zone + 0.5), viewer->height() / 2.0);
    const QPointF pictureMiddle = QRectF(shown.constFirst().rect()).center();
    const QPointF corner = middle + (viewer->position() - pictureMiddle) * viewer->scale();
    return std::round(place.x()) >= corner.x() && std::round(place.y()) >= corner.y();
}

void ImagesPage::setUpViewer()
{
    bar->setViewer(viewer);
    new MouseRepeater(viewer);
    auto *space = new QShortcut(QKeySequence(Qt::Key_Space), viewer);
    space->setContext(Qt::WidgetShortcut);
    connect(space, SIGNAL(activated()), this, SLOT(startAtMiddle()));
    viewer->installEventFilter(this);
    viewer->setMinimumHeight(kViewerHeight);
    viewer->setBackgroundRole(QPalette::Mid);
    viewer->setAutoFillBackground(true);
    setMarkerShown(true);
    connect(viewer,
            SIGNAL(hover(QPointF, Qt::MouseButton, Qt::MouseButtons, Qt::KeyboardModifiers, bool,
                         int, QPoint)),
            this,
            SLOT(hover(QPointF, Qt::MouseButton, Qt::MouseButtons, Qt::KeyboardModifiers, bool, int,
                       QPoint)));
}

void ImagesPage::setUpLayout()
{
    auto *panels = new QHBoxLayout;
    panels->setSpacing(GalleryPanel::kGap);
    panels->addWidget(picturesPanel, 1);
    panels->addWidget(overviewPanel);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(bar);
    rows->addWidget(viewer, 1);
    rows->addWidget(readout);
    rows->addLayout(panels);
}

void ImagesPage::lookAt(int picture, const QPoint &place)
{
    lookedAt = picture;
    lookedPlace = place;
    showPixel();
}

void ImagesPage::lookAway()
{
    lookAt(-1, {});
}

void ImagesPage::showPixel()
{
    if (lookedAt < 0) {
        readout->clear();
    } else {
        readout->showPixel(pixelAt(lookedAt, lookedPlace));
    }
}

void ImagesPage::showOverlay()
{
    if (!isOverlayShown || set.pictures.isEmpty()) {
        viewer->setOverlay({});
        return;
    }
    QStringList captions;
    const QStringList all = names();
    const QList<int> shown = picturesPanel->shown();
    for (const int number : shown) {
        captions.append(all[number]);
    }
    viewer->setOverlay(PictureOverlay(viewer, captions, set.isChart));
}

void ImagesPage::showMessage()
{
    if (work->isRunning()) {
        picturesPanel->setMessage(tr("Just a moment..."), false);
    } else if (areTroublesTold) {
        picturesPanel->setMessage(troublesText(), true);
    } else {
        picturesPanel->setMessage(setText(), !sizesText().isEmpty());
    }
}

QStringList ImagesPage::names() const
{
    if (set.isChart) {
        return {tr("Chart"), tr("Print"), tr("Difference")};
    }
    QStringList names;
    for (const ComparedPicture &picture : set.pictures) {
        names.append(picture.name);
    }
    return names;
}

/// "Print: Red" on a patch.
QString ImagesPage::placeName(int picture, const QPoint &place) const
{
    const QString name = names().at(picture);
    const int patch = set.isChart ? ChartPicture::patchAt(place) : -1;
    return patch < 0 ? name
                     : tr("%1: %2").arg(name, chartPatches()[size_t(patch)].translatedName());
}

PixelReadout::Pixel ImagesPage::pixelAt(int picture, const QPoint &place) const
{
    PixelReadout::Pixel pixel = {placeName(picture, place), place, {}, {}};
    for (const ComparedPicture &compared : set.pictures) {
        const bool isInside = compared.image.rect().contains(place);
        pixel.colours.append(isInside ? QColor(compared.image.pixel(place)) : QColor());
    }
    if (pixel.colours.size() > 1 && pixel.colours[0].isValid() && pixel.colours[1].isValid()) {
        pixel.delta = DifferencePicture::difference(pixel.colours[0].rgb(), pixel.colours[1].rgb());
    }
    return pixel;
}

QString ImagesPage::setText() const
{
    if (set.isChart) {
        return tr("The print is computed: paper that is not white, ink that is not black, dots "
                  "that grow by %1 percent and a trace of their screen. It shows what these four "
                  "do, and is no proof of what a press would print.")
            .arg(PrintSimulation::kDotGain * kWholePercent);
    }
    QStringList sentences;
    if (chosenFiles > set.pictures.size()) {
        sentences.append(
            tr("The first %1 of %2 files.")
                .arg(locale().toString(set.pictures.size()), locale().toString(chosenFiles)));
    }
    sentences.append(sizesText());
    sentences.removeAll(QString());
    return sentences.join(QLatin1Char(' '));
}

/// Empty when all have the same size.
QString ImagesPage::sizesText() const
{
    QStringList sizes;
    bool differ = false;
    for (const ComparedPicture &picture : set.pictures) {
        differ = differ || picture.image.size() != set.pictures.constFirst().image.size();
        sizes.append(tr("%1 × %2").arg(QLocale().toString(picture.image.width()),
                                       QLocale().toString(picture.image.height())));
    }
    if (!differ) {
        return {};
    }
    return tr("The pictures differ in size: %1 pixels. All are laid out by the first.")
        .arg(sizes.join(tr(", ")));
}

QString ImagesPage::troublesText() const
{
    QStringList sentences;
    for (const PictureFile &file : work->troubles()) {
        sentences.append(file.problemText());
    }
    return sentences.join(QLatin1Char(' ')) + QLatin1Char(' ') + tr("What was shown before stays.");
}
