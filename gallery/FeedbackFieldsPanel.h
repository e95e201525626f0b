#pragma once

#include "GalleryPanel.h"

#include <QHash>
#include <QString>
#include <QVariantHash>

class QTableWidget;

/// The values that the gallery, as the host, sends with each note: about the running program from
/// the beginning, to be changed by the user.
///
/// What the user has not changed follows the program, as its palette.
class FeedbackFieldsPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit FeedbackFieldsPanel(QWidget *parent = nullptr);

    /// What the table says. A value that is a JSON text, such as 12 or [1, 2], is what that means,
    /// any other one a text. Rows without a name do not count; of rows with the same name the last
    /// one does.
    [[nodiscard]] QVariantHash fields() const;

signals:
    /// fields() may have changed.
    void fieldsChanged();

protected:
    void changeEvent(QEvent *event) override;
    void retranslate() override;

private slots:
    void addField();
    void removeField();
    void showButtons();

private:
    void appendRow(const QString &name, const QString &value);
    void refreshValues();
    [[nodiscard]] QString text(int row, int column) const;
    void setUpTable();
    void setUpLayout();

    QTableWidget *table;
    QPushButton *addButton;
    QPushButton *removeButton;
    // What the program's own rows said last, to tell what the user has changed.
    QHash<QString, QString> programValues;
};
