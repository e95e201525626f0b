#pragma once

#include "GalleryPanel.h"

class QComboBox;
class QLabel;
class QPushButton;

/// The languages of the gallery, the choice among them, and the import of a further one.
///
/// What is chosen holds for the whole gallery and is remembered, like the choice in the strip at
/// the top; the two follow each other. It works on GalleryLanguages::instance(); without one there
/// is nothing to choose.
class LanguagePanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit LanguagePanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void languageActivated(int index);
    void importTranslation();
    void showLanguages();

private:
    void setUpLayout();
    void showFiles();
    void showFailures();
    void showResult();

    QLabel *boxLabel;
    QComboBox *box;
    QPushButton *importButton;
    QLabel *files;
    QLabel *result;
    QLabel *failurePicture;
    QLabel *failureText;
    /// Of the last import; -1 before the first.
    int importResult = -1;
};
