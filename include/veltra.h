/*
 * veltra.h - the Veltra coordinate-system library.
 *
 * A flat C interface over opaque object handles.  Every function is named
 * ka_<kind>_<operation>.  Conventions shared by all kinds:
 *
 *  - Ownership.  Every object returned by a constructor, a reader
 *    (*_from_string), a clone or a factory is new and owned by the caller,
 *    who frees it with the kind's *_del.  A composite constructor takes
 *    ownership of the sub-objects passed to it (they are stored, not copied)
 *    and its destructor deletes them; when the constructor fails (returns
 *    NULL) the sub-objects stay the caller's.  Accessors return borrowed
 *    pointers to owned sub-objects: do not free them.
 *  - Failure.  No error codes, no messages.  Constructors and readers return
 *    NULL; accessors return a fixed default for a NULL or wrong-kind handle;
 *    predicates and comparisons return 0; conversions return the number of
 *    points converted and mark failed points with NaN.
 *  - Names.  At most KA_NAME_MAX - 1 (63) characters, longer names are cut
 *    silently; compared without regard to (ASCII) case.  Name buffers passed
 *    to *_name must hold KA_NAME_MAX characters.
 *  - Units.  Angles in radians and lengths in metres inside all routines; the
 *    drivers convert from and to the units of the coordinate systems.
 *  - Numbers in text use "." as the decimal separator whatever the host
 *    locale; the library never changes the process locale.
 *  - Threads.  The library creates no threads and takes no locks.  Distinct
 *    objects may be used from distinct threads; loading or unloading the
 *    constants of an object another thread converts with is not allowed.
 */
#ifndef VELTRA_H
#define VELTRA_H

