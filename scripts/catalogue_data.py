"""Hand-decided data of the built-in catalogue.

Everything here is a decision that the EPSG records alone cannot make: the
catalogue's own names, its values where it keeps them, the library's own
codes, the matches between the catalogue's names and EPSG's, and the
abbreviations of the macro names.  gen_catalogue.py reads this module and
the EPSG records and writes src/catalogue/generated/.  Each table says what
it decides; docs/catalogue.md lists every resulting deviation from EPSG.
"""

# ---------------------------------------------------------------------------
# Units.  The catalogue's factors, written so that the decimal text gives the
# stored double exactly.  The generator compares each with EPSG's
# conv_factor (same code) and reports the differences.
UNITS = [
    (9001, 'Meter', '1'),
    (9002, 'Foot', '0.3048'),
    (9003, 'Foot_US', '0.30480060960121924'),
    (9005, 'Foot_Clarke', '0.304797265'),
    (9014, 'Fathom', '1.8288'),
    (9030, 'Nautical_Mile', '1852'),
    (9031, 'Meter_German', '1.00000135965'),
    (9033, 'Chain_US', '20.11684023368047'),
    (9034, 'Link_US', '0.2011684023368047'),
    (9035, 'Mile_US', '1609.3472186944375'),
    (9036, 'Kilometer', '1e+03'),
    (9037, 'Yard_Clarke', '0.914391795'),
    (9038, 'Chain_Clarke', '20.11661949'),
    (9039, 'Link_Clarke', '0.2011661949'),
    (9040, 'Yard_Sears', '0.9143984146160287'),
    (9041, 'Foot_Sears', '0.3047994715386762'),
    (9042, 'Chain_Sears', '20.116765121552632'),
    (9043, 'Link_Sears', '0.2011676512155263'),
    (9050, 'Yard_Benoit_1895_A', '0.9143992'),
    (9051, 'Foot_Benoit_1895_A', '0.3047997333333333'),
    (9052, 'Chain_Benoit_1895_A', '20.1167824'),
    (9053, 'Link_Benoit_1895_A', '0.201167824'),
    (9060, 'Yard_Benoit_1895_B', '0.9143992042898124'),
    (9061, 'Foot_Benoit_1895_B', '0.30479973476327077'),
    (9062, 'Chain_Benoit_1895_B', '20.116782494375872'),
    (9063, 'Link_Benoit_1895_B', '0.2011678249437587'),
    (9070, 'Foot_1865', '0.30480083333333335'),
    (9080, 'Foot_Indian', '0.30479951024814694'),
    (9081, 'Foot_Indian_1937', '0.30479841'),
    (9082, 'Foot_Indian_1962', '0.3047996'),
    (9083, 'Foot_Indian_1975', '0.3047995'),
    (9084, 'Yard_Indian', '0.9143985307444408'),
    (9085, 'Yard_Indian_1937', '0.91439523'),
    (9086, 'Yard_Indian_1962', '0.9143988'),
    (9087, 'Yard_Indian_1975', '0.9143985'),
    (9093, 'Statute_Mile', '1609.344'),
    (9094, 'Foot_Gold_Coast', '0.3047997101815088'),
    (9101, 'Radian', '1'),
    (9102, 'Degree', '0.017453292519943295'),
    (9103, 'Minute', '0.0002908882086657216'),
    (9104, 'Second', '4.84813681109536e-06'),
    (9105, 'Grad', '0.015707963267948967'),
    (9106, 'Gon', '0.015707963267948967'),
    (9109, 'Microradian', '1e-06'),
    (9112, 'Minute_Centesimal', '0.00015707963267948965'),
    (9113, 'Second_Centesimal', '1.5707963267948967e-06'),
    (9114, 'Mil_6400', '0.0009817477042468104'),
]

# ---------------------------------------------------------------------------
# Spheroids: code, name, semimajor axis (m), inverse flattening (0: sphere).
# The catalogue's values, compared by the generator with EPSG's ellipsoid of
# the same code (EPSG axes in feet are converted with EPSG's own factors, an
# ellipsoid given by its semi-minor axis b gives 1/f = a / (a - b)).
SPHEROIDS = [
    (7001, 'Airy_1830', '6377563.396', '299.3249646'),
    (7002, 'Airy_Modified', '6377340.189', '299.3249646'),
    (7003, 'Australian', '6.37816e+06', '298.25'),
    (7004, 'Bessel_1841', '6377397.155', '299.1528128'),
    (7005, 'Bessel_Modified', '6377492.018', '299.1528128'),
    (7006, 'Bessel_Namibia', '6377483.865', '299.1528128'),
    (7007, 'Clarke_1858', '6378293.639', '294.260676369'),
    (7008, 'Clarke_1866', '6378206.4', '294.9786982'),
    (7009, 'Clarke_1866_Michigan', '6378450.047', '294.978684677'),
    (7010, 'Clarke_1880_Benoit', '6378300.79', '293.466234571'),
    (7011, 'Clarke_1880_IGN', '6378249.2', '293.46602'),
    (7012, 'Clarke_1880_RGS', '6378249.145', '293.465'),
    (7013, 'Clarke_1880_Arc', '6378249.145', '293.466307656'),
    (7014, 'Clarke_1880_SGA', '6378249.2', '293.46598'),
    (7015, 'Everest_Adjustment_1937', '6377276.345', '300.8017'),
    (7016, 'Everest_Definition_1967', '6377298.556', '300.8017'),
    (7018, 'Everest_1830_Modified', '6377304.063', '300.8017'),
    (7019, 'GRS_1980', '6378137', '298.257222101'),
    (7020, 'Helmert_1906', '6.3782e+06', '298.3'),
    (7021, 'Indonesian', '6.37816e+06', '298.247'),
    (7022, 'International_1924', '6378388', '297'),
    (7023, 'International_1967', '6.37816e+06', '298.25'),
    (7024, 'Krasovsky_1940', '6378245', '298.3'),
    (7025, 'NWL_9D', '6378145', '298.25'),
    (7026, 'NWL_10D', '6378135', '298.26'),
    (7027, 'Plessis_1817', '6376523', '308.64'),
    (7028, 'Struve_1860', '6378298.3', '294.73'),
    (7029, 'War_Office', '6.3783e+06', '296'),
    (7030, 'WGS_1984', '6378137', '298.257223563'),
    (7031, 'GEM_10C', '6378137', '298.257222101'),
    (7032, 'OSU_86F', '6378136.2', '298.25722'),
    (7033, 'OSU_91A', '6378136.3', '298.25722'),
    (7034, 'Clarke_1880', '6378249.138', '293.466307656'),
    (7035, 'Sphere', '6.371e+06', '0'),
    (7036, 'GRS_1967', '6.37816e+06', '298.247167427'),
    (7041, 'ATS_1977', '6378135', '298.257'),
    (7042, 'Everest_1830', '6377299.36', '300.8017'),
    (7043, 'WGS_1972', '6378135', '298.26'),
    (7044, 'Everest_Definition_1962', '6377301.243', '300.8017255'),
    (7045, 'Everest_Definition_1975', '6377299.151', '300.8017255'),
    (107001, 'WGS_1966', '6378145', '298.25'),
    (107002, 'Fischer_1960', '6378166', '298.3'),
    (107003, 'Fischer_1968', '6.37815e+06', '298.3'),
    (107004, 'Fischer_Modified', '6378155', '298.3'),
    (107005, 'Hough_1960', '6.37827e+06', '297'),
    (107006, 'Everest_Modified_1969', '6377295.664', '300.8017'),
    (107007, 'Walbeck', '6376896', '302.78'),
    (107008, 'Sphere_TARNEL', '6370997', '0'),
    (107036, 'GRS_1967_Truncated', '6.37816e+06', '298.25'),
]

# Library spheroids that EPSG holds under an EPSG code of its own: the
# generator compares them with that ellipsoid.  The others (Fischer 1960,
# Fischer 1968, modified Fischer, Walbeck) have no EPSG ellipsoid.
SPHEROID_EPSG_EQUIVALENT = {
    107001: 7025,   # WGS 66 uses EPSG's NWL 9D ellipsoid (datum 6760)
    107005: 7053,   # Hough 1960
    107006: 7056,   # Everest 1830 (RSO 1969)
    107008: 7052,   # Clarke 1866 Authalic Sphere, radius 6370997 m
    107036: 7050,   # GRS 1967 Modified (flattening truncated to 1/298.25)
}

# EPSG ellipsoids that the catalogue holds under another code; used when a
# datum's EPSG record names them.
EPSG_ELLIPSOID_IN_CATALOGUE = {
    7046: 7006,     # Bessel Namibia (GLM): the same figure in German legal metres
    7050: 107036,
    7052: 107008,
    7053: 107005,
    7056: 107006,
}

# ---------------------------------------------------------------------------
# Prime meridians: code and catalogue name.  Longitudes come from EPSG
# (same code), converted to degrees, except the two the catalogue keeps.
PRIMEMS = [
    (8901, 'Greenwich'), (8902, 'Lisbon'), (8903, 'Paris'), (8904, 'Bogota'),
    (8905, 'Madrid'), (8906, 'Rome'), (8907, 'Bern'), (8908, 'Jakarta'),
    (8909, 'Ferro'), (8910, 'Brussels'), (8911, 'Stockholm'),
    (8912, 'Athens'), (8913, 'Oslo'),
]

# Longitudes the catalogue keeps instead of EPSG's, in degrees.
PRIMEM_KEPT_LONGITUDES = {
    # Paris: EPSG gives 2.5969213 grad (2.33722917 deg, rounded in grads);
    # the catalogue keeps the exact sexagesimal value 2 deg 20' 14.025" E.
    8903: ('2.337229166666667',
           "2 deg 20' 14.025\" E, the exact value behind EPSG's rounded 2.5969213 grad"),
    # Madrid: the catalogue's 3 deg 41' 16.58" W; EPSG gives 3 deg 41'
    # 14.55" W.
    8905: ('-3.687938888888889',
           "the catalogue's 3 deg 41' 16.58\" W kept; EPSG gives 3 deg 41' 14.55\" W"),
}

