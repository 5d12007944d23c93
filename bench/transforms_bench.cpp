// Datum transformations over 1e6 points: every equation method forward and
// inverse through the public drivers, beside the same operation through
// PROJ (a pipeline with explicit parameters, created once outside the timed
// loop, run with proj_trans_generic over the same interleaved array).  Both
// sides take and return radians and metres.  The counter ns_per_point is
// the CPU time per point in nanoseconds (the console prints it as an
// inverted rate, with an "s" after the number).
#include "veltra.h"

#include <benchmark/benchmark.h>

#if VELTRA_HAVE_PROJ
#include <proj.h>
#endif

#include <cstdint>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr int kPoints = 1000000;
constexpr double kDegree = std::numbers::pi / 180;

// Points over the globe between 80 S and 80 N with heights up to 1 km, from
// a fixed linear congruential sequence.
struct Points {
    std::vector<double> coords;   // longitude, latitude pairs (radians)
    std::vector<double> heights;  // metres
};

const Points &sample() {
    static const Points points = [] {
        Points p;
        p.coords.resize(2 * kPoints);
        p.heights.resize(kPoints);
        std::uint64_t state = 12345;
        auto next = [&state] {
            state = state * 6364136223846793005ULL + 1442695040888963407ULL;
            return static_cast<double>(state >> 11) * 0x1p-53;  // [0, 1)
        };
        for (int i = 0; i < kPoints; ++i) {
            p.coords[2 * i] = (-180 + 360 * next()) * kDegree;
            p.coords[2 * i + 1] = (-80 + 160 * next()) * kDegree;
            p.heights[i] = 1000 * next();
        }
        return p;
    }();
    return points;
}

void set_counters(benchmark::State &state) {
    state.SetItemsProcessed(state.iterations() * kPoints);
    state.counters["ns_per_point"] = benchmark::Counter(
        kPoints * 1e-9,
        benchmark::Counter::kIsIterationInvariantRate |
            benchmark::Counter::kInvert);
}

// Fresh copy of the sample before each timed pass, outside the timing.
void refill(benchmark::State &state, Points &work) {
    state.PauseTiming();
    work = sample();
    state.ResumeTiming();
}

// ---------------------------------------------------------------------------
// The transformations: catalogue method code, parameters, ellipsoids, and
// the equivalent PROJ step.

struct Ellipsoid {
    const char *name;
    double axis, inverse_flattening;
    const char *proj;  // PROJ arguments
};

constexpr Ellipsoid kWgs84{"WGS_1984", 6378137.0, 298.257223563,
                           "+a=6378137 +rf=298.257223563"};
constexpr Ellipsoid kClarke1880Ign{"Clarke_1880_IGN", 6378249.2,
                                   293.4660212936269,
                                   "+a=6378249.2 +rf=293.4660212936269"};
constexpr Ellipsoid kInternational1924{"International_1924", 6378388.0, 297.0,
                                       "+a=6378388 +rf=297"};

struct Case {
    int method;
    const Ellipsoid *from;
    const Ellipsoid *to;
    std::vector<std::pair<int, double>> parameters;
    double meridian2;        // degrees, longitude rotation only
    std::string proj_step;   // geocentric step, or the whole operation
    bool proj_geocentric;    // wrap proj_step between cart and inverse cart
};

const Case kGeocentricTranslation{
    9603, &kClarke1880Ign, &kWgs84,
    {{100040, -168}, {100041, -60}, {100042, 320}}, 0,
    "+proj=helmert +x=-168 +y=-60 +z=320", true};

const std::vector<std::pair<int, double>> kSevenParameters{
    {100040, 582}, {100041, 105}, {100042, 414}, {100043, 1.04},
    {100044, 0.35}, {100045, -3.08}, {100046, 8.3}};
const char *const kHelmert =
    "+proj=helmert +exact +x=582 +y=105 +z=414 +rx=1.04 +ry=0.35 +rz=-3.08 "
    "+s=8.3 +convention=";

const Case kCoordinateFrame{9607, &kClarke1880Ign, &kWgs84, kSevenParameters,
                            0, std::string(kHelmert) + "coordinate_frame",
                            true};
const Case kBursaWolf{109607, &kClarke1880Ign, &kWgs84, kSevenParameters, 0,
                      std::string(kHelmert) + "coordinate_frame", true};
const Case kPositionVector{9606, &kClarke1880Ign, &kWgs84, kSevenParameters,
                           0, std::string(kHelmert) + "position_vector", true};

const std::string kMolodenskyStep =
    "+proj=molodensky +a=6378137 +rf=298.257223563 +da=251 "
    "+df=1.4192702255886e-05 +dx=84.87 +dy=96.49 +dz=116.95";
const Case kMolodensky{9604, &kWgs84, &kInternational1924,
                       {{100040, 84.87}, {100041, 96.49}, {100042, 116.95}}, 0,
                       kMolodenskyStep, false};
