#include "TXSelectDefaultEncodingWidget.h"

#include "TestBase.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QTextCodec>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace {

using Settings = QHash<QString, QVariant>;

const QString kKey = QStringLiteral("DefaultMeasurementTextFileEncoding");

/// Where the list of all codecs begins: behind the recommended one and the separator.
constexpr int kFirstOfAll = 2;

} // namespace

class TestTXSelectDefaultEncodingWidget : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        panel = std::make_unique<TXSelectDefaultEncodingWidget>();
        list = panel->findChild<QComboBox *>("encodingListComboBox");
    }
    void finish() override
    {
        panel.reset();
        QTextCodec::setCodecForLocale(nullptr);
    }

private slots:
    void formIsAsDesigned();
    void nothingIsDeclaredForConnections();
    void localesCodecIsRecommended();
    void otherLocaleRecommendsItsOwn();
    void recommendationIsNotTranslated();
    void separatorFollowsTheFirst();
    void allCodecsAreListed();
    void sortingIgnoresCapitals();
    void namesThatDifferByCapitalsHaveAFixedOrder();
    void popupShowsTheSelection();

    void savedAtOnceItIsTheLocales();
    void encodingsComeBack();
    void missingKeyIsTheRecommended();
    void oddEncodingSelectsTheFirst_data();
    void oddEncodingSelectsTheFirst();

private:
    [[nodiscard]] QStringList listed() const
    {
        QStringList names;
        for (int place = kFirstOfAll; place < list->count(); ++place) {
            names.append(list->itemText(place));
        }
        return names;
    }

    std::unique_ptr<TXSelectDefaultEncodingWidget> panel;
    QComboBox *list = nullptr;
};

void TestTXSelectDefaultEncodingWidget::formIsAsDesigned()
{
    QCOMPARE(panel->objectName(), "TXSelectDefaultEncodingWidget");
    QCOMPARE(panel->windowTitle(), "Form");
    QCOMPARE(panel->size(), QSize(200, 20));
    auto *row = qobject_cast<QHBoxLayout *>(panel->layout());
    QVERIFY(row);
    QCOMPARE(row->objectName(), "horizontalLayout");
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->count(), 2);
    const auto *label = panel->findChild<QLabel *>("label");
    QCOMPARE(row->itemAt(0)->widget(), label);
    QCOMPARE(label->text(), "Default Encoding");
    QCOMPARE(label->buddy(), list);
    QCOMPARE(row->itemAt(1)->widget(), list);

    // Width to spare goes to the list.
    panel->resize(800, 40);
    panel->show();
    QCOMPARE(label->width(), label->sizeHint().width());
}

void TestTXSelectDefaultEncodingWidget::nothingIsDeclaredForConnections()
{
    const QMetaObject &meta = TXSelectDefaultEncodingWidget::staticMetaObject;
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void TestTXSelectDefaultEncodingWidget::localesCodecIsRecommended()
{
    const QString name = QString::fromLatin1(QTextCodec::codecForLocale()->name());
    QVERIFY(!name.isEmpty());
    QCOMPARE(list->currentIndex(), 0);
    QCOMPARE(list->itemText(0), name + " (Recommended)");
    QCOMPARE(list->itemData(0), QVariant(name));
    QCOMPARE(panel->defaultEncoding(), name);
    QCOMPARE(panel->selectedEncoding(), name);
    // Again among all, without the remark.
    QVERIFY(listed().contains(name));
}

void TestTXSelectDefaultEncodingWidget::otherLocaleRecommendsItsOwn()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-15"));

    const TXSelectDefaultEncodingWidget other;

    QCOMPARE(other.defaultEncoding(), "ISO-8859-15");
    QCOMPARE(other.findChild<QComboBox *>()->itemText(0), "ISO-8859-15 (Recommended)");
}

void TestTXSelectDefaultEncodingWidget::recommendationIsNotTranslated()
{
    class Capitals : public QTranslator
    {
    public:
        QString translate(const char * /*context*/, const char *text, const char * /*remark*/,
                          int /*n*/) const override
        {
            return QString::fromUtf8(text).toUpper();
        }
        bool isEmpty() const override { return false; }
    };
    Capitals translator;
    QCoreApplication::installTranslator(&translator);

    const TXSelectDefaultEncodingWidget other;

    QCOMPARE(other.findChild<QLabel *>("label")->text(), "DEFAULT ENCODING");
    QVERIFY(other.findChild<QComboBox *>()->itemText(0).endsWith(" (Recommended)"));
    QCoreApplication::removeTranslator(&translator);
}

void TestTXSelectDefaultEncodingWidget::separatorFollowsTheFirst()
{
    QCOMPARE(list->itemData(1, Qt::AccessibleDescriptionRole), QVariant("separator"));
    QVERIFY(!list->itemData(1).isValid());
    for (int place = 0; place < list->count(); ++place) {
        const auto flags = list->model()->flags(list->model()->index(place, 0));
        QCOMPARE(flags.testFlag(Qt::ItemIsSelectable), place != 1);
    }
}

void TestTXSelectDefaultEncodingWidget::allCodecsAreListed()
{
    QStringList expected;
    const auto codecs = QTextCodec::availableCodecs();
    for (const QByteArray &codec : codecs) {
        expected.append(QString::fromLatin1(codec));
    }
    QVERIFY(expected.size() > 10);
    QStringList names = listed();
    for (int place = kFirstOfAll; place < list->count(); ++place) {
        QCOMPARE(list->itemData(place), QVariant(list->itemText(place)));
    }

    expected.sort();
    names.sort();
    // Those too that it gives twice.
    QCOMPARE(names, expected);
}

