#pragma once

#include <QGroupBox>

class QPushButton;

/// Base of the framed sections of a page: a panel shows one idea, under a title.
///
/// It sets its texts again when the language changes. A panel, a final class, calls retranslate()
/// itself at the end of its constructor.
class GalleryPanel : public QGroupBox
{
    Q_OBJECT

public:
    /// Between the frame and what is in it, between its parts, and between panels; in pixels.
    static constexpr int kGap = 14;

    explicit GalleryPanel(QWidget *parent = nullptr);

    /// The same margins for the layout of every framed section. Its spacing stays as it is.
    static void setMargins(QLayout *layout);

    /// The same margins, and as much room between the parts.
    static void setGaps(QLayout *layout);

    /// Sets the text of a button and makes it wide enough to leave room around a long one.
    static void setButtonText(QPushButton *button, const QString &text);

protected:
    void changeEvent(QEvent *event) override;

    /// Sets all texts of the panel, its title among them, in the language of the moment.
    virtual void retranslate() = 0;
};
