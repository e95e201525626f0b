#include "LogoView.h"

#include "CopyableText.h"

#include <QDir>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

namespace {

constexpr QSize kPreviewSize(220, 138);
constexpr int kPartGap = 6;
constexpr int kLines = 3;

/// In the pixels of the screen.
QPixmap small(const QPixmap &picture, qreal ratio)
{
    const QSize room = kPreviewSize * ratio;
    const bool fits = picture.size().boundedTo(room) == picture.size();
    QPixmap result =
        fits ? picture : picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    result.setDevicePixelRatio(ratio);
    return result;
}

} // namespace

LogoView::LogoView(QWidget *parent)
    : QWidget(parent)
    , title(new QLabel(this))
    , preview(new QLabel(this))
    , words(new QLabel(this))
    , path(new QLabel(this))
{
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    title->setFont(bold);
    preview->setFrameShape(QFrame::Box);
    preview->setFrameShadow(QFrame::Plain);
    preview->setForegroundRole(QPalette::Mid);
    preview->setAlignment(Qt::AlignCenter);
    preview->setFixedHeight(kPreviewSize.height() + 2 * preview->frameWidth());
    preview->setMinimumWidth(kPreviewSize.width() + 2 * preview->frameWidth());
    for (QLabel *label : {words, path}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        // A short text takes the room of a long one: nothing moves when it changes.
        label->setMinimumHeight(kLines * fontMetrics().lineSpacing());
    }
    path->setForegroundRole(QPalette::PlaceholderText);
    CopyableText::allow(path);
    setPath({});
    setUpLayout();
}

void LogoView::setTitle(const QString &text)
{
    title->setText(text);
    preview->setAccessibleName(text);
}

void LogoView::setPath(const QString &text)
{
    path->setText(QDir::toNativeSeparators(QDir::cleanPath(text)));
    path->setFocusPolicy(text.isEmpty() ? Qt::ClickFocus : Qt::StrongFocus);
}

void LogoView::showLogo(const QPixmap &picture, const QString &text)
{
    preview->setPixmap(picture.isNull() ? QPixmap() : small(picture, devicePixelRatio()));
    words->setText(text);
}

void LogoView::setUpLayout()
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(kPartGap);
    rows->addWidget(title);
    rows->addWidget(preview);
    rows->addWidget(words);
    rows->addWidget(path);
    rows->addStretch();
}
