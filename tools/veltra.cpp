// veltra: command-line access to the Veltra coordinate-system library.
#include "args.h"
#include "commands.h"
#include "veltra.h"

#include <cstdio>
#include <cstring>

namespace {

const char kUsage[] =
    "usage: veltra COMMAND [OPTIONS] [ARGS]\n"
    "\n"
    "commands:\n"
    "  show TEXT                      print a coordinate-system text as the\n"
    "                                 library writes it\n"
    "  project --pcs TEXT [FILE]      project lon/lat points (--inverse: back)\n"
    "  transform --gt TEXT [FILE]     move lon/lat[/height] points to another\n"
    "                                 datum (--reverse: back)\n"
    "  geod direct|inverse [FILE]     geodesic problems on a spheroid\n"
    "  list KIND [PATTERN]            catalogue codes and names of a kind\n"
    "\n"
    "TEXT is a catalogue code such as 32633, a text such as\n"
    "PROJCS[\"...\",GEOGCS[...],...], or @FILE for a file holding one.  Points\n"
    "are read one per line from FILE or standard input and written to\n"
    "standard output.  'veltra COMMAND --help' tells more.\n"
    "\n"
    "  --version   print the library version\n"
    "  --help      print this help\n";

struct Command {
    const char *name;
    int (*run)(int argc, char **argv, int first);
};

const Command kCommands[] = {
    {"show", veltra_cli::run_show},
    {"project", veltra_cli::run_project},
    {"transform", veltra_cli::run_transform},
    {"geod", veltra_cli::run_geod},
    {"list", veltra_cli::run_list},
};

}  // namespace

int main(int argc, char **argv) {
    if (argc < 2) {
        std::fputs(kUsage, stderr);
        return veltra_cli::kExitUsage;
    }
    const char *command = argv[1];
    if (std::strcmp(command, "--help") == 0 || std::strcmp(command, "-h") == 0 ||
        std::strcmp(command, "help") == 0) {
        std::fputs(kUsage, stdout);
        return veltra_cli::kExitOk;
    }
    if (std::strcmp(command, "--version") == 0) {
        std::printf("%s\n", ka_version());
        return veltra_cli::kExitOk;
    }
    for (const Command &c : kCommands)
        if (std::strcmp(command, c.name) == 0) return c.run(argc, argv, 2);
    veltra_cli::complain(std::string("unknown command '") + command +
                         "' (try veltra --help)");
    return veltra_cli::kExitUsage;
}
