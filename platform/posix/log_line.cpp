// The log is standard error.
#include "platform/log.h"

#include <cstdio>

namespace r7 {

void write_log_line(std::string_view text)
{
    std::fprintf(stderr, "%.*s\n", static_cast<int>(text.size()), text.data());
}

} // namespace r7
