#pragma once

#include "TXGUICommonExport.h"

#include <QSplitter>

/// A splitter whose handles are drawn as a line with a gap in the middle, where the grip picture of
/// a style sheet stands (`QSplitter::handle:horizontal { image: url(…); }`).
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXSplitter : public QSplitter
{
    Q_OBJECT

public:
    /// An empty splitter whose widgets will stand side by side.
    explicit TXSplitter(QWidget *parent = nullptr);

    /// An empty splitter; with Qt::Horizontal the widgets stand side by side.
    explicit TXSplitter(Qt::Orientation orientation, QWidget *parent = nullptr);

protected:
    /// A TXSplitterHandle for the orientation of the moment, owned by the splitter. Called by the
    /// base for each widget that is put in.
    QSplitterHandle *createHandle() override;
};

/// The handle of a TXSplitter: a thin black line along its middle, with a gap as long as the grip
/// picture.
///
/// The picture is only measured, once, when the handle is made; turning the splitter later turns
/// the line and leaves the gap as long as it was. A splitter whose handles have no width draws
/// nothing.
///
/// The ends of the line are those of the handle in its splitter, while everything else counts from
/// the handle's own corner: in a splitter with a frame the line begins and ends lower, or further
/// right, by the frame's width.
///
/// Files: "../Resources/Images/VerticalSplitter.png" for a horizontal splitter,
/// "HorizontalSplitter.png" for a vertical one, beside the folder of the program. Without a picture
/// there is no gap.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXSplitterHandle : public QSplitterHandle
{
    Q_OBJECT

public:
    /// A handle for a splitter of this orientation, which owns it and is not null.
    TXSplitterHandle(Qt::Orientation orientation, QSplitter *parent);

protected:
    /// Draws what the style draws, and the line above it.
    void paintEvent(QPaintEvent *event) override;

private:
    float grabSize = 0;
};
