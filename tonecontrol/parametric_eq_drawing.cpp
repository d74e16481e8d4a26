// The editor of a tone control: how it is painted.
#include "platform/graphics.h"
#include "tonecontrol/parametric_eq_pictures.h"
#include "tonecontrol/parametric_eq_view.h"

namespace r7 {

namespace {

constexpr double kHandleRadius = 12.0;
constexpr double kArcRadius = 7.0;
constexpr double kDotRadius = 3.0;

const Color kBackground(Rgba{0.0, 0.0, 0.0, 0.666});

/// The owner's two colours are a switch between these two schemes; they themselves are not painted with.
const Color kCurve(Rgba{0.2, 0.2, 1.0, 0.4});
const Color kHandles(Rgba{0.0, 0.0, 1.0, 1.0});
const Color kArcs(Rgba{1.0, 0.2, 0.0, 0.5});
const Color kPlain(Rgba{0.0, 0.0, 1.0, 0.4});

Rect square_about(Point center, double radius)
{
    return {center.x - radius, center.y - radius, 2 * radius, 2 * radius};
}

} // namespace

void Qm_ParametricEQView::awakeFromNib()
{
    close_button_image = close_button_picture();
    reset_button_image = reset_button_picture();
    // The labels stand where the editor's own range puts them, whatever range it has been given by now.
    graph_body_image = graph_body_picture(bounds().size(), ToneMapping(graph_frame()));
    set_needs_display();
}

void Qm_ParametricEQView::drawGraph()
{
    ToneControlView::drawGraph();
    mPointsPath.remove_all_points();
    mPointsQPath.remove_all_points();
    for (std::size_t number = 0; number < kToneBands; ++number) {
        const auto [frequency_hz, level_db, width] = band(number);
        const Point center{mapping().location_for_frequency(frequency_hz),
                           mapping().location_for_gain(level_db)};
        handles_[number] = square_about(center, kHandleRadius);
        mPointsPath.append_oval(handles_[number]);
        mPointsPath.append_oval(square_about(center, kDotRadius));

        mPointsQPath.move_to({center.x, center.y - kArcRadius});
        mPointsQPath.append_arc(center, kArcRadius, 270.0, 270.0 - 360.0 * width, Path::Direction::clockwise);
    }
}

void Qm_ParametricEQView::drawRect(Graphics& graphics, const Rect&)
{
    const Rect& graph = graph_frame();
    graphics.fill_rect({graph.x, graph.y, bounds().width - graph.x, bounds().height - graph.y}, &kBackground,
                       Compositing::source_over);
    graphics.draw_image(close_button_image.get(), close_rect.origin(), Compositing::source_over, 1.0);
    graphics.draw_image(reset_button_image.get(), reset_rect.origin(), Compositing::source_over, 1.0);
    graphics.draw_image(graph_body_image.get(), bounds().origin(), Compositing::source_over, 1.0);

    graphics.clip_to(graph);
    if (owners_fill()) {
        graphics.fill(mCurvePath, &kCurve);
        graphics.stroke(mPointsPath, &kHandles);
        graphics.stroke(mPointsQPath, &kArcs);
    } else {
        graphics.fill(mCurvePath, &kPlain);
        graphics.stroke(mPointsPath, &kPlain);
    }
}

} // namespace r7
