#include "FtpSessionPanel.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

constexpr int kListHeight = 70;

/// The value's name in the source, which is what a developer looks for.
QString nameOf(FTPConfigurationWidget::FtpStatus status)
{
    switch (status) {
    case FTPConfigurationWidget::FtpOk:
        return QStringLiteral("FtpOk");
    case FTPConfigurationWidget::FtpLoginError:
        return QStringLiteral("FtpLoginError");
    case FTPConfigurationWidget::FtpHostError:
        return QStringLiteral("FtpHostError");
    }
    return QString::number(status);
}

} // namespace

FtpSessionPanel::FtpSessionPanel(QWidget *parent)
    : GalleryPanel(parent)
    , commandsLabel(new QLabel(this))
    , commands(makeList(commandsLabel))
    , emissionsLabel(new QLabel(this))
    , emissions(makeList(emissionsLabel))
    , clearButton(new QPushButton(this))
{
    setUpLayout();
    retranslate();
    connect(clearButton, SIGNAL(clicked()), commands, SLOT(clear()));
    connect(clearButton, SIGNAL(clicked()), emissions, SLOT(clear()));
}

void FtpSessionPanel::addCommand(const QString &line)
{
    commands->appendPlainText(line);
}

void FtpSessionPanel::addConnectionStatus(FTPConfigurationWidget::FtpStatus status)
{
    emissions->appendPlainText(QStringLiteral("ftpConnectionStatus(%1)").arg(nameOf(status)));
}

void FtpSessionPanel::addFtpStatus(bool isEnabled)
{
    const QString value = isEnabled ? QStringLiteral("true") : QStringLiteral("false");
    emissions->appendPlainText(QStringLiteral("changeFtpStatus(%1)").arg(value));
}

void FtpSessionPanel::retranslate()
{
    setTitle(tr("Session"));
    commandsLabel->setText(tr("What the server &got:"));
    emissionsLabel->setText(tr("Signals of t&he panel:"));
    setButtonText(clearButton, tr("Clea&r"));
}

QPlainTextEdit *FtpSessionPanel::makeList(QLabel *label)
{
    auto *list = new QPlainTextEdit(this);
    list->setReadOnly(true);
    list->setTabChangesFocus(true);
    list->setMaximumBlockCount(kMaximumLines);
    list->setMinimumHeight(kListHeight);
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    list->setLineWrapMode(QPlainTextEdit::NoWrap);
    list->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    label->setBuddy(list);
    return list;
}

void FtpSessionPanel::setUpLayout()
{
    auto *emissionsRow = new QHBoxLayout;
    emissionsRow->addWidget(emissionsLabel);
    emissionsRow->addStretch();
    emissionsRow->addWidget(clearButton);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(commandsLabel);
    rows->addWidget(commands, 3);
    rows->addLayout(emissionsRow);
    rows->addWidget(emissions, 2);
}
