#pragma once

#include "GalleryPage.h"

class LockPanel;
class LockedArea;
class PasswordFieldPanel;
class QDialog;

/// The lock of the user interface, with a part of the page that really locks, and the password
/// line edit beside a plain one.
class AccessPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit AccessPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    void fillForPicture() override;
    [[nodiscard]] QList<GalleryFurtherWindow> furtherWindows() override;

protected:
    void retranslate() override { }

private slots:
    void lock();

private:
    GalleryFurtherWindow showBeside(const QString &name, QDialog *dialog);

    LockPanel *lockPanel;
    LockedArea *area;
    PasswordFieldPanel *fieldPanel;
};
