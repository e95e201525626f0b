#include "VariantPage.h"

#include "JsonFile.h"
#include "ServiceRequest.h"
#include "SettingsValue.h"
#include "UpdateServicePanel.h"
#include "ValuePanel.h"
#include "ValueSourcePanel.h"
#include "WaitCursor.h"

#include "TXFileDialog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QSettings>
#include <QUrl>
#include <QVBoxLayout>

namespace {

const QString kFolderKey = QStringLiteral("Variant/JsonFolder");
constexpr int kLongestName = 60;

TXStringI18n message(const char *text)
{
    return {"VariantPage", text, nullptr, -1};
}

/// Text that is no words of a language.
TXStringI18n plain(const QString &text)
{
    return TXStringI18n::fromString(text);
}

/// The end of a long name tells most.
QString shownName(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    return name.size() > kLongestName ? u'\u2026' + name.right(kLongestName) : name;
}

JsonReading readPatiently(const QString &path)
{
    const WaitCursor cursor;
    return readJsonFile(path);
}

} // namespace

VariantPage::VariantPage(QWidget *parent)
    : GalleryPage(parent)
    , sourcePanel(new ValueSourcePanel(this))
    , servicePanel(new UpdateServicePanel(this))
    , valuePanel(new ValuePanel(this))
    , request(new ServiceRequest(this))
{
    setUpLayout();
    connect(sourcePanel, SIGNAL(settingsWanted()), this, SLOT(showSettings()));
    connect(sourcePanel, SIGNAL(fileWanted()), this, SLOT(chooseFile()));
    connect(sourcePanel, SIGNAL(answerWanted()), this, SLOT(askService()));
    connect(request, SIGNAL(answered(QVariant)), this, SLOT(showAnswer(QVariant)));
    connect(request, SIGNAL(failed(TXStringI18n, TXStringI18n)), this,
            SLOT(showFailure(TXStringI18n, TXStringI18n)));
}

QString VariantPage::description() const
{
    return tr(
        "A value of any depth as one line of coloured text, which folds open level by level: the "
        "settings of this gallery, a JSON file, or the live answer of an update service.");
}

void VariantPage::fillForPicture()
{
    servicePanel->setRunning(true);
    // Without the service the picture shows the settings, and why there is nothing else.
    if (servicePanel->isRunning()) {
        isFilling = true;
        askService();
    }
}

void VariantPage::showEvent(QShowEvent *event)
{
    GalleryPage::showEvent(event);
    // What the user has asked for meanwhile comes first.
    const bool mayChange = isOfSettings && !request->isWaiting();
    QSettings settings;
    if (mayChange && settingsValue(settings) != valuePanel->value()) {
        showSettings();
    }
}

void VariantPage::showSettings()
{
    QSettings settings;
    const QVariantMap value = settingsValue(settings);
    setValue(value, message(QT_TR_NOOP("Settings of this gallery")));
    isOfSettings = true;
    if (value.isEmpty()) {
        sourcePanel->showNote(message(
            QT_TR_NOOP("Nothing is stored yet: the gallery keeps its settings when it ends.")));
    } else {
        sourcePanel->showNote(plain(QDir::toNativeSeparators(settings.fileName())));
    }
}

void VariantPage::chooseFile()
{
    const QString path = TXFileDialog::getOpenFileName(this, tr("JSON File"), {},
                                                       tr("JSON files (*.json);;All files (*)"),
                                                       nullptr, {}, kFolderKey);
    if (path.isEmpty()) {
        return;
    }
    request->cancel();
    const JsonReading file = readPatiently(path);
    if (file.error.isEmpty()) {
        setValue(file.value, message(QT_TR_NOOP("File \"%1\"")).arg(shownName(path)));
        sourcePanel->showNote(plain(QDir::toNativeSeparators(path)));
    } else {
        sourcePanel->showError(
            message(QT_TR_NOOP("The file \"%1\" is not shown.")).arg(shownName(path)), file.error);
    }
}

void VariantPage::askService()
{
    if (!servicePanel->isRunning()) {
        request->cancel();
        sourcePanel->showError(
            message(QT_TR_NOOP("The update service is off. Its switch turns it on.")));
        return;
    }
    sourcePanel->showNote(message(QT_TR_NOOP("Waiting for the answer...")));
    request->ask(servicePanel->authority());
}

void VariantPage::showAnswer(const QVariant &answer)
{
    setValue(answer, message(QT_TR_NOOP("Answer of the update service")));
    sourcePanel->showNote(plain(request->address().toString()));
    if (isFilling) {
        connect(valuePanel, SIGNAL(shown()), this, SLOT(endFilling()));
        valuePanel->openTwoLevels();
    }
}

void VariantPage::showFailure(const TXStringI18n &reason, const TXStringI18n &detail)
{
    sourcePanel->showError(reason, detail);
    if (isFilling) {
        endFilling();
    }
}

void VariantPage::endFilling()
{
    valuePanel->disconnect(this);
    isFilling = false;
    emit becameReady();
}

void VariantPage::setValue(const QVariant &value, const TXStringI18n &source)
{
    request->cancel();
    isOfSettings = false;
    valuePanel->setValue(value, source);
}

void VariantPage::setUpLayout()
{
    auto *columns = new QHBoxLayout;
    columns->setSpacing(GalleryPanel::kGap);
    columns->addWidget(sourcePanel, 1);
    columns->addWidget(servicePanel, 1);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addLayout(columns);
    rows->addWidget(valuePanel, 1);
}
