// Macro names: the tables (byte order, first rows, aliases, the misplaced
// row) and the lookup (the kind prefix picks the table, bsearch finds the
// name).
#include "catalogue/defstring_to_int.h"
#include "catalogue_test.h"

namespace {

using namespace veltra::catalogue;

TEST(MacroNames, Lookup) {
    const std::pair<const char *, int> cases[] = {
        {"KA_GCS_WGS_1984", 4326}, {"KA_U_DEGREE", 9102}, {"KA_U_METER", 9001},
        {"KA_S_WGS_1984", 7030}, {"KA_PM_GREENWICH", 8901}, {"KA_PRJ_MERCATOR", 43004},
        {"KA_PAR_SCALE_DIFFERENCE", 100046}, {"KA_MTH_HARN", 109613}, {"KA_U_MILE_STATUTE", 9093},
        {"KA_S_GRS_1967_TRUNC", 107036}, {"KA_S_CLARKE_1866_MICH", 7009},
        {"KA_S_EVEREST_ADJ_1937", 7015}, {"KA_D_WGS_1984", 6326},
        // Kept although the method factory builds Bursa-Wolf for 109607.
        {"KA_MTH_BURSA_WOLF", 42607},
        // Case, prefix and the whole name matter.
        {"ka_gcs_wgs_1984", 0}, {"KA_GCS_wgs_1984", 0}, {"KB_GCS_WGS_1984", 0}, {"KA_GCS_", 0},
        {"KA_", 0}, {"", 0}, {"KA_GCS_WGS_1984 ", 0}};
    for (const auto &[name, code] : cases) EXPECT_EQ(macro_code(name), code) << name;
    EXPECT_EQ(macro_code(nullptr), 0);
}

TEST(MacroNames, AliasesShareTheirCodes) {
    const std::pair<const char *, const char *> aliases[] = {
        {"KA_GCS_DABOLA", "KA_GCS_DABOLA_1981"}, {"KA_GCS_QATAR", "KA_GCS_QATAR_1974"},
        {"KA_D_DABOLA", "KA_D_DABOLA_1981"}, {"KA_GT_QATAR_1974_TO_WGS_1984_1", "KA_GT_QATAR_TO_WGS_1984"},
        {"KA_GT_AGD_1966_TO_GDA_1994_10", "KA_GT_AGD_1966_TO_GDA_1994_NTV2_SOUTHEAST"},
        {"KA_GT_AGD_1984_TO_GDA_1994_4", "KA_GT_AGD_1984_TO_GDA_1994_NTV2_WESTERN"},
        {"KA_GT_ATS_1977_TO_NAD_1983_CSRS98_2", "KA_GT_ATS_1977_TO_NAD_1983_CSRS98_NTV2_PEI"},
        {"KA_GT_NZGD_1949_TO_NZGD_2000_1", "KA_GT_NZGD_1949_TO_NZGD_2000_3PAR"},
        {"KA_GT_NZGD_1949_TO_NZGD_2000_2", "KA_GT_NZGD_1949_TO_NZGD_2000_7PAR"},
        {"KA_GT_NZGD_1949_TO_NZGD_2000_3", "KA_GT_NZGD_1949_TO_NZGD_2000_NTV2"},
        {"KA_GT_NAD_1983_TO_HARN_WV", "KA_GT_NTF_TO_RGF_1993_1"}};
    for (const auto &[a, b] : aliases) EXPECT_TRUE(macro_code(a) != 0 && macro_code(a) == macro_code(b)) << b;
    const GeogtranRow *wv = find_row(geogtran_rows(), macro_code("KA_GT_NTF_TO_RGF_1993_1"));
    EXPECT_STREQ(wv ? wv->name : "", "NAD_1983_To_HARN_West_Virginia");
}

// Two rows are stored out of byte order, the second just before the first:
// KA_GT_ED_1987_TO_WGS_1984_1 ahead of KA_GT_ED_1950_TO_WGS_1984_PT3.  A
// search can then miss only names between the two.
constexpr char kEarly[] = "KA_GT_ED_1987_TO_WGS_1984_1";
constexpr char kLate[] = "KA_GT_ED_1950_TO_WGS_1984_PT3";

TEST(MacroNames, TablesInByteOrderAndEveryNameFound) {
    const std::tuple<std::string, std::span<const MacroRow>, const char *> tables[] = {  // first names
        {"KA_S_", spheroid_macros(), "KA_S_AIRY_1830"},       {"KA_PAR_", parameter_macros(), "KA_PAR_AZIMUTH"},
        {"KA_GCS_", geogcs_macros(), "KA_GCS_ABIDJAN_1987"}, {"KA_D_", datum_macros(), "KA_D_ABIDJAN_1987"},
        {"KA_GT_", geogtran_macros(), "KA_GT_ABIDJAN_1987_TO_WGS_1984"}, {"KA_PM_", primem_macros(), "KA_PM_ATHENS"},
        {"KA_U_", unit_macros(), "KA_U_CHAIN_BENOIT_A"},     {"KA_MTH_", method_macros(), "KA_MTH_BURSA_WOLF"},
        {"KA_PRJ_", projection_macros(), "KA_PRJ_AITOFF"}};
    for (const auto &[prefix, rows, first] : tables) {
        ASSERT_FALSE(rows.empty()) << prefix;
        EXPECT_STREQ(rows[0].name, first);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const std::string name = rows[i].name;
            EXPECT_TRUE(name.starts_with(prefix) && name.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_") ==
                                                        std::string::npos) << name;
            if (i > 0 && name != kLate) { EXPECT_LT(rows[i - 1].name, name) << name; }
            if (name < kLate || name > kEarly) { EXPECT_EQ(macro_code(name.c_str()), rows[i].code) << name; }
            if (name == kEarly) { EXPECT_STREQ(i + 1 < rows.size() ? rows[i + 1].name : "", kLate); }
        }
    }
    // The halving probes a smaller row beside the misplaced one, turns right
    // and never comes back.
    EXPECT_EQ(macro_code(kEarly), 0);
}

}  // namespace
