#include "DialogDriver.h"
#include "PageHelpers.h"
#include "ReceivedMailsPanel.h"
#include "TestBase.h"

#include <QPlainTextEdit>
#include <QTreeWidget>

#include <memory>

class TestReceivedMailsPanel : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        panel = std::make_unique<ReceivedMailsPanel>();
        panel->show();
    }

    void finish() override { panel.reset(); }

private slots:
    void newMailIsListedAndSelected();
    void selectedMailIsShownAsItCame();
    void oldestMailsAreDropped();
    void clearingEmptiesBoth();

private:
    [[nodiscard]] QTreeWidget &list() const { return *panel->findChild<QTreeWidget *>(); }
    [[nodiscard]] QString content() const
    {
        return panel->findChild<QPlainTextEdit *>()->toPlainText();
    }
    static ReceivedMail mail(const QByteArray &subject, bool usedTls)
    {
        return {"press@example.org",
                {"mia@example.org", "leo@example.org"},
                "Subject: " + subject + "\r\n\r\nbody of " + subject + "\r\n",
                usedTls,
                "mia"};
    }

    std::unique_ptr<ReceivedMailsPanel> panel;
};

void TestReceivedMailsPanel::newMailIsListedAndSelected()
{
    panel->addMail(mail("one", true));
    panel->addMail(mail("two", false));

    QCOMPARE(list().topLevelItemCount(), 2);
    const QTreeWidgetItem *first = list().topLevelItem(0);
    QCOMPARE(first->text(0), "press@example.org");
    QCOMPARE(first->text(1), "mia@example.org, leo@example.org");
    QCOMPARE(first->text(2), "one");
    QCOMPARE(first->text(3), "yes");
    QCOMPARE(first->text(4), "mia");
    QCOMPARE(list().topLevelItem(1)->text(3), "no");
    QCOMPARE(list().currentItem(), list().topLevelItem(1));
}

void TestReceivedMailsPanel::selectedMailIsShownAsItCame()
{
    panel->addMail(mail("one", true));
    panel->addMail(mail("two", false));
    QCOMPARE(content(), "Subject: two\n\nbody of two\n");

    list().setCurrentItem(list().topLevelItem(0));

    QCOMPARE(content(), "Subject: one\n\nbody of one\n");
}

void TestReceivedMailsPanel::oldestMailsAreDropped()
{
    for (int i = 0; i <= ReceivedMailsPanel::kMaximumMails; ++i) {
        panel->addMail(mail(QByteArray::number(i), true));
    }

    QCOMPARE(list().topLevelItemCount(), int(ReceivedMailsPanel::kMaximumMails));
    QCOMPARE(list().topLevelItem(0)->text(2), "1");
}

void TestReceivedMailsPanel::clearingEmptiesBoth()
{
    QVERIFY(!PageTest::button(*panel, "Clear")->isEnabled());
    panel->addMail(mail("one", true));

    DialogDriver::click(PageTest::button(*panel, "Clear"));

    QCOMPARE(list().topLevelItemCount(), 0);
    QVERIFY(content().isEmpty());
    QVERIFY(!PageTest::button(*panel, "Clear")->isEnabled());
}

int main(int argc, char **argv)
{
    return runTest<TestReceivedMailsPanel>(argc, argv);
}

#include "tst_ReceivedMailsPanel.moc"
