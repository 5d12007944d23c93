// Catalogue timings: ka_factory_code per kind (an object found early, one
// found late or not at all, which walks every code of the kind's ranges),
// each predefined list, and the cost of the override-file check on a plain
// factory call.
#include "veltra.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

using Make = void *(*)();
using Free = void (*)(void *);

template <class T, T *(*Factory)(int), int Code>
void *from_code() {
    return Factory(Code);
}

template <class T, void (*Destroy)(T *)>
void destroy(void *object) {
    Destroy(static_cast<T *>(object));
}

void bench_factory_code(benchmark::State &state, Make make, Free free_object) {
    unsetenv("KAOBJEDITHOME");
    void *object = make();
    if (object == nullptr) {
        state.SkipWithError("object not built");
        return;
    }
    int code = 0;
    for (auto _ : state) {
        code = ka_factory_code(object);
        benchmark::DoNotOptimize(code);
    }
    state.counters["code"] = code;
    free_object(object);
}

// Objects of each kind: one early in its ranges and one absent from the
// catalogue (renamed, so the whole range is walked).
void *unit_absent() { return ka_unit_new("Cubit", 0.4572); }
void *spheroid_absent() { return ka_spheroid_new("Egg", 6378000, 0.01); }
void *primem_absent() { return ka_primem_new("Nowhere", 1.5); }
void *renamed_datum() {
    ka_datum *datum = ka_factory_datum(6326);
    if (datum == nullptr) return nullptr;
    ka_datum *copy = ka_datum_new("D_Elsewhere",
                                  ka_spheroid_clone(ka_datum_spheroid(datum)));
    ka_datum_del(datum);
    return copy;
}
void *renamed_geogcs() {
    ka_geogcs *g = ka_factory_geogcs(4326);
    if (g == nullptr) return nullptr;
    ka_geogcs *copy = ka_geogcs_new("GCS_Elsewhere",
                                    ka_datum_clone(ka_geogcs_datum(g)),
                                    ka_primem_clone(ka_geogcs_primem(g)),
                                    ka_unit_clone(ka_geogcs_unit(g)));
    ka_geogcs_del(g);
    return copy;
}
void *renamed_projcs() {
    ka_projcs *p = ka_factory_projcs(32631);
    if (p == nullptr) return nullptr;
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_parameter *copies[KA_PARAMETER_SLOTS] = {};
    ka_projcs_parameters(p, slots);
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i)
        copies[i] = ka_parameter_clone(slots[i]);
    ka_projcs *copy = ka_projcs_new(
        "Elsewhere_UTM", ka_geogcs_clone(ka_projcs_geogcs(p)),
        ka_projection_clone(ka_projcs_projection(p)), copies,
        ka_unit_clone(ka_projcs_unit(p)));
    ka_projcs_del(p);
    return copy;
}
void *projection_absent() {
    ka_projection *p = ka_factory_projection(43006);
    if (p == nullptr) return nullptr;
    ka_projection *copy = ka_projection_new(
        "Elsewhere", ka_projection_forward(p), ka_projection_inverse(p),
        nullptr);
    ka_projection_del(p);
    return copy;
}
void *parameter_absent() { return ka_parameter_new("Elsewhere", 1); }
void *method_absent() {
    ka_method *m = ka_factory_method(9603);
    if (m == nullptr) return nullptr;
    ka_method *copy = ka_method_new("Elsewhere", ka_method_forward(m),
                                    ka_method_inverse(m));
    ka_method_del(m);
    return copy;
}
void *first_geogtran() {
    int count = 0;
    ka_predefined *list = ka_predefined_geogtran(&count);
    int lowest = 0;
    for (int i = 0; i < count; ++i)
        if (lowest == 0 || list[i].code < lowest) lowest = list[i].code;
    ka_table_del(list);
    return ka_factory_geogtran(lowest);
}
void *renamed_geogtran() {
    ka_geogtran *g = static_cast<ka_geogtran *>(first_geogtran());
    if (g == nullptr) return nullptr;
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_parameter *copies[KA_PARAMETER_SLOTS] = {};
    ka_geogtran_parameters(g, slots);
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i)
        copies[i] = ka_parameter_clone(slots[i]);
    ka_geogtran *copy = ka_geogtran_new(
        "Elsewhere", ka_geogcs_clone(ka_geogtran_geogcs1(g)),
        ka_geogcs_clone(ka_geogtran_geogcs2(g)),
        ka_method_clone(ka_geogtran_method(g)), copies);
    ka_geogtran_del(g);
    return copy;
}

#define FACTORY_CODE(label, make, type, del)                                \
    BENCHMARK_CAPTURE(bench_factory_code, label, make, destroy<type, del>) \
        ->Unit(benchmark::kMicrosecond)

FACTORY_CODE(unit_typical, (from_code<ka_unit, ka_factory_unit, 9102>),
             ka_unit, ka_unit_del);
