#include "TXDatabaseConfigurationWidget.h"

#include "DatabasePanelHelpers.h"
#include "PixelProbe.h"
#include "TXResources.h"
#include "TestBase.h"

#include <QAccessible>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <memory>

using DatabaseTest::child;
using DatabaseTest::RecordingDriver;

/// The form, and what the user's clicks do.
class TestTXDatabaseConfigurationWidget : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { panel = std::make_unique<TXDatabaseConfigurationWidget>(); }
    void finish() override { panel.reset(); }

private slots:
    void rowsAreThoseOfTheForm_data();
    void rowsAreThoseOfTheForm();
    void partsStandBelowEachOther();
    void controlsAreSetUpAsDesigned();
    void testRowHoldsButtonAndBullet();
    void tabGoesThroughTheFields();
    void everyControlHasAName();
    void slotsKeepTheirOrderAndThereIsNoSignal();

    void serverFieldsAreDisabledAtFirst();
    void radioButtonsSwitchTheFields();
    void refreshFollowsTheRadioButtons();
    void radioSlotsOnlyRefresh();

    void bulletShowsTheOutcome_data();
    void bulletShowsTheOutcome();
    void bulletKeepsItsSizeAtAnyRatio();
    void nothingClearsTheBullet();
    void nextTestReplacesTheBullet();
    void disabledFieldsLookDisabled();

private:
    template<class Child>
    [[nodiscard]] Child *find(const char *name) const
    {
        return child<Child>(*panel, name);
    }
    [[nodiscard]] QFormLayout &form() const { return *find<QFormLayout>("formLayout"); }

    std::unique_ptr<TXDatabaseConfigurationWidget> panel;
};

void TestTXDatabaseConfigurationWidget::rowsAreThoseOfTheForm_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("labelText");
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("text");
    const auto add = [](const char *label, const char *labelText, const char *name,
                        const char *className, int row, const char *text) {
        QTest::newRow(name) << QString(label) << QString(labelText) << QByteArray(className) << row
                            << QString(text);
    };
    add("label", "Host", "hostEdit", "QLineEdit", 0, "127.0.0.1");
    add("label_2", "Port", "portEdit", "QSpinBox", 2, "3306");
    add("label_3", "User name", "userEdit", "QLineEdit", 3, "root");
    add("label_4", "Password", "passwordEdit", "TXPasswordLineEdit", 4, "");
    add("label_6", "Database", "databaseNameEdit", "QLineEdit", 5, "");
    add("label_5", "Options", "optionsEdit", "QLineEdit", 6, "");
}

void TestTXDatabaseConfigurationWidget::rowsAreThoseOfTheForm()
{
    QFETCH(QString, label);
    QFETCH(QString, labelText);
    QFETCH(QByteArray, className);
    QFETCH(int, row);
    QFETCH(QString, text);
    auto *labelWidget = panel->findChild<QLabel *>(label);
    auto *field = find<QWidget>(QTest::currentDataTag());
    QVERIFY(labelWidget && field);

    QCOMPARE(labelWidget->text(), labelText);
    QCOMPARE(labelWidget->buddy(), field);
    QCOMPARE(QByteArray(field->metaObject()->className()), className);
    QCOMPARE(field->property("text").toString(), text);
    QCOMPARE(form().itemAt(row, QFormLayout::LabelRole)->widget(), labelWidget);
    QCOMPARE(form().itemAt(row, QFormLayout::FieldRole)->widget(), field);
}

