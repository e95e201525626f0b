#include "TXUnfolderWidget.h"

#include "GroupBoxParts.h"
#include "StyleSheetUrls.h"

#include <QCoreApplication>
#include <QDir>

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
