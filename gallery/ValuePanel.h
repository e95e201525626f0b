#pragma once

#include "GalleryPanel.h"

#include "TXStringI18n.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QVariant>

class PaperArea;
class QCheckBox;
class QLabel;
class QPushButton;
class TXVariantViewer;

/// A value in the library's viewer, with the switches of the viewer, and below it how much is shown
/// and how long showing it took: until it was painted, when it can be seen.
class ValuePanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit ValuePanel(QWidget *parent = nullptr);

    /// What is shown; invalid at first.
    [[nodiscard]] const QVariant &value() const { return shownValue; }

    /// Shows the value, closed. The second text says where it comes from.
    void setValue(const QVariant &newValue, const TXStringI18n &source);

    /// True from a change of what is shown until it has been painted and the time it took is told.
    [[nodiscard]] bool isAtWork() const { return turn.isActive(); }

public slots:
    /// Opens the value and what it holds, of a very large one the first part of that. What is open
    /// already stays as it is, further levels too.
    void openTwoLevels();

    /// Folds everything up.
    void foldUp();

signals:
    /// isAtWork() has become false.
    void shown();

protected:
    void retranslate() override;

private slots:
    void applyPreview(bool isWanted);
    void showDuration();

private:
    enum class Work {
        None,
        Showing,
        Opening,
        Closing,
    };

    void begin(Work newWork);
    void setViewerValue();
    void showAmounts();
    [[nodiscard]] QString durationText() const;
    void setUpLayout();

    QLabel *sourceLabel;
    PaperArea *area;
    TXVariantViewer *viewer;
    QPushButton *openButton;
    QPushButton *closeButton;
    QCheckBox *hoverBox;
    QCheckBox *previewBox;
    QLabel *amountsLabel;
    QVariant shownValue;
    TXStringI18n shownSource;
    qsizetype valueCount = 0;
    qsizetype characterCount = 0;
    // What was done last, how long it took, and what waits for its painting.
    Work work = Work::None;
    double milliseconds = 0;
    QElapsedTimer clock;
    QTimer turn;
};
