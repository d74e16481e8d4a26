// The panel: one Audio Unit's parameters and curves, shown by controls and edited with them.
#pragma once

#include "host/overlay_window.h"
#include "host/panel_outlets.h"
#include "host/panel_tables.h"
#include "host/stage_rows.h"
#include "host/tone_rows.h"
#include "platform/audio_toolbox.h"
#include "platform/bundle.h"
#include "platform/image.h"
#include "platform/view.h"
#include "waveshaper/bezier_sequence.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace r7 {

struct PanelHandle;

/// The callback of the panel's listener; `panel` is the QmR7View that listens. The host time is dropped.
void EventListenerDispatcher(void* panel, void* object, const AudioUnitEvent* event, UInt64 host_time,
                             AudioUnitParameterValue value) noexcept;

/// The main view.
///
/// Values come in through the Audio Unit's events only, and go out through the controls' callbacks only;
/// setting a control from an event tells nobody. The panel borrows the Audio Unit, which may go before it or
/// after it, and owns its listener, which never outlives it. Everything happens on the thread that bound the
/// panel. It may be destroyed at any moment on that thread, from inside its own callbacks too.
class QmR7View final : public View, public PanelOutlets {
public:
    /// Loads the background image from `bundle`; a missing one leaves the panel without. The outlets are
    /// connected by the loader, which then sends awakeFromNib.
    QmR7View(const Rect& frame, std::shared_ptr<const Bundle> bundle);
    ~QmR7View() override;

    /// Binds the panel to a unit, or to none: listens to all parameters and properties and asks for every
    /// value to be announced. The values arrive with the loop's next turns; until then, and unbound, the
    /// controls keep what they show. The unit bound before is left first, even when it is the same.
    void setAU(AudioUnit unit);
    AudioUnit audio_unit() const { return mAU; }
    /// The listener while bound, else none.
    AUEventListenerRef event_listener() const { return mAUEventListener; }

    /// Shows a change of the Audio Unit. `value` is the parameter's, and meaningless for a property.
    void _eventListener_event_value(void* object, const AudioUnitEvent& event, Float32 value);
    /// Reads a property of the unit into the panel. A failed read changes nothing.
    void sequence_updated_from_au(std::int32_t property);

    /// A control was moved by the user. An unknown sender does nothing.
    void knob_callback(View& sender);
    /// A display asks for its editor, or an editor asks to be closed. While an editor is open no other opens.
    void toggle_callback(View& sender);
    /// Sets a parameter of the bound unit; the panel itself is not told of it. Unbound, nothing is sent.
    void set_au_parameter_to_value(AudioUnitParameterID parameter, AudioUnitParameterValue value);

    const _QM_R7_Bezier_Sequence& stage_one_data() const { return stage_one_waveshaper_data; }
    const _QM_R7_Bezier_Sequence& stage_two_data() const { return stage_two_waveshaper_data; }
    std::int32_t tone_control_state() const { return zoomed_tone_control_state; }
    std::int32_t wave_shaper_state() const { return zoomed_wave_shaper_state; }
    /// The window of the zoomed editor, or none.
    const QM_R7_Overlay_Window* overlay() const { return overlay_window.get(); }

    void drawRect(Graphics& graphics, const Rect& dirty) override;
    /// Gives every control its images, range, start value, speeds and callback.
    void awakeFromNib() override;
    /// An open editor closes when the panel leaves its window.
    void viewDidMoveToWindow() override;

private:
    void _addListeners();
    void _removeListeners();
    void _synchronizeUIWithParameterValues();

    void parameter_changed(AudioUnitParameterID id, float value);
    void knob_changed(const KnobRow& row, float value);
    void switch_changed(const SwitchRow& row, float value);

    void knob_moved(const KnobRow& row);
    void switch_moved(const SwitchRow& row);
    void tone_control_moved(const ToneRow& row);
    void curve_edited();

    void show_lamp(const LampOutlet& lamp, std::int32_t state);
    void show_mode(const SwitchRow& row, std::optional<std::int32_t> position);
    bool is_zoomed(const StageRow& row) const { return zoomed_wave_shaper_state == row.zoom_state; }
    _QM_R7_Bezier_Sequence& data_of(const StageRow& row);

    void zoom_stage(const StageRow& row);
    void zoom_tone_control(const ToneRow& row);
    // Makes the overlay window around an editor. False where the panel is in no window.
    bool make_overlay(const ViewRef& editor);
    void show_overlay();
    void close_overlay();

    std::shared_ptr<const Bundle> bundle_;
    // What the controls call back: lent to them, so that they do not keep the panel alive.
    std::shared_ptr<PanelHandle> handle_;
    ImageRef bgImage;
    std::shared_ptr<QM_R7_Overlay_Window> overlay_window;
    _QM_R7_Bezier_Sequence stage_one_waveshaper_data{};
    _QM_R7_Bezier_Sequence stage_two_waveshaper_data{};
    AudioUnit mAU = nullptr;
    AUEventListenerRef mAUEventListener = nullptr;
    std::int32_t zoomed_tone_control_state = 0;
    std::int32_t zoomed_wave_shaper_state = 0;
};

} // namespace r7
