#include "FTPConfigurationWidget.h"

#include "FtpPanelHelpers.h"
#include "TestBase.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>

#include <memory>

using FtpTest::child;

namespace {

/// What enableUI() switches, in its order.
const QStringList kSwitchedControls = {
    QStringLiteral("eraseFileCheckBox"), QStringLiteral("hostLineEdit"),
    QStringLiteral("portSpinBox"),       QStringLiteral("userNameLineEdit"),
    QStringLiteral("passwordLineEdit"),  QStringLiteral("relativePathLineEdit"),
    QStringLiteral("checkFTP")};

/// Writes down which controls were enabled or disabled, in the order in which it happens.
class SwitchRecorder : public QObject
{
public:
    explicit SwitchRecorder(const QWidget &panel)
    {
        const auto widgets = panel.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget *widget : widgets) {
            widget->installEventFilter(this);
        }
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::EnabledChange) {
            names.append(object->objectName());
        }
        return QObject::eventFilter(object, event);
    }

    QStringList names;
};

} // namespace

class TestFTPConfigurationWidget : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { panel = std::make_unique<FTPConfigurationWidget>(); }
    void finish() override { panel.reset(); }

private slots:
    void controlsStandInTheGrid_data();
    void controlsStandInTheGrid();
    void controlsAreSetUpAsDesigned();
    void tabGoesThroughTheFields();
    void everyControlHasAName();
    void everythingCanBeUsedBeforeTheFirstLoad();
    void signalsAndSlotsKeepTheirOrder();
    void statusIsAMetaTypeByItsFullName();

    void schemeSetsItsPortOverATypedOne();
    void foreignSchemesInTheBox_data();
    void foreignSchemesInTheBox();
    void indexOutsideTheBoxChangesNothing();

    void enablingGoesInOrderAndTellsLast();
    void enablingIsToldEachTime();
    void clickOnTheBoxSwitches();
    void activatingFromCodeSwitchesToo();
    void isEnabledAnswersForTheBox();

    void statusOfActiveBoxAndEraseItemsCanBeHidden();
    void eraseLabelNamesTheSource();
    void labelsWidthLeavesThePortOut();
    void labelsWidthCountsVisibleOptionalLabelsOnly();

private:
    template<class Child>
    [[nodiscard]] Child *find(const char *name) const
    {
        return child<Child>(*panel, name);
    }

    std::unique_ptr<FTPConfigurationWidget> panel;
};

void TestFTPConfigurationWidget::controlsStandInTheGrid_data()
{
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text");
    const auto add = [](const char *name, const char *className, int row, int column,
                        const char *text) {
        QTest::newRow(name) << QByteArray(className) << row << column << QString(text);
    };
    add("activateLabel", "QLabel", 0, 0, "Active");
    add("ftpActivationCheckBox", "QCheckBox", 0, 2, "");
    add("hostLabel", "QLabel", 1, 0, "Host");
    add("label_17", "QLabel", 2, 0, "Port");
    add("portSpinBox", "QSpinBox", 2, 2, "21");
    add("userLabel", "QLabel", 3, 0, "User Name");
    add("userNameLineEdit", "QLineEdit", 3, 2, "");
    add("passwordLabel", "QLabel", 4, 0, "Password");
    add("passwordLineEdit", "TXPasswordLineEdit", 4, 2, "");
    add("pathLabel", "QLabel", 5, 0, "Distant Path");
    add("relativePathLineEdit", "QLineEdit", 5, 2, "");
    add("eraseDistantLabel", "QLabel", 6, 0, "Erase Distant Files");
    add("eraseFileCheckBox", "QCheckBox", 6, 2, "");
    add("checkFTP", "QPushButton", 7, 0, "Check Connection");
    add("progressLabel", "QLabel", 7, 2, "");
}

void TestFTPConfigurationWidget::controlsStandInTheGrid()
{
    QFETCH(QByteArray, className);
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(QString, text);
    auto *grid = qobject_cast<QGridLayout *>(panel->layout());
    QVERIFY(grid);
    auto *widget = find<QWidget>(QTest::currentDataTag());
    QVERIFY(widget);

    QCOMPARE(QByteArray(widget->metaObject()->className()), className);
    QCOMPARE(widget->property("text").toString(), text);
    const int index = grid->indexOf(widget);
    QVERIFY(index >= 0);
    int place[4] = {};
    grid->getItemPosition(index, &place[0], &place[1], &place[2], &place[3]);
    QCOMPARE(place[0], row);
    QCOMPARE(place[1], column);
    QCOMPARE(place[2], 1);
    QCOMPARE(place[3], 1);
}

