#include "MeasurementTablePanel.h"

#include "MeasurementModel.h"
#include "MeasurementStatements.h"
#include "WaitCursor.h"
#include "WheelGuard.h"

#include "TXDBNavWidget.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QSqlError>
#include <QTableView>
#include <QTextDocument>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::array<int, 4> kRowsPerPage = {20, 100, 500, 1000};
constexpr int kFirstRowsPerPage = 1;
constexpr double kLargestDeltaE = 20;
constexpr double kDeltaEStep = 0.5;
constexpr int kViewHeight = 260;
constexpr int kPatchWidth = 150;
constexpr int kRowMargins = 8;
/// With a filter; one less without.
constexpr int kStatementLines = 4;

} // namespace

MeasurementTablePanel::MeasurementTablePanel(QWidget *parent)
    : GalleryPanel(parent)
    , filterLabel(new QLabel(this))
    , filterBox(new QDoubleSpinBox(this))
    , rowsLabel(new QLabel(this))
    , rowsBox(new QComboBox(this))
    , navigator(new TXDBNavWidget(this))
    , removeButton(new QPushButton(this))
    , view(new QTableView(this))
    , statementLabel(new QLabel(this))
    , statementEdit(new QPlainTextEdit(this))
    , answerLabel(new QLabel(this))
    , sortingLabel(new QLabel(this))
{
    filterBox->setRange(0, kLargestDeltaE);
    filterBox->setSingleStep(kDeltaEStep);
    // Each digit that is typed would count the rows of the table.
    filterBox->setKeyboardTracking(false);
    for (const int rows : kRowsPerPage) {
        rowsBox->addItem(QString(), rows);
    }
    rowsBox->setCurrentIndex(kFirstRowsPerPage);
    setUpView();
    setUpHeader();
    setUpStatement();
    guardFromWheel();
    setUpLayout();
    close();
    retranslate();
    connect(filterBox, SIGNAL(valueChanged(double)), this, SLOT(filter()));
    connect(rowsBox, SIGNAL(currentIndexChanged(int)), this, SLOT(setRowsPerPage()));
    connect(removeButton, SIGNAL(clicked()), this, SLOT(removeRows()));
    connect(navigator, SIGNAL(severalPages(bool)), this, SLOT(showPageNumbers(bool)));
}

MeasurementTablePanel::~MeasurementTablePanel()
{
    // The model goes before its connection.
    close();
}

void MeasurementTablePanel::open(const DatabasePlace &place)
{
    close();
    connection = std::make_unique<DatabaseConnection>(place);
    QSqlDatabase database = connection->database();
    if (database.open()) {
        show(database);
    } else {
        refusal = database.lastError().text();
        showAnswerText();
    }
}

void MeasurementTablePanel::showRow(qulonglong row)
{
    if (model) {
        navigator->setOffset(row / navigator->limit() * navigator->limit());
        navigator->refresh();
    }
}

void MeasurementTablePanel::close()
{
    navigator->setModel(nullptr);
    navigator->setEnabled(false);
    // The view would keep it.
    const QItemSelectionModel *selection = view->selectionModel();
    view->setModel(nullptr);
    delete selection;
    delete model;
    model = nullptr;
    connection.reset();
    statementEdit->clear();
    answerMilliseconds = -1;
    refusal.clear();
    showAnswerText();
    showRemovable();
}

void MeasurementTablePanel::retranslate()
{
    setTitle(tr("Measurements"));
    filterLabel->setText(tr("ΔE ab&ove:"));
    filterBox->setSpecialValueText(tr("all"));
    rowsLabel->setText(tr("Rows per &page:"));
    for (int i = 0; i < rowsBox->count(); ++i) {
        rowsBox->setItemText(i, locale().toString(rowsBox->itemData(i).toInt()));
    }
    setButtonText(removeButton, tr("&Remove Rows"));
    view->setAccessibleName(tr("Measurements"));
    statementLabel->setText(tr("Stateme&nt:"));
    sortingLabel->setText(tr("A click on No. or ΔE sorts: these columns have an index."));
    if (model) {
        model->retranslate();
    }
    showAnswerText();
}

