#!/usr/bin/env python3
"""Generate the built-in catalogue tables from the EPSG records.

Usage: scripts/gen_catalogue.py [--epsg DIR] [--out DIR] [--docs FILE]

Reads the EPSG CSV records (default: ../shared/epsg relative to the
repository root), the hand-decided tables of scripts/catalogue_data.py, and
writes src/catalogue/generated/*.cpp plus the deviation tables of
docs/catalogue.md (between its GENERATED markers).  The output depends only
on the inputs: running the script again gives the same bytes.

Python 3 standard library only.
"""

import argparse
import csv
import math
import os
import re
import sys
from decimal import Decimal

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import catalogue_data as data  # noqa: E402

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))

# Method codes of the catalogue and of EPSG.
GEOCENTRIC_TRANSLATION = 9603
POSITION_VECTOR = 9606
COORDINATE_FRAME = 9607
LONGITUDE_ROTATION = 9601
NADCON = 9613
NTV2 = 9615
HARN = 109613

# Parameter codes of the transformation parameters.
X_TRANSLATION, Y_TRANSLATION, Z_TRANSLATION = 100040, 100041, 100042
X_ROTATION, Y_ROTATION, Z_ROTATION = 100043, 100044, 100045
SCALE_DIFFERENCE = 100046

# EPSG angular units of geographic CRS axes, to the catalogue's units.
EPSG_AXIS_UNIT = {9122: 9102, 9102: 9102, 9108: 9102, 9105: 9105}

GREENWICH = 8901
DEGREE = 9102
GRAD = 9105


class CatalogueError(Exception):
    pass


def fail(message):
    raise CatalogueError(message)


# ---------------------------------------------------------------------------
# EPSG records

def read_csv(directory, name):
    with open(os.path.join(directory, name), newline='', encoding='utf-8') as f:
        return list(csv.DictReader(f))


class Epsg:
    """The EPSG records, keyed by code."""

    def __init__(self, directory):
        def keyed(name):
            return {int(r['code']): r for r in read_csv(directory, name)}
        self.units = keyed('units.csv')
        self.ellipsoids = keyed('ellipsoids.csv')
        self.primems = keyed('prime_meridians.csv')
        self.datums = keyed('datums.csv')
        self.geogcs = keyed('geographic_crs.csv')
        self.helmert = keyed('helmert_transformations.csv')
        self.other = keyed('other_transformations.csv')
        self.grids = keyed('grid_transformations.csv')


def decimal_field(row, key):
    text = row[key].strip()
    return Decimal(text) if text else None


def sexagesimal_degrees(text):
    """Degrees of an EPSG sexagesimal DMS value (unit 9110): DDD.MMSSsss."""
    value = Decimal(text)
    sign = -1 if value < 0 else 1
    value = abs(value)
    degrees = int(value)
    rest = (value - degrees) * 100
    minutes = int(rest)
    seconds = (rest - minutes) * 100
    # Summed in double precision in this order: degrees + minutes/60 +
    # seconds/3600, the way the catalogue's values were formed.
    return sign * (degrees + minutes / 60 + float(seconds) / 3600)


def epsg_angle_degrees(epsg, text, uom):
    if uom == 9110:
        return sexagesimal_degrees(text)
    if uom == 9102:
        return float(Decimal(text))
    if uom == 9105:
        return float(Decimal(text) * Decimal(9) / Decimal(10))
    fail('angle unit %d not handled' % uom)


def epsg_ellipsoid(epsg, code):
    """(axis in metres, inverse flattening or 0) of an EPSG ellipsoid."""
    row = epsg.ellipsoids[code]
    uom = int(row['axis_uom_code'])
    factor = Decimal(epsg.units[uom]['conv_factor'])
    a = Decimal(row['semi_major_axis'])
    invf = decimal_field(row, 'inv_flattening')
    if invf is None:
        b = Decimal(row['semi_minor_axis'])
        invf = Decimal(0) if a == b else a / (a - b)
    return float(a * factor), float(invf)


# ---------------------------------------------------------------------------
# Deviation report

class Report:
    def __init__(self):
        self.rows = {}  # section -> list of (code, name, what, reason)

    def add(self, section, code, name, what, reason):
        self.rows.setdefault(section, []).append((code, name, what, reason))


def relative_difference(a, b):
    if a == b:
        return 0.0
    return abs(a - b) / max(abs(a), abs(b))


def number(value):
    """Shortest text that gives the double back."""
    text = repr(float(value))
    if text.endswith('.0'):
        text = text[:-2]
    return text


# ---------------------------------------------------------------------------
# Units, spheroids, prime meridians

def build_units(epsg, report):
    rows = []
    for code, name, factor_text in data.UNITS:
        factor = float(factor_text)
        epsg_row = epsg.units.get(code)
        if epsg_row is None or not epsg_row['conv_factor']:
            report.add('units', code, name, 'EPSG holds no factor', 'kept')
        else:
            epsg_factor = float(epsg_row['conv_factor'])
            if relative_difference(factor, epsg_factor) > 1e-12:
                report.add('units', code, name,
                           'factor %s, EPSG %s' % (factor_text, epsg_row['conv_factor']),
                           'catalogue value kept')
            if epsg_row['deprecated'] == '1':
                report.add('units', code, name, 'EPSG marks the code deprecated',
                           'kept')
        rows.append((code, name, factor))
    return rows


def build_spheroids(epsg, report):
    rows = []
    for code, name, axis_text, invf_text in data.SPHEROIDS:
        axis, invf = float(axis_text), float(invf_text)
        source = data.SPHEROID_EPSG_EQUIVALENT.get(code, code)
        if source not in epsg.ellipsoids:
            if code < 100000:
                report.add('spheroids', code, name, 'EPSG no longer holds the code',
                           'catalogue values kept')
            else:
                report.add('spheroids', code, name, 'no EPSG ellipsoid',
                           'library spheroid, catalogue values')
        else:
            epsg_axis, epsg_invf = epsg_ellipsoid(epsg, source)
            where = 'EPSG %d' % source
            if relative_difference(axis, epsg_axis) > 1e-12:
                report.add('spheroids', code, name,
                           'axis %s, %s %s' % (axis_text, where, number(epsg_axis)),
                           'catalogue value kept')
            if relative_difference(invf, epsg_invf) > 1e-12:
                report.add('spheroids', code, name,
                           '1/f %s, %s %s' % (invf_text, where, number(epsg_invf)),
                           'catalogue value kept')
            if epsg.ellipsoids[source]['deprecated'] == '1' and source == code:
                report.add('spheroids', code, name, 'EPSG marks the code deprecated',
                           'catalogue code kept')
            if source != code:
                report.add('spheroids', code, name,
                           'EPSG holds it as %d %s' % (source, epsg.ellipsoids[source]['name']),
                           'library code kept')
        rows.append((code, name, axis, invf))
    return rows


