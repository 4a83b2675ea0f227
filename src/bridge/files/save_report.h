// What a user should hear about saves, which the page does not show.
#pragma once
#include <filesystem>
#include <string>

/// A text that did not get into its document whole.
struct FailedSave {
    std::filesystem::path document;
    std::string reason;          ///< in the system's words, UTF-8, without a full stop
    std::filesystem::path text;  ///< a file with the whole text; empty when it could not be kept anywhere
};

/// A text of another program that a save has replaced, although nobody here had seen it.
struct ReplacedText {
    std::filesystem::path document;
    std::filesystem::path kept;  ///< a file with that text; empty when it could not be kept
    std::string reason;          ///< why it could not be kept, in the system's words
};

/// Hears of saves while the page waits for their answers: nothing here may block or throw.
class SaveReporter {
public:
    virtual ~SaveReporter() = default;

    virtual void failed(const FailedSave& save) = 0;
    virtual void replaced(const ReplacedText& text) = 0;
    /// The document holds all that was handed over, so that an earlier failure is of no interest any more.
    virtual void saved(const std::filesystem::path& document) = 0;
};
