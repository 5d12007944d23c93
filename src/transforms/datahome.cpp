// The data home and the object-edit home.  The two callbacks are the only
// process-wide state of the library; they are atomics so that installing one
// while another thread reads it is not a data race.
#include "transforms/datahome.h"

#include "veltra.h"

#include <atomic>
#include <cstdlib>

namespace veltra {

namespace {

std::atomic<ka_home_fn> data_home_callback{nullptr};
std::atomic<ka_home_fn> objedit_home_callback{nullptr};

const char *home(const std::atomic<ka_home_fn> &callback,
                 const char *variable) {
    ka_home_fn func = callback.load(std::memory_order_acquire);
    const char *dir = func != nullptr ? func() : std::getenv(variable);
    return dir != nullptr && dir[0] != '\0' ? dir : nullptr;
}

}  // namespace

const char *data_home() { return home(data_home_callback, "KADATAHOME"); }

const char *objedit_home() {
    return home(objedit_home_callback, "KAOBJEDITHOME");
}

}  // namespace veltra

extern "C" {

KA_API ka_home_fn ka_datahome_setfunc(ka_home_fn func) {
    veltra::data_home_callback.store(func, std::memory_order_release);
    return func;
}

KA_API ka_home_fn ka_objedithome_setfunc(ka_home_fn func) {
    veltra::objedit_home_callback.store(func, std::memory_order_release);
    return func;
}

}  // extern "C"
