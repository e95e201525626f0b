#include "LineEditDrapAndDrop.h"

#include "TestBase.h"

#include <QDropEvent>
#include <QMetaMethod>
#include <QMimeData>
#include <QSignalSpy>

#include <memory>

namespace {

const QUrl kLocal(QStringLiteral("file:///tmp/profile.icc"));
const QUrl kRemote(QStringLiteral("http://example.org/profile.icc"));
constexpr int kManyUrls = 10000;

/// A line edit whose drags a test can send past the window system.
class DropField : public LineEditDrapAndDrop
{
public:
    using LineEditDrapAndDrop::LineEditDrapAndDrop;

    /// Whether the drag may come in.
    bool enter(const QMimeData *data)
    {
        QDragEnterEvent event(QPoint(5, 5), kActions, data, Qt::LeftButton, Qt::NoModifier);
        dragEnterEvent(&event);
        lastAction = event.dropAction();
        return event.isAccepted();
    }

    /// Whether the drop was taken.
    bool drop(const QMimeData *data)
    {
        QDropEvent event(QPointF(5, 5), kActions, data, Qt::LeftButton, Qt::NoModifier);
        dropEvent(&event);
        return event.isAccepted();
    }

    Qt::DropAction lastAction = Qt::IgnoreAction;

private:
    static constexpr Qt::DropActions kActions = Qt::CopyAction | Qt::MoveAction;
};

QList<QUrl> urlsIn(const QSignalSpy &spy)
{
    return spy.first().first().value<QList<QUrl>>();
}

} // namespace

/// Deletes the line edit as soon as it says something.
class FieldRemover : public QObject
{
    Q_OBJECT

public:
    std::unique_ptr<DropField> field = std::make_unique<DropField>();

public slots:
    void remove() { field.reset(); }
};

class TestLineEditDrapAndDrop : public TestBase
{
    Q_OBJECT

private slots:
    void acceptsDropsFromTheStart();
    void itsOnlyMethodIsTheSignal();
    void dragIsTakenByItsFirstUrl_data();
    void dragIsTakenByItsFirstUrl();
    void dragWithoutUrlsIsRefused_data();
    void dragWithoutUrlsIsRefused();
    void acceptedDragHasTheProposedAction();
    void readOnlyFieldTakesFilesToo();
    void everyUrlComesInItsOrder();
    void tenThousandUrlsComeInOnePiece();
    void dropIsReportedWhateverItsFirstUrlIs();
    void dropOfTextDoesNothing();
    void dropOfAnEmptyListIsReportedAsSuch();
    void textStaysAsItWas();
    void mayBeDeletedByWhoHearsOfTheDrop();
};

void TestLineEditDrapAndDrop::acceptsDropsFromTheStart()
{
    const LineEditDrapAndDrop field;

    QVERIFY(field.acceptDrops());
}

void TestLineEditDrapAndDrop::itsOnlyMethodIsTheSignal()
{
    const QMetaObject &meta = LineEditDrapAndDrop::staticMetaObject;

    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodType(), QMetaMethod::Signal);
    QCOMPARE(method.methodSignature(), QByteArray("urlFileListHaveBeenDropped(QList<QUrl>)"));
}

void TestLineEditDrapAndDrop::dragIsTakenByItsFirstUrl_data()
{
    QTest::addColumn<QList<QUrl>>("urls");
    QTest::addColumn<bool>("isTaken");

    QTest::newRow("a file") << QList<QUrl>{kLocal} << true;
    QTest::newRow("a file, then a remote one") << QList<QUrl>{kLocal, kRemote} << true;
    QTest::newRow("a file, then nonsense") << QList<QUrl>{kLocal, QUrl()} << true;
    QTest::newRow("remote") << QList<QUrl>{kRemote} << false;
    QTest::newRow("remote, then a file") << QList<QUrl>{kRemote, kLocal} << false;
    QTest::newRow("nonsense, then a file") << QList<QUrl>{QUrl(), kLocal} << false;
    QTest::newRow("a path without a scheme") << QList<QUrl>{QUrl("/tmp/profile.icc")} << false;
    QTest::newRow("a file that is not there") << QList<QUrl>{QUrl("file:///no/such")} << true;
    QTest::newRow("empty") << QList<QUrl>{} << false;
}

void TestLineEditDrapAndDrop::dragIsTakenByItsFirstUrl()
{
    QFETCH(const QList<QUrl>, urls);
    QMimeData data;
    data.setUrls(urls);
    DropField field;

    QTEST(field.enter(&data), "isTaken");
}

void TestLineEditDrapAndDrop::dragWithoutUrlsIsRefused_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("text") << "text/plain" << QByteArray("/tmp/profile.icc");
    QTest::newRow("markup") << "text/html" << QByteArray("<a href='file:///tmp/a'>a</a>");
    QTest::newRow("folders") << "application/x-txfolders" << QByteArray("1 2");
    QTest::newRow("list of nothing") << "text/uri-list" << QByteArray();
    QTest::newRow("list of comments") << "text/uri-list" << QByteArray("#a\r\n#b\r\n");
    QTest::newRow("list of bytes") << "text/uri-list" << QByteArray("\xff\xfe\0\r\n", 5);
}