void TestTXDatabaseConfigurationWidget::partsStandBelowEachOther()
{
    QCOMPARE(panel->objectName(), QStringLiteral("TXDatabaseConfigurationWidget"));
    QCOMPARE(panel->size(), QSize(388, 275));
    QCOMPARE(panel->windowTitle(), QStringLiteral("Form"));
    auto *box = qobject_cast<QVBoxLayout *>(panel->layout());
    QVERIFY(box);
    QCOMPARE(box->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(box->count(), 3);
    QCOMPARE(box->itemAt(0)->widget(), find<QRadioButton>("internalDBRadio"));
    QCOMPARE(box->itemAt(1)->widget(), find<QRadioButton>("mysqlDBRadio"));
    QCOMPARE(box->itemAt(2)->widget(), find<QWidget>("mysqlWidget"));
    QCOMPARE(find<QWidget>("mysqlWidget")->layout(), &form());
}

void TestTXDatabaseConfigurationWidget::controlsAreSetUpAsDesigned()
{
    QCOMPARE(find<QRadioButton>("internalDBRadio")->text(), QStringLiteral("Internal Database"));
    QCOMPARE(find<QRadioButton>("mysqlDBRadio")->text(), QStringLiteral("MySQL/MariaDB Database"));
    QVERIFY(find<QRadioButton>("internalDBRadio")->isChecked());
    QVERIFY(!find<QRadioButton>("mysqlDBRadio")->isChecked());
    QCOMPARE(find<QSpinBox>("portEdit")->minimum(), 1);
    QCOMPARE(find<QSpinBox>("portEdit")->maximum(), 65535);
    QCOMPARE(find<QLineEdit>("passwordEdit")->echoMode(), QLineEdit::Password);
    QCOMPARE(form().count(), 13);
    for (const int row : {1, 7}) {
        QVERIFY(!form().itemAt(row, QFormLayout::LabelRole));
        QVERIFY(!form().itemAt(row, QFormLayout::FieldRole));
    }
}

void TestTXDatabaseConfigurationWidget::testRowHoldsButtonAndBullet()
{
    QCOMPARE(form().rowCount(), 9);
    QVERIFY(!form().itemAt(8, QFormLayout::LabelRole));
    auto *line = find<QHBoxLayout>("horizontalLayout");
    QVERIFY(line);
    QCOMPARE(form().itemAt(8, QFormLayout::FieldRole)->layout(), line);
    QCOMPARE(line->count(), 2);
    auto *button = find<QPushButton>("testButton");
    auto *bullet = find<QLabel>("validLabel");
    QCOMPARE(line->itemAt(0)->widget(), button);
    QCOMPARE(line->itemAt(1)->widget(), bullet);
    QCOMPARE(button->text(), QStringLiteral("Test"));
    QCOMPARE(bullet->minimumWidth(), 32);
    QCOMPARE(bullet->text(), QString());
    QVERIFY(bullet->pixmap().isNull());
}

void TestTXDatabaseConfigurationWidget::tabGoesThroughTheFields()
{
    const QStringList order = {QStringLiteral("mysqlDBRadio"), QStringLiteral("hostEdit"),
                               QStringLiteral("portEdit"),     QStringLiteral("userEdit"),
                               QStringLiteral("passwordEdit"), QStringLiteral("databaseNameEdit"),
                               QStringLiteral("optionsEdit"),  QStringLiteral("testButton")};
    panel->show();
    QVERIFY(QTest::qWaitForWindowActive(panel.get()));
    find<QRadioButton>("mysqlDBRadio")->click();
    find<QRadioButton>("mysqlDBRadio")->setFocus();

    QStringList reached;
    for (qsizetype i = 0; i < order.size(); ++i) {
        reached.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }

    QCOMPARE(reached, order);
}

void TestTXDatabaseConfigurationWidget::everyControlHasAName()
{
    const std::pair<const char *, const char *> names[] = {
        {"internalDBRadio", "Internal Database"},
        {"mysqlDBRadio", "MySQL/MariaDB Database"},
        {"hostEdit", "Host"},
        {"portEdit", "Port"},
        {"userEdit", "User name"},
        {"passwordEdit", "Password"},
        {"databaseNameEdit", "Database"},
        {"optionsEdit", "Options"},
        {"testButton", "Test"}};
    panel->show();
    for (const auto &[object, name] : names) {
        auto *accessible = QAccessible::queryAccessibleInterface(find<QWidget>(object));
        QVERIFY2(accessible, object);
        QCOMPARE(accessible->text(QAccessible::Name), QString(name));
    }
}

void TestTXDatabaseConfigurationWidget::slotsKeepTheirOrderAndThereIsNoSignal()
{
    const QMetaObject &meta = TXDatabaseConfigurationWidget::staticMetaObject;
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }

    QCOMPARE(signatures,
             QStringList({QStringLiteral("on_internalDBRadio_clicked()"),
                          QStringLiteral("on_mysqlDBRadio_clicked()"),
                          QStringLiteral("on_testButton_clicked()")}));
}

void TestTXDatabaseConfigurationWidget::serverFieldsAreDisabledAtFirst()
{
    QVERIFY(!find<QWidget>("mysqlWidget")->isEnabled());
    QVERIFY(!find<QLineEdit>("hostEdit")->isEnabled());
    QVERIFY(!find<QPushButton>("testButton")->isEnabled());
    QVERIFY(find<QRadioButton>("internalDBRadio")->isEnabled());
    QVERIFY(find<QRadioButton>("mysqlDBRadio")->isEnabled());
}

void TestTXDatabaseConfigurationWidget::radioButtonsSwitchTheFields()
{
    panel->show();
    QTest::mouseClick(find<QRadioButton>("mysqlDBRadio"), Qt::LeftButton, {}, QPoint(8, 8));
    QVERIFY(find<QWidget>("mysqlWidget")->isEnabled());
    QVERIFY(!find<QRadioButton>("internalDBRadio")->isChecked());
    find<QLineEdit>("hostEdit")->setText(QStringLiteral("mill"));

    QTest::mouseClick(find<QRadioButton>("internalDBRadio"), Qt::LeftButton, {}, QPoint(8, 8));
    QVERIFY(!find<QWidget>("mysqlWidget")->isEnabled());
    QCOMPARE(find<QLineEdit>("hostEdit")->text(), QStringLiteral("mill"));
}