def build_primems(epsg, report):
    rows = []
    for code, name in data.PRIMEMS:
        epsg_row = epsg.primems[code]
        epsg_value = epsg_angle_degrees(epsg, epsg_row['longitude'], int(epsg_row['uom_code']))
        value = epsg_value
        kept = data.PRIMEM_KEPT_LONGITUDES.get(code)
        if kept is not None:
            value = float(kept[0])
            report.add('primems', code, name,
                       'longitude %s, EPSG %s (%s in unit %s)'
                       % (number(value), number(epsg_value), epsg_row['longitude'],
                          epsg_row['uom_code']),
                       kept[1])
        rows.append((code, name, value))
    return rows


# ---------------------------------------------------------------------------
# Names

NOISE_WORDS = re.compile(r'\b(datum|geodetic|of|the)\b')


def name_key(text):
    """Comparison key of a name: lower case, no noise words, letters and
    digits only."""
    text = NOISE_WORDS.sub(' ', text.lower().replace('_', ' '))
    return re.sub(r'[^a-z0-9+]', '', text)


def name_keys(text):
    """Keys of a catalogue name: as written and with its years shortened to
    two digits (EPSG abbreviations write "RT90" for "RT 1990")."""
    spaced = text.replace('_', ' ')
    return {name_key(spaced), name_key(re.sub(r'\b19(\d\d)\b', r'\1', spaced))}


def spheroid_datum_name(code, spheroid_name):
    if code in data.SPHEROID_DATUM_NAMES:
        return 'D_' + data.SPHEROID_DATUM_NAMES[code]
    words = [data.SPHEROID_DATUM_WORDS.get(w, w) for w in spheroid_name.split('_')]
    return 'D_' + '_'.join(words)


def spheroid_geogcs_name(datum_name):
    words = [data.SPHEROID_GEOGCS_WORDS.get(w, w) for w in datum_name[2:].split('_')]
    return 'GCS_' + '_'.join(words)


def library_code(code):
    return code >= 100000 or 37000 <= code < 38000


# ---------------------------------------------------------------------------
# Datums and geographic coordinate systems

class Datum:
    def __init__(self, name):
        self.name = name
        self.code = None
        self.spheroid = None
        self.epsg = None          # EPSG datum that is this datum
        self.values_from = None   # EPSG datum its values come from
        self.reason = None        # why the values come from elsewhere


class Geogcs:
    def __init__(self, name, index):
        self.name = name
        self.index = index        # position in the catalogue's order
        self.code = None
        self.datum = None         # Datum
        self.primem = GREENWICH
        self.unit = DEGREE
        self.epsg = None          # EPSG geographic CRS that is this system
        self.values_from = None   # EPSG geographic CRS its values come from
        self.reason = None
        self.meridian = None      # prime-meridian name behind the datum's
        self.twin_of = None       # grad system of a "_Degree" twin
        self.through_datum = False  # matched as the EPSG system of its datum


def spheroid_in_catalogue(epsg_ellipsoid_code, spheroid_codes):
    code = data.EPSG_ELLIPSOID_IN_CATALOGUE.get(epsg_ellipsoid_code, epsg_ellipsoid_code)
    if code not in spheroid_codes:
        fail('EPSG ellipsoid %d is not in the catalogue' % epsg_ellipsoid_code)
    return code


def epsg_datum_index(epsg):
    """Name key -> EPSG datum codes, from datum names and the names of the
    geographic CRSs on each datum."""
    index = {}
    for code, row in epsg.datums.items():
        index.setdefault(name_key(row['name']), set()).add(code)
    for row in epsg.geogcs.values():
        index.setdefault(name_key(row['name']), set()).add(int(row['datum_code']))
    return index


def match_datum(name, index):
    if name in data.DATUM_EPSG:
        return data.DATUM_EPSG[name]
    found = set()
    for key in name_keys(name[2:]):
        found |= index.get(key, set())
    if len(found) > 1:
        fail('%s matches several EPSG datums %s' % (name, sorted(found)))
    return found.pop() if found else None


def build_datums(epsg, spheroids, report):
    spheroid_codes = {row[0] for row in spheroids}
    datums = {name: Datum(name) for name in data.DATUM_NAMES}
    if len(datums) != len(data.DATUM_NAMES):
        fail('duplicate datum name')

    # Datums of a spheroid alone.
    for code, name, _, _ in spheroids:
        if code in data.SPHEROID_DATUM_TAKEN_BY_EPSG:
            continue
        datum_name = spheroid_datum_name(code, name)
        datum = datums.get(datum_name)
        if datum is None:
            continue
        datum.spheroid = code
        datum.code = code - 1000  # 7xxx -> 6xxx, 107xxx -> 106xxx
        if datum.code in epsg.datums:
            datum.epsg = datum.values_from = datum.code
            epsg_ellipsoid = int(epsg.datums[datum.code]['ellipsoid_code'])
            if spheroid_in_catalogue(epsg_ellipsoid, spheroid_codes) != code:
                report.add('datums', datum.code, datum_name,
                           'spheroid %d, EPSG ellipsoid %d' % (code, epsg_ellipsoid),
                           'the datum of the catalogue spheroid %d alone' % code)

    index = epsg_datum_index(epsg)
    for datum in datums.values():
        if datum.spheroid is not None:
            continue
        name = datum.name
        datum.epsg = match_datum(name, index)
        if name in data.DATUM_VALUES_FROM:
            datum.values_from, datum.reason = data.DATUM_VALUES_FROM[name]
        elif datum.epsg is not None:
            datum.values_from = datum.epsg
        if datum.values_from is not None:
            if datum.values_from not in epsg.datums:
                fail('%s: no EPSG datum %d' % (name, datum.values_from))
            ellipsoid = int(epsg.datums[datum.values_from]['ellipsoid_code'])
            datum.spheroid = spheroid_in_catalogue(ellipsoid, spheroid_codes)
        elif name in data.DATUM_SPHEROID_WITHOUT_EPSG:
            datum.spheroid, datum.reason = data.DATUM_SPHEROID_WITHOUT_EPSG[name]
        elif name in data.DATUMS_WITHOUT_VALUES:
            datum.reason = data.DATUMS_WITHOUT_VALUES[name]
        else:
            fail('%s: no EPSG datum matched and no spheroid decided' % name)
    return datums


def epsg_geogcs_index(epsg):
    index = {}
    for code, row in epsg.geogcs.items():
        index.setdefault(name_key(row['name']), set()).add(code)
    return index


