#include "MeasurementTablePanel.h"

#include "MeasurementModel.h"
#include "MeasurementStatements.h"
#include "WheelGuard.h"

#include "TXDBNavWidget.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSqlError>
#include <QTableView>

#include <algorithm>
#include <array>

namespace {

constexpr std::array<int, 4> kRowsPerPage = {20, 100, 500, 1000};
constexpr int kFirstRowsPerPage = 1;
constexpr double kLargestDeltaE = 20;
constexpr double kDeltaEStep = 0.5;
constexpr int kViewHeight = 260;
constexpr int kPatchWidth = 150;
constexpr int kRowMargins = 8;
constexpr int kStatementLines = 2;
constexpr int kStatementMargins = 12;

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
    filterLabel->setText(tr("\u0394E ab&ove:"));
    filterBox->setSpecialValueText(tr("all"));
    rowsLabel->setText(tr("Rows per &page:"));
    for (int i = 0; i < rowsBox->count(); ++i) {
        rowsBox->setItemText(i, locale().toString(rowsBox->itemData(i).toInt()));
    }
    setButtonText(removeButton, tr("&Remove Rows"));
    view->setAccessibleName(tr("Measurements"));
    statementLabel->setText(tr("Stateme&nt:"));
    if (model) {
        model->retranslate();
    }
    showAnswerText();
}

void MeasurementTablePanel::filter()
{
    if (model) {
        // Another filter begins at its first row.
        navigator->setOffset(0);
        model->setFilter(measurementFilter(filterBox->value()));
        navigator->select();
    }
}

void MeasurementTablePanel::setRowsPerPage()
{
    const auto rows = rowsBox->currentData().toULongLong();
    if (model && rows > 0) {
        // The row at the top stays in the page.
        navigator->setLimit(rows);
        navigator->setOffset(navigator->offset() / rows * rows);
        navigator->refresh();
        navigator->select();
    }
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
    const int first = *std::min_element(rows.begin(), rows.end());
    if (!model->removePageRows(rows)) {
        refusal = model->lastError().text();
        showAnswerText();
        return;
    }
    navigator->refresh();
    view->setCurrentIndex(model->index(std::min(first, model->rowCount() - 1), 0));
}

void MeasurementTablePanel::showAnswer(bool isDone, const QString &statement, qint64 milliseconds)
{
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
    model = new MeasurementModel(database, this);
    connect(model, SIGNAL(selected(bool, QString, qint64)), this,
            SLOT(showAnswer(bool, QString, qint64)));
    model->limit = rowsBox->currentData().toULongLong();
    model->setFilter(measurementFilter(filterBox->value()));
    // Before there is a model that would be sorted by it.
    view->horizontalHeader()->setSortIndicator(int(MeasurementColumn::Number), Qt::AscendingOrder);
    view->setModel(model);
    view->setColumnWidth(int(MeasurementColumn::Patch), kPatchWidth);
    connect(view->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)), this,
            SLOT(showRemovable()));
    navigator->setModel(model);
    navigator->select();
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
    view->horizontalHeader()->setStretchLastSection(true);
    view->setMinimumHeight(kViewHeight);
    view->setSortingEnabled(true);
    auto *removeKey = new QShortcut(QKeySequence(QKeySequence::Delete), view);
    removeKey->setContext(Qt::WidgetShortcut);
    connect(removeKey, SIGNAL(activated()), this, SLOT(removeRows()));
}

void MeasurementTablePanel::setUpLayout()
{
    filterLabel->setBuddy(filterBox);
    rowsLabel->setBuddy(rowsBox);
    statementLabel->setBuddy(statementEdit);
    statementEdit->setReadOnly(true);
    statementEdit->setTabChangesFocus(true);
    statementEdit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    statementEdit->setFixedHeight(kStatementLines * statementEdit->fontMetrics().lineSpacing()
                                  + kStatementMargins);
    answerLabel->setWordWrap(true);
    answerLabel->setTextFormat(Qt::PlainText);
    WheelGuard::protect(filterBox);
    WheelGuard::protect(rowsBox);
    const auto boxes = navigator->findChildren<QAbstractSpinBox *>();
    for (QAbstractSpinBox *box : boxes) {
        WheelGuard::protect(box);
    }

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

    auto *statementRow = new QHBoxLayout;
    statementRow->addWidget(statementLabel, 0, Qt::AlignTop);
    statementRow->addWidget(statementEdit, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(choices);
    rows->addWidget(view, 1);
    rows->addLayout(statementRow);
    rows->addWidget(answerLabel);
}