# ---------------------------------------------------------------------------
# Catalogue names, in the catalogue's own order.  Every datum, geographic CS
# and geographic transformation of the catalogue, spelt exactly as the
# catalogue spells it.
DATUM_NAMES = [
    'D_Fischer_1960', 'D_Fischer_1968', 'D_Fischer_Modified', 'D_Hough_1960',
    'D_Everest_Modified_1969', 'D_Walbeck', 'D_Sphere_TARNEL', 'D_WGS_1966',
    'D_Airy_1830', 'D_Airy_Modified', 'D_Australian', 'D_Bessel_1841',
    'D_Bessel_Modified', 'D_Bessel_Namibia', 'D_Clarke_1858', 'D_Clarke_1866',
    'D_Clarke_1866_Michigan', 'D_Clarke_1880_Benoit', 'D_Clarke_1880_IGN',
    'D_Clarke_1880_RGS', 'D_Clarke_1880_Arc', 'D_Clarke_1880_SGA',
    'D_Everest_Adj_1937', 'D_Everest_Def_1967', 'D_Everest_Modified',
    'D_GRS_1980', 'D_Helmert_1906', 'D_Indonesian', 'D_International_1924',
    'D_International_1967', 'D_Krasovsky_1940', 'D_NWL_9D', 'D_Plessis_1817',
    'D_Struve_1860', 'D_War_Office', 'D_GEM_10C', 'D_OSU_86F', 'D_OSU_91A',
    'D_Clarke_1880', 'D_Sphere', 'D_GRS_1967', 'D_Everest_1830',
    'D_Everest_Def_1962', 'D_Everest_Def_1975', 'D_Kerguelen_Island_1949',
    'D_Reunion', 'D_Ascension_Island_1958', 'D_DOS_71_4', 'D_Cape_Canaveral',
    'D_Fort_Thomas_1955', 'D_Graciosa_Base_SW_1948', 'D_ISTS_061_1968',
    'D_LC5_1961', 'D_Observ_Meteorologico_1939', 'D_Pico_de_Las_Nieves',
    'D_Porto_Santo_1936', 'D_Sao_Braz', 'D_Selvagem_Grande_1938',
    'D_Tristan_1968', 'D_American_Samoa_1962', 'D_Camp_Area',
    'D_Deception_Island', 'D_Gunung_Segara', 'D_S42_Hungary', 'D_Kusaie_1951',
    'D_Alaskan_Islands', 'D_Hong_Kong_1980', 'D_Datum_Lisboa_Bessel',
    'D_Datum_Lisboa_Hayford', 'D_RGF_1993', 'D_NZGD_2000', 'D_Pohnpei',
    'D_REGVEN', 'D_JGD_2000', 'D_Bab_South', 'D_Majuro', 'D_ISTS_073_1969',
    'D_Bellevue_IGN', 'D_Canton_1966', 'D_Chatham_Island_1971', 'D_DOS_1968',
    'D_Easter_Island_1967', 'D_Guam_1963', 'D_GUX_1', 'D_Johnston_Island_1961',
    'D_Midway_1961', 'D_Pitcairn_1967', 'D_Santo_DOS_1965', 'D_Viti_Levu_1916',
    'D_Wake_Eniwetok_1960', 'D_Wake_Island_1952', 'D_Anna_1_1965',
    'D_Gan_1970', 'D_Astro_1952', 'D_Hong_Kong_1963', 'D_Oman',
    'D_South_Asia_Singapore', 'D_Ayabelle', 'D_Point_58', 'D_Beacon_E_1945',
    'D_Tern_Island_1961', 'D_Hjorsey_1955', 'D_European_1979',
    'D_Everest_Bangladesh', 'D_Everest_India_Nepal', 'D_Sierra_Leone_1960',
    'D_Hermannskogel', 'D_Estonia_1937', 'D_Nord_de_Guerre', 'D_Madrid_1870',
    'D_ATF', 'D_Greek', 'D_GGRS_1987', 'D_ATS_1977', 'D_KKJ', 'D_RT_1990',
    'D_Samboja', 'D_Lithuania_1994', 'D_Tete', 'D_Madzansua', 'D_Observatario',
    'D_Moznet', 'D_Indian_1960', 'D_FD_1958', 'D_Estonia_1992', 'D_PDO_1993',
    'D_Old_Hawaiian', 'D_St_Lawrence_Island', 'D_St_Paul_Island',
    'D_St_George_Island', 'D_Puerto_Rico', 'D_North_American_1983_CSRS98',
    'D_Israel', 'D_Locodjo_1965', 'D_Abidjan_1987', 'D_Kalianpur_1937',
    'D_Kalianpur_1962', 'D_Kalianpur_1975', 'D_Hanoi_1972',
    'D_Hartebeesthoek_1994', 'D_CH1903', 'D_CH1903+', 'D_Swiss_TRF_1995',
    'D_North_American_1983_HARN', 'D_Rassadiran', 'D_European_1950_ED77',
    'D_Dabola_1981', 'D_S_JTSK', 'D_Mount_Dillon', 'D_Naparima_1955',
    'D_European_Libyan_1979', 'D_Chos_Malal_1914', 'D_Pampa_del_Castillo',
    'D_Korean_Datum_1985', 'D_Yemen_NGN_1996', 'D_South_Yemen', 'D_Bissau',
    'D_Korean_Datum_1995', 'D_Accra', 'D_SIRGAS', 'D_POSGAR', 'D_IRENET95',
    'D_Sierra_Leone_1924', 'D_Sierra_Leone_1968', 'D_Pulkovo_1995',
    'D_Adindan', 'D_Australian_1966', 'D_Australian_1984', 'D_Ain_el_Abd_1970',
    'D_Afgooye', 'D_Agadez', 'D_Lisbon', 'D_Aratu', 'D_Arc_1950', 'D_Arc_1960',
    'D_Batavia', 'D_Barbados_1938', 'D_Beduaram', 'D_Beijing_1954',
    'D_Belge_1950', 'D_Bermuda_1957', 'D_Bern_1898', 'D_Bogota',
    'D_Bukit_Rimpah', 'D_Camacupa', 'D_Campo_Inchauspe', 'D_Cape',
    'D_Carthage', 'D_Chua', 'D_Corrego_Alegre', 'D_Cote_d_Ivoire',
    'D_Deir_ez_Zor', 'D_Douala', 'D_Egypt_1907', 'D_European_1950',
    'D_European_1987', 'D_Fahud', 'D_Gandajika_1970', 'D_Garoua',
    'D_Guyane_Francaise', 'D_Hu_Tzu_Shan', 'D_Hungarian_1972',
    'D_Indonesian_1974', 'D_Indian_1954', 'D_Indian_1975', 'D_Jamaica_1875',
    'D_Jamaica_1969', 'D_Kalianpur_1880', 'D_Kandawala', 'D_Kertau',
    'D_Kuwait_Oil_Company', 'D_La_Canoa', 'D_Provisional_S_American_1956',
    'D_Lake', 'D_Leigon', 'D_Liberia_1964', 'D_Lome', 'D_Luzon_1911',
    'D_Hito_XVIII_1963', 'D_Herat_North', 'D_Mahe_1971', 'D_Makassar',
    'D_ETRF_1989', 'D_Malongo_1987', 'D_Manoca', 'D_Merchich', 'D_Massawa',
    'D_Minna', 'D_Mhast', 'D_Monte_Mario', 'D_Mporaloko',
    'D_North_American_1927', 'D_North_American_Michigan',
    'D_North_American_1983', 'D_Nahrwan_1967', 'D_Naparima_1972',
    'D_New_Zealand_1949', 'D_NGO_1948', 'D_Datum_73', 'D_NTF', 'D_NSWC_9Z_2',
    'D_OSGB_1936', 'D_OSGB_1970_SN', 'D_OS_SN_1980', 'D_Padang_1884',
    'D_Palestine_1923', 'D_Pointe_Noire', 'D_GDA_1994', 'D_Pulkovo_1942',
    'D_Qatar', 'D_Qatar_1948', 'D_Qornoq', 'D_Loma_Quintana', 'D_Amersfoort',
    'D_South_American_1969', 'D_Sapper_Hill_1943', 'D_Schwarzeck', 'D_Segora',
    'D_Serindung', 'D_Sudan', 'D_Tananarive_1925', 'D_Timbalai_1948', 'D_TM65',
    'D_TM75', 'D_Tokyo', 'D_Trinidad_1903', 'D_Trucial_Coast_1948',
    'D_Voirol_1875', 'D_Voirol_Unifie_1960', 'D_Bern_1938',
    'D_Nord_Sahara_1959', 'D_Stockholm_1938', 'D_Yacare', 'D_Yoff',
    'D_Zanderij', 'D_MGI', 'D_Belge_1972', 'D_Deutsche_Hauptdreiecksnetz',
    'D_Conakry_1905', 'D_Dealul_Piscului_1933', 'D_Dealul_Piscului_1970',
    'D_NGN', 'D_Kuwait_Utility', 'D_WGS_1972', 'D_WGS_1972_BE', 'D_WGS_1984',
    'D_Anguilla_1957', 'D_Antigua_1943', 'D_Dominica_1945', 'D_Grenada_1953',
    'D_Montserrat_1958', 'D_St_Kitts_1955', 'D_St_Lucia_1955',
    'D_St_Vincent_1945', 'D_NAD_1927_Definition_1976', 'D_NAD_1927_CGQ77'
]

