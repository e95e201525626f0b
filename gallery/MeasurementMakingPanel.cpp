#include "MeasurementMakingPanel.h"

#include "MeasurementMaker.h"
#include "MeasurementStatements.h"
#include "WheelGuard.h"

#include "TXDatabaseConfigurationWidget.h"
#include "TXFileDialog.h"
#include "TXProgressBar.h"

#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

#include <algorithm>
#include <array>

namespace {

constexpr int kWholePercent = 100;
constexpr double kMillisecondsPerSecond = 1000;
constexpr std::array<int, 3> kAmounts = {10'000, 100'000, 1'000'000};

/// Where the folder for the file was chosen last, among the application's settings.
const QString kFolderKey = QStringLiteral("Gallery/MeasurementsFolder");

} // namespace

MeasurementMakingPanel::MeasurementMakingPanel(TXDatabaseConfigurationWidget *configuration,
                                               QWidget *parent)
    : GalleryPanel(parent)
    , configuration(configuration)
    , maker(new MeasurementMaker(this))
    , folderLabel(new QLabel(this))
    , folderEdit(new QLineEdit(QDir::toNativeSeparators(QDir::tempPath()), this))
    , browseButton(new QPushButton(this))
    , amountLabel(new QLabel(this))
    , amountBox(new QComboBox(this))
    , makeButton(new QPushButton(this))
    , cancelButton(new QPushButton(this))
    , progressBar(new TXProgressBar(this))
    , endingLabel(new QLabel(this))
    , serverLabel(new QLabel(this))
{
    folderEdit->setReadOnly(true);
    folderLabel->setBuddy(folderEdit);
    for (size_t i = 0; i < kAmounts.size(); ++i) {
        amountBox->addItem(QString());
    }
    amountBox->setCurrentIndex(int(kAmounts.size()) - 1);
    amountLabel->setBuddy(amountBox);
    WheelGuard::protect(amountBox);
    progressBar->setRange(0, kWholePercent);
    progressBar->setValue(0);
    endingLabel->setWordWrap(true);
    endingLabel->setTextFormat(Qt::PlainText);
    serverLabel->setWordWrap(true);
    serverLabel->setForegroundRole(QPalette::PlaceholderText);
    setUpLayout();
    retranslate();
    connect(browseButton, SIGNAL(clicked()), this, SLOT(browse()));
    connect(makeButton, SIGNAL(clicked()), this, SLOT(make()));
    connect(cancelButton, SIGNAL(clicked()), this, SLOT(cancel()));
    connect(maker, SIGNAL(progressed(int)), progressBar, SLOT(setValue(int)));
    connect(maker, SIGNAL(finished()), this, SLOT(endMaking()));
}

MeasurementMakingPanel::~MeasurementMakingPanel()
{
    // Before the file, which its thread may be writing.
    delete maker;
}

void MeasurementMakingPanel::setAmount(int choice)
{
    amountBox->setCurrentIndex(choice);
}

bool MeasurementMakingPanel::isBusy() const
{
    return maker->isRunning();
}

void MeasurementMakingPanel::make()
{
    if (isBusy()) {
        return;
    }
    emit making();
    progressBar->setValue(0);
    if (!findPlace()) {
        showState();
        emit ended(false);
        return;
    }
    const bool hadFocus = makeButton->hasFocus();
    maker->start(currentPlace, batches());
    showState();
    if (hadFocus) {
        cancelButton->setFocus();
    }
}

void MeasurementMakingPanel::cancel()
{
    maker->cancel();
    // The button is of no use any more, but the focus stays in the panel.
    if (cancelButton->hasFocus()) {
        folderEdit->setFocus();
        isFocusLent = true;
    }
    showState();
}

