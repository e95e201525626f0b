#include "ShownTexts.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QSpinBox>
#include <QTabBar>

namespace {

QStringList ofItems(const QWidget *widget)
{
    QStringList texts;
    if (const auto *box = qobject_cast<const QComboBox *>(widget)) {
        for (int row = 0; row < box->count(); ++row) {
            texts << box->itemText(row) << box->itemData(row, Qt::ToolTipRole).toString();
        }
        texts << box->placeholderText();
    } else if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab) {
            texts << tabs->tabText(tab) << tabs->tabToolTip(tab);
        }
    } else if (const auto *header = qobject_cast<const QHeaderView *>(widget)) {
        for (int section = 0; header->model() && section < header->count(); ++section) {
            for (const int role : {Qt::DisplayRole, Qt::ToolTipRole}) {
                texts
                    << header->model()->headerData(section, header->orientation(), role).toString();
            }
        }
    }
    return texts;
}

QStringList ofNumbers(const QWidget *widget)
{
    if (const auto *whole = qobject_cast<const QSpinBox *>(widget)) {
        return {whole->prefix(), whole->suffix(), whole->specialValueText()};
    }
    if (const auto *real = qobject_cast<const QDoubleSpinBox *>(widget)) {
        return {real->prefix(), real->suffix(), real->specialValueText()};
    }
    if (const auto *bar = qobject_cast<const QProgressBar *>(widget)) {
        return {bar->format()};
    }
    return {};
}

QStringList ofWidget(const QWidget *widget)
{
    QStringList texts = {widget->isWindow() ? widget->windowTitle() : QString(), widget->toolTip(),
                         widget->accessibleName(), widget->accessibleDescription()};
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        texts << label->text();
    } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        texts << button->text();
    } else if (const auto *group = qobject_cast<const QGroupBox *>(widget)) {
        texts << group->title();
    } else if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
        texts << edit->placeholderText();
    }
    const auto actions = widget->actions();
    for (const QAction *action : actions) {
        texts << action->text() << action->toolTip();
    }
    return texts + ofItems(widget) + ofNumbers(widget);
}

} // namespace

QStringList ShownTexts::of(const QWidget &window)
{
    return of(window, [](const QWidget * /*widget*/) { return true; });
}

QStringList ShownTexts::of(const QWidget &window,
                           const std::function<bool(const QWidget *)> &isOfInterest)
{
    QStringList all;
    QList<const QWidget *> widgets = {&window};
    const auto children = window.findChildren<QWidget *>();
    widgets.append(QList<const QWidget *>(children.cbegin(), children.cend()));
    widgets.removeIf([&isOfInterest](const QWidget *widget) { return !isOfInterest(widget); });
    for (const QWidget *widget : qAsConst(widgets)) {
        const QStringList texts = ofWidget(widget);
        for (const QString &text : texts) {
            if (!text.isEmpty()) {
                all.append(QStringLiteral("%1 %2: %3")
                               .arg(QString::fromLatin1(widget->metaObject()->className()),
                                    widget->objectName(), text));
            }
        }
    }
    return all;
}
