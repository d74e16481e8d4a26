// `r7 snapshot`.
#include "app/snapshot.h"

#include "app/offscreen_panel.h"
#include "app/resources.h"

#include <cstdio>

namespace r7 {

ExitStatus take_snapshot(const SnapshotOptions& options, const std::filesystem::path& resources)
{
    const auto opened = OffscreenPanel::open(std::make_shared<const Bundle>(resources), options.scale);
    if (!opened) return no_resources(resources);
    if (opened->window().picture().write_png(options.file)) return ExitStatus::done;
    std::fprintf(stderr, "r7: the picture %s cannot be written\n", options.file.c_str());
    return ExitStatus::failure;
}

} // namespace r7
