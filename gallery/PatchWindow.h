#pragma once

#include <QMainWindow>

class QSplitter;
class QTableWidget;
class QTreeWidget;

/// A small window of the usual kind: solid colours of a print as measured, in a tree with columns,
/// beside the densities of the inks, with a splitter between them. Each part has the object name
/// under which its state is kept.
class PatchWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /// A window of its own, owned by the parent.
    explicit PatchWindow(QWidget *parent = nullptr);

    /// Gives the window another size, its columns other widths and another order, and the splitter
    /// another place; always the same ones.
    void disarrange();

protected:
    void changeEvent(QEvent *event) override;

private:
    void fillPatches();
    void fillInks();
    void retranslate();

    QSplitter *splitter;
    QTreeWidget *patches;
    QTableWidget *inks;
};
