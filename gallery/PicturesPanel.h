#pragma once

#include "GalleryPanel.h"

#include <QList>
#include <QPointer>
#include <QStringList>

class QCheckBox;
class QLabel;

/// Which pictures are compared: the chart's or files of the user's choice, and which of them are
/// shown. Below that, a few words on them, or on what went wrong.
class PicturesPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit PicturesPanel(QWidget *parent = nullptr);

    /// Offers these pictures, one to PictureSet::kLargestCount, all of them shown.
    void setNames(const QStringList &names, bool isChart);
    /// Calls the same pictures by other names.
    void rename(const QStringList &names);

    /// The numbers of the pictures to show, from 0; at least one, once there are any.
    [[nodiscard]] QList<int> shown() const;

    /// No other pictures can be chosen while it is busy. The keyboard's focus comes back to the
    /// button that it was taken from, unless the user has moved it since.
    void setBusy(bool isBusy);

    /// A few sentences of plain text; as a warning with its sign.
    void setMessage(const QString &text, bool isWarning);

signals:
    /// The user has chosen picture files, at least one.
    void filesChosen(QStringList paths);
    void chartWanted();
    /// The user has changed shown().
    void shownChanged();

protected:
    void retranslate() override;

private slots:
    void browse();
    void changeShown();

private:
    void setUpLayout();
    void keepOneShown();
    void showButtons();
    void lendFocus();
    void takeFocusBack();

    QPushButton *openButton;
    QPushButton *chartButton;
    QLabel *shownLabel;
    QList<QCheckBox *> shownBoxes;
    QLabel *signLabel;
    QLabel *messageLabel;
    /// The button that had the focus before it was disabled, and what has it since.
    QPointer<QWidget> focusGiver;
    QPointer<QWidget> focusTaker;
    bool hasChart = true;
    bool busy = false;
};
