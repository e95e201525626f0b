#include "FormControls.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QRadioButton>
#include <QScrollArea>
#include <QSet>
#include <QStackedWidget>
#include <QTest>

namespace {

/// More presses than any form has controls.
constexpr int kMostPresses = 400;

bool isMadeByQt(const QWidget &widget)
{
    return widget.objectName().startsWith(QLatin1String("qt_"));
}

bool isInside(const QWidget &widget, const char *className)
{
    for (const QWidget *around = widget.parentWidget(); around != nullptr;
         around = around->parentWidget()) {
        if (around->inherits(className)) {
            return true;
        }
    }
    return false;
}

bool isField(const QWidget &widget)
{
    const QWidget *around = widget.parentWidget();
    return qobject_cast<const QLineEdit *>(&widget) != nullptr
        && (qobject_cast<const QAbstractSpinBox *>(around) != nullptr
            || qobject_cast<const QComboBox *>(around) != nullptr);
}

bool isViewport(const QWidget &widget)
{
    const auto *area = qobject_cast<const QAbstractScrollArea *>(widget.parentWidget());
    return area != nullptr && area->viewport() == &widget;
}

bool isEmptyLabel(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    return label != nullptr && label->text().isEmpty() && label->pixmap(Qt::ReturnByValue).isNull();
}

/// A button that is hidden until there is something for it to stand for.
bool waitsForText(const QWidget &widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    return button != nullptr && button->isHidden() && button->text().isEmpty()
        && button->icon().isNull();
}

/// The arrow keys of the chosen button of a group lead to the others.
bool isReachedByArrows(const QWidget &widget)
{
    const auto *button = qobject_cast<const QRadioButton *>(&widget);
    return button != nullptr && button->autoExclusive() && !button->isChecked();
}

QRect placeOf(const QWidget &widget)
{
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

bool haveCommonPart(int first, int last, int otherFirst, int otherLast)
{
    return first <= otherLast && otherFirst <= last;
}

bool isBackwards(const QRect &current, const QRect &next)
{
    if (haveCommonPart(current.top(), current.bottom(), next.top(), next.bottom())) {
        return next.right() < current.left();
    }
    return next.bottom() < current.top()
        && haveCommonPart(current.left(), current.right(), next.left(), next.right());
}

/// The text of the label whose buddy the control is.
QString labelOf(const QAccessibleInterface &control)
{
    const auto labels = control.relations(QAccessible::Label);
    for (const auto &[label, relation] : labels) {
        if (qobject_cast<const QLabel *>(label->object()) != nullptr) {
            return label->text(QAccessible::Name);
        }
    }
    return {};
}

/// Whether a name that nobody has given is the title of the group around, or the example in an
/// empty field.
bool isBorrowed(const QWidget &control, const QString &name)
{
    const auto *group = qobject_cast<const QGroupBox *>(control.parentWidget());
    const auto *field = qobject_cast<const QLineEdit *>(&control);
    const bool isExample = field != nullptr && field->placeholderText() == name;
    const bool isTitle =
        group != nullptr && QString(group->title()).remove(QLatin1Char('&')) == name;
    const bool isOwnText = !control.property("text").toString().isEmpty() && field == nullptr;
    const bool isBox = qobject_cast<const QGroupBox *>(&control) != nullptr;
    return !isOwnText && !isBox && (isExample || isTitle);
}

/// The nearest group box around, or null.
const QWidget *groupOf(const QWidget &control)
{
    const QWidget *around = control.parentWidget();
    while (around != nullptr && qobject_cast<const QGroupBox *>(around) == nullptr) {
        around = around->isWindow() ? nullptr : around->parentWidget();
    }
    return around;
}

} // namespace

bool FormControls::isPart(const QWidget &widget)
{
    return isMadeByQt(widget) || isInside(widget, "QComboBoxPrivateContainer")
        || widget.inherits("QComboBoxPrivateContainer")
        || qobject_cast<const QHeaderView *>(&widget) != nullptr || isField(widget)
        || isViewport(widget);
}

QList<QWidget *> FormControls::of(QWidget &form)
{
    QList<QWidget *> controls;
    QList<QWidget *> widgets = form.findChildren<QWidget *>();
    widgets.prepend(&form);
    for (QWidget *widget : std::as_const(widgets)) {
        const bool takesFocus = (widget->focusPolicy() & Qt::StrongFocus) != 0;
        if (takesFocus && widget->focusProxy() == nullptr && !isPart(*widget)
            && !isEmptyLabel(*widget)) {
            controls.append(widget);
        }
    }
    return controls;
}

QString FormControls::inWords(const QWidget &widget)
{
    const QWidget *around = widget.parentWidget();
    return QStringLiteral("%1 \"%2\" in %3 \"%4\"")
        .arg(QString::fromLatin1(widget.metaObject()->className()), widget.objectName(),
             QString::fromLatin1(around == nullptr ? "" : around->metaObject()->className()),
             around == nullptr ? QString() : around->objectName());
}

/// On Linux the name of Qt's combo boxes is what they show; their label is told beside it.
QString FormControls::spokenName(QWidget &control)
{
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&control);
    if (accessible == nullptr) {
        return {};
    }
    if (qobject_cast<const QComboBox *>(&control) != nullptr) {
        return control.accessibleName().isEmpty() ? labelOf(*accessible) : control.accessibleName();
    }
    const QString name = accessible->text(QAccessible::Name);
    const bool isGiven = !control.accessibleName().isEmpty() || !labelOf(*accessible).isEmpty();
    return isGiven || !isBorrowed(control, name) ? name : QString();
}

