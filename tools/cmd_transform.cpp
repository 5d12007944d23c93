// veltra transform: geographic coordinates from one datum to another
// through a geographic transformation.
#include "commands.h"
#include "convert.h"
#include "veltra.h"

namespace veltra_cli {

namespace {

const char kHelp[] =
    "usage: veltra transform --gt TEXT [--reverse] [--decimals N] [FILE | -]\n"
    "\n"
    "Transforms points through a geographic transformation given as a\n"
    "catalogue code (1238) or a GEOGTRAN text (TEXT itself, or @FILE for a\n"
    "file holding it), from its first GEOGCS to its second, or back with\n"
    "--reverse.  Reads FILE, or standard input, one point per line:\n"
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

PointJob transformation_job(void *object, bool reverse) {
    auto *geogtran = static_cast<ka_geogtran *>(object);
    // Grid methods read their grids once here instead of on every batch;
    // equation methods have nothing to load.
    ka_geogtran_load_constants(geogtran);
    return {2, 2, true, "two numbers: lon lat [height]",
            [geogtran, reverse](int n, double *values, double *heights) {
                if (reverse)
                    ka_geog2_to_geog1(geogtran, n, values, heights);
                else
                    ka_geog1_to_geog2(geogtran, n, values, heights);
            }};
}

const ConvertCommand kTransform{
    "transform", kHelp, "--gt", "GEOGTRAN", "--reverse", transformation_job,
    [](void *object) { ka_geogtran_del(static_cast<ka_geogtran *>(object)); }};

}  // namespace

int run_transform(int argc, char **argv, int first) {
    return run_convert(argc, argv, first, kTransform);
}

}  // namespace veltra_cli
