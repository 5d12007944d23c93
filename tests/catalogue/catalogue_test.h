// Local helpers of the catalogue tests: the EPSG records, the name of any
// catalogue object, the values of parameter slots, and a scratch
// object-edit home.  The standard headers are the ones the tests share.
#pragma once

#include "catalogue/code_ranges.h"
#include "catalogue/tables.h"
#include "core/object.h"
#include "veltra.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <numbers>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace catalogue_test {

using Record = std::map<std::string, std::string>;  // column -> field

// The fields of one CSV line; quoted fields may hold commas and "".
inline std::vector<std::string> csv_fields(const std::string &line) {
    std::vector<std::string> fields(1);
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (quoted && line[i] == '"' && i + 1 < line.size() && line[i + 1] == '"') fields.back() += line[++i];
        else if (line[i] == '"') quoted = !quoted;
        else if (line[i] == ',' && !quoted) fields.emplace_back();
        else if (line[i] != '\r') fields.back() += line[i];
    }
    return fields;
}

struct EpsgTable {
    std::map<int, Record> by_code;
    const Record *find(int code) const { return by_code.count(code) ? &by_code.at(code) : nullptr; }
};

// The records of one file of VELTRA_SHARED_DIR/epsg; none when it is missing.
inline EpsgTable read_epsg(const std::string &file) {
    EpsgTable table;
    std::ifstream in(std::string(VELTRA_SHARED_DIR) + "/epsg/" + file);
    std::string line;
    std::vector<std::string> header;
    for (bool first = true; std::getline(in, line); first = false) {
        const std::vector<std::string> fields = csv_fields(line);
        if (first) header = fields;
        for (std::size_t i = 0; !first && i < header.size() && i < fields.size(); ++i)
            table.by_code[std::stoi(fields[0])][header[i]] = fields[i];
    }
    return table;
}

// The records of a file, read once.
inline const EpsgTable &epsg(const std::string &file) {
    static std::map<std::string, EpsgTable> read;
    if (!read.count(file)) read[file] = read_epsg(file);
    return read.at(file);
}

// The kind entry of an object, found by its kind word (units: the linear).
inline const veltra::catalogue::KindEntry *entry_of(const void *object) {
    for (const auto &entry : veltra::catalogue::kind_entries())
        if (veltra::is_kind(object, entry.object_kind)) return &entry;
    return nullptr;
}

// The object's name, "(null)" for no object.
inline std::string name_of(const void *object) {
    char name[KA_NAME_MAX] = "(null)";
    if (object != nullptr) entry_of(object)->name(object, name);
    return name;
}

// The values of a projected system's or a transformation's parameter slots,
// NaN for an empty slot, and the number of filled slots.
template <class T>
std::vector<double> slot_values(const T *object, void (*parameters)(const T *, ka_parameter **)) {
    ka_parameter *slots[KA_PARAMETER_SLOTS];
    parameters(object, slots);
    std::vector<double> values;
    for (ka_parameter *p : slots) values.push_back(p ? ka_parameter_value(p) : std::nan(""));
    return values;
}

inline long filled(const std::vector<double> &values) {
    return std::count_if(values.begin(), values.end(), [](double v) { return !std::isnan(v); });
}

// A temporary object-edit home, installed through $KAOBJEDITHOME on request;
// removed at the end, with no home left installed.
struct OverrideHome {
    std::string dir = (std::filesystem::temp_directory_path() / "veltra-home-XXXXXX").string();

    OverrideHome() {
        if (mkdtemp(dir.data()) == nullptr) dir = "/nonexistent";
    }
    ~OverrideHome() {
        ka_objedithome_setfunc(nullptr);
        unsetenv("KAOBJEDITHOME");
        std::error_code ignored;
        std::filesystem::remove_all(dir, ignored);
    }
    void use_environment(const std::string &home) const { setenv("KAOBJEDITHOME", home.c_str(), 1); }
    void use_environment() const { use_environment(dir); }
    // Replaces a file's whole content.
    void write(const std::string &file, const std::string &content) const {
        std::ofstream(std::filesystem::path(dir) / file, std::ios::binary) << content;
    }
};

}  // namespace catalogue_test
