#include "GalleryWindow.h"

#include "FocusOutline.h"
#include "GalleryAboutWindow.h"
#include "GalleryHeader.h"
#include "GalleryIcon.h"
#include "GalleryLanguages.h"
#include "GalleryPage.h"
#include "GalleryPages.h"
#include "GallerySettings.h"
#include "LayoutKeys.h"
#include "PageListDelegate.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QResizeEvent>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize kFirstSize(1120, 740);
constexpr int kListMargin = 12;
constexpr int kListMinimumWidth = 190;
constexpr int kPageMargin = 28;
constexpr int kTitlePointsAboveNormal = 8;

/// Has the height that its text takes at the width it has got, in a low window too.
class DescriptionLabel final : public QLabel
{
public:
    using QLabel::QLabel;

    [[nodiscard]] QSize minimumSizeHint() const override
    {
        return {QLabel::minimumSizeHint().width(), heightForWidth(width())};
    }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QLabel::resizeEvent(event);
        if (event->oldSize().width() != width()) {
            updateGeometry();
        }
    }
};

QFrame *makeLine(QFrame::Shape shape, QWidget *parent)
{
    auto *line = new QFrame(parent);
    line->setFrameShape(shape);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    return line;
}

/// The widget inside the area to which the Tab key would come first, or null.
QWidget *firstFocusWidget(QWidget *area)
{
    for (QWidget *widget = area->nextInFocusChain(); widget != area;
         widget = widget->nextInFocusChain()) {
        const bool takesFocus = (widget->focusPolicy() & Qt::TabFocus) != 0;
        if (takesFocus && area->isAncestorOf(widget) && widget->isVisible()
            && widget->isEnabled()) {
            return widget;
        }
    }
    return nullptr;
}

} // namespace

GalleryWindow::GalleryWindow(GalleryLanguages &languages, const GallerySettings &settings)
    : languages(languages)
    , header(new GalleryHeader(this))
    , list(new QListWidget(this))
    , title(new QLabel(this))
    , description(new DescriptionLabel(this))
    , stack(new QStackedWidget(this))
    , pages(galleryPages().size())
    , areas(galleryPages().size())
{
    new FocusOutline(this);
    new LayoutKeys(this);
    setWindowIcon(galleryIcon());
    applyLooks(settings);
    setUpList();
    setUpLayout();
    setUpShortcuts();
    connect(header, SIGNAL(coloursChosen(GalleryColours)), this, SLOT(useColours(GalleryColours)));
    connect(header, SIGNAL(styleChosen(QString)), this, SLOT(useStyle(QString)));
    connect(header, SIGNAL(languageChosen(QString)), this, SLOT(useLanguage(QString)));
    connect(header, SIGNAL(aboutWanted()), this, SLOT(showAbout()));
    connect(&languages, SIGNAL(changed()), this, SLOT(showLanguages()));
    connect(list, SIGNAL(currentRowChanged(int)), this, SLOT(pageRowChanged(int)));
    retranslate();
    list->setCurrentRow(std::max(0, galleryPageRow(settings.page)));
    list->setFocus();
    resize(kFirstSize);
    restoreGeometry(settings.geometry);
}

void GalleryWindow::showPage(int row)
{
    if (row >= 0 && row < list->count()) {
        list->setCurrentRow(row);
    }
}

GalleryPage *GalleryWindow::currentPage() const
{
    return pages[list->currentRow()];
}

void GalleryWindow::growToPage()
{
    const QScrollArea *area = areas[list->currentRow()];
    const int wanted =
        std::max(currentPage()->sizeHint().height(), currentPage()->minimumSizeHint().height());
    const int missing = wanted - area->viewport()->height();
    if (missing > 0) {
        resize(width(), height() + missing);
    }
}

void GalleryWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QMainWindow::changeEvent(event);
}

void GalleryWindow::closeEvent(QCloseEvent *event)
{
    GallerySettings settings = GallerySettings::load();
    settings.geometry = saveGeometry();
    settings.page = galleryPages()[list->currentRow()].name();
    settings.save();
    QMainWindow::closeEvent(event);
}

void GalleryWindow::pageRowChanged(int row)
{
    if (row < 0) {
        return;
    }
    makePage(row);
    stack->setCurrentWidget(areas[row]);
    showPageTexts();
}

void GalleryWindow::useColours(GalleryColours colours)
{
    applyGalleryColours(colours);
    GallerySettings settings = GallerySettings::load();
    settings.colours = colours;
    settings.save();
}

void GalleryWindow::useStyle(const QString &key)
{
    applyGalleryStyle(key);
    GallerySettings settings = GallerySettings::load();
    settings.style = key;
    settings.save();
}

void GalleryWindow::useLanguage(const QString &code)
{
    languages.use(code);
    GallerySettings settings = GallerySettings::load();
    settings.language = code;
    settings.save();
}

