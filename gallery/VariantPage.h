#pragma once

#include "GalleryPage.h"

class ServiceRequest;
class TXStringI18n;
class UpdateServicePanel;
class ValuePanel;
class ValueSourcePanel;

/// A value as one line of text that folds open: the gallery's settings, a JSON file of the user's
/// choice, or the answer of a real update service on this computer.
///
/// What is shown stays when the next value cannot be had; the page then tells why.
class VariantPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit VariantPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    void fillForPicture() override;
    [[nodiscard]] bool isReady() const override { return !isFilling; }

protected:
    void retranslate() override { }

    /// Reads the settings again when they are what is shown, and shows them when they have changed.
    /// Not while an answer is waited for.
    void showEvent(QShowEvent *event) override;

private slots:
    void showSettings();
    void chooseFile();
    void askService();
    void showAnswer(const QVariant &answer);
    void showFailure(const TXStringI18n &reason, const TXStringI18n &detail);
    void endFilling();

private:
    void setValue(const QVariant &value, const TXStringI18n &source);
    void setUpLayout();

    ValueSourcePanel *sourcePanel;
    UpdateServicePanel *servicePanel;
    ValuePanel *valuePanel;
    ServiceRequest *request;
    // The settings are what is shown; so it is from the beginning.
    bool isOfSettings = true;
    bool isFilling = false;
};
