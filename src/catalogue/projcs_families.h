// The family tables of the built-in projected systems.  Each family is a
// function of the code returning a new system, or nullptr when the code is
// not one of its rows.
#pragma once

#include "veltra.h"

#include <span>

namespace veltra::catalogue {

using ProjcsFamily = ka_projcs *(*)(int code);

// The families in the order ka_factory_projcs asks them.
std::span<const ProjcsFamily> projcs_families();

// Transverse Mercator zones (UTM and its national variants), Gauss-Kruger
// zones and the BLM zones.
ka_projcs *zone_projcs(int code);

}  // namespace veltra::catalogue
