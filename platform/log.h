// The panel's messages.
#pragma once

#include <functional>
#include <string_view>

namespace r7 {

/// Logs one line: where the platform's log is (write_log_line), or to the innermost LogCapture of this
/// thread.
void log_message(std::string_view text);

/// Writes one line to the platform's log: standard error, or a Mac's system log. Implemented once for each.
void write_log_line(std::string_view text);

/// While it lives, the messages of this thread go to a receiver instead. Captures nest.
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