FACTORY_CODE(unit_absent, unit_absent, ka_unit, ka_unit_del);
FACTORY_CODE(spheroid_typical,
             (from_code<ka_spheroid, ka_factory_spheroid, 7030>),
             ka_spheroid, ka_spheroid_del);
FACTORY_CODE(spheroid_absent, spheroid_absent, ka_spheroid, ka_spheroid_del);
FACTORY_CODE(primem_typical, (from_code<ka_primem, ka_factory_primem, 8903>),
             ka_primem, ka_primem_del);
FACTORY_CODE(primem_absent, primem_absent, ka_primem, ka_primem_del);
FACTORY_CODE(datum_typical, (from_code<ka_datum, ka_factory_datum, 6326>),
             ka_datum, ka_datum_del);
FACTORY_CODE(datum_absent, renamed_datum, ka_datum, ka_datum_del);
FACTORY_CODE(geogcs_typical, (from_code<ka_geogcs, ka_factory_geogcs, 4326>),
             ka_geogcs, ka_geogcs_del);
FACTORY_CODE(geogcs_absent, renamed_geogcs, ka_geogcs, ka_geogcs_del);
FACTORY_CODE(projection_typical,
             (from_code<ka_projection, ka_factory_projection, 43006>),
             ka_projection, ka_projection_del);
FACTORY_CODE(projection_absent, projection_absent, ka_projection,
             ka_projection_del);
FACTORY_CODE(parameter_typical,
             (from_code<ka_parameter, ka_factory_parameter, 100010>),
             ka_parameter, ka_parameter_del);
FACTORY_CODE(parameter_absent, parameter_absent, ka_parameter,
             ka_parameter_del);
FACTORY_CODE(method_typical, (from_code<ka_method, ka_factory_method, 9603>),
             ka_method, ka_method_del);
FACTORY_CODE(method_absent, method_absent, ka_method, ka_method_del);
FACTORY_CODE(geogtran_typical, first_geogtran, ka_geogtran, ka_geogtran_del);
FACTORY_CODE(geogtran_absent, renamed_geogtran, ka_geogtran, ka_geogtran_del);
FACTORY_CODE(projcs_typical, (from_code<ka_projcs, ka_factory_projcs, 32631>),
             ka_projcs, ka_projcs_del);
FACTORY_CODE(projcs_absent, renamed_projcs, ka_projcs, ka_projcs_del);

void bench_predefined(benchmark::State &state,
                      ka_predefined *(*list)(int *)) {
    unsetenv("KAOBJEDITHOME");
    int count = 0;
    for (auto _ : state) {
        ka_predefined *records = list(&count);
        benchmark::DoNotOptimize(records);
        ka_table_del(records);
    }
    state.counters["records"] = count;
}

#define PREDEFINED(kind)                                                     \
    BENCHMARK_CAPTURE(bench_predefined, kind, ka_predefined_##kind)           \
        ->Unit(benchmark::kMicrosecond)

PREDEFINED(angular_unit);
PREDEFINED(linear_unit);
PREDEFINED(spheroid);
PREDEFINED(primem);
PREDEFINED(datum);
PREDEFINED(geogcs);
PREDEFINED(projection);
PREDEFINED(method);
PREDEFINED(parameter);
PREDEFINED(geogtran);
PREDEFINED(projcs);

// A plain factory call under three configurations: no object-edit home, a
// home without override files (one failed stat per kind consulted), and a
// home whose files hold one line for another code.
enum class Home { kNone, kEmpty, kFiles };

void bench_factory_projcs(benchmark::State &state, Home home) {
    const std::filesystem::path dir =
        std::filesystem::temp_directory_path() / "veltra-bench-home";
    std::filesystem::create_directories(dir);
    if (home == Home::kFiles) {
        const char *files[][2] = {
            {"unit", "UNIT,209001,Rod,5.0292\n"},
            {"spheroid", "SPHEROID,207001,Egg,6400000,0.01\n"},
            {"primem", "PRIMEM,208901,Nowhere,1.5\n"},
            {"datum", "DATUM,206001,D_Egg,207001\n"},
            {"geogcs", "GEOGCS,204001,GCS_Egg,206001,8901,9102\n"},
            {"projcs", "PROJCS,202001,Egg_TM,204001,43006,9001\n"},
        };
        for (const auto &file : files)
            std::ofstream(dir / file[0]) << file[1];
    }
    if (home == Home::kNone)
        unsetenv("KAOBJEDITHOME");
    else
        setenv("KAOBJEDITHOME", dir.c_str(), 1);
    for (auto _ : state) {
        ka_projcs *projcs = ka_factory_projcs(32631);
        benchmark::DoNotOptimize(projcs);
        ka_projcs_del(projcs);
    }
    unsetenv("KAOBJEDITHOME");
    std::filesystem::remove_all(dir);
}

BENCHMARK_CAPTURE(bench_factory_projcs, no_home, Home::kNone)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(bench_factory_projcs, home_without_files, Home::kEmpty)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(bench_factory_projcs, home_with_files, Home::kFiles)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
