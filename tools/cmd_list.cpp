// veltra list: the catalogue's codes and names of one kind.
#include "args.h"
#include "commands.h"
#include "veltra.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

namespace veltra_cli {

namespace {

const char kHelp[] =
    "usage: veltra list [--by-code] KIND [PATTERN]\n"
    "\n"
    "Prints \"code name\" for every catalogue object of KIND (including the\n"
    "definitions of user override files), sorted by name, or by code with\n"
    "--by-code.  With PATTERN only names containing it (ignoring case).\n"
    "\n"
    "KIND: projcs, geogcs, geogtran, datum, spheroid, primem, unit,\n"
    "      linear_unit, angular_unit, projection, method, parameter\n";

struct ListKind {
    const char *name;
    ka_predefined *(*lists[2])(int *count);  // one or two lists
};

const ListKind kKinds[] = {
    {"projcs", {ka_predefined_projcs, nullptr}},
    {"geogcs", {ka_predefined_geogcs, nullptr}},
    {"geogtran", {ka_predefined_geogtran, nullptr}},
    {"datum", {ka_predefined_datum, nullptr}},
    {"spheroid", {ka_predefined_spheroid, nullptr}},
    {"primem", {ka_predefined_primem, nullptr}},
    {"unit", {ka_predefined_linear_unit, ka_predefined_angular_unit}},
    {"linear_unit", {ka_predefined_linear_unit, nullptr}},
    {"angular_unit", {ka_predefined_angular_unit, nullptr}},
    {"projection", {ka_predefined_projection, nullptr}},
    {"method", {ka_predefined_method, nullptr}},
    {"parameter", {ka_predefined_parameter, nullptr}},
};

const ListKind *find_kind(const std::string &name) {
    for (const ListKind &kind : kKinds)
        if (ka_strcasecmp(kind.name, name.c_str()) == 0) return &kind;
    return nullptr;
}

}  // namespace

int run_list(int argc, char **argv, int first) {
    Args args(argc, argv, first, {{"--by-code", false}, {"--help", false}});
    if (int status = options_exit(args, kHelp); status >= 0) return status;
    const auto &words = args.positional();
    if (words.empty() || words.size() > 2) {
        complain("list: KIND [PATTERN] expected (try veltra list --help)");
        return kExitUsage;
    }
    const ListKind *kind = find_kind(words[0]);
    if (kind == nullptr) {
        complain("list: unknown kind '" + words[0] + "' (try veltra list --help)");
        return kExitUsage;
    }
    const char *pattern = words.size() == 2 ? words[1].c_str() : "";

    std::vector<ka_predefined> rows;
    for (auto *list : kind->lists) {
        if (list == nullptr) continue;
        int count = 0;
        ka_predefined *table = list(&count);
        for (int i = 0; i < count; ++i)
            if (ka_strcasestr(table[i].name, pattern) != nullptr)
                rows.push_back(table[i]);
        ka_table_del(table);
    }
    if (args.flag("--by-code"))
        std::stable_sort(rows.begin(), rows.end(),
                         [](const ka_predefined &a, const ka_predefined &b) {
                             return a.code < b.code;
                         });
    else
        std::stable_sort(rows.begin(), rows.end(),
                         [](const ka_predefined &a, const ka_predefined &b) {
                             return ka_strcasecmp(a.name, b.name) < 0;
                         });
    for (const ka_predefined &row : rows) std::printf("%d %s\n", row.code, row.name);
    return kExitOk;
}

}  // namespace veltra_cli
