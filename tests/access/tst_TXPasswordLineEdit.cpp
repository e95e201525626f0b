#include "TXPasswordLineEdit.h"

#include "TestBase.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QClipboard>
#include <QDir>
#include <QDrag>
#include <QDragEnterEvent>
#include <QFile>
#include <QInputMethodQueryEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QStandardPaths>

#include <algorithm>
#include <memory>

namespace {

const QString kSecret = QStringLiteral("s3cr|et pässwörd");
const QString kMask = QString(25, u'|');

QString keyFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/TXGUICommon/datacrypt.key");
}

/// What the field shows and tells as a plain line edit.
QString shownText(const TXPasswordLineEdit &edit)
{
    return static_cast<const QLineEdit &>(edit).text();
}

QAction *findAction(const QMenu &menu, const QString &text)
{
    const QList<QAction *> actions = menu.actions();
    const auto found = std::find_if(actions.begin(), actions.end(), [&text](QAction *action) {
        return action->text().startsWith(text);
    });
    return found == actions.end() ? nullptr : *found;
}

} // namespace

class TestTXPasswordLineEdit : public TestBase
{
    Q_OBJECT

private slots:
    // First, as a key that was read once stays in memory.
    void withoutKeyTheFieldBecomesEmpty();

    void startsEmptyInPasswordMode();
    void maskStandsForEveryValue_data();
    void maskStandsForEveryValue();
    void emptyTextChangesNothing();
    void setTextCanBeConnectedByName();
    void laterValueReplacesTheEarlier();
    void valueReplacesWhatTheUserTyped();
    void firstKeyReplacesTheValue_data();
    void firstKeyReplacesTheValue();
    void barTypedIntoTheMaskIsLost();
    void barsOfALaterEditStay();
    void deletingDropsTheValue_data();
    void deletingDropsTheValue();
    void pastedTextReplacesTheValue();
    void cutDropsTheValueAndGivesNothing();
    void clearDropsTheValue();
    void programsOwnChangesAreNoEdits();
    void undoNeverBringsTheValueBack();
    void fieldTellsOnlyTheMask();
    void clipboardGetsNothing();
    void contextMenuOffersNoCopy();
    void draggingGivesNothing();
    void shownFieldPaintsTheSameForEveryValue();
    void committedInputReplacesTheValue();
    void clearButtonDropsTheValue();
    void baseClassSeesAndSetsTheShownTextOnly();
    void signalsCarryOnlyTheMask();
    void readableEchoShowsTheMask();
    void readableEchoDragsTheMask();
    void droppedTextReplacesTheValue();
    void editThatChangesNothingKeepsTheValue();
    void typedTextIsThePlainValue();
    void treatTextEditedLeavesTypedTextAlone();

protected:
    void prepare() override;
    void finish() override { edit.reset(); }

private:
    std::unique_ptr<TXPasswordLineEdit> edit;
};

void TestTXPasswordLineEdit::prepare()
{
    edit = std::make_unique<TXPasswordLineEdit>(nullptr);
    edit->show();
    QVERIFY(QTest::qWaitForWindowActive(edit.get()));
    edit->setFocus();
}

void TestTXPasswordLineEdit::withoutKeyTheFieldBecomesEmpty()
{
    // A folder in the place of the key.
    QVERIFY(QDir().mkpath(keyFile()));
    edit->setText(kSecret);
    QVERIFY(edit->text().isEmpty());
    QVERIFY(shownText(*edit).isEmpty());
    QVERIFY(QDir().rmdir(keyFile()));

    edit->setText(kSecret);
    QCOMPARE(edit->text(), kSecret);
}

void TestTXPasswordLineEdit::startsEmptyInPasswordMode()
{
    QCOMPARE(edit->echoMode(), QLineEdit::Password);
    QVERIFY(edit->text().isEmpty());
    QVERIFY(shownText(*edit).isEmpty());
}

void TestTXPasswordLineEdit::maskStandsForEveryValue_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("abc") << QStringLiteral("abc");
    QTest::newRow("one") << QStringLiteral("x");
    QTest::newRow("blanks") << QStringLiteral("   ");
    QTest::newRow("bars") << QString(25, u'|');
    QTest::newRow("other scripts") << QString::fromUtf8("пароль 密碼 🔑");
    QTest::newRow("control characters") << QStringLiteral("a\r\nb\tc");
    QTest::newRow("1 MB") << QString(qsizetype(1024) * 1024, u'w');
}

