#include "PatchSplitPanel.h"

#include "ChartPatches.h"
#include "WheelGuard.h"

#include "TXColorSquareWidget.h"
#include "TXSplitter.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QSpinBox>

namespace {

constexpr int kUsualWidth = 9;
constexpr int kMostWidth = 30;
constexpr int kDecimals = 2;
constexpr int kLeastHeight = 240;
constexpr QSize kSwatchPixels(110, 90);
constexpr QSize kIconPixels(22, 16);
constexpr int kListShare = 3;
constexpr int kPatchShare = 2;

/// The grip pictures where the handles leave room for them.
QString styleSheetForGrips()
{
    const QString images = QDir::cleanPath(QCoreApplication::applicationDirPath()
                                           + QLatin1String("/../Resources/Images"));
    return QStringLiteral("QSplitter::handle:horizontal {image: url('%1/VerticalSplitter.png');}"
                          "QSplitter::handle:vertical {image: url('%1/HorizontalSplitter.png');}")
        .arg(QString(images).replace(u'\'', QLatin1String("\\'")));
}

/// The same in a chosen row, where styles tint a picture of their own making.
QIcon iconOf(const QColor &colour)
{
    QPixmap picture(kIconPixels);
    picture.fill(colour);
    QIcon icon(picture);
    icon.addPixmap(picture, QIcon::Selected);
    return icon;
}

Qt::Orientation otherThan(Qt::Orientation orientation)
{
    return orientation == Qt::Horizontal ? Qt::Vertical : Qt::Horizontal;
}

} // namespace

PatchSplitPanel::PatchSplitPanel(QWidget *parent)
    : GalleryPanel(parent)
    , outer(new TXSplitter(Qt::Horizontal, this))
    , inner(new TXSplitter(Qt::Vertical, this))
    , list(new QListWidget(this))
    , swatch(new TXColorSquareWidget(this))
    , numbers(new QLabel(this))
    , besideBox(new QCheckBox(this))
    , widthLabel(new QLabel(this))
    , widthBox(new QSpinBox(this))
{
    list->setIconSize(kIconPixels);
    fillList();
    setUpSplitters();
    setUpLayout();
    retranslate();
    list->setCurrentRow(0);
    showPatch();
    connect(list, SIGNAL(currentRowChanged(int)), this, SLOT(showPatch()));
    connect(besideBox, SIGNAL(toggled(bool)), this, SLOT(changeOrientation()));
    connect(widthBox, SIGNAL(valueChanged(int)), this, SLOT(changeWidth()));
}

void PatchSplitPanel::retranslate()
{
    setTitle(tr("Splitters"));
    list->setAccessibleName(tr("Patches to look at"));
    besideBox->setText(tr("Si&de by side"));
    widthLabel->setText(tr("&Grip width:"));
    widthBox->setSuffix(tr(" px"));
    int row = 0;
    for (const ChartPatch &patch : chartPatches()) {
        list->item(row)->setText(patch.translatedName());
        ++row;
    }
    showPatch();
}

void PatchSplitPanel::showPatch()
{
    const ChartPatch &patch = chartPatches().at(size_t(qMax(0, list->currentRow())));
    const auto text = [this](double value) {
        return locale().toString(value, 'f', kDecimals);
    };
    swatch->setBrush(patch.newer.toScreen());
    swatch->setAccessibleName(patch.translatedName());
    numbers->setText(tr("L* %1\na* %2\nb* %3\nOn the screen: %4")
                         .arg(text(patch.newer.lightness), text(patch.newer.a), text(patch.newer.b),
                              patch.newer.toScreen().name().toUpper()));
}

void PatchSplitPanel::changeOrientation()
{
    outer->setOrientation(besideBox->isChecked() ? Qt::Horizontal : Qt::Vertical);
    inner->setOrientation(otherThan(outer->orientation()));
}

void PatchSplitPanel::changeWidth()
{
    outer->setHandleWidth(widthBox->value());
    inner->setHandleWidth(widthBox->value());
}

void PatchSplitPanel::fillList()
{
    for (const ChartPatch &patch : chartPatches()) {
        auto *item = new QListWidgetItem(list);
        item->setIcon(iconOf(patch.newer.toScreen()));
    }
}

void PatchSplitPanel::setUpSplitters()
{
    swatch->setSizeHint(kSwatchPixels);
    swatch->setAlignment(Qt::AlignCenter);
    swatch->setPen(Qt::NoPen);
    numbers->setAlignment(Qt::AlignCenter);
    inner->addWidget(swatch);
    inner->addWidget(numbers);
    outer->addWidget(list);
    outer->addWidget(inner);
    outer->setStretchFactor(0, kListShare);
    outer->setStretchFactor(1, kPatchShare);
    outer->setMinimumHeight(kLeastHeight);
    outer->setStyleSheet(styleSheetForGrips());
    widthBox->setRange(0, kMostWidth);
    widthBox->setValue(kUsualWidth);
    WheelGuard::protect(widthBox);
    besideBox->setChecked(true);
    changeWidth();
}

void PatchSplitPanel::setUpLayout()
{
    widthLabel->setBuddy(widthBox);
    auto *row = new QHBoxLayout;
    row->addWidget(besideBox);
    row->addSpacing(kGap);
    row->addWidget(widthLabel);
    row->addWidget(widthBox);
    row->addStretch();
    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(outer, 1);
    rows->addLayout(row);
}
