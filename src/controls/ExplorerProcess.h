#pragma once

#include <string>

/// @file
/// The program "explorer.exe" of Windows. Free of Qt, so that it can be tried without a Qt for
/// Windows.

/// The command line that opens a folder, or that opens the folder of a file and selects the file.
/// The path has native separators.
std::wstring explorerCommandLine(const std::wstring &nativePath, bool isFolder);

/// Starts the program by that command line, without waiting for it. Returns whether it started.
bool startExplorer(const std::wstring &nativePath, bool isFolder);
