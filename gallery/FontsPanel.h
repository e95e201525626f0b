#pragma once

#include "GalleryPanel.h"

#include <QList>

class QGridLayout;
class QLabel;

/// The fonts beside the program, each with a line that is set in it: letters, or the first signs of
/// a font that has none.
class FontsPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    /// Shows the fonts "*.ttf" of the folder, as they are at that moment. They are drawn once the
    /// application has added them; a file that is no font is named as such.
    explicit FontsPanel(const QString &folder, QWidget *parent = nullptr);

protected:
    void retranslate() override;

private:
    struct Row
    {
        QString fileName;
        /// Empty when the file is no font.
        QString family;
        QLabel *name;
        QLabel *specimen;
    };

    void addRow(QGridLayout *grid, const QString &path);

    QString folder;
    QLabel *emptyText;
    QList<Row> rows;
};
