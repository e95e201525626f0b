#pragma once

#include "GalleryPanel.h"

#include <QHash>
#include <QVariant>

class PatchWindow;
class QLabel;
class QPushButton;
class WidgetStateTree;

/// The state of a whole window, its splitter and its columns, saved with one call of
/// TXWidgetUtilities and given back with another.
class WidgetStatePanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit WidgetStatePanel(QWidget *parent = nullptr);

    /// The window whose state is saved; hidden until the user opens it. Owned by the panel.
    [[nodiscard]] PatchWindow *stateWindow() const { return patchWindow; }

public slots:
    void openWindow();
    void saveState();
    void disarrange();
    void restoreState();

protected:
    void retranslate() override;

private:
    void setUpLayout();

    PatchWindow *patchWindow;
    QHash<QString, QVariant> state;

    QLabel *text;
    QPushButton *openButton;
    QPushButton *saveButton;
    QPushButton *disarrangeButton;
    QPushButton *restoreButton;
    QLabel *treeLabel;
    WidgetStateTree *tree;
};
