// Zooming: which editor is shown large, in the overlay window over the panel.
#include "host/overlay_window.h"
#include "host/panel_view.h"

#include <memory>

namespace r7 {

void QmR7View::toggle_callback(View& sender)
{
    if (&sender == zoomed_wave_shaper_display.get()) {
        zoomed_wave_shaper_state = 0;
        zoomed_wave_shaper_display->set_hidden(true);
        close_overlay();
        return;
    }
    for (const StageRow& row : kStageRows)
        if (&sender == (this->*row.display).get()) return zoom_stage(row);
    for (const ToneRow& row : kToneRows)
        if (&sender == (this->*row.display).get()) return zoom_tone_control(row);

    // Whoever else asks is a tone control's editor that wants to be closed.
    zoomed_tone_control_state = 0;
    for (const ToneRow& row : kToneRows) (this->*row.editor)->set_hidden(true);
    close_overlay();
}

void QmR7View::zoom_stage(const StageRow& row)
{
    if (overlay_window || !make_overlay(zoomed_wave_shaper_display)) return;
    show_overlay();
    zoomed_wave_shaper_state = row.zoom_state;
    QM_BezierWaveShaperView& editor = *zoomed_wave_shaper_display;
    editor.set_from_sequence_data(data_of(row));
    for (const GainRow& gain : row.gains)
        (editor.*gain.set_on_editor)(static_cast<float>((this->*gain.knob)->current_value()));
    editor.set_hidden(false);
}

void QmR7View::zoom_tone_control(const ToneRow& row)
{
    // The state follows the click even where nothing opens: nothing reads it but whoever asks the panel.
    zoomed_tone_control_state = row.zoom_state;
    const auto& editor = this->*row.editor;
    if (overlay_window || !make_overlay(editor)) return;
    overlay_window->accepts_mouse_moved_events = true;
    show_overlay();
    editor->set_hidden(false);
}

bool QmR7View::make_overlay(const ViewRef& editor)
{
    Window* const panel_window = window();
    if (!panel_window) return false;
    // The editor's upper left corner comes to the panel's, where the panel fills its window from the bottom.
    const Rect& frame = panel_window->frame();
    const Size size = editor->bounds().size();
    const Rect content{frame.x, frame.y + (bounds().height - size.height), size.width, size.height};
    overlay_window = std::make_shared<QM_R7_Overlay_Window>(
        content, WindowStyle::borderless, WindowBacking::buffered, WindowCreation::deferred);
    overlay_window->level = WindowLevel::floating;
    overlay_window->set_content_view(editor);
    return true;
}

// A back end makes the overlay's own window here: all of it is settled by now.
void QmR7View::show_overlay()
{
    window()->add_child_window(*overlay_window);
    overlay_window->make_key_and_order_front();
}

void QmR7View::close_overlay()
{
    if (!overlay_window) return;
    if (Window* parent = overlay_window->parent_window()) parent->remove_child_window(*overlay_window);
    overlay_window->set_content_view(nullptr);
    overlay_window = nullptr;
}

void QmR7View::viewDidMoveToWindow()
{
    // An editor must not stay behind in a window that the panel has left.
    if (!overlay_window || overlay_window->parent_window() == window()) return;
    zoomed_wave_shaper_state = zoomed_tone_control_state = 0;
    for (const ViewRef& editor :
         {ViewRef(zoomed_wave_shaper_display), ViewRef(pre_tone_control), ViewRef(post_tone_control)})
        editor->set_hidden(true);
    close_overlay();
}

} // namespace r7
