#include "LogMessageDelegate.h"

#include "PixelProbe.h"
#include "TXLogManager.h"
#include "TXLogModel.h"
#include "TXLogWindow.h"
#include "TestBase.h"

#include <QHeaderView>
#include <QStandardItemModel>
#include <QTreeView>

#include <memory>

namespace {

const QString kEnglish = QStringLiteral("This plugin does not support propagateSizeHints()");
const QString kArabic = QString::fromUtf8("انتهى الفحص بعد 12 ث (qt6).");

/// Tells what it would paint.
class OpenDelegate : public LogMessageDelegate
{
public:
    [[nodiscard]] QString paintedText(const QModelIndex &index, Qt::LayoutDirection direction) const
    {
        QStyleOptionViewItem option;
        option.direction = direction;
        initStyleOption(&option, index);
        return option.text;
    }
};

QString kept(const QString &text)
{
    return QChar(0x202a) + text + QChar(0x202c);
}

/// Where something is written in a white picture.
QRect inkOf(const QImage &picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ink |= picture.pixelColor(x, y) == Qt::white ? QRect() : QRect(x, y, 1, 1);
        }
    }
    return ink;
}

/// Capitals and dots are written in the picture: true when the dots are at their right.
bool endsWithDots(const QImage &picture)
{
    constexpr int kDotsWidth = 5;
    const QRect ink = inkOf(picture);
    const QRect capitals = inkOf(picture.copy(0, 0, picture.width(), ink.center().y()));
    return capitals.left() - ink.left() < kDotsWidth && ink.right() - capitals.right() > kDotsWidth;
}

} // namespace

class TestLogMessageDelegate : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void textIsKeptTogetherFromRightToLeft();
    void nothingStaysNothing();
    void englishReadsFromLeftToRight();
    void arabicStays();
    void leftToRightStays();
    void cutTextEndsWithTheDots();
    void rowsKeepTheirSize();
    void modelStays();
    void logWindowPaintsByIt();

private:
    /// The one row with this text, painted by the delegate or, when null, by Qt's own.
    QImage picture(const QString &text, Qt::LayoutDirection direction,
                   QAbstractItemDelegate *delegate, int width = 600);

    std::unique_ptr<QTreeView> view;
    QStandardItemModel model;
    OpenDelegate delegate;
};

void TestLogMessageDelegate::prepare()
{
    view = std::make_unique<QTreeView>();
    view->setModel(&model);
    view->setRootIsDecorated(false);
    view->header()->hide();
    view->setFrameShape(QFrame::NoFrame);
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    view->setPalette(palette);
    view->show();
}

void TestLogMessageDelegate::finish()
{
    view.reset();
    model.clear();
}

QImage TestLogMessageDelegate::picture(const QString &text, Qt::LayoutDirection direction,
                                       QAbstractItemDelegate *delegate, int width)
{
    model.clear();
    model.appendRow(new QStandardItem(text));
    view->setItemDelegateForColumn(0, delegate);
    view->setLayoutDirection(direction);
    view->resize(width, 60);
    view->setColumnWidth(0, width);
    return PixelProbe(*view->viewport()).image();
}

void TestLogMessageDelegate::textIsKeptTogetherFromRightToLeft()
{
    model.appendRow(new QStandardItem(kEnglish));
    const QModelIndex index = model.index(0, 0);
    QCOMPARE(delegate.paintedText(index, Qt::RightToLeft), kept(kEnglish));
    QCOMPARE(delegate.paintedText(index, Qt::LeftToRight), kEnglish);
    model.setData(index, kArabic);
    QCOMPARE(delegate.paintedText(index, Qt::RightToLeft), kArabic);
}

void TestLogMessageDelegate::nothingStaysNothing()
{
    model.appendRow(new QStandardItem);
    QCOMPARE(delegate.paintedText(model.index(0, 0), Qt::RightToLeft), QString());
}

void TestLogMessageDelegate::englishReadsFromLeftToRight()
{
    const QString text = "WWWWWWWWWW..........";
    QVERIFY(endsWithDots(picture(text, Qt::LeftToRight, nullptr)));
    QVERIFY(!endsWithDots(picture(text, Qt::RightToLeft, nullptr)));
    const QImage painted = picture(text, Qt::RightToLeft, &delegate);
    QVERIFY(endsWithDots(painted));
    // Where the texts of that layout stand.
    QVERIFY(inkOf(painted).left() > painted.width() / 2);
}

void TestLogMessageDelegate::arabicStays()
{
    QCOMPARE(picture(kArabic, Qt::RightToLeft, &delegate),
             picture(kArabic, Qt::RightToLeft, nullptr));
}

void TestLogMessageDelegate::leftToRightStays()
{
    for (const QString &text : {kEnglish, kArabic}) {
        QCOMPARE(picture(text, Qt::LeftToRight, &delegate),
                 picture(text, Qt::LeftToRight, nullptr));
    }
}

/// The dots stand where the text would go on.
void TestLogMessageDelegate::cutTextEndsWithTheDots()
{
    const QString text(60, u'W');
    for (const bool isWrapped : {false, true}) {
        view->setWordWrap(isWrapped);
        QVERIFY(endsWithDots(picture(text, Qt::LeftToRight, nullptr, 150)));
        QVERIFY(endsWithDots(picture(text, Qt::RightToLeft, &delegate, 150)));
    }
}

void TestLogMessageDelegate::rowsKeepTheirSize()
{
    for (const QString &text : {kEnglish, kArabic, kEnglish + u'\n' + kArabic}) {
        picture(text, Qt::RightToLeft, nullptr);
        const QSize size = view->sizeHintForIndex(model.index(0, 0));
        const int height = view->visualRect(model.index(0, 0)).height();
        picture(text, Qt::RightToLeft, &delegate);
        QCOMPARE(view->sizeHintForIndex(model.index(0, 0)), size);
        QCOMPARE(view->visualRect(model.index(0, 0)).height(), height);
    }
}

void TestLogMessageDelegate::modelStays()
{
    picture(kEnglish, Qt::RightToLeft, &delegate);
    QCOMPARE(model.index(0, 0).data().toString(), kEnglish);
    QCOMPARE(delegate.displayText(kEnglish, QLocale()), kEnglish);
}

void TestLogMessageDelegate::logWindowPaintsByIt()
{
    const TXLogWindow window(QSharedPointer<TXLogManager>::create(), nullptr);
    const auto *tree = window.findChild<QTreeView *>("logTreeView");
    QVERIFY(tree != nullptr);
    QVERIFY(
        dynamic_cast<LogMessageDelegate *>(tree->itemDelegateForColumn(TXLogModel::MessageColumn)));
    QCOMPARE(tree->itemDelegateForColumn(TXLogModel::DateColumn), nullptr);
}

int main(int argc, char **argv)
{
    return runTest<TestLogMessageDelegate>(argc, argv);
}

#include "tst_LogMessageDelegate.moc"
