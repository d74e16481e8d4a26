// The panel's messages.
#pragma once

#include <functional>
#include <string_view>

namespace r7 {

/// Logs one line: on standard error, or to the innermost LogCapture of this thread.
void log_message(std::string_view text);

/// While it lives, the messages of this thread go to a receiver instead of standard error. Captures nest.
class LogCapture final {
public:
    using Receiver = std::function<void(std::string_view text)>;

    explicit LogCapture(Receiver receiver);
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

private:
    friend void log_message(std::string_view text);

    Receiver receiver_;
    LogCapture* outer_ = nullptr;
};

} // namespace r7
