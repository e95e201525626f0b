#pragma once

#include "TXGUICommonExport.h"

#include <QCoreApplication>
#include <QString>

/// What the mail panel's test mail says, in the language of the moment. Without an application
/// object the texts name the publisher's own product. Holds no state; any thread.
class TXGUICOMMON_PRIVATE_EXPORT TestMailText
{
    Q_DECLARE_TR_FUNCTIONS(EMailSenderWidget)

public:
    /// Four lines, ended by CR LF but for the last, which is the publisher's web address.
    static QString body();

    static QString subject();
};
