// Resources by name.
#include "platform/bundle.h"

#include <string>
#include <system_error>

namespace r7 {

namespace {

std::optional<std::filesystem::path> existing(std::filesystem::path path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
    return path;
}

} // namespace

std::optional<std::filesystem::path> Bundle::path_for_image_resource(std::string_view name) const
{
    return existing(directory_ / "images" / (std::string(name) + ".png"));
}

std::optional<std::filesystem::path> Bundle::path_for_resource(std::string_view name,
                                                               std::string_view type) const
{
    return existing(directory_ / (std::string(name) + "." + std::string(type)));
}

} // namespace r7
