#include "EMailSenderWidget.h"

#include "PixelProbe.h"
#include "TXPasswordLineEdit.h"
#include "TestBase.h"

#include <QAccessible>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTranslator>
#include <QWheelEvent>

#include <memory>

namespace {

/// Puts "fr " before every text.
class Translator : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool isOurs = qstrcmp(context, "EMailSenderWidget") == 0;
        return isOurs ? QStringLiteral("fr ") + QString::fromUtf8(source) : QString();
    }
};

/// The document that a heading has to be, written down apart from the one in the library.
QString headingDocument(const QString &title, const QString &hint)
{
    const QStringList lines = {
        QStringLiteral("<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\" "
                       "\"http://www.w3.org/TR/REC-html40/strict.dtd\">"),
        QStringLiteral("<html><head><meta name=\"qrichtext\" content=\"1\" />"
                       "<style type=\"text/css\">"),
        QStringLiteral("p, li { white-space: pre-wrap; }"),
        QStringLiteral("</style></head><body style=\" font-family:'Lucida Grande'; "
                       "font-size:13pt; font-weight:400; font-style:normal;\">"),
        QStringLiteral("<p style=\" margin-top:0px; margin-bottom:0px; margin-left:0px; "
                       "margin-right:0px; -qt-block-indent:0; text-indent:0px;\">"
                       "<span style=\" font-weight:600;\">")};
    return lines.join(u'\n') + title + QStringLiteral("    </span>     ") + hint
        + QStringLiteral("</p></body></html>");
}

} // namespace

class TestEMailSenderWidget : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { panel = std::make_unique<EMailSenderWidget>(nullptr); }
    void finish() override { panel.reset(); }

private slots:
    void formIsAsDesigned();
    void everyWidgetStandsInItsCell_data();
    void everyWidgetStandsInItsCell();
    void textsAndPlaceholders_data();
    void textsAndPlaceholders();
    void headings_data();
    void headings();
    void encryptionBoxHoldsWordsAndTheirNames();
    void fillingTheBoxAgainAppends();
    void panelStartsEmpty();
    void tabGoesThroughTheFields();
    void labelsNameTheirFields();

    void wheelDoesNotChangeThePort();
    void languageChangeReachesTheFormOnly();
    void textsAreReadableInLightAndDark_data();
    void textsAreReadableInLightAndDark();

private:
    template<class Widget = QWidget>
    Widget &child(const char *name) const
    {
        auto *found = panel->findChild<Widget *>(QString::fromLatin1(name));
        return found ? *found : (qFatal("no child %s", name), *found);
    }

    std::unique_ptr<EMailSenderWidget> panel;
};

void TestEMailSenderWidget::formIsAsDesigned()
{
    QCOMPARE(panel->size(), QSize(543, 370));
    QCOMPARE(panel->metaObject()->superClass(), &QWidget::staticMetaObject);
    QCOMPARE(panel->layout()->objectName(), QStringLiteral("gridLayout"));
    QVERIFY(qobject_cast<QGridLayout *>(panel->layout()));
    QCOMPARE(panel->layout()->contentsMargins(), QMargins(3, 3, 3, 3));
    QCOMPARE(panel->layout()->count(), 20);

    QCOMPARE(child<TXPasswordLineEdit>("passwordLineEdit").echoMode(), QLineEdit::Password);
    const auto &port = child<QSpinBox>("portSpinBox");
    QCOMPARE(port.buttonSymbols(), QAbstractSpinBox::NoButtons);
    QCOMPARE(port.maximum(), 100000);
    QCOMPARE(child<QLabel>("label_7").alignment(),
             Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    QCOMPARE(child<QLabel>("label_9").alignment(), QLabel().alignment());
}

void TestEMailSenderWidget::everyWidgetStandsInItsCell_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QRect>("cell");
    const auto add = [](const char *name, const char *className, int row, int column, int rows,
                        int columns) {
        QTest::addRow("%s", name) << QString::fromLatin1(className)
                                  << QRect(column, row, columns, rows);
    };
    add("smtpMailLabel", "QLabel", 0, 0, 1, 2);
    add("label_2", "QLabel", 1, 0, 1, 1);
    add("loginLineEdit", "QLineEdit", 1, 1, 1, 6);
    add("label_3", "QLabel", 2, 0, 1, 1);
    add("passwordLineEdit", "TXPasswordLineEdit", 2, 1, 1, 1);
    add("label_5", "QLabel", 2, 2, 1, 2);
    add("portSpinBox", "QSpinBox", 2, 4, 1, 1);
    add("label_4", "QLabel", 3, 0, 1, 1);
    add("smtpServerLineEdit", "QLineEdit", 3, 1, 1, 1);
    add("label", "QLabel", 3, 3, 1, 1);
    add("encryptionComboBox", "QComboBox", 3, 4, 1, 1);
    add("senderAddressLabel", "QLabel", 6, 0, 1, 2);
    add("label_7", "QLabel", 7, 0, 1, 1);
    add("senderLineEdit", "QLineEdit", 7, 1, 1, 6);
    add("destinationAddressLabel", "QLabel", 8, 0, 1, 3);
    add("label_9", "QLabel", 9, 0, 1, 1);
    add("mainEMailAddress", "QLineEdit", 9, 1, 1, 6);
    add("label_10", "QLabel", 10, 0, 1, 1);
    add("ccMailAddress", "QLineEdit", 10, 1, 1, 6);
    add("testMailButton", "QPushButton", 11, 4, 1, 3);
}

