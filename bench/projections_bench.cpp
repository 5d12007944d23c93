// Forward and inverse projection of 1e6 points, with and without loaded
// constants, beside the same operation through PROJ (an operation created
// once from explicit parameters, radians in, proj_trans_generic).  Reports
// nanoseconds per point.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "projections/registry.h"
#include "veltra.h"

#if VELTRA_HAVE_PROJ
#include <proj.h>
#endif

namespace {

constexpr int kPoints = 1000000;
constexpr double kDegree = 0.017453292519943295;

struct Region {
    double west, east, south, north;  // degrees
};

struct Case {
    const char *label;
    const char *projection;
    double flattening;  // of a spheroid of axis 6378137
    double central_meridian, standard_parallel, scale_factor;
    Region region;
    const char *proj;  // the same projection in PROJ's terms
};

constexpr double kWgs84F = 1 / 298.257223563;
constexpr Region kZone = {-78, -72, -80, 84};
constexpr Region kWorld = {-180, 180, -85, 85};

// Gauss_Kruger runs the same routines as Transverse_Mercator; it is set
// beside PROJ's series algorithm (+approx) rather than its exact default.
const Case kCases[] = {
    {"Transverse_Mercator", "Transverse_Mercator", kWgs84F, -75, 0, 0.9996,
     kZone, "+proj=tmerc +ellps=WGS84 +lon_0=-75 +k=0.9996"},
    {"Gauss_Kruger", "Gauss_Kruger", kWgs84F, -75, 0, 0.9996, kZone,
     "+proj=tmerc +approx +ellps=WGS84 +lon_0=-75 +k=0.9996"},
    {"Mercator", "Mercator", kWgs84F, 0, 0, 1, kWorld,
     "+proj=merc +ellps=WGS84"},
    {"Plate_Carree", "Plate_Carree", kWgs84F, 0, 0, 1, kWorld,
     "+proj=eqc +R=6378137"},
    {"Equidistant_Cylindrical", "Equidistant_Cylindrical", kWgs84F, 0, 30, 1,
     kWorld, "+proj=eqc +R=6378137 +lat_ts=30"},
    {"Miller_Cylindrical", "Miller_Cylindrical", kWgs84F, 0, 0, 1, kWorld,
     "+proj=mill +R=6378137"},
    {"Gall_Stereographic", "Gall_Stereographic", kWgs84F, 0, 0, 1, kWorld,
     "+proj=gall +R=6378137"},
    {"Cylindrical_Equal_Area", "Cylindrical_Equal_Area", kWgs84F, 0, 30, 1,
     kWorld, "+proj=cea +ellps=WGS84 +lat_ts=30"},
    {"Behrmann", "Behrmann", kWgs84F, 0, 0, 1, kWorld,
     "+proj=cea +ellps=WGS84 +lat_ts=30"},
};

// Deterministic points spread over a region, in radians.
std::vector<double> radians_in(const Region &r) {
    std::vector<double> points(2 * kPoints);
    std::uint64_t state = 0x9E3779B97F4A7C15ULL;
    auto uniform = [&state] {
        state = state * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<double>(state >> 11) * 0x1p-53;
    };
    for (int i = 0; i < kPoints; ++i) {
        points[2 * i] = (r.west + (r.east - r.west) * uniform()) * kDegree;
        points[2 * i + 1] =
            (r.south + (r.north - r.south) * uniform()) * kDegree;
    }
    return points;
}

// A projected system in radians and metres, so the driver hands the points
// to the routine unchanged.
ka_projcs *make_system(const Case &c) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    slots[2] =
        ka_parameter_new("Central_Meridian", c.central_meridian * kDegree);
    slots[3] =
        ka_parameter_new("Standard_Parallel_1", c.standard_parallel * kDegree);
    slots[5] = ka_parameter_new("Scale_Factor", c.scale_factor);
    ka_geogcs *geogcs = ka_geogcs_new(
        "GCS", ka_datum_new("D", ka_spheroid_new("S", 6378137, c.flattening)),
        ka_primem_new("Greenwich", 0), ka_unit_new("Radian", 1));
    return ka_projcs_new("PCS", geogcs,
                         veltra::registry_projection(c.projection), slots,
                         ka_unit_new("Meter", 1));
}

