// The log is the system's.
#include "platform/cocoa/conversions.h"
#include "platform/log.h"

namespace r7 {

void write_log_line(std::string_view text)
{
    NSLog(@"%@", to_native(text));
}

} // namespace r7
