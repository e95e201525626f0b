#pragma once

#include <QListWidget>

/// The files beside the program, to be dragged out, one or several at once.
class FilesToDrag final : public QListWidget
{
    Q_OBJECT

public:
    /// More files than that are not listed.
    static constexpr int kMaximumFiles = 200;

    /// Lists the files below the folder, sorted by their path in it, in which case does not count.
    /// A folder that is missing is an empty list.
    explicit FilesToDrag(const QString &folderPath, QWidget *parent = nullptr);

    /// The selected files, in the order of the list.
    [[nodiscard]] QList<QUrl> selectedUrls() const;

protected:
    /// The URLs of the files, in the order of the list.
    [[nodiscard]] QMimeData *mimeData(const QList<QListWidgetItem *> &items) const override;
};
