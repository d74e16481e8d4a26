// What is committed in the resources, for the tests.
#include "tests/resources/committed.h"

namespace r7::art {

InterfaceDescription described_panel()
{
    auto read = read_interface_description(R7_RESOURCES "/QmR7View.xml");
    if (const auto* problem = std::get_if<DescriptionProblem>(&read)) ADD_FAILURE() << problem->text;
    return read.index() == 0 ? std::get<0>(std::move(read)) : InterfaceDescription{};
}

r7::Canvas image_named(const std::string& name)
{
    const std::string file = R7_RESOURCES "/images/" + name + ".png";
    r7::Canvas image(make_surface(cairo_image_surface_create_from_png(file.c_str())));
    EXPECT_GT(image.width(), 0) << name;
    return image;
}

} // namespace r7::art
