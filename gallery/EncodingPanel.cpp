#include "EncodingPanel.h"

#include "DictionaryView.h"
#include "EncodedTextFile.h"
#include "ShortText.h"
#include "WidgetReplacement.h"

#include "TXFileDialog.h"
#include "TXSelectDefaultEncodingWidget.h"

#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

const QString kEncodingKey = QStringLiteral("DefaultMeasurementTextFileEncoding");
const QString kFolderKey = QStringLiteral("Schedule/TextFolder");

constexpr int kFewestLines = 9;

/// Places in the list of files.
enum File {
    Utf8Example,
    Latin1Example,
    ChosenFile,
};

/// A measurement as an instrument's program in German writes it.
QString exampleText()
{
    return QString::fromUtf8("CGATS.17\n"
                             "ORIGINATOR \"Prüfstelle Düren, Frau Größner\"\n"
                             "INSTRUMENTATION \"Messgerät mit Öffnung 4 mm, 45°/0°\"\n"
                             "DESCRIPTOR \"Äußerer Streifen, 0,5 µm überlackiert\"\n"
                             "NUMBER_OF_FIELDS 4\n"
                             "BEGIN_DATA_FORMAT\n"
                             "SAMPLE_NAME LAB_L LAB_A LAB_B\n"
                             "END_DATA_FORMAT\n"
                             "NUMBER_OF_SETS 3\n"
                             "BEGIN_DATA\n"
                             "\"Weiß\" 95.10 0.62 -2.31\n"
                             "\"Grün\" 50.21 -66.90 25.70\n"
                             "\"Rötlich\" 61.35 31.48 20.05\n"
                             "END_DATA\n");
}

/// A file that is not written is told of when it is read.
void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(bytes);
    }
}

} // namespace

EncodingPanel::EncodingPanel(QWidget *parent)
    : GalleryPanel(parent)
    , widget(new TXSelectDefaultEncodingWidget(this))
    , saveButton(new QPushButton(this))
    , loadButton(new QPushButton(this))
    , view(new DictionaryView(this))
    , fileLabel(new QLabel(this))
    , fileBox(new QComboBox(this))
    , fileButton(new QPushButton(this))
    , text(new QPlainTextEdit(this))
    , note(new QLabel(this))
    , kept(widget->save())
{
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setMinimumHeight(kFewestLines * text->fontMetrics().lineSpacing());
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    fileLabel->setBuddy(fileBox);
    view->setTypesShown(false);
    makeExamples();
    setUpLayout();
    setTexts();
    showSettings();
    connect(saveButton, SIGNAL(clicked()), this, SLOT(save()));
    connect(loadButton, SIGNAL(clicked()), this, SLOT(load()));
    connect(fileButton, SIGNAL(clicked()), this, SLOT(chooseFile()));
    connect(fileBox, SIGNAL(currentIndexChanged(int)), this, SLOT(showText()));
}

void EncodingPanel::retranslate()
{
    setTexts();
    renew();
    showText();
}

void EncodingPanel::save()
{
    kept = widget->save();
    showSettings();
}

void EncodingPanel::load()
{
    widget->load(kept);
}

void EncodingPanel::chooseFile()
{
    const QString path = TXFileDialog::getOpenFileName(this, tr("Text File"), {},
                                                       tr("Text files (*.txt);;All files (*)"),
                                                       nullptr, {}, kFolderKey);
    if (path.isEmpty()) {
        return;
    }
    fileBox->removeItem(ChosenFile);
    fileBox->addItem(shortText(QFileInfo(path).fileName()), path);
    fileBox->setCurrentIndex(ChosenFile);
}

void EncodingPanel::showText()
{
    const EncodedText read =
        readEncodedText(fileBox->currentData().toString(), kept.value(kEncodingKey).toString());
    text->setPlainText(read.text);
    note->setText(noteOn(read));
}

/// Without a folder for temporary files there are none to be read.
void EncodingPanel::makeExamples()
{
    const QString latin1 = examples.filePath(QStringLiteral("latin1.txt"));
    const QString utf8 = examples.filePath(QStringLiteral("utf8.txt"));
    if (examples.isValid()) {
        write(latin1, exampleText().toLatin1());
        write(utf8, exampleText().toUtf8());
    }
    fileBox->addItem(QString(), utf8);
    fileBox->addItem(QString(), latin1);
}

void EncodingPanel::setTexts()
{
    setTitle(tr("Default encoding"));
    setButtonText(saveButton, tr("Sav&e"));
    setButtonText(loadButton, tr("Loa&d"));
    fileLabel->setText(tr("&Text file:"));
    fileBox->setItemText(Utf8Example, tr("Example in UTF-8"));
    fileBox->setItemText(Latin1Example, tr("Example in ISO-8859-1"));
    setButtonText(fileButton, tr("Choose &File..."));
    text->setAccessibleName(tr("Text of the file"));
}

/// Makes the widget anew as it stands, with its texts in the language of the moment.
void EncodingPanel::renew()
{
    auto *renewed = new TXSelectDefaultEncodingWidget(this);
    renewed->load(widget->save());
    replaceWidget(widget, renewed, saveButton);
    widget = renewed;
}

void EncodingPanel::showSettings()
{
    view->setDictionary(kept);
    showText();
}

QString EncodingPanel::noteOn(const EncodedText &read) const
{
    if (!read.error.isEmpty()) {
        return tr("The file is not shown. %1").arg(read.error.toString());
    }
    QStringList sentences = {
        tr("Bytes read as %1: %2.")
            .arg(kept.value(kEncodingKey).toString(), locale().toString(read.byteCount))};
    if (read.unreadableCount > 0) {
        sentences.append(tr("Places that this encoding cannot read: %1.")
                             .arg(locale().toString(read.unreadableCount)));
    }
    if (read.isCut) {
        sentences.append(tr("The rest of the file is not shown."));
    }
    return sentences.join(u' ');
}

void EncodingPanel::setUpLayout()
{
    auto *choice = new QHBoxLayout;
    choice->addWidget(widget, 1);
    choice->addWidget(saveButton);
    choice->addWidget(loadButton);

    auto *file = new QHBoxLayout;
    file->addWidget(fileLabel);
    file->addWidget(fileBox, 1);
    file->addWidget(fileButton);

    auto *reading = new QVBoxLayout;
    reading->setSpacing(kGap);
    reading->addWidget(view, 1);
    reading->addLayout(file);
    reading->addWidget(note);

    auto *columns = new QHBoxLayout;
    columns->setSpacing(kGap);
    columns->addLayout(reading, 1);
    columns->addWidget(text, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(choice);
    rows->addLayout(columns, 1);
}