#ifdef __cplusplus
extern "C" {
#endif

#if defined(_WIN32)
#  if defined(VELTRA_BUILDING)
#    define KA_API __declspec(dllexport)
#  else
#    define KA_API __declspec(dllimport)
#  endif
#elif defined(__GNUC__)
#  define KA_API __attribute__((visibility("default")))
#else
#  define KA_API
#endif

/* ------------------------------------------------------------------------
 * Kind codes, limits
 * ------------------------------------------------------------------------ */

/* The first 32-bit word of every object.  Type tests ignore bit 0, so an
 * object whose word is code + 1 is still accepted as that kind. */
#define KA_KIND_UNIT          2
#define KA_KIND_SPHEROID      4
#define KA_KIND_DATUM         8
#define KA_KIND_PRIMEM       16
#define KA_KIND_GEOGCS       32
#define KA_KIND_PROJECTION   64
#define KA_KIND_PARAMETER   128
#define KA_KIND_PROJCS      256
#define KA_KIND_METHOD      512
#define KA_KIND_GEOGTRAN   1024
#define KA_KIND_GTCONSTANTS 2048
#define KA_KIND_PCSCONSTANTS 4096

/* Size of a name field and of every buffer passed to *_name. */
#define KA_NAME_MAX 64
/* Parameter slots of a projected system or a geographic transformation. */
#define KA_PARAMETER_SLOTS 16
/* Minimum size of the buffer passed to every *_to_string writer. */
#define KA_TEXT_MAX 4096
/* Minimum size of the buffer passed to ka_format_number. */
#define KA_NUMBER_MAX 64
/* Readers of the text form look at no more than this many characters. */
#define KA_TEXT_READ_MAX 1023

/* ------------------------------------------------------------------------
 * Object handles and public records
 * ------------------------------------------------------------------------ */

typedef struct ka_unit ka_unit;             /* linear or angular unit */
typedef struct ka_spheroid ka_spheroid;     /* reference ellipsoid */
typedef struct ka_primem ka_primem;         /* prime meridian */
typedef struct ka_datum ka_datum;           /* datum: owns a spheroid */
typedef struct ka_geogcs ka_geogcs;         /* geographic coordinate system */
typedef struct ka_projection ka_projection; /* projection: name + routines */
typedef struct ka_parameter ka_parameter;   /* named parameter value */
typedef struct ka_projcs ka_projcs;         /* projected coordinate system */
typedef struct ka_method ka_method;         /* datum transformation method */
typedef struct ka_geogtran ka_geogtran;     /* geographic transformation */

/* One entry of a horizon (the valid area of a projection), as returned by
 * ka_generate_horizon in one array.  The first entry's count is the number
 * of entries.  kind 1 is a rectangle whose two points are the south-west and
 * north-east corners; points holds npoints (longitude, latitude) pairs. */
typedef struct ka_horizon {
    int count;
    int flags;
    int kind;
    int wrap;    /* 1, 2 or 3 as set by the routine; 0 for a NaN meridian */
    int npoints;
    double *points;
} ka_horizon;

/* One record of a predefined list: a catalogue code and the object's name. */
typedef struct ka_predefined {
    int code;
    char name[KA_NAME_MAX];
} ka_predefined;

/* Projection forward or inverse routine.  ellipsoid holds {a, e2, ...};
 * params the 16 slot values in radians and metres; points n pairs converted
 * in place (longitude/latitude in radians <-> x/y in metres, without the
 * false origin); constants_header and constants are those of the loaded
 * constants record, or NULL.  Returns the number of points converted; a
 * point that cannot be converted gets NaN in both coordinates. */
typedef int (*ka_projection_fn)(const double *ellipsoid, const double *params,
                                int n, double *points,
                                const int *constants_header,
                                const double *constants);

/* Horizon routine: returns a new horizon array in radians (free it with
 * ka_horizon_del), or NULL when memory runs out. */
typedef ka_horizon *(*ka_horizon_fn)(const double *ellipsoid,
                                     const double *params);

/* Datum transformation method routine.  spheroid1 and spheroid2 hold {a, e2}
 * of the first and second system (in that order for both directions);
 * values the 16 parameter values (metres, radians, pure scale); grid_name the
 * data-set name of grid methods or NULL; coords n (longitude, latitude) pairs
 * in radians converted in place; heights n heights or NULL; constants_* the
 * three blocks of a loaded constants record or NULL.  Returns the number of
 * points converted. */
typedef int (*ka_method_fn)(const double *spheroid1, const double *spheroid2,
                            const double *values, const char *grid_name,
                            int n, double *coords, double *heights,
                            void *constants_a, void *constants_b,
                            void *constants_c);

/* A directory callback (data home, object-edit home). */
typedef const char *(*ka_home_fn)(void);

/* ------------------------------------------------------------------------
 * Library frame
 * ------------------------------------------------------------------------ */

/* "Veltra Version 8.2 (Nov 19 2002)".  A constant string: do not free. */
KA_API const char *ka_version(void);

/* Zero-filled block of size bytes; NULL when size < 1 or out of memory. */
KA_API void *ka_mem_alloc(int size);
/* Frees a block from ka_mem_alloc or ka_mem_realloc; NULL is ignored. */
KA_API void ka_mem_free(void *block);
/* The C library's realloc; NULL (block untouched) for a negative size. */
KA_API void *ka_mem_realloc(void *block, int size);
/* Frees a table (a list built in one block, such as a predefined list);
 * NULL is ignored. */
KA_API void ka_table_del(void *table);

/* Case-insensitive comparison: 0 when equal ignoring ASCII case, else -1 or
 * 1 by the first differing upper-cased byte (unsigned). */
KA_API int ka_strcasecmp(const char *a, const char *b);
/* First position in s whose character equals c ignoring case; searching for
 * '\0' returns the end of s; NULL when absent. */
KA_API char *ka_strcasechr(const char *s, int c);
/* First occurrence of sub in s ignoring case; s itself for an empty sub;
 * NULL when absent. */
KA_API char *ka_strcasestr(const char *s, const char *sub);
/* Trims tab, CR, LF, backspace and blank from both ends, in place. */
KA_API void ka_str_trim(char *s);

/* Writes the shortest faithful decimal text of value (16 significant digits
 * at most, "." separator, three-digit exponents) into text, which must hold
 * KA_NUMBER_MAX characters.  The library always passes digits = 16; digits
 * is clamped to 1..17. */
KA_API void ka_format_number(double value, char *text, int digits);
/* Reads a number as strtod does in the "C" locale (leading whitespace
 * skipped, stops at the first character that cannot continue a number);
 * 0.0 when there is none or text is NULL. */
KA_API double ka_parse_number(const char *text);

/* Stores the failed-point marker, the quiet NaN 0x7FF8000000000001. */
KA_API void ka_set_nan(double *value);
/* Reverses the byte order of n 32-bit words / n 64-bit values in place. */
KA_API void ka_swap4(void *words, int n);
KA_API void ka_swap8(void *values, int n);

/* ------------------------------------------------------------------------
 * Units, spheroids, prime meridians, datums, geographic systems
 *
 * For every kind K: ka_K_p(obj) is 1 when obj is a non-NULL K;
 * ka_K_name(obj, buf) clears the KA_NAME_MAX-byte buf and copies the name of
 * a valid object into it; ka_K_eq is 1 when both are valid and equal (names
 * ignoring case, numbers within the relative tolerance 2^-48);
 * ka_K_clone returns a deep copy or NULL; ka_K_del ignores NULL and
 * wrong-kind handles (except ka_geogcs_del, see there).
 * ------------------------------------------------------------------------ */

/* Unit of factor metres (linear) or radians (angular) per unit; NULL for a
 * NULL name or a factor <= 0 or NaN. */
KA_API ka_unit *ka_unit_new(const char *name, double factor);
KA_API void ka_unit_del(ka_unit *unit);
KA_API void ka_unit_name(const ka_unit *unit, char *name);
/* The factor; 1.0 for an invalid handle. */
KA_API double ka_unit_factor(const ka_unit *unit);
KA_API int ka_unit_p(const void *obj);
KA_API int ka_unit_eq(const ka_unit *a, const ka_unit *b);
KA_API ka_unit *ka_unit_clone(const ka_unit *unit);

/* Spheroid of semi-major axis (metres, > 0) and flattening (0 <= f < 1, 0
 * for a sphere); NULL otherwise or for a NULL name. */
KA_API ka_spheroid *ka_spheroid_new(const char *name, double axis,
                                    double flattening);
KA_API void ka_spheroid_del(ka_spheroid *spheroid);
KA_API void ka_spheroid_name(const ka_spheroid *spheroid, char *name);
/* Semi-major axis; 1.0 for an invalid handle. */
KA_API double ka_spheroid_axis(const ka_spheroid *spheroid);
/* Flattening; 0.0 for an invalid handle. */
KA_API double ka_spheroid_flattening(const ka_spheroid *spheroid);
KA_API int ka_spheroid_p(const void *obj);
KA_API int ka_spheroid_eq(const ka_spheroid *a, const ka_spheroid *b);
KA_API ka_spheroid *ka_spheroid_clone(const ka_spheroid *spheroid);

/* Prime meridian at longitude degrees east of Greenwich (|longitude| <=
 * 180); NULL otherwise or for a NULL name. */
KA_API ka_primem *ka_primem_new(const char *name, double longitude);
KA_API void ka_primem_del(ka_primem *primem);
KA_API void ka_primem_name(const ka_primem *primem, char *name);
/* Longitude in degrees; 0.0 for an invalid handle. */
KA_API double ka_primem_longitude(const ka_primem *primem);
KA_API int ka_primem_p(const void *obj);
KA_API int ka_primem_eq(const ka_primem *a, const ka_primem *b);
KA_API ka_primem *ka_primem_clone(const ka_primem *primem);

/* Datum on a spheroid, which it takes over; NULL for a NULL name or
 * spheroid. */
KA_API ka_datum *ka_datum_new(const char *name, ka_spheroid *spheroid);
/* Deletes the datum and its spheroid. */
KA_API void ka_datum_del(ka_datum *datum);
KA_API void ka_datum_name(const ka_datum *datum, char *name);
/* The owned spheroid (borrowed); NULL for an invalid handle. */
KA_API ka_spheroid *ka_datum_spheroid(const ka_datum *datum);
KA_API int ka_datum_p(const void *obj);
KA_API int ka_datum_eq(const ka_datum *a, const ka_datum *b);
KA_API ka_datum *ka_datum_clone(const ka_datum *datum);

/* Geographic system: takes over the datum, the prime meridian and the
 * angular unit; NULL when any argument is NULL. */
KA_API ka_geogcs *ka_geogcs_new(const char *name, ka_datum *datum,
                                ka_primem *primem, ka_unit *unit);
/* Deletes the datum, prime meridian and unit, then frees the handle.  Unlike
 * every other destructor it frees any non-NULL pointer it is given: pass
 * only geographic systems. */
KA_API void ka_geogcs_del(ka_geogcs *geogcs);
KA_API void ka_geogcs_name(const ka_geogcs *geogcs, char *name);
/* Owned sub-objects (borrowed); NULL for an invalid handle. */
KA_API ka_datum *ka_geogcs_datum(const ka_geogcs *geogcs);
KA_API ka_primem *ka_geogcs_primem(const ka_geogcs *geogcs);
KA_API ka_unit *ka_geogcs_unit(const ka_geogcs *geogcs);
KA_API int ka_geogcs_p(const void *obj);
KA_API int ka_geogcs_eq(const ka_geogcs *a, const ka_geogcs *b);
KA_API ka_geogcs *ka_geogcs_clone(const ka_geogcs *geogcs);

/* ------------------------------------------------------------------------
 * Parameters, projections, projected systems
 * ------------------------------------------------------------------------ */

/* Named value; NULL only for a NULL name. */
KA_API ka_parameter *ka_parameter_new(const char *name, double value);
KA_API void ka_parameter_del(ka_parameter *parameter);
KA_API void ka_parameter_name(const ka_parameter *parameter, char *name);
/* The value; 0.0 for an invalid handle. */
KA_API double ka_parameter_value(const ka_parameter *parameter);
/* Renames (the caller keeps the name under 64 characters); 1, or 0 for an
 * invalid handle or NULL name. */
KA_API int ka_parameter_name_set(ka_parameter *parameter, const char *name);
/* 1, or 0 for an invalid handle. */
KA_API int ka_parameter_value_set(ka_parameter *parameter, double value);
/* Slot 0..15 of the parameter's name, -1 for an unknown name, -2 for an
 * invalid handle.  Names beginning "DATASET_" (any case) go to slot 15. */
KA_API int ka_parameter_index(const ka_parameter *parameter);
KA_API int ka_parameter_p(const void *obj);
KA_API int ka_parameter_eq(const ka_parameter *a, const ka_parameter *b);
KA_API ka_parameter *ka_parameter_clone(const ka_parameter *parameter);

/* Projection bound to routines; a NULL horizon gets the default world
 * rectangle.  NULL for a NULL name, forward or inverse. */
KA_API ka_projection *ka_projection_new(const char *name,
                                        ka_projection_fn forward,
                                        ka_projection_fn inverse,
                                        ka_horizon_fn horizon);
KA_API void ka_projection_del(ka_projection *projection);
KA_API void ka_projection_name(const ka_projection *projection, char *name);
/* The routines; for an invalid handle a routine that leaves the points
 * unchanged and returns n. */
KA_API ka_projection_fn ka_projection_forward(const ka_projection *projection);
KA_API ka_projection_fn ka_projection_inverse(const ka_projection *projection);
/* The horizon routine; the default world rectangle for an invalid handle. */
KA_API ka_horizon_fn ka_projection_horizon(const ka_projection *projection);
KA_API int ka_projection_p(const void *obj);
/* Names equal and the same three routines. */
KA_API int ka_projection_eq(const ka_projection *a, const ka_projection *b);
KA_API ka_projection *ka_projection_clone(const ka_projection *projection);

/* Projected system: takes over the geographic system, the projection, the
 * parameters (an array of KA_PARAMETER_SLOTS pointers indexed by slot, NULL
 * for an empty slot; the array itself is copied) and the linear unit.  NULL
 * when any argument is NULL. */
KA_API ka_projcs *ka_projcs_new(const char *name, ka_geogcs *geogcs,
                                ka_projection *projection,
                                ka_parameter **parameters, ka_unit *unit);
/* Deletes every part and the loaded constants. */
KA_API void ka_projcs_del(ka_projcs *projcs);
KA_API void ka_projcs_name(const ka_projcs *projcs, char *name);
KA_API ka_geogcs *ka_projcs_geogcs(const ka_projcs *projcs);
KA_API ka_projection *ka_projcs_projection(const ka_projcs *projcs);
KA_API ka_unit *ka_projcs_unit(const ka_projcs *projcs);
/* Clears the caller's 16-entry array, then fills it with the slot pointers
 * (borrowed) of a valid system. */
KA_API void ka_projcs_parameters(const ka_projcs *projcs,
                                 ka_parameter **parameters);
KA_API int ka_projcs_p(const void *obj);
/* Equal names, systems, projections, parameter slots and units. */
KA_API int ka_projcs_eq(const ka_projcs *a, const ka_projcs *b);
/* As ka_projcs_eq without comparing the two systems' own names. */
KA_API int ka_projcs_eqnn(const ka_projcs *a, const ka_projcs *b);
/* Deep copy, unloaded. */
KA_API ka_projcs *ka_projcs_clone(const ka_projcs *projcs);
/* Copy whose values are expressed in the given linear and angular units
 * (either may be NULL to keep the current one); the caller keeps the units
 * it passes. */
KA_API ka_projcs *ka_projcs_clone_alterunits(const ka_projcs *projcs,
                                             const ka_unit *linear,
                                             const ka_unit *angular);
/* 1 when projection constants are loaded. */
KA_API int ka_projcs_isconstloaded(const ka_projcs *projcs);
/* Precomputes the projection's per-system constants; nonzero on success, 0
 * when the projection has none or rejects the parameters (the system then
 * stays unloaded and converts without them). */
KA_API int ka_projcs_load_constants(ka_projcs *projcs);
KA_API void ka_projcs_unload_constants(ka_projcs *projcs);

/* Fills parameters (16 entries, cleared first) with new parameter objects
 * holding the projection's default list; returns how many it made ("Robinson"
 * makes three and returns 0).  0 for NULL arguments or an unknown name. */
KA_API int ka_parameter_projection_defaults(const ka_projection *projection,
                                            ka_parameter **parameters);

/* Projects n (longitude, latitude) pairs in the geographic system's angular
 * unit into (x, y) in the system's linear unit, in place.  Returns the
 * projection routine's count; failed points are NaN. */
KA_API int ka_geog_to_proj(const ka_projcs *projcs, int n, double *coords);
/* The inverse of ka_geog_to_proj. */
KA_API int ka_proj_to_geog(const ka_projcs *projcs, int n, double *coords);

/* Half-width in degrees of the transverse Mercator horizon (also used by
 * Cassini): the band about the central meridian in which the
 * forward-inverse round trip of the series stays within 1 mm at every
 * latitude (measured on WGS 84 with scale factor 0.9996: up to 6.42
 * degrees, worst near latitude 59), rounded down. */
#define KA_TM_HORIZON_HALF_WIDTH_DEG 6.0

/* Horizon of a projected system in its geographic unit; free with
 * ka_horizon_del.  NULL when memory runs out. */
KA_API ka_horizon *ka_generate_horizon(const ka_projcs *projcs);
/* Frees a horizon array and its point arrays; NULL is ignored. */
KA_API void ka_horizon_del(ka_horizon *horizon);

/* ------------------------------------------------------------------------
 * Methods and geographic transformations
 * ------------------------------------------------------------------------ */

/* Method bound to routines; NULL when any argument is NULL. */
KA_API ka_method *ka_method_new(const char *name, ka_method_fn forward,
                                ka_method_fn inverse);
KA_API void ka_method_del(ka_method *method);
KA_API void ka_method_name(const ka_method *method, char *name);
/* The routines; for an invalid handle a routine that changes nothing and
 * returns n. */
KA_API ka_method_fn ka_method_forward(const ka_method *method);
KA_API ka_method_fn ka_method_inverse(const ka_method *method);
KA_API int ka_method_p(const void *obj);
/* Names equal and the same two routines. */
KA_API int ka_method_eq(const ka_method *a, const ka_method *b);
KA_API ka_method *ka_method_clone(const ka_method *method);

/* Transformation from geogcs1 to geogcs2: takes over both systems, the
 * method and the parameters (16 slot pointers, array copied).  NULL when any
 * argument is NULL. */
KA_API ka_geogtran *ka_geogtran_new(const char *name, ka_geogcs *geogcs1,
                                    ka_geogcs *geogcs2, ka_method *method,
                                    ka_parameter **parameters);
KA_API void ka_geogtran_del(ka_geogtran *geogtran);
KA_API void ka_geogtran_name(const ka_geogtran *geogtran, char *name);
KA_API ka_geogcs *ka_geogtran_geogcs1(const ka_geogtran *geogtran);
KA_API ka_geogcs *ka_geogtran_geogcs2(const ka_geogtran *geogtran);
KA_API ka_method *ka_geogtran_method(const ka_geogtran *geogtran);
/* Clears the caller's 16-entry array, then fills it with the slot pointers
 * (borrowed) of a valid transformation. */
KA_API void ka_geogtran_parameters(const ka_geogtran *geogtran,
                                   ka_parameter **parameters);
KA_API int ka_geogtran_p(const void *obj);
KA_API int ka_geogtran_eq(const ka_geogtran *a, const ka_geogtran *b);
KA_API ka_geogtran *ka_geogtran_clone(const ka_geogtran *geogtran);
KA_API int ka_geogtran_isconstloaded(const ka_geogtran *geogtran);
/* Loads a grid method's grids into memory; nonzero on success, 0 for
 * equation methods or when the grid cannot be read. */
KA_API int ka_geogtran_load_constants(ka_geogtran *geogtran);
KA_API void ka_geogtran_unload_constants(ka_geogtran *geogtran);

/* Fills parameters (16 entries, cleared first) with the method's default
 * parameter objects; returns how many (0, 1, 3 or 7). */
KA_API int ka_parameter_method_defaults(const ka_method *method,
                                        ka_parameter **parameters);

/* Transforms n (longitude, latitude) pairs, in the first system's angular
 * unit about its prime meridian, into the second system, in place.  heights
 * (n values, or NULL for all 0) are read and overwritten.  Returns the
 * method's count; 0 for a longitude rotation between unequal datums. */
KA_API int ka_geog1_to_geog2(const ka_geogtran *geogtran, int n,
                             double *coords, double *heights);
/* The same from the second system to the first. */
KA_API int ka_geog2_to_geog1(const ka_geogtran *geogtran, int n,
                             double *coords, double *heights);

/* Data home for grid files: the callback's result when one is installed,
 * else $KADATAHOME.  Returns the callback installed (func). */
KA_API ka_home_fn ka_datahome_setfunc(ka_home_fn func);
/* Home of the catalogue override files: the callback's result when one is
 * installed, else $KAOBJEDITHOME.  Returns the callback installed (func). */
KA_API ka_home_fn ka_objedithome_setfunc(ka_home_fn func);

/* ------------------------------------------------------------------------
 * Generic coordinate-system handle (a geogcs or a projcs)
 * ------------------------------------------------------------------------ */

KA_API int ka_coordsys_p(const void *cs);
/* Deletes a geogcs or projcs; anything else is ignored. */
KA_API void ka_coordsys_del(void *cs);
/* 1 when both are equal geographic or equal projected systems. */
KA_API int ka_coordsys_eq(const void *a, const void *b);
KA_API void *ka_coordsys_clone(const void *cs);

/* ------------------------------------------------------------------------
 * Text form: KEYWORD["name",values...]
 *
 * Writers clear the buffer's first byte and write one line without blanks;
 * the buffer must hold KA_TEXT_MAX characters.  Readers look at the first
 * KA_TEXT_READ_MAX characters, find each object by its keyword (any case)
 * and return a new object or NULL.
 * ------------------------------------------------------------------------ */

KA_API int ka_unit_to_string(const ka_unit *unit, char *text);
KA_API int ka_spheroid_to_string(const ka_spheroid *spheroid, char *text);
KA_API int ka_primem_to_string(const ka_primem *primem, char *text);
KA_API int ka_datum_to_string(const ka_datum *datum, char *text);
KA_API int ka_geogcs_to_string(const ka_geogcs *geogcs, char *text);
KA_API int ka_projection_to_string(const ka_projection *projection,
                                   char *text);
KA_API int ka_parameter_to_string(const ka_parameter *parameter, char *text);
KA_API int ka_method_to_string(const ka_method *method, char *text);
/* These two return text. */
KA_API char *ka_projcs_to_string(const ka_projcs *projcs, char *text);
KA_API char *ka_geogtran_to_string(const ka_geogtran *geogtran, char *text);
/* Writes a geogcs or projcs; 0 (empty text) for anything else. */
KA_API int ka_coordsys_to_string(const void *cs, char *text);

KA_API ka_unit *ka_unit_from_string(const char *text);
KA_API ka_spheroid *ka_spheroid_from_string(const char *text);
KA_API ka_primem *ka_primem_from_string(const char *text);
KA_API ka_datum *ka_datum_from_string(const char *text);
KA_API ka_geogcs *ka_geogcs_from_string(const char *text);
KA_API ka_projection *ka_projection_from_string(const char *text);
KA_API ka_parameter *ka_parameter_from_string(const char *text);
KA_API ka_method *ka_method_from_string(const char *text);
KA_API ka_projcs *ka_projcs_from_string(const char *text);
KA_API ka_geogtran *ka_geogtran_from_string(const char *text);
/* A projcs when the text contains "PROJCS[" (any case), else a geogcs. */
KA_API void *ka_coordsys_from_string(const char *text);

/* ------------------------------------------------------------------------
 * Ellipsoid mathematics.  a is the semi-major axis (any linear unit), e2 the
 * eccentricity squared (0 for a sphere), angles in radians.
 * ------------------------------------------------------------------------ */

/* lambda folded into [-pi, pi] (both ends kept). */
KA_API double ka_delta(double lambda);
/* 1 when |x - y| <= ((|x| + |y|) / 2 + 1) * 2^-48. */
KA_API int ka_eq(double x, double y);
/* sqrt(1 - e2 sin^2 phi). */
KA_API double ka_w(double e2, double phi);
/* Meridian radius of curvature. */
KA_API double ka_m(double a, double e2, double phi);
/* Prime-vertical radius of curvature. */
KA_API double ka_n(double a, double e2, double phi);
/* Conformal, authalic, rectifying and reduced latitudes and back. */
KA_API double ka_phi_to_chi(double e2, double phi);
KA_API double ka_chi_to_phi(double e2, double chi);
KA_API double ka_phi_to_beta(double e2, double phi);
KA_API double ka_beta_to_phi(double e2, double beta);
KA_API double ka_phi_to_mu(double e2, double phi);
KA_API double ka_mu_to_phi(double e2, double mu);
KA_API double ka_phi_to_eta(double e2, double phi);
KA_API double ka_eta_to_phi(double e2, double eta);
/* Meridian arc from the equator to phi (signed). */
KA_API double ka_q(double a, double e2, double phi);
/* Quarter meridian. */
KA_API double ka_q90(double a, double e2);
/* Radius of the sphere of equal area. */
KA_API double ka_auth_r(double a, double e2);
/* Geodetic (phi, lambda, h) to geocentric (x, y, z) and back. */
KA_API void ka_curv_to_cart(double a, double e2, double phi, double lambda,
                            double h, double *x, double *y, double *z);
KA_API void ka_cart_to_curv(double a, double e2, double x, double y, double z,
                            double *phi, double *lambda, double *h);

/* ------------------------------------------------------------------------
 * Geodesics on the ellipsoid (a, e2); radians, distances in the unit of a.
 * ------------------------------------------------------------------------ */

/* Direct problem: the point reached from (lon1, lat1) after distance along
 * azimuth (clockwise from north).  Either output may be NULL.  Vincenty's
 * iteration on a spheroid, great-circle formulas when e2 < 2^-48; a start
 * at a pole is taken on the meridian of longitude 0.  The longitude is
 * returned in [-pi, pi].  NaN outputs when an input is not finite or the
 * iteration does not settle (flattening far beyond any planet's). */
KA_API void ka_geodesic_coordinate(double a, double e2, double lon1,
                                   double lat1, double distance,
                                   double azimuth, double *lon2,
                                   double *lat2);
/* Inverse problem: the length of the shortest geodesic between two points,
 * the azimuth at the first point towards the second (az12) and the azimuth
 * at the second point towards the first (az21, the back azimuth: the
 * forward azimuth on arrival plus pi).  Any output may be NULL.
 * - Azimuths are clockwise from north, in (-pi, pi]; the distance is in the
 *   unit of a.  On terrestrial spheroids the distance is good to 0.1
 *   micrometre and the azimuths to 1e-12 rad wherever a rounding of the
 *   inputs does not move them more (very short and nearly antipodal lines).
 * - e2 < 2^-48 (including a prolate e2 < 0) uses the great-circle formulas.
 * - Coincident points: distance 0, az12 = 0, az21 = pi (a path north).
 * - A point at a pole (lat = +-pi/2) has its azimuth reckoned as at a point
 *   a hair's breadth from the pole on the meridian of its given longitude.
 * - When two shortest geodesics tie (points exactly antipodal, or two
 *   points on the equator with a longitude difference near pi), the one
 *   heading north from the first point is returned if the first point is
 *   north of or on the equator, else the one heading south.
 * - A latitude beyond +-pi/2, a non-finite longitude or e2 >= 1 gives NaN
 *   in every output. */
KA_API void ka_geodesic_distance(double a, double e2, double lon1,
                                 double lat1, double lon2, double lat2,
                                 double *distance, double *az12,
                                 double *az21);

/* ------------------------------------------------------------------------
 * Factory and catalogue
 * ------------------------------------------------------------------------ */

/* New object for a catalogue code of any kind, or NULL. */
KA_API void *ka_factory(int code);
/* New object for a code of the kind (user override files first), or NULL. */
KA_API ka_unit *ka_factory_unit(int code);
KA_API ka_spheroid *ka_factory_spheroid(int code);
KA_API ka_primem *ka_factory_primem(int code);
KA_API ka_datum *ka_factory_datum(int code);
KA_API ka_geogcs *ka_factory_geogcs(int code);
KA_API ka_projection *ka_factory_projection(int code);
KA_API ka_method *ka_factory_method(int code);
KA_API ka_parameter *ka_factory_parameter(int code);
KA_API ka_projcs *ka_factory_projcs(int code);
KA_API ka_geogtran *ka_factory_geogtran(int code);
/* Code of the first catalogue entry equal to obj, 0 if none.  Slow: it
 * builds and compares every entry of the kind. */
KA_API int ka_factory_code(const void *obj);

/* Code lists: a new array of the kind's catalogue codes (macro-name order);
 * *count receives its length.  Free with ka_factory_codelist_del. */
KA_API int *ka_factory_angular_unit_codelist(int *count);
KA_API int *ka_factory_linear_unit_codelist(int *count);
KA_API int *ka_factory_spheroid_codelist(int *count);
KA_API int *ka_factory_primem_codelist(int *count);
KA_API int *ka_factory_datum_codelist(int *count);
KA_API int *ka_factory_geogcs_codelist(int *count);
KA_API int *ka_factory_projection_codelist(int *count);
KA_API int *ka_factory_method_codelist(int *count);
KA_API int *ka_factory_parameter_codelist(int *count);
KA_API int *ka_factory_geogtran_codelist(int *count);
KA_API void ka_factory_codelist_del(int *list);

/* Predefined lists: a new array of (code, name) records of every object the
 * factory builds in the kind's ranges, sorted by name ignoring case; *count
 * receives its length.  NULL (count 0) when empty.  Free with
 * ka_table_del. */
KA_API ka_predefined *ka_predefined_angular_unit(int *count);
KA_API ka_predefined *ka_predefined_linear_unit(int *count);
KA_API ka_predefined *ka_predefined_spheroid(int *count);
KA_API ka_predefined *ka_predefined_primem(int *count);
KA_API ka_predefined *ka_predefined_datum(int *count);
KA_API ka_predefined *ka_predefined_geogcs(int *count);
KA_API ka_predefined *ka_predefined_projection(int *count);
KA_API ka_predefined *ka_predefined_method(int *count);
KA_API ka_predefined *ka_predefined_parameter(int *count);
KA_API ka_predefined *ka_predefined_projcs(int *count);
KA_API ka_predefined *ka_predefined_geogtran(int *count);

#ifdef __cplusplus
}
#endif

#endif /* VELTRA_H */
