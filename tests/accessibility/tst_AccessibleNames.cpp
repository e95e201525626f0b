#include "FormControls.h"
#include "LibraryWidgets.h"
#include "TestBase.h"

#include "FTPConfigurationWidget.h"
#include "TXWidgetListWidget.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTranslator>
#include <QVBoxLayout>

namespace {

/// "Translates" every text to capital letters.
class CapitalTranslator : public QTranslator
{
    Q_OBJECT

public:
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QString::fromUtf8(source).toUpper();
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
};

/// Names that a host of these forms has given, and such as no language changes.
bool isOfNoLanguage(const QString &name)
{
    static const QStringList names = {
        QStringLiteral("Tolerance"), QStringLiteral("Coated"),
        QStringLiteral("Paper"),     QStringLiteral("Left"),
        QStringLiteral("Right"),     QStringLiteral("Cyan"),
        QStringLiteral("Magenta"),   QStringLiteral("https://www.tovra.example"),
    };
    return names.contains(name);
}

/// The names that the CapitalTranslator has not made.
QStringList untranslated(const QList<QWidget *> &controls)
{
    QStringList found;
    for (QWidget *control : controls) {
        const QString name = FormControls::spokenName(*control);
        if (name != name.toUpper() && !isOfNoLanguage(name)) {
            found.append(name + QStringLiteral(": ") + FormControls::inWords(*control));
        }
    }
    return found;
}

/// What the labels and buttons say, for each widget that they stand on.
QHash<const QWidget *, QString> textsOn(const QWidget &form)
{
    QHash<const QWidget *, QString> texts;
    const auto widgets = form.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (qobject_cast<const QLabel *>(widget) != nullptr
            || qobject_cast<const QAbstractButton *>(widget) != nullptr) {
            texts[widget->parentWidget()] += widget->property("text").toString();
        }
    }
    return texts;
}

QString asLines(const QStringList &found)
{
    return QLatin1Char('\n') + found.join(QLatin1Char('\n'));
}

} // namespace

/// What screen readers say for the controls of every form.
class TestAccessibleNames : public TestBase
{
    Q_OBJECT

private slots:
    void everyFormOfTheSourcesIsWalked();
    void everyControlHasAName_data() { addForms(); }
    void everyControlHasAName();
    void picturesSayWhatTheyShow_data() { addForms(); }
    void picturesSayWhatTheyShow();
    void namesAreWithoutMarks_data() { addForms(); }
    void namesAreWithoutMarks();
    void namesTellControlsApart_data() { addForms(); }
    void namesTellControlsApart();
    void namesAreTranslated_data() { addForms(); }
    void namesAreTranslated();
    void namesFollowTheLanguageWithTheTexts_data() { addForms(); }
    void namesFollowTheLanguageWithTheTexts();

    void boxWithoutALabelIsDescribed();
    void nameOfTheHostStaysInEveryLanguage();
    void groupTitleAndExampleAreNoNames();
    void labelsAndTextsAreNames();

private:
    static void addForms();
    static std::unique_ptr<QWidget> form();
};

void TestAccessibleNames::addForms()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < libraryWidgets().size(); ++row) {
        QTest::newRow(libraryWidgets()[row].name) << row;
    }
}

std::unique_ptr<QWidget> TestAccessibleNames::form()
{
    QFETCH(int, row);
    return libraryWidgets()[row].make();
}

/// A form that is made later on has to come into the list.
void TestAccessibleNames::everyFormOfTheSourcesIsWalked()
{
    QCOMPARE(formsMissingIn(libraryWidgets()), QStringList());
}

void TestAccessibleNames::everyControlHasAName()
{
    const std::unique_ptr<QWidget> shown = form();
    const QStringList found = FormControls::nameless(*shown);
    QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
}

void TestAccessibleNames::picturesSayWhatTheyShow()
{
    const std::unique_ptr<QWidget> shown = form();
    const QStringList found = FormControls::mutePictures(*shown);
    QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
}

