#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

/// The row that a job on folders begins with: which folders, start and cancel.
///
/// What is disabled while the job runs hands the keyboard's focus on to Cancel, and Cancel to Start
/// at the end.
class FolderJobBar final : public QWidget
{
    Q_OBJECT

public:
    /// What a user reads on it; the first four may have a mnemonic.
    struct Texts
    {
        QString folder;
        QString browse;
        QString start;
        QString cancel;
        /// Title of the dialog behind "browse".
        QString dialogTitle;
    };

    /// Names the user's own folder at first.
    explicit FolderJobBar(QWidget *parent = nullptr);

    /// Sets all texts.
    void retranslate(const Texts &texts);

    /// Which folders, as the user would type them: absolute, or relative to the program's folder,
    /// several with the system's list separator between them.
    void setFolders(const QString &text);

    /// The folders, absolute and without those named by blanks only. None of them need exist.
    [[nodiscard]] QStringList paths() const;

    /// Whether the job runs: then only Cancel is enabled, else all but Cancel.
    void setRunning(bool isRunning);

signals:
    /// The user wants the job to start.
    void startWanted();
    /// The user wants it to end.
    void cancelWanted();

private slots:
    void browse();

private:
    void setUpLayout();

    QLabel *folderLabel;
    QLineEdit *folderEdit;
    QPushButton *browseButton;
    QPushButton *startButton;
    QPushButton *cancelButton;
    QString dialogTitle;
};
