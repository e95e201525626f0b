#pragma once

#include "GalleryPage.h"

#include <memory>

class AutoMountNetworkDriveEditor;
class CredentialPanel;
class DriveManagerPanel;
class DriveSessionPanel;
class SambaServerPanel;
class ShareSearchPanel;

/// The library's network drives beside a real Samba server on this computer: the manager window,
/// the editor of a drive, the browser of shares, and the dialog that asks for credentials.
///
/// The list of drives is the user's. The page puts its own drives among them and takes them away
/// again when it goes; those of the user are touched by the manager window alone.
class DrivesPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit DrivesPage(QWidget *parent = nullptr);
    ~DrivesPage() override;

    [[nodiscard]] QString description() const override;

    /// Has the manager connect drives, and stops it again when the page goes.
    void fillForPicture() override;
    [[nodiscard]] bool isReady() const override { return !isFilling; }
    [[nodiscard]] QList<GalleryFurtherWindow> furtherWindows() override;

protected:
    void retranslate() override { }

private slots:
    void goOnFilling();
    void endFilling();

private:
    void addDrivesForPicture();
    void setUpLayout();

    SambaServerPanel *serverPanel;
    DriveManagerPanel *managerPanel;
    ShareSearchPanel *searchPanel;
    CredentialPanel *credentialPanel;
    DriveSessionPanel *sessionPanel;
    // For the picture.
    std::unique_ptr<AutoMountNetworkDriveEditor> editor;
    bool isFilling = false;
    bool hasStartedManager = false;
    // The library makes the folder with its first link, and leaves it.
    bool wasFolderThere;
};
