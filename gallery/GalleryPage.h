#pragma once

#include <QList>
#include <QString>
#include <QWidget>

/// A window that belongs to a page and stands beside the gallery's own.
struct GalleryFurtherWindow
{
    /// Added to the file name of the page's picture, with a dash: "window" gives log-window.png.
    QString name;
    /// The window, owned by its page. Never null.
    QWidget *window = nullptr;
};

/// Base of the gallery's pages.
///
/// A page is made when it is first shown and lives as long as the gallery's window, which shows
/// title and description above it and scrolls it when it needs more room than there is. Its own
/// margins are 0. A new page takes one line in gallery/CMakeLists.txt and one in GalleryPages.cpp.
class GalleryPage : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryPage(QWidget *parent = nullptr);

    /// One or two sentences in the language of the moment on what there is to see.
    [[nodiscard]] virtual QString description() const = 0;

    /// Called when the gallery opens for a user with this page in front: starts what is to move
    /// without a click. Does nothing by default.
    virtual void startByItself() { }

    /// Called once before a picture is taken, with the page shown: starts what fills the page with
    /// something to see. Does nothing by default.
    virtual void fillForPicture() { }

    /// False while a picture of the page would come too early. True by default.
    [[nodiscard]] virtual bool isReady() const { return true; }

    /// The further windows to take a picture of, once the page is ready. None by default.
    [[nodiscard]] virtual QList<GalleryFurtherWindow> furtherWindows() { return {}; }

signals:
    /// Emitted when isReady() has become true. A page that is always ready never emits it.
    void becameReady();

protected:
    /// Sets the texts again when the language changes.
    void changeEvent(QEvent *event) override;

    /// Sets all texts of the page in the language of the moment. The page, a final class, calls it
    /// itself at the end of its constructor, the base at each later change of the language.
    virtual void retranslate() = 0;
};