void TestAccessibleNames::namesAreWithoutMarks()
{
    const std::unique_ptr<QWidget> shown = form();
    const QStringList found = FormControls::unclean(*shown, FormControls::Names::All);
    QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
}

void TestAccessibleNames::namesTellControlsApart()
{
    const std::unique_ptr<QWidget> shown = form();
    const QStringList found = FormControls::ambiguous(*shown);
    QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
}

/// But those that the host has set, and what is no word.
void TestAccessibleNames::namesAreTranslated()
{
    CapitalTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const std::unique_ptr<QWidget> shown = form();
    const QStringList found = untranslated(FormControls::of(*shown));
    QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
}

/// Names change together with the texts of the labels and buttons beside them.
void TestAccessibleNames::namesFollowTheLanguageWithTheTexts()
{
    const std::unique_ptr<QWidget> shown = form();
    const QHash<const QWidget *, QString> before = textsOn(*shown);
    CapitalTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::processEvents();
    const QHash<const QWidget *, QString> after = textsOn(*shown);
    QList<QWidget *> controls = FormControls::of(*shown);
    controls.removeIf([&](const QWidget *control) {
        return after.value(control->parentWidget()) == before.value(control->parentWidget());
    });
    const QStringList found = untranslated(controls);
    QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
}

/// Where the name of a combo box is what it shows, and no label stands before it, the description
/// tells what it is for.
void TestAccessibleNames::boxWithoutALabelIsDescribed()
{
    CapitalTranslator translator;
    FTPConfigurationWidget form(nullptr);
    auto *box = form.findChild<QComboBox *>(QStringLiteral("schemeComboBox"));
    const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(box);
    QCOMPARE(told->text(QAccessible::Description), QStringLiteral("Protocol"));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::processEvents();
    QCOMPARE(told->text(QAccessible::Description), QStringLiteral("PROTOCOL"));
}

void TestAccessibleNames::nameOfTheHostStaysInEveryLanguage()
{
    CapitalTranslator translator;
    const TXWidgetListWidget list;
    const TXWidgetListWidget named;
    const auto *area = list.findChild<QScrollArea *>(QStringLiteral("scrollArea"));
    auto *namedArea = named.findChild<QScrollArea *>(QStringLiteral("scrollArea"));
    QCOMPARE(area->accessibleName(), QStringLiteral("Items"));
    namedArea->setAccessibleName(QStringLiteral("Swatches"));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::processEvents();
    QCOMPARE(area->accessibleName(), QStringLiteral("ITEMS"));
    QCOMPARE(namedArea->accessibleName(), QStringLiteral("Swatches"));
}

void TestAccessibleNames::groupTitleAndExampleAreNoNames()
{
    QGroupBox box(QStringLiteral("Paper"));
    auto *inGroup = new QLineEdit(&box);
    auto *withExample = new QLineEdit(&box);
    withExample->setPlaceholderText(QStringLiteral("name@example.org"));
    auto *layout = new QVBoxLayout(&box);
    layout->addWidget(inGroup);
    layout->addWidget(withExample);
    QCOMPARE(FormControls::spokenName(*inGroup), QString());
    QCOMPARE(FormControls::spokenName(*withExample), QString());
    QCOMPARE(FormControls::nameless(box).size(), 2);
}

void TestAccessibleNames::labelsAndTextsAreNames()
{
    QWidget form;
    auto *field = new QLineEdit(&form);
    auto *label = new QLabel(QStringLiteral("&Width:"), &form);
    label->setBuddy(field);
    auto *other = new QLineEdit(&form);
    other->setAccessibleName(QStringLiteral("Width:"));
    QCOMPARE(FormControls::nameless(form), QStringList());
    QCOMPARE(FormControls::unclean(form, FormControls::Names::All).size(), 2);
    QCOMPARE(FormControls::unclean(form, FormControls::Names::Unseen).size(), 1);
    QCOMPARE(FormControls::ambiguous(form).size(), 1);
}

int main(int argc, char **argv)
{
    return runTest<TestAccessibleNames>(argc, argv);
}

#include "tst_AccessibleNames.moc"
