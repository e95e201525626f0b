#pragma once

#include "GalleryPanel.h"

class QComboBox;
class QFileSystemModel;
class QGridLayout;
class QLabel;
class QPushButton;
class TXComboBox;
class TXComboBoxEditable;
class TXTreeComboBox;

/// The three combo boxes at work, each beside the same disabled: conditions of measurement with
/// their tooltips and separators by TXComboSeparatorDrawDelegate, papers that are renamed in place,
/// and the folders of this computer as a tree.
class ComboBoxPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit ComboBoxPanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;
    /// Return, which comes up from the box of the papers, ends the renaming.
    void keyPressEvent(QKeyEvent *event) override;

private slots:
    void startRenaming();
    void takeName();
    void noteFocusLost();
    void showTooltip();
    void showFolder();

private:
    void fillConditions(TXComboBox *box) const;
    void setUpFolders();
    void setUpLayout();
    void addRow(QGridLayout *grid, QLabel *caption, QComboBox *box, QComboBox *disabled);
    void showFocusLosses();
    void nameAll();

    QFileSystemModel *folders;
    QLabel *enabledHeading;
    QLabel *disabledHeading;
    QLabel *conditionLabel;
    TXComboBox *conditionBox;
    TXComboBox *conditionDisabled;
    QLabel *conditionText;
    QLabel *paperLabel;
    TXComboBoxEditable *paperBox;
    TXComboBoxEditable *paperDisabled;
    QPushButton *renameButton;
    QLabel *paperText;
    QLabel *folderLabel;
    TXTreeComboBox *folderBox;
    TXTreeComboBox *folderDisabled;
    QLabel *folderText;
    int focusLosses = 0;
};
