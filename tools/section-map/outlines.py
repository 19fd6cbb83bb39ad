"""The outlines that the map is made from, as rings of points. A point is a pair of whole numbers: longitude and latitude
in millionths of a degree, so that neighbours can be found to share it."""

import collections
import hashlib
import io
import json
import tarfile

import r_data

POSTAL = {
    "01": "AL", "02": "AK", "04": "AZ", "05": "AR", "06": "CA", "08": "CO", "09": "CT", "10": "DE", "11": "DC", "12": "FL",
    "13": "GA", "15": "HI", "16": "ID", "17": "IL", "18": "IN", "19": "IA", "20": "KS", "21": "KY", "22": "LA", "23": "ME",
    "24": "MD", "25": "MA", "26": "MI", "27": "MN", "28": "MS", "29": "MO", "30": "MT", "31": "NE", "32": "NV", "33": "NH",
    "34": "NJ", "35": "NM", "36": "NY", "37": "NC", "38": "ND", "39": "OH", "40": "OK", "41": "OR", "42": "PA", "44": "RI",
    "45": "SC", "46": "SD", "47": "TN", "48": "TX", "49": "UT", "50": "VT", "51": "VA", "53": "WA", "54": "WV", "55": "WI",
    "56": "WY", "72": "PR", "78": "VI",
}

PACKAGES = {
    "us-atlas-3.0.1.tgz": "e6daba1800885868303ad3549da62f85a557b8142bb72629ec15651de62f9c5d",
    "r-cran-rnaturalearthdata_0.1.0-2_all.deb": "6ca72d813feb50170c4a985c4960a975cea0bd6459d78ff82d41c4bf359f0d93",
}

Place = collections.namedtuple("Place", "name country rings")


def packed(path):
    """The bytes of a package, if they are those that the map is made from."""
    data = path.read_bytes()
    told = hashlib.sha256(data).hexdigest()
    if told != PACKAGES[path.name]:
        raise SystemExit(f"{path}: not the package that the map is made from ({told})")
    return data


def point(longitude, latitude):
    if longitude > 170:  # the far end of the Aleutians, beyond the line of dates
        longitude -= 360
    return (round(longitude * 1e6), round(latitude * 1e6))


def counties(folder):
    """(postal code, county, rings) for each county. Two counties follow their common border in opposite ways."""
    with tarfile.open(fileobj=io.BytesIO(packed(folder / "us-atlas-3.0.1.tgz"))) as package:
        topology = json.load(package.extractfile("package/counties-10m.json"))
    scale, translate = topology["transform"]["scale"], topology["transform"]["translate"]

    def arc(deltas):
        x = y = 0
        points = []
        for dx, dy in deltas:
            x, y = x + dx, y + dy
            points.append(point(x * scale[0] + translate[0], y * scale[1] + translate[1]))
        return points

    arcs = [arc(deltas) for deltas in topology["arcs"]]

    def ring(numbers):
        points = []
        for number in numbers:
            points += (arcs[number] if number >= 0 else arcs[~number][::-1])[:-1]
        return points

    for geometry in topology["objects"]["counties"]["geometries"]:
        postal = POSTAL.get(geometry["id"][:2])
        if not postal or geometry["type"] is None:
            continue
        polygons = geometry["arcs"] if geometry["type"] == "MultiPolygon" else [geometry["arcs"]]
        yield postal, geometry["properties"]["name"], [ring(r) for polygon in polygons for r in polygon]


def deb_member(data, name):
    """A file of a Debian package."""
    at = 8
    while at < len(data):
        member, size = data[at : at + 16].decode().strip(), int(data[at + 48 : at + 58])
        if member.startswith("data.tar"):
            with tarfile.open(fileobj=io.BytesIO(data[at + 60 : at + 60 + size])) as package:
                return package.extractfile(name).read()
        at += 60 + size + size % 2
    raise SystemExit("the package holds no data")


class NaturalEarth:
    """The borders of countries and of their provinces, as Debian packs them."""

    def __init__(self, folder):
        package = packed(folder / "r-cran-rnaturalearthdata_0.1.0-2_all.deb")
        home = "./usr/lib/R/site-library/rnaturalearthdata/data/Rdata"
        self.index, self.store = deb_member(package, home + ".rdx"), deb_member(package, home + ".rdb")

    def places(self, data_set):
        table = r_data.data_set(self.index, self.store, data_set)
        columns = table.attributes["data"]
        for name, country, polygons in zip(columns.column("name"), columns.column("admin"), table.attributes["polygons"]):
            rings = []
            for polygon in polygons.attributes["Polygons"]:
                flat = polygon.attributes["coords"]
                count = len(flat) // 2
                rings.append([point(flat[i], flat[i + count]) for i in range(count - 1)])
            yield Place(name, country, rings)
