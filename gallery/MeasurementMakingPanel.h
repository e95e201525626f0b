#pragma once

#include "DatabasePlace.h"
#include "GalleryPanel.h"

#include <QTemporaryFile>

#include <memory>

class MeasurementMaker;
class QComboBox;
class QLabel;
class QLineEdit;
class TXDatabaseConfigurationWidget;
class TXProgressBar;

/// Makes the table of measurements where the library's database panel tells: on the server of its
/// settings, or in a file of SQLite for the internal database, which is removed when it does not
/// hold a whole table, when the next one is made, and when the panel goes.
class MeasurementMakingPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    /// Goes by the settings of the configuration, which is not owned, never null and outlives the
    /// panel.
    explicit MeasurementMakingPanel(TXDatabaseConfigurationWidget *configuration,
                                    QWidget *parent = nullptr);
    ~MeasurementMakingPanel() override;

    /// The choice of how many rows are made, from 0; at first the last one, a million.
    void setAmount(int choice);

    [[nodiscard]] bool isBusy() const;

    /// Where the table of the last run lies, if it was made.
    [[nodiscard]] DatabasePlace place() const { return currentPlace; }

public slots:
    /// Makes the table. No effect while one is made.
    void make();

    /// Ends the making, without a table; see MeasurementMaker::cancel().
    void cancel();

signals:
    /// The table that was made last is about to be replaced: nobody may use it any more.
    void making();

    /// The run has ended; `isMade` tells whether there is a table.
    void ended(bool isMade);

protected:
    void retranslate() override;

private slots:
    void browse();
    void endMaking();

private:
    [[nodiscard]] bool findPlace();
    void showState();
    [[nodiscard]] QString endingText() const;
    [[nodiscard]] int batches() const;
    void setUpLayout();

    TXDatabaseConfigurationWidget *configuration;
    MeasurementMaker *maker;
    QLabel *folderLabel;
    QLineEdit *folderEdit;
    QPushButton *browseButton;
    QLabel *amountLabel;
    QComboBox *amountBox;
    QPushButton *makeButton;
    QPushButton *cancelButton;
    TXProgressBar *progressBar;
    QLabel *endingLabel;
    QLabel *serverLabel;
    // From the button for cancelling, while that is of no use.
    bool isFocusLent = false;
    std::unique_ptr<QTemporaryFile> file;
    DatabasePlace currentPlace;
    // Why there is no file for the table.
    QString fileFailure;
};
