#include "PaperPalette.h"

#include "TestBase.h"

#include <QColor>
#include <QPalette>

class TestPaperPalette : public TestBase
{
    Q_OBJECT

private slots:
    void nothingOfTheSurroundingsShinesThrough();
    void inkIsReadOnThePaper_data();
    void inkIsReadOnThePaper();
    void whiteIsSeenOnThePaper();
};

void TestPaperPalette::nothingOfTheSurroundingsShinesThrough()
{
    QPalette around;
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        around.setColor(QPalette::All, QPalette::ColorRole(role), Qt::magenta);
    }

    const QPalette seen = paperPalette().resolve(around);

    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            if (role != QPalette::NoRole) {
                QVERIFY2(seen.color(group, QPalette::ColorRole(role)) != QColor(Qt::magenta),
                         qPrintable(QString::number(role)));
            }
        }
    }
}

void TestPaperPalette::inkIsReadOnThePaper_data()
{
    QTest::addColumn<QPalette::ColorRole>("ink");
    QTest::addColumn<QPalette::ColorRole>("ground");
    QTest::newRow("window") << QPalette::WindowText << QPalette::Window;
    QTest::newRow("text") << QPalette::Text << QPalette::Base;
    QTest::newRow("alternate") << QPalette::Text << QPalette::AlternateBase;
    QTest::newRow("button") << QPalette::ButtonText << QPalette::Button;
    QTest::newRow("tool tip") << QPalette::ToolTipText << QPalette::ToolTipBase;
    QTest::newRow("selected") << QPalette::HighlightedText << QPalette::Highlight;
    QTest::newRow("link") << QPalette::Link << QPalette::Window;
    QTest::newRow("placeholder") << QPalette::PlaceholderText << QPalette::Base;
}

void TestPaperPalette::inkIsReadOnThePaper()
{
    QFETCH(QPalette::ColorRole, ink);
    QFETCH(QPalette::ColorRole, ground);

    const int distance =
        qGray(paperPalette().color(ink).rgb()) - qGray(paperPalette().color(ground).rgb());

    QVERIFY2(qAbs(distance) > 100, qPrintable(QString::number(distance)));
}

void TestPaperPalette::whiteIsSeenOnThePaper()
{
    const int paper = paperPalette().color(QPalette::Window).lightness();

    QVERIFY(paper > 220);
    QVERIFY(paper < 245);
}

int main(int argc, char **argv)
{
    return runTest<TestPaperPalette>(argc, argv);
}

#include "tst_PaperPalette.moc"
