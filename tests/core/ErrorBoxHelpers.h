#pragma once

#include "TXDisplayErrorMessageBox.h"

#include "DialogDriver.h"
#include "TXError.h"

#include <memory>

/// What the tests of TXDisplayErrorMessageBox share.
namespace ErrorBoxTest {

inline TXError described(const QString &description)
{
    TXError error;
    error.setDescription(TXStringI18n::fromString(description));
    return error;
}

inline TXError failedCopy()
{
    TXError error = described(QStringLiteral("The copy failed"));
    error.domain = QStringLiteral("Files");
    error.code = 12;
    error.subErrors = {described(QStringLiteral("The disk is full")),
                       described(QStringLiteral("The folder is locked"))};
    return error;
}

/// What a box looked like while it was open.
struct Shown
{
    int count = 0;
    QString title;
    QString text;
    QString details;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
    qsizetype numberOfButtons = 0;
    bool hasDefaultButton = false;
    const QWidget *parent = nullptr;
};

inline Shown describe(const QMessageBox &box)
{
    return {1,
            box.windowTitle(),
            box.text(),
            box.detailedText(),
            box.icon(),
            box.standardButtons(),
            box.buttons().size(),
            box.defaultButton() != nullptr,
            box.parentWidget()};
}

/// Answers the next box and returns where its looks will be.
inline std::shared_ptr<Shown> expectBox(DialogDriver &driver, QMessageBox::StandardButton button)
{
    auto shown = std::make_shared<Shown>();
    driver.expectMessageBox([shown, button](QMessageBox &box) {
        *shown = describe(box);
        DialogDriver::click(box.button(button));
    });
    return shown;
}

inline Shown showComplete(const TXError &error, ErroMessageBoxType type = ErroMessageBoxWarning,
                          QWidget *parent = nullptr)
{
    DialogDriver driver;
    const auto shown = expectBox(driver, QMessageBox::Ok);
    TXDisplayCompletErrorMessageBox(error, type, parent);
    return *shown;
}

} // namespace ErrorBoxTest