QStringList FormControls::nameless(QWidget &form)
{
    QStringList found;
    const QList<QWidget *> controls = of(form);
    for (QWidget *control : controls) {
        if (spokenName(*control).trimmed().isEmpty() && !waitsForText(*control)) {
            found.append(inWords(*control));
        }
    }
    return found;
}

QStringList FormControls::mutePictures(QWidget &form)
{
    QStringList found;
    QList<QWidget *> widgets = form.findChildren<QWidget *>();
    widgets.prepend(&form);
    for (QWidget *widget : std::as_const(widgets)) {
        const bool isQts = widget->metaObject()->className()[0] == 'Q';
        const bool isLeaf = widget->findChildren<QWidget *>().isEmpty();
        const bool isEmptyRoom = qobject_cast<const QStackedWidget *>(widget) != nullptr;
        if (isQts || !isLeaf || isEmptyRoom || widget->isHidden() || isPart(*widget)
            || isEmptyLabel(*widget)) {
            continue;
        }
        const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(widget);
        if ((told->text(QAccessible::Name) + told->text(QAccessible::Description)
             + told->text(QAccessible::Value))
                .isEmpty()) {
            found.append(inWords(*widget));
        }
    }
    return found;
}

QStringList FormControls::unclean(QWidget &form, Names names)
{
    QStringList found;
    const QList<QWidget *> controls = of(form);
    for (QWidget *control : controls) {
        if (names == Names::Unseen && control->accessibleName().isEmpty()) {
            continue;
        }
        const QString name = spokenName(*control);
        if (name.contains(QLatin1Char('&')) || name.endsWith(QLatin1Char(':'))
            || name != name.trimmed()) {
            found.append(name + QStringLiteral(": ") + inWords(*control));
        }
    }
    return found;
}

QStringList FormControls::ambiguous(QWidget &form)
{
    QStringList found;
    QMap<std::tuple<const QWidget *, int, QString>, const QWidget *> known;
    const QList<QWidget *> controls = of(form);
    for (QWidget *control : controls) {
        if (!control->isVisibleTo(&form) || !control->isEnabledTo(&form)) {
            continue;
        }
        const int role = QAccessible::queryAccessibleInterface(control)->role();
        const std::tuple key(groupOf(*control), role, spokenName(*control));
        if (known.contains(key)) {
            found.append(spokenName(*control) + QStringLiteral(": ") + inWords(*known.value(key))
                         + QStringLiteral(" and ") + inWords(*control));
        }
        known.insert(key, control);
    }
    return found;
}

QList<QWidget *> FormControls::tabStops(QWidget &form)
{
    QList<QWidget *> stops;
    QList<QWidget *> widgets = form.findChildren<QWidget *>();
    widgets.prepend(&form);
    for (QWidget *widget : std::as_const(widgets)) {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isEnabled()
            && widget->isVisible() && widget->focusProxy() == nullptr && !isReachedByArrows(*widget)
            && widget->window() == form.window()) {
            stops.append(widget);
        }
    }
    return stops;
}

QList<QWidget *> FormControls::walk(QWidget &start, bool isForwards)
{
    QList<QWidget *> steps;
    start.setFocus(Qt::TabFocusReason);
    QWidget *last = &start;
    for (int press = 0; press < kMostPresses; ++press) {
        QTest::keyClick(QApplication::focusWidget(), isForwards ? Qt::Key_Tab : Qt::Key_Backtab,
                        isForwards ? Qt::NoModifier : Qt::ShiftModifier);
        QWidget *const next = QApplication::focusWidget();
        steps.append(next);
        // Within a label the key goes from link to link.
        const bool isBack = next == &start && last != &start;
        if (isBack || next == nullptr) {
            break;
        }
        last = next;
    }
    return steps;
}

QWidget *FormControls::firstStop(QWidget &form, const QList<QWidget *> &stops)
{
    QWidget *widget = &form;
    for (int step = 0; step < kMostPresses * kMostPresses; ++step) {
        if (stops.contains(widget)) {
            return widget;
        }
        widget = widget->nextInFocusChain();
    }
    return nullptr;
}

QStringList FormControls::missing(const QList<QWidget *> &steps, const QList<QWidget *> &stops)
{
    const QSet<QWidget *> reached(steps.begin(), steps.end());
    QStringList found;
    for (QWidget *stop : stops) {
        if (!reached.contains(stop)) {
            found.append(inWords(*stop));
        }
    }
    return found;
}

void FormControls::scrollTo(QWidget &control)
{
    for (QWidget *around = control.parentWidget(); around != nullptr;
         around = around->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(around)) {
            area->ensureWidgetVisible(&control);
        }
    }
}

QStringList FormControls::backwardSteps(const QList<QWidget *> &steps, const QWidget &form)
{
    QStringList found;
    for (qsizetype i = 1; i < steps.size(); ++i) {
        const QWidget &current = *steps[i - 1];
        const QWidget &next = *steps[i];
        if (form.isAncestorOf(&current) && form.isAncestorOf(&next)
            && isBackwards(placeOf(current), placeOf(next))) {
            found.append(inWords(current) + QStringLiteral(" -> ") + inWords(next));
        }
    }
    return found;
}
