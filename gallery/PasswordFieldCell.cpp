#include "PasswordFieldCell.h"

#include "TXResources.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <utility>

namespace {

constexpr int kPictureSide = 16;
constexpr int kRowGap = 4;
constexpr int kColumnGap = 8;

/// The success bullet at the size of a line of text.
QPixmap littleFixBullet()
{
    const QPixmap bullet = TXDisplayFixBulletStaticImage();
    const qreal ratio = bullet.devicePixelRatio();
    QPixmap little = bullet.scaled(QSize(kPictureSide, kPictureSide) * ratio, Qt::KeepAspectRatio,
                                   Qt::SmoothTransformation);
    little.setDevicePixelRatio(ratio);
    return little;
}

} // namespace

PasswordFieldCell::PasswordFieldCell(QLineEdit *field, Access access, QWidget *parent)
    : QWidget(parent)
    , edit(field)
    , access(std::move(access))
    , valueCaption(new QLabel(this))
    , value(new QLabel(this))
    , ownCaption(new QLabel(this))
    , own(new QLabel(this))
    , verdict(new QLabel(this))
{
    const QFont fixedFont = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    for (QLabel *reading : {value, own}) {
        // A password may look like markup.
        reading->setTextFormat(Qt::PlainText);
        reading->setFont(fixedFont);
        reading->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    for (QLabel *caption : {valueCaption, ownCaption}) {
        caption->setForegroundRole(QPalette::PlaceholderText);
    }
    value->setObjectName(QStringLiteral("programReads"));
    own->setObjectName(QStringLiteral("fieldHolds"));
    verdict->setFixedSize(kPictureSide, kPictureSide);
    setUpLayout();
    connect(edit, SIGNAL(textChanged(QString)), this, SLOT(showReadings()));
}

void PasswordFieldCell::setByProgram(const QString &newValue)
{
    access.set(newValue);
    // A mask put in the place of a mask changes no text.
    showReadings();
}

void PasswordFieldCell::retranslate(const QString &accessibleName)
{
    edit->setAccessibleName(accessibleName);
    valueCaption->setText(tr("Program reads"));
    ownCaption->setText(tr("Field holds"));
    showReadings();
}

void PasswordFieldCell::showReadings()
{
    const QString given = access.get();
    const QString held = edit->text();
    value->setText(given);
    own->setText(held);
    const bool isReadable = given == held;
    verdict->setVisible(!given.isEmpty());
    verdict->setPixmap(isReadable ? TXDisplayLittleWarningBulletStaticImage() : littleFixBullet());
    verdict->setToolTip(isReadable ? tr("The password itself stands in the field.")
                                   : tr("A mask stands in the field, not the password."));
}

void PasswordFieldCell::setUpLayout()
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(kRowGap);
    grid->setHorizontalSpacing(kColumnGap);
    grid->setColumnStretch(2, 1);
    grid->addWidget(edit, 0, 0, 1, 3);
    grid->addWidget(valueCaption, 1, 0);
    grid->addWidget(value, 1, 2);
    grid->addWidget(ownCaption, 2, 0);
    grid->addWidget(verdict, 2, 1);
    grid->addWidget(own, 2, 2);
}
