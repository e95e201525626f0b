#include "RatioReporter.h"
#include "TXCenteredPixmapDelegate.h"
#include "TXComboSeparatorDrawDelegate.h"
#include "TXDateTimeDelegate.h"
#include "TXSeparatorListDelegate.h"
#include "TreeViewGridDelegate.h"

#include <QDateTime>
#include <QHeaderView>
#include <QImage>
#include <QListView>
#include <QPainter>
#include <QPixmap>
#include <QStandardItemModel>
#include <QStyleOptionViewItem>
#include <QTableView>
#include <QTreeView>

#include <memory>

// A thousand rows painted by each delegate and by Qt's own one, in the same view over the same
// model: as a whole ("view"), and the delegate by itself without the view around it ("rows").

namespace {

constexpr int kRows = 1000;
constexpr int kSeparatorEvery = 5;
constexpr int kColumnWidth = 220;
/// Too narrow for the time, and for most of the date.
constexpr int kNarrowColumnWidth = 45;
constexpr QSize kSeparatorSize(10, 10);
constexpr QSize kPicture(16, 16);

void addRow(QStandardItemModel &model, const QVariant &value, int role)
{
    auto item = std::make_unique<QStandardItem>();
    item->setData(value, role);
    model.appendRow(item.release());
}

void addTexts(QStandardItemModel &model)
{
    for (int i = 0; i < kRows; ++i) {
        addRow(model, QStringLiteral("sample %1").arg(i), Qt::DisplayRole);
    }
}

/// Gives out the option that the view has for its delegates.
template<class View>
class OpenView : public View
{
public:
    [[nodiscard]] QStyleOptionViewItem option() const
    {
        QStyleOptionViewItem result;
        this->initViewItemOption(&result);
        return result;
    }
};

/// A list in which each fifth row is a separator.
struct ComboSeparators
{
    using View = QListView;
    static constexpr int kWidth = kColumnWidth;
    static void fill(QStandardItemModel &model)
    {
        addTexts(model);
        for (int row = 0; row < kRows; row += kSeparatorEvery) {
            model.item(row)->setData(QStringLiteral("separator"), Qt::AccessibleDescriptionRole);
        }
    }
    static void prepare(QListView & /*view*/) { }
    static QAbstractItemDelegate *delegate(QObject *parent)
    {
        return new TXComboSeparatorDrawDelegate(0, kSeparatorSize, parent);
    }
};

/// A list with a line below each fifth row.
struct ListLines : ComboSeparators
{
    static void fill(QStandardItemModel &model) { addTexts(model); }
    static QAbstractItemDelegate *delegate(QObject *parent)
    {
        auto *result = new TXSeparatorListDelegate(0, 0, kSeparatorSize, parent);
        for (int row = 0; row < kRows; row += kSeparatorEvery) {
            result->addSeparatorAtRowIndex(row);
        }
        return result;
    }
};

struct CenteredPixmaps
{
    using View = QTableView;
    static constexpr int kWidth = kColumnWidth;
    static void fill(QStandardItemModel &model)
    {
        QPixmap pixmap(kPicture);
        pixmap.fill(Qt::blue);
        for (int i = 0; i < kRows; ++i) {
            addRow(model, pixmap, Qt::DecorationRole);
        }
    }
    static void prepare(QTableView &view) { view.setColumnWidth(0, kWidth); }
    static QAbstractItemDelegate *delegate(QObject *parent)
    {
        return new TXCenteredPixmapDelegate(parent);
    }
};

struct DateTimes
{
    using View = QTableView;
    static constexpr int kWidth = kColumnWidth;
    static void fill(QStandardItemModel &model)
    {
        const QDateTime start(QDate(2024, 2, 29), QTime(12, 0), Qt::UTC);
        for (int i = 0; i < kRows; ++i) {
            addRow(model, start.addSecs(qint64(i) * 12345), Qt::DisplayRole);
        }
    }
    static void prepare(QTableView &view) { view.setColumnWidth(0, kWidth); }
    static QAbstractItemDelegate *delegate(QObject *parent)
    {
        return new TXDateTimeDelegate(parent);
    }
};

struct NarrowDateTimes : DateTimes
{
    static constexpr int kWidth = kNarrowColumnWidth;
    static void prepare(QTableView &view) { view.setColumnWidth(0, kWidth); }
};

struct TreeGrid
{
    using View = QTreeView;
    static constexpr int kWidth = kColumnWidth;
    static void fill(QStandardItemModel &model) { addTexts(model); }
    static void prepare(QTreeView &view) { view.setUniformRowHeights(true); }
    static QAbstractItemDelegate *delegate(QObject *parent)
    {
        return new TreeViewGridDelegate(parent);
    }
};

/// A view that is high enough for all rows. Ours or Qt's delegate paints them; the rows are as high
/// as Qt's delegate wants them in either case, so that both paint the same area.
template<class Setup>
class Stage
{
public:
    explicit Stage(bool isOurs)
    {
        Setup::fill(model);
        view.setAttribute(Qt::WA_DontShowOnScreen);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setModel(&model);
        Setup::prepare(view);
        const int height = view.visualRect(model.index(0, 0)).height() + 1;
        view.resize(Setup::kWidth, kRows * height);
        view.show();
        if (isOurs) {
            view.setItemDelegate(Setup::delegate(&view));
        }
        picture = QImage(view.viewport()->size(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::white);
    }

    void paintView() { view.viewport()->render(&picture); }

    void paintRows()
    {
        QPainter painter(&picture);
        QStyleOptionViewItem option = view.option();
        option.widget = &view;
        const QAbstractItemDelegate &delegate = *view.itemDelegate();
        for (int row = 0; row < kRows; ++row) {
            const QModelIndex index = model.index(row, 0);
            option.rect = view.visualRect(index);
            delegate.paint(&painter, option, index);
        }
    }

    [[nodiscard]] bool showsAllRows() const
    {
        return view.viewport()->rect().intersects(view.visualRect(model.index(kRows - 1, 0)));
    }

private:
    QStandardItemModel model;
    OpenView<typename Setup::View> view;
    QImage picture;
};

template<class Setup, bool isOurs, void (Stage<Setup>::*paint)()>
void run(benchmark::State &state)
{
    Stage<Setup> stage(isOurs);
    (stage.*paint)();
    if (!stage.showsAllRows()) {
        state.SkipWithError("not all rows are in view");
        return;
    }
    for (auto step : state) {
        (stage.*paint)();
    }
}

template<class Setup>
void add(const char *name)
{
    const std::string family(name);
    const auto addOne = [&](const std::string &contestant, auto function) {
        benchmark::RegisterBenchmark((family + contestant).c_str(), function)
            ->Unit(benchmark::kMillisecond);
    };
    addOne("/ours/view", &run<Setup, true, &Stage<Setup>::paintView>);
    addOne("/QStyledItemDelegate/view", &run<Setup, false, &Stage<Setup>::paintView>);
    addOne("/ours/rows", &run<Setup, true, &Stage<Setup>::paintRows>);
    addOne("/QStyledItemDelegate/rows", &run<Setup, false, &Stage<Setup>::paintRows>);
}

const bool kAreAdded = [] {
    add<ComboSeparators>("TXComboSeparatorDrawDelegate");
    add<ListLines>("TXSeparatorListDelegate");
    add<CenteredPixmaps>("TXCenteredPixmapDelegate");
    add<DateTimes>("TXDateTimeDelegate");
    add<NarrowDateTimes>("TXDateTimeDelegate, narrow cells");
    add<TreeGrid>("TreeViewGridDelegate");
    return true;
}();

} // namespace
