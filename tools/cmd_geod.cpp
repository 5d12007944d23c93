// veltra geod: the direct and inverse geodesic problems on a spheroid, one
// line at a time, in degrees and metres.
#include "args.h"
#include "commands.h"
#include "points.h"
#include "veltra.h"

#include <cstdio>
#include <string>

namespace veltra_cli {

namespace {

const char kHelp[] =
    "usage: veltra geod direct|inverse [--spheroid TEXT] [--decimals N]\n"
    "                                  [FILE | -]\n"
    "\n"
    "Solves geodesic problems on a spheroid, one per line of FILE or\n"
    "standard input.  Angles are in degrees, azimuths clockwise from north,\n"
    "distances in metres (the unit of the spheroid's axis).\n"
    "\n"
    "  direct:   lon1 lat1 azimuth distance [rest]  ->  lon2 lat2 [rest]\n"
    "            the point reached from (lon1, lat1) after distance along\n"
    "            the geodesic leaving with azimuth\n"
    "  inverse:  lon1 lat1 lon2 lat2 [rest]  ->  distance azimuth1 azimuth2 [rest]\n"
    "            the geodesic distance, the azimuth at the first point\n"
    "            towards the second, and the azimuth at the second point\n"
    "            towards the first\n"
    "\n"
    "  --spheroid TEXT  the spheroid: any text holding a\n"
    "                   SPHEROID[\"name\",axis,inverse flattening] (a SPHEROID,\n"
    "                   DATUM, GEOGCS or PROJCS text, or @FILE); default WGS 84,\n"
    "                   SPHEROID[\"WGS_1984\",6378137.0,298.257223563]\n"
    "  --decimals N     write N decimals (default: the shortest exact text)\n"
    "\n"
    "Numbers are separated by blanks or a comma; text after them is copied\n"
    "through; blank lines and lines starting with # are copied unchanged.\n"
    "Lines that cannot be read are reported on standard error with their\n"
    "line number and written as nan.  Exit status: 0 all solved, 1 some\n"
    "lines failed, 2 nothing done.\n";

const char kWgs84[] = "SPHEROID[\"WGS_1984\",6378137.0,298.257223563]";
constexpr double kDegree = 0.017453292519943295;  // pi / 180

}  // namespace

int run_geod(int argc, char **argv, int first) {
    Args args(argc, argv, first,
              {{"--spheroid", true}, {"--decimals", true}, {"--help", false}});
    if (int status = options_exit(args, kHelp); status >= 0) return status;
    OutputFormat format;
    if (!read_format_options(args, format)) return kExitUsage;
    const auto &positional = args.positional();
    if (positional.empty() ||
        (positional[0] != "direct" && positional[0] != "inverse")) {
        complain("geod: expected 'direct' or 'inverse' (try veltra geod --help)");
        return kExitUsage;
    }
    if (positional.size() > 2) {
        complain("geod: one input FILE at most");
        return kExitUsage;
    }

    std::string text = kWgs84, error;
    if (const std::string *given = args.value("--spheroid");
        given != nullptr && !load_text(*given, text, error)) {
        complain("--spheroid: " + error);
        return kExitUsage;
    }
    ka_spheroid *spheroid = ka_spheroid_from_string(text.c_str());
    if (spheroid == nullptr) {
        complain("--spheroid: no readable SPHEROID[\"name\",axis,inverse "
                 "flattening] with an axis > 0");
        return kExitUsage;
    }
    const double a = ka_spheroid_axis(spheroid);
    const double f = ka_spheroid_flattening(spheroid);
    const double e2 = (2 - f) * f;
    ka_spheroid_del(spheroid);

    PointJob job;
    if (positional[0] == "direct") {
        job = {4, 2, false, "four numbers: lon1 lat1 azimuth distance",
               [a, e2](int n, double *v, double *) {
                   for (int i = 0; i < n; ++i, v += 4) {
                       double lon2 = 0, lat2 = 0;
                       ka_geodesic_coordinate(a, e2, v[0] * kDegree,
                                              v[1] * kDegree, v[3],
                                              v[2] * kDegree, &lon2, &lat2);
                       v[0] = lon2 / kDegree;
                       v[1] = lat2 / kDegree;
                   }
               }};
    } else {
        job = {4, 3, false, "four numbers: lon1 lat1 lon2 lat2",
               [a, e2](int n, double *v, double *) {
                   for (int i = 0; i < n; ++i, v += 4) {
                       double distance = 0, az12 = 0, az21 = 0;
                       ka_geodesic_distance(a, e2, v[0] * kDegree,
                                            v[1] * kDegree, v[2] * kDegree,
                                            v[3] * kDegree, &distance, &az12,
                                            &az21);
                       v[0] = distance;
                       v[1] = az12 / kDegree;
                       v[2] = az21 / kDegree;
                   }
               }};
    }
    const std::string *path = positional.size() > 1 ? &positional[1] : nullptr;
    return run_point_job(path, job, format);
}

}  // namespace veltra_cli
