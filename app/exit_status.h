// What the program ends with.
#pragma once

namespace r7 {

enum class ExitStatus {
    done = 0,
    failure = 1,      ///< something could not be written
    usage = 2,        ///< a command line or a session that cannot be understood
    no_display = 3,   ///< there is none, or it was lost
    no_resources = 4, ///< the panel's resources are missing or unusable
};

} // namespace r7
