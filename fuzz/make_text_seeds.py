#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Writes the seeds of the targets whose inputs are texts, or numbers that a target makes something of, into corpus/.
The seeds are kept in the repository; run this after a change of a form. What an input is stands at the top of its
target."""
import math
import random
import struct

from make_seeds import NO_ALIAS, block, code, field, save

SKY_TABLES = ["stars", "deepsky", "ngc_ic", "constellations", "constellation_lines", "constellation_bounds", "nebula_outlines",
              "asteroids", "comets", "names", "asterisms", "asterism_lines", "double_stars", "cities", "moon_features"]
TABLES = {
    "stars": "Number:i32 RA:f64 Dec:f64 VisMagnitude:f32 ColorIndexBV:f32 SpectrType:text ProperName:text Bayer:text "
             "HipparcosID:i32 PairAngle:f32 VarName:text HasPlanets:i32\n"
             "2491 1.7678 -0.2918 -1.46 0 A1Vm Sirius α_CMa 32349 1.2  \n1 0.1 0.2 6.7\n",
    "deepsky": "Type:text Number:i32 RA:f64 Dec:f64 VisMagnitude:f32 LargestDimension:f32 SmallestDimension:f32 "
               "MessierNumber:i32 NGC_ICnumber:text ProperName:text\n"
               "nebu 42 1.4640 -0.0951 4.0 0.0247 0.0175 42 NGC_1976 Great_Orion_Nebula\n",
    "ngc_ic": "Type:text Number:i32 RA:f64 Dec:f64 VisMagnitude:f32 LargestDimension:f32 SmallestDimension:f32 "
              "PositionAngle:f32 MessierNumber:i32 NGC_ICnumber:text ProperName:text OtherNames:text\n"
              "gala 7000 5.4 0.76 4 0.03 0.02 1.5  NGC_7000 North_America C_20;LBN_373\nnebu 42 1.46 -0.09     42 NGC_1976\n",
    "constellations": "Label:text ProperName:text EnglishName:text RA:f64 Dec:f64\nOri Orion Hunter 1.45 0.07\n",
    "constellation_lines": "Label:text Number:i32 RA:f64 Dec:f64\nOri 0 1.5497 0.1293\nOri 0 1.4871 -0.0339\n"
                           "Ori 1 1.3724 -0.1431\nOri 1 1.4 -0.2\n",
    "constellation_bounds": "Label:text OtherLabel:text RA:f64 Dec:f64 EndRA:f64 EndDec:f64\nOri Tau 1.2 0.1 1.5 0.1\n"
                            "Ori Tau 1.5 0.1 1.5 0.3\n",
    "nebula_outlines": "Object:text Type:text Number:i32 Level:i32 Contour:i32 RA:f32 Dec:f32\n"
                       "M_42 nebu 42 1 0 1.46 -0.09\nM_42 nebu 42 1 0 1.47 -0.09\nM_42 nebu 42 1 0 1.47 -0.1\n",
    "asteroids": "Number:i32 ProperName:text JulianDate:f64 a:f64 e:f64 i:f64 om:f64 w:f64 M0:f64 n:f64 Hy:f32 SlopeParam:f32 "
                 "Diameter:f32\n1 Ceres 2460600.5 2.766 0.079 0.185 1.4 1.28 2.6 0.00374 3.34 0.12 939\n",
    "comets": "Number:i32 ProperName:text JulianDate:f64 a:f64 e:f64 i:f64 om:f64 w:f64 M0:f64 n:f64 Hy:f32 y:f32\n"
              "1 1P/Halley 2449400.5 17.83 0.967 2.83 1.02 1.94 0.67 0.00023 4 8\n1001 C/X 2459034.1 0.29 1 2.2 1 0.6 0 0.07 7 10\n",
    "names": "Object:text Language:text ProperName:text\nHIP_32349 de Hundsstern\nM_31 de Andromedanebel\ncnst_Ori de Jäger\n"
             "astm_Belt en Belt\nplnt_2 de Abendstern\n",
    "asterisms": "Key:text ProperName:text Priority:i32\nBelt Orion's_Belt 1\n",
    "asterism_lines": "Key:text Number:i32 RA:f64 Dec:f64\nBelt 0 1.44 -0.005\nBelt 0 1.46 -0.02\n",
    "double_stars": "BrightStarID:i32 HipparcosID:i32 Discoverer:text Pair:text Magnitude1:f32 Magnitude2:f32 Separation:f64 "
                    "PairAngle:f64\n2491 32349 AGC_1 AB -1.46 8.5 0.00005 1.1\n",
    "cities": "ProperName:text OtherNames:text Country:text CountryName:text Latitude:f64 Longitude:f64 Height:f32 "
              "Population:i32 Zone:text\nSydney Sidney;Сидней AU Australia -0.59 2.64 58 4627345 Australia/Sydney\n"
              "São_Paulo  BR Brazil -0.41 -0.81 769 10021295 America/Sao_Paulo\n",
    "moon_features": "ProperName:text Type:text Latitude:f64 Longitude:f64 Diameter:f32\nTycho Crater -0.755727 -0.195826 "
                     "85.294\n",
}
TLE = ("ISS (ZARYA)\n1 25544U 98067A   14020.93268519  .00009878  00000-0  18200-3 0  5082\n"
       "2 25544  51.6498 109.4756 0003572  55.9686 274.8005 15.49815350868473\n")
DATA_FILES = ["stars", "cities", "comets", "nebula_outlines", "tle", "planets", "times", "favourites", "chosen",
              "moon_features", "flights", "images", "dso_images", "panoramas", "years", "settings", "strings", "homes", "note"]


def table(text):
    """Blanks become tabs and "_" in a name a blank."""
    return "".join("\t".join(cell.replace("_", " ") if ":" not in cell else cell for cell in line.split(" ")) + "\n"
                   for line in text.splitlines())


def wide(text):
    """The same columns as real numbers: larger values than the reader's integers."""
    return text.replace(":i32", ":f64").replace("2491", "1e300").replace(" 1 ", " -1e300 ").replace("4627345", "3e9")


