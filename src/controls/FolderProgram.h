#pragma once

class QString;

/// The program of the desktop that opens a folder, "xdg-open".
class FolderProgram
{
public:
    FolderProgram() = delete;

    /// Opens the folder, or the folder of a file. Does not wait; tells whether the program was
    /// started.
    static bool open(const QString &absolutePath);
};
