// veltra project: geographic to projected coordinates (and back) through a
// projected coordinate system.
#include "commands.h"
#include "convert.h"
#include "veltra.h"

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

PointJob projection_job(void *object, bool inverse) {
    auto *projcs = static_cast<ka_projcs *>(object);
    // Precomputed constants make long runs faster; without them the
    // projection computes what it needs per call, with the same results.
    ka_projcs_load_constants(projcs);
    return {2, 2, false,
            inverse ? "two numbers: x y" : "two numbers: lon lat",
            [projcs, inverse](int n, double *values, double *) {
                if (inverse)
                    ka_proj_to_geog(projcs, n, values);
                else
                    ka_geog_to_proj(projcs, n, values);
            }};
}

const ConvertCommand kProject{
    "project", kHelp, "--pcs", "PROJCS", "--inverse", projection_job,
    [](void *object) { ka_projcs_del(static_cast<ka_projcs *>(object)); }};

}  // namespace

int run_project(int argc, char **argv, int first) {
    return run_convert(argc, argv, first, kProject);
}

}  // namespace veltra_cli
