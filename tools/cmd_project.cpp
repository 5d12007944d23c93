// veltra project: geographic to projected coordinates (and back) through a
// projected coordinate system given in the text form.
#include "args.h"
#include "commands.h"
#include "points.h"
#include "textkind.h"
#include "veltra.h"

#include <cstdio>

namespace veltra_cli {

namespace {

const char kHelp[] =
    "usage: veltra project --pcs TEXT [--inverse] [--decimals N] [FILE | -]\n"
    "\n"
    "Projects points through a projected coordinate system given as a\n"
    "catalogue code (32633) or a PROJCS text (TEXT itself, or @FILE for a\n"
    "file holding it).  Reads FILE, or standard input, one point per line:\n"
    "\n"
    "  lon lat [rest]   longitude and latitude in the system's angular unit\n"
    "                   (degrees for UNIT[\"Degree\",...]), relative to its\n"
    "                   prime meridian\n"
    "\n"
    "and writes \"x y [rest]\" in the system's linear unit.  With --inverse\n"
    "it reads \"x y [rest]\" and writes \"lon lat [rest]\".  Numbers are\n"
    "separated by blanks or a comma; text after them is copied through;\n"
    "blank lines and lines starting with # are copied unchanged.\n"
    "\n"
    "  --decimals N   write N decimals (default: the shortest exact text)\n"
    "\n"
    "Points the projection cannot convert are written as \"nan nan\", and so\n"
    "are lines that cannot be read (reported on standard error with their\n"
    "line number).  Exit status: 0 all converted, 1 some lines or points\n"
    "failed, 2 nothing done (bad options, unreadable PROJCS, missing file).\n";

}  // namespace

int run_project(int argc, char **argv, int first) {
    Args args(argc, argv, first,
              {{"--pcs", true}, {"--inverse", false}, {"--decimals", true},
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
    if (args.value("--pcs") == nullptr) {
        complain("project: --pcs TEXT is required (a catalogue code, a PROJCS text or @FILE)");
        return kExitUsage;
    }
    if (args.positional().size() > 1) {
        complain("project: one input FILE at most");
        return kExitUsage;
    }
    std::string text, error;
    if (!load_text(*args.value("--pcs"), text, error)) {
        complain("--pcs: " + error);
        return kExitUsage;
    }
    auto *projcs =
        static_cast<ka_projcs *>(read_required("PROJCS", text, "--pcs"));
    if (projcs == nullptr) return kExitUsage;
    // Precomputed constants make long runs faster; without them the
    // projection computes what it needs per call, with the same results.
    ka_projcs_load_constants(projcs);

    const bool inverse = args.flag("--inverse");
    PointJob job{2, 2, false, inverse ? "two numbers: x y" : "two numbers: lon lat",
                 [projcs, inverse](int n, double *values, double *) {
                     if (inverse)
                         ka_proj_to_geog(projcs, n, values);
                     else
                         ka_geog_to_proj(projcs, n, values);
                 }};
    const std::string *path =
        args.positional().empty() ? nullptr : &args.positional()[0];
    const int status = run_point_job(path, job, format);
    ka_projcs_del(projcs);
    return status;
}

}  // namespace veltra_cli