const Case kMolodenskyAbridged{
    9605, &kWgs84, &kInternational1924,
    {{100040, 84.87}, {100041, 96.49}, {100042, 116.95}}, 0,
    kMolodenskyStep + " +abridged", false};

// Paris meridian (2.33722917 degrees = 8414.025 arc-seconds) to Greenwich.
const Case kLongitudeRotation{9601, &kClarke1880Ign, &kClarke1880Ign, {},
                              2.33722917, "+proj=geogoffset +dlon=8414.025012",
                              false};

ka_geogcs *radian_system(const Ellipsoid &e, double meridian) {
    return ka_geogcs_new(
        "GCS", ka_datum_new("D", ka_spheroid_new(e.name, e.axis,
                                                 1 / e.inverse_flattening)),
        ka_primem_new("Meridian", meridian), ka_unit_new("Radian", 1.0));
}

ka_geogtran *make_geogtran(const Case &c) {
    ka_parameter *slots[KA_PARAMETER_SLOTS] = {};
    for (auto [code, value] : c.parameters) {
        ka_parameter *p = ka_factory_parameter(code);
        ka_parameter_value_set(p, value);
        slots[ka_parameter_index(p)] = p;
    }
    // A longitude rotation goes from a system on the meridian to Greenwich.
    return ka_geogtran_new("Bench", radian_system(*c.from, c.meridian2),
                           radian_system(*c.to, 0),
                           ka_factory_method(c.method), slots);
}

void Veltra(benchmark::State &state, const Case &c, bool forward) {
    ka_geogtran *gt = make_geogtran(c);
    if (gt == nullptr) {
        state.SkipWithError("transformation not built");
        return;
    }
    Points work;
    for (auto _ : state) {
        refill(state, work);
        int count = forward ? ka_geog1_to_geog2(gt, kPoints, work.coords.data(),
                                                work.heights.data())
                            : ka_geog2_to_geog1(gt, kPoints, work.coords.data(),
                                                work.heights.data());
        benchmark::DoNotOptimize(count);
        benchmark::ClobberMemory();
    }
    set_counters(state);
    ka_geogtran_del(gt);
}

#if VELTRA_HAVE_PROJ
void Proj(benchmark::State &state, const Case &c, bool forward) {
    const std::string definition =
        c.proj_geocentric
            ? "+proj=pipeline +step +proj=cart " + std::string(c.from->proj) +
                  " +step " + c.proj_step + " +step +inv +proj=cart " +
                  c.to->proj
            : c.proj_step;
    PJ *pj = proj_create(PJ_DEFAULT_CTX, definition.c_str());
    if (pj == nullptr) {
        state.SkipWithError("PROJ operation not created");
        return;
    }
    Points work;
    const std::size_t stride = 2 * sizeof(double);
    for (auto _ : state) {
        refill(state, work);
        std::size_t count = proj_trans_generic(
            pj, forward ? PJ_FWD : PJ_INV, work.coords.data(), stride, kPoints,
            work.coords.data() + 1, stride, kPoints, work.heights.data(),
            sizeof(double), kPoints, nullptr, 0, 0);
        benchmark::DoNotOptimize(count);
        benchmark::ClobberMemory();
    }
    set_counters(state);
    proj_destroy(pj);
}
#endif

#if VELTRA_HAVE_PROJ
#define VELTRA_BENCH_CASE(NAME, CASE)                                        \
    BENCHMARK_CAPTURE(Veltra, NAME##_forward, CASE, true)                   \
        ->Unit(benchmark::kMillisecond);                                     \
    BENCHMARK_CAPTURE(Proj, NAME##_forward, CASE, true)                     \
        ->Unit(benchmark::kMillisecond);                                     \
    BENCHMARK_CAPTURE(Veltra, NAME##_inverse, CASE, false)                  \
        ->Unit(benchmark::kMillisecond);                                     \
    BENCHMARK_CAPTURE(Proj, NAME##_inverse, CASE, false)                    \
        ->Unit(benchmark::kMillisecond)
#else
#define VELTRA_BENCH_CASE(NAME, CASE)                                        \
    BENCHMARK_CAPTURE(Veltra, NAME##_forward, CASE, true)                   \
        ->Unit(benchmark::kMillisecond);                                     \
    BENCHMARK_CAPTURE(Veltra, NAME##_inverse, CASE, false)                  \
        ->Unit(benchmark::kMillisecond)
#endif

VELTRA_BENCH_CASE(geocentric_translation, kGeocentricTranslation);
VELTRA_BENCH_CASE(coordinate_frame, kCoordinateFrame);
VELTRA_BENCH_CASE(bursa_wolf, kBursaWolf);
VELTRA_BENCH_CASE(position_vector, kPositionVector);
VELTRA_BENCH_CASE(molodensky, kMolodensky);
VELTRA_BENCH_CASE(molodensky_abridged, kMolodenskyAbridged);
VELTRA_BENCH_CASE(longitude_rotation, kLongitudeRotation);

}  // namespace

