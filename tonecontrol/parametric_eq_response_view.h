// The small picture of a tone control's response on the panel.
#pragma once

#include "tonecontrol/tone_control_view.h"

namespace r7 {

/// Logarithm to the base ten, as logValueForNumber.
float log_Value_For_Number(float x);

/// The response, filled, over the whole view; a double click asks for the editor.
class QM_R7_ParametericEQ_Response_View final : public ToneControlView {
public:
    explicit QM_R7_ParametericEQ_Response_View(const Rect& frame);

    /// Performs the toggle action.
    void zoom_clicked() { send_toggle(); }

    void drawRect(Graphics& graphics, const Rect& dirty) override;
    /// Of all clicks, only the second of a double click does anything.
    void mouseDown(const MouseEvent& event) override;
};

} // namespace r7
