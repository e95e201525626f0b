#include "GalleryHeader.h"

#include "GalleryIcon.h"
#include "GalleryLanguages.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>

namespace {

constexpr int kLogoSide = 28;
constexpr int kSideMargin = 20;
constexpr int kTopMargin = 12;
constexpr int kGroupGap = 18;
constexpr int kNamePointsAboveNormal = 3;

/// Gives way on a small screen, where its text ends with an ellipsis.
class NameLabel final : public QLabel
{
public:
    using QLabel::QLabel;

    [[nodiscard]] QSize minimumSizeHint() const override
    {
        return {0, QLabel::minimumSizeHint().height()};
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        style()->drawItemText(
            &painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
            fontMetrics().elidedText(text(), Qt::ElideRight, width()), foregroundRole());
    }
};

QLabel *makeBoxLabel(QWidget *parent, QComboBox *box)
{
    auto *label = new QLabel(parent);
    label->setBuddy(box);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

GalleryHeader::GalleryHeader(QWidget *parent)
    : QWidget(parent)
    , logo(new QLabel(this))
    , name(new NameLabel(this))
    , coloursBox(new QComboBox(this))
    , styleBox(new QComboBox(this))
    , languageBox(new QComboBox(this))
    , aboutButton(new QPushButton(this))
{
    coloursLabel = makeBoxLabel(this, coloursBox);
    styleLabel = makeBoxLabel(this, styleBox);
    languageLabel = makeBoxLabel(this, languageBox);
    for (const auto colours : {GalleryColours::System, GalleryColours::Light, GalleryColours::Dark,
                               GalleryColours::Contrast}) {
        coloursBox->addItem(QString(), QVariant::fromValue(colours));
    }
    styleBox->addItems(QStyleFactory::keys());
    for (QComboBox *box : {coloursBox, styleBox, languageBox}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    }
    logo->setPixmap(galleryIcon().pixmap(kLogoSide));
    setUpLayout();
    retranslate();
    connect(coloursBox, SIGNAL(activated(int)), this, SLOT(coloursActivated(int)));
    connect(styleBox, SIGNAL(activated(int)), this, SLOT(styleActivated(int)));
    connect(languageBox, SIGNAL(activated(int)), this, SLOT(languageActivated(int)));
    connect(aboutButton, SIGNAL(clicked()), this, SIGNAL(aboutWanted()));
}

void GalleryHeader::setUpLayout()
{
    QFont nameFont = font();
    nameFont.setPointSizeF(nameFont.pointSizeF() + kNamePointsAboveNormal);
    nameFont.setWeight(QFont::DemiBold);
    name->setFont(nameFont);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(kSideMargin, kTopMargin, kSideMargin, kTopMargin);
    layout->addWidget(logo);
    layout->addSpacing(4);
    layout->addWidget(name);
    layout->addSpacing(kGroupGap);
    layout->addStretch();
    layout->addWidget(coloursLabel);
    layout->addWidget(coloursBox);
    layout->addSpacing(kGroupGap);
    layout->addWidget(styleLabel);
    layout->addWidget(styleBox);
    layout->addSpacing(kGroupGap);
    layout->addWidget(languageLabel);
    layout->addWidget(languageBox);
    layout->addSpacing(kGroupGap);
    layout->addWidget(aboutButton);
}

void GalleryHeader::setColours(GalleryColours colours)
{
    coloursBox->setCurrentIndex(coloursBox->findData(QVariant::fromValue(colours)));
}

void GalleryHeader::setStyleKey(const QString &key)
{
    styleBox->setCurrentIndex(styleBox->findText(key));
}

void GalleryHeader::setLanguages(const QStringList &codes, const QString &current)
{
    languageBox->clear();
    for (const QString &code : codes) {
        languageBox->addItem(GalleryLanguages::displayName(code), code);
    }
    languageBox->setCurrentIndex(languageBox->findData(current));
}

void GalleryHeader::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

void GalleryHeader::coloursActivated(int index)
{
    emit coloursChosen(coloursBox->itemData(index).value<GalleryColours>());
}

void GalleryHeader::styleActivated(int index)
{
    emit styleChosen(styleBox->itemText(index));
}

void GalleryHeader::languageActivated(int index)
{
    emit languageChosen(languageBox->itemData(index).toString());
}

void GalleryHeader::retranslate()
{
    name->setText(tr("TXGUICommon Gallery"));
    name->setToolTip(name->text());
    coloursLabel->setText(tr("P&alette"));
    styleLabel->setText(tr("&Style"));
    languageLabel->setText(tr("&Language"));
    aboutButton->setText(tr("About..."));
    // No letter of the text is free on every page. Set after the text, which takes it away.
    const QKeySequence key(tr("Alt+Y", "key of the button About..."));
    aboutButton->setShortcut(key);
    aboutButton->setToolTip(
        tr("About this program (%1)").arg(key.toString(QKeySequence::NativeText)));
    coloursBox->setItemText(0, tr("System"));
    coloursBox->setItemText(1, tr("Light"));
    coloursBox->setItemText(2, tr("Dark"));
    coloursBox->setItemText(3, tr("High Contrast"));
    coloursBox->setAccessibleName(tr("Palette"));
    styleBox->setAccessibleName(tr("Style"));
    languageBox->setAccessibleName(tr("Language"));
}
