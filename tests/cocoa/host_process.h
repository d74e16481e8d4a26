// A host of the view bundle as a process of its own.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include <sys/types.h>

namespace r7 {

/// Runs the test host over a bundle; ends with the object, or with this process.
class HostProcess final {
public:
    /// The view's window will lie at (100, 100) of the screen, like a session's.
    explicit HostProcess(const std::filesystem::path& bundle);
    ~HostProcess();
    HostProcess(const HostProcess&) = delete;
    HostProcess& operator=(const HostProcess&) = delete;

    /// Gives it a command (app/cocoa_host/panel_host.h) and waits for the answer; "ended" where there is
    /// none.
    std::string tell(std::string_view command);
    /// The lines that it printed between its answers since the last call.
    std::string take_printed();
    /// Lets it end. The exit status, or the signal that ended it, negated.
    int quit();

private:
    // One line without its end, or nothing where the process ends or falls silent for too long.
    bool read_line(std::string& line);

    pid_t process_ = -1;
    int input_ = -1;
    int output_ = -1;
    std::string unread_;
    std::string printed_;
};

} // namespace r7
