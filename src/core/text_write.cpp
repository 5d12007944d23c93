// Writers of the bracketed text form: one fixed layout per kind, no blanks,
// numbers in their shortest faithful form.  An invalid object still prints
// its template, with an empty name and the accessors' defaults.
//
// Every text is bounded: a name has at most 63 characters and a number at
// most KA_NUMBER_MAX - 1, so even a GEOGTRAN with two geographic systems
// and 16 parameters stays below KA_TEXT_MAX.  The appender never writes
// past KA_TEXT_MAX all the same.
#include "core/object.h"
#include "core/tolerance.h"

#include <cmath>
#include <cstring>

using namespace veltra;

namespace {

// Appends to a caller's buffer of KA_TEXT_MAX characters, always
// NUL-terminated, cutting what would not fit.
class TextOut {
public:
    explicit TextOut(char *text) : text_(text) { text_[0] = '\0'; }

    TextOut &put(const char *s) {
        std::size_t room = KA_TEXT_MAX - 1 - length_;
        std::size_t n = strnlen(s, room);
        std::memcpy(text_ + length_, s, n);
        length_ += n;
        text_[length_] = '\0';
        return *this;
    }

    // KEYWORD["name"
    TextOut &open(const char *keyword, const char *name) {
        return put(keyword).put("[\"").put(name).put("\"");
    }

    TextOut &number(double value) {
        char digits[KA_NUMBER_MAX];
        ka_format_number(value, digits, 16);
        return put(",").put(digits);
    }

    int length() const { return static_cast<int>(length_); }

private:
    char *text_;
    std::size_t length_ = 0;
};

template <class T>
struct Named {
    char name[KA_NAME_MAX];
    Named(const T *object, void (*get)(const T *, char *)) { get(object, name); }
};

void write_unit(TextOut &out, const ka_unit *unit) {
    Named n(unit, ka_unit_name);
    out.open("UNIT", n.name).number(ka_unit_factor(unit)).put("]");
}

// The third value is the inverse flattening; a sphere writes "0.0" instead
// of dividing by zero.
void write_spheroid(TextOut &out, const ka_spheroid *spheroid) {
    Named n(spheroid, ka_spheroid_name);
    const double f = ka_spheroid_flattening(spheroid);
    out.open("SPHEROID", n.name).number(ka_spheroid_axis(spheroid));
    if (std::fabs(f) <= kTol)
        out.put(",0.0");
    else
        out.number(1.0 / f);
    out.put("]");
}

void write_primem(TextOut &out, const ka_primem *primem) {
    Named n(primem, ka_primem_name);
    out.open("PRIMEM", n.name).number(ka_primem_longitude(primem)).put("]");
}

void write_datum(TextOut &out, const ka_datum *datum) {
    Named n(datum, ka_datum_name);
    out.open("DATUM", n.name).put(",");
    write_spheroid(out, ka_datum_spheroid(datum));
    out.put("]");
}

void write_geogcs(TextOut &out, const ka_geogcs *geogcs) {
    Named n(geogcs, ka_geogcs_name);
    out.open("GEOGCS", n.name).put(",");
    write_datum(out, ka_geogcs_datum(geogcs));
    out.put(",");
    write_primem(out, ka_geogcs_primem(geogcs));
    out.put(",");
    write_unit(out, ka_geogcs_unit(geogcs));
    out.put("]");
}

void write_projection(TextOut &out, const ka_projection *projection) {
    Named n(projection, ka_projection_name);
    out.open("PROJECTION", n.name).put("]");
}

void write_parameter(TextOut &out, const ka_parameter *parameter) {
    Named n(parameter, ka_parameter_name);
    out.open("PARAMETER", n.name).number(ka_parameter_value(parameter)).put("]");
}

void write_method(TextOut &out, const ka_method *method) {
    Named n(method, ka_method_name);
    out.open("METHOD", n.name).put("]");
}

// ",PARAMETER[...]" for each filled slot, in slot order.
void write_parameters(TextOut &out, ka_parameter *const *slots) {
    for (int slot = 0; slot < KA_PARAMETER_SLOTS; ++slot) {
        if (slots[slot] == nullptr) continue;
        out.put(",");
        write_parameter(out, slots[slot]);
    }
}

void write_projcs(TextOut &out, const ka_projcs *projcs) {
    Named n(projcs, ka_projcs_name);
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_projcs_parameters(projcs, slots);
    out.open("PROJCS", n.name).put(",");
    write_geogcs(out, ka_projcs_geogcs(projcs));
    out.put(",");
    write_projection(out, ka_projcs_projection(projcs));
    write_parameters(out, slots);
    out.put(",");
    write_unit(out, ka_projcs_unit(projcs));
    out.put("]");
}

void write_geogtran(TextOut &out, const ka_geogtran *geogtran) {
    Named n(geogtran, ka_geogtran_name);
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    ka_geogtran_parameters(geogtran, slots);
    out.open("GEOGTRAN", n.name).put(",");
    write_geogcs(out, ka_geogtran_geogcs1(geogtran));
    out.put(",");
    write_geogcs(out, ka_geogtran_geogcs2(geogtran));
    out.put(",");
    write_method(out, ka_geogtran_method(geogtran));
    write_parameters(out, slots);
    out.put("]");
}

// Runs a writer on the caller's buffer and returns the length written.
template <class T>
int write_text(void (*writer)(TextOut &, const T *), const T *object,
               char *text) {
    if (text == nullptr) return 0;
    TextOut out(text);
    writer(out, object);
    return out.length();
}

}  // namespace

extern "C" {

KA_API int ka_unit_to_string(const ka_unit *unit, char *text) {
    return write_text(write_unit, unit, text);
}

KA_API int ka_spheroid_to_string(const ka_spheroid *spheroid, char *text) {
    return write_text(write_spheroid, spheroid, text);
}

KA_API int ka_primem_to_string(const ka_primem *primem, char *text) {
    return write_text(write_primem, primem, text);
}

KA_API int ka_datum_to_string(const ka_datum *datum, char *text) {
    return write_text(write_datum, datum, text);
}

KA_API int ka_geogcs_to_string(const ka_geogcs *geogcs, char *text) {
    return write_text(write_geogcs, geogcs, text);
}

KA_API int ka_projection_to_string(const ka_projection *projection,
                                   char *text) {
    return write_text(write_projection, projection, text);
}

KA_API int ka_parameter_to_string(const ka_parameter *parameter, char *text) {
    return write_text(write_parameter, parameter, text);
}

KA_API int ka_method_to_string(const ka_method *method, char *text) {
    return write_text(write_method, method, text);
}

KA_API char *ka_projcs_to_string(const ka_projcs *projcs, char *text) {
    write_text(write_projcs, projcs, text);
    return text;
}

KA_API char *ka_geogtran_to_string(const ka_geogtran *geogtran, char *text) {
    write_text(write_geogtran, geogtran, text);
    return text;
}

}  // extern "C"
