#pragma once

#include "GalleryPanel.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class TXSelectionItemWidget;

/// What a host can choose about its selection bar. Label and names are set on the bar at once.
class SelectionBarOptions final : public GalleryPanel
{
    Q_OBJECT

public:
    /// The bar, not owned, outlives the panel's last event.
    explicit SelectionBarOptions(TXSelectionItemWidget *bar, QWidget *parent = nullptr);

signals:
    /// The user wants the import in the box, or else in the menu.
    void importInBoxChanged(bool isInBox);

protected:
    void retranslate() override;

private slots:
    void allowNames(bool isAllowed);
    void showLabel(bool isShown);
    void setLabel(const QString &text);

private:
    void setUpLayout();

    TXSelectionItemWidget *bar;
    QLabel *importLabel;
    QRadioButton *boxButton;
    QRadioButton *menuButton;
    QCheckBox *namesBox;
    QCheckBox *labelBox;
    QLineEdit *labelEdit;
};
