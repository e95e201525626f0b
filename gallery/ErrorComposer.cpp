#include "ErrorComposer.h"

#include "ErrorExamples.h"
#include "NestedErrorsText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

const QString kTitleKey = QStringLiteral("MessageBoxTitle");
constexpr int kButtonGap = 6;
constexpr int kVisibleLines = 6;

/// A file that every installation has, and that is no colour profile.
QString pictureOfTheGallery()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/../Resources/Images/text_file_icon.png"));
}

} // namespace

ErrorComposer::ErrorComposer(QWidget *parent)
    : GalleryPanel(parent)
    , exampleLabel(new QLabel(this))
    , exampleBox(new QComboBox(this))
    , browseButton(new QPushButton(this))
    , titleCheck(new QCheckBox(this))
    , titleEdit(new QLineEdit(this))
    , descriptionLabel(new QLabel(this))
    , descriptionEdit(new QLineEdit(this))
    , domainLabel(new QLabel(this))
    , domainEdit(new QLineEdit(this))
    , nestedLabel(new QLabel(this))
    , nestedEdit(new QPlainTextEdit(this))
    , textLabel(new QLabel(this))
    , textView(new QPlainTextEdit(this))
    , profilePath(pictureOfTheGallery())
{
    exampleBox->addItems(errorExampleNames());
    exampleLabel->setBuddy(exampleBox);
    descriptionLabel->setBuddy(descriptionEdit);
    domainLabel->setBuddy(domainEdit);
    nestedLabel->setBuddy(nestedEdit);
    textLabel->setBuddy(textView);
    // Each line is an error, however long.
    nestedEdit->setLineWrapMode(QPlainTextEdit::NoWrap);
    nestedEdit->setTabChangesFocus(true);
    textView->setTabChangesFocus(true);
    textView->setReadOnly(true);
    setUpLayout();
    retranslate();
    connectFields();
}

TXError ErrorComposer::error() const
{
    TXError result;
    result.domain = domainEdit->text();
    result.setDescription(TXStringI18n::fromString(descriptionEdit->text()));
    result.subErrors = nestedErrorsFromText(nestedEdit->toPlainText());
    if (titleCheck->isChecked()) {
        result.userInfo[kTitleKey] = titleEdit->text();
    }
    return result;
}

void ErrorComposer::readProfile(const QString &path)
{
    profilePath = path;
    exampleBox->setCurrentIndex(0);
    takeExample();
}

void ErrorComposer::takeExample()
{
    showError(makeErrorExample(exampleBox->currentIndex(), profilePath));
}

void ErrorComposer::browse()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Read a File as a Colour Profile"), profilePath);
    if (!path.isEmpty()) {
        readProfile(path);
    }
}

void ErrorComposer::noteEditing()
{
    if (isShowing) {
        return;
    }
    isEdited = true;
    showText();
}

void ErrorComposer::connectFields()
{
    connect(exampleBox, SIGNAL(activated(int)), this, SLOT(takeExample()));
    connect(browseButton, SIGNAL(clicked()), this, SLOT(browse()));
    connect(titleCheck, SIGNAL(toggled(bool)), titleEdit, SLOT(setEnabled(bool)));
    connect(titleCheck, SIGNAL(toggled(bool)), this, SLOT(noteEditing()));
    for (QLineEdit *edit : {titleEdit, descriptionEdit, domainEdit}) {
        connect(edit, SIGNAL(textChanged(QString)), this, SLOT(noteEditing()));
    }
    connect(nestedEdit, SIGNAL(textChanged()), this, SLOT(noteEditing()));
}

void ErrorComposer::showError(const TXError &error)
{
    isShowing = true;
    titleCheck->setChecked(error.userInfo.contains(kTitleKey));
    titleEdit->setText(error.userInfo.value(kTitleKey).toString());
    titleEdit->setEnabled(titleCheck->isChecked());
    descriptionEdit->setText(error.getLocalizedDescription());
    descriptionEdit->setCursorPosition(0);
    domainEdit->setText(error.domain);
    nestedEdit->setPlainText(textOfNestedErrors(error.subErrors));
    isShowing = false;
    isEdited = false;
    showText();
}

void ErrorComposer::showText()
{
    textView->setPlainText(error().getCompletLocalizedDescription());
}

void ErrorComposer::setUpLayout()
{
    const int height = fontMetrics().lineSpacing() * kVisibleLines
        + 2 * (nestedEdit->frameWidth() + int(nestedEdit->document()->documentMargin()));
    nestedEdit->setMinimumHeight(height);

    auto *exampleRow = new QHBoxLayout;
    exampleRow->setSpacing(kButtonGap);
    exampleRow->addWidget(exampleBox, 1);
    exampleRow->addWidget(browseButton);

    auto *grid = new QGridLayout(this);
    setMargins(grid);
    grid->setHorizontalSpacing(kGap);
    grid->addWidget(exampleLabel, 0, 0);
    grid->addLayout(exampleRow, 0, 1);
    grid->addWidget(titleCheck, 1, 0);
    grid->addWidget(titleEdit, 1, 1);
    grid->addWidget(descriptionLabel, 2, 0);
    grid->addWidget(descriptionEdit, 2, 1);
    grid->addWidget(domainLabel, 3, 0);
    grid->addWidget(domainEdit, 3, 1);
    grid->addWidget(nestedLabel, 4, 0, Qt::AlignTop);
    grid->addWidget(nestedEdit, 4, 1);
    grid->addWidget(textLabel, 0, 2);
    grid->addWidget(textView, 1, 2, 4, 1);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(4, 1);
}

void ErrorComposer::retranslate()
{
    setTitle(tr("Compose an error"));
    const QStringList names = errorExampleNames();
    for (int i = 0; i < names.size(); ++i) {
        exampleBox->setItemText(i, names[i]);
    }
    exampleLabel->setText(tr("E&xample:"));
    browseButton->setText(tr("&Browse..."));
    browseButton->setToolTip(tr("Reads another file as a colour profile."));
    titleCheck->setText(tr("&Title:"));
    titleEdit->setAccessibleName(tr("Title"));
    titleEdit->setPlaceholderText(tr("Without a title the domain stands in"));
    descriptionLabel->setText(tr("&Description:"));
    domainLabel->setText(tr("D&omain:"));
    nestedLabel->setText(tr("N&ested errors:"));
    nestedEdit->setPlaceholderText(tr("One a line; two blanks put it below the line above"));
    textLabel->setText(tr("Com&plete text:"));
    textView->setPlaceholderText(tr("An error with nothing to say opens no box."));
    // What the user has written is not ours to translate.
    if (!isEdited) {
        takeExample();
    }
}