void TestTXPasswordLineEdit::maskStandsForEveryValue()
{
    QFETCH(QString, value);
    edit->setText(value);
    QCOMPARE(edit->text(), value);
    QCOMPARE(shownText(*edit), kMask);
}

void TestTXPasswordLineEdit::emptyTextChangesNothing()
{
    edit->setText(kSecret);
    edit->setText(QString());
    QCOMPARE(edit->text(), kSecret);
    QCOMPARE(shownText(*edit), kMask);

    QTest::keyClicks(edit.get(), "typed");
    edit->setText(QStringLiteral(""));
    QCOMPARE(edit->text(), "typed");
}

void TestTXPasswordLineEdit::setTextCanBeConnectedByName()
{
    QLineEdit source;
    QVERIFY(connect(&source, SIGNAL(textChanged(QString)), edit.get(), SLOT(setText(QString))));
    source.setText(kSecret);
    QCOMPARE(edit->text(), kSecret);
    QCOMPARE(shownText(*edit), kMask);
}

void TestTXPasswordLineEdit::laterValueReplacesTheEarlier()
{
    edit->setText(QStringLiteral("first"));
    edit->setText(QStringLiteral("second"));
    QCOMPARE(edit->text(), "second");
}

void TestTXPasswordLineEdit::valueReplacesWhatTheUserTyped()
{
    QTest::keyClicks(edit.get(), "typed");
    edit->setText(kSecret);
    QCOMPARE(edit->text(), kSecret);
    QCOMPARE(shownText(*edit), kMask);
}

void TestTXPasswordLineEdit::firstKeyReplacesTheValue_data()
{
    QTest::addColumn<int>("cursor");
    QTest::newRow("in front") << 0;
    QTest::newRow("in the middle") << 12;
    QTest::newRow("at the end") << 25;
}

void TestTXPasswordLineEdit::firstKeyReplacesTheValue()
{
    QFETCH(int, cursor);
    edit->setText(QStringLiteral("abc"));
    edit->setCursorPosition(cursor);
    QTest::keyClicks(edit.get(), "x");
    QCOMPARE(edit->text(), "x");
    QCOMPARE(shownText(*edit), "x");
    QTest::keyClicks(edit.get(), "yz");
    QCOMPARE(edit->text(), "xyz");
}

void TestTXPasswordLineEdit::barTypedIntoTheMaskIsLost()
{
    edit->setText(kSecret);
    QTest::keyClicks(edit.get(), "|");
    QVERIFY(edit->text().isEmpty());
    QVERIFY(shownText(*edit).isEmpty());
}

void TestTXPasswordLineEdit::barsOfALaterEditStay()
{
    edit->setText(kSecret);
    QTest::keyClicks(edit.get(), "a|b");
    QCOMPARE(edit->text(), "a|b");
}

void TestTXPasswordLineEdit::deletingDropsTheValue_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("backspace") << int(Qt::Key_Backspace);
    QTest::newRow("delete") << int(Qt::Key_Delete);
}

void TestTXPasswordLineEdit::deletingDropsTheValue()
{
    QFETCH(int, key);
    edit->setText(kSecret);
    edit->setCursorPosition(12);
    QTest::keyClick(edit.get(), Qt::Key(key));
    QVERIFY(edit->text().isEmpty());
    QVERIFY(shownText(*edit).isEmpty());
}

void TestTXPasswordLineEdit::pastedTextReplacesTheValue()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("pasted|text"));
    edit->setText(kSecret);
    edit->paste();
    QCOMPARE(edit->text(), "pastedtext");
}

void TestTXPasswordLineEdit::cutDropsTheValueAndGivesNothing()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    edit->setText(kSecret);
    edit->selectAll();
    edit->cut();
    QCOMPARE(QGuiApplication::clipboard()->text(), "before");
    QVERIFY(edit->text().isEmpty());
}

void TestTXPasswordLineEdit::clearDropsTheValue()
{
    edit->setText(kSecret);
    edit->clear();
    QVERIFY(edit->text().isEmpty());
    QVERIFY(shownText(*edit).isEmpty());

    QTest::keyClicks(edit.get(), "a|b");
    QCOMPARE(edit->text(), "a|b");
    edit->clear();
    QVERIFY(edit->text().isEmpty());
}