def geogcs_datum_name(gcs, datums, primem_names):
    """The datum name of a geographic CS, and its meridian suffix or twin."""
    def datum_of(system_name):
        if system_name in data.GEOGCS_DATUM_NAMES:
            return data.GEOGCS_DATUM_NAMES[system_name]
        return lookup_datum('D_' + system_name[len('GCS_'):], datums)

    name = gcs.name
    if name.endswith('_Degree'):
        gcs.twin_of = name[:-len('_Degree')]
        name = gcs.twin_of
    for meridian in primem_names:
        suffix = '_' + meridian
        if name.endswith(suffix) and meridian != 'Greenwich':
            base = name[:-len(suffix)]
            if datum_of(base) is not None:
                gcs.meridian = meridian
                name = base
                break
    return datum_of(name) or fail('%s: no datum' % gcs.name)


def lookup_datum(name, datums):
    for key in datums:
        if key.lower() == name.lower():
            return key
    return None


def in_ranges(code, ranges):
    return any(low <= code <= high for low, high in ranges)


def match_geogcs(gcs, epsg, gcs_index):
    """Sets gcs.epsg (the same system) and gcs.values_from."""
    datum = gcs.datum
    if gcs.name in data.GEOGCS_EPSG:
        gcs.epsg = data.GEOGCS_EPSG[gcs.name]
    elif gcs.name in data.GEOGCS_VALUES_FROM:
        gcs.values_from, gcs.reason = data.GEOGCS_VALUES_FROM[gcs.name]
        return
    elif gcs.twin_of is not None:
        return  # takes the values of its grad system
    else:
        found = set()
        for key in name_keys(gcs.name[len('GCS_'):]):
            found |= gcs_index.get(key, set())
        # A meridian variant sits on EPSG's datum with that meridian.
        if gcs.meridian is None:
            found = {c for c in found
                     if int(epsg.geogcs[c]['datum_code']) == datum.epsg}
        if not found and gcs.meridian is None and datum.values_from is not None:
            on_datum = sorted(c for c, r in epsg.geogcs.items()
                              if int(r['datum_code']) == datum.values_from
                              and '(lon-lat)' not in r['name'])
            if on_datum:
                if datum.values_from == datum.epsg:
                    gcs.epsg = gcs.values_from = on_datum[0]
                    gcs.through_datum = True
                else:
                    gcs.values_from = on_datum[0]
                    gcs.reason = datum.reason
                return
        if len(found) > 1:
            fail('%s matches several EPSG geographic CRSs %s' % (gcs.name, sorted(found)))
        gcs.epsg = found.pop() if found else None
    if gcs.epsg is not None:
        if gcs.epsg not in epsg.geogcs:
            fail('%s: no EPSG geographic CRS %d' % (gcs.name, gcs.epsg))
        gcs.values_from = gcs.epsg


def build_geogcs(epsg, datums, primems, report):
    primem_names = [row[1] for row in primems]
    primem_codes = {row[1]: row[0] for row in primems}
    systems = [Geogcs(name, i) for i, name in enumerate(data.GEOGCS_NAMES)]
    by_name = {g.name: g for g in systems}
    if len(by_name) != len(systems):
        fail('duplicate geographic CS name')
    gcs_index = epsg_geogcs_index(epsg)

    for gcs in systems:
        gcs.datum = datums[geogcs_datum_name(gcs, datums, primem_names)]
        if gcs.meridian is not None:
            gcs.primem = primem_codes[gcs.meridian]

    # Codes fixed by rule: a spheroid's datum alone, fixed library codes,
    # withdrawn EPSG codes, "_Degree" twins.
    for gcs in systems:
        datum = gcs.datum
        if datum.code is not None and gcs.meridian is None and gcs.twin_of is None:
            if spheroid_geogcs_name(datum.name) != gcs.name:
                fail('%s: expected %s' % (gcs.name, spheroid_geogcs_name(datum.name)))
            gcs.code = datum.code - 2000 if datum.code < 100000 else datum.code - 69000
            record = epsg.geogcs.get(gcs.code)
            if record is not None and int(record['datum_code']) == datum.code:
                gcs.epsg = gcs.values_from = gcs.code
            elif record is not None:
                report.add('geogcs', gcs.code, gcs.name,
                           'EPSG uses the code for %s' % record['name'],
                           'catalogue code kept')
            continue
        match_geogcs(gcs, epsg, gcs_index)
        if gcs.name in data.GEOGCS_FIXED_CODES:
            gcs.code = data.GEOGCS_FIXED_CODES[gcs.name]
        elif gcs.name in data.GEOGCS_FORMER_EPSG_CODES:
            gcs.code = data.GEOGCS_FORMER_EPSG_CODES[gcs.name]

    for gcs in systems:
        if gcs.code is None and gcs.epsg is not None and \
                in_ranges(gcs.epsg, data.EPSG_GEOGCS_CODE_RANGES):
            gcs.code = gcs.epsg

    # Datum codes follow the geographic CS that owns the datum: a system on
    # Greenwich, not a twin (or, without one, the system with the meridian
    # EPSG's datum includes).
    owners = {}
    for gcs in systems:
        if gcs.twin_of is None and (gcs.meridian is None or gcs.datum.name not in owners):
            if gcs.meridian is None or not any(
                    g.datum is gcs.datum and g.meridian is None for g in systems):
                owners.setdefault(gcs.datum.name, gcs)

    next_code = data.LIBRARY_GEOGCS_FIRST_CODE
    taken = {g.code for g in systems if g.code is not None}
    for gcs in systems:
        if gcs.code is not None or gcs.twin_of is not None:
            continue
        if owners.get(gcs.datum.name) is not gcs:
            fail('%s: library code for a system that does not own its datum' % gcs.name)
        while next_code in taken:
            next_code += 1
        gcs.code = next_code
        taken.add(next_code)

    for name, gcs in owners.items():
        datum = gcs.datum
        code = gcs.code + (data.LIBRARY_DATUM_OFFSET if 37000 <= gcs.code < 38000 else 2000)
        if datum.code is not None and datum.code != code:
            fail('%s: datum code %d, its system gives %d' % (name, datum.code, code))
        datum.code = code

    for gcs in systems:
        if gcs.twin_of is not None and gcs.code is None:
            gcs.code = data.DEGREE_TWIN_CODE_BASE + gcs.datum.code - 6000
    return systems


def epsg_axis_unit(epsg_row):
    uom = int(epsg_row['angular_uom_code'])
    if uom not in EPSG_AXIS_UNIT:
        fail('EPSG axis unit %d not handled' % uom)
    return EPSG_AXIS_UNIT[uom]