void TestEMailSenderWidget::everyWidgetStandsInItsCell()
{
    QFETCH(QString, className);
    QFETCH(QRect, cell);
    QWidget &widget = child(QTest::currentDataTag());
    const auto *grid = qobject_cast<QGridLayout *>(panel->layout());
    int row = -1;
    int column = -1;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(grid->indexOf(&widget), &row, &column, &rows, &columns);

    QCOMPARE(QString::fromLatin1(widget.metaObject()->className()), className);
    QCOMPARE(QRect(column, row, columns, rows), cell);
}

void TestEMailSenderWidget::textsAndPlaceholders_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("text");
    const auto add = [](const char *name, const char *property, const char *text) {
        QTest::addRow("%s", name) << QString::fromLatin1(property) << QString::fromLatin1(text);
    };
    add("label_2", "text", "Login:");
    add("loginLineEdit", "placeholderText", "(Optional)");
    add("label_3", "text", "Password:");
    add("passwordLineEdit", "placeholderText", "(Optional)");
    add("label_5", "text", "Port");
    add("label_4", "text", "SMTP Server:");
    add("smtpServerLineEdit", "placeholderText", "(Required)");
    add("label", "text", "Encryption");
    add("label_7", "text", "From:");
    add("senderLineEdit", "placeholderText", "(Required)");
    add("label_9", "text", "To:");
    add("mainEMailAddress", "placeholderText", "(Required)");
    add("label_10", "text", "Cc:");
    add("ccMailAddress", "placeholderText", "(Optional)");
    add("testMailButton", "text", "Send Test Mail");
}

void TestEMailSenderWidget::textsAndPlaceholders()
{
    QFETCH(QString, property);
    QFETCH(QString, text);

    QCOMPARE(child(QTest::currentDataTag()).property(qPrintable(property)).toString(), text);
}

void TestEMailSenderWidget::headings_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("hint");
    QTest::addRow("smtpMailLabel") << QStringLiteral("SMTP Mail Server:") << QString();
    QTest::addRow("senderAddressLabel")
        << QStringLiteral("Sender Address:") << QStringLiteral("name@domain");
    QTest::addRow("destinationAddressLabel")
        << QStringLiteral("Destination:") << QStringLiteral("name@domain");
}

void TestEMailSenderWidget::headings()
{
    QFETCH(QString, title);
    QFETCH(QString, hint);
    constexpr int kTemplateLength = 502;
    constexpr int kPlaceholdersLength = 4;

    const QString text = child<QLabel>(QTest::currentDataTag()).text();

    QCOMPARE(text, headingDocument(title, hint));
    QCOMPARE(text.size(), kTemplateLength - kPlaceholdersLength + title.size() + hint.size());
    QVERIFY(!text.contains(QStringLiteral("color")));
}

void TestEMailSenderWidget::encryptionBoxHoldsWordsAndTheirNames()
{
    const QComboBox &box = child<QComboBox>("encryptionComboBox");
    QStringList entries;
    for (int i = 0; i < box.count(); ++i) {
        entries << box.itemText(i) << box.itemData(i, Qt::UserRole).toString();
        QVERIFY(box.itemIcon(i).isNull());
    }

    QCOMPARE(entries,
             QStringList({QStringLiteral("None"), QStringLiteral("NONE"), QStringLiteral("SSL"),
                          QStringLiteral("SSL"), QStringLiteral("TLS"), QStringLiteral("TLS")}));
}

void TestEMailSenderWidget::fillingTheBoxAgainAppends()
{
    panel->setEncryption(QStringLiteral("SSL"));

    panel->fillEncryptionCombobox();

    const QComboBox &box = child<QComboBox>("encryptionComboBox");
    QCOMPARE(box.count(), 6);
    QCOMPARE(box.itemData(3).toString(), QStringLiteral("NONE"));
    QCOMPARE(panel->encryption(), QStringLiteral("SSL"));
}

void TestEMailSenderWidget::panelStartsEmpty()
{
    QCOMPARE(panel->loginName(), QString());
    QCOMPARE(panel->password(), QString());
    QCOMPARE(panel->smtpServerName(), QString());
    QCOMPARE(panel->portNumber(), 25);
    QCOMPARE(panel->encryption(), QStringLiteral("NONE"));
    QCOMPARE(panel->senderName(), QString());
    QCOMPARE(panel->mainDestinationAddress(), QString());
    QCOMPARE(panel->copyDestincationAddress(), QString());
}

