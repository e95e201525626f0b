#pragma once

#include "TXGUICommonExport.h"

#include <QTranslator>

class QCoreApplication;

/// A translator that belongs to the application object and to a shared pointer at the same time.
///
/// It is a child of the application as long as that lives. When the application goes first, the
/// translator leaves it and stays with the pointer, so that it is deleted once and whoever holds
/// the pointer can still use it. Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT ApplicationTranslator : public QTranslator
{
    Q_OBJECT

public:
    /// Makes a child of the application, which must not be null, without installing it.
    explicit ApplicationTranslator(QCoreApplication *application);

private slots:
    void leaveApplication();
};
