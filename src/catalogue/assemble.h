// Composite catalogue objects assembled from the codes of their parts.  The
// parts come from the factories (so override files apply to them too); when
// any part or the object itself cannot be made, everything made is freed
// and the result is nullptr.
#pragma once

#include "veltra.h"

namespace veltra::catalogue {

ka_datum *make_datum(const char *name, int spheroid);
ka_geogcs *make_geogcs(const char *name, int datum, int primem, int unit);

// These two take over the 16 parameter slots: they belong to the new
// object, or are freed (and cleared) when it cannot be made.
ka_projcs *make_projcs(const char *name, int geogcs, int projection,
                       int unit, ka_parameter **slots);
ka_geogtran *make_geogtran(const char *name, int source, int target,
                           int method, ka_parameter **slots);

// Builds the catalogue parameter `code` holding value and puts it in the
// slot of its name, freeing a parameter already there.  False when the
// parameter cannot be made.
bool set_parameter(ka_parameter **slots, int code, double value);

// Puts the data-set parameter of a grid transformation in its slot, named
// "Dataset_" + dataset (dataset as given when it already starts with
// "Dataset_", any case), so that its name alone finds the slot again.
bool set_dataset(ka_parameter **slots, const char *dataset);

}  // namespace veltra::catalogue
