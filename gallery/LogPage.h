#pragma once

#include "GalleryPage.h"
#include "MessageLog.h"

#include <QSharedPointer>

class LogPreview;
class QGroupBox;
class QLabel;
class QPushButton;
class ScanPanel;
class TXLogItem;
class TXLogManager;
class TXLogWindow;

/// The log of the gallery itself: Qt's messages, TXLogPrint(), and a job that writes to it from
/// several threads, with TXLogWindow over it.
class LogPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit LogPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    void startByItself() override;
    void fillForPicture() override;
    [[nodiscard]] bool isReady() const override { return !isFilling; }
    [[nodiscard]] QList<GalleryFurtherWindow> furtherWindows() override;

protected:
    void retranslate() override;

private slots:
    void openLogWindow();
    void writeInformation();
    void writeWarning();
    void writeError();
    void writeQtWarning();
    void scanLogged(QSharedPointer<TXLogItem> lastEntry);
    void entryShown(QSharedPointer<TXLogItem> entry);

private:
    void setUpLayout();
    void scanShown();
    void writeAllLines();
    void showLogWindow();

    QSharedPointer<TXLogManager> log;
    MessageLog messageLog;
    ScanPanel *scanPanel;
    QGroupBox *lineBox;
    QPushButton *informationButton;
    QPushButton *warningButton;
    QPushButton *errorButton;
    QPushButton *qtWarningButton;
    QLabel *previewLabel;
    LogPreview *preview;
    QPushButton *windowButton;
    TXLogWindow *logWindow;
    QSharedPointer<TXLogItem> awaitedEntry;
    bool isFilling = false;
    int awaitedLines = 0;
};
