#include "DialogDriver.h"
#include "EmissionList.h"
#include "PageChecks.h"
#include "TestBase.h"
#include "ValueSliderPanel.h"

#include "DoubleSpinBoxWithSliderWidget.h"

#include <QDoubleSpinBox>
#include <QPlainTextEdit>
#include <QSet>
#include <QSignalSpy>
#include <QSlider>
#include <QTranslator>
#include <QWheelEvent>

#include <memory>

namespace {

/// A language whose words are this sign, once for each few letters of English.
class SignTranslator : public QTranslator
{
public:
    explicit SignTranslator(QChar sign)
        : sign(sign)
    { }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char * /*context*/, const char *text,
                                    const char * /*hint*/, int /*number*/) const override
    {
        constexpr qsizetype kLettersForASign = 5;
        const QString place =
            QLatin1String(text).contains(QLatin1String("%1")) ? QStringLiteral("%1") : QString();
        return QString(qsizetype(qstrlen(text)) / kLettersForASign + 1, sign) + place;
    }

private:
    QChar sign;
};

} // namespace

class TestValueSliderPanel : public TestBase
{
    Q_OBJECT

private slots:
    void variantsDifferAsShown_data();
    void variantsDifferAsShown();
    void specialValueStandsForTheMinimum();
    void onlyMaximumIsNamed();
    void eachEmissionOfAnEditIsListed();
    void sliderMovesTheBox();
    void settingUpIsNotListed();
    void clearStartsAgain();
    void listIsCutButTheCountGoesOn();
    void wheelChangesNothing();
    void namesAndBoxesAreAligned();
    void slidersLineUpInAnyLanguage_data();
    void slidersLineUpInAnyLanguage();
    void pictureShowsEmissions();
    void everyTextFollowsTheLanguage();

protected:
    void prepare() override;
    void finish() override;

private:
    DoubleSpinBoxWithSliderWidget *slider(const QString &name) const;
    QDoubleSpinBox *box(const QString &name) const { return part<QDoubleSpinBox>(name); }
    template<class Part>
    Part *part(const QString &name) const;
    QStringList lines() const;
    int count() const { return panel->findChild<EmissionList *>()->count(); }
    void type(const QString &name, const QString &number);

    std::unique_ptr<ValueSliderPanel> panel;
};

void TestValueSliderPanel::prepare()
{
    QLocale::setDefault(QLocale("en"));
    panel = std::make_unique<ValueSliderPanel>();
    panel->show();
    QVERIFY(QTest::qWaitForWindowActive(panel.get()));
}

void TestValueSliderPanel::finish()
{
    panel.reset();
    QLocale::setDefault(QLocale::system());
}

DoubleSpinBoxWithSliderWidget *TestValueSliderPanel::slider(const QString &name) const
{
    const auto sliders = panel->findChildren<DoubleSpinBoxWithSliderWidget *>();
    for (DoubleSpinBoxWithSliderWidget *candidate : sliders) {
        if (candidate->dataName() == name) {
            return candidate;
        }
    }
    return nullptr;
}

/// The part that the user sees of the slider of this name.
template<class Part>
Part *TestValueSliderPanel::part(const QString &name) const
{
    const auto parts = slider(name)->findChildren<Part *>();
    for (Part *candidate : parts) {
        if (candidate->isVisible()) {
            return candidate;
        }
    }
    return nullptr;
}

QStringList TestValueSliderPanel::lines() const
{
    return panel->findChild<QPlainTextEdit *>()->toPlainText().split('\n', Qt::SkipEmptyParts);
}

void TestValueSliderPanel::type(const QString &name, const QString &number)
{
    box(name)->setFocus();
    box(name)->selectAll();
    QTest::keyClicks(box(name), number);
}

void TestValueSliderPanel::variantsDifferAsShown_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<bool>("isBoxLeft");
    QTest::addColumn<bool>("isEnabled");
    QTest::newRow("Exposure") << 2 << "0.00 EV" << -4.0 << 4.0 << false << true;
    QTest::newRow("Gamma") << 3 << "2.200" << 1.0 << 3.0 << true << true;
    QTest::newRow("Delta E tolerance") << 2 << "2.50" << 0.0 << 10.0 << false << true;
    QTest::newRow("Smoothing") << 0 << "off" << 0.0 << 100.0 << false << true;
    QTest::newRow("Total ink coverage") << 0 << "320 %" << 0.0 << 400.0 << false << true;
    QTest::newRow("Total ink coverage, disabled") << 0 << "320 %" << 0.0 << 400.0 << false << false;
}

void TestValueSliderPanel::variantsDifferAsShown()
{
    QFETCH(bool, isBoxLeft);
    const QString name = QTest::currentDataTag();

    QTEST(slider(name)->decimals(), "decimals");
    QTEST(slider(name)->minimumValue(), "minimum");
    QTEST(slider(name)->maximumValue(), "maximum");
    QTEST(box(name)->text(), "shown");
    QTEST(box(name)->isEnabled(), "isEnabled");
    QCOMPARE(box(name)->x() < part<QSlider>(name)->x(), isBoxLeft);
}

void TestValueSliderPanel::specialValueStandsForTheMinimum()
{
    type("Smoothing", "12");
    QCOMPARE(box("Smoothing")->text(), "12");

    type("Smoothing", "0");
    QCOMPARE(box("Smoothing")->value(), 0.0);
    QTest::keyClick(box("Smoothing"), Qt::Key_Return);

    QCOMPARE(box("Smoothing")->text(), "off");
}

