// The program's own name and version, from the embedded package.json.
#pragma once
#include <string>

#include "bridge/text/json.h"

/// Loaded once, on first use. Every text is empty when the file or its key is missing.
class AppMetadata {
public:
    [[nodiscard]] static const AppMetadata& instance();

    /// Reads `packageJson`, a JSON text; anything that does not parse leaves all texts empty.
    explicit AppMetadata(const std::string& packageJson);

    [[nodiscard]] std::string name() const { return text("name"); }
    [[nodiscard]] std::string displayName() const { return text("displayName"); }
    [[nodiscard]] std::string version() const { return text("version"); }

private:
    [[nodiscard]] std::string text(const char* key) const;

    Json document_;
};