void TestTXPasswordLineEdit::programsOwnChangesAreNoEdits()
{
    const QSignalSpy edited(edit.get(), SIGNAL(textEdited(QString)));
    edit->setText(kSecret);
    edit->setEnabled(false);
    edit->setEnabled(true);
    edit->setEchoMode(QLineEdit::NoEcho);
    edit->setEchoMode(QLineEdit::Password);
    QCOMPARE(edited.count(), 0);
    QCOMPARE(edit->text(), kSecret);
}

void TestTXPasswordLineEdit::undoNeverBringsTheValueBack()
{
    edit->setText(kSecret);
    QVERIFY(!edit->isUndoAvailable());
    QTest::keyClicks(edit.get(), "x");
    for (int i = 0; i < 5; ++i) {
        edit->undo();
        QVERIFY(!edit->text().contains(kSecret));
        QVERIFY(!edit->text().contains(u'|'));
    }
    edit->redo();
    QVERIFY(!edit->text().contains(kSecret));
}

void TestTXPasswordLineEdit::fieldTellsOnlyTheMask()
{
    edit->setText(kSecret);
    edit->selectAll();
    QCOMPARE(edit->selectedText(), kMask);
    QCOMPARE(edit->property("text").toString(), kMask);
    QCOMPARE(edit->displayText().size(), kMask.size());
    QVERIFY(!edit->displayText().contains(kSecret));
    edit->end(false);
    QCOMPARE(edit->cursorPosition(), kMask.size());

    QInputMethodQueryEvent query(Qt::ImQueryAll);
    QCoreApplication::sendEvent(edit.get(), &query);
    QVERIFY(!query.value(Qt::ImSurroundingText).toString().contains(kSecret));
    QVERIFY(!query.value(Qt::ImCurrentSelection).toString().contains(kSecret));

    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(edit.get());
    QVERIFY(accessible);
    QCOMPARE(accessible->text(QAccessible::Value).size(), kMask.size());
    QVERIFY(!accessible->text(QAccessible::Value).contains(kSecret));
}

void TestTXPasswordLineEdit::clipboardGetsNothing()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    edit->setText(kSecret);
    edit->selectAll();
    edit->copy();
    QTest::keyClick(edit.get(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), "before");
}

void TestTXPasswordLineEdit::contextMenuOffersNoCopy()
{
    edit->setText(kSecret);
    edit->selectAll();
    const std::unique_ptr<QMenu> menu(edit->createStandardContextMenu());
    for (const char *text : {"&Copy", "Cu&t"}) {
        const QAction *action = findAction(*menu, QString::fromLatin1(text));
        QVERIFY(action);
        QVERIFY(!action->isEnabled());
    }
}

void TestTXPasswordLineEdit::draggingGivesNothing()
{
    edit->setDragEnabled(true);
    edit->setText(kSecret);
    edit->selectAll();
    const QPoint start = edit->rect().center();
    QTest::mousePress(edit.get(), Qt::LeftButton, {}, start);
    for (int step = 1; step <= 4; ++step) {
        QTest::mouseMove(edit.get(), start + QPoint(step * 10, 0));
        // A drag would be a child of its source while it runs, and is deleted later.
        QVERIFY(edit->findChildren<QDrag *>().isEmpty());
    }
    QTest::mouseRelease(edit.get(), Qt::LeftButton, {}, start + QPoint(40, 0));
    QCOMPARE(edit->text(), kSecret);
}

void TestTXPasswordLineEdit::shownFieldPaintsTheSameForEveryValue()
{
    edit->setText(QStringLiteral("x"));
    edit->clearFocus();
    const QImage one = edit->grab().toImage();
    edit->setText(QString(200, u'w'));
    edit->clearFocus();
    QCOMPARE(edit->grab().toImage(), one);
}

void TestTXPasswordLineEdit::committedInputReplacesTheValue()
{
    edit->setText(kSecret);
    QInputMethodEvent composing(QStringLiteral("ni"), {});
    QCoreApplication::sendEvent(edit.get(), &composing);
    QCOMPARE(edit->text(), kSecret);

    QInputMethodEvent committing;
    committing.setCommitString(QString::fromUtf8("你|"));
    QCoreApplication::sendEvent(edit.get(), &committing);
    QCOMPARE(edit->text(), QString::fromUtf8("你"));
}

