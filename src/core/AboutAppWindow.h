#pragma once

#include "TXGUICommonExport.h"

#include <QDialog>
#include <QPixmap>
#include <QString>

#include <memory>

namespace Ui {
class AboutAppWindow;
}

/// The About window of an application: logo, name, version, web site and copyright, and a button
/// that opens the legal notices. Take QMessageBox::about() for a plain text.
///
/// A host derives from it, says in the virtual functions what to show, and shows the window, modal
/// or not. They are called at each show, from updateAboutWindow(), never from the constructor.
///
/// The legal notices are a file in "../Resources/LegalNotices" seen from the program. They are
/// opened from a copy in the temporary folder, so that no viewer holds a file of the installation.
///
/// The labels of name and version have the object name "AboutAppLabel", for style sheets. Thread:
/// the GUI thread.
class TXGUICOMMON_EXPORT AboutAppWindow : public QDialog
{
    Q_OBJECT

public:
    /// An empty window, 504 by 561.
    explicit AboutAppWindow(QWidget *parent = nullptr);
    ~AboutAppWindow() override;

    /// The picture on the left, shown in its own size. None when it is null.
    virtual QPixmap applicationLogo() const = 0;
    /// The title of the window is made with it, and it stands beside the logo.
    virtual QString applicationName() const = 0;
    /// The first part of the version line, as "2.1.0".
    virtual QString applicationVersion() const = 0;
    /// The second part of the version line, behind a blank. Empty: the line ends with the version.
    virtual QString applicationVersionDetail() const = 0;
    /// The first year of the copyright line, as "2019" for "© Copyright 2019-2024 Tovra Hue Works".
    /// The rest of the line is the same for every application.
    virtual QString applicationCopyrightStartYear() const = 0;
    /// The address of the web site, shown and linked; any text, it is never read as markup. By
    /// default the maker's.
    virtual QString applicationWebSite() const;
    /// The name of the file of the legal notices, without a folder, as "Notices.html". Its suffix
    /// decides which program opens it. An empty name, one that is "." or ".." and one with a slash
    /// or a backslash open nothing.
    virtual QString patentFileName() const = 0;

    /// Fills the window with what the virtual functions say. Every show does it by itself; call it
    /// when something has changed while the window is open.
    void updateAboutWindow();

    /// Marks the link while it has the focus, and lets the focus go on from it both ways.
    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    /// Fills the window, then shows it.
    void showEvent(QShowEvent *event) override;
    /// Follows a change of the language; a hidden window is filled again at its next show.
    void changeEvent(QEvent *event) override;

private slots:
    /// Opens a copy of the legal notices in the system's viewer. What fails is not told.
    void displayPatents() const;

private:
    void markLink(bool isMarked);

    std::unique_ptr<Ui::AboutAppWindow> ui;
};
