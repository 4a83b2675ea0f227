#include "app/app_metadata.h"

#include <exception>

#include "server/embedded_filesystem.h"

static std::string embeddedPackageJson() {
    try {
        const EmbeddedFile file = getEmbeddedFilesystem().openEmbedded("package.json");
        return {file.begin(), file.end()};
    } catch (const std::exception&) {
        return {};
    }
}

const AppMetadata& AppMetadata::instance() {
    static const AppMetadata metadata(embeddedPackageJson());
    return metadata;
}

AppMetadata::AppMetadata(const std::string& packageJson) : document_(json_tokener_parse(packageJson.c_str())) {}

std::string AppMetadata::text(const char* key) const {
    json_object* value = nullptr;
    if (!document_ || !json_object_object_get_ex(document_.get(), key, &value)) return {};
    const char* found = json_object_get_string(value);
    return found == nullptr ? std::string() : std::string(found);
}