void TestFTPConfigurationWidget::controlsAreSetUpAsDesigned()
{
    QCOMPARE(panel->objectName(), QStringLiteral("FTPConfigurationWidget"));
    QCOMPARE(panel->size(), QSize(408, 206));
    QCOMPARE(panel->layout()->objectName(), QStringLiteral("gridLayout"));

    auto *line = panel->findChild<QHBoxLayout *>(QStringLiteral("horizontalLayout"));
    QVERIFY(line);
    auto *schemes = find<QComboBox>("schemeComboBox");
    QCOMPARE(qobject_cast<QGridLayout *>(panel->layout())->itemAtPosition(1, 2)->layout(), line);
    QCOMPARE(line->count(), 2);
    QCOMPARE(line->itemAt(0)->widget(), schemes);
    QCOMPARE(line->itemAt(1)->widget(), find<QLineEdit>("hostLineEdit"));

    QCOMPARE(schemes->count(), 2);
    QCOMPARE(schemes->itemText(0), QStringLiteral("FTP"));
    QCOMPARE(schemes->itemData(0), QVariant(QStringLiteral("ftp")));
    QCOMPARE(schemes->itemText(1), QStringLiteral("SFTP"));
    QCOMPARE(schemes->itemData(1), QVariant(QStringLiteral("sftp")));
    QCOMPARE(schemes->currentIndex(), 0);

    auto *port = find<QSpinBox>("portSpinBox");
    QCOMPARE(port->minimum(), 1);
    QCOMPARE(port->maximum(), 100000);
    QCOMPARE(port->buttonSymbols(), QAbstractSpinBox::NoButtons);
    QVERIFY(port->alignment().testFlag(Qt::AlignLeft));
    QCOMPARE(find<QLabel>("hostLabel")->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(find<QLineEdit>("passwordLineEdit")->echoMode(), QLineEdit::Password);
    QVERIFY(find<QLabel>("progressLabel")->isHidden());
}

void TestFTPConfigurationWidget::tabGoesThroughTheFields()
{
    const QStringList order = {
        QStringLiteral("hostLineEdit"),         QStringLiteral("portSpinBox"),
        QStringLiteral("userNameLineEdit"),     QStringLiteral("passwordLineEdit"),
        QStringLiteral("relativePathLineEdit"), QStringLiteral("checkFTP")};
    panel->show();
    QVERIFY(QTest::qWaitForWindowActive(panel.get()));
    find<QLineEdit>("hostLineEdit")->setFocus();

    QStringList reached;
    for (qsizetype i = 0; i < order.size(); ++i) {
        reached.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }

    QCOMPARE(reached, order);
}

void TestFTPConfigurationWidget::everyControlHasAName()
{
    const std::pair<const char *, const char *> names[] = {
        {"ftpActivationCheckBox", "Active"},
        {"hostLineEdit", "Host"},
        {"portSpinBox", "Port"},
        {"userNameLineEdit", "User Name"},
        {"passwordLineEdit", "Password"},
        {"relativePathLineEdit", "Distant Path"},
        {"eraseFileCheckBox", "Erase Distant Files"},
        {"checkFTP", "Check Connection"}};
    panel->show();
    for (const auto &[object, name] : names) {
        auto *accessible = QAccessible::queryAccessibleInterface(find<QWidget>(object));
        QVERIFY2(accessible, object);
        QCOMPARE(accessible->text(QAccessible::Name), QString(name));
    }

    // On this platform the name that reading aids hear of a combo box is its current text.
    QCOMPARE(find<QComboBox>("schemeComboBox")->accessibleName(), QStringLiteral("Protocol"));

    panel->setIsImporter(false);
    auto *erase = QAccessible::queryAccessibleInterface(find<QWidget>("eraseFileCheckBox"));
    QCOMPARE(erase->text(QAccessible::Name), QStringLiteral("Erase Local Files"));
}

void TestFTPConfigurationWidget::everythingCanBeUsedBeforeTheFirstLoad()
{
    QVERIFY(!find<QCheckBox>("ftpActivationCheckBox")->isChecked());
    const auto widgets = panel->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *widget : widgets) {
        QVERIFY2(widget->isEnabled(), qPrintable(widget->objectName()));
    }
}

