#include "ReceivedMailsPanel.h"

#include "ColumnTitles.h"
#include "MailSubject.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace {

enum Column {
    FromColumn,
    ToColumn,
    SubjectColumn,
    TlsColumn,
    LoginColumn,
};

enum Role {
    ContentRole = Qt::UserRole,
    TlsRole,
};

constexpr int kAddressWidth = 90;
constexpr int kFlagWidth = 44;
constexpr int kListWidth = 400;
constexpr int kListHeight = 180;
constexpr int kListShare = 8;
constexpr int kContentShare = 5;

} // namespace

ReceivedMailsPanel::ReceivedMailsPanel(QWidget *parent)
    : GalleryPanel(parent)
    , list(new QTreeWidget(this))
    , listLabel(new QLabel(this))
    , contentLabel(new QLabel(this))
    , content(new QPlainTextEdit(this))
    , clearButton(new QPushButton(this))
{
    setUpList();
    content->setReadOnly(true);
    content->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    content->setLineWrapMode(QPlainTextEdit::NoWrap);
    content->setTabChangesFocus(true);
    contentLabel->setBuddy(content);
    content->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    listLabel->setBuddy(list);
    setUpLayout();
    retranslate();
    connect(list, SIGNAL(itemSelectionChanged()), this, SLOT(showContent()));
    connect(clearButton, SIGNAL(clicked()), this, SLOT(clear()));
}

void ReceivedMailsPanel::addMail(const ReceivedMail &mail)
{
    if (list->topLevelItemCount() >= kMaximumMails) {
        delete list->takeTopLevelItem(0);
    }
    auto *item = new QTreeWidgetItem(list);
    item->setText(FromColumn, mail.sender);
    item->setText(ToColumn, mail.receivers.join(QStringLiteral(", ")));
    item->setText(SubjectColumn, mailSubject(mail.content));
    item->setText(LoginColumn, mail.login);
    item->setData(TlsColumn, TlsRole, mail.usedTls);
    item->setData(FromColumn, ContentRole, mail.content);
    showTexts(item);
    list->setCurrentItem(item);
    list->scrollToItem(item);
}

void ReceivedMailsPanel::clear()
{
    list->clear();
    showContent();
}

void ReceivedMailsPanel::retranslate()
{
    setTitle(tr("Received mails"));
    listLabel->setText(tr("&Mails:"));
    list->setAccessibleName(tr("Received mails"));
    list->setHeaderLabels({tr("From"), tr("To"), tr("Subject"), tr("TLS"), tr("Login")});
    giveColumnTitlesRoom(list->header());
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        showTexts(list->topLevelItem(row));
    }
    contentLabel->setText(tr("As it cam&e:"));
    setButtonText(clearButton, tr("Clea&r"));
}

void ReceivedMailsPanel::showContent()
{
    const QList<QTreeWidgetItem *> selected = list->selectedItems();
    const QByteArray bytes = selected.isEmpty()
        ? QByteArray()
        : selected.first()->data(FromColumn, ContentRole).toByteArray();
    content->setPlainText(QString::fromUtf8(bytes));
    clearButton->setEnabled(list->topLevelItemCount() > 0);
}

void ReceivedMailsPanel::showTexts(QTreeWidgetItem *item) const
{
    item->setText(TlsColumn, item->data(TlsColumn, TlsRole).toBool() ? tr("yes") : tr("no"));
    for (const int column : {FromColumn, ToColumn, SubjectColumn, LoginColumn}) {
        item->setToolTip(column, item->text(column));
    }
}

void ReceivedMailsPanel::setUpList()
{
    list->setRootIsDecorated(false);
    list->setAlternatingRowColors(true);
    list->setUniformRowHeights(true);
    list->header()->setStretchLastSection(false);
    list->setColumnCount(LoginColumn + 1);
    list->header()->setSectionResizeMode(SubjectColumn, QHeaderView::Stretch);
    list->setColumnWidth(FromColumn, kAddressWidth);
    list->setColumnWidth(ToColumn, kAddressWidth);
    list->setColumnWidth(TlsColumn, kFlagWidth);
    list->setColumnWidth(LoginColumn, kFlagWidth);
    list->setMinimumSize(kListWidth, kListHeight);
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
}

void ReceivedMailsPanel::setUpLayout()
{
    auto *grid = new QGridLayout(this);
    setGaps(grid);
    grid->addWidget(listLabel, 0, 0);
    grid->addWidget(contentLabel, 0, 1);
    grid->addWidget(clearButton, 0, 2, Qt::AlignRight);
    grid->addWidget(list, 1, 0);
    grid->addWidget(content, 1, 1, 1, 2);
    grid->setColumnStretch(0, kListShare);
    grid->setColumnStretch(1, kContentShare);
    grid->setRowStretch(1, 1);
    clearButton->setEnabled(false);
}