void report(benchmark::State &state) {
    const double points = static_cast<double>(state.iterations()) * kPoints;
    state.SetItemsProcessed(static_cast<std::int64_t>(points));
    // Seconds per point, shown with an SI prefix (e.g. "35.2n" is 35.2 ns).
    state.counters["per_point"] = benchmark::Counter(
        points, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

// Forward (or inverse, from the forward's output) through ka_geog_to_proj.
void ours(benchmark::State &state, const Case &c, bool inverse, bool loaded) {
    ka_projcs *pcs = make_system(c);
    if (loaded) ka_projcs_load_constants(pcs);
    std::vector<double> input = radians_in(c.region);
    if (inverse) ka_geog_to_proj(pcs, kPoints, input.data());
    std::vector<double> work(input.size());
    for (auto _ : state) {
        state.PauseTiming();
        std::memcpy(work.data(), input.data(), input.size() * sizeof(double));
        state.ResumeTiming();
        const int count = inverse ? ka_proj_to_geog(pcs, kPoints, work.data())
                                  : ka_geog_to_proj(pcs, kPoints, work.data());
        benchmark::DoNotOptimize(count);
        benchmark::ClobberMemory();
    }
    report(state);
    ka_projcs_del(pcs);
}

#if VELTRA_HAVE_PROJ
void peer(benchmark::State &state, const Case &c, bool inverse) {
    PJ_CONTEXT *context = proj_context_create();
    PJ *pj = proj_create(context, c.proj);
    if (pj == nullptr) {
        state.SkipWithError("PROJ rejected the definition");
        proj_context_destroy(context);
        return;
    }
    std::vector<double> input = radians_in(c.region);
    const std::size_t stride = 2 * sizeof(double);
    if (inverse)
        proj_trans_generic(pj, PJ_FWD, input.data(), stride, kPoints,
                           input.data() + 1, stride, kPoints, nullptr, 0, 0,
                           nullptr, 0, 0);
    std::vector<double> work(input.size());
    for (auto _ : state) {
        state.PauseTiming();
        std::memcpy(work.data(), input.data(), input.size() * sizeof(double));
        state.ResumeTiming();
        const std::size_t count = proj_trans_generic(
            pj, inverse ? PJ_INV : PJ_FWD, work.data(), stride, kPoints,
            work.data() + 1, stride, kPoints, nullptr, 0, 0, nullptr, 0, 0);
        benchmark::DoNotOptimize(count);
        benchmark::ClobberMemory();
    }
    report(state);
    proj_destroy(pj);
    proj_context_destroy(context);
}
#endif

void register_all() {
    for (const Case &c : kCases) {
        for (bool inverse : {false, true}) {
            const std::string op = inverse ? "/inverse" : "/forward";
            for (bool loaded : {false, true})
                benchmark::RegisterBenchmark(
                    (std::string("veltra/") + c.label + op +
                     (loaded ? "/loaded" : "/unloaded"))
                        .c_str(),
                    [&c, inverse, loaded](benchmark::State &s) {
                        ours(s, c, inverse, loaded);
                    })
                    ->Unit(benchmark::kMillisecond);
#if VELTRA_HAVE_PROJ
            benchmark::RegisterBenchmark(
                (std::string("proj/") + c.label + op + " [" + c.proj + "]")
                    .c_str(),
                [&c, inverse](benchmark::State &s) { peer(s, c, inverse); })
                ->Unit(benchmark::kMillisecond);
#endif
        }
    }
}

}  // namespace

int main(int argc, char **argv) {
    register_all();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
