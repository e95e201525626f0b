#include "EMailSenderWidget.h"
#include "RatioReporter.h"
#include "StoredSecret.h"
#include "TXPasswordLineEdit.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVariant>

// The mail panel beside the same form as one writes it by hand for a single application.

namespace {

using Settings = QHash<QString, QVariant>;

QString tr(const char *text)
{
    return QCoreApplication::translate("PlainMailForm", text);
}

QString heading(const char *title, const char *hint)
{
    return QStringLiteral(
               "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\" "
               "\"http://www.w3.org/TR/REC-html40/strict.dtd\">\n"
               "<html><head><meta name=\"qrichtext\" content=\"1\" /><style type=\"text/css\">\n"
               "p, li { white-space: pre-wrap; }\n"
               "</style></head><body style=\" font-family:'Lucida Grande'; font-size:13pt; "
               "font-weight:400; font-style:normal;\">\n"
               "<p style=\" margin-top:0px; margin-bottom:0px; margin-left:0px; "
               "margin-right:0px; -qt-block-indent:0; text-indent:0px;\">"
               "<span style=\" font-weight:600;\">%1    </span>     %2</p></body></html>")
        .arg(title ? tr(title) : QString(), hint ? tr(hint) : QString());
}

/// Knows its settings by the same keys, and enciphers the password in the same way.
template<class PasswordEdit>
class PlainMailForm : public QWidget
{
public:
    PlainMailForm()
    {
        resize(543, 370);
        grid->setContentsMargins(3, 3, 3, 3);
        addServer();
        addAddresses();
        setTabOrder(login, password);
        setTabOrder(password, server);
        setTabOrder(server, sender);
        setTabOrder(sender, receiver);
        setTabOrder(receiver, copy);
        setTabOrder(copy, port);
        setTabOrder(port, encryption);
        setTabOrder(encryption, send);
        QObject::connect(send, SIGNAL(clicked()), this, SLOT(update()));
    }

    void load(const Settings &settings)
    {
        login->setText(settings.value(QStringLiteral("MailServerLogin")).toString());
        password->setText(QString::fromUtf8(StoredSecret::decipher(
            settings.value(QStringLiteral("MailServerPassword")).toString())));
        server->setText(settings.value(QStringLiteral("MailServerAddress")).toString());
        port->setValue(settings.value(QStringLiteral("MailServerPort")).toInt());
        encryption->setCurrentIndex(
            encryption->findData(settings.value(QStringLiteral("MailWithEncryption")).toString()));
        sender->setText(settings.value(QStringLiteral("MailSender")).toString());
        receiver->setText(settings.value(QStringLiteral("MailMainDestination")).toString());
        copy->setText(settings.value(QStringLiteral("MailCopyDestination")).toString());
    }

    [[nodiscard]] Settings save() const
    {
        return {{QStringLiteral("MailServerLogin"), login->text()},
                {QStringLiteral("MailServerPassword"),
                 StoredSecret::encipher(password->text().toUtf8())},
                {QStringLiteral("MailServerAddress"), server->text()},
                {QStringLiteral("MailServerPort"), port->value()},
                {QStringLiteral("MailWithEncryption"), encryption->currentData().toString()},
                {QStringLiteral("MailSender"), sender->text()},
                {QStringLiteral("MailMainDestination"), receiver->text()},
                {QStringLiteral("MailCopyDestination"), copy->text()}};
    }

private:
    void addServer()
    {
        grid->addWidget(new QLabel(heading("SMTP Mail Server:", nullptr), this), 0, 0, 1, 2);
        addLabel("Login:", login, 1, 0);
        grid->addWidget(login, 1, 1, 1, 6);
        addLabel("Password:", password, 2, 0);
        grid->addWidget(password, 2, 1);
        addLabel("Port", port, 2, 2, 2);
        grid->addWidget(port, 2, 4);
        addLabel("SMTP Server:", server, 3, 0);
        grid->addWidget(server, 3, 1);
        addLabel("Encryption", encryption, 3, 3);
        grid->addWidget(encryption, 3, 4);

        login->setPlaceholderText(tr("(Optional)"));
        password->setPlaceholderText(tr("(Optional)"));
        password->setEchoMode(QLineEdit::Password);
        server->setPlaceholderText(tr("(Required)"));
        port->setButtonSymbols(QSpinBox::NoButtons);
        port->setMaximum(100000);
        port->setValue(25);
        encryption->addItem(tr("None"), QStringLiteral("NONE"));
        encryption->addItem(tr("SSL"), QStringLiteral("SSL"));
        encryption->addItem(tr("TLS"), QStringLiteral("TLS"));
    }

