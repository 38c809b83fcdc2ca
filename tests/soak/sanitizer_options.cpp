// Freed memory is watched for a while, not for hours: what grows then is the program's.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is the sanitizer's
extern "C" const char* __asan_default_options() { return "quarantine_size_mb=16"; }
