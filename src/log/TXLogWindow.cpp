#include "TXLogWindow.h"

#include "ChoiceRoom.h"
#include "LogMessageDelegate.h"
#include "OwnTitle.h"
#include "TXLogFilterProxyModel.h"
#include "TXLogItem.h"
#include "TXLogModel.h"
#include "ui_TXLogWindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QHeaderView>
#include <QIcon>
#include <QRegularExpression>
#include <QSettings>
#include <QShortcut>
#include <QShowEvent>
#include <QSortFilterProxyModel>

namespace {

constexpr int kDateColumnWidth = 100;

const QLatin1String kLevelKey("LogLevel");

/// What a filter entry holds as its data, which is also its position in the box.
enum Filter { All, WarningsAndErrors, ErrorsOnly };

/// Matches the texts of the level column that the filter lets through.
QRegularExpression levelPattern(int filter)
{
    switch (filter) {
    case WarningsAndErrors:
        return QRegularExpression(
            QStringLiteral("[%1-%2]").arg(int(TXLogItem::Warning)).arg(int(TXLogItem::Error)));
    case ErrorsOnly:
        return QRegularExpression(QStringLiteral("%1").arg(int(TXLogItem::Error)));
    default:
        return {};
    }
}

} // namespace

TXLogWindow::TXLogWindow(QSharedPointer<TXLogManager> manager, QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::TXLogWindow>())
    , logModel(new TXLogModel(std::move(manager), this))
{
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowMaximizeButtonHint
                   | Qt::WindowCloseButtonHint);
    ui->setupUi(this);
    OwnTitle::show(*this, tr("Log Manager"));
    setUpTree();
    setUpFilter();
    connect(ui->clearButton, SIGNAL(clicked()), logModel, SLOT(clear()));
    connect(ui->closeButton, SIGNAL(clicked()), this, SLOT(close()));
}

TXLogWindow::~TXLogWindow() = default;

int TXLogWindow::nbEventLogged()
{
    return logModel->rowCount(QModelIndex());
}

bool TXLogWindow::eventFilter(QObject *object, QEvent *event)
{
    // A turn of the wheel while scrolling past must not change the filter.
    return event->type() == QEvent::Wheel || QDialog::eventFilter(object, event);
}

void TXLogWindow::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    const QString icon =
        QStringLiteral("%1/%2").arg(QCoreApplication::applicationDirPath(),
                                    QStringLiteral("../Resources/Images/text_file_icon.png"));
    setWindowIcon(QIcon(QDir::cleanPath(icon)));
}

void TXLogWindow::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        OwnTitle::show(*this, tr("Log Manager"));
        nameFilters();
        // Titles and messages are translated when they are painted.
        ui->logTreeView->header()->viewport()->update();
        ui->logTreeView->viewport()->update();
    }
}

void TXLogWindow::filterChanged(int idx)
{
    QSettings().setValue(kLevelKey, ui->filterComboBox->currentData(Qt::UserRole));
    proxyModel->setFilterKeyColumn(TXLogModel::LevelColumn);
    proxyModel->setFilterRegularExpression(levelPattern(idx));
}

void TXLogWindow::filterUp()
{
    stepFilter(-1);
}

void TXLogWindow::filterDown()
{
    stepFilter(1);
}

void TXLogWindow::stepFilter(int step)
{
    const int wanted = ui->filterComboBox->currentIndex() + step;
    if (wanted >= 0 && wanted < ui->filterComboBox->count()) {
        ui->filterComboBox->setCurrentIndex(wanted);
    }
}

void TXLogWindow::setUpTree()
{
    auto *proxy = new TXLogFilterProxyModel(this);
    proxyModel = proxy;
    proxyModel->setDynamicSortFilter(true);
    proxyModel->setSourceModel(logModel);
    ui->logTreeView->setModel(proxyModel);
    proxy->setSelectionModel(ui->logTreeView->selectionModel());
    ui->logTreeView->hideColumn(TXLogModel::LevelColumn);
    ui->logTreeView->setItemDelegateForColumn(TXLogModel::MessageColumn,
                                              new LogMessageDelegate(this));
    ui->logTreeView->setColumnWidth(TXLogModel::DateColumn, kDateColumnWidth);
}

void TXLogWindow::setUpFilter()
{
    for (const int level : {int(All), int(WarningsAndErrors), int(ErrorsOnly)}) {
        ui->filterComboBox->addItem(QString(), level);
    }
    nameFilters();

    bool isNumber = false;
    const int remembered = QSettings().value(kLevelKey, int(All)).toInt(&isNumber);
    const int entry = ui->filterComboBox->findData(remembered, Qt::UserRole,
                                                   Qt::MatchExactly | Qt::MatchCaseSensitive);
    ui->filterComboBox->setCurrentIndex(isNumber ? entry : -1);

    // Connected only now, so that a remembered level is shown and not yet applied.
    connect(ui->filterComboBox, SIGNAL(currentIndexChanged(int)), this, SLOT(filterChanged(int)));
    ui->filterComboBox->installEventFilter(this);
    new QShortcut(QKeySequence(Qt::ALT | Qt::Key_Up), this, SLOT(filterUp()));
    new QShortcut(QKeySequence(Qt::ALT | Qt::Key_Down), this, SLOT(filterDown()));
}

void TXLogWindow::nameFilters()
{
    const QStringList names = {tr("All"), tr("Warning & Errors"), tr("Errors Only")};
    for (int row = 0; row < names.size(); ++row) {
        ui->filterComboBox->setItemText(row, names.at(row));
    }
    ChoiceRoom::measureAnew(*ui->filterComboBox);
}