GEOGCS_NAMES = [
    'GCS_Airy_1830', 'GCS_Airy_Modified', 'GCS_ATS_1977', 'GCS_Australian',
    'GCS_Bessel_1841', 'GCS_Bessel_Modified', 'GCS_Bessel_Namibia',
    'GCS_Clarke_1858', 'GCS_Clarke_1866', 'GCS_Clarke_1866_Michigan',
    'GCS_Clarke_1880', 'GCS_Clarke_1880_Arc', 'GCS_Clarke_1880_Benoit',
    'GCS_Clarke_1880_IGN', 'GCS_Clarke_1880_RGS', 'GCS_Clarke_1880_SGA',
    'GCS_Everest_1830', 'GCS_Everest_def_1962', 'GCS_Everest_def_1967',
    'GCS_Everest_def_1975', 'GCS_Everest_Modified', 'GCS_GEM_10C',
    'GCS_GRS_1967', 'GCS_GRS_1980', 'GCS_Helmert_1906', 'GCS_Indonesian',
    'GCS_International_1924', 'GCS_International_1967', 'GCS_Krasovsky_1940',
    'GCS_NWL_9D', 'GCS_OSU_86F', 'GCS_OSU_91A', 'GCS_Plessis_1817',
    'GCS_Sphere', 'GCS_Struve_1860', 'GCS_War_Office', 'GCS_WGS_1966',
    'GCS_Fischer_1960', 'GCS_Fischer_1968', 'GCS_Fischer_Modified',
    'GCS_Hough_1960', 'GCS_Everest_Modified_1969', 'GCS_Walbeck',
    'GCS_Sphere_TARNEL', 'GCS_Adindan', 'GCS_Afgooye', 'GCS_Agadez',
    'GCS_Australian_1966', 'GCS_Australian_1984', 'GCS_Ain_el_Abd_1970',
    'GCS_Amersfoort', 'GCS_Aratu', 'GCS_Arc_1950', 'GCS_Arc_1960',
    'GCS_ATF_Paris', 'GCS_Barbados_1938', 'GCS_Batavia', 'GCS_Batavia_Jakarta',
    'GCS_Beduaram', 'GCS_Beijing_1954', 'GCS_Belge_1950',
    'GCS_Belge_1950_Brussels', 'GCS_Belge_1972', 'GCS_Bermuda_1957',
    'GCS_Bern_1898', 'GCS_Bern_1898_Bern', 'GCS_Bern_1938', 'GCS_Bogota',
    'GCS_Bogota_Bogota', 'GCS_Bukit_Rimpah', 'GCS_Camacupa',
    'GCS_Campo_Inchauspe', 'GCS_Cape', 'GCS_Carthage', 'GCS_Carthage_Degree',
    'GCS_Chua', 'GCS_Conakry_1905', 'GCS_Corrego_Alegre', 'GCS_Cote_d_Ivoire',
    'GCS_Datum_73', 'GCS_Dealul_Piscului_1933', 'GCS_Dealul_Piscului_1970',
    'GCS_Deir_ez_Zor', 'GCS_Deutsche_Hauptdreiecksnetz', 'GCS_Douala',
    'GCS_European_1950', 'GCS_European_1987', 'GCS_Egypt_1907',
    'GCS_ETRF_1989', 'GCS_Fahud', 'GCS_Gandajika_1970', 'GCS_Garoua',
    'GCS_GDA_1994', 'GCS_GGRS_1987', 'GCS_Greek', 'GCS_Greek_Athens',
    'GCS_Guyane_Francaise', 'GCS_Herat_North', 'GCS_Hito_XVIII_1963',
    'GCS_Hu_Tzu_Shan', 'GCS_Hungarian_1972', 'GCS_Indian_1954',
    'GCS_Indian_1975', 'GCS_Indonesian_1974', 'GCS_Jamaica_1875',
    'GCS_Jamaica_1969', 'GCS_Kalianpur_1880', 'GCS_Kandawala', 'GCS_Kertau',
    'GCS_KKJ', 'GCS_Kuwait_Oil_Company', 'GCS_KUDAMS', 'GCS_La_Canoa',
    'GCS_Lake', 'GCS_Leigon', 'GCS_Liberia_1964', 'GCS_Lisbon',
    'GCS_Lisbon_Lisbon', 'GCS_Loma_Quintana', 'GCS_Lome', 'GCS_Luzon_1911',
    'GCS_Mahe_1971', 'GCS_Makassar', 'GCS_Makassar_Jakarta',
    'GCS_Malongo_1987', 'GCS_Manoca', 'GCS_Massawa', 'GCS_Merchich',
    'GCS_Merchich_Degree', 'GCS_MGI', 'GCS_MGI_Ferro', 'GCS_Mhast',
    'GCS_Minna', 'GCS_Monte_Mario', 'GCS_Monte_Mario_Rome', 'GCS_Mporaloko',
    'GCS_North_American_Michigan', 'GCS_North_American_1927',
    'GCS_North_American_1983', 'GCS_North_American_1983_HARN',
    'GCS_Nahrwan_1967', 'GCS_Naparima_1972', 'GCS_Nord_de_Guerre_Paris',
    'GCS_NGN', 'GCS_NGO_1948', 'GCS_Nord_Sahara_1959', 'GCS_NSWC_9Z_2',
    'GCS_NTF', 'GCS_NTF_Paris', 'GCS_New_Zealand_1949', 'GCS_NZGD_2000',
    'GCS_OS_SN_1980', 'GCS_OSGB_1936', 'GCS_OSGB_1970_SN', 'GCS_Padang_1884',
    'GCS_Padang_1884_Jakarta', 'GCS_Palestine_1923', 'GCS_Pointe_Noire',
    'GCS_Provisional_S_American_1956', 'GCS_Pulkovo_1942', 'GCS_Pulkovo_1995',
    'GCS_Qatar_1974', 'GCS_Qatar_1948', 'GCS_Qornoq', 'GCS_RT38',
    'GCS_RT38_Stockholm', 'GCS_South_American_1969', 'GCS_Sapper_Hill_1943',
    'GCS_Schwarzeck', 'GCS_Segora', 'GCS_Serindung', 'GCS_Sudan',
    'GCS_Tananarive_1925', 'GCS_Tananarive_1925_Paris', 'GCS_Timbalai_1948',
    'GCS_TM65', 'GCS_TM75', 'GCS_Tokyo', 'GCS_Trinidad_1903',
    'GCS_Trucial_Coast_1948', 'GCS_Voirol_1875', 'GCS_Voirol_1875_Degree',
    'GCS_Voirol_1875_Paris', 'GCS_Voirol_Unifie_1960',
    'GCS_Voirol_Unifie_1960_Degree', 'GCS_Voirol_Unifie_1960_Paris',
    'GCS_WGS_1972', 'GCS_WGS_1972_BE', 'GCS_WGS_1984', 'GCS_Yacare',
    'GCS_Yoff', 'GCS_Zanderij', 'GCS_European_1979', 'GCS_Everest_Bangladesh',
    'GCS_Everest_India_Nepal', 'GCS_Hjorsey_1955', 'GCS_Hong_Kong_1963',
    'GCS_Hong_Kong_1980', 'GCS_Oman', 'GCS_South_Asia_Singapore',
    'GCS_Ayabelle', 'GCS_Bissau', 'GCS_Dabola_1981', 'GCS_Point_58',
    'GCS_Beacon_E_1945', 'GCS_Tern_Island_1961', 'GCS_Astro_1952',
    'GCS_Bellevue_IGN', 'GCS_Canton_1966', 'GCS_Chatham_Island_1971',
    'GCS_DOS_1968', 'GCS_Easter_Island_1967', 'GCS_Guam_1963', 'GCS_GUX_1',
    'GCS_Johnston_Island_1961', 'GCS_Kusaie_1951', 'GCS_Midway_1961',
    'GCS_Old_Hawaiian', 'GCS_Pitcairn_1967', 'GCS_Santo_DOS_1965',
    'GCS_Viti_Levu_1916', 'GCS_Wake_Eniwetok_1960', 'GCS_Wake_Island_1952',
    'GCS_Anna_1_1965', 'GCS_Gan_1970', 'GCS_ISTS_073_1969',
    'GCS_Kerguelen_Island_1949', 'GCS_Reunion', 'GCS_Antigua_1943',
    'GCS_Ascension_Island_1958', 'GCS_DOS_71_4', 'GCS_Cape_Canaveral',
    'GCS_Fort_Thomas_1955', 'GCS_Graciosa_Base_SW_1948', 'GCS_ISTS_061_1968',
    'GCS_LC5_1961', 'GCS_Montserrat_1958', 'GCS_Observ_Meteorologico_1939',
    'GCS_Pico_de_Las_Nieves', 'GCS_Porto_Santo_1936', 'GCS_Puerto_Rico',
    'GCS_Sao_Braz', 'GCS_Selvagem_Grande_1938', 'GCS_Tristan_1968',
    'GCS_American_Samoa_1962', 'GCS_Camp_Area', 'GCS_Deception_Island',
    'GCS_Gunung_Segara', 'GCS_Indian_1960', 'GCS_S42_Hungary', 'GCS_S_JTSK',
    'GCS_S_JTSK_Ferro', 'GCS_Alaskan_Islands', 'GCS_Carthage_Paris',
    'GCS_FD_1958', 'GCS_LKS_1994', 'GCS_Madrid_1870_Madrid', 'GCS_Madzansua',
    'GCS_Moznet', 'GCS_Observatario', 'GCS_RT_1990', 'GCS_Samboja', 'GCS_Tete',
    'GCS_St_George_Island', 'GCS_St_Lawrence_Island', 'GCS_St_Paul_Island',
    'GCS_Estonia_1992', 'GCS_PDO_1993', 'GCS_Anguilla_1957',
    'GCS_Dominica_1945', 'GCS_Grenada_1953', 'GCS_St_Kitts_1955',
    'GCS_St_Lucia_1955', 'GCS_St_Vincent_1945', 'GCS_NAD_1927_Definition_1976',
    'GCS_NAD_1927_CGQ77', 'GCS_Assumed_Geographic_1',
    'GCS_North_American_1983_CSRS98', 'GCS_Israel', 'GCS_Locodjo_1965',
    'GCS_Abidjan_1987', 'GCS_Kalianpur_1937', 'GCS_Kalianpur_1962',
    'GCS_Kalianpur_1975', 'GCS_Hanoi_1972', 'GCS_Hartebeesthoek_1994',
    'GCS_CH1903', 'GCS_CH1903+', 'GCS_Swiss_TRF_1995', 'GCS_Rassadiran',
    'GCS_European_1950_ED77', 'GCS_NGO_1948_Oslo', 'GCS_Estonia_1937',
    'GCS_Hermannskogel', 'GCS_Sierra_Leone_1960', 'GCS_Datum_Lisboa_Bessel',
    'GCS_Datum_Lisboa_Hayford', 'GCS_RGF_1993', 'GCS_Mount_Dillon',
    'GCS_Naparima_1955', 'GCS_European_Libyan_Datum_1979',
    'GCS_Chos_Malal_1914', 'GCS_Pampa_del_Castillo', 'GCS_Korean_Datum_1985',
    'GCS_Yemen_NGN_1996', 'GCS_South_Yemen', 'GCS_Korean_Datum_1995',
    'GCS_Accra', 'GCS_SIRGAS', 'GCS_POSGAR', 'GCS_IRENET95',
    'GCS_Sierra_Leone_1924', 'GCS_Sierra_Leone_1968', 'GCS_Bab_South',
    'GCS_Majuro', 'GCS_Pohnpei', 'GCS_REGVEN', 'GCS_JGD_2000'
]

