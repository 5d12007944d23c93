// Runs the built veltra tool with arguments and standard input, and
// collects its exit status, standard output and standard error.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace cli {

inline std::string slurp(const std::string &path) {
    std::ostringstream s;
    s << std::ifstream(path, std::ios::binary).rdbuf();
    return s.str();
}

inline std::vector<std::string> lines_of(const std::string &text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

struct Result {
    int status = -1;
    std::string out, err;
    std::vector<std::string> lines() const { return lines_of(out); }
};

inline Result run(const std::vector<std::string> &args, const std::string &input = "") {
    const std::string base =
        ::testing::TempDir() + "veltra_cli_" +
        ::testing::UnitTest::GetInstance()->current_test_info()->name();
    std::ofstream(base + ".in", std::ios::binary) << input;
    // Every argument single-quoted for the shell.
    std::string command = "'" VELTRA_CLI "'";
    for (const std::string &arg : args) {
        command += " '";
        for (char c : arg) command += c == '\'' ? std::string("'\\''") : std::string(1, c);
        command += "'";
    }
    command += " < '" + base + ".in' > '" + base + ".out' 2> '" + base + ".err'";
    const int raw = std::system(command.c_str());
    Result r{WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, slurp(base + ".out"), slurp(base + ".err")};
    for (const char *suffix : {".in", ".out", ".err"}) std::remove((base + suffix).c_str());
    return r;
}

// The numbers at the start of an output line ("nan" included).
inline std::vector<double> numbers(const std::string &line) {
    std::vector<double> values;
    std::istringstream in(line);
    for (std::string field; in >> field;) {
        char *end = nullptr;
        const double value = std::strtod(field.c_str(), &end);
        if (end == field.c_str()) break;
        values.push_back(value);
    }
    return values;
}

inline std::string source_path(const std::string &relative) {
    return std::string(VELTRA_SOURCE_DIR) + "/" + relative;
}

}  // namespace cli
