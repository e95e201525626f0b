#pragma once

#include "GalleryPanel.h"

#include <QList>
#include <QUrl>

class FilesToDrag;
class LineEditDrapAndDrop;
class QLabel;
class QPushButton;

/// A field that takes dropped files, the files of the gallery to drag there, and a button that does
/// the same without a mouse.
class FileDropPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit FileDropPanel(QWidget *parent = nullptr);

    [[nodiscard]] const LineEditDrapAndDrop *dropField() const { return field; }

    /// Puts the first file into the field, as for a picture.
    void fillForPicture();

protected:
    void retranslate() override;

private slots:
    void putSelected();
    void takeFiles(const QList<QUrl> &urls);

private:
    void showTaken();

    QLabel *filesLabel;
    FilesToDrag *files;
    QPushButton *putButton;
    QLabel *fieldLabel;
    LineEditDrapAndDrop *field;
    QLabel *taken;
    int fileCount = 0;
    int remoteCount = 0;
};
