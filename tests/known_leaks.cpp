// Lost in libraries that aren't ours: once per process, or once per lost sound server, per tune or
// per sound font. The names of the functions are the sanitizer's.

// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libdbus-1\nleak:libfontconfig\nleak:libglib-2.0\nleak:libpulse\n"
         "leak:libwayland-client\nleak:libxkbcommon\nleak:QGenericUnixServices\n";
}
extern "C" const char* __lsan_default_options() { return "print_suppressions=0"; }
// NOLINTEND(bugprone-reserved-identifier)
