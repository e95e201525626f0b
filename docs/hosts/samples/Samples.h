#pragma once

#include <QHash>
#include <QList>
#include <QPixmap>
#include <QString>
#include <QVariant>

class DoubleSpinBoxWithSliderWidget;
class QAction;
class QPalette;
class QPrinter;
class QSqlTableModel;
class QTabWidget;
class QTreeView;
class QVBoxLayout;
class QWidget;
class TXCheckForUpdateConfigWidget;
class TXCheckForUpdateWidget;
class TXError;
class TXImageViewer;
class TXLogWindow;
class TXMailSender;
class TXProgressBar;
class TXReportDocument;
class TXSelectionItemWidget;
class TXTable;
class TXTreeComboBox;
class TXVariantViewer;
class TXWidgetListWidget;
class WidgetPluginManager;

/// A measured patch of the report.
struct Reading
{
    QString patch;
    double difference = 0;
};

// errors.cpp
bool readDifferences(const QString &fileName, QList<double> *differences, TXError *error);
void openReadings(const QString &fileName, QWidget *window);
bool importFolder(const QList<QString> &fileNames, TXError *error);

// log.cpp
void readInBackground(const QList<QString> &fileNames);
void logImport(const QString &folder, const QList<QString> &fileNames);
QTreeView *makeLogView(QWidget *parent);

// mail.cpp
TXMailSender *sendReport(const QHash<QString, QVariant> &mailSettings, const QString &summary);

// report.cpp
TXTable makeTable(const QList<Reading> &readings, const QFont &font);
bool writeReport(const QList<Reading> &readings, const QString &fileName, TXError *error);
bool printReport(TXReportDocument *report, QPrinter *printer, QWidget *window);

// update.cpp
void useUpdateService(const QString &hostAndPort);
TXCheckForUpdateWidget *setUpUpdates(QWidget *window, QAction *checkAction);
TXCheckForUpdateConfigWidget *addUpdatePanel(QVBoxLayout *preferences, QWidget *parent);

// drives.cpp
void addScansDrive(bool activated);
void startDrives();
void showDrives(QWidget *parent);

// plugins.cpp
void addPluginPages(const WidgetPluginManager &manager, QTabWidget *tabs);
void savePluginPages(const QTabWidget &tabs);

// style.cpp
bool applyStyle(QWidget *window);
void changePalette(const QPalette &palette);

// secrets.cpp
void storeToken(const QString &token);
QString storedToken();

// lock.cpp
bool askToLock(QWidget *window);

// dialogs.cpp
QString askForReadings(QWidget *window);

// progress.cpp
void showSpinner(QWidget *page);
void hideSpinner(QWidget *page);
int countRows(const QList<QString> &fileNames, TXProgressBar *bar);

// controls.cpp
DoubleSpinBoxWithSliderWidget *makeToleranceField(QWidget *parent);
TXSelectionItemWidget *makePresetBar(const QList<QString> &presets, QWidget *parent);
TXWidgetListWidget *makeSwatches(const QList<QColor> &colours, QWidget *parent);

// forms.cpp
QWidget *makeScanSettings(QWidget *parent);

// database.cpp
QWidget *makeMeasurementView(QWidget *parent);

// viewers.cpp
TXVariantViewer *makeReplyViewer(const QByteArray &json, QWidget *parent);
TXImageViewer *makeComparison(const QPixmap &original, const QPixmap &print, QWidget *parent);
