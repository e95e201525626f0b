#pragma once

#include "TXGUICommonExport.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class TXSqlTableModel;

namespace Ui {
class TXDBNavWidget;
}

/// A spin box that turns the pages of a TXSqlTableModel: "Page: 3/12".
///
///     model->setTable("measurements");
///     model->limit = 100;
///     model->select();
///     navigator->setModel(model);
///
/// The rows of the table are counted by a query at each refresh(). A count that fails reads as an
/// empty table, of one page; nothing is told, the model's select() has the reason in lastError().
/// The name of the table stands in the count as the model has it: a name that needs quotes is given
/// to the model with its quotes, else there is nothing to count.
///
/// Turning the page selects at once, at each digit that the user types, too. It drops what was
/// changed in the model and not submitted.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXDBNavWidget : public QWidget
{
    Q_OBJECT

public:
    /// A navigator without a model.
    explicit TXDBNavWidget(QWidget *parent = nullptr);
    ~TXDBNavWidget() override;

    /// The model whose pages are turned; null at first, and again when the model was deleted.
    [[nodiscard]] TXSqlTableModel *model() const;
    /// Sets the model, which is not owned; null lets the one before go and leaves the numbers as
    /// they are. A model refreshes the navigator at once, and from now on whenever rows are
    /// inserted or removed and whenever the filter changes. It tells neither a new limit nor what
    /// others do in the database, nor that rows were deleted there: call refresh() then.
    void setModel(TXSqlTableModel *model);

    /// The first row of the model's page; 0 without a model.
    [[nodiscard]] qulonglong offset() const;
    /// Sets it in the model, which shows it from its next select() on; nothing without a model.
    void setOffset(qulonglong offset);

    /// Rows of the model's page, 0 for no paging; 0 without a model.
    [[nodiscard]] qulonglong limit() const;
    /// Sets it in the model; nothing without a model. Seen from the next refresh() on.
    void setLimit(qulonglong limit);

    /// The model's select(), which counts nothing; false without a model.
    bool select();

signals:
    /// Whether there are two pages or more. Emitted at every refresh(), also when nothing changed.
    void severalPages(bool areSeveral);

public slots:
    /// Counts the rows, by one query, and shows the pages that they make; without a model, one
    /// page. The page that shows stays, held to the last one; when that makes it another page, the
    /// model selects it.
    void refresh();

    /// Lets the model select the page that the spin box tells, at most one behind the last row of
    /// the last count. Nothing without a model. Hides the function of QWidget.
    void update();

protected:
    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] qulonglong spinBoxOffset() const;

    std::unique_ptr<Ui::TXDBNavWidget> ui;
    QPointer<TXSqlTableModel> currentModel;
    quint64 rowCount = 0;
};
