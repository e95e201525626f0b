#include "TXWebInterfaceConfigurationWidget.h"

#include "TXPasswordLineEdit.h"
#include "TestBase.h"
#include "WebPanelHelpers.h"

#include <QAccessible>
#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTranslator>
#include <QVBoxLayout>

#include <memory>

using WebTest::child;

namespace {

const QStringList kSwitchedControls = {"portLabel",
                                       "portSpinBox",
                                       "pathLabel",
                                       "pathLineEdit",
                                       "userNameLabel",
                                       "usernameLineEdit",
                                       "passwordLabel",
                                       "passwordLineEdit",
                                       "hostTextEdit",
                                       "optionsLabel",
                                       "optionsLineEdit",
                                       "httpsCertificateCheckBox",
                                       "httpsCertificateLineEdit",
                                       "httpsCertificateButton"};

void offerHttps(const QVariant &value)
{
    QSettings().setValue(QStringLiteral("EnableHTTPS"), value);
}

} // namespace

/// The form, and what it enables and shows.
class TestTXWebInterfaceConfigurationWidget : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { panel = std::make_unique<TXWebInterfaceConfigurationWidget>(); }
    void finish() override { panel.reset(); }

private slots:
    void rowsAreThoseOfTheForm_data();
    void rowsAreThoseOfTheForm();
    void partsStandBelowEachOther();
    void certificateRowHoldsBoxFieldAndButton();
    void controlsAreSetUpAsDesigned();
    void addressListOpensLinksElsewhere();
    void tabGoesThroughTheControls();
    void everyControlHasAName();
    void slotsKeepTheirOrderAndThereIsNoSignal();

    void boxSwitchesTheControls();
    void otherControlsAreNotSwitched();
    void httpsBoxIsShownWhenOfferedOrChecked_data();
    void httpsBoxIsShownWhenOfferedOrChecked();
    void certificateRowFollowsTheBox();
    void changedSettingCountsFromTheNextRefresh();
    void uncheckingHidesABoxThatIsNotOffered();
    void languageChangeChangesNothing();

private:
    template<class Child>
    [[nodiscard]] Child *find(const char *name) const
    {
        return child<Child>(*panel, name);
    }
    [[nodiscard]] QFormLayout &form() const { return *find<QFormLayout>("formLayout"); }
    [[nodiscard]] bool isShown(const char *name) const
    {
        return find<QWidget>(name)->isVisibleTo(panel.get());
    }

    std::unique_ptr<TXWebInterfaceConfigurationWidget> panel;
};

void TestTXWebInterfaceConfigurationWidget::rowsAreThoseOfTheForm_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("labelText");
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<int>("row");
    const auto add = [](const char *label, const char *labelText, const char *name,
                        const char *className, int row) {
        QTest::newRow(name) << QString(label) << QString(labelText) << QByteArray(className) << row;
    };
    add("portLabel", "Port", "portSpinBox", "QSpinBox", 0);
    add("userNameLabel", "Username", "usernameLineEdit", "QLineEdit", 1);
    add("passwordLabel", "Password", "passwordLineEdit", "TXPasswordLineEdit", 2);
    add("pathLabel", "Path", "pathLineEdit", "QLineEdit", 3);
    add("optionsLabel", "Options", "optionsLineEdit", "QLineEdit", 4);
}

void TestTXWebInterfaceConfigurationWidget::rowsAreThoseOfTheForm()
{
    QFETCH(QString, label);
    QFETCH(QString, labelText);
    QFETCH(QByteArray, className);
    QFETCH(int, row);
    auto *labelWidget = panel->findChild<QLabel *>(label);
    auto *field = find<QWidget>(QTest::currentDataTag());
    QVERIFY(labelWidget && field);

    QCOMPARE(labelWidget->text(), labelText);
    QCOMPARE(labelWidget->buddy(), field);
    QCOMPARE(QByteArray(field->metaObject()->className()), className);
    QCOMPARE(form().itemAt(row, QFormLayout::LabelRole)->widget(), labelWidget);
    QCOMPARE(form().itemAt(row, QFormLayout::FieldRole)->widget(), field);
}

