// The override-file reader shared by the factories of the seven kinds that
// have one.
#include "catalogue/override.h"

#include "catalogue/assemble.h"
#include "catalogue/code_ranges.h"
#include "catalogue/defstring_to_int.h"
#include "core/strutil.h"
#include "transforms/datahome.h"
#include "transforms/pathcat.h"
#include "veltra.h"

#include <sys/stat.h>

#include <climits>
#include <cstdio>

namespace veltra::catalogue {

namespace {

constexpr char kDelimiters[] = ",\"";
constexpr int kDatasetCode = 100047;
constexpr std::size_t kPathMax = 4096;
// A line holds at most this many characters; the rest of a longer line is
// skipped, never read as a line of its own.
constexpr int kLineMax = Tokens::kBufferSize - 1;

// Reads one line, keeping its first kLineMax characters; false at the end
// of the file.
bool read_line(std::FILE *file, char (&line)[kLineMax + 1]) {
    int c = std::getc(file);
    if (c == EOF) return false;
    int length = 0;
    for (; c != EOF && c != '\n'; c = std::getc(file))
        if (length < kLineMax) line[length++] = static_cast<char>(c);
    line[length] = '\0';
    return true;
}

// True when the line's first keyword token is followed by `code`.
bool defines(const Tokens &tokens, const char *keyword, int code,
             int &first) {
    for (int i = 0; i < tokens.count; ++i) {
        if (ka_strcasecmp(tokens.token[i], keyword) != 0) continue;
        if (i + 1 >= tokens.count) return false;
        first = i + 2;
        return read_code(tokens.token[i + 1]) == code;
    }
    return false;
}

// Decimal integer as atoi reads it (leading blanks, sign, digits up to the
// first other character); 0 when there is none or it overflows an int.
int read_decimal(const char *text) {
    const char *p = text;
    while (is_blank(*p) || *p == '\v' || *p == '\f') ++p;
    const bool negative = *p == '-';
    if (*p == '+' || *p == '-') ++p;
    long long value = 0;
    for (; *p >= '0' && *p <= '9'; ++p) {
        value = value * 10 + (*p - '0');
        if (value > static_cast<long long>(INT_MAX) + 1) return 0;
    }
    if (negative) value = -value;
    return value >= INT_MIN && value <= INT_MAX ? static_cast<int>(value) : 0;
}

bool is_unit_code(int code) {
    return in_ranges(kind_entry(CodeKind::kLinearUnit), code) ||
           in_ranges(kind_entry(CodeKind::kAngularUnit), code);
}

}  // namespace

int read_code(const char *text) {
    if (text == nullptr) return 0;
    const int code = read_decimal(text);
    return code != 0 ? code : macro_code(text);
}

double read_number(const char *text) { return ka_parse_number(text); }

bool find_override(const char *file, const char *keyword, int code,
                   OverrideDefinition &out) {
    const char *home = objedit_home();
    if (home == nullptr) return false;
    char path[kPathMax];
    if (!path_join(path, sizeof path, home, file)) return false;
    struct stat status;
    if (stat(path, &status) != 0) return false;
    std::FILE *stream = std::fopen(path, "r");
    if (stream == nullptr) return false;

    char line[kLineMax + 1];
    bool found = false;
    while (!found && read_line(stream, line)) {
        tokenize(line, kDelimiters, out.tokens);
        found = defines(out.tokens, keyword, code, out.first);
    }
    std::fclose(stream);
    return found;
}

bool read_pairs(const OverrideDefinition &definition, int from,
                const PairRules &rules, ka_parameter **slots, int *unit) {
    const int count = definition.field_count();
    const int positions = (count - from) / 2 + 1;
    int at = from;
    for (int position = 0; position < positions && at < count; ++position) {
        const int code = read_code(definition.field(at));
        if (rules.takes(code, rules.context)) {
            const char *value = definition.field(at + 1);
            at += 2;
            if (value == nullptr) break;  // a code without its value
            const bool made = code == kDatasetCode
                                  ? set_dataset(slots, value)
                                  : set_parameter(slots, code,
                                                  read_number(value));
            if (!made) return false;
        } else if (rules.lone_units && is_unit_code(code)) {
            if (unit != nullptr) *unit = code;
            at += 1;
        } else {
            at += 2;
        }
    }
    return true;
}

}  // namespace veltra::catalogue
