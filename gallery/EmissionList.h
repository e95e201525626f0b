#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QPushButton;

/// Counts and lists the emissions of signals as they come, the newest at the end.
class EmissionList final : public QWidget
{
    Q_OBJECT

public:
    /// How many of the newest lines are kept. The count goes on.
    static constexpr int kMaximumLines = 500;

    explicit EmissionList(QWidget *parent = nullptr);

    /// The emissions since the start, or since the user has cleared the list.
    [[nodiscard]] int count() const { return emissions; }

    /// Sets all texts in the language of the moment; the lines already listed stay as they are. The
    /// caption has "%1" where the count is to stand, and may have a mnemonic; the list is named for
    /// users who do not see it.
    void retranslate(const QString &newCaption, const QString &listName);

public slots:
    /// Counts an emission and lists it with this text.
    void append(const QString &line);

    /// Starts again at 0.
    void clear();

private:
    void showCount();

    QLabel *caption;
    QString captionText;
    QPlainTextEdit *lines;
    QPushButton *clearButton;
    int emissions = 0;
};
