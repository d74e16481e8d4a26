// A host of the view bundle as a process of its own.
#include "tests/cocoa/host_process.h"

#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <utility>

namespace r7 {

namespace {

constexpr int kLongestSilence = 30'000; // milliseconds

} // namespace

HostProcess::HostProcess(const std::filesystem::path& bundle)
{
    std::signal(SIGPIPE, SIG_IGN);
    int to_host[2], from_host[2];
    if (::pipe(to_host) != 0 || ::pipe(from_host) != 0) throw std::runtime_error("no pipes");
    process_ = ::fork();
    if (process_ == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        ::dup2(to_host[0], STDIN_FILENO);
        ::dup2(from_host[1], STDOUT_FILENO);
        for (const int file : {to_host[0], to_host[1], from_host[0], from_host[1]}) ::close(file);
        // The slow unwinder sees through Objective-C, and so tells our leaks from those of libraries that are
        // not ours; ten frames are enough for that.
        ::setenv("ASAN_OPTIONS", "detect_leaks=1:fast_unwind_on_malloc=0:malloc_context_size=10", 0);
        ::setenv("LSAN_OPTIONS", "suppressions=" R7_SUPPRESSIONS ":print_suppressions=0", 0);
        ::execl(R7_COCOA_HOST, R7_COCOA_HOST, "-bundle", bundle.c_str(), "-origin", "{100, 100}", nullptr);
        ::_exit(127);
    }
    ::close(to_host[0]);
    ::close(from_host[1]);
    input_ = to_host[1];
    output_ = from_host[0];
}

HostProcess::~HostProcess()
{
    if (process_ > 0) {
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
    }
    ::close(input_);
    ::close(output_);
}

std::string HostProcess::tell(std::string_view command)
{
    const std::string line = std::string(command) + '\n';
    if (::write(input_, line.data(), line.size()) < 0) return "ended";
    for (std::string said; read_line(said); printed_ += said + '\n')
        if (said == "done" || said.starts_with("failed ")) return said;
    return "ended";
}

std::string HostProcess::take_printed()
{
    return std::exchange(printed_, {});
}

int HostProcess::quit()
{
    tell("quit");
    int status = 0;
    ::waitpid(std::exchange(process_, -1), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

bool HostProcess::read_line(std::string& line)
{
    std::size_t end;
    while ((end = unread_.find('\n')) == std::string::npos) {
        pollfd wait{output_, POLLIN, 0};
        char piece[4096];
        if (::poll(&wait, 1, kLongestSilence) != 1) return false;
        const auto count = ::read(output_, piece, sizeof piece);
        if (count <= 0) return false;
        unread_.append(piece, static_cast<std::size_t>(count));
    }
    line = unread_.substr(0, end);
    unread_.erase(0, end + 1);
    return true;
}

} // namespace r7
