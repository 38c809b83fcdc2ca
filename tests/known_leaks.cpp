// Lost in libraries that aren't ours: once per process, or once per lost sound server, per tune or
// per sound font. The names of the functions are the sanitizer's.

// The whole of GLib can't be named where it runs the toolkit's loop: ours would be forgiven, too.
// What the second compiler builds has no such loop, and knows libraries alone.
#ifdef __clang__
#define GLIB "libglib-2.0"
#else
#define GLIB "g_malloc"
#endif

// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libdbus-1\nleak:libfontconfig\nleak:" GLIB
         "\nleak:libpulse\n"
         "leak:libwayland-client\nleak:libxkbcommon\nleak:QGenericUnixServices\n";
}
extern "C" const char* __lsan_default_options() { return "print_suppressions=0"; }
// NOLINTEND(bugprone-reserved-identifier)
