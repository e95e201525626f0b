#pragma once

#include "GalleryAppearance.h"

#include <QMainWindow>

#include <vector>

class GalleryHeader;
class GalleryLanguages;
class GalleryPage;
struct GallerySettings;
class QLabel;
class QListWidget;
class QScrollArea;
class QStackedWidget;

/// The gallery's window: a header with palette, style, language and the way to the About window,
/// the list of pages, and the page.
///
/// Ctrl+Page Down and Ctrl+Page Up go to the next and the previous page, F6 moves the keyboard
/// between the list and the page, Ctrl+Q ends the gallery. A page is made when it is first shown.
///
/// What the user picks in the header is applied and written to the settings at once; the geometry
/// and the page when the window is closed. What the window starts with is not written.
class GalleryWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Starts as the settings say: style, palette and language are the whole application's. An
    /// empty or unknown style or language leaves the one of the moment, an empty or unknown page
    /// is the first, an empty geometry the first size. The languages are the caller's and outlive
    /// the window.
    GalleryWindow(GalleryLanguages &languages, const GallerySettings &settings);

    /// Shows the page at this row of galleryPages(). A row outside changes nothing.
    void showPage(int row);

    /// The page that is shown; never null.
    [[nodiscard]] GalleryPage *currentPage() const;

    /// Makes the window taller, beyond the screen if need be, until the page needs no scroll bar.
    /// For pictures.
    void growToPage();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private slots:
    void pageRowChanged(int row);
    void useColours(GalleryColours colours);
    void useStyle(const QString &key);
    void useLanguage(const QString &code);
    void showLanguages();
    void fitChoices();
    void showAbout();
    void showNextPage();
    void showPreviousPage();
    void moveFocus();

private:
    void applyLooks(const GallerySettings &settings);
    void setUpList();
    void setUpLayout();
    void setUpShortcuts();
    QWidget *makePageSide();
    void makePage(int row);
    void retranslate();
    void showPageTexts();

    GalleryLanguages &languages;
    GalleryHeader *header;
    QListWidget *list;
    QLabel *title;
    QLabel *description;
    QStackedWidget *stack;
    std::vector<GalleryPage *> pages;
    std::vector<QScrollArea *> areas;
};
