#include "FolderModel.h"
#include "LineEditDrapAndDrop.h"
#include "TestEnvironment.h"
#include "TreeViewDragAndDrop.h"

#include <QApplication>
#include <QDropEvent>
#include <QListWidget>
#include <QMimeData>
#include <QSocketNotifier>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTimer>

#include <cstdio>
#include <memory>
#include <unistd.h>
#include <vector>

// Shows the windows that are named on the command line, side by side, with free room for "-", and
// writes a line for each thing that happens in them. Answers on its standard input:
//   place WINDOW ITEM   where the item is on the screen; "-" is the empty part below the items
//   outline             what the folders look like
// and ends with the end of its input.

namespace {

constexpr int kFirstWindowLeft = 40;
constexpr int kWindowDistance = 460;
constexpr int kWindowTop = 80;
constexpr QSize kWindowSize(400, 300);
const QString kFreePlace("-");

void report(const QStringList &words)
{
    std::puts(words.join(QLatin1Char(' ')).toUtf8().constData());
    std::fflush(stdout);
}

/// Says after each event of a drag whether it may go on.
void reportOver(const QWidget *window, const QEvent *event)
{
    report({"over", window->objectName(), event->isAccepted() ? "yes" : "no"});
}

/// Files that can be dragged out, all that are selected at once.
class FileList : public QListWidget
{
public:
    explicit FileList(const QStringList &urls)
    {
        addItems(urls);
        setSelectionMode(ExtendedSelection);
        setDragDropMode(DragOnly);
        selectAll();
    }

protected:
    QMimeData *mimeData(const QList<QListWidgetItem *> &items) const override
    {
        QList<QUrl> urls;
        for (int i = 0; i < count(); ++i) {
            if (items.contains(item(i))) {
                urls.append(QUrl(item(i)->text()));
            }
        }
        auto data = std::make_unique<QMimeData>();
        data->setUrls(urls);
        return data.release();
    }
    void startDrag(Qt::DropActions actions) override
    {
        report({"dragging"});
        QListWidget::startDrag(actions);
        report({"finished"});
    }
};

class Field : public LineEditDrapAndDrop
{
    Q_OBJECT

public:
    Field()
        : LineEditDrapAndDrop(nullptr)
    {
        connect(this, SIGNAL(urlFileListHaveBeenDropped(QList<QUrl>)), this,
                SLOT(reportUrls(QList<QUrl>)));
    }

protected:
    void dragMoveEvent(QDragMoveEvent *event) override
    {
        LineEditDrapAndDrop::dragMoveEvent(event);
        reportOver(this, event);
    }

private slots:
    void reportUrls(const QList<QUrl> &urls)
    {
        QStringList words{"urls"};
        for (const QUrl &url : urls) {
            words.append(url.toString());
        }
        report(words);
    }
};

class Tree : public TreeViewDragAndDrop
{
    Q_OBJECT

public:
    explicit Tree(QAbstractItemModel *model)
    {
        setHeaderHidden(true);
        setDragDropMode(DragDrop);
        connect(this, SIGNAL(itemDataDropped(QString, QString)), this,
                SLOT(reportData(QString, QString)));
        connect(this, SIGNAL(cursorEntreLeaveWidget(bool)), this, SLOT(reportMouse(bool)));
        setModel(model);
    }

protected:
    void dragEnterEvent(QDragEnterEvent *event) override
    {
        TreeViewDragAndDrop::dragEnterEvent(event);
        reportOver(this, event);
    }
    void dragMoveEvent(QDragMoveEvent *event) override
    {
        TreeViewDragAndDrop::dragMoveEvent(event);
        reportOver(this, event);
    }
    void dropEvent(QDropEvent *event) override
    {
        TreeViewDragAndDrop::dropEvent(event);
        report({"dropped", objectName()});
    }
    void startDrag(Qt::DropActions actions) override
    {
        report({"dragging"});
        TreeViewDragAndDrop::startDrag(actions);
        report({"finished"});
    }

private slots:
    void reportData(const QString &data, const QString &format)
    {
        report({"data", format, data.simplified()});
    }
    void reportMouse(bool isIn) { report({"mouse", objectName(), isIn ? "in" : "out"}); }
};

/// Takes files onto its items and forgets them.
class UrlModel : public QStandardItemModel
{
public:
    UrlModel()
    {
        appendRow(new QStandardItem("In"));
        appendRow(new QStandardItem("Out"));
    }
    QStringList mimeTypes() const override { return {"text/uri-list"}; }
    bool dropMimeData(const QMimeData * /*data*/, Qt::DropAction /*action*/, int /*row*/,
                      int /*column*/, const QModelIndex & /*parent*/) override
    {
        return true;
    }
};

/// Refuses the item "Out".
class NotOut : public IDropAllowedStrategy
{
public:
    bool isDropAllowed(const QModelIndex &index, const QMimeData * /*data*/,
                       Qt::DropAction /*action*/, DropIndicatorPosition /*position*/) override
    {
        return index.data().toString() != "Out";
    }
};

QString outline(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList parts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = outline(model, index);
        parts.append(index.data().toString() + (below.isEmpty() ? "" : "(" + below + ")"));
    }
    return parts.join(',');
}

