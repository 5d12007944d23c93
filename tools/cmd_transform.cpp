// veltra transform: geographic coordinates from one datum to another
// through a geographic transformation given in the text form.
#include "args.h"
#include "commands.h"
#include "points.h"
#include "textkind.h"
#include "veltra.h"

#include <cstdio>

namespace veltra_cli {

namespace {

const char kHelp[] =
    "usage: veltra transform --gt TEXT [--reverse] [--decimals N] [FILE | -]\n"
    "\n"
    "Transforms points through a geographic transformation given as a\n"
    "catalogue code (1241) or a GEOGTRAN text (TEXT itself, or @FILE for a\n"
    "file holding it), from its first GEOGCS to its second, or back with\n"
    "--reverse.  Reads FILE, or\n"
    "standard input, one point per line:\n"
    "\n"
    "  lon lat [height] [rest]\n"
    "\n"
    "longitude and latitude in the source system's angular unit (degrees for\n"
    "UNIT[\"Degree\",...]) relative to its prime meridian, and an optional\n"
    "ellipsoidal height in metres (0 when absent).  Writes\n"
    "\"lon lat [height] [rest]\" in the target system.  Numbers are separated\n"
    "by blanks or a comma; text after them is copied through; blank lines and\n"
    "lines starting with # are copied unchanged.  Grid methods (NADCON, HARN,\n"
    "NTv2) find their files under $KADATAHOME.\n"
    "\n"
    "  --decimals N   write N decimals (default: the shortest exact text)\n"
    "\n"
    "Points the method cannot convert are written as nan, and so are lines\n"
    "that cannot be read (reported on standard error with their line\n"
    "number).  Exit status: 0 all converted, 1 some lines or points failed,\n"
    "2 nothing done (bad options, unreadable GEOGTRAN, missing file).\n";

}  // namespace

int run_transform(int argc, char **argv, int first) {
    Args args(argc, argv, first,
              {{"--gt", true}, {"--reverse", false}, {"--decimals", true},
               {"--help", false}});
    if (!args.ok()) {
        complain(args.error());
        return kExitUsage;
    }
    if (args.flag("--help")) {
        std::fputs(kHelp, stdout);
        return kExitOk;
    }
    OutputFormat format;
    if (!read_format_options(args, format)) return kExitUsage;
    if (args.value("--gt") == nullptr) {
        complain("transform: --gt TEXT is required (a catalogue code, a GEOGTRAN text or @FILE)");
        return kExitUsage;
    }
    if (args.positional().size() > 1) {
        complain("transform: one input FILE at most");
        return kExitUsage;
    }
    std::string text, error;
    if (!load_text(*args.value("--gt"), text, error)) {
        complain("--gt: " + error);
        return kExitUsage;
    }
    auto *geogtran =
        static_cast<ka_geogtran *>(read_required("GEOGTRAN", text, "--gt"));
    if (geogtran == nullptr) return kExitUsage;
    // Grid methods read their grids once here instead of on every batch;
    // equation methods have nothing to load.
    ka_geogtran_load_constants(geogtran);

    const bool reverse = args.flag("--reverse");
    PointJob job{2, 2, true, "two numbers: lon lat [height]",
                 [geogtran, reverse](int n, double *values, double *heights) {
                     if (reverse)
                         ka_geog2_to_geog1(geogtran, n, values, heights);
                     else
                         ka_geog1_to_geog2(geogtran, n, values, heights);
                 }};
    const std::string *path =
        args.positional().empty() ? nullptr : &args.positional()[0];
    const int status = run_point_job(path, job, format);
    ka_geogtran_del(geogtran);
    return status;
}

}  // namespace veltra_cli
