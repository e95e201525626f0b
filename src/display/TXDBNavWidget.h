#pragma once

#include "TXGUICommonExport.h"

#include <QWidget>

#include <memory>

class TXSqlTableModel;

namespace Ui {
class TXDBNavWidget;
}

/// A spin box that turns the pages of a TXSqlTableModel: "Page: 3/12".
///
///     model->setTable("measurements");
///     navigator->setModel(model);
///     navigator->setLimit(100);
///     navigator->refresh();
///     navigator->select();
///
/// The rows of the table are counted by a query at each refresh(). A count that fails reads as an
/// empty table, of one page.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXDBNavWidget : public QWidget
{
    Q_OBJECT

public:
    /// A navigator without a model.
    explicit TXDBNavWidget(QWidget *parent = nullptr);
    ~TXDBNavWidget() override;

    /// The model whose pages are turned; null at first.
    [[nodiscard]] TXSqlTableModel *model() const;
    /// Sets the model, which is not owned; null lets the one before go and leaves the numbers as
    /// they are. A model refreshes the navigator at once, and from now on whenever rows are
    /// inserted or removed and whenever the filter changes.
    void setModel(TXSqlTableModel *model);

    /// The first row of the model's page; 0 without a model.
    [[nodiscard]] qulonglong offset() const;
    /// Sets it in the model, which shows it from its next select() on; nothing without a model.
    void setOffset(qulonglong offset);

    /// Rows of the model's page, 0 for no paging; 0 without a model.
    [[nodiscard]] qulonglong limit() const;
    /// Sets it in the model; nothing without a model. Seen from the next refresh() on.
    void setLimit(qulonglong limit);

    /// The model's select(); false without a model.
    bool select();

signals:
    /// Whether there are two pages or more. Emitted at every refresh(), also when nothing changed.
    void severalPages(bool areSeveral);

public slots:
    /// Counts the rows and shows the pages that they make. The page that shows stays, held to the
    /// last one; when that makes it another page, the model selects it.
    void refresh();

    /// Lets the model select the page that the spin box tells. Hides the function of QWidget.
    void update();

private:
    [[nodiscard]] qulonglong pageCount() const;
    [[nodiscard]] qulonglong currentPage(qulonglong pages) const;

    std::unique_ptr<Ui::TXDBNavWidget> ui;
    TXSqlTableModel *currentModel = nullptr;
    quint64 rowCount = 0;
};