def finish_geogcs(epsg, systems, report):
    """Prime meridians and units, checked against the EPSG records."""
    by_name = {g.name: g for g in systems}
    for gcs in systems:
        source = gcs
        if gcs.twin_of is not None:
            source = by_name[gcs.twin_of]
        record = epsg.geogcs.get(source.values_from) if source.values_from else None
        if gcs.twin_of is not None:
            gcs.unit = DEGREE
        elif gcs.name in data.GEOGCS_IN_GRADS_ON_GREENWICH:
            gcs.unit = GRAD
        elif record is not None:
            gcs.unit = epsg_axis_unit(record)
        if record is None:
            continue
        epsg_datum = epsg.datums[int(record['datum_code'])]
        epsg_primem = int(epsg_datum['prime_meridian_code'])
        epsg_unit = epsg_axis_unit(record)
        where = 'EPSG %s' % record['code']
        same_system = source.epsg is not None
        if gcs.primem != epsg_primem and same_system:
            kept = data.GEOGCS_PRIMEM_KEPT.get(gcs.name)
            if kept is None or kept[0] != gcs.primem:
                fail('%s: prime meridian %d, %s has %d'
                     % (gcs.name, gcs.primem, where, epsg_primem))
            report.add('geogcs', gcs.code, gcs.name,
                       'prime meridian %d, %s %d' % (gcs.primem, where, epsg_primem),
                       kept[1])
        if gcs.unit != epsg_unit:
            report.add('geogcs', gcs.code, gcs.name,
                       'unit %d, %s %d' % (gcs.unit, where, epsg_unit),
                       'grad system of the catalogue' if gcs.unit == GRAD
                       else 'degree twin of a grad system')
        datum_code = int(record['datum_code'])
        expected = gcs.datum.epsg or gcs.datum.values_from
        if datum_code != expected and gcs.meridian is not None:
            report.add('geogcs', gcs.code, gcs.name,
                       'datum %d with prime meridian %d, %s datum %d'
                       % (gcs.datum.code, gcs.primem, where, datum_code),
                       'the catalogue keeps one datum for all meridians')
        elif datum_code != expected and gcs.values_from == gcs.epsg:
            fail('%s: datum %s, %s datum %d' % (gcs.name, expected, where, datum_code))
        if gcs.through_datum and gcs.datum.name in data.DATUM_EPSG:
            report.add('geogcs', gcs.code, gcs.name, 'EPSG name %s' % record['name'],
                       'matched through its datum %s' % gcs.datum.name)
        if gcs.name in data.GEOGCS_EPSG and gcs.code == gcs.epsg:
            report.add('geogcs', gcs.code, gcs.name, 'EPSG name %s' % record['name'],
                       'matched by decision (the name rule finds no or another system)')
        if gcs.epsg is not None and gcs.code != gcs.epsg:
            report.add('geogcs', gcs.code, gcs.name,
                       'EPSG holds it as %d %s' % (gcs.epsg, record['name']),
                       'code of the catalogue kept' if not library_code(gcs.code)
                       else 'library code: EPSG code later than the catalogue')
        elif gcs.epsg is None and gcs.values_from is not None and gcs.twin_of is None:
            report.add('geogcs', gcs.code, gcs.name,
                       'values from %s %s' % (where, record['name']), gcs.reason)
        if record['deprecated'] == '1' and gcs.code == gcs.epsg:
            report.add('geogcs', gcs.code, gcs.name, 'EPSG marks the code deprecated',
                       'catalogue code kept')
    for gcs in systems:
        if gcs.datum.spheroid is None:
            report.add('geogcs', gcs.code, gcs.name, 'no row',
                       'its datum %s has no row' % gcs.datum.name)
        elif gcs.values_from is None and gcs.twin_of is None and gcs.code > 37008:
            report.add('geogcs', gcs.code, gcs.name, 'no EPSG geographic CRS',
                       'library code; datum %d' % gcs.datum.code)
        if gcs.code in data.GEOGCS_FORMER_EPSG_CODES.values():
            report.add('geogcs', gcs.code, gcs.name, 'EPSG no longer holds the code',
                       'catalogue code kept')
    grads = [g.name for g in systems if g.unit == GRAD]
    if len(grads) != 11:
        fail('%d grad systems: %s' % (len(grads), grads))


def report_datums(epsg, datums, spheroids, report):
    for datum in sorted(datums.values(), key=lambda d: d.code):
        name, code = datum.name, datum.code
        if datum.values_from is not None:
            record = epsg.datums[datum.values_from]
            ellipsoid = int(record['ellipsoid_code'])
            if ellipsoid != datum.spheroid:
                report.add('datums', code, name,
                           'spheroid %d, EPSG %d ellipsoid %d %s'
                           % (datum.spheroid, datum.values_from, ellipsoid,
                              epsg.ellipsoids[ellipsoid]['name']),
                           'the same figure under the catalogue\'s code')
        if name in data.DATUM_EPSG and datum.epsg == code:
            report.add('datums', code, name,
                       'EPSG name %s' % epsg.datums[code]['name'],
                       'matched by decision (the name rule finds no or another datum)')
        if datum.epsg is not None and datum.epsg != code:
            report.add('datums', code, name,
                       'EPSG holds it as %d %s' % (datum.epsg, epsg.datums[datum.epsg]['name']),
                       'library code: EPSG code later than the catalogue'
                       if library_code(code) else 'code of the catalogue kept')
        elif datum.epsg is None and datum.values_from is not None:
            report.add('datums', code, name,
                       'values from EPSG %d %s' % (datum.values_from,
                                                   epsg.datums[datum.values_from]['name']),
                       datum.reason)
        elif datum.spheroid is None:
            report.add('datums', code, name, 'no row', datum.reason)
        elif datum.values_from is None and code > 106008:
            report.add('datums', code, name, 'no EPSG datum',
                       'library code; spheroid %d: %s' % (datum.spheroid, datum.reason))
        if datum.epsg == code and epsg.datums[code]['deprecated'] == '1':
            report.add('datums', code, name, 'EPSG marks the code deprecated',
                       'catalogue code kept')
        if datum.epsg is None and not library_code(code):
            report.add('datums', code, name, 'EPSG no longer holds the code',
                       'catalogue code kept')


# ---------------------------------------------------------------------------
# Macro names

PREFIXES = {
    'unit': 'KA_U_', 'spheroid': 'KA_S_', 'primem': 'KA_PM_', 'datum': 'KA_D_',
    'geogcs': 'KA_GCS_', 'geogtran': 'KA_GT_', 'projection': 'KA_PRJ_',
    'parameter': 'KA_PAR_',
}
NAME_PREFIXES = {'datum': 'D_', 'geogcs': 'GCS_'}