void GalleryWindow::showNextPage()
{
    showPage((list->currentRow() + 1) % list->count());
}

void GalleryWindow::showPreviousPage()
{
    showPage((list->currentRow() + list->count() - 1) % list->count());
}

void GalleryWindow::moveFocus()
{
    QScrollArea *area = areas[list->currentRow()];
    QWidget *inPage =
        area->isAncestorOf(QApplication::focusWidget()) ? nullptr : firstFocusWidget(area);
    QWidget *next = inPage ? inPage : list;
    next->setFocus(Qt::TabFocusReason);
}

void GalleryWindow::applyLooks(const GallerySettings &settings)
{
    applyGalleryStyle(settings.style);
    applyGalleryColours(settings.colours);
    languages.use(settings.language);
    header->setStyleKey(galleryStyleKey(galleryStyleName()));
    header->setColours(settings.colours);
    showLanguages();
}

void GalleryWindow::showLanguages()
{
    header->setLanguages(languages.codes(), languages.current());
}

void GalleryWindow::showAbout()
{
    auto *about = new GalleryAboutWindow(GalleryAboutWindow::Version::WithQt, this);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
}

void GalleryWindow::setUpList()
{
    for (int row = 0; row < galleryPages().size(); ++row) {
        new QListWidgetItem(list);
    }
    list->setItemDelegate(new PageListDelegate(list));
    list->setFrameShape(QFrame::NoFrame);
    list->setMouseTracking(true);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->viewport()->setBackgroundRole(QPalette::Window);
}

void GalleryWindow::setUpLayout()
{
    auto *centre = new QWidget(this);
    auto *rows = new QVBoxLayout(centre);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(header);
    rows->addWidget(makeLine(QFrame::HLine, centre));

    auto *columns = new QHBoxLayout;
    auto *listSide = new QVBoxLayout;
    listSide->setContentsMargins(kListMargin, kListMargin, kListMargin, kListMargin);
    listSide->addWidget(list);
    columns->addLayout(listSide);
    columns->addWidget(makeLine(QFrame::VLine, centre));
    columns->addWidget(makePageSide(), 1);
    rows->addLayout(columns, 1);
    setCentralWidget(centre);
}

QWidget *GalleryWindow::makePageSide()
{
    QFont titleFont = font();
    titleFont.setPointSizeF(titleFont.pointSizeF() + kTitlePointsAboveNormal);
    titleFont.setWeight(QFont::DemiBold);
    title->setFont(titleFont);
    description->setWordWrap(true);
    description->setForegroundRole(QPalette::PlaceholderText);

    auto *side = new QWidget(this);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(kPageMargin, kPageMargin - kListMargin, kPageMargin, kPageMargin);
    // At the side where the language begins, also a title in letters of another direction.
    layout->addWidget(title, 0, Qt::AlignLeft);
    layout->addWidget(description);
    layout->addSpacing(kListMargin);
    layout->addWidget(stack, 1);
    return side;
}

void GalleryWindow::setUpShortcuts()
{
    new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageDown), this, SLOT(showNextPage()));
    new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageUp), this, SLOT(showPreviousPage()));
    new QShortcut(QKeySequence(Qt::Key_F6), this, SLOT(moveFocus()));
    new QShortcut(QKeySequence::Quit, this, SLOT(close()));
}

void GalleryWindow::makePage(int row)
{
    if (pages[row]) {
        return;
    }
    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    pages[row] = galleryPages()[row].create(area);
    area->setWidget(pages[row]);
    areas[row] = area;
    stack->addWidget(area);
}

void GalleryWindow::fitChoices()
{
    const auto boxes = findChildren<QComboBox *>();
    for (QComboBox *box : boxes) {
        // A box measures its texts again when its style changes.
        QEvent change(QEvent::StyleChange);
        QCoreApplication::sendEvent(box, &change);
    }
}

void GalleryWindow::retranslate()
{
    // When all the pages have set their texts.
    QMetaObject::invokeMethod(this, "fitChoices", Qt::QueuedConnection);
    // Dates and numbers of views follow the widget's locale, which does not change by itself.
    setLocale(QLocale());
    list->setAccessibleName(tr("Pages"));
    for (int row = 0; row < list->count(); ++row) {
        list->item(row)->setText(galleryPages()[row].translatedTitle());
    }
    // A low window needs the scroll bar beside the longest title.
    const int barWidth = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, list);
    list->setFixedWidth(std::max(kListMinimumWidth, list->sizeHintForColumn(0) + barWidth));
    if (list->currentRow() >= 0) {
        showPageTexts();
    }
}

void GalleryWindow::showPageTexts()
{
    const QString pageTitle = galleryPages()[list->currentRow()].translatedTitle();
    title->setText(pageTitle);
    description->setText(currentPage()->description());
    currentPage()->setAccessibleName(pageTitle);
    setWindowTitle(tr("%1 - TXGUICommon Gallery").arg(pageTitle));
}
