// Resources by name.
#include "platform/bundle.h"

#include <system_error>
#include <utility>

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

ImageRef Bundle::image_resource(std::string_view name) const
{
    const auto found = images_.find(name);
    if (found != images_.end())
        if (ImageRef held = found->second.lock()) return held;
    const auto path = path_for_image_resource(name);
    if (!path) return nullptr;
    ImageRef image = Image::from_png_file(*path);
    images_.insert_or_assign(std::string(name), image);
    return image;
}

std::optional<std::filesystem::path> Bundle::path_for_resource(std::string_view name,
                                                               std::string_view type) const
{
    return existing(directory_ / (std::string(name) + "." + std::string(type)));
}

} // namespace r7