GEOGTRAN_NAMES = [
    'Bogota_Bogota_To_Bogota', 'NTF_Paris_To_NTF',
    'Bern_1898_Bern_To_Bern_1898', 'Bern_1898_Bern_To_CH1903',
    'Lisbon_Lisbon_To_Lisbon', 'Makassar_Jakarta_To_Makassar',
    'MGI_Ferro_To_MGI', 'Monte_Mario_Rome_To_Monte_Mario',
    'Padang_1884_Jakarta_To_Padang_1884', 'Belge_1950_Brussels_To_Belge_1950',
    'Tananarive_1925_Paris_To_Tananarive_1925',
    'Voirol_1875_Paris_To_Voirol_1875',
    'Voirol_Unifie_1960_Paris_To_Voirol_Unifie_1960',
    'Batavia_Jakarta_To_Batavia', 'RT38_Stockholm_To_RT38',
    'Greek_Athens_To_Greek', 'NGO_1948_Oslo_To_NGO_1948',
    'NAD_1927_To_NAD_1983_NADCON', 'Old_Hawaiian_To_NAD_1983',
    'NAD_1927_To_NAD_1983_Alaska', 'St_George_To_NAD_1983',
    'St_Lawrence_To_NAD_1983', 'St_Paul_To_NAD_1983',
    'NAD_1927_To_NAD_1983_PR_VI', 'NAD_1983_To_HARN_Alabama',
    'NAD_1983_To_HARN_Arizona', 'NAD_1983_To_HARN_Arkansas',
    'NAD_1983_To_HARN_CA_N', 'NAD_1983_To_HARN_CA_S',
    'NAD_1983_To_HARN_Colorado', 'NAD_1983_To_HARN_Georgia',
    'NAD_1983_To_HARN_Florida', 'NAD_1983_To_HARN_Hawaii',
    'NAD_1983_To_HARN_Iowa', 'NAD_1983_To_HARN_Illinois',
    'NAD_1983_To_HARN_Indiana', 'NAD_1983_To_HARN_Kansas',
    'NAD_1983_To_HARN_Kentucky', 'NAD_1983_To_HARN_Louisiana',
    'NAD_1983_To_HARN_MD_DE', 'NAD_1983_To_HARN_Maine',
    'NAD_1983_To_HARN_Michigan', 'NAD_1983_To_HARN_Minnesota',
    'NAD_1983_To_HARN_Mississippi', 'NAD_1983_To_HARN_Missouri',
    'NAD_1983_To_HARN_East_MT_ID', 'NAD_1983_To_HARN_West_MT_ID',
    'NAD_1983_To_HARN_Nebraska', 'NAD_1983_To_HARN_Nevada',
    'NAD_1983_To_HARN_New_England', 'NAD_1983_To_HARN_New_Jersey',
    'NAD_1983_To_HARN_New_Mexico', 'NAD_1983_To_HARN_New_York',
    'NAD_1983_To_HARN_North_Dakota', 'NAD_1983_To_HARN_Ohio',
    'NAD_1983_To_HARN_Oklahoma', 'NAD_1983_To_HARN_PR_VI',
    'NAD_1983_To_HARN_South_Dakota', 'NAD_1983_To_HARN_Tennessee',
    'NAD_1983_To_HARN_East_Texas', 'NAD_1983_To_HARN_West_Texas',
    'NAD_1983_To_HARN_Utah', 'NAD_1983_To_HARN_Virginia',
    'NAD_1983_To_HARN_WA_OR', 'NAD_1983_To_HARN_West_Virginia',
    'NAD_1983_To_HARN_Wisconsin', 'NAD_1983_To_HARN_Wyoming',
    'American_Samoa_1962_To_HARN_American_Samoa_East',
    'American_Samoa_1962_To_HARN_American_Samoa_West',
    'Guam_1963_To_HARN_Guam', 'NAD_1927_To_NAD_1983_NTv2_Canada',
    'NAD_1927_DEF_1976_To_NAD_1983_NTv2_Ontario',
    'ATS_1977_To_NAD_1983_CSRS98_NTv2_New_Brunswick',
    'ATS_1977_To_NAD_1983_CSRS98_2_NTv2_Prince_Edward_Is',
    'ATS_1977_To_NAD_1983_CSRS98_NTv2_Nova_Scotia',
    'ATS_1977_To_NAD_1983_CSRS98_NTv2_Maritimes',
    'AGD_1966_To_GDA_1994_NTv2_Northern_Territory',
    'AGD_1966_To_GDA_1994_NTv2_Victoria', 'AGD_1966_To_GDA_1994_NTv2_Tasmania',
    'AGD_1984_To_GDA_1994_NTv2_Queensland',
    'AGD_1984_To_GDA_1994_4_NTv2_Western_Australia',
    'AGD_1966_To_GDA_1994_10_NTv2_New_South_Wales_&_Victoria',
    'New_Zealand_1949_To_NZGD_2000_3_NTv2', 'AGD_1984_To_GDA_1994_3',
    'NAD_1983_To_NAD_1983_CSRS98_1', 'NAD_1927_To_NAD_1983_6',
    'NAD_1927_To_NAD_1983_CSRS98_1', 'NAD_1927_CGQ77_To_NAD_1983_2',
    'NAD_1927_CGQ77_To_NAD_1983_CSRS98', 'NAD_1927_To_NAD_1983_CSRS98_2',
    'NAD_1983_To_NAD_1983_CSRS98_2', 'NAD_1983_To_NAD_1983_CSRS98_3',
    'Adindan_To_WGS_1984_1', 'Adindan_To_WGS_1984_2', 'Adindan_To_WGS_1984_3',
    'Adindan_To_WGS_1984_4', 'Adindan_To_WGS_1984_5', 'Adindan_To_WGS_1984_6',
    'Adindan_To_WGS_1984_7', 'Afgooye_To_WGS_1984', 'AGD_1966_To_WGS_1984',
    'AGD_1984_To_WGS_1984_1', 'Ain_El_Abd_To_WGS_1984_1',
    'Ain_El_Abd_To_WGS_1984_2', 'Arc_1950_To_WGS_1984_1',
    'Arc_1950_To_WGS_1984_2', 'Arc_1950_To_WGS_1984_3',
    'Arc_1950_To_WGS_1984_4', 'Arc_1950_To_WGS_1984_5',
    'Arc_1950_To_WGS_1984_6', 'Arc_1950_To_WGS_1984_7',
    'Arc_1950_To_WGS_1984_8', 'Arc_1950_To_WGS_1984_9', 'Arc_1960_To_WGS_1984',
    'Batavia_To_WGS_1984', 'Bermuda_1957_To_WGS_1984', 'Bogota_To_WGS_1984',
    'Bukit_Rimpah_To_WGS_1984', 'Campo_Inchauspe_To_WGS_1984',
    'Cape_To_WGS_1984_1', 'Cape_To_WGS_1984_2', 'Carthage_To_WGS_1984',
    'Chua_To_WGS_1984', 'Corrego_Alegre_To_WGS_1984', 'ED_1950_To_WGS_1984_1',
    'ED_1950_To_WGS_1984_2', 'ED_1950_To_WGS_1984_3', 'ED_1950_To_WGS_1984_4',
    'ED_1950_To_WGS_1984_5', 'ED_1950_To_WGS_1984_6', 'ED_1950_To_WGS_1984_7',
    'ED_1950_To_WGS_1984_8', 'ED_1950_To_WGS_1984_9', 'ED_1950_To_WGS_1984_10',
    'ED_1950_To_WGS_1984_11', 'ED_1950_To_WGS_1984_12',
    'ED_1950_To_WGS_1984_13', 'ED_1950_To_WGS_1984_16',
    'ED_1950_To_WGS_1984_19', 'GGRS_1987_To_WGS_1984',
    'Egypt_1907_To_WGS_1984', 'NZGD_1949_To_WGS_1984',
    'New_Zealand_1949_To_NZGD_2000_1_3PAR', 'Hu_Tzu_Shan_To_WGS_1984',
    'Indian_1954_To_WGS_1984', 'Indian_1975_To_WGS_1984',
    'Kalianpur_1937_To_WGS_1984_1', 'Kalianpur_1975_To_WGS_1984_1',
    'Kalianpur_1962_To_WGS_1984_1', 'Kandawala_To_WGS_1984',
    'Kertau_To_WGS_1984', 'Leigon_To_WGS_1984', 'Liberia_1964_To_WGS_1984',
    'Luzon_1911_To_WGS_1984_1', 'Luzon_1911_To_WGS_1984_2',
    'Mporaloko_To_WGS_1984', 'Mahe_1971_To_WGS_1984', 'Massawa_To_WGS_1984',
    'Merchich_To_WGS_1984', 'Minna_To_WGS_1984_1', 'Minna_To_WGS_1984_2',
    'Monte_Mario_To_WGS_1984', 'NAD_1927_To_WGS_1984_1',
    'NAD_1927_To_WGS_1984_2', 'NAD_1927_To_WGS_1984_3',
    'NAD_1927_To_WGS_1984_4', 'NAD_1927_To_WGS_1984_5',
    'NAD_1927_To_WGS_1984_6', 'NAD_1927_To_WGS_1984_7',
    'NAD_1927_To_WGS_1984_8', 'NAD_1927_To_WGS_1984_9',
    'NAD_1927_To_WGS_1984_10', 'NAD_1927_To_WGS_1984_11',
    'NAD_1927_To_WGS_1984_12', 'NAD_1927_To_WGS_1984_13',
    'NAD_1927_To_WGS_1984_14', 'NAD_1927_To_WGS_1984_15',
    'NAD_1927_To_WGS_1984_16', 'NAD_1927_To_WGS_1984_17',
    'NAD_1927_To_WGS_1984_18', 'NAD_1927_To_WGS_1984_21',
    'NAD_1927_To_WGS_1984_22', 'NAD_1983_To_WGS_1984_1',
    'NAD_1983_To_WGS_1984_2', 'NAD_1983_To_WGS_1984_3',
    'Nahrwan_1967_To_WGS_1984_1', 'Nahrwan_1967_To_WGS_1984_2',
    'Nahrwan_1967_To_WGS_1984_3', 'Naparima_1972_To_WGS_1984',
    'NTF_To_WGS_1984', 'OSGB_1936_To_WGS_1984_1', 'OSGB_1936_To_WGS_1984_2',
    'OSGB_1936_To_WGS_1984_3', 'OSGB_1936_To_WGS_1984_4',
    'OSGB_1936_To_WGS_1984_5', 'Pointe_Noire_To_WGS_1984',
    'PSAD_1956_To_WGS_1984_1', 'PSAD_1956_To_WGS_1984_2',
    'PSAD_1956_To_WGS_1984_3', 'PSAD_1956_To_WGS_1984_4',
    'PSAD_1956_To_WGS_1984_5', 'PSAD_1956_To_WGS_1984_6',
    'PSAD_1956_To_WGS_1984_7', 'PSAD_1956_To_WGS_1984_8',
    'PSAD_1956_To_WGS_1984_9', 'Qatar_1974_To_WGS_1984_1',
    'Qornoq_To_WGS_1984', 'SAD_1969_To_WGS_1984_1', 'SAD_1969_To_WGS_1984_2',
    'SAD_1969_To_WGS_1984_3', 'SAD_1969_To_WGS_1984_4',
    'SAD_1969_To_WGS_1984_5', 'SAD_1969_To_WGS_1984_6',
    'SAD_1969_To_WGS_1984_7', 'SAD_1969_To_WGS_1984_8',
    'SAD_1969_To_WGS_1984_9', 'SAD_1969_To_WGS_1984_10',
    'SAD_1969_To_WGS_1984_11', 'SAD_1969_To_WGS_1984_12',
    'SAD_1969_To_WGS_1984_13', 'Sapper_Hill_1943_To_WGS_1984',
    'Schwarzeck_To_WGS_1984', 'Schwarzeck_To_WGS_1984_2',
    'Tananarive_1925_To_WGS_1984', 'Timbalai_1948_To_WGS_1984',
    'TM65_To_WGS_1984', 'Tokyo_To_WGS_1984_1', 'Tokyo_To_WGS_1984_2',
    'Tokyo_To_WGS_1984_2001', 'Tokyo_To_WGS_1984_3', 'Tokyo_To_WGS_1984_4',
    'Yacare_To_WGS_1984', 'Zanderij_To_WGS_1984', 'Herat_North_To_WGS_1984',
    'Indonesian_1974_To_WGS_1984', 'Nord_Sahara_1959_To_WGS_1984',
    'Pulkovo_1942_To_WGS_1984', 'Voirol_Unifie_1960_To_WGS_1984',
    'Fahud_To_WGS_1984', 'Batavia_Jakarta_To_WGS_1984',
    'Bogota_Bogota_To_WGS_1984', 'Monte_Mario_Rome_To_WGS_1984',
    'NTF_Paris_To_ED_1950', 'NTF_Paris_To_WGS_1972', 'NTF_Paris_To_WGS_1984',
    'Tananarive_1925_Paris_To_WGS_1984', 'Voirol_1875_Paris_To_WGS_1984',
    'Voirol_Unifie_1960_Paris_To_WGS_1984', 'ED_1950_To_WGS_1984_17',
    'NTF_To_ED_1950', 'NTF_To_WGS_1972', 'Samboja_To_WGS_1984',
    'LKS_1994_To_WGS_1984', 'Naparima_1972_To_WGS_1984_2',
    'Naparima_1972_To_WGS_1984_3', 'Manoca_To_WGS_1984_1',
    'Camacupa_To_WGS_1972_BE_1', 'Camacupa_To_WGS_1984_1',
    'Camacupa_To_WGS_1984_2', 'Camacupa_To_WGS_1984_4',
    'Camacupa_To_WGS_1984_5', 'Camacupa_To_WGS_1984_6',
    'Camacupa_To_WGS_1984_7', 'Camacupa_To_WGS_1984_8',
    'Camacupa_To_WGS_1984_10', 'Malongo_To_Mhast_1', 'Mhast_To_WGS_1984_1',
    'Malongo_1987_To_WGS_1984_1', 'Trinidad_1903_To_WGS_1984',
    'Voirol_1875_To_WGS_1984', 'Arc_1960_To_WGS_1984_2',
    'Arc_1960_To_WGS_1984_3', 'Segora_To_WGS_1984', 'MGI_Ferro_To_WGS_1984',
    'MGI_To_WGS_1984', 'Tokyo_To_WGS_1984_5', 'Indian_1975_To_WGS_1984_2',
    'Pulkovo_1942_To_WGS_1984_3', 'Pulkovo_1942_To_WGS_1984_4',
    'Pulkovo_1942_To_WGS_1984_5', 'Pulkovo_1942_To_WGS_1984_6',
    'Pulkovo_1942_To_WGS_1984_7', 'Pulkovo_1942_To_WGS_1984_8',
    'Pulkovo_1942_To_WGS_1984_9', 'AGD_1966_To_GDA_1994',
    'AGD_1984_To_GDA_1994', 'Antigua_1943_To_WGS_1984',
    'Dominica_1945_To_WGS_1984', 'Grenada_1953_To_WGS_1984',
    'Montserrat_1958_To_WGS_1984', 'St_Kitts_1955_To_WGS_1984',
    'St_Lucia_1955_To_WGS_1984', 'Locodjo_1965_To_WGS_1984',
    'Abidjan_1987_To_WGS_1984', 'NAD_1983_CSRS98_To_WGS_1984',
    'Cape_To_Hartebeesthoek94', 'Hartebeesthoek94_To_WGS_1984',
    'CH1903+_To_CHTRF_1995', 'CH1903_To_WGS_1984_2', 'CHTRF_1995_To_WGS_1984',
    'Rassadiran_To_WGS_1984', 'FD_1958_To_WGS_1984', 'La_Canoa_To_WGS_1984',
    'Old_Hawaiian_To_WGS_1984_1', 'Old_Hawaiian_To_WGS_1984_2',
    'Old_Hawaiian_To_WGS_1984_3', 'Old_Hawaiian_To_WGS_1984_4',
    'Old_Hawaiian_To_WGS_1984_5', 'Jamaica_1969_To_WGS_1984_1',
    'Datum_Lisboa_Bessel_To_WGS_1984_1', 'Datum_Lisboa_Hayford_To_WGS_1984_1',
    'Datum_73_To_WGS_1984_1', 'ED_1950_To_WGS_1984_PT3',
    'Porto_Santo_1936_To_WGS_1984_1', 'Sao_Braz_To_WGS_1984_1',
    'Graciosa_Base_SW_1948_To_WGS_1984_1',
    'Observ_Meteorologico_1939_To_WGS_1984_1', 'NTF_To_RGF_1993_1',
    'American_Samoa_1962_To_WGS_1984', 'Hjorsey_1955_To_WGS_1984',
    'Nord_Sahara_1959_To_WGS_1972_BE', 'Qatar_1974_To_WGS_1984_2',
    'Qatar_1974_To_WGS_1984_3', 'NZGD_2000_To_WGS_1984_1',
    'Accra_To_WGS_1972_BE', 'Accra_To_WGS_1984', 'NAD_1983_HARN_To_WGS_1984',
    'SIRGAS_To_WGS_1984_1', 'PSAD_1956_To_WGS_1984_10',
    'PSAD_1956_To_WGS_1984_11', 'Deir_ez_Zor_To_WGS_1972_BE',
    'Deir_ez_Zor_To_WGS_1984_2', 'Deir_ez_Zor_To_WGS_1984_4',
    'RGF_1993_To_ETRF_1989_1', 'Timbalai_1948_To_WGS_1984_2',
    'Timbalai_1948_To_WGS_1984_3', 'Bogota_To_WGS_1984_2',
    'POSGAR_To_WGS_1984_1', 'Belge_1972_To_WGS_1984_2',
    'IRENET95_To_ETRF_1989', 'Sierra_Leone_1968_To_WGS_1984',
    'Naparima_1955_To_WGS_1984_2', 'Naparima_1955_To_WGS_1984_3',
    'Aratu_To_WGS_1984_1', 'Aratu_To_WGS_1984_2', 'Aratu_To_WGS_1984_3',
    'Aratu_To_WGS_1984_4', 'Bissau_To_WGS_1984',
    'Campo_Inchauspe_To_WGS_1984_2', 'Carthage_To_WGS_1984_2',
    'Chos_Malal_1914_To_Campo_Inchauspe', 'Chos_Malal_1914_To_WGS_1984',
    'Conakry_1905_To_WGS_1984', 'Dabola_To_WGS_1984', 'Egypt_1907_To_WGS_1972',
    'Egypt_1907_To_WGS_1984_3', 'Hanoi_1972_To_WGS_1984',
    'Indian_1960_To_WGS_1972_BE', 'Indian_1960_To_WGS_1984_2',
    'Indian_1960_To_WGS_1984_3', 'Indian_1975_To_WGS_1984_3',
    'Kalianpur_1937_To_WGS_1984_2', 'Korean_1995_To_WGS_1984_1',
    'Malongo_1987_To_WGS_1984_2', 'Mporaloko_To_WGS_1984_2',
    'NAD_1927_To_WGS_1984_30', 'Nahrwan_1967_To_WGS_1984_4',
    'Nahrwan_1967_To_WGS_1984_5', 'SAD_1969_To_WGS_1984_14',
    'South_Yemen_To_Yemen_NGN_1996', 'Yemen_NGN_1996_To_WGS_1984',
    'Bab_South_To_NAD_1983', 'Majuro_To_NAD_1983', 'Pohnpei_To_NAD_1983',
    'Guam_1963_To_HARN_Marianas_Rota', 'Guam_1963_To_HARN_Marianas_Saipan',
    'Guam_1963_To_HARN_Marianas_Tinian_Aguijan', 'NTF_Paris_To_RGF_1993_1',
    'Tokyo_To_JGD_2000_1', 'REGVEN_To_SIRGAS_1', 'Amersfoort_To_WGS_1984',
    'ETRF_1989_To_WGS_1984', 'GDA_1994_To_WGS_1984', 'WGS_1972_To_WGS_1984_1',
    'WGS_1972_To_WGS_1984_2', 'ED_1987_To_WGS_1984_1', 'ED_1950_To_ED_1987_2',
    'MGI_To_WGS_1984_2', 'ED_1950_ED77_To_WGS_1984', 'ED_1950_To_WGS_1984_18',
    'OSGB_1936_To_WGS_1984_Petroleum', 'OSGB_1936_To_ED_1950_UKOOA',
    'Camacupa_To_WGS_1984_3', 'Camacupa_To_WGS_1984_9',
    'Pulkovo_1942_To_WGS_1984_10', 'Fahud_To_WGS_1984_2',
    'PDO_1993_To_WGS_1984', 'Deir_ez_Zor_To_WGS_1984_3',
    'PDO_1993_To_WGS_1972', 'PDO_1993_To_WGS_1984_3', 'MGI_To_WGS_1984_3',
    'ED_1950_To_WGS_1984_23', 'ED_1950_To_WGS_1984_24',
    'Nord_Sahara_1959_To_WGS_1984_3', 'Hito_XVIII_1963_To_WGS_1984',
    'Indian_1960_To_WGS_1984_1', 'Minna_To_WGS_1984_3',
    'ED_1950_To_ETRF_1989_1', 'AGD_1966_To_GDA_1994_2',
    'AGD_1966_To_GDA_1994_3', 'AGD_1966_To_GDA_1994_4',
    'AGD_1984_To_GDA_1994_2', 'AGD_1984_To_WGS_1984_2',
    'New_Zealand_1949_To_NZGD_2000_2_7PAR', 'Hungarian_1972_To_ETRF_1989_1',
    'NAD_1983_To_WGS_1984_4', 'DHDN_To_ETRF_1989', 'Pulkovo_1942_To_ETRF_1989',
    'RT90_To_WGS_1984', 'Tete_To_Moznet_1', 'Tete_To_Moznet_2',
    'Tete_To_Moznet_3', 'Tete_To_Moznet_4', 'Tete_To_Moznet_5',
    'Moznet_To_WGS_1984', 'NGO_1948_To_WGS_1984', 'Pulkovo_1942_To_LKS_1994',
    'Pulkovo_1942_To_WGS_1984_12', 'Pulkovo_1942_To_Estonia_1992',
    'Estonia_1992_To_ETRF_1989', 'Estonia_1992_To_WGS_1984',
    'CH1903_To_WGS_1984_1', 'NAD_1983_To_WGS_1984_5',
    'Datum_Lisboa_Bessel_To_WGS_1984_2', 'Datum_Lisboa_Hayford_To_WGS_1984_2',
    'Datum_73_To_WGS_1984_2', 'ED_1950_To_WGS_1984_PT7',
    'Porto_Santo_1936_To_WGS_1984_2', 'Sao_Braz_To_WGS_1984_2',
    'Graciosa_Base_SW_1948_To_WGS_1984_2', 'NZGD_1949_To_WGS_1984_2',
    'Amersfoort_To_ETRF_1989', 'AGD_1966_To_GDA_1994_8',
    'AGD_1966_To_GDA_1994_9', 'Belge_1972_To_WGS_1984_1'
]
# ---------------------------------------------------------------------------
# Naming rules.
#
# The datum of a spheroid alone (codes 6001-6045 and 106001-106008) is "D_"
# followed by the spheroid's name with these words shortened; its geographic
# CS is "GCS_" followed by the same, with "Def" written in lower case.
SPHEROID_DATUM_WORDS = {'Adjustment': 'Adj', 'Definition': 'Def'}
SPHEROID_DATUM_NAMES = {7018: 'Everest_Modified'}
SPHEROID_GEOGCS_WORDS = {'Def': 'def'}

