#pragma once

#include <QAccessible>

class ReportPageAccessible;

/// One text of a page as screen readers know it.
class ReportTextAccessible final : public QAccessibleInterface
{
public:
    /// The text of this index of a page, which deletes it.
    ReportTextAccessible(const ReportPageAccessible &page, int index);

    /// The index among the texts of the page.
    [[nodiscard]] int index() const { return textIndex; }

    /// True as long as the page has so many texts.
    [[nodiscard]] bool isValid() const override;
    /// Null: no object stands for a text.
    [[nodiscard]] QObject *object() const override { return nullptr; }
    [[nodiscard]] QWindow *window() const override;
    /// The name is the text itself.
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    /// Nothing: a report is read only.
    void setText(QAccessible::Text kind, const QString &text) override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::StaticText; }
    [[nodiscard]] QAccessible::State state() const override;
    /// The page.
    [[nodiscard]] QAccessibleInterface *parent() const override;
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface *child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override;

private:
    const ReportPageAccessible &page;
    int textIndex;
};
