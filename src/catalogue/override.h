// User override files: plain-text definitions in the object-edit home that
// replace or add catalogue entries.  A line defines an object when its first
// token equal to the kind's keyword (any case) is followed by the code; the
// fields after the code are the kind's (name first).
#pragma once

#include "core/tokenizer.h"
#include "veltra.h"

namespace veltra::catalogue {

// The definition line of one code, split into tokens.
struct OverrideDefinition {
    Tokens tokens;
    int first;  // index of the first field after the code

    // Number of fields after the code.
    int field_count() const { return tokens.count - first; }
    // Field i after the code, nullptr when the line is shorter.
    const char *field(int i) const {
        return i >= 0 && i < field_count() ? tokens.token[first + i]
                                           : nullptr;
    }
};

// Reads `file` of the object-edit home, if there is one, for the first line
// whose first `keyword` token is followed by `code`.  The file is opened and
// closed within the call.  False when there is no home, no file or no such
// line.
bool find_override(const char *file, const char *keyword, int code,
                   OverrideDefinition &out);

// A code as written in an override file: a decimal integer, or, when that
// reads as 0, a macro name such as KA_GCS_WGS_1984.  0 when it is neither
// (or for NULL).
int read_code(const char *text);

// A number field (locale-independent decimal text).
double read_number(const char *text);

// How the tokens after the fixed fields of a projected-CS or transformation
// definition pair up.
struct PairRules {
    // True when code is a parameter the object takes (its value follows).
    bool (*takes)(int code, const void *context);
    const void *context;
    // Unit codes stand alone (no value) and shift the later pairs by one.
    bool lone_units;
};

// Reads the (parameter code, value) pairs from field `from` on.  Positions
// are examined from there, (fields left) / 2 + 1 of them: a parameter the
// rules take consumes its value and goes to its slot (a later one of the
// same slot replaces it); with lone_units, a code of a unit range becomes
// *unit and consumes only itself; anything else consumes a pair and is
// ignored.  The data-set parameter takes a name as its value.  False when a
// parameter cannot be made (the slots keep what was set).
bool read_pairs(const OverrideDefinition &definition, int from,
                const PairRules &rules, ka_parameter **slots, int *unit);

}  // namespace veltra::catalogue