# Spheroids whose "D_" name the catalogue gives to the EPSG geodetic datum
# instead of a spheroid-only datum, so that the spheroid-only code stays
# unassigned (6030, 6041, 6043).
SPHEROID_DATUM_TAKEN_BY_EPSG = {7030, 7041, 7043}

# Geographic CSs whose datum is not "D_" + the rest of their name (after
# taking off a prime-meridian suffix or "_Degree").
GEOGCS_DATUM_NAMES = {
    'GCS_Qatar_1974': 'D_Qatar',
    'GCS_RT38': 'D_Stockholm_1938',
    'GCS_KUDAMS': 'D_Kuwait_Utility',
    'GCS_LKS_1994': 'D_Lithuania_1994',
    'GCS_European_Libyan_Datum_1979': 'D_European_Libyan_1979',
    # The assumed geographic system is NAD 1927 under another name.
    'GCS_Assumed_Geographic_1': 'D_North_American_1927',
}

# ---------------------------------------------------------------------------
# Datum matches.  A catalogue datum is matched to the EPSG datum whose name,
# or the name of an EPSG geographic CRS on it, equals the catalogue name
# after normalisation (case, punctuation, the words "Datum", "Geodetic",
# "of", "the", and a year written with two digits).  This table gives the
# EPSG datum where that rule finds none or the wrong one.
DATUM_EPSG = {
    # EPSG spells the name out or abbreviates it differently.
    'D_Belge_1950': 6215,               # Reseau National Belge 1950
    'D_Belge_1972': 6313,               # Reseau National Belge 1972
    'D_Bogota': 6218,                   # Bogota 1975
    'D_Camacupa': 6220,                 # Camacupa 1948
    'D_Corrego_Alegre': 6225,           # Corrego Alegre 1970-72
    'D_Dealul_Piscului_1933': 6316,     # Dealul Piscului 1930
    'D_Deutsche_Hauptdreiecksnetz': 6314,
    'D_ETRF_1989': 6258,                # European Terrestrial Reference System 1989
    'D_European_1950_ED77': 6154,       # European Datum 1950(1977)
    'D_Hu_Tzu_Shan': 6236,              # Hu Tzu Shan 1950
    'D_Israel': 6141,                   # Israel 1993
    'D_Kertau': 6245,                   # Kertau 1968
    'D_Lithuania_1994': 6126,           # Lithuania 1994 (ETRS89)
    'D_NAD_1927_Definition_1976': 6608,  # North American Datum 1927 (1976)
    'D_North_American_1983_CSRS98': 6140,
    'D_North_American_1983_HARN': 6152,
    'D_North_American_Michigan': 6268,  # NAD27 Michigan
    'D_PDO_1993': 6134,                 # PDO Survey Datum 1993
    'D_Provisional_S_American_1956': 6248,
    'D_Qatar': 6285,                    # Qatar 1974
    'D_RGF_1993': 6171,                 # Reseau Geodesique Francais 1993 v1
    'D_SIRGAS': 6170,                   # SIRGAS 1995
    'D_Swiss_TRF_1995': 6151,           # Swiss Terrestrial Reference System 1995
    'D_ATF': 6901,                      # Ancienne Triangulation Francaise (Paris)
    'D_Madrid_1870': 6903,              # Madrid 1870 (Madrid)
    'D_Nord_de_Guerre': 6902,           # Nord de Guerre (Paris)
    # EPSG holds two datums of the name; the catalogue's is the older code.
    'D_Garoua': 6234,
    'D_South_American_1969': 6291,
    # Astronomic and island datums that EPSG names after their islands or
    # networks.
    'D_Anna_1_1965': 6708,              # Cocos Islands 1965
    'D_Astro_1952': 6711,               # Marcus Island 1952
    'D_Ayabelle': 6713,                 # Ayabelle Lighthouse
    'D_Beacon_E_1945': 6709,            # Iwo Jima 1945
    'D_Bellevue_IGN': 6714,             # Bellevue
    'D_Camp_Area': 6715,                # Camp Area Astro
    'D_Canton_1966': 6716,              # Phoenix Islands 1966
    'D_Chatham_Island_1971': 6672,      # Chatham Islands Datum 1971
    'D_DOS_71_4': 6710,                 # Astro DOS 71
    'D_Datum_Lisboa_Bessel': 6666,      # Lisbon 1890
    'D_Graciosa_Base_SW_1948': 6183,    # Azores Central Islands 1948
    'D_ISTS_061_1968': 6722,            # South Georgia 1968
    'D_ISTS_073_1969': 6724,            # Diego Garcia 1969
    'D_Kerguelen_Island_1949': 6631,    # K0 1949
    'D_LC5_1961': 6726,                 # Sister Islands Geodetic Datum 1961
    'D_Observ_Meteorologico_1939': 6182,  # Azores Occidental Islands 1939
    'D_Pico_de_Las_Nieves': 6728,       # Pico de las Nieves 1984
    'D_Reunion': 6626,                  # Reunion 1947
    'D_Santo_DOS_1965': 6730,           # Santo 1965
    'D_Sao_Braz': 6184,                 # Azores Oriental Islands 1940
    'D_Selvagem_Grande_1938': 6616,     # Selvagem Grande
    'D_Wake_Eniwetok_1960': 6732,       # Marshall Islands 1960
}

