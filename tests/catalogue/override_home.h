// A scratch object-edit home for tests: a temporary directory whose files
// the test writes, installed through the environment or the callback.
#pragma once

#include "veltra.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace veltra_test {

class OverrideHome {
public:
    OverrideHome() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "veltra-home-XXXXXX")
                .string();
        if (mkdtemp(pattern.data()) != nullptr) dir_ = pattern;
        ka_objedithome_setfunc(nullptr);
        unsetenv("KAOBJEDITHOME");
    }
    ~OverrideHome() {
        ka_objedithome_setfunc(nullptr);
        unsetenv("KAOBJEDITHOME");
        std::error_code ignored;
        if (!dir_.empty()) std::filesystem::remove_all(dir_, ignored);
    }
    OverrideHome(const OverrideHome &) = delete;
    OverrideHome &operator=(const OverrideHome &) = delete;

    const std::string &dir() const { return dir_; }

    // Installs the home through $KAOBJEDITHOME.
    void use_environment(const std::string &value) const {
        setenv("KAOBJEDITHOME", value.c_str(), 1);
    }
    void use_environment() const { use_environment(dir_); }

    // Replaces the file's whole content.
    void write(const std::string &file, const std::string &content) const {
        std::ofstream out(std::filesystem::path(dir_) / file,
                          std::ios::binary | std::ios::trunc);
        out << content;
    }

private:
    std::string dir_;
};

}  // namespace veltra_test
