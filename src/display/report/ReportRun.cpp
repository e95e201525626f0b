#include "ReportRun.h"

#include "ICompletionDelegate.h"
#include "TXError.h"
#include "TXStringI18n.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr float kDonePercent = 100.0F;
/// Where so many pages are there that the share of the next to last would round to all.
constexpr float kNearlyDonePercent = 99.99F;

TXStringI18n pageMessage(int page, int pageCount)
{
    return reportText(QT_TRANSLATE_NOOP("TXReportDocument", "Page %1 of %2"))
        .arg(QString::number(page + 1))
        .arg(QString::number(pageCount));
}

} // namespace

TXStringI18n reportText(const char *source)
{
    return {"TXReportDocument", source, nullptr, -1};
}

bool ReportRunState::start()
{
    Phase before = Idle;
    if (phase.compare_exchange_strong(before, Running)) {
        return true;
    }
    return before == Cancelled && phase.compare_exchange_strong(before, Running);
}

void ReportRunState::cancel()
{
    Phase before = Running;
    phase.compare_exchange_strong(before, Cancelling);
}

bool ReportRunState::isCancelled() const
{
    const Phase now = phase;
    return now == Cancelling || now == Cancelled;
}

bool ReportRunState::closeForCancelling()
{
    Phase before = Running;
    return phase.compare_exchange_strong(before, Closing);
}

void ReportRunState::finish(bool asCancelled)
{
    phase = asCancelled ? Cancelled : Idle;
}

ReportRun::ReportRun(ReportRunState *state, const QString &title, ICompletionDelegate *delegate,
                     TXError *error)
    : state(state)
    , error(error)
    , isStarted(state->start())
    , delegate(isStarted ? delegate : nullptr)
{
    if (!title.isEmpty()) {
        path.append(title);
    }
    tellProgress(0.0F);
    if (!isStarted) {
        fail(reportText(QT_TRANSLATE_NOOP("TXReportDocument",
                                          "The report is being written or printed already.")));
    }
}

ReportRun::~ReportRun()
{
    tellProgress(kDonePercent);
    if (isStarted) {
        state->finish(!hasFailed && state->isCancelled());
    }
}

bool ReportRun::isGoingOn() const
{
    return !hasFailed && !state->isCancelled();
}

bool ReportRun::beginPage(int page, int pageCount)
{
    if (isGoingOn() && delegate != nullptr) {
        delegate->onMessageUpdated(path, pageMessage(page, pageCount));
    }
    return isGoingOn();
}

void ReportRun::endPage(int page, int pageCount)
{
    if (page + 1 < pageCount) {
        const double share = double(page + 1) / pageCount;
        tellProgress(std::min(float(share * kDonePercent), kNearlyDonePercent));
    }
}

bool ReportRun::close()
{
    return !hasFailed && state->closeForCancelling();
}

void ReportRun::fail(const TXStringI18n &reason)
{
    if (hasFailed) {
        return;
    }
    hasFailed = true;
    TXError failure;
    failure.domain = QStringLiteral("ReportErrorDomain");
    failure.setDescription(reason);
    if (error != nullptr) {
        *error = failure;
    }
    if (delegate != nullptr) {
        delegate->onLogAppended(path, failure);
    }
}

void ReportRun::tellProgress(float percent)
{
    if (delegate != nullptr) {
        delegate->onProgressionUpdated(path, percent);
    }
}
