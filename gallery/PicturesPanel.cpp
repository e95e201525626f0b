#include "PicturesPanel.h"

#include "PictureFile.h"
#include "PictureSet.h"

#include "TXFileDialog.h"
#include "TXResources.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <utility>

namespace {

/// Where pictures were opened last, among the application's settings.
const QString kFolderKey = QStringLiteral("Gallery/PicturesFolder");

constexpr int kMessageLines = 3;

/// With the number as its key with Alt. A name may hold "&".
QString boxText(qsizetype index, QString name)
{
    name.replace(QLatin1Char('&'), QLatin1String("&&"));
    return QStringLiteral("&%1 %2").arg(index + 1).arg(name);
}

} // namespace

PicturesPanel::PicturesPanel(QWidget *parent)
    : GalleryPanel(parent)
    , openButton(new QPushButton(this))
    , chartButton(new QPushButton(this))
    , shownLabel(new QLabel(this))
    , signLabel(new QLabel(this))
    , messageLabel(new QLabel(this))
{
    for (int i = 0; i < PictureSet::kLargestCount; ++i) {
        auto *box = new QCheckBox(this);
        shownBoxes.append(box);
        connect(box, SIGNAL(clicked()), this, SLOT(changeShown()));
    }
    signLabel->setPixmap(TXDisplayLittleWarningBulletStaticImage());
    signLabel->hide();
    messageLabel->setWordWrap(true);
    messageLabel->setTextFormat(Qt::PlainText);
    messageLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // A long message takes the room of a short one: nothing moves when it comes.
    messageLabel->setMinimumHeight(kMessageLines * fontMetrics().lineSpacing());
    setUpLayout();
    setNames({}, true);
    retranslate();
    connect(openButton, SIGNAL(clicked()), this, SLOT(browse()));
    connect(chartButton, SIGNAL(clicked()), this, SIGNAL(chartWanted()));
}

void PicturesPanel::setNames(const QStringList &names, bool isChart)
{
    for (int i = 0; i < shownBoxes.size(); ++i) {
        shownBoxes[i]->setVisible(i < names.size());
        shownBoxes[i]->setChecked(i < names.size());
    }
    shownLabel->setVisible(!names.isEmpty());
    hasChart = isChart;
    rename(names);
    keepOneShown();
    showButtons();
}

void PicturesPanel::rename(const QStringList &names)
{
    constexpr int kNamePixels = 110;
    for (int i = 0; i < names.size() && i < shownBoxes.size(); ++i) {
        const QString name = fontMetrics().elidedText(names[i], Qt::ElideMiddle, kNamePixels);
        shownBoxes[i]->setText(boxText(i, name));
        shownBoxes[i]->setToolTip(names[i]);
    }
}

QList<int> PicturesPanel::shown() const
{
    QList<int> numbers;
    for (int i = 0; i < shownBoxes.size(); ++i) {
        if (shownBoxes[i]->isChecked()) {
            numbers.append(i);
        }
    }
    return numbers;
}

void PicturesPanel::setBusy(bool isBusy)
{
    busy = isBusy;
    if (isBusy) {
        lendFocus();
    } else {
        showButtons();
        takeFocusBack();
    }
}

void PicturesPanel::setMessage(const QString &text, bool isWarning)
{
    messageLabel->setText(text);
    signLabel->setVisible(isWarning);
}

void PicturesPanel::browse()
{
    const QStringList paths = TXFileDialog::getOpenFileNames(
        this, tr("Open Pictures"),
        QStandardPaths::writableLocation(QStandardPaths::PicturesLocation),
        PictureFile::dialogFilter(), nullptr, {}, kFolderKey);
    if (!paths.isEmpty()) {
        emit filesChosen(paths);
    }
}

void PicturesPanel::changeShown()
{
    keepOneShown();
    emit shownChanged();
}

void PicturesPanel::retranslate()
{
    setTitle(tr("Pictures"));
    setButtonText(openButton, tr("&Open Pictures..."));
    setButtonText(chartButton, tr("Show &Chart"));
    shownLabel->setText(tr("Shown:"));
}

void PicturesPanel::setUpLayout()
{
    auto *buttonRow = new QHBoxLayout;
    buttonRow->addWidget(openButton);
    buttonRow->addWidget(chartButton);
    buttonRow->addStretch();

    auto *shownRow = new QHBoxLayout;
    shownRow->setSpacing(kGap);
    shownRow->addWidget(shownLabel);
    for (QCheckBox *box : std::as_const(shownBoxes)) {
        shownRow->addWidget(box);
    }
    shownRow->addStretch();

    auto *messageRow = new QHBoxLayout;
    messageRow->addWidget(signLabel, 0, Qt::AlignTop);
    messageRow->addWidget(messageLabel, 1);

    auto *rows = new QVBoxLayout(this);
    setMargins(rows);
    rows->addLayout(buttonRow);
    rows->addLayout(shownRow);
    rows->addLayout(messageRow);
    rows->addStretch();
}

/// The last box that is checked stays so.
void PicturesPanel::keepOneShown()
{
    const bool isOnly = shown().size() == 1;
    for (QCheckBox *box : std::as_const(shownBoxes)) {
        box->setEnabled(!isOnly || !box->isChecked());
    }
}

void PicturesPanel::showButtons()
{
    openButton->setEnabled(!busy);
    // The chart is there now: its button gives the focus to its neighbour.
    if (!busy && hasChart && window()->focusWidget() == chartButton) {
        openButton->setFocus();
    }
    chartButton->setEnabled(!busy && !hasChart);
}

void PicturesPanel::lendFocus()
{
    QWidget *focused = window()->focusWidget();
    focusGiver = focused == openButton || focused == chartButton ? focused : nullptr;
    showButtons();
    focusTaker = window()->focusWidget();
}

void PicturesPanel::takeFocusBack()
{
    if (focusGiver && window()->focusWidget() == focusTaker) {
        focusGiver->setFocus();
    }
    focusGiver.clear();
}
