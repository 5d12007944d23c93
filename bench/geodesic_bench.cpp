// Geodesic destination point and geodesic distance, in nanoseconds per call
// over 1e6 random point pairs on the WGS 1984 ellipsoid, beside GeographicLib's
// Direct and Inverse on the same data.
#include "veltra.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#if VELTRA_HAVE_GEOGRAPHICLIB
#include <GeographicLib/Geodesic.hpp>
#endif

namespace {

constexpr double kDeg = std::numbers::pi / 180;
constexpr double kA = 6378137.0;
constexpr double kInvF = 298.257223563;
constexpr double kF = 1 / kInvF;
constexpr double kE2 = kF * (2 - kF);
constexpr std::size_t kPairs = 1000000;

// Random pairs, uniform on the sphere, with distances and azimuths for the
// direct problem; kept in both radians and degrees so that neither library
// pays for a conversion inside the timed loop.
struct Data {
    std::vector<double> lon1, lat1, lon2, lat2, dist, azi;  // radians, metres
    std::vector<double> lon1d, lat1d, lon2d, lat2d, azid;   // degrees
    Data() {
        std::mt19937_64 rng(20130101);
        std::uniform_real_distribution<double> unit(0, 1);
        auto push = [](std::vector<double> &r, std::vector<double> &d, double deg) {
            d.push_back(deg);
            r.push_back(deg * kDeg);
        };
        for (std::size_t i = 0; i < kPairs; ++i) {
            push(lon1, lon1d, unit(rng) * 360 - 180);
            push(lat1, lat1d, std::asin(2 * unit(rng) - 1) / kDeg);
            push(lon2, lon2d, unit(rng) * 360 - 180);
            push(lat2, lat2d, std::asin(2 * unit(rng) - 1) / kDeg);
            push(azi, azid, unit(rng) * 360 - 180);
            dist.push_back(unit(rng) * 2e7);
        }
    }
};

const Data &data() {
    static const Data d;
    return d;
}

void finish(benchmark::State &state) {
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * kPairs));
    state.counters["ns_per_point"] = benchmark::Counter(
        static_cast<double>(state.iterations() * kPairs),
        benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void BM_Veltra_GeodesicCoordinate(benchmark::State &state) {
    const Data &d = data();
    for (auto _ : state) {
        for (std::size_t i = 0; i < kPairs; ++i) {
            double lon, lat;
            ka_geodesic_coordinate(kA, kE2, d.lon1[i], d.lat1[i], d.dist[i], d.azi[i],
                                   &lon, &lat);
            benchmark::DoNotOptimize(lon);
            benchmark::DoNotOptimize(lat);
        }
    }
    finish(state);
}
BENCHMARK(BM_Veltra_GeodesicCoordinate)->Unit(benchmark::kMillisecond);

void BM_Veltra_GeodesicDistance(benchmark::State &state) {
    const Data &d = data();
    for (auto _ : state) {
        for (std::size_t i = 0; i < kPairs; ++i) {
            double s, az12, az21;
            ka_geodesic_distance(kA, kE2, d.lon1[i], d.lat1[i], d.lon2[i], d.lat2[i], &s,
                                 &az12, &az21);
            benchmark::DoNotOptimize(s);
            benchmark::DoNotOptimize(az12);
            benchmark::DoNotOptimize(az21);
        }
    }
    finish(state);
}
BENCHMARK(BM_Veltra_GeodesicDistance)->Unit(benchmark::kMillisecond);

#if VELTRA_HAVE_GEOGRAPHICLIB
void BM_GeographicLib_Direct(benchmark::State &state) {
    const Data &d = data();
    const GeographicLib::Geodesic g(kA, kF);
    for (auto _ : state) {
        for (std::size_t i = 0; i < kPairs; ++i) {
            double lat, lon;
            g.Direct(d.lat1d[i], d.lon1d[i], d.azid[i], d.dist[i], lat, lon);
            benchmark::DoNotOptimize(lon);
            benchmark::DoNotOptimize(lat);
        }
    }
    finish(state);
}
BENCHMARK(BM_GeographicLib_Direct)->Unit(benchmark::kMillisecond);

void BM_GeographicLib_Inverse(benchmark::State &state) {
    const Data &d = data();
    const GeographicLib::Geodesic g(kA, kF);
    for (auto _ : state) {
        for (std::size_t i = 0; i < kPairs; ++i) {
            double s, azi1, azi2;
            g.Inverse(d.lat1d[i], d.lon1d[i], d.lat2d[i], d.lon2d[i], s, azi1, azi2);
            benchmark::DoNotOptimize(s);
            benchmark::DoNotOptimize(azi1);
            benchmark::DoNotOptimize(azi2);
        }
    }
    finish(state);
}
BENCHMARK(BM_GeographicLib_Inverse)->Unit(benchmark::kMillisecond);
#endif

}  // namespace