void TestEMailSenderWidget::tabGoesThroughTheFields()
{
    panel->show();
    QVERIFY(QTest::qWaitForWindowActive(panel.get()));
    child("loginLineEdit").setFocus();

    QStringList visited;
    for (int i = 0; i < 9; ++i) {
        visited << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }

    QCOMPARE(visited,
             QStringList({QStringLiteral("loginLineEdit"), QStringLiteral("passwordLineEdit"),
                          QStringLiteral("smtpServerLineEdit"), QStringLiteral("senderLineEdit"),
                          QStringLiteral("mainEMailAddress"), QStringLiteral("ccMailAddress"),
                          QStringLiteral("portSpinBox"), QStringLiteral("encryptionComboBox"),
                          QStringLiteral("testMailButton")}));
    QCOMPARE(QApplication::focusWidget(), &child("loginLineEdit"));
}

void TestEMailSenderWidget::labelsNameTheirFields()
{
    for (const auto &[label, field] : {std::pair("label_2", "loginLineEdit"),
                                       {"label_3", "passwordLineEdit"},
                                       {"label_5", "portSpinBox"},
                                       {"label_4", "smtpServerLineEdit"},
                                       {"label", "encryptionComboBox"},
                                       {"label_7", "senderLineEdit"},
                                       {"label_9", "mainEMailAddress"},
                                       {"label_10", "ccMailAddress"}}) {
        QCOMPARE(child<QLabel>(label).buddy(), &child(field));
        const auto *accessible = QAccessible::queryAccessibleInterface(&child(field));
        QVERIFY(!accessible->text(QAccessible::Name).isEmpty());
    }
    const auto *heading = QAccessible::queryAccessibleInterface(&child("senderAddressLabel"));
    QCOMPARE(heading->text(QAccessible::Name).simplified(),
             QStringLiteral("Sender Address: name@domain"));
}

void TestEMailSenderWidget::wheelDoesNotChangeThePort()
{
    panel->show();
    auto &port = child<QSpinBox>("portSpinBox");
    port.setFocus();
    QWheelEvent event(QPointF(5, 5), port.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);

    QVERIFY(QApplication::sendEvent(&port, &event));
    QCOMPARE(port.value(), 25);

    // Other events get through.
    QTest::keyClick(&port, Qt::Key_Up);
    QCOMPARE(port.value(), 26);
}

void TestEMailSenderWidget::languageChangeReachesTheFormOnly()
{
    Translator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();

    QCOMPARE(child<QLabel>("label_2").text(), QStringLiteral("fr Login:"));
    QCOMPARE(child<QLineEdit>("ccMailAddress").placeholderText(), QStringLiteral("fr (Optional)"));
    QCOMPARE(child<QPushButton>("testMailButton").text(), QStringLiteral("fr Send Test Mail"));
    QCOMPARE(child<QComboBox>("encryptionComboBox").itemText(0), QStringLiteral("None"));
    QCOMPARE(child<QLabel>("senderAddressLabel").text(),
             headingDocument(QStringLiteral("Sender Address:"), QStringLiteral("name@domain")));

    prepare();
    QCOMPARE(child<QComboBox>("encryptionComboBox").itemText(0), QStringLiteral("fr None"));
    QCOMPARE(child<QComboBox>("encryptionComboBox").itemData(0).toString(), QStringLiteral("NONE"));
    QCOMPARE(
        child<QLabel>("senderAddressLabel").text(),
        headingDocument(QStringLiteral("fr Sender Address:"), QStringLiteral("fr name@domain")));
    panel->setSenderName(QStringLiteral("a"));
    QString error;
    QVERIFY(!panel->checkConfigurationField(error));
    QVERIFY(error.startsWith(QStringLiteral("fr Missing a '@'")));
    QCoreApplication::removeTranslator(&translator);
}

void TestEMailSenderWidget::textsAreReadableInLightAndDark_data()
{
    QTest::addColumn<QColor>("window");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<qreal>("ratio");
    QTest::addRow("light") << QColor(Qt::white) << QColor(Qt::black) << 1.0;
    QTest::addRow("dark") << QColor(30, 30, 30) << QColor(Qt::white) << 1.0;
    QTest::addRow("dark, ratio 2") << QColor(30, 30, 30) << QColor(Qt::white) << 2.0;
}

void TestEMailSenderWidget::textsAreReadableInLightAndDark()
{
    QFETCH(QColor, window);
    QFETCH(QColor, text);
    QFETCH(qreal, ratio);
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    panel->setPalette(palette);
    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel.get()));

    const PixelProbe probe(*panel, ratio);

    for (const char *name : {"smtpMailLabel", "senderAddressLabel", "label_2"}) {
        const QRect area = child(name).geometry();
        int inTextColour = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                inTextColour += probe.isNear({x, y}, text, 40) ? 1 : 0;
            }
        }
        QVERIFY2(inTextColour > 10, name);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestEMailSenderWidget>(argc, argv);
}

#include "tst_EMailSenderWidget.moc"
