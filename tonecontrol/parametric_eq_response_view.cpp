// The small picture of a tone control's response on the panel.
#include "tonecontrol/parametric_eq_response_view.h"

#include "platform/graphics.h"

namespace r7 {

namespace {

/// One fewer than the editor's, meant: the last point lies a step short of the right edge, and the outline
/// goes straight from there to the corner.
constexpr std::size_t kCurvePoints = 100;

const Color kPlainFill(Rgba{0.0, 0.0, 1.0, 0.4});

} // namespace

float log_Value_For_Number(float x)
{
    return logValueForNumber(x);
}

QM_R7_ParametericEQ_Response_View::QM_R7_ParametericEQ_Response_View(const Rect& frame)
    : ToneControlView(frame, {0.0, 0.0, frame.width, frame.height}, kCurvePoints)
{
}

void QM_R7_ParametericEQ_Response_View::drawRect(Graphics& graphics, const Rect&)
{
    graphics.fill(mCurvePath, owners_fill() ? owners_fill() : &kPlainFill);
}

void QM_R7_ParametericEQ_Response_View::mouseDown(const MouseEvent& event)
{
    if (event.click_count == 2) zoom_clicked();
}

} // namespace r7
