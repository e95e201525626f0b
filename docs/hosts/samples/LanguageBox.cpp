#include "LanguageBox.h"

#include <LocalisationUpdater.h>

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QTranslator>

LanguageBox::LanguageBox(QWidget *parent)
    : QWidget(parent)
    , label(new QLabel(this))
    , box(new QComboBox(this))
{
    for (const char *language : {"en", "de", "ar"}) {
        box->addItem(QLocale(language).nativeLanguageName(), language);
    }
    label->setBuddy(box);
    auto *row = new QHBoxLayout(this);
    row->addWidget(label);
    row->addWidget(box, 1);
    retranslate();
    connect(box, SIGNAL(activated(int)), this, SLOT(languageChosen(int)));
}

//! [use]
void LanguageBox::use(const QString &language)
{
    translators.clear(); // the language before this one goes
    for (const char *module : {"qtbase", "txguicommon", "patchreader"}) {
        const auto translator =
            LocalisationUpdater::updateLocalisationOfApp(module, language, nullptr);
        if (translator) {
            translators.append(translator);
        }
    }
    const QLocale locale(language);
    QLocale::setDefault(locale);
    QApplication::setLayoutDirection(locale.textDirection());
}
//! [use]

//! [follow]
void LanguageBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

void LanguageBox::retranslate()
{
    label->setText(tr("&Language:"));
}
//! [follow]

void LanguageBox::languageChosen(int index)
{
    use(box->itemData(index).toString());
}
