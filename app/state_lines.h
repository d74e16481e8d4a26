// What `show` prints: the state of a view, the panel, the unit or a record, in one line.
#pragma once

#include "host/panel_outlets.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace r7 {

class EmbeddedUnit;
class QmR7View;
struct SceneRow;

/// A panel and the unit that it is played against.
struct Scene {
    const QmR7View& panel;
    const EmbeddedUnit& unit;
};

/// What can be shown: a view of the panel, or one of the other things that have a name.
using Subject = std::variant<const OutletRow*, const SceneRow*>;

/// The view, or one of `panel`, `unit`, `record1`, `record2`, `unit1` and `unit2`; or nothing.
std::optional<Subject> subject_named(std::string_view name);

/// `NAME key=value key=value ...`; the keys of a view are those of its class.
std::string state_line(const Subject& subject, const Scene& scene);

/// Whether the view of a row computes a response: those of the tone controls and the waveshapers do.
bool has_response(const OutletRow& row);

/// `response NAME X VALUE`, for a row that has a response: the gain in dB at X Hz, or the output amplitude
/// for the input X. X is narrowed to single precision, as all that the views take.
std::string response_line(const OutletRow& row, double x, const PanelOutlets& outlets);

} // namespace r7
