// The units and listeners of the process by their handles: the one state that all of the process shares.
#pragma once

#include "platform/audio_toolbox.h"

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

namespace r7 {

class AudioUnitInstance;
class EventListener;

/// What handles stand for. A handle is a count that is never used again, dressed as a pointer, so that one
/// which outlived its object stands for nothing rather than for a newer object. On any thread.
template <typename Handle, typename Pointer>
class HandleTable final {
public:
    Handle add(Pointer object)
    {
        const std::lock_guard lock(mutex_);
        const auto handle = reinterpret_cast<Handle>(++last_handle_); // NOLINT(performance-no-int-to-ptr)
        objects_.emplace(handle, std::move(object));
        return handle;
    }

    /// The object, or an empty pointer.
    Pointer find(Handle handle) const
    {
        const std::lock_guard lock(mutex_);
        const auto found = objects_.find(handle);
        return found != objects_.end() ? found->second : Pointer();
    }

    /// Takes the object out, if it is there.
    Pointer remove(Handle handle)
    {
        const std::lock_guard lock(mutex_);
        auto node = objects_.extract(handle);
        return node ? std::move(node.mapped()) : Pointer();
    }

    /// Calls `action(handle, object)` for each, with the table locked.
    template <typename Action>
    void for_each(Action action) const
    {
        const std::lock_guard lock(mutex_);
        for (const auto& [handle, object] : objects_) action(handle, *object);
    }

private:
    mutable std::mutex mutex_;
    std::map<Handle, Pointer> objects_;
    std::uintptr_t last_handle_ = 0;
};

struct Registry {
    HandleTable<AudioUnit, std::weak_ptr<AudioUnitInstance>> units;
    HandleTable<AUEventListenerRef, std::shared_ptr<EventListener>> listeners;

    std::shared_ptr<AudioUnitInstance> find_unit(AudioUnit handle) const { return units.find(handle).lock(); }

    /// The process's. It is never destroyed: threads may announce until the very end.
    static Registry& shared();
};

} // namespace r7
