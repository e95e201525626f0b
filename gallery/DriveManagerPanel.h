#pragma once

#include "ExampleDrives.h"
#include "GalleryPanel.h"

#include <QList>

class AutoMountManagerMainWindow;
class QComboBox;
class QLabel;
class QModelIndex;
class SambaServerPanel;

/// The library's window of the network drives, within the page, and buttons that put drives of the
/// local server into its list, in which the drives of the user stand too.
///
/// What was added here goes with the panel, which blocks until it is disconnected, for two seconds
/// at most, and while drives are on their way for two more; the user's drives, and the switch of
/// the window, are left alone.
class DriveManagerPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    /// The server, not null, is to live as long as the panel.
    explicit DriveManagerPanel(const SambaServerPanel *server, QWidget *parent = nullptr);
    ~DriveManagerPanel() override;

    /// The drives that were added here.
    [[nodiscard]] ExampleDrives &drives() { return examples; }

public slots:
    /// Whether there is a server whose drives can be added; false at first.
    void setServerRunning(bool isRunning);

    /// Chooses the share of the next drive. Ignored when the server has none of this name.
    void chooseShare(const QString &share);

protected:
    void retranslate() override;

private slots:
    void addDrive();
    void removeDrives();
    void showFolder();
    void lookAtDrives();
    void drivesEdited(const QModelIndex &first, const QModelIndex &last);
    void drivesRemoved();
    void showMessage();

private:
    enum class Message {
        None,
        Added,
        Edited,
        NoLetter,
        NoFolder,
        NoProgram,
    };

    void connectManager();
    void tell(Message newMessage, const QString &newArgument = {});
    void clearStaleMessage();
    [[nodiscard]] bool isMessageStale() const;
    [[nodiscard]] QString messageText() const;
    void setUpLayout();

    const SambaServerPanel *server;
    AutoMountManagerMainWindow *window;
    ExampleDrives examples;
    QLabel *shareLabel;
    QComboBox *shareBox;
    QPushButton *addButton;
    QPushButton *removeButton;
    QPushButton *folderButton;
    QLabel *explanation;
    QLabel *messageLabel;
    Message message = Message::None;
    QString argument;
    // Of Message::Edited.
    int editedPort = 0;
    // For each row, whether its drive was added here, when that was looked at last.
    QList<bool> marks;
};
