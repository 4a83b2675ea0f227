// Names for documents' texts in the rescue folder.
#pragma once
#include <filesystem>
#include <string>

inline constexpr const char* documentExtension = ".words.tessary";

/// "notes (not saved)" for a document "notes.words.tessary" of any folder and what happened to it, "not saved". Long
/// names are cut so that there is room for more.
[[nodiscard]] std::filesystem::path rescueStemOf(const std::filesystem::path& document, const std::string& what);
