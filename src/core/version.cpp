// The library's version string.
#include "veltra.h"

namespace {
const char *const kVersion = "Veltra Version 8.2 (Nov 19 2002)";
}

extern "C" KA_API const char *ka_version(void) { return kVersion; }
