#pragma once

#include "GalleryPage.h"

class FeedbackFieldsPanel;
class FeedbackFormPanel;
class FeedbackServicePanel;
class FeedbackSessionPanel;
class TXFeedbackDialog;

/// The form with which a user writes to the makers of a program, beside a real feedback service on
/// this computer.
class FeedbackPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit FeedbackPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    void fillForPicture() override;

protected:
    void retranslate() override { }

private slots:
    void passOnFields();
    void follow(TXFeedbackDialog *dialog);

private:
    void setUpLayout();

    FeedbackServicePanel *servicePanel;
    FeedbackFormPanel *formPanel;
    FeedbackFieldsPanel *fieldsPanel;
    FeedbackSessionPanel *sessionPanel;
};
