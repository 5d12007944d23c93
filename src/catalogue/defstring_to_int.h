// Macro names of catalogue codes (KA_GCS_WGS_1984 -> 4326).
#pragma once

namespace veltra::catalogue {

// The code of an upper-case macro name, 0 when the name is unknown, has no
// known kind prefix or is NULL.
int macro_code(const char *name);

}  // namespace veltra::catalogue
