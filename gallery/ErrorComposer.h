#pragma once

#include "GalleryPanel.h"

#include "TXError.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

/// An error put together by hand, or taken from an example and changed, with its complete text
/// beside it.
class ErrorComposer final : public GalleryPanel
{
    Q_OBJECT

public:
    /// Starts with the first example.
    explicit ErrorComposer(QWidget *parent = nullptr);

    /// The error as it is composed.
    [[nodiscard]] TXError error() const;

    /// Reads the file as a colour profile and takes the error that this makes. A file with which
    /// nothing is wrong leaves nothing to report.
    void readProfile(const QString &path);

protected:
    void retranslate() override;

private slots:
    void takeExample();
    void browse();
    void noteEditing();

private:
    void setUpLayout();
    void connectFields();
    void showError(const TXError &error);
    void showText();

    QLabel *exampleLabel;
    QComboBox *exampleBox;
    QPushButton *browseButton;
    QCheckBox *titleCheck;
    QLineEdit *titleEdit;
    QLabel *descriptionLabel;
    QLineEdit *descriptionEdit;
    QLabel *domainLabel;
    QLineEdit *domainEdit;
    QLabel *nestedLabel;
    QPlainTextEdit *nestedEdit;
    QLabel *textLabel;
    QPlainTextEdit *textView;
    QString profilePath;
    bool isEdited = false;
    bool isShowing = false;
};
