#include "FeedbackFieldsPanel.h"

#include "GalleryAppearance.h"
#include "JsonText.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>

#include <memory>

namespace {

constexpr int kNameColumn = 0;
constexpr int kValueColumn = 1;
constexpr int kColumns = 2;
constexpr int kTableHeight = 90;

struct ProgramField
{
    QString name;
    QString value;
};

/// What the makers of a program would like to know of the one that runs.
QList<ProgramField> programFields(const QPalette &palette)
{
    return {{QStringLiteral("Application"), QCoreApplication::applicationName()},
            {QStringLiteral("Version"), QCoreApplication::applicationVersion()},
            {QStringLiteral("Page"), QStringLiteral("feedback")},
            {QStringLiteral("Palette"), galleryColoursName(shownGalleryColours(palette))},
            {QStringLiteral("Style"), galleryStyleName()},
            {QStringLiteral("Qt"), QString::fromLatin1(qVersion())}};
}

} // namespace

FeedbackFieldsPanel::FeedbackFieldsPanel(QWidget *parent)
    : GalleryPanel(parent)
    , table(new QTableWidget(0, kColumns, this))
    , addButton(new QPushButton(this))
    , removeButton(new QPushButton(this))
{
    setUpTable();
    setUpLayout();
    retranslate();
    connect(addButton, SIGNAL(clicked()), this, SLOT(addField()));
    connect(removeButton, SIGNAL(clicked()), this, SLOT(removeField()));
    connect(table, SIGNAL(itemChanged(QTableWidgetItem *)), this, SIGNAL(fieldsChanged()));
    connect(table, SIGNAL(currentCellChanged(int, int, int, int)), this, SLOT(showButtons()));
    showButtons();
}

QVariantHash FeedbackFieldsPanel::fields() const
{
    QVariantHash fields;
    for (int row = 0; row < table->rowCount(); ++row) {
        const QString name = text(row, kNameColumn);
        const QString value = text(row, kValueColumn);
        if (!name.isEmpty()) {
            const QVariant meant = readJsonText(value.toUtf8()).value;
            fields.insert(name, meant.isValid() ? meant : value);
        }
    }
    return fields;
}

void FeedbackFieldsPanel::changeEvent(QEvent *event)
{
    GalleryPanel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        refreshValues();
    }
}

void FeedbackFieldsPanel::retranslate()
{
    setTitle(tr("Extra fields of the program"));
    table->setHorizontalHeaderLabels({tr("Name"), tr("Value")});
    table->setAccessibleName(title());
    setButtonText(addButton, tr("Add F&ield"));
    setButtonText(removeButton, tr("Re&move Field"));
}

void FeedbackFieldsPanel::addField()
{
    appendRow(QString(), QString());
    table->setCurrentCell(table->rowCount() - 1, kNameColumn);
    table->setFocus();
    table->editItem(table->currentItem());
}

void FeedbackFieldsPanel::removeField()
{
    table->removeRow(table->currentRow());
    showButtons();
    emit fieldsChanged();
}

void FeedbackFieldsPanel::showButtons()
{
    removeButton->setEnabled(table->currentRow() >= 0);
}

void FeedbackFieldsPanel::appendRow(const QString &name, const QString &value)
{
    const int row = table->rowCount();
    table->insertRow(row);
    table->setItem(row, kNameColumn, std::make_unique<QTableWidgetItem>(name).release());
    table->setItem(row, kValueColumn, std::make_unique<QTableWidgetItem>(value).release());
}

/// Rows that the user has renamed, changed or taken away stay as they are.
void FeedbackFieldsPanel::refreshValues()
{
    const QList<ProgramField> current = programFields(palette());
    for (const ProgramField &field : current) {
        const auto found = table->findItems(field.name, Qt::MatchExactly | Qt::MatchCaseSensitive);
        for (const QTableWidgetItem *name : found) {
            QTableWidgetItem *value = table->item(name->row(), kValueColumn);
            if (name->column() == kNameColumn && value->text() == programValues.value(field.name)) {
                value->setText(field.value);
            }
        }
        programValues.insert(field.name, field.value);
    }
}

QString FeedbackFieldsPanel::text(int row, int column) const
{
    const QTableWidgetItem *item = table->item(row, column);
    return item ? item->text() : QString();
}

void FeedbackFieldsPanel::setUpTable()
{
    const QList<ProgramField> current = programFields(palette());
    for (const ProgramField &field : current) {
        appendRow(field.name, field.value);
        programValues.insert(field.name, field.value);
    }
    table->setTabKeyNavigation(false);
    table->setMinimumHeight(kTableHeight);
    table->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    table->setSelectionMode(QTableWidget::SingleSelection);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setStretchLastSection(true);
}

void FeedbackFieldsPanel::setUpLayout()
{
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(addButton);
    buttons->addWidget(removeButton);
    buttons->addStretch();

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(table, 1);
    rows->addLayout(buttons);
}
