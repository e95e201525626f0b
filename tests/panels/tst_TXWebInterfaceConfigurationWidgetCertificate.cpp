#include "TXWebInterfaceConfigurationWidget.h"

#include "DialogDriver.h"
#include "TXApplicationInformation.h"
#include "TestBase.h"
#include "WebPanelHelpers.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>

#include <memory>

using WebTest::child;

namespace {

void type(QDialog &dialog, const QString &name)
{
    dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(name);
}

} // namespace

/// What clicks on the box for HTTPS and on the button for the certificate do.
class TestTXWebInterfaceConfigurationWidgetCertificate : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void clickOnTheBoxSetsThePort_data();
    void clickOnTheBoxSetsThePort();
    void customPortIsLostAtEachClick();
    void slotFollowsTheBoxAndNotTheClick();
    void settingTheBoxKeepsThePort();

    void chosenFileReplacesTheText();
    void cancelledChoiceChangesNothing();
    void choiceStartsAtTheCurrentText_data();
    void choiceStartsAtTheCurrentText();
    void choiceIsNotRemembered();
    void userCannotTypeAFile();
    void panelMayGoDuringTheChoice_data();
    void panelMayGoDuringTheChoice();

private:
    template<class Child>
    [[nodiscard]] Child *find(const char *name) const
    {
        return child<Child>(*panel, name);
    }
    void choose() const { DialogDriver::click(find<QPushButton>("httpsCertificateButton")); }
    [[nodiscard]] QString certificate() const
    {
        return find<QLineEdit>("httpsCertificateLineEdit")->text();
    }
    /// Makes a file of this name and returns its path.
    [[nodiscard]] QString makeFile(const QString &name) const;

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<TXWebInterfaceConfigurationWidget> panel;
};

void TestTXWebInterfaceConfigurationWidgetCertificate::prepare()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    panel = std::make_unique<TXWebInterfaceConfigurationWidget>();
    panel->load({{"Enabled", true}, {"Secure", true}});
    panel->show();
}

void TestTXWebInterfaceConfigurationWidgetCertificate::finish()
{
    panel.reset();
    folder.reset();
    setBaseProd(0);
}

QString TestTXWebInterfaceConfigurationWidgetCertificate::makeFile(const QString &name) const
{
    QFile file(folder->filePath(name));
    return file.open(QFile::WriteOnly) ? file.fileName() : QString();
}

void TestTXWebInterfaceConfigurationWidgetCertificate::clickOnTheBoxSetsThePort_data()
{
    QTest::addColumn<int>("product");
    QTest::addColumn<int>("port");
    QTest::newRow("2000") << 2000 << 8751;
    QTest::newRow("1000") << 1000 << 8752;
    QTest::newRow("5000") << 5000 << 8753;
    QTest::newRow("none") << 0 << 8080;
    QTest::newRow("another") << 3000 << 8080;
    QTest::newRow("negative") << -2000 << 8080;
}

void TestTXWebInterfaceConfigurationWidgetCertificate::clickOnTheBoxSetsThePort()
{
    QFETCH(int, product);
    QFETCH(int, port);
    setBaseProd(product);
    QSettings().setValue("EnableHTTPS", true);
    auto *box = find<QCheckBox>("httpsCertificateCheckBox");

    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QVERIFY(!box->isChecked());
    QCOMPARE(find<QSpinBox>("portSpinBox")->value(), port);
    QVERIFY(WebTest::targets(*panel).contains(QStringLiteral("http://127.0.0.1:%1/").arg(port)));

    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QVERIFY(box->isChecked());
    QCOMPARE(find<QSpinBox>("portSpinBox")->value(), 443);
    QVERIFY(WebTest::targets(*panel).contains(QStringLiteral("https://127.0.0.1/")));
}

void TestTXWebInterfaceConfigurationWidgetCertificate::customPortIsLostAtEachClick()
{
    QSettings().setValue("EnableHTTPS", true);
    setBaseProd(5000);
    auto *port = find<QSpinBox>("portSpinBox");
    port->setValue(9443);
    find<QCheckBox>("httpsCertificateCheckBox")->click();
    QCOMPARE(port->value(), 8753);

    port->setValue(9080);
    find<QCheckBox>("httpsCertificateCheckBox")->click();
    QCOMPARE(port->value(), 443);
}

void TestTXWebInterfaceConfigurationWidgetCertificate::slotFollowsTheBoxAndNotTheClick()
{
    find<QSpinBox>("portSpinBox")->setValue(9443);
    panel->on_httpsCertificateCheckBox_clicked();
    QCOMPARE(find<QSpinBox>("portSpinBox")->value(), 443);

    // The port is that one already, so that its signal does not come.
    find<QSpinBox>("portSpinBox")->setValue(8080);
    find<QCheckBox>("httpsCertificateCheckBox")->setChecked(false);
    QVERIFY(find<QPushButton>("httpsCertificateButton")->isVisible());
    panel->on_httpsCertificateCheckBox_clicked();
    QVERIFY(!find<QPushButton>("httpsCertificateButton")->isVisible());
    QVERIFY(WebTest::targets(*panel).contains(QStringLiteral("http://127.0.0.1:8080/")));
}

