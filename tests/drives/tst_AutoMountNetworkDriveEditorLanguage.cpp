#include "DriveEditorFormTest.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTranslator>

using DriveEditorTest::completeDrive;
using DriveEditorTest::field;

namespace {

/// Says everything of the editor's own with angle quotes around it.
class QuotingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "AutoMountNetworkDriveEditor") == 0
            ? QStringLiteral("«%1»").arg(QString::fromUtf8(source))
            : QString();
    }
};

} // namespace

/// The editor while the language changes.
class TestAutoMountNetworkDriveEditorLanguage : public DriveEditorFormTest
{
    Q_OBJECT

private slots:
    void languageChangeReachesTheForm();
    void languageChangeKeepsWhatTheUserHasEntered();
    void protocolsAreNotTranslated();
    void otherChangesLeaveTheTextsAlone();
};

void TestAutoMountNetworkDriveEditorLanguage::languageChangeReachesTheForm()
{
    editor->setWindowTitle(QStringLiteral("Add Network Drive"));
    QuotingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));

    // The title of the form comes back as well.
    QTRY_COMPARE(editor->windowTitle(), QStringLiteral("«Network Drive»"));
    QCOMPARE(find<QLabel>("labelHost")->text(), QStringLiteral("«Host»"));
    QCOMPARE(find<QLabel>("labelProtocol")->text(), QStringLiteral("«Protocol»"));
    QCOMPARE(find<QLabel>("labelMountPoint")->text(), QStringLiteral("«Network Drive»"));
    QCOMPARE(find<QPushButton>("chooseButton")->text(), QStringLiteral("«Browse...»"));
    QCOMPARE(field(*editor, "lineEditHost")->placeholderText(), QStringLiteral("«(required)»"));
    QCOMPARE(field(*editor, "lineEditPassword")->placeholderText(), QStringLiteral("«Password»"));
    QCOMPARE(find<QComboBox>("comboBoxMountPoint")->accessibleName(),
             QStringLiteral("«Network Drive»"));

    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QTRY_COMPARE(editor->windowTitle(), "Network Drive");
}

void TestAutoMountNetworkDriveEditorLanguage::languageChangeKeepsWhatTheUserHasEntered()
{
    QuotingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));

    QTRY_COMPARE(editor->windowTitle(), QStringLiteral("«Network Drive»"));
    QVERIFY(editor->networkDrive() == completeDrive());
    QVERIFY(DriveEditorTest::okButton(*editor)->isEnabled());
    QVERIFY(QCoreApplication::removeTranslator(&translator));
}

void TestAutoMountNetworkDriveEditorLanguage::protocolsAreNotTranslated()
{
    QuotingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QTRY_COMPARE(editor->windowTitle(), QStringLiteral("«Network Drive»"));
    const AutoMountNetworkDriveEditor translated(completeDrive());
    QVERIFY(QCoreApplication::removeTranslator(&translator));

    QCOMPARE(editor->networkDrive().getUrl().scheme(), "smb");
    QCOMPARE(translated.networkDrive().getUrl().scheme(), "smb");
}

void TestAutoMountNetworkDriveEditorLanguage::otherChangesLeaveTheTextsAlone()
{
    editor->setWindowTitle(QStringLiteral("Add Network Drive"));
    QEvent event(QEvent::StyleChange);
    QCoreApplication::sendEvent(editor.get(), &event);
    QCOMPARE(editor->windowTitle(), "Add Network Drive");
}

int main(int argc, char **argv)
{
    return runTest<TestAutoMountNetworkDriveEditorLanguage>(argc, argv);
}

#include "tst_AutoMountNetworkDriveEditorLanguage.moc"