void TestTXWebInterfaceConfigurationWidget::partsStandBelowEachOther()
{
    QCOMPARE(panel->objectName(), QStringLiteral("TXWebInterfaceConfigurationWidget"));
    QCOMPARE(panel->size(), QSize(355, 321));
    QCOMPARE(panel->windowTitle(), QStringLiteral("Form"));
    auto *box = qobject_cast<QVBoxLayout *>(panel->layout());
    QVERIFY(box);
    QCOMPARE(box->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(box->count(), 4);
    QCOMPARE(box->itemAt(0)->widget(), find<QCheckBox>("enabledCheckBox"));
    QCOMPARE(box->itemAt(1)->layout(), &form());
    QCOMPARE(box->itemAt(2)->widget(), find<QLabel>("label"));
    QCOMPARE(box->itemAt(3)->widget(), find<QTextBrowser>("hostTextEdit"));
    QCOMPARE(form().contentsMargins(), QMargins(9, 9, 9, 9));
    QCOMPARE(form().rowCount(), 6);
}

void TestTXWebInterfaceConfigurationWidget::certificateRowHoldsBoxFieldAndButton()
{
    QCOMPARE(form().itemAt(5, QFormLayout::LabelRole)->widget(),
             find<QCheckBox>("httpsCertificateCheckBox"));
    auto *holder = find<QWidget>("widget");
    QCOMPARE(QByteArray(holder->metaObject()->className()), QByteArray("QWidget"));
    QCOMPARE(form().itemAt(5, QFormLayout::FieldRole)->widget(), holder);
    auto *line = qobject_cast<QHBoxLayout *>(holder->layout());
    QVERIFY(line);
    QCOMPARE(line->objectName(), QStringLiteral("horizontalLayout"));
    QCOMPARE(line->count(), 2);
    QCOMPARE(line->itemAt(0)->widget(), find<QLineEdit>("httpsCertificateLineEdit"));
    QCOMPARE(line->itemAt(1)->widget(), find<QPushButton>("httpsCertificateButton"));
}

void TestTXWebInterfaceConfigurationWidget::controlsAreSetUpAsDesigned()
{
    QCOMPARE(find<QCheckBox>("enabledCheckBox")->text(), QStringLiteral("Enabled"));
    QVERIFY(!find<QCheckBox>("enabledCheckBox")->isChecked());
    QCOMPARE(find<QSpinBox>("portSpinBox")->minimum(), 1);
    QCOMPARE(find<QSpinBox>("portSpinBox")->maximum(), 65535);
    QCOMPARE(find<QSpinBox>("portSpinBox")->value(), 8080);
    QCOMPARE(find<QLineEdit>("passwordLineEdit")->echoMode(), QLineEdit::Password);
    QCOMPARE(find<QCheckBox>("httpsCertificateCheckBox")->text(), QStringLiteral("Enable HTTPS"));
    auto *certificate = find<QLineEdit>("httpsCertificateLineEdit");
    QVERIFY(certificate->isReadOnly());
    QCOMPARE(certificate->placeholderText(), QStringLiteral("Certificate File..."));
    QCOMPARE(find<QPushButton>("httpsCertificateButton")->text(), QStringLiteral("..."));
    QCOMPARE(find<QLabel>("label")->text(), QStringLiteral("Active Addresses:"));
}

void TestTXWebInterfaceConfigurationWidget::addressListOpensLinksElsewhere()
{
    const auto *list = find<QTextBrowser>("hostTextEdit");
    QVERIFY(list->isReadOnly());
    QVERIFY(list->openExternalLinks());
    QVERIFY(list->openLinks());
}

void TestTXWebInterfaceConfigurationWidget::tabGoesThroughTheControls()
{
    const QStringList order = {"enabledCheckBox",
                               "portSpinBox",
                               "usernameLineEdit",
                               "passwordLineEdit",
                               "pathLineEdit",
                               "optionsLineEdit",
                               "httpsCertificateCheckBox",
                               "httpsCertificateLineEdit",
                               "httpsCertificateButton",
                               "hostTextEdit"};
    // Its links would be stations of their own.
    find<QTextBrowser>("hostTextEdit")->setTextInteractionFlags(Qt::TextSelectableByKeyboard);
    panel->load(WebTest::with("Enabled", true));
    panel->show();
    QVERIFY(QTest::qWaitForWindowActive(panel.get()));
    find<QCheckBox>("enabledCheckBox")->setFocus();

    QStringList reached;
    for (qsizetype i = 0; i < order.size(); ++i) {
        reached.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }

    QCOMPARE(reached, order);
}

void TestTXWebInterfaceConfigurationWidget::everyControlHasAName()
{
    const std::pair<const char *, const char *> names[] = {
        {"enabledCheckBox", "Enabled"},
        {"portSpinBox", "Port"},
        {"usernameLineEdit", "Username"},
        {"passwordLineEdit", "Password"},
        {"pathLineEdit", "Path"},
        {"optionsLineEdit", "Options"},
        {"httpsCertificateCheckBox", "Enable HTTPS"},
        {"httpsCertificateLineEdit", "Certificate file"},
        {"httpsCertificateButton", "Choose certificate file"},
        {"hostTextEdit", "Active Addresses"}};
    panel->load(WebTest::fullSettings());
    panel->show();
    for (const auto &[object, name] : names) {
        auto *accessible = QAccessible::queryAccessibleInterface(find<QWidget>(object));
        QVERIFY2(accessible, object);
        QCOMPARE(accessible->text(QAccessible::Name), QString(name));
    }
}

void TestTXWebInterfaceConfigurationWidget::slotsKeepTheirOrderAndThereIsNoSignal()
{
    const QMetaObject &meta = TXWebInterfaceConfigurationWidget::staticMetaObject;
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }

    QCOMPARE(signatures,
             QStringList({"refresh()", "on_httpsCertificateButton_clicked()",
                          "on_httpsCertificateCheckBox_clicked()"}));
}

