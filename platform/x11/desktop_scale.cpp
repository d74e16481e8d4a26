// The scale that a desktop's resource settings ask for.
#include "platform/x11/desktop_scale.h"

#include <algorithm>
#include <charconv>

namespace r7 {

double desktop_scale_of(std::string_view resources)
{
    constexpr std::string_view kName = "Xft.dpi:";
    double dpi = 96.0;
    while (!resources.empty()) {
        std::string_view line = resources.substr(0, resources.find('\n'));
        resources.remove_prefix(std::min(line.size() + 1, resources.size()));
        if (!line.starts_with(kName)) continue;
        line.remove_prefix(kName.size());
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        std::from_chars(line.data(), line.data() + line.size(), dpi);
    }
    return dpi >= 48.0 && dpi <= 768.0 ? dpi / 96.0 : 1.0;
}

} // namespace r7
