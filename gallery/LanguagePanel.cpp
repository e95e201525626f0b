#include "LanguagePanel.h"

#include "CopyableText.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "LeftToRight.h"
#include "WheelGuard.h"

#include "LocalisationUpdater.h"
#include "TXDisplayErrorMessageBox.h"
#include "TXError.h"
#include "TXResources.h"

#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kPartGap = 8;

/// What LocalisationUpdater::updateLocalisationFile() gives.
enum ImportResult { Copied = 0, Failed = 1, Cancelled = 2 };

QLabel *makeText(QWidget *parent)
{
    auto *text = new QLabel(parent);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return text;
}

} // namespace

LanguagePanel::LanguagePanel(QWidget *parent)
    : GalleryPanel(parent)
    , boxLabel(new QLabel(this))
    , box(new QComboBox(this))
    , importButton(new QPushButton(this))
    , files(makeText(this))
    , result(makeText(this))
    , failurePicture(new QLabel(this))
    , failureText(makeText(this))
{
    boxLabel->setBuddy(box);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    WheelGuard::protect(box);
    files->setForegroundRole(QPalette::PlaceholderText);
    failurePicture->setPixmap(TXDisplayLittleErrorBulletStaticImage());
    CopyableText::allow(failureText);
    setUpLayout();
    retranslate();
    connect(box, SIGNAL(activated(int)), this, SLOT(languageActivated(int)));
    connect(importButton, SIGNAL(clicked()), this, SLOT(importTranslation()));
    if (const GalleryLanguages *languages = GalleryLanguages::instance()) {
        connect(languages, SIGNAL(changed()), this, SLOT(showLanguages()));
    }
    importButton->setEnabled(GalleryLanguages::instance());
    showLanguages();
}

void LanguagePanel::retranslate()
{
    setTitle(tr("Language"));
    boxLabel->setText(tr("&Texts of the gallery:"));
    box->setAccessibleName(tr("Texts of the gallery"));
    setButtonText(importButton, tr("&Import Translation..."));
    showFiles();
    showFailures();
    showResult();
}

void LanguagePanel::languageActivated(int index)
{
    GalleryLanguages *languages = GalleryLanguages::instance();
    const QString code = box->itemData(index).toString();
    if (languages && languages->use(code)) {
        GallerySettings settings = GallerySettings::load();
        settings.language = code;
        settings.save();
    }
}

void LanguagePanel::importTranslation()
{
    if (!GalleryLanguages::instance()) {
        return;
    }
    const QPointer<LanguagePanel> self(this);
    TXError error;
    const int outcome = LocalisationUpdater::updateLocalisationFile(
        GalleryLanguages::instance()->translationsFolder(), &error, this);
    // The gallery may have been closed behind the file dialog.
    if (!self) {
        return;
    }
    importResult = outcome;
    showResult();
    GalleryLanguages *languages = GalleryLanguages::instance();
    if (languages && outcome != Cancelled) {
        languages->lookAgain();
    }
    TXDisplayErrorMessageBox(error, ErroMessageBoxCritical, this);
}

void LanguagePanel::showLanguages()
{
    box->clear();
    const GalleryLanguages *languages = GalleryLanguages::instance();
    const QStringList codes = languages ? languages->codes() : QStringList();
    for (const QString &code : codes) {
        box->addItem(GalleryLanguages::displayName(code), code);
    }
    box->setCurrentIndex(languages ? box->findData(languages->current()) : -1);
    showFiles();
    showFailures();
}

void LanguagePanel::setUpLayout()
{
    auto *choice = new QHBoxLayout;
    choice->setSpacing(kPartGap);
    choice->addWidget(boxLabel);
    choice->addWidget(box);
    choice->addSpacing(kGap);
    choice->addWidget(importButton);
    choice->addSpacing(kGap);
    choice->addWidget(result, 1);

    auto *failure = new QHBoxLayout;
    failure->setSpacing(kPartGap);
    failure->addWidget(failurePicture, 0, Qt::AlignTop);
    failure->addWidget(failureText, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(choice);
    rows->addWidget(files);
    rows->addLayout(failure);
}

void LanguagePanel::showFiles()
{
    const GalleryLanguages *languages = GalleryLanguages::instance();
    if (!languages) {
        files->clear();
        return;
    }
    const QStringList names = languages->files();
    const QString folder = pathInText(languages->translationsFolder());
    files->setText(
        names.isEmpty()
            ? tr("There are no translations in %1").arg(folder)
            : tr("%1 in %2", "files in folder").arg(names.join(QStringLiteral(", ")), folder));
}

void LanguagePanel::showFailures()
{
    QStringList lines;
    if (const GalleryLanguages *languages = GalleryLanguages::instance()) {
        const QList<TXError> errors = languages->errors();
        for (const TXError &error : errors) {
            lines.append(error.getLocalizedDescription());
        }
    }
    failureText->setText(lines.join(u'\n'));
    failureText->setVisible(!lines.isEmpty());
    failurePicture->setVisible(!lines.isEmpty());
}

void LanguagePanel::showResult()
{
    switch (importResult) {
    case Copied:
        result->setText(tr("Result 0: the file was copied."));
        break;
    case Failed:
        result->setText(tr("Result 1: the file was not copied."));
        break;
    case Cancelled:
        result->setText(tr("Result 2: cancelled."));
        break;
    default:
        result->clear();
    }
}
