// line.h: the protocol between the runtime and its driver, one line for each call or event.
#pragma once
#include <string>

/// A verb without blanks, and a text in UTF-8 that may hold anything.
struct Line {
    std::string verb;
    std::string text;
};

/// Verb, blank, text with "\", LF and CR escaped by a backslash, and LF.
[[nodiscard]] std::string writtenLine(const Line& line);

/// Reads what `writtenLine` gives, without the LF at its end. A missing text is empty.
[[nodiscard]] Line readLine(const std::string& written);
