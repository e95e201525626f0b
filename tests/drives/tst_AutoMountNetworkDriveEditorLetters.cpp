#include "AutoMountNetworkDriveEditor.h"

#include "DriveEditorHelpers.h"
#include "TestBase.h"

#include <QComboBox>

#include <memory>

using DriveEditorTest::child;
using DriveEditorTest::driveAt;
using DriveEditorTest::freeLetters;
using DriveEditorTest::kAllLetters;
using DriveEditorTest::useLetters;

/// Which drive letters the editor offers, and which one it chooses.
class TestAutoMountNetworkDriveEditorLetters : public TestBase
{
    Q_OBJECT

protected:
    void finish() override
    {
        editor.reset();
        freeLetters();
    }

private slots:
    void allLettersAreOfferedInTheirOrder();
    void offeredAndChosen_data();
    void offeredAndChosen();
    void letterInUseIsOfferedOnlyToItsOwner();
    void mountPointThatIsNotTextReadsAsText();
    void lettersAreReadOnce();
    void chosenLetterGoesIntoTheDrive();
    void noChoiceGivesNoMountPoint();

private:
    /// The box of the letters of a new editor.
    QComboBox &open(const QString &mountPoint)
    {
        editor = std::make_unique<AutoMountNetworkDriveEditor>(driveAt(QUrl(), mountPoint));
        return *child<QComboBox>(*editor, "comboBoxMountPoint");
    }

    static QString offered(const QComboBox &box)
    {
        QString letters;
        for (int row = 0; row < box.count(); ++row) {
            if (box.itemText(row).mid(1) == QStringLiteral(":/")) {
                letters += box.itemText(row).front();
            }
        }
        return letters;
    }

    std::unique_ptr<AutoMountNetworkDriveEditor> editor;
};

void TestAutoMountNetworkDriveEditorLetters::allLettersAreOfferedInTheirOrder()
{
    QComboBox &box = open(QString());

    QCOMPARE(box.count(), 26);
    QCOMPARE(box.itemText(0), "A:/");
    QCOMPARE(box.itemText(25), "Z:/");
    QCOMPARE(offered(box), kAllLetters);
    QCOMPARE(box.currentIndex(), 0);
    QVERIFY(editor->hasAvailableLetter());
}

void TestAutoMountNetworkDriveEditorLetters::offeredAndChosen_data()
{
    QTest::addColumn<QString>("used");
    QTest::addColumn<QString>("mountPoint");
    QTest::addColumn<QString>("letters");
    QTest::addColumn<int>("index");
    const QString most = QString(kAllLetters).remove('B').remove('X');
    const QString none;

    QTest::newRow("new drive, first free letter") << "AB" << none << kAllLetters.mid(2) << 0;
    QTest::newRow("new drive, two left") << most << none << "BX" << 0;
    QTest::newRow("new drive, none left") << kAllLetters << none << none << -1;
    QTest::newRow("own letter, in use") << most << "N:/"
                                        << "BNX" << 1;
    QTest::newRow("own letter, free") << most << "X:/"
                                      << "BX" << 1;
    QTest::newRow("own letter, the only one") << kAllLetters << "N:/"
                                              << "N" << 0;
    QTest::newRow("not offered, others are") << most << "elsewhere"
                                             << "BX" << -1;
    QTest::newRow("not offered, none is") << kAllLetters << "elsewhere" << none << -1;
    // The own letter is looked for anywhere in the mount point, in capitals and with what follows.
    QTest::newRow("longer than a letter") << most << "N:/proofs"
                                          << "BNX" << -1;
    QTest::newRow("in the middle") << kAllLetters << "at N:/"
                                   << "N" << -1;
    QTest::newRow("two letters") << kAllLetters << "Q:/C:/"
                                 << "CQ" << -1;
    QTest::newRow("small letter") << most << "n:/"
                                  << "BX" << -1;
    QTest::newRow("without slash") << most << "N:"
                                   << "BX" << -1;
    QTest::newRow("backslash") << most << "N:\\"
                               << "BX" << -1;
    // The choice is by exact match.
    QTest::newRow("small letter, free") << most << "b:/"
                                        << "BX" << -1;
    QTest::newRow("free letter without slash") << most << "B:"
                                               << "BX" << -1;
}

void TestAutoMountNetworkDriveEditorLetters::offeredAndChosen()
{
    QFETCH(QString, used);
    QFETCH(QString, mountPoint);
    QFETCH(QString, letters);
    QFETCH(int, index);
    QVERIFY(useLetters(used));

    QComboBox &box = open(mountPoint);

    QCOMPARE(offered(box), letters);
    QCOMPARE(box.count(), letters.size());
    QCOMPARE(box.currentIndex(), index);
    QCOMPARE(editor->hasAvailableLetter(), !letters.isEmpty());
}

void TestAutoMountNetworkDriveEditorLetters::letterInUseIsOfferedOnlyToItsOwner()
{
    QVERIFY(useLetters(QStringLiteral("N")));

    QVERIFY(open(QStringLiteral("N:/")).findText("N:/") >= 0);
    QVERIFY(open(QStringLiteral("M:/")).findText("N:/") < 0);
    QVERIFY(open(QString()).findText("N:/") < 0);
}

void TestAutoMountNetworkDriveEditorLetters::mountPointThatIsNotTextReadsAsText()
{
    AutoMountNetworkDrive drive;
    drive.setExtParameters({{QStringLiteral("NetworkDriveMountPoint"), 7},
                            {QStringLiteral("NetworkDriveDomain"), 12}});
    const AutoMountNetworkDriveEditor numbers(drive);
    QCOMPARE(child<QLineEdit>(numbers, "lineEditMountPoint")->text(), "7");
    QCOMPARE(child<QLineEdit>(numbers, "lineEditDomain")->text(), "12");
    QCOMPARE(child<QComboBox>(numbers, "comboBoxMountPoint")->currentIndex(), -1);

    drive.setExtParameters({{QStringLiteral("NetworkDriveMountPoint"), QVariantList{1, 2}}});
    const AutoMountNetworkDriveEditor list(drive);
    QCOMPARE(child<QComboBox>(list, "comboBoxMountPoint")->currentIndex(), 0);
}

void TestAutoMountNetworkDriveEditorLetters::lettersAreReadOnce()
{
    const QComboBox &box = open(QString());
    QVERIFY(useLetters(kAllLetters));
    editor->show();

    QCOMPARE(box.count(), 26);
    QVERIFY(editor->hasAvailableLetter());
}

void TestAutoMountNetworkDriveEditorLetters::chosenLetterGoesIntoTheDrive()
{
    QVERIFY(useLetters(QStringLiteral("CN")));
    QComboBox &box = open(QStringLiteral("N:/"));
    QCOMPARE(editor->networkDrive().getMountPoint(), "N:/");

    box.setCurrentIndex(2);

    QCOMPARE(editor->networkDrive().getMountPoint(), "D:/");
}

void TestAutoMountNetworkDriveEditorLetters::noChoiceGivesNoMountPoint()
{
    // What the hidden line edit shows does not count.
    open(QStringLiteral("elsewhere"));

    QCOMPARE(child<QLineEdit>(*editor, "lineEditMountPoint")->text(), "elsewhere");
    QVERIFY(editor->networkDrive().getMountPoint().isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestAutoMountNetworkDriveEditorLetters>(argc, argv);
}

#include "tst_AutoMountNetworkDriveEditorLetters.moc"
