#include "bridge/file_dialogs.h"

#include <sstream>

std::vector<FilterChoice> filterChoices(const FileFilter& filter) {
    std::vector<FilterChoice> choices;
    if (!filter.name.empty() && !filter.pattern.empty()) {
        choices.push_back({filter.name + " (" + filter.pattern + ")", filter.pattern});
    }
    choices.push_back({"All Files (*.*)", "*.*"});
    return choices;
}

std::string filterList(const FileFilter& filter) {
    std::string list;
    for (const FilterChoice& choice : filterChoices(filter)) list += choice.text + '\0' + choice.pattern + '\0';
    return list;
}

std::vector<std::string> splitPatterns(const std::string& patterns) {
    std::vector<std::string> parts;
    std::istringstream text(patterns);
    for (std::string part; std::getline(text, part, ';');) {
        if (!part.empty()) parts.push_back(part);
    }
    return parts;
}

std::string withDefaultExtension(const std::string& path, const std::string& extension) {
    if (extension.empty()) return path;
    const std::size_t lastSlash = path.find_last_of('/');
    const std::size_t nameStart = lastSlash == std::string::npos ? 0 : lastSlash + 1;
    if (path.find('.', nameStart) != std::string::npos) return path;
    return path + "." + extension;
}
