#include "TXUnfolderWidget.h"

#include "GroupBoxParts.h"
#include "StyleSheetUrls.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QMouseEvent>
#include <QPaintEngine>
#include <QStyleOptionGroupBox>
#include <QStylePainter>

namespace {

/// %1 picture of the folded box, %2 of the unfolded one.
constexpr char kStyleSheet[] =
    "QGroupBox::indicator {width: 13px;height: 13px;}QGroupBox::indicator:unchecked {image: "
    "url('%1');}QGroupBox::indicator:checked {image: url('%2');}";

QString pictureUrl(const char *place)
{
    const QString folder = QCoreApplication::applicationDirPath();
    return StyleSheetUrls::inSingleQuotes(QDir::cleanPath(folder + QLatin1String(place)));
}

QString styleSheetForTriangle()
{
    return QString::fromLatin1(kStyleSheet)
        .arg(pictureUrl("/../Resources/Images/triangle_closed.png"),
             pictureUrl("/../Resources/Images/triangle_open.png"));
}

void flip(QWidget *child)
{
    if (!child->testAttribute(Qt::WA_WState_ExplicitShowHide)) {
        child->setVisible(true);
    } else if (child->isVisible()) {
        child->setVisible(false);
        child->setAttribute(Qt::WA_WState_ExplicitShowHide, false);
    }
}

/// Frame, triangle and focus as from left to right, in a mirror, without the title. By way of a
/// picture, as large as the box: a painter that mirrors moves lines by a pixel.
void paintMirrored(QStylePainter &painter, QStyleOptionGroupBox box, QWidget *widget)
{
    const qreal ratio = painter.paintEngine()->paintDevice()->devicePixelRatioF();
    QImage picture((QSizeF(box.rect.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QStylePainter toPicture(&picture, widget);
    box.textColor = Qt::transparent;
    toPicture.drawComplexControl(QStyle::CC_GroupBox, box);
    toPicture.end();
    painter.drawImage(QPoint(), picture.mirrored(true, false));
}

void paintTitle(QStylePainter &painter, const QStyleOptionGroupBox &box, const QGroupBox &widget)
{
    const QStyle &style = *widget.style();
    const QRect room =
        style.subControlRect(QStyle::CC_GroupBox, &box, QStyle::SC_GroupBoxLabel, &widget);
    const bool isUnderlined = style.styleHint(QStyle::SH_UnderlineShortcut, &box, &widget);
    const int mnemonic = Qt::TextShowMnemonic | (isUnderlined ? 0 : Qt::TextHideMnemonic);
    painter.drawItemText(QStyle::visualRect(Qt::RightToLeft, box.rect, room),
                         Qt::AlignCenter | mnemonic, box.palette,
                         box.state.testFlag(QStyle::State_Enabled), box.text, QPalette::WindowText);
}

/// The event at the mirrored place of a widget that is this wide.
QMouseEvent mirrored(const QMouseEvent &event, int width)
{
    const QPointF place(width - 1 - event.position().x(), event.position().y());
    return {event.type(),           place,          event.scenePosition(),
            event.globalPosition(), event.button(), event.buttons(),
            event.modifiers(),      event.source(), event.pointingDevice()};
}

} // namespace

TXUnfolderWidget::TXUnfolderWidget(QWidget *parent)
    : QGroupBox(parent)
{
    setFlat(true);
    setCheckable(true);
    setStyleSheet(styleSheetForTriangle());
    connect(this, SIGNAL(toggled(bool)), this, SLOT(unfolderStatusChanged(bool)));
    GroupBoxParts::setWeight(this, QFont::Bold);
    const auto children = GroupBoxParts::childrenOf(*this);
    for (const auto &child : children) {
        GroupBoxParts::setWeight(child, QFont::Normal);
    }
    setChecked(true);
}

void TXUnfolderWidget::unfolderStatusChanged(bool checked)
{
    const auto children = GroupBoxParts::childrenOf(*this);
    for (const auto &child : children) {
        if (child) {
            flip(child);
        }
    }
    if (isFlatWhenFolded) {
        setFlat(!checked);
    }
}

// Style sheets put the indicator of a group box behind its title from right to left, cut the title,
// and leave the picture as it is.
bool TXUnfolderWidget::isMirrored() const
{
    return isRightToLeft() && styleSheet() == styleSheetForTriangle();
}

void TXUnfolderWidget::initStyleOption(QStyleOptionGroupBox *option) const
{
    QGroupBox::initStyleOption(option);
    if (isMirrored()) {
        option->direction = Qt::LeftToRight;
    }
}

void TXUnfolderWidget::paintEvent(QPaintEvent *event)
{
    if (!isMirrored()) {
        QGroupBox::paintEvent(event);
        return;
    }
    QStyleOptionGroupBox box;
    initStyleOption(&box);
    QStylePainter painter(this);
    paintMirrored(painter, box, this);
    paintTitle(painter, box, *this);
}

void TXUnfolderWidget::mousePressEvent(QMouseEvent *event)
{
    if (!isMirrored()) {
        QGroupBox::mousePressEvent(event);
        return;
    }
    QMouseEvent there = mirrored(*event, width());
    QGroupBox::mousePressEvent(&there);
    event->setAccepted(there.isAccepted());
}

void TXUnfolderWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (!isMirrored()) {
        QGroupBox::mouseMoveEvent(event);
        return;
    }
    QMouseEvent there = mirrored(*event, width());
    QGroupBox::mouseMoveEvent(&there);
    event->setAccepted(there.isAccepted());
}

void TXUnfolderWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (!isMirrored()) {
        QGroupBox::mouseReleaseEvent(event);
        return;
    }
    QMouseEvent there = mirrored(*event, width());
    QGroupBox::mouseReleaseEvent(&there);
    event->setAccepted(there.isAccepted());
}
