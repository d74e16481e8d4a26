// EGL and OpenGL, loaded when they are first needed.
#include "platform/egl/egl_library.h"

#include <dlfcn.h>

#include <array>
#include <optional>
#include <span>

namespace r7 {

namespace {

template <typename Function, typename Address>
bool assign(Function& function, Address address)
{
    function = reinterpret_cast<Function>(address);
    return function != nullptr;
}

bool load_functions(EglLibrary& egl)
{
    void* const library = dlopen("libEGL.so.1", RTLD_NOW | RTLD_LOCAL);
    if (!library) return false;
#define R7_LOAD(name, result, arguments) &&assign(egl.name, dlsym(library, #name))
    if (!(true R7_EGL_FUNCTIONS(R7_LOAD))) return false;
#undef R7_LOAD
#define R7_LOAD(name, result, arguments) &&assign(egl.name, egl.eglGetProcAddress(#name))
    return true R7_GL_FUNCTIONS(R7_LOAD);
#undef R7_LOAD
}

bool initialize(EglLibrary& egl, unsigned platform, void* native_display)
{
    egl.display = egl.eglGetPlatformDisplay(platform, native_display, nullptr);
    return egl.display && egl.eglInitialize(egl.display, nullptr, nullptr);
}

// A display without a window system: by the driver's choice, else of the first device that has one. It stays
// initialised, for a host may use the same.
bool open_display(EglLibrary& egl)
{
    if (initialize(egl, EGL_PLATFORM_SURFACELESS_MESA, nullptr)) return true;
    unsigned (*query_devices)(std::int32_t most, void** devices, std::int32_t* count) = nullptr;
    std::array<void*, 16> devices{};
    std::int32_t count = 0;
    if (!assign(query_devices, egl.eglGetProcAddress("eglQueryDevicesEXT")) ||
        !query_devices(static_cast<std::int32_t>(devices.size()), devices.data(), &count))
        return false;
    for (void* device : std::span(devices).first(static_cast<std::size_t>(count)))
        if (initialize(egl, EGL_PLATFORM_DEVICE_EXT, device)) return true;
    return false;
}

std::optional<EglLibrary> loaded()
{
    EglLibrary egl;
    if (!load_functions(egl) || !open_display(egl)) return std::nullopt;
    return egl;
}

} // namespace

const EglLibrary* EglLibrary::get()
{
    static const std::optional<EglLibrary> library = loaded();
    return library ? &*library : nullptr;
}

} // namespace r7
