// The folder of resources that belongs to the panel.
#pragma once

#include "platform/image.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace r7 {

/// Finds resources by name; holds nothing open. To be used from one thread.
class Bundle final {
public:
    /// `directory` holds the interface description, and a folder `images` of PNG files.
    explicit Bundle(std::filesystem::path directory) : directory_(std::move(directory)) {}

    const std::filesystem::path& directory() const { return directory_; }

    /// Where the image resource `name` is (its 1x file), if there is such a file.
    std::optional<std::filesystem::path> path_for_image_resource(std::string_view name) const;
    /// The image resource `name`, or none (Image::from_png_file). It is shared: read once for all who hold it
    /// at a time, so that many panels in a process cost the images of one.
    ImageRef image_resource(std::string_view name) const;
    /// Where the resource `name.type` is, if there is such a file.
    std::optional<std::filesystem::path> path_for_resource(std::string_view name,
                                                           std::string_view type) const;

private:
    std::filesystem::path directory_;
    mutable std::map<std::string, std::weak_ptr<const Image>, std::less<>> images_;
};

} // namespace r7
