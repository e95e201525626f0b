#include "TextRoom.h"

#include "ElidingHeader.h"
#include "RotationLabel.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QStyleOption>
#include <QTabBar>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QToolButton>

#include <cmath>

namespace {

/// The bounds of a text are rounded up, its place in a layout is not always.
constexpr QSize kRounded(1, 1);

QString nameOf(const QWidget *widget)
{
    return QStringLiteral("%1 %2").arg(QString::fromLatin1(widget->metaObject()->className()),
                                       widget->objectName());
}

QString sizeText(QSize size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

/// The text's room with a mnemonic's "&" left out. A font that lends signs may have a higher line
/// than the widget's own: then the signs themselves are what needs room.
QSize roomOf(const QWidget *widget, const QString &text)
{
    const QFontMetrics metrics = widget->fontMetrics();
    const QSize size = metrics.size(Qt::TextShowMnemonic, text);
    const int signs = std::max(metrics.height(), metrics.tightBoundingRect(text).height());
    return text.contains(u'\n') ? size : QSize(size.width(), std::min(size.height(), signs));
}

QString plain(const QString &text)
{
    return QTextDocumentFragment::fromHtml(text).toPlainText().simplified();
}

/// The tooltip of the widget, or of the next around it that has one, says the text.
bool isToldByTooltip(const QWidget *widget, const QString &text)
{
    QString wanted = text;
    wanted.remove(u'&');
    return plain(widget->toolTip()).contains(plain(wanted));
}

class Search
{
public:
    Search(const QWidget &window, bool (*isOfInterest)(const QString &))
        : window(window)
        , isOfInterest(isOfInterest)
    { }

    QStringList run()
    {
        const auto widgets = window.findChildren<QWidget *>();
        look(&window);
        for (const QWidget *widget : widgets) {
            if (widget->window() == &window && widget->isVisible()) {
                look(widget);
                lookAtPlace(widget);
            }
        }
        return found;
    }

private:
    void look(const QWidget *widget)
    {
        if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            lookAtLabel(label);
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            lookAtButton(button);
        } else if (const auto *group = qobject_cast<const QGroupBox *>(widget)) {
            lookAtGroup(group);
        } else if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
            lookAtTabs(tabs);
        } else if (const auto *header = qobject_cast<const QHeaderView *>(widget)) {
            lookAtHeader(header);
        } else {
            lookAtField(widget);
        }
        if (widget->layout()) {
            lookAtLayout(widget->layout());
        }
    }

