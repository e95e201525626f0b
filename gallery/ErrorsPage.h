#pragma once

#include "GalleryPage.h"

class ErrorBoxPanel;
class ErrorComposer;
class ManualPanel;

/// How a failure reaches the user: a composer for errors, the boxes in which the library shows
/// them, and the manual.
class ErrorsPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit ErrorsPage(QWidget *parent = nullptr);
    /// With another manual than the gallery's, named below the folder of the manuals.
    ErrorsPage(const QString &manual, QWidget *parent);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override { }

private slots:
    void showBox(int kind, bool withDetails);

private:
    ErrorComposer *composer;
    ErrorBoxPanel *boxPanel;
    ManualPanel *manualPanel;
};