def texts(target, **seeds):
    for name, text in seeds.items():
        save(target, name, text if isinstance(text, bytes) else text.encode())


def sky_seeds():
    for index, name in enumerate(SKY_TABLES):
        save("sky_catalogs", name, bytes([index]) + table(TABLES[name]).encode())
        if ":i32" in TABLES[name]:
            save("sky_catalogs", name + "_wide", bytes([index]) + table(wide(TABLES[name])).encode())
    texts("catalog_table", empty="", header="A:i8\tB:u8\tC:i16\tD:u16\tE:i32\tF:u32\tG:f32\tH:f64\tT:text\n",
          numbers="A:i8\tB:u8\tH:f64\n-128\t255\t1e300\n128\t0\t0\n\t\t-0.5\n1\n", no_header="# nothing\n\n",
          mark="\ufeffA:i8\tT:text\r\n1\tone\r\n2\ttwo", cut="A:i8\tT:text\n1\tone\n2", stars=table(TABLES["stars"]))


def data_file_seeds():
    contents = {**{name: table(text) for name, text in TABLES.items()}, "tle": TLE,
                "planets": "plnt\t2\tVenus\t0\nplnt\t5\tJupiter\t0\nmoon\t501\tIo\t0\n", "times": "comt 1 1986 2 9\n",
                "favourites": "star 2491\nplnt 5\n", "chosen": "star 2491\n", "flights": "gala 31\n",
                "dso_images": "M42.jpg\t42\t83.8\t-5.4\t10\t1\n", "panoramas": "plnt 3 1 a.svg 0\n",
                "years": "-4712\tfirst\n9999\tlast\n", "strings": "0\tunknown\\n\n30\tEmission nebula\n6101\tPER\t46\t58\n",
                "homes": "[1]\nlat=0.5\n", "note": "words\n", "images": struct.pack("<HI8f", 1, 1, *[0.5] * 8),
                "settings": b"SREV" + bytes(4)}
    for index, name in enumerate(DATA_FILES):
        content = contents[name]
        save("data_files", name, bytes([index]) + (content if isinstance(content, bytes) else content.encode()))