void TestTXWebInterfaceConfigurationWidgetCertificate::settingTheBoxKeepsThePort()
{
    find<QSpinBox>("portSpinBox")->setValue(9443);
    find<QCheckBox>("httpsCertificateCheckBox")->setChecked(false);
    find<QCheckBox>("httpsCertificateCheckBox")->setChecked(true);
    QCOMPARE(find<QSpinBox>("portSpinBox")->value(), 9443);
}

void TestTXWebInterfaceConfigurationWidgetCertificate::chosenFileReplacesTheText()
{
    const QString file = makeFile(QStringLiteral("mill.pem"));
    QVERIFY(!file.isEmpty());
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        auto *fileDialog = qobject_cast<QFileDialog *>(&dialog);
        QVERIFY(fileDialog);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Choose Certificate File"));
        QCOMPARE(fileDialog->nameFilters(), QStringList("Certificate Files (*.pem)"));
        QCOMPARE(fileDialog->fileMode(), QFileDialog::ExistingFile);
        QCOMPARE(fileDialog->acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(dialog.parent(), panel.get());
        type(dialog, file);
        DialogDriver::click(dialog, QDialogButtonBox::Open);
    });

    choose();

    QCOMPARE(certificate(), file);
    QCOMPARE(panel->save().value("Certificate"), QVariant(file));
}

void TestTXWebInterfaceConfigurationWidgetCertificate::cancelledChoiceChangesNothing()
{
    const QString file = makeFile(QStringLiteral("mill.pem"));
    find<QLineEdit>("httpsCertificateLineEdit")->setText(QStringLiteral("/etc/old.pem"));
    const WebTest::Settings before = panel->save();
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        type(dialog, file);
        DialogDriver::click(dialog, QDialogButtonBox::Cancel);
    });

    choose();

    QCOMPARE(certificate(), QStringLiteral("/etc/old.pem"));
    QCOMPARE(panel->save().value("Port"), before.value("Port"));
}

void TestTXWebInterfaceConfigurationWidgetCertificate::choiceStartsAtTheCurrentText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("start");
    QTest::newRow("file") << "%1/sub/mill.pem"
                          << "%1/sub";
    QTest::newRow("file that is gone") << "%1/sub/gone.pem"
                                       << "%1/sub";
    QTest::newRow("folder") << "%1/sub"
                            << "%1/sub";
}

void TestTXWebInterfaceConfigurationWidgetCertificate::choiceStartsAtTheCurrentText()
{
    QFETCH(QString, text);
    QFETCH(QString, start);
    QVERIFY(QDir(folder->path()).mkdir("sub"));
    QVERIFY(!makeFile(QStringLiteral("sub/mill.pem")).isEmpty());
    find<QLineEdit>("httpsCertificateLineEdit")->setText(text.arg(folder->path()));
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        QCOMPARE(qobject_cast<QFileDialog *>(&dialog)->directory().absolutePath(),
                 start.arg(folder->path()));
        DialogDriver::click(dialog, QDialogButtonBox::Cancel);
    });

    choose();
}

void TestTXWebInterfaceConfigurationWidgetCertificate::choiceIsNotRemembered()
{
    const QString file = makeFile(QStringLiteral("mill.pem"));
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        type(dialog, file);
        DialogDriver::click(dialog, QDialogButtonBox::Open);
    });

    choose();

    QCOMPARE(certificate(), file);
    QCOMPARE(QSettings().childKeys(), QStringList());
}

void TestTXWebInterfaceConfigurationWidgetCertificate::userCannotTypeAFile()
{
    QTest::keyClicks(find<QLineEdit>("httpsCertificateLineEdit"), QStringLiteral("x"));
    QCOMPARE(certificate(), QString());
}

void TestTXWebInterfaceConfigurationWidgetCertificate::panelMayGoDuringTheChoice_data()
{
    QTest::addColumn<bool>("isInWindow");
    QTest::newRow("alone") << false;
    QTest::newRow("with its window") << true;
}

void TestTXWebInterfaceConfigurationWidgetCertificate::panelMayGoDuringTheChoice()
{
    QFETCH(bool, isInWindow);
    const QString file = makeFile(QStringLiteral("mill.pem"));
    auto window = std::make_unique<QWidget>();
    if (isInWindow) {
        panel->setParent(window.get());
        window->show();
        panel->show();
    }
    bool isGone = false;
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        type(dialog, file);
        if (isInWindow) {
            static_cast<void>(panel.release());
        }
        panel.reset();
        window.reset();
        isGone = true;
    });

    choose();

    QVERIFY(isGone);
}

int main(int argc, char **argv)
{
    return runTest<TestTXWebInterfaceConfigurationWidgetCertificate>(argc, argv);
}

#include "tst_TXWebInterfaceConfigurationWidgetCertificate.moc"
