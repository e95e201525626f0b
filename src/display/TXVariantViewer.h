#pragma once

#include "TXGUICommonExport.h"

#include <QList>
#include <QVariant>
#include <QWidget>

#include <memory>

class QGridLayout;
class QLabel;
class QPainter;
class VariantEntries;
class VariantMoreButton;

/// Shows any value that a QVariant holds, lists and dictionaries within one another too, as one
/// line of coloured text, which the user folds open level by level.
///
///     auto *viewer = new TXVariantViewer(this);
///     viewer->setValue(TXJSONSerializer::deserialize(reply));
///
/// It is a widget of widgets: each level that is open holds a key and a viewer for each of its
/// entries. For a table of values, or a tree of many thousand rows, take an item view.
///
/// A click on a closed viewer opens it, a click on its left margin closes it. The keyboard moves
/// from viewer to viewer, and to the buttons for more entries: Up and Down, Home and End; Right and
/// Left go in and out, opening and closing; Space and Return open and close, or press the button;
/// the keys for "copy" and for the context menu act on the viewer that has the focus. A whole tree
/// of viewers is one stop of the Tab key.
///
/// It runs from left to right, whatever the direction of the application.
///
/// The colours of the text are made for light backgrounds; in a dark application give the widget
/// around the viewer a light palette. A palette of the viewer's own is not kept: it is given back
/// when the mouse leaves.
///
/// A line can be as wide as a widget, 16 million pixels. Within an open level it ends at 524,287,
/// since a layout takes no wider ones, and so it does in any layout around the viewer; in a scroll
/// area that resizes its widget it does not.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXVariantViewer : public QWidget
{
    Q_OBJECT
    /// See isExpandable(); cannot be written.
    Q_PROPERTY(bool expandable READ isExpandable)
    /// See hoverEffects() and setHoverEffects().
    Q_PROPERTY(bool hoverEffects READ hoverEffects WRITE setHoverEffects)
    /// See isExpanded() and setExpanded().
    Q_PROPERTY(bool expanded READ isExpanded WRITE setExpanded)
    /// See hasPreview() and setPreview().
    Q_PROPERTY(bool preview READ hasPreview WRITE setPreview)

public:
    /// Entries of a level that are made at once. The others follow by a button below the last one.
    static constexpr int kEntriesAtOnce = 5000;

    /// A closed viewer with the invalid value, which it shows as "null".
    explicit TXVariantViewer(QWidget *parent = nullptr);
    /// Deletes the viewers within, too. Not while one of its signals or events is on the way, see
    /// resized().
    ~TXVariantViewer() override;

    /// The text of a value as HTML, as the viewer shows it within its span of monospaced text.
    /// Without `preview` a list or a dictionary gives what QVariant::toString() does: nothing, and
    /// of a list of one string the string. Costs time in proportion to the text, at any depth.
    static QString variantToHtml(QVariant value, bool preview);

    /// True when this viewer, the root of its tree, lights the viewer under the mouse, in whose
    /// place the root's flag stands for the others; false at first.
    [[nodiscard]] Q_INVOKABLE bool hoverEffects() const;

    /// True for lists and dictionaries that hold something.
    [[nodiscard]] Q_INVOKABLE bool isExpandable() const;

    /// True while the entries show in place of the line of text.
    [[nodiscard]] Q_INVOKABLE bool isExpanded() const;

    /// Opens or closes; see expand() and collapse().
    Q_INVOKABLE void setExpanded(bool expanded);

    /// Shows a row for each entry in place of the line of text: dictionaries in the order of their
    /// keys. Of more than kEntriesAtOnce entries the first come, and below them a button that adds
    /// as many again. Rows that are there already are made anew. Nothing when there is nothing to
    /// expand. Emits resized().
    ///
    /// All levels around are laid out again. To open one level within another, n of them, costs the
    /// cube of n: a blink for a hundred, seconds for a thousand.
    Q_INVOKABLE void expand();

    /// Shows the line of text in place of the entries; what was open among them is forgotten. When
    /// one of them has the keyboard focus this viewer takes it. Nothing when there is nothing to
    /// expand. Emits resized().
    Q_INVOKABLE void collapse();

    /// Whether lists and dictionaries show what they hold in their line of text; true at first.
    [[nodiscard]] Q_INVOKABLE bool hasPreview() const;

    /// Stored for the next setValue(); what is shown stays as it is. Viewers of the entries take it
    /// over when they are made. Assistive tools are told what a value holds regardless.
    Q_INVOKABLE void setPreview(bool preview);

    /// The size of the line of text with the margin, or of the entries.
    [[nodiscard]] QSize sizeHint() const override;
    /// The same for the smallest size: a line is not cut off.
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// Lights this viewer when the root has hover effects.
    void hover();
    /// Gives the viewer the palette of its parent again.
    void unhover();
    /// The mouse is over a viewer within this one: the light goes there.
    void childEntered();
    /// The mouse is over this viewer itself again.
    void childLeaved();

    /// Paints the fold box and, when open, the bracket beside the entries, in the size of the font.
    void paintEvent(QPaintEvent *event) override;
    /// The left button opens a closed viewer anywhere and closes an open one on its left margin.
    void mousePressEvent(QMouseEvent *event) override;
    /// Lights this viewer in place of the one around it; see hover().
    void enterEvent(QEnterEvent *event) override;
    /// Gives the light back to the viewer around it; see unhover().
    void leaveEvent(QEvent *event) override;
    /// Offers to copy the value: lists, dictionaries, true, false and null as JSON, all else as its
    /// text.
    void contextMenuEvent(QContextMenuEvent *event) override;

signals:
    /// The room that the viewer wants may have changed: after setValue(), expand(), collapse() and
    /// the button for more entries, here and in the viewers within.
    ///
    /// A slot may change the value. It may delete the viewer while setValue() runs that was called
    /// on the viewer itself; during a click or a key, which Qt has yet to finish, only by
    /// deleteLater(). A slot that opens or closes the viewer each time it is called recurses
    /// without end.
    void resized();

public slots:
    /// Shows the value, closed. Emits resized(), and when the viewer was open once more before.
    void setValue(QVariant value);

    /// Sets the flag that counts on the root of a tree of viewers only. False gives the viewer the
    /// palette of its parent again.
    void setHoverEffects(bool enabled = true);

protected:
    /// Keeps the keys for "copy" from the shortcuts of the window while this viewer has the focus.
    bool event(QEvent *event) override;
    /// Goes to other viewers, opens, closes, copies. Other keys are left to the widgets around.
    void keyPressEvent(QKeyEvent *event) override;
    /// Shows the focus frame.
    void focusInEvent(QFocusEvent *event) override;
    /// Hides the focus frame.
    void focusOutEvent(QFocusEvent *event) override;
    /// Leaves the whole tree, from whichever of its viewers.
    bool focusNextPrevChild(bool next) override;

private:
    friend class VariantMoreButton;
    friend class VariantViewerAccessible;

    /// The left margin, on which the fold box stands; none when there is nothing to open.
    static constexpr int kClosedMarginPixels = 14;
    /// The left margin with room for the bracket; a click there closes.
    static constexpr int kOpenMarginPixels = 21;
    /// A grid of more rows is not used again when the level is closed.
    static constexpr int kMostRowsKept = 1000;

    // The line of text, and the rows that show in place of it.
    void showLine();
    void addMoreEntries();
    void addEntries();
    void addEntry();
    void placeMoreButton();
    void removeMoreButton();
    void addWidget(QWidget *widget, int row, int column);
    [[nodiscard]] TXVariantViewer *makeNextViewer();
    void removeEntries();
    void makeGrid();
    [[nodiscard]] QGridLayout *grid() const;
    void setLeftMargin(int pixels);
    [[nodiscard]] QSize withWholeLine(QSize hint, QSize line) const;

    // The order in which the viewers stand below one another.
    [[nodiscard]] TXVariantViewer *parentViewer() const;
    [[nodiscard]] const TXVariantViewer *rootViewer() const;
    [[nodiscard]] TXVariantViewer *rootViewer();
    [[nodiscard]] qsizetype entryCount() const;
    [[nodiscard]] TXVariantViewer *entryViewer(qsizetype index) const;
    [[nodiscard]] qsizetype indexOfEntry(const TXVariantViewer *entry) const;
    [[nodiscard]] TXVariantViewer *siblingViewer(int step) const;
    [[nodiscard]] QWidget *lastShown();
    [[nodiscard]] QWidget *shownAbove() const;
    [[nodiscard]] QWidget *shownBelow() const;
    [[nodiscard]] QWidget *shownBehind() const;

    // What is painted, and the light of the mouse.
    void paintFoldBox(QPainter &painter) const;
    void paintBracket(QPainter &painter) const;
    void takeParentPalette();

    // What the keyboard, the mouse and assistive tools do.
    void prepareForUser();
    [[nodiscard]] bool useKey(const QKeyEvent &event);
    [[nodiscard]] QWidget *targetOfKey(int key);
    [[nodiscard]] QWidget *targetOfKeyOnButton(int key);
    [[nodiscard]] bool moveTo(QWidget *target);
    [[nodiscard]] bool foldByKey(int key);
    void takeFocusFromEntries();
    void updateFocusFrame();
    [[nodiscard]] QRect lineArea() const;
    [[nodiscard]] QRect lineAreaWithKey() const;
    [[nodiscard]] QPoint menuPosition() const;
    void copy(const QVariant &copied);
    void announceFolding();
    void announceValue();

    QVariant value;
    QLabel *label;
    QList<QWidget *> childWidgets;
    bool expanded = false;
    bool hoverEffectsWanted = false;
    bool preview = true;
    /// What of an open level has no row yet; null when all have.
    std::unique_ptr<VariantEntries> entries;
    /// Stands below the rows while `entries` has some left, else null.
    VariantMoreButton *moreButton = nullptr;
    /// The name of the entry that this viewer shows, when it stands in a dictionary.
    QString entryKey;
    /// The place of this entry among its siblings, from 0; -1 for a root.
    qsizetype entryPlace = -1;
};