void MeasurementTablePanel::filter()
{
    if (!model) {
        return;
    }
    const WaitCursor cursor;
    QElapsedTimer timer;
    timer.start();
    // Another filter begins at its first row.
    navigator->setOffset(0);
    // Selects the page and lets the navigator count, which selects once more where it has to go
    // back to page 1.
    model->setFilter(measurementFilter(filterBox->value()));
    showDuration(timer);
}

void MeasurementTablePanel::setRowsPerPage()
{
    const auto rows = rowsBox->currentData().toULongLong();
    if (!model || rows == 0) {
        return;
    }
    const WaitCursor cursor;
    QElapsedTimer timer;
    timer.start();
    // The row at the top stays in the page.
    const qulonglong first = navigator->offset() / rows * rows;
    navigator->setLimit(rows);
    turnTo(first);
    const auto *pageBox = navigator->findChild<QSpinBox *>();
    if (pageBox && qulonglong(pageBox->value()) != first / rows + 1) {
        // A page beyond the last one that there was before: that one is known by now.
        turnTo(first);
    }
    showDuration(timer);
}

void MeasurementTablePanel::sort(int column, Qt::SortOrder order)
{
    if (!model) {
        return;
    }
    if (!MeasurementModel::isSortable(column)) {
        QHeaderView *header = view->horizontalHeader();
        const QSignalBlocker blocker(header);
        header->setSortIndicator(sortedColumn, sortOrder);
        return;
    }
    sortedColumn = column;
    sortOrder = order;
    model->sort(column, order);
}

void MeasurementTablePanel::removeRows()
{
    if (!model || !view->selectionModel()->hasSelection()) {
        return;
    }
    QList<int> rows;
    const QModelIndexList selected = view->selectionModel()->selectedRows();
    for (const QModelIndex &index : selected) {
        rows.append(index.row());
    }
    const WaitCursor cursor;
    QElapsedTimer timer;
    timer.start();
    const int first = *std::min_element(rows.begin(), rows.end());
    if (!model->removePageRows(rows)) {
        refusal = model->lastError().text();
        showAnswerText();
        return;
    }
    navigator->refresh();
    view->setCurrentIndex(model->index(std::min(first, model->rowCount() - 1), 0));
    showDuration(timer);
}

void MeasurementTablePanel::showAnswer(bool isDone, const QString &statement, qint64 milliseconds)
{
    isSelected = true;
    statementEdit->setPlainText(statement);
    answerMilliseconds = milliseconds;
    refusal = isDone ? QString() : model->lastError().text();
    showAnswerText();
    showRemovable();
}

void MeasurementTablePanel::showPageNumbers(bool areSeveral)
{
    navigator->setEnabled(areSeveral);
    // More digits than before need more room in the row.
    navigator->updateGeometry();
}

void MeasurementTablePanel::showRemovable()
{
    removeButton->setEnabled(view->selectionModel() && view->selectionModel()->hasSelection());
}

void MeasurementTablePanel::show(const QSqlDatabase &database)
{
    const WaitCursor cursor;
    QElapsedTimer timer;
    timer.start();
    sortedColumn = int(MeasurementColumn::Number);
    sortOrder = Qt::AscendingOrder;
    // Before there is a model that would be sorted by it.
    view->horizontalHeader()->setSortIndicator(sortedColumn, sortOrder);
    model = new MeasurementModel(database, this);
    model->limit = rowsBox->currentData().toULongLong();
    model->setFilter(measurementFilter(filterBox->value()));
    view->setModel(model);
    view->setColumnWidth(int(MeasurementColumn::Patch), kPatchWidth);
    connectModel();
    isSelected = false;
    navigator->setModel(model);
    if (!isSelected) {
        navigator->select();
    }
    showDuration(timer);
}

void MeasurementTablePanel::connectModel()
{
    connect(model, SIGNAL(selected(bool, QString, qint64)), this,
            SLOT(showAnswer(bool, QString, qint64)));
    connect(view->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)), this,
            SLOT(showRemovable()));
}

