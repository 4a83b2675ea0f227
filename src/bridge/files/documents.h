// Whole documents from and to disk. Paths are narrow strings in the process's code page. Files are in text mode and
// shared with other programs. Reading and writing block until done; docs/saving.md has the order of steps.
#pragma once
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "bridge/files/outcome.h"
#include "bridge/files/regular_file.h"
#include "bridge/files/rescue_folder.h"
#include "bridge/files/save_report.h"

/// Remembers of each document what was last read or written here, to notice when another program changes it.
class Documents {
public:
    /// Reports to nobody, and keeps a text beside its document or nowhere.
    Documents() = default;
    /// `reporter` is borrowed; `rescue` takes the texts for which there is no place beside their document.
    Documents(SaveReporter& reporter, RescueFolder rescue) : reporter_(&reporter), rescue_(std::move(rescue)) {}

    /// The file's text as payload, or "file-not-found" for whatever keeps it from being opened (what is no regular file
    /// counts as such), or "file-read-failed". A save of it that was cut off is finished first (recovery_file.h).
    [[nodiscard]] Outcome read(const std::string& path);

    /// Writes over the file, or creates it. What is there is written in place and keeps its owner, permissions and
    /// links; meanwhile the new text also stands in its recovery file. A new file appears with all of its text. Once
    /// the file is open the answer is success, whatever happens to the text then, as the page has no use for another
    /// one. "file-write-failed" when it cannot be opened, or when the disk has no room for the recovery file: the
    /// document is then as it was. The reporter hears of each text that did not get into its file whole.
    [[nodiscard]] Outcome write(const std::string& path, const std::string& text);

private:
    /// What this program last read from a document or wrote to it, and where a text is that did not get into it.
    struct Known {
        FileStamp stamp;
        std::optional<std::size_t> hash;  ///< of the bytes; nothing when they are not known
        std::optional<FileStamp> recovery;
        std::filesystem::path rescued;
    };
    /// A save under way.
    struct Save {
        std::filesystem::path name;  ///< what the page calls the document
        std::filesystem::path path;  ///< where that leads to
        const std::string& text;
        const std::string bytes;
        Known& known;
    };

    [[nodiscard]] Outcome save(Save& save);
    [[nodiscard]] Outcome saveOver(Save& save, RegularFile& document);
    [[nodiscard]] Outcome saveUnprotected(Save& save);
    [[nodiscard]] Outcome refuse(Save& save, const std::error_code& reason);
    [[nodiscard]] bool wasChangedElsewhere(const Save& save, RegularFile& document) const;
    void keepOtherText(const Save& save, RegularFile& document) const;
    void succeed(Save& save, const FileStamp& stamp);
    void fail(Save& save, const std::error_code& reason, const std::optional<FileStamp>& recovery);

    SaveReporter* reporter_ = nullptr;
    RescueFolder rescue_{std::filesystem::path()};
    std::map<std::string, Known> known_;
};