    void addAddresses()
    {
        grid->addWidget(new QLabel(heading("Sender Address:", "name@domain"), this), 6, 0, 1, 2);
        addLabel("From:", sender, 7, 0)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(sender, 7, 1, 1, 6);
        grid->addWidget(new QLabel(heading("Destination:", "name@domain"), this), 8, 0, 1, 3);
        addLabel("To:", receiver, 9, 0);
        grid->addWidget(receiver, 9, 1, 1, 6);
        addLabel("Cc:", copy, 10, 0);
        grid->addWidget(copy, 10, 1, 1, 6);
        grid->addWidget(send, 11, 4, 1, 3);

        sender->setPlaceholderText(tr("(Required)"));
        receiver->setPlaceholderText(tr("(Required)"));
        copy->setPlaceholderText(tr("(Optional)"));
        send->setText(tr("Send Test Mail"));
    }

    QLabel *addLabel(const char *text, QWidget *buddy, int row, int column, int columns = 1)
    {
        auto *label = new QLabel(tr(text), this);
        label->setBuddy(buddy);
        grid->addWidget(label, row, column, 1, columns);
        return label;
    }

    QGridLayout *grid = new QGridLayout(this);
    QLineEdit *login = new QLineEdit(this);
    PasswordEdit *password = new PasswordEdit(this);
    QSpinBox *port = new QSpinBox(this);
    QLineEdit *server = new QLineEdit(this);
    QComboBox *encryption = new QComboBox(this);
    QLineEdit *sender = new QLineEdit(this);
    QLineEdit *receiver = new QLineEdit(this);
    QLineEdit *copy = new QLineEdit(this);
    QPushButton *send = new QPushButton(this);
};

/// What a host does that opens its settings: makes the panel, lays it out and drops it.
template<class Panel>
void construct(benchmark::State &state)
{
    for (auto step : state) {
        Panel panel;
        benchmark::DoNotOptimize(panel.sizeHint());
    }
}

template<class Panel>
void loadAndSave(benchmark::State &state)
{
    Panel panel;
    const Settings settings = {
        {QStringLiteral("MailServerLogin"), QStringLiteral("me")},
        {QStringLiteral("MailServerPassword"), StoredSecret::encipher("a password")},
        {QStringLiteral("MailServerAddress"), QStringLiteral("smtp.example.org")},
        {QStringLiteral("MailServerPort"), 587},
        {QStringLiteral("MailWithEncryption"), QStringLiteral("TLS")},
        {QStringLiteral("MailSender"), QStringLiteral("me@example.org")},
        {QStringLiteral("MailMainDestination"), QStringLiteral("you@example.org")},
        {QStringLiteral("MailCopyDestination"), QStringLiteral("them@example.org")}};
    for (auto step : state) {
        panel.load(settings);
        benchmark::DoNotOptimize(panel.save());
    }
}

template<class Panel>
void constructAndPaint(benchmark::State &state)
{
    for (auto step : state) {
        Panel panel;
        benchmark::DoNotOptimize(panel.grab());
    }
}

using Plain = PlainMailForm<TXPasswordLineEdit>;
using PlainWithClearField = PlainMailForm<QLineEdit>;

} // namespace

BENCHMARK(construct<EMailSenderWidget>)->Name("Construct/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(construct<Plain>)->Name("Construct/plain Qt")->Unit(benchmark::kMicrosecond);

BENCHMARK(constructAndPaint<EMailSenderWidget>)
    ->Name("ConstructAndPaint/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(constructAndPaint<Plain>)
    ->Name("ConstructAndPaint/plain Qt")
    ->Unit(benchmark::kMicrosecond);

BENCHMARK(loadAndSave<EMailSenderWidget>)->Name("LoadAndSave/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(loadAndSave<Plain>)->Name("LoadAndSave/plain Qt")->Unit(benchmark::kMicrosecond);
// A field that holds the password in clear works the cipher twice where ours does four times.
BENCHMARK(loadAndSave<PlainWithClearField>)
    ->Name("LoadAndSave/plain Qt with a clear field")
    ->Unit(benchmark::kMicrosecond);
