#pragma once

#include "TXGUICommonExport.h"

#include <QStringList>

#include <atomic>

class ICompletionDelegate;
class TXError;
class TXStringI18n;

/// A text of reports for the user, translated when it is shown. Mark the source with
/// QT_TRANSLATE_NOOP("TXReportDocument", ...).
[[nodiscard]] TXStringI18n reportText(const char *source);

/// Whether a report is on its way to paper, and whether somebody wants that to end. Any thread.
class TXGUICOMMON_PRIVATE_EXPORT ReportRunState
{
public:
    /// Starts a run; false when one is going on.
    [[nodiscard]] bool start();
    /// Wants the run to end. Does nothing when there is none or when it can't be stopped any more.
    void cancel();
    /// Whether the run that is going on, or else the last one, was told to end and obeys.
    [[nodiscard]] bool isCancelled() const;
    /// From here on the run can't be stopped. False when it has been told to end already.
    [[nodiscard]] bool closeForCancelling();
    /// Ends the run.
    void finish(bool asCancelled);

private:
    enum Phase { Idle, Running, Cancelling, Closing, Cancelled };

    std::atomic<Phase> phase = Idle;
};

/// One writing or printing of a report: what it tells its delegate and its caller.
///
/// The delegate, unless null, hears 0 at the start, a message and a progress for each page and 100,
/// once, when the run is destroyed.
class TXGUICOMMON_PRIVATE_EXPORT ReportRun
{
    Q_DISABLE_COPY_MOVE(ReportRun)

public:
    /// Starts a run unless one goes on; then it has failed already and only the error is told, as
    /// the delegate may be the one that the other run is talking to. Delegate and error may be
    /// null.
    ReportRun(ReportRunState *state, const QString &title, ICompletionDelegate *delegate,
              TXError *error);
    ~ReportRun();

    /// Whether it goes on: it was started, was not told to end and has not failed.
    [[nodiscard]] bool isGoingOn() const;

    /// Tells that a page, counted from 0, is next; false when the run ends before it.
    [[nodiscard]] bool beginPage(int page, int pageCount);
    /// Tells that the page is done, except for the last one: the run's end tells that.
    void endPage(int page, int pageCount);

    /// Passes the point from which there is no cancelling; false when it was cancelled or failed
    /// before.
    [[nodiscard]] bool close();

    /// Tells why the run has failed. Only the first reason counts.
    void fail(const TXStringI18n &reason);

private:
    void tellProgress(float percent);

    ReportRunState *state;
    QStringList path;
    TXError *error;
    bool isStarted;
    ICompletionDelegate *delegate;
    bool hasFailed = false;
};
