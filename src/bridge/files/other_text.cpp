#include "bridge/files/other_text.h"

#include <string>

#include "bridge/files/recovery_file.h"
#include "bridge/files/rescue_name.h"
#include "bridge/files/text_mode.h"
#include "bridge/files/whole_file.h"

namespace fs = std::filesystem;

static fs::path freeNameFor(const fs::path& kept) {
    fs::path name = kept;
    std::error_code unknown;
    for (int number = 1; fs::exists(fs::symlink_status(name, unknown)); ++number) {
        name = withEnding(kept, "." + std::to_string(number));
    }
    return name;
}

KeptText keepBeside(const fs::path& path, RegularFile& document, const RescueFolder& rescue) {
    const auto bytes = document.bytes();
    if (!bytes) return {{}, document.error()};
    const fs::path kept = withEnding(path, ".before-save");
    for (;;) {
        const fs::path name = freeNameFor(kept);
        const WriteOutcome outcome = writeWholeFile(
            {.path = name, .incomplete = incompleteFileOf(kept), .accessLike = &document, .replaces = false}, *bytes);
        if (outcome.result == WriteResult::written) return {name, {}};
        if (outcome.result == WriteResult::nameTaken) continue;
        const auto rescued =
            rescue.writeNew(rescueStemOf(path, "before save"), documentExtension, textOfDiskBytes(*bytes));
        return rescued ? KeptText{*rescued, {}} : KeptText{{}, outcome.error};
    }
}
