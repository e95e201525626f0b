#include "EmissionList.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

constexpr int kLeastWidth = 190;

} // namespace

EmissionList::EmissionList(QWidget *parent)
    : QWidget(parent)
    , caption(new QLabel(this))
    , lines(new QPlainTextEdit(this))
    , clearButton(new QPushButton(this))
{
    caption->setBuddy(lines);
    lines->setReadOnly(true);
    lines->setMaximumBlockCount(kMaximumLines);
    lines->setTabChangesFocus(true);
    lines->setLineWrapMode(QPlainTextEdit::NoWrap);
    lines->setMinimumSize(kLeastWidth, 0);
    lines->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(caption, 0, 0);
    grid->addWidget(clearButton, 0, 1);
    grid->addWidget(lines, 1, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(1, 1);
    setTabOrder(clearButton, lines);
    connect(clearButton, SIGNAL(clicked()), this, SLOT(clear()));
}

void EmissionList::retranslate(const QString &newCaption, const QString &listName)
{
    captionText = newCaption;
    clearButton->setText(tr("&Clear"));
    lines->setAccessibleName(listName);
    showCount();
}

void EmissionList::append(const QString &line)
{
    ++emissions;
    lines->appendPlainText(line);
    showCount();
}

void EmissionList::clear()
{
    emissions = 0;
    lines->clear();
    showCount();
}

void EmissionList::showCount()
{
    caption->setText(captionText.arg(locale().toString(emissions)));
}
