// Makes a panel and everything in it from an interface description.
#pragma once

#include "host/panel_view.h"
#include "platform/bundle.h"
#include "platform/interface_description.h"

#include <memory>
#include <variant>

namespace r7 {

/// A complete panel, all outlets connected and everything awake, or why there is none: the first problem of
/// the description "QmR7View" of the bundle, be it the file, an unknown class, or an unknown or missing
/// outlet.
std::variant<std::shared_ptr<QmR7View>, DescriptionProblem> load_panel(std::shared_ptr<const Bundle> bundle);

} // namespace r7