void TestTXWebInterfaceConfigurationWidget::boxSwitchesTheControls()
{
    panel->show();
    for (const bool isOn : {false, true, false}) {
        find<QCheckBox>("enabledCheckBox")->setChecked(isOn);
        for (const QString &name : kSwitchedControls) {
            QVERIFY2(panel->findChild<QWidget *>(name)->isEnabled() == isOn, qPrintable(name));
        }
    }
}

void TestTXWebInterfaceConfigurationWidget::otherControlsAreNotSwitched()
{
    QVERIFY(!find<QCheckBox>("enabledCheckBox")->isChecked());
    for (const char *name : {"enabledCheckBox", "label", "widget"}) {
        QVERIFY2(find<QWidget>(name)->isEnabled(), name);
    }
}

void TestTXWebInterfaceConfigurationWidget::httpsBoxIsShownWhenOfferedOrChecked_data()
{
    QTest::addColumn<QVariant>("setting");
    QTest::addColumn<bool>("isSecure");
    QTest::addColumn<bool>("isBoxShown");
    QTest::newRow("no setting") << QVariant() << false << false;
    QTest::newRow("no setting, secure") << QVariant() << true << true;
    QTest::newRow("off") << QVariant(false) << false << false;
    QTest::newRow("off, secure") << QVariant(false) << true << true;
    QTest::newRow("on") << QVariant(true) << false << true;
    QTest::newRow("on, secure") << QVariant(true) << true << true;
    QTest::newRow("on as a text") << QVariant("true") << false << true;
    QTest::newRow("on as a number") << QVariant(1) << false << true;
    QTest::newRow("a list") << QVariant(QVariantList({1, 2})) << false << false;
}

