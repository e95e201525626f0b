#pragma once

#include "GalleryPanel.h"

class QCheckBox;
class QComboBox;
class QLabel;
class TXUnfolderWidget;

/// Settings of a colour conversion that fold away: TXUnfolderWidget, with a note in it that the
/// host may hide for good.
class FoldingPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit FoldingPanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void showConversion();
    void hideOrShowNote();

private:
    void setUpSettings();
    void setUpLayout();

    TXUnfolderWidget *unfolder;
    QLabel *intentLabel;
    QComboBox *intentBox;
    QCheckBox *blackPointBox;
    QCheckBox *paperBox;
    QLabel *note;
    QLabel *conversion;
    QCheckBox *keepHiddenBox;
};
