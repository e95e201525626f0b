#pragma once

#include "GalleryPanel.h"

#include <QHash>
#include <QTemporaryDir>
#include <QVariant>

class DictionaryView;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class TXSelectDefaultEncodingWidget;

struct EncodedText;

/// The library's panel for the default encoding, and what a host does around it: it keeps the
/// setting, and reads a text file by it.
class EncodingPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit EncodingPanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void save();
    void load();
    void chooseFile();
    void showText();

private:
    void makeExamples();
    void setTexts();
    void renew();
    void showSettings();
    [[nodiscard]] QString noteOn(const EncodedText &read) const;
    void setUpLayout();

    // Made anew for another language.
    TXSelectDefaultEncodingWidget *widget;
    QPushButton *saveButton;
    QPushButton *loadButton;
    DictionaryView *view;
    QLabel *fileLabel;
    QComboBox *fileBox;
    QPushButton *fileButton;
    QPlainTextEdit *text;
    QLabel *note;
    // Goes with the panel.
    QTemporaryDir examples;
    QHash<QString, QVariant> kept;
};
