// A tone control's editor against the plain form, which asks the model for each point of its curve.
#include "bench/limits/limits.h"
#include "bench/limits/ratio.h"

#include "tests/tonecontrol/plain_response_path.h"
#include "tests/tonecontrol/tone_rig.h"

namespace r7::bench {

void measure_tone_control(Limits& limits)
{
    constexpr std::size_t kPoints = 101;
    ToneRig<Editor> rig;
    Qm_ObjectiveToneControl model;
    design_rig_values(model);
    Path path;
    float level_db = 0.0f;
    const auto turn = [&] { level_db = level_db < 12.0f ? level_db + 0.25f : -12.0f; };
    const auto plain = [&] {
        turn();
        model.setMidFrequency_dbGain_Q(1234, level_db, 0.3f);
        plain_response_path(model, rig.view->mapping(), kPoints, path);
    };
    const auto set_again = [&] {
        rig.view->setLevelMid(level_db);
        rig.view->update_geometry();
    };
    const auto rebuild = [&] {
        turn();
        set_again();
    };
    limits.at_least(30, ratio(plain, rebuild), "tone-control rebuild after one band's change: plain / ours");
    limits.at_least(1000, ratio(plain, set_again), "setter with an unchanged value: plain / ours");
}

} // namespace r7::bench
