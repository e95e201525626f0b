#pragma once

#include "TXGUICommonExport.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <memory>

namespace Ui {
class TXSelectDefaultEncodingWidget;
}

/// The panel on which a user chooses the encoding that text files are read with where the files
/// themselves do not tell it. It lists all codecs of QTextCodec, and that of the system's locale a
/// second time on top, marked as recommended.
///
/// The host takes a settings dictionary from its store, gives it to load(), and reads save() back
/// when it applies the settings; the key stands there. It reads the files with
/// QTextCodec::codecForName() of Qt's Core5Compat.
///
/// The list is filled once, in the constructor, in a time that is linear in the codecs but for
/// their sorting. Making the first panel of a process takes a few milliseconds more, in which Qt
/// asks the system for its codecs.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXSelectDefaultEncodingWidget : public QWidget
{
    Q_OBJECT

public:
    /// A panel with the first entry selected.
    explicit TXSelectDefaultEncodingWidget(QWidget *parent = nullptr);
    ~TXSelectDefaultEncodingWidget() override;

    /// Shows the settings. Reads the key "DefaultMeasurementTextFileEncoding", the name of a codec,
    /// and gives it to selectEncoding(); defaultEncoding() when it is missing.
    void load(const QHash<QString, QVariant> &settings);

    /// The settings: the key of load() with selectedEncoding().
    QHash<QString, QVariant> save();

    /// Selects the codec of this name, spelt as QTextCodec spells it, capitals included. Anything
    /// else, a value that is no text too, selects the first entry.
    void selectEncoding(const QVariant &encoding);

    /// The name of the selected codec. Empty only where the system has no codec at all.
    [[nodiscard]] QString selectedEncoding() const;

    /// The name of the first entry's codec: that of the system's locale.
    [[nodiscard]] QString defaultEncoding() const;

protected:
    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

private:
    void setUpEncodings();

    std::unique_ptr<Ui::TXSelectDefaultEncodingWidget> ui;
};
