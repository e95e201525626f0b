#include "FTPConfigurationDialog.h"
#include "FTPConfigurationWidget.h"

#include <benchmark/benchmark.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMovie>
#include <QPixmap>
#include <QPushButton>
#include <QSpinBox>
#include <QUrl>
#include <QVBoxLayout>

// What a host pays for the panel and its dialog over the same controls put together by hand.

namespace {

class PlainPanel : public QWidget
{
public:
    explicit PlainPanel(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        resize(408, 206);
        addRow("Active", &active);
        addServerRow();
        port.setButtonSymbols(QAbstractSpinBox::NoButtons);
        port.setRange(1, 100000);
        port.setValue(21);
        addRow("Port", &port);
        addRow("User Name", &user);
        password.setEchoMode(QLineEdit::Password);
        addRow("Password", &password);
        addRow("Distant Path", &path);
        addRow("Erase Distant Files", &erase);
        grid.addWidget(&check, row, 0);
        grid.addWidget(&progress, row, 2);
        setUpProgress();
    }

    void load(const QUrl &url, bool activated)
    {
        scheme.setCurrentIndex(url.scheme() == QStringLiteral("sftp") ? 1 : 0);
        host.setText(url.host(QUrl::FullyDecoded));
        user.setText(url.userName(QUrl::FullyDecoded));
        password.setText(url.password(QUrl::FullyDecoded));
        path.setText(url.path(QUrl::FullyDecoded));
        active.setChecked(activated);
        const std::initializer_list<QWidget *> controls = {&erase,    &host, &port, &user,
                                                           &password, &path, &check};
        for (QWidget *control : controls) {
            control->setEnabled(activated);
        }
    }

private:
    void addRow(const char *text, QWidget *field)
    {
        auto *label = new QLabel(QString::fromLatin1(text), this);
        label->setBuddy(field);
        grid.addWidget(label, row, 0);
        grid.addWidget(field, row, 2);
        ++row;
    }

    void addServerRow()
    {
        auto *line = new QHBoxLayout();
        scheme.addItem(QStringLiteral("FTP"), QStringLiteral("ftp"));
        scheme.addItem(QStringLiteral("SFTP"), QStringLiteral("sftp"));
        line->addWidget(&scheme);
        line->addWidget(&host);
        grid.addWidget(new QLabel(QStringLiteral("Host"), this), row, 0);
        grid.addLayout(line, row, 2);
        ++row;
    }

    void setUpProgress()
    {
        check.ensurePolished();
        movie.setFileName(QCoreApplication::applicationDirPath()
                          + QStringLiteral("/../Resources/Images/ajax-loader.gif"));
        movie.setScaledSize(QSize(check.height(), check.height()));
        progress.hide();
        connect(&check, &QPushButton::clicked, this, [this] { progress.setMovie(&movie); });
        connect(&active, &QCheckBox::clicked, this, [this](bool on) { host.setEnabled(on); });
        connect(&scheme, &QComboBox::currentIndexChanged, this,
                [this](int index) { port.setValue(index == 0 ? 21 : 22); });
    }

    QGridLayout grid{this};
    int row = 0;
    QCheckBox active{this};
    QComboBox scheme{this};
    QLineEdit host{this};
    QSpinBox port{this};
    QLineEdit user{this};
    QLineEdit password{this};
    QLineEdit path{this};
    QCheckBox erase{this};
    QPushButton check{QStringLiteral("Check Connection"), this};
    QLabel progress{this};
    QMovie movie{QString(), "GIF"};
};

class PlainDialog : public QDialog
{
public:
    PlainDialog()
    {
        setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
        setWindowModality(Qt::WindowModal);
        setWindowTitle(QStringLiteral("FTP Import Dialog"));
        resize(400, 300);
        QFont font = title.font();
        font.setBold(true);
        title.setFont(font);
        layout.addWidget(&title);
        layout.addWidget(&panel);
        layout.addWidget(&buttons);
        panel.load(QUrl(), false);
        connect(&buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(&buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    }

private:
    QVBoxLayout layout{this};
    QLabel title{QStringLiteral("Import"), this};
    PlainPanel panel{this};
    QDialogButtonBox buttons{QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this};
};

struct OurDialog : FTPConfigurationDialog
{
    OurDialog()
        : FTPConfigurationDialog({}, QStringLiteral("Import"), true)
    { }
};

template<class Widget>
void construct(benchmark::State &state)
{
    for (auto step : state) {
        Widget widget;
        benchmark::DoNotOptimize(&widget);
    }
}

/// From nothing to the first picture, as a user waits for it.
template<class Widget>
void constructAndPaint(benchmark::State &state)
{
    for (auto step : state) {
        Widget widget;
        benchmark::DoNotOptimize(widget.grab());
    }
}

} // namespace

BENCHMARK(construct<FTPConfigurationWidget>)
    ->Name("ConstructPanel/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(construct<PlainPanel>)->Name("ConstructPanel/plain Qt")->Unit(benchmark::kMicrosecond);

BENCHMARK(construct<OurDialog>)->Name("ConstructDialog/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(construct<PlainDialog>)->Name("ConstructDialog/plain Qt")->Unit(benchmark::kMicrosecond);

BENCHMARK(constructAndPaint<OurDialog>)->Name("PaintDialog/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(constructAndPaint<PlainDialog>)
    ->Name("PaintDialog/plain Qt")
    ->Unit(benchmark::kMillisecond);
