// EGL and OpenGL, loaded when they are first needed.
//
// What is called of them is declared here, under the names and with the numbers of the Khronos registry:
// nobody needs the two libraries to build the program.
#pragma once

#include <cstdint>

namespace r7 {

using EGLDisplay = void*;
using EGLConfig = void*;
using EGLContext = void*;
using EGLSurface = void*;
using EGLFunction = void (*)();

inline constexpr std::int32_t EGL_ALPHA_SIZE = 0x3021;
inline constexpr std::int32_t EGL_BLUE_SIZE = 0x3022;
inline constexpr std::int32_t EGL_GREEN_SIZE = 0x3023;
inline constexpr std::int32_t EGL_RED_SIZE = 0x3024;
inline constexpr std::int32_t EGL_SURFACE_TYPE = 0x3033;
inline constexpr std::int32_t EGL_PBUFFER_BIT = 0x0001;
inline constexpr std::int32_t EGL_NONE = 0x3038;
inline constexpr std::int32_t EGL_RENDERABLE_TYPE = 0x3040;
inline constexpr std::int32_t EGL_OPENGL_BIT = 0x0008;
inline constexpr std::int32_t EGL_HEIGHT = 0x3056;
inline constexpr std::int32_t EGL_WIDTH = 0x3057;
inline constexpr std::int32_t EGL_DRAW = 0x3059;
inline constexpr std::int32_t EGL_READ = 0x305A;
inline constexpr unsigned EGL_OPENGL_API = 0x30A2;
inline constexpr unsigned EGL_PLATFORM_DEVICE_EXT = 0x313F;
inline constexpr unsigned EGL_PLATFORM_SURFACELESS_MESA = 0x31DD;

inline constexpr unsigned GL_CULL_FACE = 0x0B44;
inline constexpr unsigned GL_DEPTH_TEST = 0x0B71;
inline constexpr unsigned GL_ALPHA_TEST = 0x0BC0;
inline constexpr unsigned GL_DITHER = 0x0BD0;
inline constexpr unsigned GL_BLEND = 0x0BE2;
inline constexpr unsigned GL_SCISSOR_TEST = 0x0C11;
inline constexpr unsigned GL_PERSPECTIVE_CORRECTION_HINT = 0x0C50;
inline constexpr unsigned GL_FASTEST = 0x1101;
inline constexpr unsigned GL_MODELVIEW = 0x1700;
inline constexpr unsigned GL_PROJECTION = 0x1701;
inline constexpr unsigned GL_COLOR_BUFFER_BIT = 0x4000;
inline constexpr unsigned GL_BGRA = 0x80E1;
inline constexpr unsigned GL_UNSIGNED_INT_8_8_8_8_REV = 0x8367;

// clang-format off
/// `of(name, result, (arguments))` for each function that is called.
#define R7_EGL_FUNCTIONS(of) \
    of(eglBindAPI, unsigned, (unsigned api)) \
    of(eglChooseConfig, unsigned, (EGLDisplay, const std::int32_t* wanted, EGLConfig*, std::int32_t most, std::int32_t* count)) \
    of(eglCreateContext, EGLContext, (EGLDisplay, EGLConfig, EGLContext shared, const std::int32_t* attributes)) \
    of(eglCreatePbufferSurface, EGLSurface, (EGLDisplay, EGLConfig, const std::int32_t* attributes)) \
    of(eglDestroyContext, unsigned, (EGLDisplay, EGLContext)) \
    of(eglDestroySurface, unsigned, (EGLDisplay, EGLSurface)) \
    of(eglGetCurrentContext, EGLContext, ()) \
    of(eglGetCurrentDisplay, EGLDisplay, ()) \
    of(eglGetCurrentSurface, EGLSurface, (std::int32_t which)) \
    of(eglGetPlatformDisplay, EGLDisplay, (unsigned platform, void* native, const std::intptr_t* attributes)) \
    of(eglGetProcAddress, EGLFunction, (const char* name)) \
    of(eglInitialize, unsigned, (EGLDisplay, std::int32_t* major, std::int32_t* minor)) \
    of(eglMakeCurrent, unsigned, (EGLDisplay, EGLSurface draw, EGLSurface read, EGLContext)) \
    of(eglQueryAPI, unsigned, ()) \
    of(eglSwapInterval, unsigned, (EGLDisplay, std::int32_t interval))
#define R7_GL_FUNCTIONS(of) \
    of(glClear, void, (unsigned buffers)) \
    of(glClearColor, void, (float red, float green, float blue, float alpha)) \
    of(glColorMask, void, (unsigned char red, unsigned char green, unsigned char blue, unsigned char alpha)) \
    of(glDepthMask, void, (unsigned char enabled)) \
    of(glDisable, void, (unsigned capability)) \
    of(glDrawPixels, void, (int width, int height, unsigned format, unsigned type, const void* pixels)) \
    of(glEnable, void, (unsigned capability)) \
    of(glFlush, void, ()) \
    of(glHint, void, (unsigned target, unsigned mode)) \
    of(glLoadIdentity, void, ()) \
    of(glMatrixMode, void, (unsigned mode)) \
    of(glOrtho, void, (double left, double right, double bottom, double top, double near, double far)) \
    of(glRasterPos2d, void, (double x, double y)) \
    of(glReadPixels, void, (int x, int y, int width, int height, unsigned format, unsigned type, void* pixels)) \
    of(glScissor, void, (int x, int y, int width, int height)) \
    of(glStencilMask, void, (unsigned bits)) \
    of(glViewport, void, (int x, int y, int width, int height))
// clang-format on

/// The functions under their own names, and a display to call them for.
struct EglLibrary {
#define R7_DECLARE(name, result, arguments) result(*name) arguments = nullptr;
    R7_EGL_FUNCTIONS(R7_DECLARE)
    R7_GL_FUNCTIONS(R7_DECLARE)
#undef R7_DECLARE
    /// Initialised; of no window system.
    EGLDisplay display = nullptr;

    /// Loaded with the first call, and from then on for the whole life of the process: a driver's threads do
    /// not end when a library is unloaded. Null where there is no such library or display. From any thread.
    static const EglLibrary* get();
};

} // namespace r7