# Datums whose values come from an EPSG record other than their own: the
# record EPSG holds the same datum under now, or the datum a local name
# stands for.  The catalogue keeps its own name and code.
DATUM_VALUES_FROM = {
    # EPSG no longer holds the catalogue's code.
    'D_Bern_1898': (6801, 'EPSG 6217 withdrawn; CH1903 (Bern) is the same datum on the Bern meridian'),
    'D_Voirol_Unifie_1960': (6671, 'EPSG 6305 withdrawn; EPSG holds the datum as Voirol 1879'),
    # EPSG deprecated the catalogue's code and corrected the ellipsoid.
    'D_South_American_1969': (6618, 'EPSG 6291 deprecated for 6618 with the truncated GRS 1967 flattening'),
    # Local names of EPSG datums that the catalogue keeps as separate datums.
    'D_Datum_Lisboa_Hayford': (6207, 'Lisbon 1937 on the International (Hayford) ellipsoid'),
    'D_S42_Hungary': (6284, 'S-42 is the Pulkovo 1942 datum'),
    'D_Alaskan_Islands': (6267, 'NAD 1927 on the Alaskan islands'),
}

# Datums EPSG holds no record of.  Their spheroid follows the datum's
# published definition (NIMA TR8350.2, appendix B, local datums).
DATUM_SPHEROID_WITHOUT_EPSG = {
    'D_DOS_1968': (7022, 'DOS 1968 (Gizo Island): International 1924'),
    'D_Estonia_1937': (7004, 'Estonia 1937: Bessel 1841'),
    'D_Everest_Bangladesh': (7015, 'Indian datum, Bangladesh: Everest 1830 (1937 adjustment)'),
    'D_Everest_India_Nepal': (7044, 'Indian datum, India and Nepal: Everest 1956'),
    'D_Fort_Thomas_1955': (7012, 'Fort Thomas 1955 (Nevis, St Kitts): Clarke 1880'),
    'D_GUX_1': (7022, 'GUX 1 Astro (Guadalcanal): International 1924'),
    'D_Hermannskogel': (7004, 'Hermannskogel: Bessel 1841'),
    'D_Oman': (7012, 'Oman: Clarke 1880'),
    'D_Sierra_Leone_1960': (7012, 'Sierra Leone 1960: Clarke 1880'),
    'D_South_Asia_Singapore': (107004, 'South Asia: modified Fischer 1960'),
}

# Datums of which neither EPSG nor a published definition at hand gives the
# spheroid.  They keep their names and library codes in the macro tables,
# but neither they nor their geographic CSs have a row: the factories yield
# NULL for them.
DATUMS_WITHOUT_VALUES = {
    'D_Bab_South': 'Bab South (Palau): no EPSG record, spheroid not established',
    'D_Majuro': 'Majuro (Marshall Islands): no EPSG record, spheroid not established',
    'D_Pohnpei': 'Pohnpei (Micronesia): no EPSG record, spheroid not established',
}

# ---------------------------------------------------------------------------
# Geographic CS codes.
#
# A geographic CS takes the code of the EPSG geographic CRS it matches when
# that code lies in these ranges: the EPSG codes of the catalogue's time.
# EPSG objects of later codes (e.g. Hjorsey 1955, 4658) keep the library's
# own codes; their values still come from EPSG.
EPSG_GEOGCS_CODE_RANGES = [(4001, 4613), (4800, 4999)]

# Codes EPSG has withdrawn; the catalogue keeps them.
GEOGCS_FORMER_EPSG_CODES = {
    'GCS_Bern_1898': 4217,
    'GCS_Voirol_Unifie_1960': 4305,
    'GCS_Voirol_Unifie_1960_Paris': 4812,
}

# Library codes fixed by the catalogue.
GEOGCS_FIXED_CODES = {
    'GCS_Carthage_Degree': 37223,
    'GCS_Assumed_Geographic_1': 104000,
}

# Other "_Degree" twins of grad systems: 104000 + (datum code - 6000).
DEGREE_TWIN_CODE_BASE = 104000

# Every other geographic CS without an EPSG code of the catalogue's time
# takes the next free code from 37201 in the catalogue's order; its datum
# takes that code + 69000.
LIBRARY_GEOGCS_FIRST_CODE = 37201
LIBRARY_DATUM_OFFSET = 69000

# Geographic CSs in grads on Greenwich (EPSG gives them in degrees); each
# has a "_Degree" twin in degrees.
GEOGCS_IN_GRADS_ON_GREENWICH = [
    'GCS_Carthage', 'GCS_Merchich', 'GCS_Voirol_1875', 'GCS_Voirol_Unifie_1960',
]

# Prime meridians the catalogue keeps where EPSG changed them.
GEOGCS_PRIMEM_KEPT = {
    'GCS_ATF_Paris': (8903, 'EPSG now puts ATF on the Paris RGS meridian (8914), which the catalogue does not hold'),
}

# Geographic CSs matched to an EPSG geographic CRS where the name rule finds
# none or the wrong one (the rule compares the catalogue name with EPSG's
# geographic CRS names, then takes the CRS of the matched datum).
GEOGCS_EPSG = {
    # EPSG names the meridian variant with its own abbreviation.
    'GCS_Belge_1950_Brussels': 4809,        # BD50 (Brussels)
    'GCS_Bogota_Bogota': 4802,              # Bogota 1975 (Bogota)
    'GCS_Nord_de_Guerre_Paris': 4902,       # NDG (Paris)
    'GCS_Padang_1884_Jakarta': 4808,        # Padang (Jakarta)
    'GCS_Tananarive_1925_Paris': 4810,      # Tananarive (Paris)
    # The catalogue's code is the older of two EPSG codes of the system.
    'GCS_LKS_1994': 4126,                   # LKS94 (ETRS89), now 4669
    'GCS_South_American_1969': 4291,        # SAD69, now 4618
    # EPSG holds the system under a later code as Voirol 1879.
    'GCS_Voirol_Unifie_1960': 4671,
    'GCS_Voirol_Unifie_1960_Paris': 4821,
}

