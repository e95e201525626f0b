#include "TXDBNavWidget.h"

#include "OwnTitle.h"
#include "SingleStatement.h"
#include "TXSqlTableModel.h"
#include "ui_TXDBNavWidget.h"

#include <QEvent>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <algorithm>
#include <limits>

namespace {

/// The rows of the table that the filter lets through; 0 when the database refuses. Costs what the
/// database needs to count them.
quint64 countRows(const QString &table, const QString &filter, const QSqlDatabase &database)
{
    QString statement = QStringLiteral("SELECT COUNT(*) FROM ") + table;
    if (!filter.isEmpty()) {
        statement += QStringLiteral(" WHERE ") + filter;
    }
    // Qt would warn of a closed connection.
    if (!database.isOpen() || !SingleStatement::isSingle(statement, database)) {
        return 0;
    }
    QSqlQuery query(statement, database);
    return query.next() ? query.value(0).toULongLong() : 0;
}

qulonglong countPages(quint64 rows, qulonglong limit)
{
    if (limit == 0) {
        return 1;
    }
    // Where the sum is beyond 64 bits, all rows fit on one page, and what is left of it gives 0.
    return std::max<qulonglong>(1, (limit + rows - 1) / limit);
}

qulonglong pageOf(qulonglong offset, qulonglong limit, qulonglong pages)
{
    return limit == 0 ? 1 : std::min(offset / limit, pages - 1) + 1;
}

int spinBoxNumber(qulonglong number)
{
    return static_cast<int>(std::min<qulonglong>(number, std::numeric_limits<int>::max()));
}

} // namespace

TXDBNavWidget::TXDBNavWidget(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::TXDBNavWidget>())
{
    ui->setupUi(this);
    OwnTitle::remember(*this);
    connect(ui->gotoSpinBox, SIGNAL(valueChanged(int)), this, SLOT(update()));
}

TXDBNavWidget::~TXDBNavWidget() = default;

void TXDBNavWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        OwnTitle::retranslate(*ui, *this);
    }
}

TXSqlTableModel *TXDBNavWidget::model() const
{
    return currentModel;
}

void TXDBNavWidget::setModel(TXSqlTableModel *model)
{
    if (currentModel != nullptr) {
        currentModel->disconnect(SIGNAL(rowsInserted(QModelIndex, int, int)), this,
                                 SLOT(refresh()));
        currentModel->disconnect(SIGNAL(rowsRemoved(QModelIndex, int, int)), this, SLOT(refresh()));
        currentModel->disconnect(SIGNAL(filterChanged(QString)), this, SLOT(refresh()));
    }
    currentModel = model;
    if (model == nullptr) {
        return;
    }
    connect(model, SIGNAL(rowsInserted(QModelIndex, int, int)), this, SLOT(refresh()));
    connect(model, SIGNAL(rowsRemoved(QModelIndex, int, int)), this, SLOT(refresh()));
    connect(model, SIGNAL(filterChanged(QString)), this, SLOT(refresh()));
    refresh();
}

qulonglong TXDBNavWidget::offset() const
{
    return currentModel == nullptr ? 0 : currentModel->offset;
}

void TXDBNavWidget::setOffset(qulonglong offset)
{
    if (currentModel != nullptr) {
        currentModel->offset = offset;
    }
}

qulonglong TXDBNavWidget::limit() const
{
    return currentModel == nullptr ? 0 : currentModel->limit;
}

void TXDBNavWidget::setLimit(qulonglong limit)
{
    if (currentModel != nullptr) {
        currentModel->limit = limit;
    }
}

bool TXDBNavWidget::select()
{
    return currentModel != nullptr && currentModel->select();
}

void TXDBNavWidget::refresh()
{
    if (currentModel != nullptr) {
        rowCount =
            countRows(currentModel->tableName(), currentModel->filter(), currentModel->database());
    }
    const qulonglong pages = countPages(rowCount, limit());
    const int page = spinBoxNumber(pageOf(offset(), limit(), pages));
    if (page != ui->gotoSpinBox->value()) {
        // Before the new maximum: this selects the page anew, through update().
        ui->gotoSpinBox->setValue(page);
    }
    ui->gotoSpinBox->setMaximum(spinBoxNumber(pages));
    ui->gotoSpinBox->setSuffix(QStringLiteral("/%1").arg(pages));
    emit severalPages(pages >= 2);
}

void TXDBNavWidget::update()
{
    if (currentModel == nullptr) {
        return;
    }
    currentModel->offset = std::min<qulonglong>(rowCount, spinBoxOffset());
    currentModel->select();
}

qulonglong TXDBNavWidget::spinBoxOffset() const
{
    const auto pagesBefore = static_cast<qulonglong>(ui->gotoSpinBox->value() - 1);
    const qulonglong most = std::numeric_limits<qulonglong>::max();
    const bool isTooMuch = pagesBefore > 0 && limit() > most / pagesBefore;
    return isTooMuch ? most : pagesBefore * limit();
}
