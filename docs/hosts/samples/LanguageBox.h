#pragma once

#include <QList>
#include <QSharedPointer>
#include <QWidget>

class QComboBox;
class QLabel;
class QTranslator;

/// A labelled box with the languages of PatchReader.
class LanguageBox : public QWidget
{
    Q_OBJECT

public:
    explicit LanguageBox(QWidget *parent = nullptr);

    /// Lets the whole program speak the language, such as "de" or "zh_CN".
    void use(const QString &language);

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void languageChosen(int index);

private:
    void retranslate();

    QLabel *label;
    QComboBox *box;
    QList<QSharedPointer<QTranslator>> translators;
};