void MeasurementMakingPanel::retranslate()
{
    setTitle(tr("Table of measurements"));
    folderLabel->setText(tr("Fol&der of the internal database:"));
    setButtonText(browseButton, tr("&Browse..."));
    amountLabel->setText(tr("Amo&unt:"));
    for (int i = 0; i < amountBox->count(); ++i) {
        amountBox->setItemText(i, tr("%1 rows").arg(locale().toString(kAmounts[size_t(i)])));
    }
    setButtonText(makeButton, tr("&Make Table"));
    setButtonText(cancelButton, tr("&Cancel"));
    progressBar->setAccessibleName(tr("Progress"));
    serverLabel->setText(tr("On a server the table \"%1\" is dropped, made anew and left there.")
                             .arg(measurementTable()));
    showState();
}

void MeasurementMakingPanel::browse()
{
    const QString folder = TXFileDialog::getExistingDirectory(
        this, tr("Folder of the Internal Database"), folderEdit->text(), QFileDialog::ShowDirsOnly,
        kFolderKey);
    if (!folder.isEmpty()) {
        folderEdit->setText(QDir::toNativeSeparators(folder));
    }
}

void MeasurementMakingPanel::endMaking()
{
    const bool isMade = maker->ending() == MeasurementMaker::Ending::Made;
    const bool hadFocus = cancelButton->hasFocus() || (isFocusLent && folderEdit->hasFocus());
    isFocusLent = false;
    if (!isMade) {
        file.reset();
    }
    showState();
    if (hadFocus) {
        makeButton->setFocus();
    }
    emit ended(isMade);
}

/// By the settings of the moment. False when no file can be made for the internal database.
bool MeasurementMakingPanel::findPlace()
{
    const QHash<QString, QVariant> settings = configuration->settings();
    file.reset();
    fileFailure.clear();
    if (settings.value(QStringLiteral("Driver")) == QStringLiteral("QMYSQL")) {
        currentPlace = DatabasePlace::onServer(settings);
        return true;
    }
    const QDir folder(QDir::fromNativeSeparators(folderEdit->text()));
    file = std::make_unique<QTemporaryFile>(
        folder.filePath(QStringLiteral("TXGallery-XXXXXX.sqlite")));
    if (!file->open()) {
        fileFailure = file->errorString();
        return false;
    }
    file->close();
    currentPlace = DatabasePlace::inFile(file->fileName());
    return true;
}

void MeasurementMakingPanel::showState()
{
    cancelButton->setEnabled(isBusy() && !maker->isCancelling());
    makeButton->setEnabled(!isBusy());
    amountBox->setEnabled(!isBusy());
    browseButton->setEnabled(!isBusy());
    endingLabel->setText(endingText());
}

QString MeasurementMakingPanel::endingText() const
{
    if (isBusy()) {
        return maker->isCancelling() ? tr("Cancelling...") : tr("Under way...");
    }
    if (!fileFailure.isEmpty()) {
        return tr("No table was made: %1").arg(fileFailure);
    }
    const QLocale shown = locale();
    const double seconds = double(maker->milliseconds()) / kMillisecondsPerSecond;
    switch (maker->ending()) {
    case MeasurementMaker::Ending::Made:
        return tr("Made in %1 s.").arg(shown.toString(seconds, 'f', 1));
    case MeasurementMaker::Ending::Cancelled:
        return tr("Cancelled: no table was made.");
    case MeasurementMaker::Ending::Failed:
        return tr("No table was made: %1").arg(maker->error());
    case MeasurementMaker::Ending::None:
        break;
    }
    return {};
}

int MeasurementMakingPanel::batches() const
{
    return kAmounts[size_t(std::max(0, amountBox->currentIndex()))] / kMeasurementBatchRows;
}

void MeasurementMakingPanel::setUpLayout()
{
    auto *folderRow = new QHBoxLayout;
    folderRow->addWidget(folderLabel);
    folderRow->addWidget(folderEdit, 1);
    folderRow->addWidget(browseButton);

    auto *makeRow = new QHBoxLayout;
    makeRow->addWidget(amountLabel);
    makeRow->addWidget(amountBox);
    makeRow->addWidget(makeButton);
    makeRow->addWidget(progressBar, 1);
    makeRow->addWidget(cancelButton);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(folderRow);
    rows->addWidget(serverLabel);
    rows->addLayout(makeRow);
    rows->addWidget(endingLabel);
}
