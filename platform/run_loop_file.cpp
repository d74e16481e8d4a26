// One epoll file over the sources' files, the loop's waker and a timer.
#include "platform/run_loop_file.h"

#include <sys/epoll.h>
#include <sys/timerfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace r7 {

RunLoopFile::RunLoopFile(RunLoop& loop)
    : loop_(loop),
      timer_(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)),
      ready_(::epoll_create1(EPOLL_CLOEXEC))
{
    epoll_event readable{.events = EPOLLIN, .data = {}};
    if (timer_ < 0 || ready_ < 0 || ::epoll_ctl(ready_, EPOLL_CTL_ADD, timer_, &readable) != 0) {
        const int error = errno;
        ::close(timer_);
        ::close(ready_);
        throw std::system_error(error, std::generic_category(), "run loop file");
    }
    watch();
}

RunLoopFile::~RunLoopFile()
{
    ::close(ready_);
    ::close(timer_);
}

void RunLoopFile::turn()
{
    loop_.turn(Time{0});
    watch();
}

void RunLoopFile::watch()
{
    const RunLoop::Prospect prospect = loop_.ask(RunLoopMode::standard);

    // Every file is added again: one that was closed has left by itself, and its number may be another file's
    // now.
    for (const int file : watched_)
        if (std::ranges::find(prospect.files, file) == prospect.files.end())
            ::epoll_ctl(ready_, EPOLL_CTL_DEL, file, nullptr);
    for (const int file : prospect.files) {
        epoll_event readable{.events = EPOLLIN, .data = {}};
        if (file >= 0) ::epoll_ctl(ready_, EPOLL_CTL_ADD, file, &readable);
    }
    watched_ = prospect.files;

    itimerspec alarm{}; // of zeros: none
    if (prospect.sleep) {
        // A timer of zero would be none, too.
        const auto sleep = std::max(*prospect.sleep, Time{1});
        const auto seconds = std::chrono::floor<std::chrono::seconds>(sleep);
        alarm.it_value = {.tv_sec = seconds.count(), .tv_nsec = (sleep - seconds).count()};
    }
    ::timerfd_settime(timer_, 0, &alarm, nullptr);
}

} // namespace r7
