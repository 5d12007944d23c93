// veltra show: reads any of the ten kinds of the text form and prints it as
// the library writes it.
#include "args.h"
#include "commands.h"
#include "textkind.h"
#include "veltra.h"

#include <cstdio>

namespace veltra_cli {

namespace {

const char kHelp[] =
    "usage: veltra show [--kind] [CODE | TEXT | @FILE | -]\n"
    "\n"
    "Reads a coordinate-system text (PROJCS, GEOGCS, GEOGTRAN, DATUM,\n"
    "SPHEROID, PRIMEM, UNIT, PROJECTION, PARAMETER or METHOD, told apart by\n"
    "its first keyword), or builds the catalogue object of a CODE such as\n"
    "4326, and prints it as the library writes it: one line, no blanks,\n"
    "parameters in slot order.  TEXT may be the text itself, @FILE for a\n"
    "file holding it, or - (or nothing) for standard input.\n"
    "\n"
    "  --kind   print the kind (projcs, geogcs, ...) on a line before the text\n";

}  // namespace

int run_show(int argc, char **argv, int first) {
    Args args(argc, argv, first, {{"--kind", false}, {"--help", false}});
    if (int status = options_exit(args, kHelp); status >= 0) return status;
    if (args.positional().size() > 1) {
        complain("show: one TEXT at most (quote the text)");
        return kExitUsage;
    }
    std::string text, error;
    if (!load_text(args.positional().empty() ? "-" : args.positional()[0], text,
                   error)) {
        complain(error);
        return kExitUsage;
    }
    const TextKind *kind = nullptr;
    std::string why;
    void *object = read_any(text, kind, why);
    if (object == nullptr) {
        complain(why);
        return kExitUsage;
    }
    char written[KA_TEXT_MAX];
    kind->write(object, written);
    kind->del(object);
    if (args.flag("--kind")) std::printf("%s\n", kind->name);
    std::printf("%s\n", written);
    return kExitOk;
}

}  // namespace veltra_cli
