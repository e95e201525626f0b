#pragma once

#include "DatabasePlace.h"
#include "GalleryPanel.h"

#include <memory>

class MeasurementModel;
class QComboBox;
class QDoubleSpinBox;
class QElapsedTimer;
class QLabel;
class QPlainTextEdit;
class QTableView;
class TXDBNavWidget;

/// Pages through the table of measurements with TXDBNavWidget: with a filter, sorted by a click on
/// the header of a column that has an index, rows removed by a key or a button. Tells what the
/// database was asked for each page, and how long all took that it was asked for.
class MeasurementTablePanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit MeasurementTablePanel(QWidget *parent = nullptr);
    ~MeasurementTablePanel() override;

    /// Shows the table of measurements in this database, from its first row on. Blocks until the
    /// database has answered; the panel tells why when it refuses.
    void open(const DatabasePlace &place);

    /// Shows the page in which this row is, counted from 0, or the last page. No effect without a
    /// table.
    void showRow(qulonglong row);

public slots:
    /// Lets the table and the connection go.
    void close();

protected:
    void retranslate() override;

private slots:
    void filter();
    void setRowsPerPage();
    void sort(int column, Qt::SortOrder order);
    void removeRows();
    void showAnswer(bool isDone, const QString &statement, qint64 milliseconds);
    void showPageNumbers(bool areSeveral);
    void showRemovable();

private:
    void show(const QSqlDatabase &database);
    void connectModel();
    void turnTo(qulonglong row);
    void showDuration(const QElapsedTimer &timer);
    void showAnswerText();
    void setUpView();
    void setUpHeader();
    void setUpStatement();
    void guardFromWheel();
    void setUpLayout();
    [[nodiscard]] QLayout *makeChoices();
    [[nodiscard]] QLayout *makeAnswerRow();

    QLabel *filterLabel;
    QDoubleSpinBox *filterBox;
    QLabel *rowsLabel;
    QComboBox *rowsBox;
    TXDBNavWidget *navigator;
    QPushButton *removeButton;
    QTableView *view;
    QLabel *statementLabel;
    QPlainTextEdit *statementEdit;
    QLabel *answerLabel;
    QLabel *sortingLabel;
    std::unique_ptr<DatabaseConnection> connection;
    MeasurementModel *model = nullptr;
    // What the database has told last: how long it took, or its words when it refused.
    qint64 answerMilliseconds = -1;
    QString refusal;
    // Since the last counting of the pages began.
    bool isSelected = false;
    int sortedColumn = 0;
    Qt::SortOrder sortOrder = Qt::AscendingOrder;
};
