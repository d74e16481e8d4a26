// Draws the panel's images from its interface description, and the program's icon.
#include "resources/art/images.h"
#include "resources/art/lightball.h"
#include "resources/art/mock.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

using namespace r7;
using namespace r7::art;

constexpr char kUsage[] =
    "usage: r7_art RESOURCES                      draw RESOURCES/images from RESOURCES/QmR7View.xml,\n"
    "                                             and RESOURCES/lightball.tiff\n"
    "       r7_art RESOURCES --mock FILE [SCALE]  a picture of the whole panel\n";

bool report(bool written, const std::filesystem::path& path)
{
    if (!written) std::fprintf(stderr, "r7_art: cannot write %s\n", path.c_str());
    return written;
}

bool write(const Canvas& canvas, const std::filesystem::path& path)
{
    return report(canvas.write_png(path), path);
}

bool draw_images(const InterfaceDescription& description, const std::filesystem::path& folder)
{
    for (const ImageRow& row : all_images(description))
        if (!write(drawn(row, 1), folder / (row.name + ".png")) ||
            !write(drawn(row, 2), folder / (row.name + "@2x.png")))
            return false;
    return std::ranges::all_of(
        all_icons(), [&](const ImageRow& row) { return write(drawn(row, 1), folder / (row.name + ".png")); });
}

bool draw_lightball(const std::filesystem::path& path)
{
    return report(write_lightball(path), path);
}

} // namespace

int main(int count, char** words)
{
    const std::vector<std::string> arguments(words + 1, words + count);
    const bool mock = arguments.size() >= 3 && arguments[1] == "--mock";
    if (arguments.empty() || (arguments.size() > 1 && !mock) || arguments.size() > 4) {
        std::fputs(kUsage, stderr);
        return 2;
    }

    const std::filesystem::path resources = arguments[0], file = resources / "QmR7View.xml";
    const auto read = read_interface_description(file);
    if (const auto* problem = std::get_if<DescriptionProblem>(&read)) {
        std::fprintf(stderr, "%s: %s\n", file.c_str(), problem->text.c_str());
        return 1;
    }
    const auto& description = std::get<InterfaceDescription>(read);
    if (!mock)
        return draw_images(description, resources / "images") && draw_lightball(resources / "lightball.tiff")
                   ? 0
                   : 1;
    const int scale = arguments.size() == 4 && arguments[3] == "2" ? 2 : 1;
    return write(mock_panel(description, scale), arguments[2]) ? 0 : 1;
}