/// The windows and what they show.
class Windows : public QObject
{
    Q_OBJECT

public:
    explicit Windows(const QStringList &names);

public slots:
    void readInput();
    void reportWhenActive();

private:
    QWidget *make(const QString &name);
    QPoint place(const QString &name, const QString &item) const;
    void answer(const QStringList &words) const;

    FolderModel folders;
    QSortFilterProxyModel sorted;
    UrlModel urls;
    std::vector<std::unique_ptr<QWidget>> windows;
    QSocketNotifier input{STDIN_FILENO, QSocketNotifier::Read};
    QByteArray unread;
};

Windows::Windows(const QStringList &names)
{
    const QModelIndex printing = folders.addFolder("Printing");
    folders.addFolder("Coated", printing);
    folders.addFolder("Uncoated", printing);
    folders.addFolder("Screens");
    sorted.setSourceModel(&folders);
    sorted.sort(0, Qt::DescendingOrder);
    int left = kFirstWindowLeft;
    for (const QString &name : names) {
        if (name != kFreePlace) {
            windows.emplace_back(make(name));
            windows.back()->setObjectName(name);
            windows.back()->setGeometry({{left, kWindowTop}, kWindowSize});
            windows.back()->show();
        }
        left += kWindowDistance;
    }
    connect(&input, SIGNAL(activated(QSocketDescriptor)), this, SLOT(readInput()));
    reportWhenActive();
}

/// A window is where it stays once the window manager has made it active.
void Windows::reportWhenActive()
{
    if (windows.back()->isActiveWindow()) {
        report({"ready"});
    } else {
        QTimer::singleShot(20, this, SLOT(reportWhenActive()));
    }
}

QWidget *Windows::make(const QString &name)
{
    const QString local("file:///tmp/a.icc");
    const QString remote("http://example.org/b.icc");
    if (name == "files") {
        return new FileList({local, remote});
    }
    if (name == "remote") {
        return new FileList({remote, local});
    }
    if (name == "field") {
        return new Field;
    }
    if (name == "folders" || name == "sorted") {
        return new Tree(name == "sorted" ? static_cast<QAbstractItemModel *>(&sorted) : &folders);
    }
    auto *tree = new Tree(&urls);
    if (name == "picky") {
        tree->setDropStrategy(QSharedPointer<NotOut>::create());
    }
    return tree;
}

QPoint Windows::place(const QString &name, const QString &item) const
{
    for (const std::unique_ptr<QWidget> &window : windows) {
        const auto *view = qobject_cast<QAbstractItemView *>(window.get());
        if (window->objectName() != name) {
            continue;
        }
        if (view && item != "-") {
            const QModelIndexList found =
                view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, item, 1,
                                     Qt::MatchExactly | Qt::MatchRecursive);
            const QRect rect = view->visualRect(found.value(0));
            return view->viewport()->mapToGlobal(rect.center());
        }
        return window->mapToGlobal(QPoint(kWindowSize.width() / 2, kWindowSize.height() * 3 / 4));
    }
    return {};
}

void Windows::answer(const QStringList &words) const
{
    if (words.first() == "place") {
        const QPoint at = place(words[1], words[2]);
        report({"place", QString::number(at.x()), QString::number(at.y())});
    } else {
        report({"outline", outline(folders)});
    }
}

void Windows::readInput()
{
    QByteArray bytes(1000, '\0');
    const ssize_t size = ::read(STDIN_FILENO, bytes.data(), size_t(bytes.size()));
    if (size <= 0) {
        QApplication::quit();
        return;
    }
    unread += bytes.left(size);
    while (unread.contains('\n')) {
        const qsizetype end = unread.indexOf('\n');
        answer(QString::fromUtf8(unread.left(end)).split(' '));
        unread.remove(0, end + 1);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const TestEnvironment environment;
    QApplication application(argc, argv);
    TestEnvironment::applyToApplication();
    Windows windows(QApplication::arguments().mid(1));
    return QApplication::exec();
}

#include "dragWindows.moc"
