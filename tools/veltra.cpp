// veltra: command-line access to the Veltra coordinate-system library.
#include "veltra.h"

#include <cstdio>
#include <cstring>

namespace {

const char kUsage[] =
    "usage: veltra [--version | --help]\n"
    "\n"
    "  --version   print the library version\n"
    "  --help      print this help\n";

}  // namespace

int main(int argc, char **argv) {
    if (argc < 2 || std::strcmp(argv[1], "--help") == 0 ||
        std::strcmp(argv[1], "-h") == 0) {
        std::fputs(kUsage, argc < 2 ? stderr : stdout);
        return argc < 2 ? 2 : 0;
    }
    if (std::strcmp(argv[1], "--version") == 0) {
        std::printf("%s\n", ka_version());
        return 0;
    }
    std::fprintf(stderr, "veltra: unknown command '%s' (try --help)\n", argv[1]);
    return 2;
}