void TestTXDatabaseConfigurationWidget::refreshFollowsTheRadioButtons()
{
    auto *server = find<QWidget>("mysqlWidget");
    find<QRadioButton>("mysqlDBRadio")->setChecked(true);
    QVERIFY(!server->isEnabled());
    panel->refresh();
    QVERIFY(server->isEnabled());

    find<QRadioButton>("internalDBRadio")->setChecked(true);
    QVERIFY(server->isEnabled());
    panel->refresh();
    QVERIFY(!server->isEnabled());
}

void TestTXDatabaseConfigurationWidget::radioSlotsOnlyRefresh()
{
    auto *server = find<QWidget>("mysqlWidget");
    panel->on_mysqlDBRadio_clicked();
    QVERIFY(!server->isEnabled());

    find<QRadioButton>("mysqlDBRadio")->setChecked(true);
    panel->on_internalDBRadio_clicked();
    QVERIFY(server->isEnabled());
}

void TestTXDatabaseConfigurationWidget::bulletShowsTheOutcome_data()
{
    QTest::addColumn<bool>("lets");
    QTest::addColumn<QString>("name");
    QTest::newRow("good") << true << "Connection succeeded";
    QTest::newRow("bad") << false << "Connection failed";
}

void TestTXDatabaseConfigurationWidget::bulletShowsTheOutcome()
{
    QFETCH(bool, lets);
    QFETCH(QString, name);
    RecordingDriver driver;
    driver.lets = lets;
    find<QRadioButton>("mysqlDBRadio")->click();

    find<QPushButton>("testButton")->click();

    QCOMPARE(driver.openCount, 1);
    auto *bullet = find<QLabel>("validLabel");
    const QPixmap expected =
        lets ? TXDisplayFixBulletStaticImage() : TXDisplayErrorBulletStaticImage();
    QCOMPARE(bullet->pixmap().toImage(), expected.toImage());
    QCOMPARE(bullet->text(), QString());
    QCOMPARE(bullet->accessibleName(), name);
}

void TestTXDatabaseConfigurationWidget::bulletKeepsItsSizeAtAnyRatio()
{
    const RecordingDriver driver;
    find<QRadioButton>("mysqlDBRadio")->click();
    find<QPushButton>("testButton")->click();
    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
    auto *bullet = find<QLabel>("validLabel");

    QCOMPARE(bullet->pixmap().deviceIndependentSize(), QSizeF(32, 32));
    QVERIFY(!bullet->hasScaledContents());
    QVERIFY(bullet->height() >= 32);
    for (const qreal ratio : {1.0, 2.0}) {
        const PixelProbe probe(*bullet, ratio);
        QVERIFY(probe.isNear(QPoint(16, bullet->height() / 2 - 12), QColor(0x2e, 0x9e, 0x4f)));
    }
}

void TestTXDatabaseConfigurationWidget::nothingClearsTheBullet()
{
    const RecordingDriver driver;
    find<QRadioButton>("mysqlDBRadio")->click();
    find<QPushButton>("testButton")->click();

    QTest::keyClicks(find<QLineEdit>("hostEdit"), QStringLiteral("x"));
    find<QSpinBox>("portEdit")->setValue(1);
    find<QRadioButton>("internalDBRadio")->click();
    panel->load({});
    panel->load(DatabaseTest::settingsFor(2));
    QVERIFY(!panel->save().isEmpty());

    QCOMPARE(find<QLabel>("validLabel")->pixmap().toImage(),
             TXDisplayFixBulletStaticImage().toImage());
}

void TestTXDatabaseConfigurationWidget::nextTestReplacesTheBullet()
{
    RecordingDriver driver;
    find<QRadioButton>("mysqlDBRadio")->click();
    find<QPushButton>("testButton")->click();

    driver.lets = false;
    QVERIFY(!panel->isValid());
    QCOMPARE(find<QLabel>("validLabel")->accessibleName(), QStringLiteral("Connection succeeded"));
    find<QPushButton>("testButton")->click();
    QCOMPARE(find<QLabel>("validLabel")->accessibleName(), QStringLiteral("Connection failed"));

    // From code the slot also answers for the internal database.
    find<QRadioButton>("internalDBRadio")->click();
    panel->on_testButton_clicked();
    QCOMPARE(find<QLabel>("validLabel")->accessibleName(), QStringLiteral("Connection succeeded"));
}

void TestTXDatabaseConfigurationWidget::disabledFieldsLookDisabled()
{
    auto *host = find<QLineEdit>("hostEdit");
    const QImage disabled = host->grab().toImage();
    find<QRadioButton>("mysqlDBRadio")->click();
    QVERIFY(host->grab().toImage() != disabled);
}

int main(int argc, char **argv)
{
    return runTest<TestTXDatabaseConfigurationWidget>(argc, argv);
}

#include "tst_TXDatabaseConfigurationWidget.moc"
