#pragma once

#include "GalleryPanel.h"

class QLabel;
class QPlainTextEdit;

/// What happens between a panel of the library and a server, live, as two lists of lines: what the
/// server gets, and the signals that the library's panel emits. The newest lines of each are kept.
///
/// A subclass writes the lines, and the two labels in its retranslate().
class SessionPanel : public GalleryPanel
{
    Q_OBJECT

public:
    /// The lines of each list above this number are dropped, oldest first.
    static constexpr int kMaximumLines = 500;

public slots:
    /// Adds a line to what the server has got.
    void addReceived(const QString &line);

protected:
    explicit SessionPanel(QWidget *parent);

    /// Adds a line to the signals.
    void addEmission(const QString &line);

    /// Names the two lists; the labels lead to them by their mnemonics.
    void setLabels(const QString &ofReceived, const QString &ofEmissions);

    void retranslate() override;

private:
    [[nodiscard]] QPlainTextEdit *makeList(QLabel *label);
    void setUpLayout();

    QLabel *receivedLabel;
    QPlainTextEdit *received;
    QLabel *emissionsLabel;
    QPlainTextEdit *emissions;
    QPushButton *clearButton;
};
