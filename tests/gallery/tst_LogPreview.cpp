#include "LogPreview.h"
#include "TestBase.h"

#include "TXLogManager.h"
#include "TXLogModel.h"

#include <QScrollBar>
#include <QTimer>

#include <memory>

class TestLogPreview : public TestBase
{
    Q_OBJECT

private slots:
    void newestEntryStaysInSight();
    void scrollingAwayIsRespected();
    void followsAgainOnceTheEndIsReached();
    void newestIsUnfolded();
    void fullLogDropsTheCurrentRowWithoutANewOne();
    void otherCurrentRowStaysInAFullLog();
    void messagesReadInTheirOwnDirection();

protected:
    void prepare() override;
    void finish() override;

private:
    void write(int count);
    bool isAtEnd() const
    {
        return preview->verticalScrollBar()->value() == preview->verticalScrollBar()->maximum();
    }

    QSharedPointer<TXLogManager> log;
    std::unique_ptr<LogPreview> preview;
};

void TestLogPreview::prepare()
{
    log = QSharedPointer<TXLogManager>::create();
    preview = std::make_unique<LogPreview>(log);
    preview->show();
    write(200);
    QTRY_VERIFY(preview->verticalScrollBar()->maximum() > 0 && isAtEnd());
}

void TestLogPreview::finish()
{
    preview.reset();
    log.reset();
}

void TestLogPreview::write(int count)
{
    for (int i = 0; i < count; ++i) {
        log->append(TXLogItem::Information, TXStringI18n::fromString(QString::number(i)));
    }
    log->flush();
}

void TestLogPreview::newestEntryStaysInSight()
{
    const int before = preview->verticalScrollBar()->maximum();

    write(200);

    QTRY_VERIFY(preview->verticalScrollBar()->maximum() > before && isAtEnd());
}

void TestLogPreview::scrollingAwayIsRespected()
{
    preview->verticalScrollBar()->setValue(3);
    const int before = preview->verticalScrollBar()->maximum();

    write(200);

    QTRY_VERIFY(preview->verticalScrollBar()->maximum() > before);
    QCOMPARE(preview->verticalScrollBar()->value(), 3);
    // Nor will it move later on.
    const auto timers = preview->findChildren<QTimer *>(Qt::FindDirectChildrenOnly);
    QVERIFY(!timers.isEmpty());
    for (const QTimer *timer : timers) {
        QVERIFY(!timer->isActive());
    }
}

void TestLogPreview::followsAgainOnceTheEndIsReached()
{
    preview->verticalScrollBar()->setValue(3);
    preview->verticalScrollBar()->setValue(preview->verticalScrollBar()->maximum());
    const int before = preview->verticalScrollBar()->maximum();

    write(200);

    QTRY_VERIFY(preview->verticalScrollBar()->maximum() > before && isAtEnd());
}

void TestLogPreview::newestIsUnfolded()
{
    const auto item = TXLogItem::create(TXLogItem::Information, "parent");
    item->addChild(TXLogItem::create(TXLogItem::Information, "child"));
    log->append(item);
    log->flush();

    preview->showNewest();

    const QModelIndex newest = preview->model()->index(preview->model()->rowCount() - 1, 0);
    QVERIFY(preview->isExpanded(newest));
    QVERIFY(preview->viewport()->rect().contains(
        preview->visualRect(preview->model()->index(0, 0, newest))));
}

void TestLogPreview::fullLogDropsTheCurrentRowWithoutANewOne()
{
    log->setMaximumCount(200);
    preview->setCurrentIndex(preview->model()->index(0, 0));

    write(1);

    QCOMPARE(preview->model()->rowCount(), 200);
    QVERIFY(!preview->currentIndex().isValid());
}

void TestLogPreview::otherCurrentRowStaysInAFullLog()
{
    log->setMaximumCount(200);
    preview->setCurrentIndex(preview->model()->index(5, 0));

    write(1);

    QCOMPARE(preview->model()->rowCount(), 200);
    QCOMPARE(preview->currentIndex().row(), 4);
}

void TestLogPreview::messagesReadInTheirOwnDirection()
{
    log->append(TXLogItem::Warning, TXStringI18n::fromString("sizeHints()"));
    log->flush();
    QTRY_VERIFY(isAtEnd());
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        preview->setLayoutDirection(direction);
        QAbstractItemDelegate *own = preview->itemDelegateForColumn(TXLogModel::MessageColumn);
        const QImage image = preview->grab().toImage();
        preview->setItemDelegateForColumn(TXLogModel::MessageColumn, nullptr);
        QCOMPARE(image == preview->grab().toImage(), direction == Qt::LeftToRight);
        preview->setItemDelegateForColumn(TXLogModel::MessageColumn, own);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestLogPreview>(argc, argv);
}

#include "tst_LogPreview.moc"
