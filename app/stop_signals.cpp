// SIGINT and SIGTERM as a source of a run loop.
#include "app/stop_signals.h"

#include <sys/signalfd.h>
#include <unistd.h>

namespace r7 {

StopSignals::StopSignals(std::function<void()> stop) : stop_(std::move(stop))
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    file_ = signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
    if (file_ >= 0) pthread_sigmask(SIG_BLOCK, &signals, &before_);
}

StopSignals::~StopSignals()
{
    if (file_ < 0) return;
    // What was sent once more asked for the end that has come.
    stop_ = [] {};
    serve();
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
    close(file_);
}

void StopSignals::serve()
{
    signalfd_siginfo info;
    while (read(file_, &info, sizeof info) == sizeof info) stop_();
}

} // namespace r7
