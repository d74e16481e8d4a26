// A file descriptor watched by the thread's NSRunLoop.
#pragma once

#import <Foundation/Foundation.h>

#include <functional>
#include <memory>

namespace r7 {

/// Calls back, in the default mode of the current thread's run loop, whenever a descriptor can be read.
class DescriptorWatch final {
public:
    DescriptorWatch(int descriptor, std::function<void()> readable);
    ~DescriptorWatch();
    DescriptorWatch(const DescriptorWatch&) = delete;
    DescriptorWatch& operator=(const DescriptorWatch&) = delete;

private:
    void* const descriptor_; // as the run loop wants it
    id const watcher_;
};

} // namespace r7
