#include "TXDisplayErrorMessageBox.h"

#include "TXError.h"

#include <QFontMetrics>
#include <QGridLayout>
#include <QMessageBox>
#include <QSpacerItem>

namespace {

QString titleOf(const TXError &error)
{
    const QString title = error.userInfo.value(QStringLiteral("MessageBoxTitle")).toString();
    return title.isEmpty() ? error.domain : title;
}

QString shortTextOf(const TXError &error)
{
    QString text = error.getLocalizedDescription();
    if (text.isEmpty()) {
        return error.subErrors.isEmpty() ? QString()
                                         : error.subErrors.constFirst().getLocalizedDescription();
    }
    for (const TXError &nested : error.subErrors) {
        text += u'\n' + nested.getLocalizedDescription();
    }
    return text;
}

/// What the whole report says beyond the description.
QString detailsOf(const TXError &error, const QString &description)
{
    // As removing every occurrence in place, which would cost the square of a long report.
    const QStringList rest = error.getCompletLocalizedDescription().split(description);
    return rest.join(QString()).trimmed();
}

QMessageBox::Icon iconOf(ErroMessageBoxType type)
{
    switch (type) {
    case ErroMessageBoxInformation:
        return QMessageBox::Information;
    case ErroMessageBoxQuestion:
        return QMessageBox::Question;
    case ErroMessageBoxWarning:
        return QMessageBox::Warning;
    case ErroMessageBoxCritical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

/// The width at which no line is wrapped, with room for what stands beside and around it.
int widthFor(const QString &description, const QString &details, const QFontMetrics &metrics)
{
    const int descriptionWidth = metrics.horizontalAdvance(description);
    int width = descriptionWidth + descriptionWidth / 4;
    const QStringList lines = details.split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const int lineWidth = metrics.horizontalAdvance(line);
        width = qMax(width, lineWidth + lineWidth / 8);
    }
    return width;
}

/// A message box sizes itself, so that only its layout can make it wider.
void widen(QMessageBox *box, int width)
{
    if (auto *grid = qobject_cast<QGridLayout *>(box->layout())) {
        grid->addItem(new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Fixed),
                      grid->rowCount(), 0, 1, grid->columnCount());
    }
}

} // namespace

void TXDisplayErrorMessageBox(const TXError &error, ErroMessageBoxType type, QWidget *parent)
{
    if (!error.isValid()) {
        return;
    }
    const QString text = shortTextOf(error);
    if (text.isEmpty()) {
        return;
    }
    const QString title = titleOf(error);
    switch (type) {
    case ErroMessageBoxInformation:
        QMessageBox::information(parent, title, text, QMessageBox::Ok);
        break;
    case ErroMessageBoxQuestion:
        QMessageBox::question(parent, title, text, QMessageBox::Yes | QMessageBox::No);
        break;
    case ErroMessageBoxWarning:
        QMessageBox::warning(parent, title, text, QMessageBox::Ok);
        break;
    case ErroMessageBoxCritical:
        QMessageBox::critical(parent, title, text, QMessageBox::Ok);
        break;
    }
}

void TXDisplayCompletErrorMessageBox(const TXError &error, ErroMessageBoxType type,
                                     [[maybe_unused]] QWidget *parent)
{
    const QString description = error.getLocalizedDescription();
    if (!error.isValid() || description.isEmpty()) {
        return;
    }
    const QString details = detailsOf(error, description);
    QMessageBox box;
    box.setIcon(iconOf(type));
    box.ensurePolished();
    box.setText(description);
    box.setDetailedText(details);
    widen(&box, widthFor(description, details, QFontMetrics(box.font())));
    box.exec();
}