    void lookAtField(const QWidget *widget)
    {
        if (const auto *box = qobject_cast<const QComboBox *>(widget)) {
            lookAtComboBox(box);
        } else if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
            lookAtLineEdit(edit);
        } else if (const auto *bar = qobject_cast<const QProgressBar *>(widget)) {
            need(bar, bar->isTextVisible() ? bar->text() : QString(), bar->size());
        }
    }

    void need(const QWidget *widget, const QString &text, QSize room)
    {
        needRoom(widget, text, roomOf(widget, text), room);
    }

    void needRoom(const QWidget *widget, const QString &text, QSize needed, QSize room)
    {
        const bool fits = needed.boundedTo(room + kRounded) == needed;
        if (isOfInterest(text) && !fits && !isToldByTooltip(widget, text)) {
            found.append(QStringLiteral("%1 needs %2, has %3: %4")
                             .arg(nameOf(widget), sizeText(needed), sizeText(room), text));
        }
    }

    void lookAtLabel(const QLabel *label)
    {
        const int margins = 2 * label->margin() + std::max(0, label->indent());
        QSize room = label->contentsRect().size() - QSize(margins, 2 * label->margin());
        const auto *turned = qobject_cast<const RotationLabel *>(label);
        if (turned && turned->rotation() != RotationLabel::NoRotation) {
            room.transpose();
        }
        needRoom(label, label->text(), neededBy(label, room.width()), room);
    }

    static QSize neededBy(const QLabel *label, int width)
    {
        const bool isRich = label->textFormat() == Qt::RichText
            || (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text()));
        if (isRich) {
            QTextDocument document;
            document.setDefaultFont(label->font());
            document.setDocumentMargin(0);
            document.setHtml(label->text());
            if (label->wordWrap()) {
                document.setTextWidth(width);
            }
            return {int(std::floor(document.idealWidth())), int(document.size().height())};
        }
        const int mnemonic = label->buddy() ? Qt::TextShowMnemonic : 0;
        const int wrap = label->wordWrap() ? Qt::TextWordWrap : 0;
        return label->fontMetrics()
            .boundingRect(QRect(0, 0, label->wordWrap() ? width : 100000, 100000),
                          int(label->alignment()) | wrap | mnemonic, label->text())
            .size();
    }

    void lookAtButton(const QAbstractButton *button)
    {
        QStyleOptionButton option;
        option.initFrom(button);
        option.text = button->text();
        option.icon = button->icon();
        option.iconSize = button->iconSize();
        QSize room = button->size();
        if (qobject_cast<const QCheckBox *>(button)) {
            room = button->style()
                       ->subElementRect(QStyle::SE_CheckBoxContents, &option, button)
                       .size();
        } else if (qobject_cast<const QRadioButton *>(button)) {
            room = button->style()
                       ->subElementRect(QStyle::SE_RadioButtonContents, &option, button)
                       .size();
        } else if (qobject_cast<const QPushButton *>(button)) {
            room = button->style()
                       ->subElementRect(QStyle::SE_PushButtonContents, &option, button)
                       .size();
            room.rheight() = button->height();
        }
        const auto *tool = qobject_cast<const QToolButton *>(button);
        const bool isIconOnly =
            tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull();
        if (!isIconOnly) {
            const bool isBeside = !tool || tool->toolButtonStyle() == Qt::ToolButtonTextBesideIcon;
            const int icon =
                button->icon().isNull() || !isBeside ? 0 : button->iconSize().width() + 4;
            need(button, button->text(), room - QSize(icon, 0));
        }
    }

    void lookAtGroup(const QGroupBox *group)
    {
        /// What is painted, with the box for a check mark beside the title, or another before it.
        class OptionOf : public QGroupBox
        {
        public:
            static void init(const QGroupBox &group, QStyleOptionGroupBox *option)
            {
                (group.*(&OptionOf::initStyleOption))(option);
            }
        };
        QStyleOptionGroupBox option;
        OptionOf::init(*group, &option);
        const QRect label = group->style()->subControlRect(QStyle::CC_GroupBox, &option,
                                                           QStyle::SC_GroupBoxLabel, group);
        const QRect inside = label.intersected(group->rect());
        need(group, group->title(), inside.size());
    }

    void lookAtTabs(const QTabBar *tabs)
    {
        for (int tab = 0; tab < tabs->count(); ++tab) {
            const QRect place = tabs->tabRect(tab).intersected(tabs->rect());
            need(tabs, tabs->isTabVisible(tab) ? tabs->tabText(tab) : QString(), place.size());
        }
    }

    void lookAtHeader(const QHeaderView *header)
    {
        if (qobject_cast<const ElidingHeader *>(header)) {
            return;
        }
        const int margin = header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
        for (int section = 0; header->model() && section < header->count(); ++section) {
            const QString text =
                header->model()->headerData(section, header->orientation()).toString();
            const bool isAcross = header->orientation() == Qt::Horizontal;
            const int length = header->sectionSize(section);
            const QSize place =
                isAcross ? QSize(length, header->height()) : QSize(header->width(), length);
            const bool isShown = !header->isSectionHidden(section);
            const QString tip =
                plain(header->model()
                          ->headerData(section, header->orientation(), Qt::ToolTipRole)
                          .toString());
            if (isShown && !tip.contains(plain(text))) {
                need(header, text, place - QSize(2 * margin, 0));
            }
        }
    }

    void lookAtComboBox(const QComboBox *box)
    {
        QStyleOptionComboBox option;
        option.initFrom(box);
        option.editable = box->isEditable();
        option.frame = box->hasFrame();
        const QRect field = box->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                         QStyle::SC_ComboBoxEditField, box);
        for (int row = 0; row < box->count(); ++row) {
            const int icon = box->itemIcon(row).isNull() ? 0 : box->iconSize().width() + 4;
            const QString text = box->itemText(row);
            needRoom(box, text, QSize(box->fontMetrics().horizontalAdvance(text), 0),
                     field.size() - QSize(icon, 0));
        }
    }

    void lookAtLineEdit(const QLineEdit *edit)
    {
        const auto *spinBox = qobject_cast<const QAbstractSpinBox *>(edit->parentWidget());
        const QString text = spinBox ? spinBox->text() : edit->placeholderText();
        needRoom(edit, text, QSize(edit->fontMetrics().horizontalAdvance(text), 0),
                 edit->contentsRect().size());
    }

    /// A scroll area's content, and what stands on it, may lie where it can be scrolled into view.
    void lookAtPlace(const QWidget *widget)
    {
        const QWidget *parent = widget->parentWidget();
        const auto *area = qobject_cast<const QAbstractScrollArea *>(
            parent->parentWidget() ? parent->parentWidget() : nullptr);
        if (widget->isWindow() || widget->size().isEmpty()) {
            return;
        }
        QRect allowed = parent->rect();
        if (area && area->viewport() == parent) {
            const bool goesAcross = area->horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
            const bool goesDown = area->verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
            const int far = 1000000;
            allowed.adjust(goesAcross ? -far : 0, goesDown ? -far : 0, goesAcross ? far : 0,
                           goesDown ? far : 0);
        }
        if (qobject_cast<const QSplitter *>(parent)) {
            // From right to left a splitter places its parts a pixel further.
            allowed.adjust(-1, 0, 1, 0);
        }
        if (!allowed.contains(widget->geometry())) {
            const QRect place = widget->geometry();
            found.append(
                QStringLiteral("%1 at %2,%3 %4 reaches out of %5 of %6")
                    .arg(nameOf(widget))
                    .arg(place.x())
                    .arg(place.y())
                    .arg(sizeText(place.size()), nameOf(parent), sizeText(parent->size())));
        }
    }

    void lookAtLayout(const QLayout *layout)
    {
        QList<QWidget *> placed;
        for (int index = 0; index < layout->count(); ++index) {
            QLayoutItem *item = layout->itemAt(index);
            if (item->layout()) {
                lookAtLayout(item->layout());
            } else if (item->widget() && item->widget()->isVisible()) {
                placed.append(item->widget());
            }
        }
        for (qsizetype first = 0; first < placed.size(); ++first) {
            for (qsizetype second = first + 1; second < placed.size(); ++second) {
                if (placed[first]->geometry().intersects(placed[second]->geometry())) {
                    found.append(QStringLiteral("%1 covers %2")
                                     .arg(nameOf(placed[first]), nameOf(placed[second])));
                }
            }
        }
    }

    const QWidget &window;
    bool (*isOfInterest)(const QString &);
    QStringList found;
};

} // namespace

QStringList TextRoom::problems(const QWidget &window, bool (*isOfInterest)(const QString &))
{
    return Search(window, isOfInterest).run();
}
