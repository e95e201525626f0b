#pragma once

#include "TXGUICommonExport.h"

#include <QPointer>
#include <QVariantHash>
#include <QWidget>

#include <memory>

class QNetworkReply;
class TXError;

namespace Ui {
class TXFeedbackWidget;
}

/// The form with which a user sends a note to the makers of the application, by way of the feedback
/// service of this computer, "http://127.0.0.1:5050/feedback". Take TXFeedbackDialog for a window
/// of its own.
///
/// "Submit" checks the fields, asks, and posts one part of form data named "content": a JSON object
/// of what the host adds (setExtraFields()) and of the keys "SenderName", "SenderEMailAddress",
/// "SenderCompany", "Subject" and "Description". The address is checked but stays here: the service
/// gets the name in its place. The form waits for the answer however long it takes, painted, with
/// the program deaf to the user: keys and clicks are dropped meanwhile, only windows can be closed.
/// It tells of a failure by itself and keeps what was entered. An answer counts as accept() tells.
///
/// A service that hangs up before it has answered may get the same note up to four times, since Qt
/// sends a request again whose connection was lost; and a redirection is followed wherever it
/// leads.
///
/// The exchange is broken off, without a word to the user, by the end of the application's event
/// loop, by closing or hiding the window that the form is in, and by deleting the form, which may
/// be done at any time. Whether the note has reached the service is not known then.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXFeedbackWidget : public QWidget
{
    Q_OBJECT

public:
    /// Empty fields, nothing added.
    explicit TXFeedbackWidget(QWidget *parent = nullptr);
    ~TXFeedbackWidget() override;

    /// What travels with each note from now on, besides the fields of the form, whose keys count
    /// more. Values that JSON does not have go as TXJSONSerializer writes them; an entry nested too
    /// deep for it stays behind. Empty by default.
    void setExtraFields(const QVariantHash &fields);

    /// Whether the form can be submitted. Otherwise, and unless it is null, the error gets the code
    /// 0 and a description of the first field that is wrong, in the order name, company, subject,
    /// description, address; its domain stays. Blanks count as content; an address needs a "@" and
    /// a "." anywhere. On success the error stays as it is.
    bool isValid(TXError *error) const;

signals:
    /// The user has pressed "Cancel".
    void reject();
    /// The service has answered without an error, and data that arrived after the first look at the
    /// answer is a JSON object whose "result" is true. An answer that is complete at the first
    /// look, which is the usual one, is told to the user as a failure and does not emit this.
    void accept();

public slots:
    /// What "Submit" does. Returns when the exchange has ended, with all message boxes closed; a
    /// call before that does nothing. Nothing is sent unless the user confirms with "Yes".
    void treatSubmitClick();

protected:
    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

    /// Breaks off the exchange when the window is closed or hidden.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static void describe(const char *message, TXError *error);
    void submit();
    [[nodiscard]] bool confirmsSubmission();
    /// What is sent, before it becomes JSON.
    [[nodiscard]] QVariantHash note() const;
    void send();
    void breakOff();
    void report(QNetworkReply &reply);
    void reportError(QNetworkReply &reply);

    std::unique_ptr<Ui::TXFeedbackWidget> ui;
    QVariantHash extraFields;
    bool isSubmitting = false;
    /// The one that is waited for; null for none and for one that was broken off.
    QPointer<QNetworkReply> runningReply;
};
