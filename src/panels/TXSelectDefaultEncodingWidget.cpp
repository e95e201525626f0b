#include "TXSelectDefaultEncodingWidget.h"

#include "OwnTitle.h"
#include "ui_TXSelectDefaultEncodingWidget.h"

#include <QEvent>
#include <QTextCodec>

#include <algorithm>
#include <utility>

namespace {

const QLatin1String kEncodingKey("DefaultMeasurementTextFileEncoding");

/// Names of codecs are ASCII; empty where the locale has no codec.
QString localeCodecName()
{
    const QTextCodec *codec = QTextCodec::codecForLocale();
    return codec ? QString::fromLatin1(codec->name()) : QString();
}

/// Sorted without regard to capitals; names that differ by these alone by their letters as they
/// are, since QTextCodec gives them in no fixed order.
QStringList sortedCodecNames()
{
    // The small letters are made once for each name, not for each comparison.
    QList<std::pair<QString, QString>> names;
    const QList<QByteArray> available = QTextCodec::availableCodecs();
    names.reserve(available.size());
    for (const QByteArray &codec : available) {
        const QString name = QString::fromLatin1(codec);
        names.append({name.toLower(), name});
    }
    std::sort(names.begin(), names.end());
    QStringList sorted;
    for (const auto &[inSmallLetters, name] : qAsConst(names)) {
        sorted.append(name);
    }
    return sorted;
}

} // namespace

TXSelectDefaultEncodingWidget::TXSelectDefaultEncodingWidget(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::TXSelectDefaultEncodingWidget>())
{
    ui->setupUi(this);
    OwnTitle::remember(*this);
    setUpEncodings();
}

TXSelectDefaultEncodingWidget::~TXSelectDefaultEncodingWidget() = default;

void TXSelectDefaultEncodingWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        OwnTitle::retranslate(*ui, *this);
    }
}

void TXSelectDefaultEncodingWidget::load(const QHash<QString, QVariant> &settings)
{
    selectEncoding(settings.value(kEncodingKey, defaultEncoding()));
}

// The signature is that of the hosts.
// NOLINTNEXTLINE(readability-make-member-function-const)
QHash<QString, QVariant> TXSelectDefaultEncodingWidget::save()
{
    return {{kEncodingKey, selectedEncoding()}};
}

void TXSelectDefaultEncodingWidget::selectEncoding(const QVariant &encoding)
{
    // The separator has no data, and would be found for a value without any.
    const int place = encoding.isValid() ? ui->encodingListComboBox->findData(
                          encoding, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive)
                                         : -1;
    ui->encodingListComboBox->setCurrentIndex(std::max(0, place));
}

QString TXSelectDefaultEncodingWidget::selectedEncoding() const
{
    return ui->encodingListComboBox->currentData().toString();
}

QString TXSelectDefaultEncodingWidget::defaultEncoding() const
{
    return ui->encodingListComboBox->itemData(0).toString();
}

void TXSelectDefaultEncodingWidget::setUpEncodings()
{
    QComboBox *list = ui->encodingListComboBox;
    const QString ofLocale = localeCodecName();
    if (!ofLocale.isEmpty()) {
        list->addItem(ofLocale + QStringLiteral(" (Recommended)"), ofLocale);
        list->insertSeparator(list->count());
    }
    const QStringList names = sortedCodecNames();
    for (const QString &name : names) {
        list->addItem(name, name);
    }
    list->setCurrentIndex(0);
}