void TestValueSliderPanel::onlyMaximumIsNamed()
{
    const auto *least = slider("Delta E tolerance")->findChild<QLabel *>("minValueNameLabel");
    const auto *most = slider("Delta E tolerance")->findChild<QLabel *>("maxValueNameLabel");

    QVERIFY(!least->isVisible());
    QVERIFY(most->isVisible());
    QCOMPARE(most->text(), "seen by anyone");
}

void TestValueSliderPanel::eachEmissionOfAnEditIsListed()
{
    QSignalSpy emitted(slider("Exposure"), SIGNAL(valueChanged(double)));
    box("Exposure")->setFocus();

    QTest::keyClick(box("Exposure"), Qt::Key_Up);

    QVERIFY2(emitted.count() > 1, qPrintable(QString::number(emitted.count())));
    QCOMPARE(count(), emitted.count());
    QCOMPARE(lines().size(), emitted.count());
    QCOMPARE(lines().last(), "Exposure  0.05");
    QVERIFY(isRead(*panel, QString("&valueChanged: %1").arg(emitted.count())));
}

void TestValueSliderPanel::sliderMovesTheBox()
{
    part<QSlider>("Gamma")->setFocus();

    QTest::keyClick(part<QSlider>("Gamma"), Qt::Key_Home);

    QCOMPARE(box("Gamma")->text(), "1.000");
    QCOMPARE(lines().last(), "Gamma  1.000");
}

void TestValueSliderPanel::settingUpIsNotListed()
{
    QCOMPARE(count(), 0);
    QVERIFY(lines().isEmpty());
}

void TestValueSliderPanel::clearStartsAgain()
{
    type("Total ink coverage", "280");
    QVERIFY(count() > 0);

    DialogDriver::click(buttonOf(*panel, "Clear"));

    QCOMPARE(count(), 0);
    QVERIFY(lines().isEmpty());
    QVERIFY(isRead(*panel, "&valueChanged: 0"));
}

void TestValueSliderPanel::listIsCutButTheCountGoesOn()
{
    auto *list = panel->findChild<EmissionList *>();

    for (int i = 1; i <= EmissionList::kMaximumLines + 5; ++i) {
        list->append(QString::number(i));
    }

    QCOMPARE(count(), EmissionList::kMaximumLines + 5);
    QCOMPARE(lines().size(), EmissionList::kMaximumLines);
    QCOMPARE(lines().last(), QString::number(EmissionList::kMaximumLines + 5));
}

void TestValueSliderPanel::wheelChangesNothing()
{
    for (QWidget *target : {static_cast<QWidget *>(box("Exposure")),
                            static_cast<QWidget *>(part<QSlider>("Exposure"))}) {
        const QPointF place = target->rect().center();
        QWheelEvent wheel(place, target->mapToGlobal(place), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(target, &wheel);
    }

    QCOMPARE(slider("Exposure")->value(), 0.0);
    QCOMPARE(count(), 0);
}

void TestValueSliderPanel::namesAndBoxesAreAligned()
{
    QSet<int> ends;
    for (const char *name :
         {"Exposure", "Delta E tolerance", "Smoothing", "Total ink coverage, disabled"}) {
        QCOMPARE(box(name)->width(), box("Exposure")->width());
        ends.insert(slider(name)->findChild<QLabel *>("dataNameLabel")->geometry().right());
    }
    QCOMPARE(ends.size(), 1);
}

void TestValueSliderPanel::slidersLineUpInAnyLanguage_data()
{
    QTest::addColumn<QChar>("sign");
    QTest::newRow("narrow") << QChar(u'i');
    QTest::newRow("Latin") << QChar(u'n');
    QTest::newRow("Japanese") << QChar(u'値');
}

/// With captions below and without.
void TestValueSliderPanel::slidersLineUpInAnyLanguage()
{
    QFETCH(QChar, sign);
    SignTranslator translator(sign);
    QCoreApplication::installTranslator(&translator);
    panel->resize(900, panel->height());
    QCoreApplication::processEvents();

    const auto edges = [this] {
        QSet<std::pair<int, int>> places;
        const auto sliders = panel->findChildren<QSlider *>();
        for (const QSlider *slider : sliders) {
            const bool isLeftBoxShown =
                slider->parentWidget()
                    ->findChild<QDoubleSpinBox *>(QStringLiteral("dataLeftDoubleSpinBox"))
                    ->isVisible();
            const int start = slider->mapTo(panel.get(), QPoint()).x();
            if (!isLeftBoxShown) {
                places.insert({start, start + slider->width()});
            }
        }
        return places.size();
    };
    QTRY_COMPARE(edges(), 1);
}

void TestValueSliderPanel::pictureShowsEmissions()
{
    panel->fillForPicture();

    QVERIFY(count() > 1);
    QCOMPARE(box("Exposure")->text(), "0.35 EV");
}

void TestValueSliderPanel::everyTextFollowsTheLanguage()
{
    CapitalTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();

    QCOMPARE(smallTexts(*panel, {}), QStringList());
    QCOMPARE(box("SMOOTHING")->text(), "OFF");
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
}

int main(int argc, char **argv)
{
    return runTest<TestValueSliderPanel>(argc, argv);
}

#include "tst_ValueSliderPanel.moc"
