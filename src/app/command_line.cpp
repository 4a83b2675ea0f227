#include "app/command_line.h"

#include <argparse/argparse.hpp>

#include <exception>
#include <filesystem>
#include <iostream>
#include <utility>

#include "app/app_metadata.h"
#include "bridge/text/native_path.h"

static LaunchArgs misuse(std::string error) { return {false, std::move(error), std::nullopt}; }

LaunchArgs parseCommandLine(int argc, const char* const argv[]) {
    const AppMetadata& metadata = AppMetadata::instance();
    const std::string version = metadata.version();
    argparse::ArgumentParser parser(metadata.name(), version, argparse::default_arguments::all, true, std::cout);
    parser.add_argument("file").help("Path to file to open").nargs(argparse::nargs_pattern::optional);
    try {
        parser.parse_args(argc, argv);
    } catch (const std::exception& complaint) {
        // The user sees this text in the window and has no console, so it carries the usage as well.
        return misuse(std::string(complaint.what()) + "\n\n" + parser.help().str());
    }
    const auto file = parser.present("file");
    if (!file) return {};
    const std::filesystem::path path = pathFromNarrow(*file);
    if (!std::filesystem::exists(path)) return misuse("File not found: " + *file);
    return {true, {}, narrowFromPath(std::filesystem::absolute(path))};
}
