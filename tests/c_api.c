/* The public header compiles as C and the shared library links from C. */
#include "veltra.h"

#include <stdio.h>
#include <string.h>

int main(void) {
    char name[KA_NAME_MAX];
    ka_unit *unit = ka_unit_new("Meter", 1.0);
    ka_geogcs *geogcs;
    int failures = 0;

    if (strcmp(ka_version(), "Veltra Version 8.2 (Nov 19 2002)") != 0) {
        fprintf(stderr, "unexpected version %s\n", ka_version());
        ++failures;
    }
    ka_unit_name(unit, name);
    if (strcmp(name, "Meter") != 0 || ka_unit_factor(unit) != 1.0) {
        fprintf(stderr, "unit round trip failed\n");
        ++failures;
    }
    geogcs = ka_geogcs_new("GCS_Sphere",
                           ka_datum_new("D_Sphere",
                                        ka_spheroid_new("Sphere", 6371000.0, 0.0)),
                           ka_primem_new("Greenwich", 0.0),
                           ka_unit_new("Degree", 0.017453292519943295));
    if (!ka_geogcs_p(geogcs) || ka_spheroid_axis(ka_datum_spheroid(
                                    ka_geogcs_datum(geogcs))) != 6371000.0) {
        fprintf(stderr, "geographic system not built\n");
        ++failures;
    }
    ka_geogcs_del(geogcs);
    ka_unit_del(unit);
    return failures == 0 ? 0 : 1;
}
