// Allocation wrappers: every block of the library goes through these.
#include "veltra.h"

#include <cstdlib>

extern "C" {

KA_API void *ka_mem_alloc(int size) {
    if (size < 1) return nullptr;
    return std::calloc(1, static_cast<std::size_t>(size));
}

KA_API void ka_mem_free(void *block) { std::free(block); }

KA_API void *ka_mem_realloc(void *block, int size) {
    if (size < 0) return nullptr;
    return std::realloc(block, static_cast<std::size_t>(size));
}

KA_API void ka_table_del(void *table) { std::free(table); }

}  // extern "C"
