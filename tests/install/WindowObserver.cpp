#include <QApplication>
#include <QGenericPlugin>
#include <QTextStream>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace {

constexpr int kLookMilliseconds = 20;

/// A line for each widget on the screen that has a name of its own.
QString seenWidgets()
{
    QString seen;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        const QString name = widget->objectName();
        if (widget->isVisible() && !name.isEmpty() && !name.startsWith(QLatin1String("qt_"))) {
            const auto state = QLatin1String(widget->isEnabled() ? "enabled" : "disabled");
            seen += name + u' ' + QLatin1String(widget->metaObject()->className()) + u' ' + state
                + u'\n';
        }
    }
    return seen;
}

} // namespace

/// Looks into a program that knows nothing of it, and prints what is on its windows each time that
/// this changes. Any Qt program loads it by the argument "-plugin windowobserver".
class WindowObserver : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "WindowObserver.json")

public:
    QObject *create(const QString &, const QString &) override
    {
        auto timer = std::make_unique<QTimer>();
        connect(timer.get(), &QTimer::timeout, this, &WindowObserver::look);
        timer->start(kLookMilliseconds);
        return timer.release(); // the application's
    }

private:
    void look()
    {
        const QString seen = seenWidgets();
        if (seen != told) {
            told = seen;
            QTextStream(stdout) << "on the screen:\n" << seen << "end\n";
        }
    }

    QString told;
};

#include "WindowObserver.moc"