void TestFTPConfigurationWidget::signalsAndSlotsKeepTheirOrder()
{
    const QMetaObject &meta = FTPConfigurationWidget::staticMetaObject;
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const bool isSignal = meta.method(i).methodType() == QMetaMethod::Signal;
        signatures.append((isSignal ? QStringLiteral("signal ") : QStringLiteral("slot "))
                          + QString::fromLatin1(meta.method(i).methodSignature()));
    }

    QCOMPARE(
        signatures,
        QStringList({QStringLiteral("signal changeFtpStatus(bool)"),
                     QStringLiteral("signal ftpConnectionStatus("
                                    "FTPConfigurationWidget::FtpStatus)"),
                     QStringLiteral("slot activateFTP(bool)"),
                     QStringLiteral("slot enableUI(bool)"), QStringLiteral("slot checkFTP(bool)"),
                     QStringLiteral("slot onFinished(FTPConfigurationWidget::FtpStatus)"),
                     QStringLiteral("slot on_schemeComboBox_currentIndexChanged(int)")}));
}

void TestFTPConfigurationWidget::statusIsAMetaTypeByItsFullName()
{
    const QMetaType type = QMetaType::fromName("FTPConfigurationWidget::FtpStatus");

    QVERIFY(type.isValid());
    QCOMPARE(type.id(), qMetaTypeId<FTPConfigurationWidget::FtpStatus>());
    QCOMPARE(int(FTPConfigurationWidget::FtpOk), 0);
    QCOMPARE(int(FTPConfigurationWidget::FtpLoginError), 1);
    QCOMPARE(int(FTPConfigurationWidget::FtpHostError), 2);
}

void TestFTPConfigurationWidget::schemeSetsItsPortOverATypedOne()
{
    auto *schemes = find<QComboBox>("schemeComboBox");
    auto *port = find<QSpinBox>("portSpinBox");
    port->setValue(2121);

    schemes->setCurrentIndex(1);
    QCOMPARE(port->value(), 22);
    port->setValue(2222);
    schemes->setCurrentIndex(1);
    QCOMPARE(port->value(), 2222);

    schemes->setCurrentIndex(0);
    QCOMPARE(port->value(), 21);
}

void TestFTPConfigurationWidget::foreignSchemesInTheBox_data()
{
    QTest::addColumn<QVariant>("scheme");
    QTest::addColumn<int>("port");
    QTest::newRow("ftps is known") << QVariant("ftps") << 990;
    QTest::newRow("other") << QVariant("http") << 1234;
    QTest::newRow("capitals") << QVariant("FTP") << 1234;
    QTest::newRow("none") << QVariant() << 1234;
}

void TestFTPConfigurationWidget::foreignSchemesInTheBox()
{
    QFETCH(QVariant, scheme);
    QFETCH(int, port);
    auto *schemes = find<QComboBox>("schemeComboBox");
    schemes->addItem(QStringLiteral("other"), scheme);
    find<QSpinBox>("portSpinBox")->setValue(1234);

    schemes->setCurrentIndex(2);

    QCOMPARE(find<QSpinBox>("portSpinBox")->value(), port);
}

void TestFTPConfigurationWidget::indexOutsideTheBoxChangesNothing()
{
    find<QSpinBox>("portSpinBox")->setValue(1234);

    for (const int index : {-1, 2, INT_MAX, INT_MIN}) {
        panel->on_schemeComboBox_currentIndexChanged(index);
        QCOMPARE(find<QSpinBox>("portSpinBox")->value(), 1234);
    }
}

void TestFTPConfigurationWidget::enablingGoesInOrderAndTellsLast()
{
    SwitchRecorder recorder(*panel);
    QStringList namesAtSignal;
    connect(panel.get(), &FTPConfigurationWidget::changeFtpStatus, panel.get(), [&](bool enabled) {
        QVERIFY(!enabled);
        namesAtSignal = recorder.names;
    });

    panel->enableUI(false);

    QCOMPARE(recorder.names, kSwitchedControls);
    QCOMPARE(namesAtSignal, kSwitchedControls);
    const auto widgets = panel->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *widget : widgets) {
        QCOMPARE(widget->isEnabled(), !kSwitchedControls.contains(widget->objectName()));
    }
}

void TestFTPConfigurationWidget::enablingIsToldEachTime()
{
    const QSignalSpy spy(panel.get(), SIGNAL(changeFtpStatus(bool)));

    panel->enableUI(true);
    panel->enableUI(true);
    panel->enableUI(false);

    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.at(1).first().toBool(), true);
    QCOMPARE(spy.at(2).first().toBool(), false);
}

