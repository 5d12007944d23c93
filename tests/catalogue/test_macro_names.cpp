// Macro names: the kind prefix picks the table, bsearch finds the name.
#include "catalogue/defstring_to_int.h"
#include "catalogue/tables.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

using veltra::catalogue::macro_code;
using veltra::catalogue::MacroRow;

TEST(MacroNames, KnownNames) {
    EXPECT_EQ(macro_code("KA_GCS_WGS_1984"), 4326);
    EXPECT_EQ(macro_code("KA_U_DEGREE"), 9102);
    EXPECT_EQ(macro_code("KA_U_METER"), 9001);
    EXPECT_EQ(macro_code("KA_S_WGS_1984"), 7030);
    EXPECT_EQ(macro_code("KA_PM_GREENWICH"), 8901);
    EXPECT_EQ(macro_code("KA_PRJ_TRANSVERSE_MERCATOR"), 43006);
    EXPECT_EQ(macro_code("KA_PAR_FALSE_EASTING"), 100001);
    // Kept as the table has it, although the method factory builds
    // Bursa-Wolf for 109607.
    EXPECT_EQ(macro_code("KA_MTH_BURSA_WOLF"), 42607);
}

TEST(MacroNames, CaseAndPrefixMatter) {
    EXPECT_EQ(macro_code("ka_gcs_wgs_1984"), 0);
    EXPECT_EQ(macro_code("KA_GCS_wgs_1984"), 0);
    EXPECT_EQ(macro_code("KB_GCS_WGS_1984"), 0);
    EXPECT_EQ(macro_code("KA_GCS_"), 0);
    EXPECT_EQ(macro_code("KA_"), 0);
    EXPECT_EQ(macro_code(""), 0);
    EXPECT_EQ(macro_code(nullptr), 0);
    EXPECT_EQ(macro_code("KA_GCS_WGS_1984 "), 0);
}

struct Table {
    const char *prefix;
    std::span<const MacroRow> rows;
};

// Two rows are stored out of byte order, the second just before the first:
// KA_GT_ED_1987_TO_WGS_1984_1 ahead of KA_GT_ED_1950_TO_WGS_1984_PT3.  A
// search meets the misplaced row only for keys whose halving probes it, so
// only names sorting between the two can be missed; which of them are
// depends on the rows' positions.
constexpr char kEarly[] = "KA_GT_ED_1987_TO_WGS_1984_1";
constexpr char kLate[] = "KA_GT_ED_1950_TO_WGS_1984_PT3";

bool between_misplaced(const char *name) {
    return std::strcmp(name, kLate) >= 0 && std::strcmp(name, kEarly) <= 0;
}

TEST(MacroNames, EveryStoredNameIsFoundUnlessMisdirected) {
    using namespace veltra::catalogue;
    const Table tables[] = {
        {"KA_S_", spheroid_macros()},   {"KA_PAR_", parameter_macros()},
        {"KA_GCS_", geogcs_macros()},   {"KA_GT_", geogtran_macros()},
        {"KA_D_", datum_macros()},      {"KA_PM_", primem_macros()},
        {"KA_U_", unit_macros()},       {"KA_MTH_", method_macros()},
        {"KA_PRJ_", projection_macros()},
    };
    for (const Table &table : tables) {
        for (const MacroRow &row : table.rows) {
            ASSERT_EQ(std::strncmp(row.name, table.prefix,
                                   std::strlen(table.prefix)),
                      0)
                << row.name;
            const int found = macro_code(row.name);
            if (between_misplaced(row.name)) {
                EXPECT_TRUE(found == row.code || found == 0) << row.name;
            } else {
                EXPECT_EQ(found, row.code) << row.name;
            }
        }
    }
}

TEST(MacroNames, TheMisplacedTransformationRow) {
    const auto rows = veltra::catalogue::geogtran_macros();
    std::size_t early = rows.size(), late = rows.size();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (std::strcmp(rows[i].name, kEarly) == 0) early = i;
        if (std::strcmp(rows[i].name, kLate) == 0) late = i;
    }
    ASSERT_LT(late, rows.size());
    EXPECT_EQ(early + 1, late);
    // The halving probes a smaller row beside the misplaced one, turns
    // right and never comes back: the name is not found.
    EXPECT_EQ(macro_code(kEarly), 0);
}

}  // namespace
