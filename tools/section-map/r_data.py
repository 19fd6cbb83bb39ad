"""Reads data sets out of an installed R package: enough of R's serialisation for tables of polygons."""

import gzip
import lzma
import struct

CHARACTER_STRING, NIL_VALUE, REFERENCE = 9, 254, 255
SYMBOL, PAIR_LIST, LANGUAGE, LOGICAL, INTEGER, REAL, STRING, LIST, S4 = 1, 2, 6, 10, 13, 14, 16, 19, 25
NAMESPACE, GLOBAL, EMPTY, BASE_NAMESPACE, BASE = 249, 253, 242, 247, 241


class Value(list):
    """A vector or list of R with its attributes; an S4 object has attributes alone."""

    def __init__(self, items=(), attributes=None):
        super().__init__(items)
        self.attributes = attributes or {}

    def column(self, name):
        return self[self.attributes["names"].index(name)]


class Reader:
    """One serialised value in R's XDR form."""

    def __init__(self, data):
        assert data[:2] == b"X\n", "not R's XDR form"
        self.data, self.at, self.references = data, 2, []
        version = self.integer()
        self.at += 8  # the versions of R that wrote it and that can read it
        if version == 3:
            encoding = self.integer()
            self.at += encoding

    def take(self, form):
        values = struct.unpack_from(">" + form, self.data, self.at)
        self.at += struct.calcsize(">" + form)
        return values

    def integer(self):
        return self.take("i")[0]

    def remember(self, value):
        self.references.append(value)
        return value

    def attributes(self):
        return self.pairs(self.value())

    @staticmethod
    def pairs(value):
        return dict(value) if value else {}

    def value(self):
        flags = self.integer()
        kind, has_attributes, has_tag = flags & 255, flags & 512, flags & 1024
        if kind in (NIL_VALUE, GLOBAL, EMPTY, BASE, BASE_NAMESPACE):
            return None
        if kind == REFERENCE:
            return self.references[(flags >> 8 or self.integer()) - 1]
        if kind == SYMBOL:
            return self.remember(self.value())
        if kind == NAMESPACE:
            assert self.integer() == 0
            return self.remember([self.value() for _ in range(self.integer())])
        if kind == CHARACTER_STRING:
            length = self.integer()
            coding = "utf-8" if flags >> 12 & 8 else "latin-1"
            return None if length < 0 else self.take(f"{length}s")[0].decode(coding)
        if kind in (PAIR_LIST, LANGUAGE):
            return self.pair_list(has_attributes, has_tag)
        if kind == S4:
            return Value(attributes=self.attributes())
        return self.vector(kind, has_attributes)

    def pair_list(self, has_attributes, has_tag):
        if has_attributes:
            self.value()
        tag = self.value() if has_tag else None
        first = self.value()
        return [(tag, first)] + (self.value() or [])

    def vector(self, kind, has_attributes):
        length = self.integer()
        if kind in (LOGICAL, INTEGER):
            items = self.take(f"{length}i")
        elif kind == REAL:
            items = self.take(f"{length}d")
        elif kind in (STRING, LIST):
            items = [self.value() for _ in range(length)]
        else:
            raise ValueError(f"no reader for R type {kind}")
        return Value(items, self.attributes() if has_attributes else None)


def data_set(index, store, name):
    """A data set of a package, by the bytes of its Rdata.rdx and Rdata.rdb."""
    offset, length = Reader(gzip.decompress(index)).value().column("variables").column(name)
    packed = store[offset : offset + length]
    assert packed[4:5] == b"Z", "the data set is packed otherwise than by LZMA"
    filters = [{"id": lzma.FILTER_LZMA2, "preset": 6 | lzma.PRESET_EXTREME}]
    return Reader(lzma.decompress(packed[5:], lzma.FORMAT_RAW, filters=filters)).value()
