// The panel's messages, and who hears them.
#include "platform/log.h"

#include <utility>

namespace r7 {

namespace {
thread_local LogCapture* innermost = nullptr;
}

void log_message(std::string_view text)
{
    if (innermost) {
        innermost->receiver_(text);
        return;
    }
    write_log_line(text);
}

LogCapture::LogCapture(Receiver receiver) : receiver_(std::move(receiver)), outer_(innermost)
{
    innermost = this;
}

LogCapture::~LogCapture()
{
    innermost = outer_;
}

} // namespace r7