void TestTXPasswordLineEdit::clearButtonDropsTheValue()
{
    edit->setClearButtonEnabled(true);
    edit->setText(kSecret);
    auto *clearButton = edit->findChild<QAbstractButton *>();
    QVERIFY(clearButton);
    QTest::mouseClick(clearButton, Qt::LeftButton);
    QVERIFY(edit->text().isEmpty());
    QVERIFY(shownText(*edit).isEmpty());
}

void TestTXPasswordLineEdit::baseClassSeesAndSetsTheShownTextOnly()
{
    edit->setText(kSecret);
    QLineEdit *base = edit.get();
    QCOMPARE(base->text(), kMask);
    base->setText(QStringLiteral("other"));
    QCOMPARE(edit->text(), kSecret);
    QCOMPARE(base->text(), "other");

    QVERIFY(edit->setProperty("text", QStringLiteral("third")));
    QCOMPARE(edit->text(), kSecret);
    QCOMPARE(base->text(), "third");
}

void TestTXPasswordLineEdit::signalsCarryOnlyTheMask()
{
    const QSignalSpy changed(edit.get(), SIGNAL(textChanged(QString)));
    edit->setText(kSecret);
    edit->setText(QStringLiteral("other"));
    QCOMPARE(changed, QList<QVariantList>({{kMask}}));
}

void TestTXPasswordLineEdit::readableEchoShowsTheMask()
{
    edit->setEchoMode(QLineEdit::Normal);
    edit->setText(kSecret);
    QCOMPARE(edit->displayText(), kMask);
    edit->selectAll();
    edit->copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), kMask);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(edit.get());
    QCOMPARE(accessible->text(QAccessible::Value), kMask);
    QCOMPARE(edit->text(), kSecret);
}

void TestTXPasswordLineEdit::readableEchoDragsTheMask()
{
    edit->resize(400, 30);
    edit->setEchoMode(QLineEdit::Normal);
    edit->setDragEnabled(true);
    edit->setText(kSecret);
    edit->selectAll();
    const QPoint start(15, 15);
    QTest::mousePress(edit.get(), Qt::LeftButton, {}, start);
    QMouseEvent move(QEvent::MouseMove, start + QPoint(60, 0),
                     edit->mapToGlobal(start + QPoint(60, 0)), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(edit.get(), &move);
    const auto *drag = edit->findChild<QDrag *>();
    QVERIFY(drag);
    QCOMPARE(drag->mimeData()->text(), kMask);
    QCOMPARE(edit->text(), kSecret);
}

void TestTXPasswordLineEdit::droppedTextReplacesTheValue()
{
    edit->setText(kSecret);
    QMimeData data;
    data.setText(QStringLiteral("dropped|text"));
    const QPoint place(5, edit->height() / 2);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(edit.get(), &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(edit.get(), &drop);
    QCOMPARE(edit->text(), "droppedtext");
}

void TestTXPasswordLineEdit::editThatChangesNothingKeepsTheValue()
{
    edit->setText(kSecret);
    QTest::keyClick(edit.get(), Qt::Key_Home);
    QTest::keyClick(edit.get(), Qt::Key_Backspace);
    QTest::keyClick(edit.get(), Qt::Key_End);
    QTest::keyClick(edit.get(), Qt::Key_Delete);
    QTest::keyClick(edit.get(), Qt::Key_Return);
    QCOMPARE(edit->text(), kSecret);
    edit->setReadOnly(true);
    QTest::keyClicks(edit.get(), "x");
    QCOMPARE(edit->text(), kSecret);
}

void TestTXPasswordLineEdit::typedTextIsThePlainValue()
{
    QTest::keyClicks(edit.get(), "ab|c");
    QCOMPARE(edit->text(), "ab|c");
    QCOMPARE(shownText(*edit), "ab|c");
}

void TestTXPasswordLineEdit::treatTextEditedLeavesTypedTextAlone()
{
    QTest::keyClicks(edit.get(), "ab|c");
    edit->treatTextEdited(QStringLiteral("other|text"));
    QCOMPARE(edit->text(), "ab|c");

    edit->setText(kSecret);
    edit->treatTextEdited(QStringLiteral("other|text"));
    QCOMPARE(edit->text(), "othertext");
}

int main(int argc, char **argv)
{
    return runTest<TestTXPasswordLineEdit>(argc, argv);
}

#include "tst_TXPasswordLineEdit.moc"