void TestLineEditDrapAndDrop::dragWithoutUrlsIsRefused()
{
    QFETCH(const QString, format);
    QFETCH(const QByteArray, bytes);
    QMimeData data;
    data.setData(format, bytes);
    DropField field;

    QVERIFY(!field.enter(&data));
    QVERIFY(!field.enter(nullptr));
}

void TestLineEditDrapAndDrop::acceptedDragHasTheProposedAction()
{
    QMimeData data;
    data.setUrls({kLocal});
    DropField field;

    QVERIFY(field.enter(&data));

    QDragEnterEvent plain(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    QCOMPARE(field.lastAction, plain.proposedAction());
}

void TestLineEditDrapAndDrop::readOnlyFieldTakesFilesToo()
{
    QMimeData data;
    data.setUrls({kLocal});
    DropField field;
    field.setReadOnly(true);
    const QSignalSpy dropped(&field, SIGNAL(urlFileListHaveBeenDropped(QList<QUrl>)));

    QVERIFY(field.enter(&data));
    QVERIFY(field.drop(&data));

    QCOMPARE(dropped.size(), 1);
}

void TestLineEditDrapAndDrop::everyUrlComesInItsOrder()
{
    QMimeData data;
    data.setUrls({kLocal, kRemote, kLocal});
    DropField field;
    const QSignalSpy dropped(&field, SIGNAL(urlFileListHaveBeenDropped(QList<QUrl>)));

    QVERIFY(field.enter(&data));
    QVERIFY(field.drop(&data));

    QCOMPARE(dropped.size(), 1);
    QCOMPARE(urlsIn(dropped), (QList<QUrl>{kLocal, kRemote, kLocal}));
}

void TestLineEditDrapAndDrop::tenThousandUrlsComeInOnePiece()
{
    QList<QUrl> urls;
    for (int i = 0; i < kManyUrls; ++i) {
        urls.append(QUrl::fromLocalFile(QStringLiteral("/tmp/Messung äöü %1.txt").arg(i)));
    }
    QMimeData data;
    data.setUrls(urls);
    DropField field;
    const QSignalSpy dropped(&field, SIGNAL(urlFileListHaveBeenDropped(QList<QUrl>)));

    QVERIFY(field.enter(&data));
    QVERIFY(field.drop(&data));

    QCOMPARE(dropped.size(), 1);
    QCOMPARE(urlsIn(dropped), urls);
}

void TestLineEditDrapAndDrop::dropIsReportedWhateverItsFirstUrlIs()
{
    QMimeData data;
    data.setUrls({kRemote, kLocal});
    DropField field;
    const QSignalSpy dropped(&field, SIGNAL(urlFileListHaveBeenDropped(QList<QUrl>)));

    QVERIFY(field.drop(&data));

    QCOMPARE(urlsIn(dropped), (QList<QUrl>{kRemote, kLocal}));
}

void TestLineEditDrapAndDrop::dropOfTextDoesNothing()
{
    QMimeData data;
    data.setText("a text that a QLineEdit would take");
    DropField field;
    const QSignalSpy dropped(&field, SIGNAL(urlFileListHaveBeenDropped(QList<QUrl>)));

    QVERIFY(!field.drop(&data));
    QVERIFY(!field.drop(nullptr));

    QCOMPARE(dropped.size(), 0);
    QCOMPARE(field.text(), QString());
}

void TestLineEditDrapAndDrop::dropOfAnEmptyListIsReportedAsSuch()
{
    QMimeData data;
    data.setUrls({});
    DropField field;
    const QSignalSpy dropped(&field, SIGNAL(urlFileListHaveBeenDropped(QList<QUrl>)));

    QVERIFY(data.hasUrls());
    QVERIFY(!field.enter(&data));
    QVERIFY(field.drop(&data));

    QCOMPARE(dropped.size(), 1);
    QCOMPARE(urlsIn(dropped), QList<QUrl>());
}

void TestLineEditDrapAndDrop::textStaysAsItWas()
{
    QMimeData data;
    data.setUrls({kLocal});
    data.setText("dropped");
    DropField field;
    field.setText("typed");

    QVERIFY(field.enter(&data));
    QVERIFY(field.drop(&data));

    QCOMPARE(field.text(), QString("typed"));
    QVERIFY(!field.isModified());
}

void TestLineEditDrapAndDrop::mayBeDeletedByWhoHearsOfTheDrop()
{
    QMimeData data;
    data.setUrls({kLocal});
    FieldRemover remover;
    connect(remover.field.get(), SIGNAL(urlFileListHaveBeenDropped(QList<QUrl>)), &remover,
            SLOT(remove()));

    QVERIFY(remover.field->drop(&data));

    QVERIFY(!remover.field);
}

int main(int argc, char **argv)
{
    return runTest<TestLineEditDrapAndDrop>(argc, argv);
}

#include "tst_LineEditDrapAndDrop.moc"
