#pragma once

#include "GalleryAppearance.h"

#include <QStringList>
#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;

/// The strip at the top of the gallery: its name, the choice of palette, style and
/// language, and the way to the About window.
///
/// It only shows and tells; whoever owns it acts on the choices.
class GalleryHeader : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryHeader(QWidget *parent = nullptr);

    /// Shows the palette as chosen, without a signal.
    void setColours(GalleryColours colours);

    /// Shows the key of QStyleFactory as chosen, without a signal. An unknown key shows none.
    void setStyleKey(const QString &key);

    /// Sets the codes of the languages to choose from and shows one of them as chosen, without a
    /// signal. The languages are listed under their own names.
    void setLanguages(const QStringList &codes, const QString &current);

signals:
    /// Emitted when the user has picked a palette, not when the program has set one.
    void coloursChosen(GalleryColours colours);
    /// Emitted when the user has picked a style, with its key.
    void styleChosen(const QString &key);
    /// Emitted when the user has picked a language, with its code.
    void languageChosen(const QString &code);
    /// Emitted when the user wants to read about the program.
    void aboutWanted();

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void coloursActivated(int index);
    void styleActivated(int index);
    void languageActivated(int index);

private:
    void setUpLayout();
    void retranslate();

    QLabel *logo;
    QLabel *name;
    QLabel *coloursLabel;
    QLabel *styleLabel;
    QLabel *languageLabel;
    QComboBox *coloursBox;
    QComboBox *styleBox;
    QComboBox *languageBox;
    QPushButton *aboutButton;
};
