#include "app/window/graphics_processor_linux.h"

#include <unistd.h>

#include <algorithm>
#include <string>
#include <system_error>

/// Cards without a node for rendering only show pictures, like those of many virtual machines.
static bool canRender(const std::filesystem::path& device) {
    return device.filename().string().starts_with("renderD") && access(device.c_str(), R_OK | W_OK) == 0;
}

bool hasGraphicsProcessor(const std::filesystem::path& devices) {
    std::error_code noFolder;
    const std::filesystem::directory_iterator all(devices, noFolder);
    return std::any_of(begin(all), end(all), [](const auto& each) { return canRender(each.path()); });
}
