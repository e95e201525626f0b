#include "StyleSheetPanel.h"

#include "StyleSheets.h"
#include "WheelGuard.h"

#include <QApplication>
#include <QComboBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kPartGap = 8;
constexpr int kTextMinimumHeight = 230;
/// A view takes seconds for a line of megabytes.
constexpr qsizetype kMostCharactersShown = 100'000;

QString shortened(const QString &sheet)
{
    return sheet.size() > kMostCharactersShown ? sheet.left(kMostCharactersShown) + u'…' : sheet;
}

} // namespace

StyleSheetPanel::StyleSheetPanel(QWidget *parent)
    : GalleryPanel(parent)
    , boxLabel(new QLabel(this))
    , box(new QComboBox(this))
    , readButton(new QPushButton(this))
    , outcome(new QLabel(this))
    , textLabel(new QLabel(this))
    , text(new QPlainTextEdit(this))
{
    boxLabel->setBuddy(box);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    WheelGuard::protect(box);
    outcome->setTextFormat(Qt::PlainText);
    outcome->setWordWrap(true);
    textLabel->setBuddy(text);
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setMinimumHeight(kTextMinimumHeight);
    setUpLayout();
    fillBox();
    retranslate();
    connect(box, SIGNAL(activated(int)), this, SLOT(sheetActivated(int)));
    connect(readButton, SIGNAL(clicked()), this, SLOT(readAgain()));
}

void StyleSheetPanel::applyShipped()
{
    apply(StyleSheets::shippedName());
}

void StyleSheetPanel::retranslate()
{
    setTitle(tr("Style sheet"));
    boxLabel->setText(tr("S&heet:"));
    box->setAccessibleName(tr("Sheet"));
    box->setItemText(0, tr("None"));
    setButtonText(readButton, tr("&Read Again"));
    textLabel->setText(tr("Te&xt as applied:"));
    text->setAccessibleName(tr("Text as applied"));
    text->setPlaceholderText(tr("No style sheet: the widgets look as their style draws them."));
    showOutcome();
}

void StyleSheetPanel::sheetActivated(int index)
{
    apply(box->itemData(index).toString());
}

void StyleSheetPanel::readAgain()
{
    apply(current);
}

void StyleSheetPanel::setUpLayout()
{
    auto *choice = new QHBoxLayout;
    choice->setSpacing(kPartGap);
    choice->addWidget(boxLabel);
    choice->addWidget(box);
    choice->addWidget(readButton);
    choice->addStretch();

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(choice);
    rows->addWidget(outcome);
    rows->addWidget(textLabel);
    rows->addWidget(text, 1);
}

void StyleSheetPanel::fillBox()
{
    box->clear();
    box->addItem(tr("None"), QString());
    const QStringList names = StyleSheets::names();
    for (const QString &name : names) {
        box->addItem(name, name);
    }
    if (box->findData(current) < 0) {
        // In use still, though its file is gone.
        box->addItem(current, current);
    }
    box->setCurrentIndex(box->findData(current));
}

void StyleSheetPanel::apply(const QString &name)
{
    error = TXError();
    if (name.isEmpty()) {
        StyleSheets::remove();
        current.clear();
    } else if (StyleSheets::apply(name, &error)) {
        current = name;
    }
    fillBox();
    showOutcome();
}

void StyleSheetPanel::showOutcome()
{
    outcome->setText(error.getLocalizedDescription());
    outcome->setVisible(error.isValid());
    const QString applied = shortened(qApp->styleSheet());
    if (text->toPlainText() != applied) {
        text->setPlainText(applied);
    }
}