# Geographic CSs whose values come from an EPSG geographic CRS that is not
# the same system (the catalogue keeps its own code for them).
GEOGCS_VALUES_FROM = {
    'GCS_Bern_1898': (4801, 'EPSG holds Bern 1898 only on the Bern meridian'),
    'GCS_Assumed_Geographic_1': (4267, 'NAD 1927 under another name'),
}

# ---------------------------------------------------------------------------
# Macro names: the kind's prefix and the upper-cased catalogue name, with
# these words abbreviated ('' drops the word) and characters that cannot
# stand in an identifier spelt out.
MACRO_WORDS = {
    'Modified': 'MOD',
    'Michigan': 'MICH',
    'Adjustment': 'ADJ',
    'Definition': 'DEF',
    'Truncated': 'TRUNC',
    '1895': '',          # the Benoit yard, foot, chain and link
}
MACRO_CHARACTERS = {'+': '_PLUS'}

# Whole macro names that do not follow the word rule.
MACRO_NAMES = {
    'Statute_Mile': 'KA_U_MILE_STATUTE',
}

# Second macro names of the same code (old names the catalogue keeps).
MACRO_ALIASES = {
    'GCS_Dabola_1981': ['KA_GCS_DABOLA'],
    'GCS_Qatar_1974': ['KA_GCS_QATAR'],
    'D_Dabola_1981': ['KA_D_DABOLA'],
}

# The method macro table of the catalogue, kept as it stands:
# KA_MTH_BURSA_WOLF carries 42607 although the method factory builds
# "Bursa_Wolf" for 109607.
METHOD_MACROS = [
    ('KA_MTH_BURSA_WOLF', 42607),
    ('KA_MTH_COORDINATE_FRAME', 9607),
    ('KA_MTH_GEOCENTRIC_TRANSLATION', 9603),
    ('KA_MTH_HARN', 109613),
    ('KA_MTH_LONGITUDE_ROTATION', 9601),
    ('KA_MTH_MOLODENSKY', 9604),
    ('KA_MTH_MOLODENSKY_ABRIDGED', 9605),
    ('KA_MTH_NADCON', 9613),
    ('KA_MTH_NTV2', 9615),
    ('KA_MTH_POSITION_VECTOR', 9606),
]

# Projection codes and names (43001-43051, all assigned).
PROJECTIONS = [
    (43001, 'Plate_Carree'), (43002, 'Equidistant_Cylindrical'),
    (43003, 'Miller_Cylindrical'), (43004, 'Mercator'), (43005, 'Gauss_Kruger'),
    (43006, 'Transverse_Mercator'), (43007, 'Albers'), (43008, 'Sinusoidal'),
    (43009, 'Mollweide'), (43010, 'Eckert_VI'), (43011, 'Eckert_V'),
    (43012, 'Eckert_IV'), (43013, 'Eckert_III'), (43014, 'Eckert_II'),
    (43015, 'Eckert_I'), (43016, 'Gall_Stereographic'), (43017, 'Behrmann'),
    (43018, 'Winkel_I'), (43019, 'Winkel_II'), (43020, 'Lambert_Conformal_Conic'),
    (43021, 'Polyconic'), (43022, 'Quartic_Authalic'), (43023, 'Loximuthal'),
    (43024, 'Bonne'), (43025, 'Hotine_Oblique_Mercator_Two_Point_Natural_Origin'),
    (43026, 'Stereographic'), (43027, 'Equidistant_Conic'), (43028, 'Cassini'),
    (43029, 'Van_der_Grinten_I'), (43030, 'Robinson'),
    (43031, 'Two_Point_Equidistant'), (43032, 'Azimuthal_Equidistant'),
    (43033, 'Lambert_Azimuthal_Equal_Area'), (43034, 'Cylindrical_Equal_Area'),
    (43035, 'Hotine_Oblique_Mercator_Two_Point_Center'),
    (43036, 'Hotine_Oblique_Mercator_Azimuth_Natural_Origin'),
    (43037, 'Hotine_Oblique_Mercator_Azimuth_Center'),
    (43038, 'Double_Stereographic'), (43039, 'Krovak'),
    (43040, 'New_Zealand_Map_Grid'), (43041, 'Orthographic'),
    (43042, 'Winkel_Tripel'), (43043, 'Aitoff'), (43044, 'Hammer_Aitoff'),
    (43045, 'Flat_Polar_Quartic'), (43046, 'Craster_Parabolic'),
    (43047, 'Gnomonic'), (43048, 'Times'), (43049, 'Vertical_Near_Side_Perspective'),
    (43050, 'Stereographic_North_Pole'), (43051, 'Stereographic_South_Pole'),
]

# Parameter codes and names (29 of 100001-100047).
PARAMETERS = [
    (100001, 'False_Easting'), (100002, 'False_Northing'),
    (100003, 'Scale_Factor'), (100004, 'Azimuth'), (100005, 'Height'),
    (100010, 'Central_Meridian'), (100011, 'Longitude_Of_Origin'),
    (100012, 'Longitude_Of_Center'), (100013, 'Longitude_Of_1st_Point'),
    (100014, 'Longitude_Of_2nd_Point'), (100020, 'Central_Parallel'),
    (100021, 'Latitude_Of_Origin'), (100022, 'Latitude_Of_Center'),
    (100023, 'Latitude_Of_1st_Point'), (100024, 'Latitude_Of_2nd_Point'),
    (100025, 'Standard_Parallel_1'), (100026, 'Standard_Parallel_2'),
    (100027, 'Pseudo_Standard_Parallel_1'), (100037, 'X_Scale'),
    (100038, 'Y_Scale'), (100039, 'XY_Plane_Rotation'),
    (100040, 'X_Axis_Translation'), (100041, 'Y_Axis_Translation'),
    (100042, 'Z_Axis_Translation'), (100043, 'X_Axis_Rotation'),
    (100044, 'Y_Axis_Rotation'), (100045, 'Z_Axis_Rotation'),
    (100046, 'Scale_Difference'), (100047, 'Dataset_'),
]

# ---------------------------------------------------------------------------
# Geographic transformations.
#
# A name is "<source>_To_<target>" with an optional "_<n>" (EPSG's variant
# "(n)"; no number stands for "(1)") or a suffix of its own.  Source and
# target are geographic CS names without "GCS_", or these abbreviations.
TRANSFORM_SYSTEM_NAMES = {
    'AGD_1966': 'GCS_Australian_1966',
    'AGD_1984': 'GCS_Australian_1984',
    'Ain_El_Abd': 'GCS_Ain_el_Abd_1970',
    'CHTRF_1995': 'GCS_Swiss_TRF_1995',
    'Dabola': 'GCS_Dabola_1981',
    'DHDN': 'GCS_Deutsche_Hauptdreiecksnetz',
    'ED_1950': 'GCS_European_1950',
    'ED_1950_ED77': 'GCS_European_1950_ED77',
    'ED_1987': 'GCS_European_1987',
    'HARN': 'GCS_North_American_1983_HARN',
    'Hartebeesthoek94': 'GCS_Hartebeesthoek_1994',
    'Korean_1995': 'GCS_Korean_Datum_1995',
    'Malongo': 'GCS_Malongo_1987',
    'NAD_1927': 'GCS_North_American_1927',
    'NAD_1927_DEF_1976': 'GCS_NAD_1927_Definition_1976',
    'NAD_1983': 'GCS_North_American_1983',
    'NAD_1983_CSRS98': 'GCS_North_American_1983_CSRS98',
    'NAD_1983_HARN': 'GCS_North_American_1983_HARN',
    'NZGD_1949': 'GCS_New_Zealand_1949',
    'PSAD_1956': 'GCS_Provisional_S_American_1956',
    'RT90': 'GCS_RT_1990',
    'SAD_1969': 'GCS_South_American_1969',
    'St_George': 'GCS_St_George_Island',
    'St_Lawrence': 'GCS_St_Lawrence_Island',
    'St_Paul': 'GCS_St_Paul_Island',
}

# HARN transformations name the state (or region) whose NGS grid they use:
# the EPSG record is the NAD83 to NAD83(HARN) transformation of that grid.
HARN_GRIDS = {
    'Alabama': 'alhpgn', 'Arizona': 'azhpgn', 'Arkansas': 'arhpgn',
    'CA_N': 'cnhpgn', 'CA_S': 'cshpgn', 'Colorado': 'cohpgn',
    'Georgia': 'gahpgn', 'Florida': 'flhpgn', 'Hawaii': 'hihpgn',
    'Iowa': 'iahpgn', 'Illinois': 'ilhpgn', 'Indiana': 'inhpgn',
    'Kansas': 'kshpgn', 'Kentucky': 'kyhpgn', 'Louisiana': 'lahpgn',
    'MD_DE': 'mdhpgn', 'Maine': 'mehpgn', 'Michigan': 'mihpgn',
    'Minnesota': 'mnhpgn', 'Mississippi': 'mshpgn', 'Missouri': 'mohpgn',
    'East_MT_ID': 'emhpgn', 'West_MT_ID': 'wmhpgn', 'Nebraska': 'nbhpgn',
    'Nevada': 'nvhpgn', 'New_England': 'nehpgn', 'New_Jersey': 'njhpgn',
    'New_Mexico': 'nmhpgn', 'New_York': 'nyhpgn', 'North_Dakota': 'ndhpgn',
    'Ohio': 'ohhpgn', 'Oklahoma': 'okhpgn', 'PR_VI': 'pvhpgn',
    'South_Dakota': 'sdhpgn', 'Tennessee': 'tnhpgn', 'East_Texas': 'ethpgn',
    'West_Texas': 'wthpgn', 'Utah': 'uthpgn', 'Virginia': 'vahpgn',
    'WA_OR': 'wohpgn', 'West_Virginia': 'wvhpgn', 'Wisconsin': 'wihpgn',
    'Wyoming': 'wyhpgn',
    'American_Samoa_East': 'eshpgn', 'American_Samoa_West': 'wshpgn',
    'Guam': 'guhpgn',
}