def macro_name(kind, name):
    if name in data.MACRO_NAMES:
        return data.MACRO_NAMES[name]
    rest = name[len(NAME_PREFIXES.get(kind, '')):]
    if kind == 'geogtran' and '_To_HARN_' in rest:
        head, region = rest.split('_To_HARN_')
        for state in sorted(data.US_STATE_CODES, key=len, reverse=True):
            region = re.sub(r'(^|_)%s($|_)' % state,
                            r'\g<1>%s\g<2>' % data.US_STATE_CODES[state], region)
        rest = head + '_To_HARN_' + region
    for character, spelt in data.MACRO_CHARACTERS.items():
        rest = rest.replace(character, spelt)
    words = [data.MACRO_WORDS.get(w, w) for w in rest.split('_')]
    text = '_'.join(w for w in words if w).upper().strip('_')
    if not re.fullmatch(r'[A-Z0-9_]+', text):
        fail('macro name of %s: %s' % (name, text))
    return PREFIXES[kind] + text


def macro_table(kind, rows):
    """(macro name, code) pairs in strcmp order, aliases included."""
    table = []
    for code, name in rows:
        table.append((macro_name(kind, name), code))
        for alias in data.MACRO_ALIASES.get(name, []):
            table.append((alias, code))
    table.sort(key=lambda row: row[0].encode())
    names = [row[0] for row in table]
    if len(set(names)) != len(names):
        fail('duplicate %s macro names' % kind)
    return table


# ---------------------------------------------------------------------------
# C++ output

HEADER = '''// Generated by scripts/gen_catalogue.py from the EPSG records in
// ../shared/epsg and the decisions in scripts/catalogue_data.py.
// Do not edit: change the script or its data and run it again.
#include "catalogue/tables.h"

namespace veltra::catalogue {
'''
FOOTER = '''
}  // namespace veltra::catalogue
'''


def cpp_double(value):
    return repr(float(value))


def cpp_string(text):
    if any(c in text for c in '"\\') or not text.isprintable():
        fail('name needs escaping: %r' % text)
    return '"%s"' % text


def row_table(type_name, function, rows):
    lines = ['', 'namespace {', '', 'constexpr %s kRows[] = {' % type_name]
    lines += ['    {%s},' % ', '.join(fields) for fields in rows]
    lines += ['};', '', '}  // namespace', '',
              'std::span<const %s> %s() { return kRows; }' % (type_name, function)]
    return lines


def macro_lines(function, table, array):
    lines = ['', 'namespace {', '', 'constexpr MacroRow %s[] = {' % array]
    lines += ['    {%s, %d},' % (cpp_string(name), code) for name, code in table]
    lines += ['};', '', '}  // namespace', '',
              'std::span<const MacroRow> %s() { return %s; }' % (function, array)]
    return lines


def write_file(directory, name, lines, written):
    path = os.path.join(directory, name)
    text = HEADER + '\n'.join(lines) + '\n' + FOOTER
    with open(path, 'w', encoding='utf-8', newline='\n') as f:
        f.write(text)
    written.append(path)


def check_sorted(kind, rows):
    codes = [row[0] for row in rows]
    if codes != sorted(codes) or len(set(codes)) != len(codes):
        fail('%s rows not sorted by unique code' % kind)


# ---------------------------------------------------------------------------
# Geographic transformations

# EPSG units of the transformation parameters, as factors to the
# catalogue's metres, arc-seconds and parts per million.  Decimal factors
# are exact (a centesimal second is 1e-4 gon = 0.324 arc-seconds); those
# through radians (an arc-second is pi/648000 rad) are doubles.
ARCSEC_PER_RADIAN = 648000 / math.pi
TRANSLATION_TO_METRES = {9001: Decimal(1), 1025: Decimal('0.001'), 1033: Decimal('0.01')}
ROTATION_TO_ARCSEC = {
    9104: Decimal(1),
    1031: Decimal('0.001'),
    9113: Decimal('0.324'),
    9109: 1e-6 * ARCSEC_PER_RADIAN,
    9101: ARCSEC_PER_RADIAN,
}
SCALE_TO_PPM = {9202: Decimal(1), 1028: Decimal('0.001'), 9201: Decimal(1000000)}


def converted(text, factor):
    """A record's decimal value times a unit factor, as a double."""
    if isinstance(factor, Decimal):
        return float(Decimal(text) * factor)
    return float(Decimal(text)) * factor


METHOD_NAMES = {
    LONGITUDE_ROTATION: 'longitude rotation', NADCON: 'NADCON', HARN: 'HARN', NTV2: 'NTv2',
    GEOCENTRIC_TRANSLATION: 'geocentric translation',
    POSITION_VECTOR: 'position vector', COORDINATE_FRAME: 'coordinate frame',
}

HELMERT_METHODS = {
    9603: GEOCENTRIC_TRANSLATION,
    9606: POSITION_VECTOR,
    9607: COORDINATE_FRAME,
}


class Geogtran:
    def __init__(self, name, index):
        self.name = name
        self.index = index
        self.code = None
        self.source = None        # Geogcs
        self.target = None
        self.suffix = ''
        self.epsg = None          # EPSG record that is this transformation
        self.values_from = None   # EPSG record of the values
        self.via = None           # Geogtran whose values a meridian variant uses
        self.method = None
        self.parameters = []      # (parameter code, value)
        self.dataset = None
        self.note = None          # why the transformation has no row
        self.reason = None        # why its values come from another record
        self.epsg_method = None   # EPSG's method where the catalogue keeps its own
        self.system_notes = []    # (deviation, decision) of source and target
        self.group_method = None  # method of its group in the catalogue's order


def variant_number(name):
    match = re.search(r'\((\d+)\)$', name)
    return int(match.group(1)) if match else None


def transformation_records(epsg):
    records = {}
    for table in (epsg.helmert, epsg.other, epsg.grids):
        for code, row in table.items():
            records[code] = row
    return records


def system_names(systems):
    names = {g.name[len('GCS_'):]: g for g in systems}
    for short, full in data.TRANSFORM_SYSTEM_NAMES.items():
        names[short] = next(g for g in systems if g.name == full)
    return names


def split_transformation_name(name, names):
    if name.count('_To_') != 1:
        fail('%s: not "<source>_To_<target>"' % name)
    source, rest = name.split('_To_')
    if source not in names:
        fail('%s: unknown source %s' % (name, source))
    best = None
    for key in names:
        if (rest == key or rest.startswith(key + '_')) and (best is None or len(key) > len(best)):
            best = key
    if best is None:
        fail('%s: unknown target' % name)
    return names[source], names[best], rest[len(best) + 1:]


def catalogue_system(epsg, code, systems):
    """The catalogue's geographic CS of an EPSG geographic CRS: the same
    system, else the one system on Greenwich on the same datum."""
    for gcs in systems:
        if gcs.epsg == code:
            return gcs
    record = epsg.geogcs.get(code)
    if record is None:
        return None
    datum = int(record['datum_code'])
    found = [g for g in systems if g.datum.epsg == datum and g.meridian is None
             and g.twin_of is None and g.values_from is not None]
    return found[0] if len(found) == 1 else None


