// Objective-C objects held by C++ ones.
#pragma once

#import <Foundation/Foundation.h>

#include <utility>

namespace r7 {

/// Holds an object by a reference of its own: retained when copied, released at the end.
template <typename T>
class ObjCPtr final {
public:
    ObjCPtr() = default;
    /// Takes over the reference that an `alloc` or a `copy` has made.
    static ObjCPtr adopt(T* object) { return ObjCPtr(object); }
    /// Holds an object that belongs to somebody else, too.
    static ObjCPtr share(T* object) { return ObjCPtr([static_cast<id>(object) retain]); }

    ObjCPtr(const ObjCPtr& other) : object_([static_cast<id>(other.object_) retain]) {}
    ObjCPtr(ObjCPtr&& other) noexcept : object_(std::exchange(other.object_, nil)) {}
    ObjCPtr& operator=(ObjCPtr other) noexcept
    {
        std::swap(object_, other.object_);
        return *this;
    }
    ~ObjCPtr() { [static_cast<id>(object_) release]; }

    T* get() const { return object_; }
    explicit operator bool() const { return object_ != nil; }

private:
    explicit ObjCPtr(T* object) : object_(object) {}

    T* object_ = nil;
};

} // namespace r7
