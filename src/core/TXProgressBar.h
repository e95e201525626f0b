#pragma once

#include "TXGUICommonExport.h"

#include <QProgressBar>
#include <QWidget>

#include <memory>

namespace Ui {
class TXProgressBar;
}

/// A progress bar with a message beside it, at its end.
///
/// All but the message is handed on to the QProgressBar inside, whose rules hold. For work that
/// reports from other threads, give the bar to a ProgressBarCompletionDelegate. Take WaitWidget
/// where the end of the work is not known.
///
/// Assistive programs read the message as the description of the bar inside.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXProgressBar : public QWidget
{
    Q_OBJECT
    /// See minimum() and setMinimum().
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    /// See maximum() and setMaximum().
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    /// See value() and setValue().
    Q_PROPERTY(int value READ value WRITE setValue USER true)
    /// See message() and setMessage().
    Q_PROPERTY(QString message READ message WRITE setMessage)
    /// See format() and setFormat().
    Q_PROPERTY(QString format READ format WRITE setFormat)
    /// See isTextVisible() and setTextVisible().
    Q_PROPERTY(bool textVisible READ isTextVisible WRITE setTextVisible)
    /// See alignment() and setAlignment().
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
    /// See orientation() and setOrientation().
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)
    /// See invertedAppearance() and setInvertedAppearance().
    Q_PROPERTY(bool invertedAppearance READ invertedAppearance WRITE setInvertedAppearance)
    /// See textDirection() and setTextDirection().
    Q_PROPERTY(QProgressBar::Direction textDirection READ textDirection WRITE setTextDirection)

public:
    /// A bar from 0 to 100 at 24, without a message.
    explicit TXProgressBar(QWidget *parent = nullptr);
    ~TXProgressBar() override;

    /// The text beside the bar.
    [[nodiscard]] QString message() const;
    /// The text beside the bar; empty at first. It is shown as it is, without markup, and the room
    /// that it takes is not the bar's.
    void setMessage(const QString &message);

    /// Where the bar's text stands.
    [[nodiscard]] Qt::Alignment alignment() const;
    /// Places the bar's text, as far as the style does that.
    void setAlignment(Qt::Alignment alignment);

    /// What the bar's text is made of; "%p%" at first.
    [[nodiscard]] QString format() const;
    /// Makes the bar's text of "%p" (percentage), "%v" (value), "%m" (number of steps) and what
    /// stands around them.
    void setFormat(const QString &format);

    /// Whether the bar grows from the other end; false at first.
    [[nodiscard]] bool invertedAppearance();
    /// The same for a bar that is const.
    [[nodiscard]] bool invertedAppearance() const;
    /// Lets the bar grow from the other end.
    void setInvertedAppearance(bool inverted);

    /// Whether the bar's text is to be shown; true at first.
    [[nodiscard]] bool isTextVisible() const;
    /// Shows or hides the bar's text, where the style has one. The message is not meant.
    void setTextVisible(bool visible);

    /// The value at which the bar is full; 100 at first.
    [[nodiscard]] int maximum() const;
    /// Sets one end of the range; a minimum above it becomes the same. See setRange().
    void setMaximum(int maximum);
    /// The value at which the bar is empty; 0 at first.
    [[nodiscard]] int minimum() const;
    /// Sets one end of the range; a maximum below it becomes the same. See setRange().
    void setMinimum(int minimum);
    /// The last value that the bar has taken, or one below the minimum when there is none.
    [[nodiscard]] int value() const;
    /// Whether the bar lies or stands.
    [[nodiscard]] Qt::Orientation orientation() const;

    /// The bar's text as it is now, whether shown or not; empty when there is nothing to tell.
    [[nodiscard]] QString text() const;

    /// The direction in which the text of an upright bar reads; top to bottom at first.
    [[nodiscard]] QProgressBar::Direction textDirection();
    /// The same for a bar that is const.
    [[nodiscard]] QProgressBar::Direction textDirection() const;
    /// Sets the direction in which the text of an upright bar reads.
    void setTextDirection(QProgressBar::Direction direction);

public slots:
    /// The values at which the bar is empty and full. 0 and 0 make it a busy indicator; a maximum
    /// below the minimum becomes the minimum. A value that is outside now is dropped, see value().
    void setRange(int minimum, int maximum);

    /// How far the work is. A value outside the range is ignored.
    void setValue(int value);

    /// Lays the bar across, as at first, or upright. The message stays at its right.
    void setOrientation(Qt::Orientation orientation);

protected:
    /// Follows a change of the application's language.
    void changeEvent(QEvent *event) override;

private:
    void nameBar();

    std::unique_ptr<Ui::TXProgressBar> ui;
};
