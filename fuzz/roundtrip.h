// The property every reader's fuzz target checks: whatever text it is
// given, a reader returns an object or NULL without crashing, leaking or
// reading outside the text; an object it returns writes a text that reads
// back, and reads back equal whenever the written text can carry it (see
// `carries_values`).
#pragma once

#include "veltra.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace veltra_fuzz {

template <class T>
struct TextKind {
    T *(*read)(const char *);
    void (*write)(const T *, char *);
    int (*eq)(const T *, const T *);
    void (*del)(T *);
};

[[noreturn]] inline void fail(const char *what, const char *text) {
    std::fprintf(stderr, "round trip: %s\n  text: %s\n", what, text);
    std::abort();
}

inline bool is_keyword(const std::string &word) {
    static const char *const kKeywords[] = {
        "UNIT",       "SPHEROID",  "PRIMEM", "DATUM",  "GEOGCS",
        "PROJECTION", "PARAMETER", "METHOD", "PROJCS", "GEOGTRAN"};
    for (const char *keyword : kKeywords)
        if (ka_strcasecmp(word.c_str(), keyword) == 0) return true;
    return false;
}

// Known limits of the text form, where a written text reads back as a
// different object by design: a name spelt like a keyword is taken for
// that keyword by the flat token scan; an infinite or NaN value is not
// equal to itself; a value of magnitude 1e16 or more is written with six
// decimals only ("e+" appears nowhere else in a written text).
// Known limits of the text form, where a written text reads back as a
// different object, or not at all, by design: a name spelt like a keyword
// is taken for that keyword by the flat token scan; an infinite or NaN
// value is not equal to itself; a value of magnitude 1e16 or more is
// written with six decimals only ("e+" appears nowhere else in a written
// text); and a flattening within 1e-15 of 1 writes its inverse as "1.0",
// a flattening of 1, which no spheroid may have.
inline bool carries_values(const char *text) {
    // A written text alternates keywords, quoted names and numbers, with
    // no blanks.
    std::string word, keyword;
    int numbers = 0;  // since the last keyword
    bool quoted = false;
    for (const char *p = text;; ++p) {
        const char c = *p;
        if (c == '"' || (!quoted && (c == '[' || c == ']' || c == ',')) ||
            c == '\0') {
            if (quoted && is_keyword(word)) return false;
            if (!quoted && is_keyword(word)) {
                keyword = word;
                numbers = 0;
            } else if (!quoted && !word.empty()) {
                if (word.find_first_of("ni") != std::string::npos ||
                    word.find("e+") != std::string::npos)
                    return false;  // nan, inf or a value of 1e16 or more
                if (++numbers == 2 && keyword == "SPHEROID" && word == "1.0")
                    return false;
            }
            word.clear();
            if (c == '"') quoted = !quoted;
            if (c == '\0') return true;
        } else {
            word += c;
        }
    }
}

template <class T>
int round_trip(const std::uint8_t *data, std::size_t size,
               const TextKind<T> &kind) {
    // A C caller's text ends at its first NUL.
    const std::string input(reinterpret_cast<const char *>(data),
                            strnlen(reinterpret_cast<const char *>(data), size));
    T *first = kind.read(input.c_str());
    if (first == nullptr) return 0;

    char text[KA_TEXT_MAX];
    kind.write(first, text);
    if (std::strlen(text) >= KA_TEXT_MAX) fail("text too long", text);
    const bool exact = carries_values(text);
    T *second = kind.read(text);
    if (second == nullptr) {
        // A name spelt like a keyword may leave nothing to read.
        if (exact) fail("written text does not read back", text);
        kind.del(first);
        return 0;
    }
    if (exact && !kind.eq(first, second)) fail("read back unequal", text);

    // A second lap must be stable: what was read back writes and reads
    // again to an equal object.
    char again[KA_TEXT_MAX];
    kind.write(second, again);
    T *third = kind.read(again);
    if (exact && third == nullptr) fail("second lap does not read back", again);
    if (exact && !kind.eq(second, third)) fail("second lap unequal", again);

    kind.del(first);
    kind.del(second);
    kind.del(third);
    return 0;
}

}  // namespace veltra_fuzz
