// Kinds of the text form, and diagnostics for texts the library rejects.
// The library itself only answers NULL; the tool retries the parts with
// their own readers to tell the user which part is at fault.
#include "textkind.h"

#include "args.h"
#include "veltra.h"

#include <cctype>
#include <cstring>

namespace veltra_cli {

namespace {

template <class T, T *(*Read)(const char *)>
void *read_as(const char *text) {
    return Read(text);
}

template <class T, int (*Write)(const T *, char *)>
void write_as(const void *object, char *text) {
    Write(static_cast<const T *>(object), text);
}

template <class T, char *(*Write)(const T *, char *)>
void write_text_as(const void *object, char *text) {
    Write(static_cast<const T *>(object), text);
}

template <class T, void (*Del)(T *)>
void del_as(void *object) {
    Del(static_cast<T *>(object));
}

#define VELTRA_KIND(KEYWORD, kind)                                      \
    TextKind {                                                          \
        KEYWORD, #kind, ka_##kind##_p,                                  \
            read_as<ka_##kind, ka_##kind##_from_string>,                \
            write_as<ka_##kind, ka_##kind##_to_string>,                 \
            del_as<ka_##kind, ka_##kind##_del>                          \
    }

const TextKind kKinds[] = {
    TextKind{"PROJCS", "projcs", ka_projcs_p,
             read_as<ka_projcs, ka_projcs_from_string>,
             write_text_as<ka_projcs, ka_projcs_to_string>,
             del_as<ka_projcs, ka_projcs_del>},
    TextKind{"GEOGTRAN", "geogtran", ka_geogtran_p,
             read_as<ka_geogtran, ka_geogtran_from_string>,
             write_text_as<ka_geogtran, ka_geogtran_to_string>,
             del_as<ka_geogtran, ka_geogtran_del>},
    VELTRA_KIND("GEOGCS", geogcs),
    VELTRA_KIND("DATUM", datum),
    VELTRA_KIND("SPHEROID", spheroid),
    VELTRA_KIND("PRIMEM", primem),
    VELTRA_KIND("UNIT", unit),
    VELTRA_KIND("PROJECTION", projection),
    VELTRA_KIND("PARAMETER", parameter),
    VELTRA_KIND("METHOD", method),
};

#undef VELTRA_KIND

// The quoted name after the first KEYWORD[ of text, or "" when none.
std::string name_after(const std::string &text, const char *keyword) {
    const char *at = ka_strcasestr(text.c_str(), keyword);
    if (at == nullptr) return "";
    const char *p = at + std::strlen(keyword);
    while (*p == ' ' || *p == '\t' || *p == '\n' || *p == '\r' || *p == '[' ||
           *p == '"')
        ++p;
    const char *end = p;
    while (*end != '\0' && *end != '"' && *end != ']' && *end != ',') ++end;
    return std::string(p, end);
}

bool has_keyword(const std::string &text, const char *keyword) {
    return ka_strcasestr(text.c_str(), keyword) != nullptr;
}

template <class T>
bool readable(T *(*read)(const char *), void (*del)(T *), const char *text) {
    T *object = read(text);
    del(object);
    return object != nullptr;
}

std::string why_geogcs(const char *text) {
    if (!readable(ka_datum_from_string, ka_datum_del, text))
        return "no readable DATUM with a SPHEROID[\"name\",axis,inverse "
               "flattening] in the GEOGCS";
    if (!readable(ka_primem_from_string, ka_primem_del, text))
        return "no readable PRIMEM[\"name\",longitude] (|longitude| <= 180) in "
               "the GEOGCS";
    if (!readable(ka_unit_from_string, ka_unit_del, text))
        return "no readable UNIT[\"name\",factor] (factor > 0) in the GEOGCS";
    return "cannot read the GEOGCS";
}

}  // namespace

const TextKind *kind_of_text(const std::string &text) {
    std::size_t p = 0;
    while (p < text.size() && std::isspace(static_cast<unsigned char>(text[p])))
        ++p;
    std::size_t end = p;
    while (end < text.size() && std::isalpha(static_cast<unsigned char>(text[end])))
        ++end;
    const std::string word = text.substr(p, end - p);
    while (end < text.size() && std::isspace(static_cast<unsigned char>(text[end])))
        ++end;
    if (word.empty() || end >= text.size() || text[end] != '[') return nullptr;
    for (const TextKind &kind : kKinds)
        if (ka_strcasecmp(kind.keyword, word.c_str()) == 0) return &kind;
    return nullptr;
}

const TextKind &text_kind(const char *keyword) {
    for (const TextKind &kind : kKinds)
        if (std::strcmp(kind.keyword, keyword) == 0) return kind;
    return kKinds[0];
}

std::string why_unreadable(const TextKind &kind, const std::string &text) {
    const char *t = text.c_str();
    const std::string keyword = kind.keyword;
    if (keyword == "PROJCS") {
        if (!readable(ka_geogcs_from_string, ka_geogcs_del, t))
            return has_keyword(text, "GEOGCS") ? why_geogcs(t)
                                               : "the PROJCS has no GEOGCS";
        if (!has_keyword(text, "PROJECTION"))
            return "the PROJCS has no PROJECTION";
        if (!readable(ka_projection_from_string, ka_projection_del, t))
            return "unknown projection \"" + name_after(text, "PROJECTION") +
                   "\"";
        return "a PARAMETER[\"name\",value] cannot be read, or the linear "
               "UNIT after the GEOGCS is missing";
    }
    if (keyword == "GEOGTRAN") {
        if (!has_keyword(text, "METHOD")) return "the GEOGTRAN has no METHOD";
        if (!readable(ka_method_from_string, ka_method_del, t))
            return "unknown method \"" + name_after(text, "METHOD") + "\"";
        return "the GEOGTRAN needs two readable GEOGCS, and every PARAMETER "
               "must read as PARAMETER[\"name\",value]";
    }
    if (keyword == "GEOGCS") return why_geogcs(t);
    if (keyword == "DATUM")
        return "the DATUM needs a name and a readable SPHEROID[\"name\",axis,"
               "inverse flattening]";
    if (keyword == "SPHEROID")
        return "a SPHEROID needs a name, an axis > 0 and an inverse "
               "flattening that is 0 (sphere) or > 1";
    if (keyword == "PRIMEM")
        return "a PRIMEM needs a name and a longitude within +-180 degrees";
    if (keyword == "UNIT") return "a UNIT needs a name and a factor > 0";
    if (keyword == "PROJECTION")
        return "unknown projection \"" + name_after(text, "PROJECTION") + "\"";
    if (keyword == "METHOD")
        return "unknown method \"" + name_after(text, "METHOD") + "\"";
    return "a PARAMETER needs a name and a value";
}

const TextKind *kind_of_object(const void *object) {
    for (const TextKind &kind : kKinds)
        if (kind.is(object)) return &kind;
    return nullptr;
}

bool catalogue_code(const std::string &text, int &code) {
    std::size_t p = text.find_first_not_of(" \t\r\n");
    std::size_t end = text.find_last_not_of(" \t\r\n");
    if (p == std::string::npos) return false;
    const std::string digits = text.substr(p, end - p + 1);
    if (digits.size() > 9 ||
        digits.find_first_not_of("0123456789") != std::string::npos)
        return false;
    code = std::stoi(digits);
    return true;
}

void *read_any(const std::string &text, const TextKind *&kind,
               std::string &why) {
    int code = 0;
    if (catalogue_code(text, code)) {
        void *object = ka_factory(code);
        kind = kind_of_object(object);
        if (object == nullptr || kind == nullptr) {
            why = "no catalogue object has the code " + std::to_string(code) +
                  " (veltra list KIND shows the codes)";
            return nullptr;
        }
        return object;
    }
    kind = kind_of_text(text);
    if (kind == nullptr) {
        why = "not a coordinate-system text or catalogue code: a text starts "
              "with a keyword such as PROJCS[ or GEOGCS[";
        return nullptr;
    }
    void *object = kind->read(text.c_str());
    if (object == nullptr) why = why_unreadable(*kind, text);
    return object;
}

void *read_required(const char *keyword, const std::string &text,
                    const char *what) {
    // A text of the wrong kind is refused before it is read.
    int code = 0;
    const TextKind *kind = kind_of_text(text);
    if (!catalogue_code(text, code) && kind != nullptr &&
        std::strcmp(kind->keyword, keyword) != 0) {
        complain(std::string(what) + ": expected a " + keyword + " text, got " +
                 kind->keyword);
        return nullptr;
    }
    std::string why;
    void *object = read_any(text, kind, why);
    if (object == nullptr) {
        complain(std::string(what) + ": " + why);
        return nullptr;
    }
    if (std::strcmp(kind->keyword, keyword) != 0) {
        complain(std::string(what) + ": expected a " + keyword +
                 ", got a " + kind->keyword + " (code " + std::to_string(code) +
                 ")");
        kind->del(object);
        return nullptr;
    }
    return object;
}

}  // namespace veltra_cli
