// The panel's own interface description, for the tests.
#include "tests/resources/described_panel.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace r7::art {

Description described_panel()
{
    std::ifstream file(R7_RESOURCES "/QmR7View.xml");
    const std::string xml{std::istreambuf_iterator<char>(file), {}};
    std::string error;
    auto description = parse_description(xml, error);
    EXPECT_TRUE(description) << error;
    return description.value_or(Description{});
}

} // namespace r7::art