void TestFTPConfigurationWidget::clickOnTheBoxSwitches()
{
    auto *box = find<QCheckBox>("ftpActivationCheckBox");
    const QSignalSpy spy(panel.get(), SIGNAL(changeFtpStatus(bool)));

    box->setChecked(true);
    QCOMPARE(spy.count(), 0);
    box->click();

    QCOMPARE(spy.count(), 1);
    QVERIFY(!find<QPushButton>("checkFTP")->isEnabled());
    box->click();
    QVERIFY(find<QPushButton>("checkFTP")->isEnabled());
}

void TestFTPConfigurationWidget::activatingFromCodeSwitchesToo()
{
    const QSignalSpy spy(panel.get(), SIGNAL(changeFtpStatus(bool)));

    panel->activateFTP(true);
    QVERIFY(find<QCheckBox>("ftpActivationCheckBox")->isChecked());
    panel->activateFTP(false);

    QVERIFY(!find<QCheckBox>("ftpActivationCheckBox")->isChecked());
    QVERIFY(!find<QLineEdit>("hostLineEdit")->isEnabled());
    QCOMPARE(spy.count(), 2);
}

void TestFTPConfigurationWidget::isEnabledAnswersForTheBox()
{
    QVERIFY(!panel->isEnabled());
    panel->activateFTP(true);
    panel->setEnabled(false);

    QVERIFY(panel->isEnabled());
    QVERIFY(!panel->QWidget::isEnabled());
}

void TestFTPConfigurationWidget::statusOfActiveBoxAndEraseItemsCanBeHidden()
{
    const auto isHidden = [this](const char *name) {
        return find<QWidget>(name)->isHidden();
    };

    panel->setVisibleActiveCheckBox(false);
    QVERIFY(isHidden("ftpActivationCheckBox") && isHidden("activateLabel"));
    QVERIFY(!isHidden("eraseFileCheckBox") && !isHidden("eraseDistantLabel"));
    panel->setVisibleActiveCheckBox(true);
    panel->setVisibleEraseSrcFilesItems(false);

    QVERIFY(!isHidden("ftpActivationCheckBox") && !isHidden("activateLabel"));
    QVERIFY(isHidden("eraseFileCheckBox") && isHidden("eraseDistantLabel"));
}

void TestFTPConfigurationWidget::eraseLabelNamesTheSource()
{
    QVERIFY(panel->isImporter());
    panel->setIsImporter(false);
    QVERIFY(!panel->isImporter());
    QCOMPARE(find<QLabel>("eraseDistantLabel")->text(), QStringLiteral("Erase Local Files"));
    QVERIFY(panel->setProperty("importer", true));
    QCOMPARE(find<QLabel>("eraseDistantLabel")->text(), QStringLiteral("Erase Distant Files"));
}

void TestFTPConfigurationWidget::labelsWidthLeavesThePortOut()
{
    panel->show();
    const int width = panel->maxLabelsWidth();
    auto *erase = find<QLabel>("eraseDistantLabel");
    QCOMPARE(width, QFontMetrics(erase->font()).size(Qt::TextShowMnemonic, erase->text()).width());

    find<QLabel>("label_17")->setText(QString(200, u'W'));
    QCOMPARE(panel->maxLabelsWidth(), width);

    for (const char *name : {"hostLabel", "userLabel", "passwordLabel", "pathLabel"}) {
        auto *label = find<QLabel>(name);
        const QString text = label->text();
        label->setText(QString(100, u'W'));
        QVERIFY2(panel->maxLabelsWidth() > width, name);
        label->setText(text);
    }
}

void TestFTPConfigurationWidget::labelsWidthCountsVisibleOptionalLabelsOnly()
{
    find<QLabel>("activateLabel")->setText(QString(100, u'W'));
    find<QLabel>("eraseDistantLabel")->setText(QString(200, u'W'));
    const int unseen = panel->maxLabelsWidth();
    panel->show();
    const int both = panel->maxLabelsWidth();
    panel->setVisibleEraseSrcFilesItems(false);
    const int withActive = panel->maxLabelsWidth();
    panel->setVisibleActiveCheckBox(false);

    QCOMPARE(panel->maxLabelsWidth(), unseen);
    QVERIFY(unseen < withActive);
    QVERIFY(withActive < both);
}

int main(int argc, char **argv)
{
    return runTest<TestFTPConfigurationWidget>(argc, argv);
}

#include "tst_FTPConfigurationWidget.moc"
