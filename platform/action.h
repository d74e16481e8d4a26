// The callback pair of a control: what to tell, and whom.
#pragma once

#include <memory>
#include <utility>

namespace r7 {

class View;

/// Somebody whom controls call back.
class ActionTarget {
public:
    virtual ~ActionTarget() = default;

protected:
    ActionTarget() = default;
    ActionTarget(const ActionTarget&) = default;
    ActionTarget& operator=(const ActionTarget&) = default;
};

using ActionTargetRef = std::shared_ptr<ActionTarget>;

/// What is done to the target, with the control that asks for it as the only argument. A null pointer is no
/// action.
using Action = void (*)(ActionTarget& target, View& sender);

/// An action and its target, stored together or not at all.
class Callback final {
public:
    /// Stores the pair, and retains the target, if both are given; otherwise nothing changes.
    void set(Action new_action, ActionTargetRef new_target)
    {
        if (!new_action || !new_target) return;
        action_ = new_action;
        target_ = std::move(new_target);
    }

    /// Lets the target go.
    void clear() { target_.reset(); }

    bool is_set() const { return target_ != nullptr; }
    /// The stored action; meaningful while is_set().
    Action action() const { return action_; }

    /// Performs the action, if a pair is stored. The target lives until it returns, even when the pair is
    /// replaced or the sender is destroyed meanwhile: the caller touches nothing of a sender that it does not
    /// hold itself.
    void send(View& sender) const
    {
        if (const ActionTargetRef target = target_) action_(*target, sender);
    }

private:
    Action action_ = nullptr;
    ActionTargetRef target_;
};

} // namespace r7