def epsg_system_codes(gcs, epsg):
    """EPSG geographic CRSs that stand for a catalogue system: the system
    itself and, on Greenwich, the other EPSG CRSs of its datum."""
    codes = {c for c in (gcs.epsg, gcs.values_from) if c is not None}
    datum = gcs.datum.epsg
    if gcs.meridian is None and gcs.twin_of is None and datum is not None:
        codes |= {c for c, r in epsg.geogcs.items() if int(r['datum_code']) == datum}
    return codes


def convert_helmert(row):
    method = HELMERT_METHODS[int(row['method_code'])]
    to_metres = TRANSLATION_TO_METRES[int(row['translation_uom_code'])]
    parameters = [(X_TRANSLATION, converted(row['tx'], to_metres)),
                  (Y_TRANSLATION, converted(row['ty'], to_metres)),
                  (Z_TRANSLATION, converted(row['tz'], to_metres))]
    if method != GEOCENTRIC_TRANSLATION:
        to_arcsec = ROTATION_TO_ARCSEC[int(row['rotation_uom_code'])]
        to_ppm = SCALE_TO_PPM[int(row['scale_difference_uom_code'])]
        parameters += [(X_ROTATION, converted(row['rx'], to_arcsec)),
                       (Y_ROTATION, converted(row['ry'], to_arcsec)),
                       (Z_ROTATION, converted(row['rz'], to_arcsec)),
                       (SCALE_DIFFERENCE, converted(row['scale_difference'], to_ppm))]
    return method, parameters


def grid_dataset(row):
    return os.path.splitext(row['grid_name'])[0]


def convert_record(row):
    """Method, parameters and dataset of an EPSG transformation record, or
    None when the library has no such method."""
    method = int(row['method_code'])
    if method in HELMERT_METHODS:
        return convert_helmert(row) + (None,)
    if method == LONGITUDE_ROTATION:
        return LONGITUDE_ROTATION, [], None
    if method == NADCON:
        dataset = grid_dataset(row)
        return (HARN if dataset.endswith('hpgn') else NADCON), [], dataset
    if method == NTV2:
        return NTV2, [], grid_dataset(row)
    return None


def match_geogtran(tran, epsg, records, pairs, harn_grids):
    name = tran.name
    if name in data.GEOGTRAN_EPSG:
        return data.GEOGTRAN_EPSG[name]
    if tran.suffix in data.HARN_GRIDS and tran.target.name == 'GCS_North_American_1983_HARN':
        grid = data.HARN_GRIDS[tran.suffix] + '.las'
        found = [c for c in harn_grids.get(grid, [])
                 if int(records[c]['source_crs_code']) in epsg_system_codes(tran.source, epsg)
                 and int(records[c]['target_crs_code']) in epsg_system_codes(tran.target, epsg)]
        if len(found) != 1:
            fail('%s: HARN grid %s gives %s' % (name, grid, found))
        return found[0]
    if tran.suffix and not tran.suffix.isdigit():
        return None
    number = int(tran.suffix) if tran.suffix else 1
    candidates = [c for s in epsg_system_codes(tran.source, epsg)
                  for t in epsg_system_codes(tran.target, epsg) for c in pairs.get((s, t), [])]
    found = [c for c in candidates if variant_number(records[c]['name']) == number]
    if not found and not tran.suffix:
        # One transformation of the pair without a number.
        found = [c for c in candidates if variant_number(records[c]['name']) is None]
    # Several records of one name: EPSG re-issued the transformation; the
    # catalogue's is the oldest.
    return min(found) if found else None


def current_record(code, records):
    """The record that replaces a deprecated one: EPSG's current record of
    the same name and target (its source may be the re-issued CRS of the
    same system, e.g. SAD69 4291 -> 4618)."""
    row = records[code]
    if row['deprecated'] != '1':
        return code
    same = [c for c, r in records.items()
            if r['name'] == row['name'] and r['deprecated'] != '1'
            and r['target_crs_code'] == row['target_crs_code']]
    return min(same) if same else code


def build_geogtran(epsg, systems, report):
    records = transformation_records(epsg)
    pairs = {}
    harn_grids = {}
    for code in sorted(records):
        row = records[code]
        pairs.setdefault((int(row['source_crs_code']), int(row['target_crs_code'])), []).append(code)
        if row.get('grid_name', '').endswith('hpgn.las'):
            harn_grids.setdefault(row['grid_name'], []).append(code)
    names = system_names(systems)
    trans = [Geogtran(name, i) for i, name in enumerate(data.GEOGTRAN_NAMES)]
    by_name = {t.name: t for t in trans}
    if len(by_name) != len(trans):
        fail('duplicate transformation name')

    for tran in trans:
        if len(tran.name) > 63:
            fail('%s: longer than 63 characters' % tran.name)
        tran.source, tran.target, tran.suffix = split_transformation_name(tran.name, names)
        if tran.name in data.GEOGTRAN_WITHOUT_EPSG:
            tran.note = data.GEOGTRAN_WITHOUT_EPSG[tran.name]
            continue
        tran.epsg = match_geogtran(tran, epsg, records, pairs, harn_grids)
        if tran.epsg is not None:
            tran.values_from = current_record(tran.epsg, records)
        if tran.name in data.GEOGTRAN_VALUES_FROM:
            tran.values_from, tran.reason = data.GEOGTRAN_VALUES_FROM[tran.name]

    # Systems on another prime meridian: the longitude rotation to the
    # same datum on Greenwich, or the Greenwich system's transformation.
    for tran in trans:
        if tran.epsg is not None or tran.note is not None:
            continue
        source = tran.source
        if source.meridian is None:
            fail('%s: no EPSG transformation found' % tran.name)
        if tran.target.datum is source.datum and tran.target.meridian is None:
            tran.method = LONGITUDE_ROTATION
            continue
        greenwich = [g for g in systems if g.datum is source.datum and g.meridian is None
                     and g.twin_of is None]
        twin_name = tran.name.replace(source.name[len('GCS_'):],
                                      greenwich[0].name[len('GCS_'):], 1)
        twin = by_name.get(twin_name)
        if twin is None:
            fail('%s: no transformation %s to follow' % (tran.name, twin_name))
        tran.via = twin

    for tran in trans:
        if tran.note is not None:
            continue
        if tran.via is not None:
            if tran.via.values_from is None:
                fail('%s: %s has no EPSG record' % (tran.name, tran.via.name))
            tran.values_from = tran.via.values_from
        if tran.values_from is not None:
            row = records[tran.values_from]
            converted = convert_record(row)
            if converted is None:
                tran.note = ('EPSG %d uses the method %s, which the library does not implement'
                             % (tran.values_from, row['method_name']))
                continue
            tran.method, tran.parameters, tran.dataset = converted
            if tran.name in data.GEOGTRAN_METHOD_KEPT:
                keep_method(tran, data.GEOGTRAN_METHOD_KEPT[tran.name])
        if tran.epsg is not None:
            check_transformation_systems(tran, records[tran.epsg], epsg, systems, report)
    return trans