def session_seeds():
    head = "skyview session 1\nlanguage en\nsize 1600x1000\n"
    view = "view m_JT=2461056\nview m_alp=2.923426497090502\n"
    texts("session", least=head + view + "end 0\n", empty="", cut=head,
          whole=head + "zone Europe/Berlin\nplace Frankfurt\n" + view + "set grid.Compass=0\nfavourite star 2491\n"
          "marker 88.785,7.407,1\ntle a.tle\norbits planets,Ceres\nmark star 2491\nframes-of constellations\nshowers on\n"
          "sky none\nstyle print\nlandscape 2\nlegend off\npage A4,landscape\nbortle 4\ntelrad on\neyepiece 1.5\n"
          "sensor 23.5x15.6@800@30\ndata 293bc920c21a2756 filters.data\nend 0\n",
          limit=head + view + "limit-magnitude 4.5\neyepiece 1\neyepiece 2\nend 0\n")
    texts("scene_texts", setting="\x00star.Draw=0", section="\x00star:off", find="\x01Sirius", suggest="\x02s",
          style="\x03style=print", sensor="\x03sensor=23.5x15.6@800", orbits="\x03orbits=planets,1 Ceres", place="\x03place=Here",
          session="\x04" + head + view + "end 0\n", favourites="\x05star 2491\nplnt 5\n", events="\x06phases,opposition",
          cities="\x07syd,au", language="\x08de", unknown="\x08xx", zone="\x09Europe/Berlin")
    texts("setting_changes", values="star.Draw=0\nstar.VisMagnitude=1,2,3\nstar.VisMagnitude[1]=7\ngrid.Step=2deg\n",
          switches="star:off\nstar.Draw:off\ngrid.Colour=4294967295:on\n", bad="star.Draw=256\nstar\ngrid.@12=1\nx=1\n",
          reals="grid.Range=1e308,-0\nstar.Opacity=0.1\ngrid.Step=1e400\n")


def option_seeds():
    values = ["23.5x15.6@800@30", "A4,landscape", "83.8,-5.4,7", "5.59h,-5.4", "planets,moons,Ceres", "print", "1.5", "9",
              "none", "on", "constellations,deepsky", "Algol", "0x48780B23", "1600x1000"]
    for index, value in enumerate(values):
        save("chart_values", f"value_{index}", value.encode())
    lines = ["views:orion.data:2", "52.52,13.405", "180,30", "M31@8", "498,466", "tonight", "2026-01-15T22:00:30.5+01:00",
             "-9999-01-01", "2027-03..2027-05", "2027", "3,keep", "time=10m,view=1,view=-0.5", "sky-%03d.png", "a.svg",
             "--place\n52.52,13.4\n--time\n2026-01-15\nM31", "--marker=1,2\n--marker=3,4\n--telrad\n--page\nA4\n--\n-x",
             "--help", "--zoom\n2\n--fov\n3\nx", "--out\na.png\n--out\nb.svg\n--eyepiece\n1\nx"]
    for index, line in enumerate(lines):
        save("option_values", f"value_{index}", line.encode())
    for index, text in enumerate(["0", "-2147483648", "2147483648", "1e308", "4.9e-324", "2.2250738585072011e-308", ".5", "5.",
                                  "1e", "0x10", "+-1", "nan", "3.40282357e38", "FFFFFFFF", "1.17549435e-38x"]):
        save("numbers", f"number_{index}", text.encode())
    texts("encodings", ascii="plain", western="é\u20ac", cyrillic="Сидней", greek="αβγ", bad=b"\xc0\x80\xed\xa0\x80\xf5",
          json='a"b\\c\x01\u2028', page=b"\x81\x8d\x98\xff")


def file_seeds():
    head = '<svg viewBox="0 0 360 80">'
    texts("landscape", hills=head + '<polygon fill="#102030" points="0,80 0,50 90,50 180,40 270,50 360,50 360,80"/></svg>',
          two=head + '<polygon fill="#000000" points="0,58 360,58"/>\n<polygon fill="#ffffff" points="0,54 180,62 360,54"/></svg>',
          comment='<?xml version="1.0"?><!-- a --><svg viewBox="0 0 10 10"/>', empty="", wide=head.replace("360", "1e9"))
    texts("satellites", station=TLE, unnamed=TLE[12:], twice=TLE + TLE, comment="# x\n\n0 " + TLE.replace("\n", "\r\n"),
          damaged=TLE.replace("51.6498", "91.6498"), empty="")
    texts("settings_text", example="header 1\n[block FLTR defaults]\n[section star]\nDraw = u8 1\n",
          types="[block 1 2]\n[section plnt alias=moon status=0]\nA = i8 -1,2 | compare=1 condition=5\nB = f64 2deg\n"
                "@12 = type200 | size=3 tail=0A0B\nC = f32 0x7FC00001\nC = u16 3 | again\n",
          template="header none\n[template t]\n[section camr]\nX = i32 star\n[block FLTR 1 : t]\n[section camr]\nX = i32 7\n",
          twice="[block a 1]\n[block a 1 again]\n")
    texts("strings_tool", small="A comment\n0\tunknown\\n\n30\tEmission nebula\n40830\tDD.MM.YYYY\n",
          formats="7200\t%d of %5.2f %s\n14000\tABC\n6101\tPER\t46\t58\n", twice="30\tOne\n30\tTwo\n", cyrillic="30\tТуманность\n",
          stray="30\n\t\n30 x\ty\n", bad=b"30\t\xff\xfe\n")
    texts("star_import", table="RA\tDec\tMagnitude\tB-V\tpmRA\tpmDec\tEpoch\tNumber\n10.5\t-3\t9.5\t0.5\t1\t-2\t2015.5\t7\n",
          commas='# x\nra_deg,dec_deg,"vmag"\n1,2,3\n"4",5,6\n', bad="RA,Dec,Mag\n400,0,1\n", twice="RA,Dec,Mag,Number\n1,1,1,1\n2,2,2,1\n",
          fits=fits([(88.8, 7.4, 0.5), (0.0, 0.0, 9.0)]), fits_cut=fits([(1, 2, 3)])[:9000])


