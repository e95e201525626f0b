#pragma once

#include <QScrollArea>

class TXVariantViewer;

/// The scrolled area of a viewer of values, at its top.
///
/// The colours of the viewer's text are made for light backgrounds. In light colours the area looks
/// like its surroundings; in dark ones what is scrolled is a sheet of light paper, and the frame
/// and the scroll bars stay dark. It follows changes of the palette.
class PaperArea final : public QScrollArea
{
    Q_OBJECT

public:
    explicit PaperArea(QWidget *parent = nullptr);

    /// The viewer. Owned.
    [[nodiscard]] TXVariantViewer *viewer() const { return shownViewer; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void choosePaper();

    TXVariantViewer *shownViewer = nullptr;
};