def keep_method(tran, method):
    """Writes the transformation with the catalogue's equivalent method."""
    rotations = (X_ROTATION, Y_ROTATION, Z_ROTATION)
    values = dict(tran.parameters)
    if tran.method == GEOCENTRIC_TRANSLATION and method in (POSITION_VECTOR, COORDINATE_FRAME):
        values.update({code: 0.0 for code in rotations + (SCALE_DIFFERENCE,)})
    elif {tran.method, method} == {POSITION_VECTOR, COORDINATE_FRAME}:
        values.update({code: -values[code] for code in rotations})
    else:
        fail('%s: no equivalent of method %d as %d' % (tran.name, tran.method, method))
    tran.epsg_method = tran.method
    tran.method = method
    tran.parameters = sorted(values.items())


def check_transformation_systems(tran, row, epsg, systems, report):
    """Takes source and target from EPSG where the catalogue holds them."""
    for end in ('source', 'target'):
        code = int(row[end + '_crs_code'])
        named = getattr(tran, end)
        held = catalogue_system(epsg, code, systems)
        if code in epsg_system_codes(named, epsg):
            continue
        if held is None:
            tran.system_notes.append((
                '%s %s, EPSG %d %s is not in the catalogue'
                % (end, named.name, code,
                   epsg.geogcs[code]['name'] if code in epsg.geogcs else '?'),
                'system of the name kept'))
        elif held is not named:
            tran.system_notes.append((
                'name gives %s %s, EPSG %d gives %s' % (end, named.name, tran.epsg, held.name),
                'EPSG system taken'))
            setattr(tran, end, held)


def assign_geogtran_codes(trans):
    taken = set()
    for tran in trans:
        if tran.name in data.GEOGTRAN_FIXED_CODES:
            tran.code = data.GEOGTRAN_FIXED_CODES[tran.name]
        elif tran.epsg is not None and in_ranges(tran.epsg, data.EPSG_GEOGTRAN_CODE_RANGES):
            tran.code = tran.epsg
        else:
            continue
        if tran.code in taken:
            fail('%s: code %d taken twice' % (tran.name, tran.code))
        taken.add(tran.code)
    next_code = data.LIBRARY_GEOGTRAN_FIRST_CODE
    for tran in trans:
        if tran.code is None:
            while next_code in taken:
                next_code += 1
            tran.code = next_code
            taken.add(next_code)


def report_geogtran(epsg, trans, report):
    records = transformation_records(epsg)
    for tran in sorted(trans, key=lambda t: t.code):
        add = lambda what, why: report.add('geogtran', tran.code, tran.name, what, why)
        if tran.note is not None:
            add('no row (listed with the %s transformations)' % METHOD_NAMES[tran.group_method],
                tran.note)
            continue
        if tran.name in data.GEOGTRAN_EPSG:
            add('EPSG name %s' % records[tran.epsg]['name'],
                'matched by decision (named by region, grid or purpose)')
        if tran.name in data.GEOGTRAN_FIXED_CODES:
            add('EPSG code %d' % tran.epsg, 'the catalogue\'s code kept')
        elif tran.epsg is not None and tran.code != tran.epsg:
            add('EPSG %d %s' % (tran.epsg, records[tran.epsg]['name']),
                'library code: EPSG code outside the transformation ranges')
        if tran.epsg is not None and tran.values_from != tran.epsg:
            row = records[tran.values_from]
            add('values from EPSG %d %s' % (tran.values_from, row['name']),
                tran.reason or 'EPSG %d is deprecated in its favour' % tran.epsg)
        if tran.via is not None:
            add('no EPSG record; values of %s (EPSG %d)' % (tran.via.name, tran.values_from),
                'the same datum on Greenwich; the prime meridian is rotated by the pipeline')
        elif tran.epsg is None and tran.method == LONGITUDE_ROTATION:
            add('no EPSG record', 'longitude rotation to the same datum on Greenwich')
        if tran.epsg_method is not None:
            add('method %d, EPSG %d' % (tran.method, tran.epsg_method),
                'equivalent method of the catalogue kept')
        for what, why in tran.system_notes:
            add(what, why)
        if tran.values_from is not None and records[tran.values_from]['deprecated'] == '1':
            add('EPSG marks %d deprecated' % tran.values_from, 'its values kept')


def check_method_groups(trans):
    """Each row's method is that of its group in the catalogue's order."""
    if sum(n for _, n in data.GEOGTRAN_METHOD_GROUPS) != len(trans):
        fail('method groups do not cover the transformations')
    index = 0
    for method, count in data.GEOGTRAN_METHOD_GROUPS:
        for tran in trans[index:index + count]:
            tran.group_method = method
            if tran.method is not None and tran.method != method:
                fail('%s: method %d in the group of %d' % (tran.name, tran.method, method))
        index += count


# ---------------------------------------------------------------------------
# Output

def parameter_fields(parameters):
    slots = ['{%d, %s}' % (code, cpp_double(value)) for code, value in parameters]
    slots += ['{0, 0.0}'] * (7 - len(slots))
    return '{%s}' % ', '.join(slots)


