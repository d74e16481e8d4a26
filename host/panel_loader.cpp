// The loader, and the registry of classes that a description may name.
#include "host/panel_loader.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace r7 {

namespace {

template <typename V>
ViewRef make(const Rect& frame)
{
    return std::make_shared<V>(frame);
}

struct ClassRow {
    std::string_view name;
    ViewRef (*make)(const Rect& frame);
};

constexpr std::array kClasses = std::to_array<ClassRow>({
    {"QmKnobView", &make<QmKnobView>},
    {"QmModeKnobView", &make<QmModeKnobView>},
    {"QmR7PushModeKnobView", &make<QmR7PushModeKnobView>},
    {"QmIndicatorLightView", &make<QmIndicatorLightView>},
    {"QmR7FiveStateIndicatorLightView", &make<QmR7FiveStateIndicatorLightView>},
    {"QmR7TenStateIndicatorLightView", &make<QmR7TenStateIndicatorLightView>},
    {"QM_BezierWaveShaperView", &make<QM_BezierWaveShaperView>},
    {"QM_BezierWaveShaperResponseView", &make<QM_BezierWaveShaperResponseView>},
    {"Qm_ParametricEQView", &make<Qm_ParametricEQView>},
    {"QM_R7_ParametericEQ_Response_View", &make<QM_R7_ParametericEQ_Response_View>},
});

} // namespace

std::variant<std::shared_ptr<QmR7View>, DescriptionProblem> load_panel(std::shared_ptr<const Bundle> bundle)
{
    const auto path = bundle->path_for_resource("QmR7View", "xml");
    if (!path) return DescriptionProblem{"it is missing"};
    auto read = read_interface_description(*path);
    if (const auto* problem = std::get_if<DescriptionProblem>(&read)) return *problem;
    const auto& description = std::get<InterfaceDescription>(read);

    const Rect frame{0.0, 0.0, description.panel_size.width, description.panel_size.height};
    auto panel = std::make_shared<QmR7View>(frame, std::move(bundle));
    for (const ViewDescription& row : description.views) {
        const auto made = std::ranges::find(kClasses, row.class_name, &ClassRow::name);
        if (made == kClasses.end()) return DescriptionProblem{"class " + row.class_name + " is unknown"};
        const OutletRow* outlet = outlet_row_named(row.outlet);
        if (!outlet) return DescriptionProblem{"outlet " + row.outlet + " is unknown"};
        const ViewRef view = made->make(row.frame);
        if (!connect(*panel, *outlet, view))
            return DescriptionProblem{"outlet " + row.outlet + " takes no " + row.class_name};
        // What starts hidden is shown in a window of its own, when it is.
        if (row.starts_hidden)
            view->set_hidden(true);
        else
            panel->add_subview(view);
    }
    for (const OutletRow& outlet : outlet_rows())
        if (!view_in(*panel, outlet))
            return DescriptionProblem{"outlet " + std::string(outlet.name) + " is missing"};

    // The panel wakes last: it configures controls that are awake.
    for (const OutletRow& outlet : outlet_rows()) view_in(*panel, outlet)->awakeFromNib();
    panel->awakeFromNib();
    return panel;
}

} // namespace r7
