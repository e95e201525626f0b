#include "ElidingHeader.h"
#include "TestBase.h"

#include <QHelpEvent>
#include <QStandardItemModel>
#include <QToolTip>
#include <QTreeView>

class TestElidingHeader : public TestBase
{
    Q_OBJECT

private slots:
    void shortenedTitleIsToldByItsTooltip();
    void wholeTitleHasNoTooltip();
    void titleIsNoMarkup();
    void placeWithoutTitleHasNoTooltip();

protected:
    void prepare() override;
    void finish() override;

private:
    void pointAt(int x)
    {
        const QPoint place(x, header->height() / 2);
        QHelpEvent event(QEvent::ToolTip, place, header->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(header->viewport(), &event);
    }

    QScopedPointer<QStandardItemModel> model;
    QScopedPointer<QTreeView> view;
    ElidingHeader *header = nullptr;
};

void TestElidingHeader::prepare()
{
    model.reset(new QStandardItemModel(0, 2));
    model->setHorizontalHeaderLabels({"Network Drive", "Host"});
    view.reset(new QTreeView);
    header = new ElidingHeader(view.get());
    view->setHeader(header);
    view->setModel(model.get());
    header->setStretchLastSection(false);
    header->resizeSection(0, 50);
    header->resizeSection(1, 100);
    view->resize(300, 100);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
}

void TestElidingHeader::finish()
{
    QToolTip::hideText();
    view.reset();
    model.reset();
    // The tooltip goes a moment later.
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestElidingHeader::shortenedTitleIsToldByItsTooltip()
{
    pointAt(10);

    QCOMPARE(QToolTip::text(), "Network Drive");
}

void TestElidingHeader::wholeTitleHasNoTooltip()
{
    pointAt(100);

    QCOMPARE(QToolTip::text(), QString());
}

void TestElidingHeader::titleIsNoMarkup()
{
    model->setHorizontalHeaderLabels({"<b>Network</b> Drive", "Host"});

    pointAt(10);

    QCOMPARE(QToolTip::text(), "&lt;b&gt;Network&lt;/b&gt; Drive");
}

void TestElidingHeader::placeWithoutTitleHasNoTooltip()
{
    pointAt(250);

    QCOMPARE(QToolTip::text(), QString());
}

int main(int argc, char **argv)
{
    return runTest<TestElidingHeader>(argc, argv);
}

#include "tst_ElidingHeader.moc"
