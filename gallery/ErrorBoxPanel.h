#pragma once

#include "GalleryPanel.h"

#include <array>

class QButtonGroup;
class QLabel;
class QPushButton;

/// The eight buttons for the boxes in which an error can be shown: four kinds in two forms.
class ErrorBoxPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit ErrorBoxPanel(QWidget *parent = nullptr);

signals:
    /// Emitted when a button was clicked. The kind is a value of ErroMessageBoxType.
    void boxWanted(int kind, bool withDetails);

protected:
    void changeEvent(QEvent *event) override;
    void retranslate() override;

private slots:
    void buttonClicked(int id);

private:
    static constexpr int kKinds = 4;

    void setUpLayout();
    void showIcons();

    QButtonGroup *group;
    std::array<QPushButton *, kKinds> shortButtons = {};
    std::array<QPushButton *, kKinds> detailButtons = {};
    QLabel *shortLabel;
    QLabel *detailLabel;
    QLabel *shortNote;
    QLabel *detailNote;
};
