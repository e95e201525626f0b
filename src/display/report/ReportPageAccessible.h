#pragma once

#include "TXReportText.h"

#include <QAccessible>
#include <QHash>
#include <QList>

#include <optional>

class TXReportAccessible;

/// A page as screen readers know it: a document whose children are its texts. They are looked for
/// when the first question for them comes.
class ReportPageAccessible final : public QAccessibleInterface
{
    Q_DISABLE_COPY_MOVE(ReportPageAccessible)

public:
    /// The page of this number, counted from 0, of a view, which deletes it.
    ReportPageAccessible(const TXReportAccessible &view, int number);
    /// Called by Qt. Takes the interfaces of the texts along.
    ~ReportPageAccessible() override;

    /// The number of the page, from 0.
    [[nodiscard]] int number() const { return pageNumber; }
    /// A text, for an index within the children.
    [[nodiscard]] const TXReportText &textAt(int index) const { return texts().at(index); }
    /// Whether there is such a text.
    [[nodiscard]] bool hasText(int index) const;
    /// Where the text is on the screen.
    [[nodiscard]] QRect textRect(int index) const;
    /// Read only, and off the screen when nothing of the text is within the view.
    [[nodiscard]] QAccessible::State textState(int index) const;

    /// True as long as the view shows so many pages.
    [[nodiscard]] bool isValid() const override;
    /// Null: no object stands for a page.
    [[nodiscard]] QObject *object() const override { return nullptr; }
    [[nodiscard]] QWindow *window() const override;
    /// The name is the page's number, from 1, of all.
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    /// Nothing: pages are not renamed.
    void setText(QAccessible::Text kind, const QString &text) override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Document; }
    [[nodiscard]] QAccessible::State state() const override;
    /// The view.
    [[nodiscard]] QAccessibleInterface *parent() const override;
    [[nodiscard]] int childCount() const override;
    /// Makes the interface of a text when it is asked for first; null outside of the texts.
    [[nodiscard]] QAccessibleInterface *child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;
    /// The uppermost of the texts there. Costs a step for each text of the page.
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override;

private:
    [[nodiscard]] const QList<TXReportText> &texts() const;
    [[nodiscard]] QAccessible::State stateOf(const QRectF &rect) const;

    const TXReportAccessible &view;
    int pageNumber;
    mutable std::optional<QList<TXReportText>> found;
    mutable QHash<int, QAccessible::Id> children;
};