void TestTXWebInterfaceConfigurationWidget::httpsBoxIsShownWhenOfferedOrChecked()
{
    QFETCH(QVariant, setting);
    QFETCH(bool, isSecure);
    QFETCH(bool, isBoxShown);
    if (setting.isValid()) {
        offerHttps(setting);
    }

    for (const bool isOn : {true, false}) {
        panel->load({{"Enabled", isOn}, {"Secure", isSecure}});

        QCOMPARE(isShown("httpsCertificateCheckBox"), isBoxShown);
        QCOMPARE(isShown("httpsCertificateLineEdit"), isSecure);
        QCOMPARE(isShown("httpsCertificateButton"), isSecure);
        QVERIFY(isShown("widget"));
    }
}

void TestTXWebInterfaceConfigurationWidget::certificateRowFollowsTheBox()
{
    offerHttps(true);
    panel->load({{"Enabled", true}});
    panel->show();
    auto *box = find<QCheckBox>("httpsCertificateCheckBox");

    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QVERIFY(find<QLineEdit>("httpsCertificateLineEdit")->isVisible());
    QVERIFY(find<QPushButton>("httpsCertificateButton")->isVisible());

    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QVERIFY(!find<QLineEdit>("httpsCertificateLineEdit")->isVisible());
    QVERIFY(!find<QPushButton>("httpsCertificateButton")->isVisible());
    QVERIFY(box->isVisible());
}

void TestTXWebInterfaceConfigurationWidget::changedSettingCountsFromTheNextRefresh()
{
    QVERIFY(!isShown("httpsCertificateCheckBox"));
    offerHttps(true);
    QVERIFY(!isShown("httpsCertificateCheckBox"));

    panel->refresh();
    QVERIFY(isShown("httpsCertificateCheckBox"));

    offerHttps(false);
    find<QSpinBox>("portSpinBox")->setValue(9000);
    QVERIFY(!isShown("httpsCertificateCheckBox"));

    offerHttps(true);
    const TXWebInterfaceConfigurationWidget another;
    QVERIFY(child<QWidget>(another, "httpsCertificateCheckBox")->isVisibleTo(&another));
}

void TestTXWebInterfaceConfigurationWidget::uncheckingHidesABoxThatIsNotOffered()
{
    panel->load(WebTest::fullSettings());
    panel->show();
    QVERIFY(isShown("httpsCertificateCheckBox"));

    find<QCheckBox>("httpsCertificateCheckBox")->click();

    QVERIFY(!isShown("httpsCertificateCheckBox"));
    QVERIFY(!isShown("httpsCertificateLineEdit"));
}

void TestTXWebInterfaceConfigurationWidget::languageChangeChangesNothing()
{
    class Shouting : public QTranslator
    {
    public:
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return QString::fromUtf8(text).toUpper();
        }
        bool isEmpty() const override { return false; }
    } translator;
    panel->load(WebTest::fullSettings());
    const QString addresses = WebTest::addressView(*panel).toPlainText();

    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::processEvents();

    QCOMPARE(find<QCheckBox>("enabledCheckBox")->text(), QStringLiteral("Enabled"));
    QCOMPARE(find<QLabel>("portLabel")->text(), QStringLiteral("Port"));
    QCOMPARE(WebTest::addressView(*panel).toPlainText(), addresses);
    // What is made later speaks the new language.
    const TXWebInterfaceConfigurationWidget another;
    QCOMPARE(child<QCheckBox>(another, "enabledCheckBox")->text(), QStringLiteral("ENABLED"));
    QCoreApplication::removeTranslator(&translator);
}

int main(int argc, char **argv)
{
    return runTest<TestTXWebInterfaceConfigurationWidget>(argc, argv);
}

#include "tst_TXWebInterfaceConfigurationWidget.moc"