def generate(epsg_dir, out_dir, docs_path):
    epsg = Epsg(epsg_dir)
    report = Report()
    units = build_units(epsg, report)
    spheroids = build_spheroids(epsg, report)
    primems = build_primems(epsg, report)
    datums = build_datums(epsg, spheroids, report)
    systems = build_geogcs(epsg, datums, primems, report)
    finish_geogcs(epsg, systems, report)
    report_datums(epsg, datums, spheroids, report)
    trans = build_geogtran(epsg, systems, report)
    assign_geogtran_codes(trans)
    check_method_groups(trans)
    report_geogtran(epsg, trans, report)

    os.makedirs(out_dir, exist_ok=True)
    written = []

    rows = sorted(units)
    check_sorted('unit', rows)
    lines = row_table('UnitRow', 'unit_rows',
                      [(str(c), cpp_string(n), cpp_double(f)) for c, n, f in rows])
    lines += macro_lines('unit_macros', macro_table('unit', [(c, n) for c, n, _ in rows]),
                         'kMacros')
    write_file(out_dir, 'units.cpp', lines, written)

    rows = sorted(spheroids)
    check_sorted('spheroid', rows)
    lines = row_table('SpheroidRow', 'spheroid_rows',
                      [(str(c), cpp_string(n), cpp_double(a), cpp_double(f))
                       for c, n, a, f in rows])
    lines += macro_lines('spheroid_macros',
                         macro_table('spheroid', [(c, n) for c, n, _, _ in rows]), 'kMacros')
    write_file(out_dir, 'spheroids.cpp', lines, written)

    rows = sorted(primems)
    check_sorted('primem', rows)
    lines = row_table('PrimemRow', 'primem_rows',
                      [(str(c), cpp_string(n), cpp_double(v)) for c, n, v in rows])
    lines += macro_lines('primem_macros',
                         macro_table('primem', [(c, n) for c, n, _ in rows]), 'kMacros')
    write_file(out_dir, 'primems.cpp', lines, written)

    all_datums = sorted(datums.values(), key=lambda d: d.code)
    rows = [(d.code, d.name, d.spheroid) for d in all_datums if d.spheroid is not None]
    check_sorted('datum', rows)
    lines = row_table('DatumRow', 'datum_rows',
                      [(str(c), cpp_string(n), str(s)) for c, n, s in rows])
    lines += macro_lines('datum_macros',
                         macro_table('datum', [(d.code, d.name) for d in all_datums]),
                         'kMacros')
    write_file(out_dir, 'datums.cpp', lines, written)

    all_systems = sorted(systems, key=lambda g: g.code)
    rows = [(g.code, g.name, g.datum.code, g.primem, g.unit) for g in all_systems
            if g.datum.spheroid is not None]
    check_sorted('geogcs', rows)
    lines = row_table('GeogcsRow', 'geogcs_rows',
                      [(str(c), cpp_string(n), str(d), str(p), str(u))
                       for c, n, d, p, u in rows])
    lines += macro_lines('geogcs_macros',
                         macro_table('geogcs', [(g.code, g.name) for g in all_systems]),
                         'kMacros')
    write_file(out_dir, 'geogcs.cpp', lines, written)

    all_trans = sorted(trans, key=lambda t: t.code)
    rows = [t for t in all_trans if t.note is None]
    check_sorted('geogtran', [(t.code,) for t in rows])
    lines = row_table('GeogtranRow', 'geogtran_rows', [
        (str(t.code), cpp_string(t.name), str(t.source.code), str(t.target.code),
         str(t.method), str(len(t.parameters)), parameter_fields(t.parameters),
         cpp_string(t.dataset) if t.dataset else 'nullptr') for t in rows])
    table = macro_table('geogtran', [(t.code, t.name) for t in all_trans])
    table = apply_macro_codes(table, {t.name: t.code for t in trans})
    table = misplace(table)
    lines += macro_lines('geogtran_macros', table, 'kMacros')
    write_file(out_dir, 'geogtran.cpp', lines, written)

    lines = macro_lines('projection_macros',
                        macro_table('projection', data.PROJECTIONS), 'kProjectionMacros')
    lines += macro_lines('method_macros', sorted(data.METHOD_MACROS), 'kMethodMacros')
    lines += macro_lines('parameter_macros',
                         macro_table('parameter', data.PARAMETERS), 'kParameterMacros')
    write_file(out_dir, 'macros.cpp', lines, written)

    if docs_path is not None:
        write_report(docs_path, report, datums, systems, trans)
    return written, report


def apply_macro_codes(table, codes):
    """Macro names that carry the code of another row."""
    by_macro = {}
    for macro, row_name in data.MACRO_OTHER_CODES.items():
        by_macro[macro] = codes[row_name]
    return [(name, by_macro.get(name, code)) for name, code in table]


def misplace(table):
    """Moves the rows the catalogue keeps out of order."""
    for name, before in data.MACRO_MISPLACED:
        row = next(r for r in table if r[0] == name)
        table.remove(row)
        table.insert(next(i for i, r in enumerate(table) if r[0] == before), row)
    return table


# ---------------------------------------------------------------------------
# Deviation tables of docs/catalogue.md

BEGIN_MARK = '<!-- BEGIN GENERATED by scripts/gen_catalogue.py -->'
END_MARK = '<!-- END GENERATED -->'
SECTIONS = [
    ('units', 'Units'),
    ('spheroids', 'Spheroids'),
    ('primems', 'Prime meridians'),
    ('datums', 'Datums'),
    ('geogcs', 'Geographic coordinate systems'),
    ('geogtran', 'Geographic transformations'),
]


def markdown_cell(text):
    return str(text).replace('|', '\\|')


def write_report(path, report, datums, systems, trans):
    lines = [BEGIN_MARK, '']
    counts = [
        ('datum rows', sum(1 for d in datums.values() if d.spheroid is not None),
         len(datums)),
        ('geographic CS rows',
         sum(1 for g in systems if g.datum.spheroid is not None), len(systems)),
        ('geographic transformation rows', sum(1 for t in trans if t.note is None),
         len(trans)),
    ]
    lines += ['| Table | Rows written | Names in the catalogue |', '|---|---|---|']
    lines += ['| %s | %d | %d |' % row for row in counts]
    lines.append('')
    for key, title in SECTIONS:
        rows = report.rows.get(key, [])
        lines += ['### %s (%d)' % (title, len(rows)), '']
        if not rows:
            lines += ['None.', '']
            continue
        lines += ['| Code | Name | Deviation | Decision |', '|---|---|---|---|']
        for code, name, what, why in sorted(rows, key=lambda r: (r[0] or 0, r[1])):
            lines.append('| %s | %s | %s | %s |' % (
                '' if code is None else code, markdown_cell(name), markdown_cell(what),
                markdown_cell(why)))
        lines.append('')
    lines.append(END_MARK)
    with open(path, encoding='utf-8') as f:
        text = f.read()
    start, end = text.find(BEGIN_MARK), text.find(END_MARK)
    if start < 0 or end < start:
        fail('%s lacks the generated-section markers' % path)
    text = text[:start] + '\n'.join(lines) + text[end + len(END_MARK):]
    with open(path, 'w', encoding='utf-8', newline='\n') as f:
        f.write(text)


def main(argv):
    parser = argparse.ArgumentParser(description=__doc__.split('\n\n')[0])
    parser.add_argument('--epsg', default=os.path.join(ROOT, '..', 'shared', 'epsg'),
                        help='directory of the EPSG CSV records')
    parser.add_argument('--out', default=os.path.join(ROOT, 'src', 'catalogue', 'generated'),
                        help='directory of the generated C++ files')
    parser.add_argument('--docs', default=os.path.join(ROOT, 'docs', 'catalogue.md'),
                        help='document whose generated section is rewritten')
    parser.add_argument('--no-docs', action='store_true',
                        help='write the C++ files only')
    args = parser.parse_args(argv)
    try:
        written, _ = generate(args.epsg, args.out, None if args.no_docs else args.docs)
    except CatalogueError as error:
        print('gen_catalogue: %s' % error, file=sys.stderr)
        return 1
    for path in written:
        print(os.path.relpath(path))
    return 0


if __name__ == '__main__':
    sys.exit(main(sys.argv[1:]))
