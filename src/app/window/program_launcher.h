// Starts programs beside this one.
#pragma once
#include <filesystem>

/// Starts this program again with one file to open. What fails is not reported: there is a window less.
void openInOwnWindow(const std::filesystem::path& executable, const std::filesystem::path& file);

/// Shows a folder in the desktop's file manager.
void showFolder(const std::filesystem::path& folder);
