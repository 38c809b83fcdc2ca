// On Wayland the toolkit loads all of the graphics driver, 50 MB, to learn whether windows may have
// frames, for a program that paints without it. Its questions are answered here instead: a library
// that is loaded later finds these functions in the program before it finds the driver's. A display
// that is there and does nothing is what frames want; nobody ever asks it for a context.

#define EGL_NO_X11
#include <EGL/egl.h>

extern "C" {

EGLDisplay eglGetPlatformDisplay(EGLenum, void* display, const EGLAttrib*) { return display; }
EGLBoolean eglInitialize(EGLDisplay, EGLint*, EGLint*) { return EGL_TRUE; }
const char* eglQueryString(EGLDisplay, EGLint) { return ""; }
EGLBoolean eglTerminate(EGLDisplay) { return EGL_TRUE; }
}
