#include "ReceivedMailsPanel.h"

#include "MailSubject.h"

#include <QFontDatabase>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

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

constexpr int kAddressWidth = 112;
constexpr int kFlagWidth = 44;
constexpr int kListRows = 5;

} // namespace

ReceivedMailsPanel::ReceivedMailsPanel(QWidget *parent)
    : GalleryPanel(parent)
    , list(new QTreeWidget(this))
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
    list->setAccessibleName(title());
    list->setHeaderLabels({tr("From"), tr("To"), tr("Subject"), tr("TLS"), tr("Login")});
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        showTexts(list->topLevelItem(row));
    }
    contentLabel->setText(tr("As it c&ame:"));
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
    list->setFixedHeight(list->header()->sizeHint().height()
                         + kListRows * (fontMetrics().height() + 2) + 2 * list->frameWidth());
}

void ReceivedMailsPanel::setUpLayout()
{
    auto *contentRow = new QHBoxLayout;
    contentRow->addWidget(contentLabel);
    contentRow->addStretch();
    contentRow->addWidget(clearButton);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(list);
    rows->addLayout(contentRow);
    rows->addWidget(content, 1);
    clearButton->setEnabled(false);
}
