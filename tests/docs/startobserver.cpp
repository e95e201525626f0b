#include <TXLogWindow.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QTextStream>
#include <QTimer>

namespace {

constexpr int kLookMilliseconds = 20;

/// Once the window of the log is up and lists something, tells of it and closes it.
void look()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *log = qobject_cast<TXLogWindow *>(window);
        if (!log || !log->isVisible() || log->nbEventLogged() == 0) {
            continue;
        }
        const QAbstractItemModel *rows =
            log->findChild<QAbstractItemView *>("logTreeView")->model();
        QTextStream(stdout) << QCoreApplication::organizationName() << '/'
                            << QCoreApplication::applicationName() << ": "
                            << rows->index(0, 1).data().toString() << '\n';
        log->close();
    }
}

void observe()
{
    auto *timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, timer, look);
    timer->start(kLookMilliseconds);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(observe)