/// Counts the pages and selects that of the row, once.
void MeasurementTablePanel::turnTo(qulonglong row)
{
    isSelected = false;
    navigator->setOffset(row);
    // Selects by itself where the page has another number.
    navigator->refresh();
    if (!isSelected) {
        navigator->select();
    }
}

/// How long all of it took that a choice of the user needed, the counting too.
void MeasurementTablePanel::showDuration(const QElapsedTimer &timer)
{
    answerMilliseconds = timer.elapsed();
    showAnswerText();
}

void MeasurementTablePanel::showAnswerText()
{
    if (!refusal.isEmpty()) {
        answerLabel->setText(tr("The database refuses: %1").arg(refusal));
    } else if (answerMilliseconds >= 0) {
        answerLabel->setText(tr("Answered in %1 ms.").arg(locale().toString(answerMilliseconds)));
    } else {
        answerLabel->setText(tr("No table yet."));
    }
}

void MeasurementTablePanel::setUpView()
{
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setAlternatingRowColors(true);
    view->setTabKeyNavigation(false);
    view->verticalHeader()->hide();
    view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowMargins);
    view->setMinimumHeight(kViewHeight);
    auto *removeKey = new QShortcut(QKeySequence(QKeySequence::Delete), view);
    removeKey->setContext(Qt::WidgetShortcut);
    connect(removeKey, SIGNAL(activated()), this, SLOT(removeRows()));
}

/// In the place of the view's own sorting, which offers every column.
void MeasurementTablePanel::setUpHeader()
{
    QHeaderView *header = view->horizontalHeader();
    header->setStretchLastSection(true);
    header->setSectionsClickable(true);
    header->setSortIndicatorShown(true);
    connect(header, SIGNAL(sortIndicatorChanged(int, Qt::SortOrder)), this,
            SLOT(sort(int, Qt::SortOrder)));
}

void MeasurementTablePanel::setUpStatement()
{
    statementEdit->setReadOnly(true);
    statementEdit->setTabChangesFocus(true);
    statementEdit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    const double margins =
        2 * (statementEdit->document()->documentMargin() + statementEdit->frameWidth());
    statementEdit->setFixedHeight(kStatementLines * statementEdit->fontMetrics().lineSpacing()
                                  + int(std::ceil(margins)));
}

void MeasurementTablePanel::guardFromWheel()
{
    WheelGuard::protect(filterBox);
    WheelGuard::protect(rowsBox);
    const auto boxes = navigator->findChildren<QAbstractSpinBox *>();
    for (QAbstractSpinBox *box : boxes) {
        WheelGuard::protect(box);
    }
}

void MeasurementTablePanel::setUpLayout()
{
    filterLabel->setBuddy(filterBox);
    rowsLabel->setBuddy(rowsBox);
    statementLabel->setBuddy(statementEdit);

    auto *statementRow = new QHBoxLayout;
    statementRow->addWidget(statementLabel, 0, Qt::AlignTop);
    statementRow->addWidget(statementEdit, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(makeChoices());
    rows->addWidget(view, 1);
    rows->addLayout(statementRow);
    rows->addLayout(makeAnswerRow());
}

QLayout *MeasurementTablePanel::makeChoices()
{
    auto *choices = new QHBoxLayout;
    choices->addWidget(filterLabel);
    choices->addWidget(filterBox);
    choices->addSpacing(kGap);
    choices->addWidget(rowsLabel);
    choices->addWidget(rowsBox);
    choices->addSpacing(kGap);
    choices->addWidget(navigator);
    choices->addStretch();
    choices->addWidget(removeButton);
    return choices;
}

QLayout *MeasurementTablePanel::makeAnswerRow()
{
    answerLabel->setWordWrap(true);
    answerLabel->setTextFormat(Qt::PlainText);
    sortingLabel->setForegroundRole(QPalette::PlaceholderText);
    auto *row = new QHBoxLayout;
    row->addWidget(answerLabel, 1);
    row->addWidget(sortingLabel, 0, Qt::AlignTop);
    return row;
}
