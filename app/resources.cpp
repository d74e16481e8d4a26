// Where the program finds the panel's resources.
#include "app/resources.h"

#include "host/panel_loader.h"

#include <cstdio>
#include <memory>
#include <system_error>

namespace r7 {

std::filesystem::path own_resources()
{
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    // R7_SOURCE_RESOURCES leads from the folder of the build to the source tree's.
    for (const char* way : {R7_SOURCE_RESOURCES, "../share/r7"}) {
        const std::filesystem::path folder = (program.parent_path() / way).lexically_normal();
        if (std::filesystem::exists(folder / "QmR7View.xml", error)) return folder;
    }
    return (program.parent_path() / "../share/r7").lexically_normal();
}

ExitStatus no_resources(const std::filesystem::path& folder)
{
    const auto loaded = load_panel(std::make_shared<const Bundle>(folder));
    const auto* problem = std::get_if<DescriptionProblem>(&loaded);
    std::fprintf(stderr, "r7: %s: %s\n", (folder / "QmR7View.xml").c_str(),
                 problem ? problem->text.c_str() : "the panel cannot be made");
    return ExitStatus::no_resources;
}

} // namespace r7