# Transformations whose EPSG record the name rule does not find.
GEOGTRAN_EPSG = {
    # NADCON and NTv2 transformations named after their grids' regions.
    'NAD_1927_To_NAD_1983_NADCON': 1241,            # conus
    'NAD_1927_To_NAD_1983_Alaska': 1243,            # alaska
    'NAD_1927_To_NAD_1983_PR_VI': 1461,             # prvi
    'NAD_1927_To_NAD_1983_NTv2_Canada': 1313,       # NTv2_0
    'NAD_1927_DEF_1976_To_NAD_1983_NTv2_Ontario': 1463,  # May76v20
    'ATS_1977_To_NAD_1983_CSRS98_NTv2_New_Brunswick': 1472,  # NB7783v2
    'ATS_1977_To_NAD_1983_CSRS98_2_NTv2_Prince_Edward_Is': 1599,  # PE7783V2
    'ATS_1977_To_NAD_1983_CSRS98_NTv2_Nova_Scotia': 1850,  # NS778301
    'ATS_1977_To_NAD_1983_CSRS98_NTv2_Maritimes': 9105,  # GS7783
    'AGD_1966_To_GDA_1994_NTv2_Northern_Territory': 1507,  # nt_0599
    'AGD_1966_To_GDA_1994_NTv2_Victoria': 1464,     # vic_0799
    'AGD_1966_To_GDA_1994_NTv2_Tasmania': 1506,     # tas_1098
    'AGD_1984_To_GDA_1994_4_NTv2_Western_Australia': 1593,  # wa_0700
    'AGD_1966_To_GDA_1994_10_NTv2_New_South_Wales_&_Victoria': 1596,
    'New_Zealand_1949_To_NZGD_2000_3_NTv2': 1568,
    'New_Zealand_1949_To_NZGD_2000_1_3PAR': 1566,
    'New_Zealand_1949_To_NZGD_2000_2_7PAR': 1567,
    # Named by purpose rather than by number.
    'OSGB_1936_To_WGS_1984_Petroleum': 1314,
    'OSGB_1936_To_ED_1950_UKOOA': 1315,
    'Tokyo_To_WGS_1984_2001': 15484,                # the 2001 parameters
    # The Portuguese IGP sets: "_1" the three-parameter, "_2" (and "PT7")
    # the seven-parameter solutions; EPSG numbers them after older ones.
    'ED_1950_To_WGS_1984_PT3': 1985,
    'ED_1950_To_WGS_1984_PT7': 1989,
    'Datum_Lisboa_Hayford_To_WGS_1984_1': 1984,
    'Datum_Lisboa_Hayford_To_WGS_1984_2': 1988,
    'Datum_73_To_WGS_1984_1': 1983,
    'Datum_73_To_WGS_1984_2': 1987,
    'Porto_Santo_1936_To_WGS_1984_1': 1966,
    'Porto_Santo_1936_To_WGS_1984_2': 1967,
    'Sao_Braz_To_WGS_1984_1': 1968,                 # Sao Miguel
    'Sao_Braz_To_WGS_1984_2': 1969,
    'Graciosa_Base_SW_1948_To_WGS_1984_1': 1980,
    'Graciosa_Base_SW_1948_To_WGS_1984_2': 1981,
    'Observ_Meteorologico_1939_To_WGS_1984_1': 1982,
    # The five Old Hawaiian solutions (mean, Hawaii, Kauai, Maui, Oahu),
    # which EPSG numbers (3) to (7).
    'Old_Hawaiian_To_WGS_1984_1': 15824,
    'Old_Hawaiian_To_WGS_1984_2': 15825,
    'Old_Hawaiian_To_WGS_1984_3': 15826,
    'Old_Hawaiian_To_WGS_1984_4': 15827,
    'Old_Hawaiian_To_WGS_1984_5': 15828,
}

# Transformations whose values come from another EPSG record than the one
# their name matches.
GEOGTRAN_VALUES_FROM = {
    # EPSG now defines NTF to RGF93 v1 (1) by the IGN grid method (1087),
    # which the library does not implement; the catalogue's transformation
    # is the three-parameter shift that EPSG keeps as NTF to ETRS89 (1), of
    # which RGF93 is the French realisation.
    'NTF_To_RGF_1993_1': (1651, 'EPSG 9327 (NTF to RGF93 v1 (1)) is now a grid transformation of a method the library does not implement; the same three-parameter shift is EPSG 1651 NTF to ETRS89 (1)'),
}

# Methods the catalogue keeps where EPSG's record uses an equivalent one:
# translations alone are a seven-parameter transformation with zero
# rotations and scale, and coordinate-frame rotations are position-vector
# rotations with the opposite sign.
GEOGTRAN_METHOD_KEPT = {
    'ETRF_1989_To_WGS_1984': 9606,
    'GDA_1994_To_WGS_1984': 9606,
    'NGO_1948_To_WGS_1984': 9607,
}

# Transformations without an EPSG record of their own that follow from
# others: a system on another prime meridian uses the transformation of the
# same datum on Greenwich (the pipeline rotates the meridian), and a system
# to the same datum on Greenwich is a longitude rotation.  (No table: rule.)

# Transformations EPSG holds no record for.  They keep their names and
# library codes in the macro table, but have no row: the factory yields
# NULL for them.
GEOGTRAN_WITHOUT_EPSG = {
    'AGD_1984_To_GDA_1994_NTv2_Queensland': 'EPSG holds no AGD84 to GDA94 grid of Queensland',
    'Bab_South_To_NAD_1983': 'EPSG holds neither the datum nor the transformation',
    'Majuro_To_NAD_1983': 'EPSG holds neither the datum nor the transformation',
    'Pohnpei_To_NAD_1983': 'EPSG holds neither the datum nor the transformation',
    'Guam_1963_To_HARN_Marianas_Rota': 'EPSG holds no Guam 1963 to NAD83(HARN) transformation for the Marianas',
    'Guam_1963_To_HARN_Marianas_Saipan': 'EPSG holds no Guam 1963 to NAD83(HARN) transformation for the Marianas',
    'Guam_1963_To_HARN_Marianas_Tinian_Aguijan': 'EPSG holds no Guam 1963 to NAD83(HARN) transformation for the Marianas',
    'ED_1950_To_WGS_1984_9': 'EPSG no longer holds ED50 to WGS 84 (9)',
    'Naparima_1972_To_WGS_1984_2': 'EPSG no longer holds Naparima 1972 to WGS 84 (2)',
    'Nord_Sahara_1959_To_WGS_1984_3': 'EPSG no longer holds Nord Sahara 1959 to WGS 84 (3)',
    'Indian_1960_To_WGS_1984_1': 'EPSG no longer holds Indian 1960 to WGS 84 (1)',
    'Chos_Malal_1914_To_WGS_1984': 'EPSG no longer holds Chos Malal 1914 to WGS 84 (1)',
    'Voirol_Unifie_1960_To_WGS_1984': 'EPSG holds no transformation of Voirol 1879 to WGS 84',
    'Voirol_Unifie_1960_Paris_To_WGS_1984': 'EPSG holds no transformation of Voirol 1879 to WGS 84',
}

# The catalogue lists its transformations grouped by method, in this order
# and with these counts; each row's method must be its group's.
GEOGTRAN_METHOD_GROUPS = [
    (9601, 17), (9613, 7), (109613, 46), (9615, 22), (9603, 288), (9606, 28),
    (9607, 37),
]

# Geographic transformation codes: the EPSG code when it lies in these
# ranges, else a library code from 108001 in the catalogue's order.
EPSG_GEOGTRAN_CODE_RANGES = [(1000, 1999), (8000, 8899)]
LIBRARY_GEOGTRAN_FIRST_CODE = 108001
GEOGTRAN_FIXED_CODES = {
    'Abidjan_1987_To_WGS_1984': 8414,    # the catalogue's code (EPSG 1470)
}

# ---------------------------------------------------------------------------
# Transformation macro names.
#
# HARN transformations name the state by its postal code.
US_STATE_CODES = {
    'Alabama': 'AL', 'Arizona': 'AZ', 'Arkansas': 'AR', 'Colorado': 'CO',
    'Georgia': 'GA', 'Florida': 'FL', 'Hawaii': 'HI', 'Iowa': 'IA',
    'Illinois': 'IL', 'Indiana': 'IN', 'Kansas': 'KS', 'Kentucky': 'KY',
    'Louisiana': 'LA', 'Maine': 'ME', 'Michigan': 'MI', 'Minnesota': 'MN',
    'Mississippi': 'MS', 'Missouri': 'MO', 'Nebraska': 'NE', 'Nevada': 'NV',
    'New_Jersey': 'NJ', 'New_Mexico': 'NM', 'New_York': 'NY',
    'North_Dakota': 'ND', 'Ohio': 'OH', 'Oklahoma': 'OK',
    'South_Dakota': 'SD', 'Tennessee': 'TN', 'Texas': 'TX', 'Utah': 'UT',
    'Virginia': 'VA', 'West_Virginia': 'WV', 'Wisconsin': 'WI',
    'Wyoming': 'WY',
}

# Transformations whose macro names the catalogue shortens its own way;
# their second names are in MACRO_ALIASES.
MACRO_NAMES.update({
    'AGD_1966_To_GDA_1994_10_NTv2_New_South_Wales_&_Victoria': 'KA_GT_AGD_1966_TO_GDA_1994_10',
    'AGD_1984_To_GDA_1994_4_NTv2_Western_Australia': 'KA_GT_AGD_1984_TO_GDA_1994_4',
    'ATS_1977_To_NAD_1983_CSRS98_2_NTv2_Prince_Edward_Is': 'KA_GT_ATS_1977_TO_NAD_1983_CSRS98_2',
    'New_Zealand_1949_To_NZGD_2000_1_3PAR': 'KA_GT_NZGD_1949_TO_NZGD_2000_1',
    'New_Zealand_1949_To_NZGD_2000_2_7PAR': 'KA_GT_NZGD_1949_TO_NZGD_2000_2',
    'New_Zealand_1949_To_NZGD_2000_3_NTv2': 'KA_GT_NZGD_1949_TO_NZGD_2000_3',
})
MACRO_ALIASES.update({
    'AGD_1966_To_GDA_1994_10_NTv2_New_South_Wales_&_Victoria': ['KA_GT_AGD_1966_TO_GDA_1994_NTV2_SOUTHEAST'],
    'AGD_1984_To_GDA_1994_4_NTv2_Western_Australia': ['KA_GT_AGD_1984_TO_GDA_1994_NTV2_WESTERN'],
    'ATS_1977_To_NAD_1983_CSRS98_2_NTv2_Prince_Edward_Is': ['KA_GT_ATS_1977_TO_NAD_1983_CSRS98_NTV2_PEI'],
    'New_Zealand_1949_To_NZGD_2000_1_3PAR': ['KA_GT_NZGD_1949_TO_NZGD_2000_3PAR'],
    'New_Zealand_1949_To_NZGD_2000_2_7PAR': ['KA_GT_NZGD_1949_TO_NZGD_2000_7PAR'],
    'New_Zealand_1949_To_NZGD_2000_3_NTv2': ['KA_GT_NZGD_1949_TO_NZGD_2000_NTV2'],
    'Qatar_1974_To_WGS_1984_1': ['KA_GT_QATAR_TO_WGS_1984'],
})

# Macro names that carry another row's code, kept as the catalogue has
# them: KA_GT_NTF_TO_RGF_1993_1, which carries
# the code of the West Virginia HARN transformation (so the NTF to RGF 1993
# row is reachable by its code only).
MACRO_OTHER_CODES = {
    'KA_GT_NTF_TO_RGF_1993_1': 'NAD_1983_To_HARN_West_Virginia',
}

# Rows the catalogue stores out of strcmp order, kept: (row, the row it
# stands before).
MACRO_MISPLACED = [
    ('KA_GT_ED_1987_TO_WGS_1984_1', 'KA_GT_ED_1950_TO_WGS_1984_PT3'),
]
