#include "server/embedded_filesystem.h"

#include <system_error>

const EmbeddedEntry* EmbeddedDirectory::addFile(const std::string& name, const char* begin, std::size_t size) {
    const EmbeddedFileData& data = files_.emplace_back(EmbeddedFileData{begin, begin + size});
    return &children_.emplace(name, EmbeddedEntry(data)).first->second;
}

EmbeddedDirectory& EmbeddedDirectory::addDirectory(const std::string& name) {
    EmbeddedDirectory& directory = directories_.emplace_back();
    children_.emplace(name, EmbeddedEntry(directory));
    return directory;
}

const EmbeddedEntry* EmbeddedDirectory::child(const std::string& name) const {
    const auto found = children_.find(name);
    return found == children_.end() ? nullptr : &found->second;
}

EmbeddedFilesystem getEmbeddedFilesystem() {
    static const RootIndex& index = getRootIndex();
    return EmbeddedFilesystem(index);
}

const EmbeddedEntry* EmbeddedFilesystem::findEntry(const std::string& path) const {
    const auto found = index_->find(normalizePath(path));
    return found == index_->end() ? nullptr : found->second;
}

EmbeddedFile EmbeddedFilesystem::openEmbedded(const std::string& path) const {
    const EmbeddedEntry* entry = findEntry(path);
    if (entry == nullptr || !entry->isFile()) {
        throw std::system_error(std::make_error_code(std::errc::no_such_file_or_directory), path);
    }
    return EmbeddedFile(*entry->file());
}

std::string normalizePath(std::string_view path) {
    std::string normal;
    normal.reserve(path.size());
    for (const char c : path) {
        const bool repeated = c == '/' && (normal.empty() || normal.back() == '/');
        if (!repeated) normal += c;
    }
    if (!normal.empty() && normal.back() == '/') normal.pop_back();
    return normal;
}