void TestTXSelectDefaultEncodingWidget::sortingIgnoresCapitals()
{
    const QStringList names = listed();
    const auto isLess = [](const QString &left, const QString &right) {
        return left.toLower() < right.toLower();
    };
    QVERIFY(std::is_sorted(names.cbegin(), names.cend(), isLess));
    // A name of small letters among those of capitals, which a sorting by letters puts last.
    const auto isSmall = [](const QString &name) {
        return name.at(0).isLower();
    };
    const auto small = std::find_if(names.cbegin(), names.cend(), isSmall);
    QVERIFY(small != names.cend());
    QVERIFY(
        std::any_of(small, names.cend(), [](const QString &name) { return name.at(0).isUpper(); }));
}

void TestTXSelectDefaultEncodingWidget::namesThatDifferByCapitalsHaveAFixedOrder()
{
    const QStringList names = listed();
    for (qsizetype place = 1; place < names.size(); ++place) {
        if (names.at(place - 1).toLower() == names.at(place).toLower()) {
            QVERIFY(names.at(place - 1) <= names.at(place));
        }
    }
    const TXSelectDefaultEncodingWidget other;
    QStringList again;
    const auto *otherList = other.findChild<QComboBox *>();
    for (int place = kFirstOfAll; place < otherList->count(); ++place) {
        again.append(otherList->itemText(place));
    }
    QCOMPARE(again, names);
}

void TestTXSelectDefaultEncodingWidget::popupShowsTheSelection()
{
    panel->selectEncoding("UTF-16");
    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel.get()));

    list->showPopup();

    const QAbstractItemView *view = list->view();
    QTRY_VERIFY(view->isVisible());
    const QRect shown = view->visualRect(view->currentIndex());
    QCOMPARE(view->currentIndex().data().toString(), "UTF-16");
    QVERIFY(view->viewport()->rect().contains(shown.center()));
    QVERIFY(view->window()->height() <= panel->screen()->availableGeometry().height());

    // Typing goes to a codec; the arrow key passes over the separator.
    list->hidePopup();
    list->setFocus();
    list->setCurrentIndex(0);
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(list->currentIndex(), kFirstOfAll);
}

void TestTXSelectDefaultEncodingWidget::savedAtOnceItIsTheLocales()
{
    const Settings saved = panel->save();
    const QString name = QString::fromLatin1(QTextCodec::codecForLocale()->name());
    QCOMPARE(saved, Settings({{kKey, name}}));
    QCOMPARE(saved.value(kKey).typeId(), int(QMetaType::QString));
}

void TestTXSelectDefaultEncodingWidget::encodingsComeBack()
{
    const QStringList names = listed();
    for (const QString &name : names) {
        const Settings settings = {{kKey, name}};
        panel->load(settings);
        QCOMPARE(panel->save(), settings);
        // QTextCodec gives some names twice. The locale's is found at its first place.
        const bool isRecommended = name == panel->defaultEncoding();
        QCOMPARE(list->currentIndex(), isRecommended ? 0 : int(names.indexOf(name)) + kFirstOfAll);
    }
}

void TestTXSelectDefaultEncodingWidget::missingKeyIsTheRecommended()
{
    panel->selectEncoding("UTF-16");

    panel->load({{"Other", "UTF-16"}});

    QCOMPARE(list->currentIndex(), 0);
}

void TestTXSelectDefaultEncodingWidget::oddEncodingSelectsTheFirst_data()
{
    QTest::addColumn<QVariant>("encoding");
    QTest::newRow("gone") << QVariant("KOI-7000");
    QTest::newRow("small letters") << QVariant("utf-16");
    QTest::newRow("with a blank") << QVariant("UTF-16 ");
    QTest::newRow("with the remark")
        << QVariant(QString(QTextCodec::codecForLocale()->name() + " (Recommended)"));
    QTest::newRow("pattern") << QVariant("UTF*");
    QTest::newRow("beginning") << QVariant("UTF");
    QTest::newRow("empty") << QVariant("");
    QTest::newRow("null text") << QVariant(QString());
    // The separator's data.
    QTest::newRow("invalid") << QVariant();
    QTest::newRow("separator") << QVariant("separator");
    QTest::newRow("number") << QVariant(3);
    QTest::newRow("bytes") << QVariant(QByteArray("UTF-16"));
    QTest::newRow("list") << QVariant(QStringList({"UTF-16", "UTF-8"}));
    QTest::newRow("null pointer") << QVariant::fromValue(nullptr);
}

void TestTXSelectDefaultEncodingWidget::oddEncodingSelectsTheFirst()
{
    QFETCH(QVariant, encoding);
    panel->selectEncoding("UTF-16");
    QCOMPARE(panel->selectedEncoding(), "UTF-16");

    panel->selectEncoding(encoding);
    QCOMPARE(list->currentIndex(), 0);

    panel->selectEncoding("UTF-16");
    panel->load({{kKey, encoding}});
    QCOMPARE(list->currentIndex(), 0);
    QCOMPARE(panel->selectedEncoding(), panel->defaultEncoding());
}

int main(int argc, char **argv)
{
    return runTest<TestTXSelectDefaultEncodingWidget>(argc, argv);
}

#include "tst_TXSelectDefaultEncodingWidget.moc"
