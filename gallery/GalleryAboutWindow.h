#pragma once

#include "AboutAppWindow.h"

/// The gallery's own About window.
class GalleryAboutWindow final : public AboutAppWindow
{
    Q_OBJECT

public:
    /// What stands behind the version: nothing, or the Qt that the gallery runs with.
    enum class Version { Plain, WithQt };

    explicit GalleryAboutWindow(Version version, QWidget *parent = nullptr);

    /// Where the legal notices are, beside the program.
    [[nodiscard]] static QString noticesPath();

    [[nodiscard]] QPixmap applicationLogo() const override;
    [[nodiscard]] QString applicationName() const override;
    [[nodiscard]] QString applicationVersion() const override;
    [[nodiscard]] QString applicationVersionDetail() const override;
    [[nodiscard]] QString applicationCopyrightStartYear() const override;
    [[nodiscard]] QString patentFileName() const override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void choosePlate();

    Version version;
};