def fits(stars):
    """As tests/skydata/stars/fits_index.h has them."""
    def header(*cards):
        text = "".join(card.ljust(80) for card in cards) + "END"
        return text.ljust(-(-len(text) // 2880) * 2880).encode()

    def column(name, size, rows, data):
        return header("XTENSION= 'BINTABLE'", "BITPIX  = 8", "NAXIS   = 2", f"NAXIS1  = {size}", f"NAXIS2  = {rows}", "PCOUNT  = 0",
                      "GCOUNT  = 1", "TFIELDS = 1", f"TTYPE1  = '{name}'") + data.ljust(-(-len(data) // 2880) * 2880, b"\0")
    scale, places, magnitudes = 2147483647.5, b"", b""
    for ra, dec, magnitude in stars:
        a, d = math.radians(ra), math.radians(dec)
        places += struct.pack("<3I", *(int((x + 1) * scale) for x in (math.cos(d) * math.cos(a), math.cos(d) * math.sin(a),
                                                                      math.sin(d))))
        magnitudes += struct.pack(">f", magnitude)
    return (header("SIMPLE  = T", "BITPIX  = 8", "NAXIS   = 0", "EXTEND  = T", "ENDIAN  = '04:03:02:01'")
            + column("kdtree_range_stars", 8, 7, struct.pack("<7d", -1, -1, -1, 1, 1, 1, scale))
            + column("kdtree_data_stars", 12, len(stars), places) + column("MAG_VT", 4, len(stars), magnitudes))


def number_seeds():
    """For targets that make their inputs of numbers: any, of a fixed seed."""
    generator = random.Random(7)
    for target, sizes in {"clipping": [40, 40, 40, 60], "frame_stars": [60, 600, 900], "settings_merge": [200, 800, 1600],
                          "zone_clocks": [60, 120, 240]}.items():
        for index, size in enumerate(sizes):
            save(target, f"numbers_{index}", bytes([index]) + generator.randbytes(size))


def view_seeds():
    """docs/formats/camera_record.md."""
    records = [field("camr", "m_JT", 4, [2461056], status=0), field("camr", "m_TJ", 7, [0.416], status=0),
               field("camr", "m_Zoom", 7, [0.68], status=0), field("camr", "m_fi", 7, [0.874], status=0),
               field("camr", "m_lam", 7, [0.152], status=0), field("camr", "m_alp", 7, [2.92], status=0),
               field("camr", "m_bet", 7, [0.384], status=0), field("camr", "m_BasePlane", 1, [1], status=0),
               field("camr", "m_ObsObjType", 5, [code("plnt")], status=0), field("camr", "m_ObsObjID", 4, [3], status=0),
               field("camr", "DateFrom", 2, [2026, 3, 29, 2, 0], status=0), field("camr", "TimeZone", 6, [1.0], status=0)]
    sections = [("camr", NO_ALIAS, 0, len(records) - 1, 1)]
    header = b"SREV" + struct.pack("<I", 1)
    view = header + block(struct.pack("<II", code("CAMR"), 1), sections, records)
    texts("saved_view", empty="", view=view, cut=view[:200],
          own=header + block(struct.pack("<II", code("CAMR"), code("CAMR")), sections, records),
          zoom=view.replace(struct.pack("<d", 0.68), struct.pack("<d", math.nan)))


if __name__ == "__main__":
    sky_seeds()
    data_file_seeds()
    session_seeds()
    option_seeds()
    file_seeds()
    number_seeds()
    view_seeds()
