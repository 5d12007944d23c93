// Runs the built veltra tool with arguments and standard input, and
// collects its exit status, standard output and standard error.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace cli {

struct Result {
    int status = -1;
    std::string out;
    std::string err;

    std::vector<std::string> out_lines() const {
        std::vector<std::string> lines;
        std::istringstream in(out);
        for (std::string line; std::getline(in, line);) lines.push_back(line);
        return lines;
    }
};

inline std::string slurp(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

// Single-quotes an argument for the shell.
inline std::string quote(const std::string &arg) {
    std::string q(1, '\'');
    for (char c : arg) {
        if (c == '\'')
            q.append("'\\''");
        else
            q.push_back(c);
    }
    q.push_back('\'');
    return q;
}

inline Result run(const std::vector<std::string> &args,
                  const std::string &input = "") {
    const std::string dir = ::testing::TempDir();
    const std::string base = dir + "veltra_cli_" +
                             ::testing::UnitTest::GetInstance()
                                 ->current_test_info()
                                 ->name();
    {
        std::ofstream in(base + ".in", std::ios::binary);
        in << input;
    }
    std::string command = quote(VELTRA_CLI);
    for (const std::string &arg : args) command.append(" ").append(quote(arg));
    command.append(" < ").append(quote(base + ".in"));
    command.append(" > ").append(quote(base + ".out"));
    command.append(" 2> ").append(quote(base + ".err"));
    Result r;
    const int raw = std::system(command.c_str());
    r.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    r.out = slurp(base + ".out");
    r.err = slurp(base + ".err");
    std::remove((base + ".in").c_str());
    std::remove((base + ".out").c_str());
    std::remove((base + ".err").c_str());
    return r;
}

// The numbers at the start of an output line.
inline std::vector<double> numbers(const std::string &line) {
    std::vector<double> values;
    std::istringstream in(line);
    for (std::string field; in >> field;) {
        if (field == "nan") {
            values.push_back(NAN);
            continue;
        }
        char *end = nullptr;
        double v = std::strtod(field.c_str(), &end);
        if (end == field.c_str()) break;
        values.push_back(v);
    }
    return values;
}

inline std::string source_path(const std::string &relative) {
    return std::string(VELTRA_SOURCE_DIR).append("/").append(relative);
}

}  // namespace cli
