// The panel's own interface description, for the tests.
#include "tests/resources/described_panel.h"

#include <gtest/gtest.h>

#include <utility>
#include <variant>

namespace r7::art {

InterfaceDescription described_panel()
{
    auto read = read_interface_description(R7_RESOURCES "/QmR7View.xml");
    if (const auto* problem = std::get_if<DescriptionProblem>(&read)) ADD_FAILURE() << problem->text;
    return read.index() == 0 ? std::get<0>(std::move(read)) : InterfaceDescription{};
}

} // namespace r7::art
