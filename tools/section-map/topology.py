"""Rings that share borders: dissolved, joined, parted and simplified so that neighbours keep the very same border."""

import collections
import heapq
import math


def area(ring):
    """Twice the signed area."""
    return sum(ring[i - 1][0] * ring[i][1] - ring[i][0] * ring[i - 1][1] for i in range(len(ring)))


def edges(ring):
    return ((ring[i - 1], ring[i]) for i in range(len(ring)))


def holds(ring, point):
    x, y = point
    inside = False
    for (x1, y1), (x2, y2) in edges(ring):
        if (y1 > y) != (y2 > y) and x < (x2 - x1) * (y - y1) / (y2 - y1) + x1:
            inside = not inside
    return inside


def length(points):
    return sum(math.dist(a, b) for a, b in zip(points, points[1:]))


def dissolve(rings):
    """The rings around what the given rings cover together."""
    remaining = collections.Counter()
    for ring in rings:
        for a, b in edges(ring):
            if a == b:
                continue
            if remaining[b, a] > 0:
                remaining[b, a] -= 1
            else:
                remaining[a, b] += 1
    following = collections.defaultdict(list)
    for (a, b), count in remaining.items():
        following[a] += [b] * count
    dissolved = []
    for start in list(following):
        while following[start]:
            ring, at = [], start
            where = {}
            while following[at]:
                if at in where:  # a loop that touches itself: part it here
                    dissolved.append(ring[where[at] :])
                    for gone in ring[where[at] :]:
                        del where[gone]
                    ring = ring[: len(ring) - len(dissolved[-1])]
                where[at] = len(ring)
                ring.append(at)
                at = following[at].pop()
            if at in where:
                dissolved.append(ring[where[at] :])
    return [ring for ring in dissolved if len(ring) > 2 and area(ring)]


class Shore:
    """Rings that a coarser border is moved to."""

    def __init__(self, rings):
        self.rings = rings
        self.cells = collections.defaultdict(list)
        for number, ring in enumerate(rings):
            for at, p in enumerate(ring):
                self.cells[p[0] // 500_000, p[1] // 500_000].append((number, at))

    def nearest(self, p, ring=None):
        cell = (p[0] // 500_000, p[1] // 500_000)
        near = [
            found
            for dx in range(-3, 4)
            for dy in range(-2, 3)
            for found in self.cells.get((cell[0] + dx, cell[1] + dy), ())
            if ring is None or found[0] == ring
        ]
        return min(near, key=lambda found: math.dist(self.rings[found[0]][found[1]], p), default=None)

    def path(self, run):
        """The way along one ring from the point nearest the run's first to the one nearest its last."""
        first = self.nearest(run[0])
        last = first and self.nearest(run[-1], first[0])
        if not last:
            return run
        ring, a, b = self.rings[first[0]], first[1], last[1]
        forward = ring[a : b + 1] if a <= b else ring[a:] + ring[: b + 1]
        backward = (ring[b : a + 1] if b <= a else ring[b:] + ring[: a + 1])[::-1]
        told = length(run)
        return min(forward, backward, key=lambda way: abs(length(way) - told))


def on_shore(ring, shared, shore, reach):
    """The ring with every run of shared points replaced by the way along the shore. What follows a run closer to the shore
    than the reach is counted in: a river that the one outline has as a line and the other as water."""
    is_shared = [p in shared for p in ring]
    for way in (1, -1):
        for i in range(len(ring))[::way]:
            if is_shared[i - way if 0 <= i - way < len(ring) else i] and not is_shared[i]:
                is_shared[i] = math.dist(shore_point(ring[i], shore), ring[i]) < reach
    if not any(is_shared) or all(is_shared):
        return ring
    start = next(i for i in range(len(ring)) if is_shared[i] and not is_shared[i - 1])
    ring, is_shared = ring[start:] + ring[:start], is_shared[start:] + is_shared[:start]
    moved, at = [], 0
    while at < len(ring):
        if not is_shared[at]:
            moved.append(ring[at])
            at += 1
            continue
        end = at
        while end + 1 < len(ring) and is_shared[end + 1]:
            end += 1
        moved += shore.path(ring[at : end + 1]) if end > at else [shore_point(ring[at], shore)]
        at = end + 1
    return [p for i, p in enumerate(moved) if p != moved[i - 1]]


def shore_point(p, shore):
    found = shore.nearest(p)
    return shore.rings[found[0]][found[1]] if found else p


def split(polygons, line):
    """The polygons, one of them parted by the line from border to border."""
    ends = line[0], line[-1]

    def nearest(ring):
        return [min(range(len(ring)), key=lambda i: math.dist(ring[i], end)) for end in ends]

    def gap(ring):
        return sum(math.dist(ring[i], end) for i, end in zip(nearest(ring), ends))

    number = min(range(len(polygons)), key=lambda n: gap(polygons[n]))
    ring = polygons[number]
    first, last = nearest(ring)
    cut = [ring[first]] + line[1:-1] + [ring[last]]
    forward = ring[first : last + 1] if first <= last else ring[first:] + ring[: last + 1]
    backward = ring[last : first + 1] if last <= first else ring[last:] + ring[: first + 1]
    parts = [forward + cut[-2:0:-1], backward + cut[1:-1]]
    return polygons[:number] + parts + polygons[number + 1 :]


def densified(ring, step):
    """The ring with points added to edges longer than the step; two neighbours get the same points."""
    dense = []
    for a, b in edges(ring):
        dense.append(a)
        low, high = min(a, b), max(a, b)
        count = int(math.dist(a, b) / step)
        added = [tuple(round(low[k] + (high[k] - low[k]) * i / (count + 1)) for k in (0, 1)) for i in range(1, count + 1)]
        dense += added if low == a else added[::-1]
    return dense


def simplified(points, tolerance):
    """An open line without the points whose triangle with their neighbours is smaller than the tolerance."""
    count = len(points)
    before, after = list(range(-1, count - 1)), list(range(1, count + 1))

    def triangle(i):
        (ax, ay), (bx, by), (cx, cy) = points[before[i]], points[i], points[after[i]]
        return abs((bx - ax) * (cy - ay) - (cx - ax) * (by - ay)) / 2

    sizes = {i: triangle(i) for i in range(1, count - 1)}
    heap = [(size, i) for i, size in sizes.items()]
    heapq.heapify(heap)
    while heap:
        size, i = heapq.heappop(heap)
        if sizes.get(i) != size:
            continue
        if size >= tolerance:
            break
        del sizes[i]
        after[before[i]], before[after[i]] = after[i], before[i]
        for j in (before[i], after[i]):
            if j in sizes:
                sizes[j] = max(size, triangle(j))
                heapq.heappush(heap, (sizes[j], j))
    return [points[i] for i in range(count) if i in (0, count - 1) or i in sizes]


class Arcs:
    """Rings cut where borders meet, so that a border that two rings share is simplified once."""

    def __init__(self, rings):
        neighbours = collections.defaultdict(set)
        for ring in rings:
            for a, b in edges(ring):
                neighbours[a].add(b)
                neighbours[b].add(a)
        self.meets = {p for p, near in neighbours.items() if len(near) > 2}

    def cut(self, ring):
        """The arcs of a ring, each as (canonical points, reversed)."""
        starts = [i for i, p in enumerate(ring) if p in self.meets]
        if not starts:
            first = ring.index(min(ring))
            ring = ring[first:] + ring[:first]
            line = tuple(ring + ring[:1])
            turned = line[::-1]
            return [(line, False) if line <= turned else (turned, True)]
        ring = ring[starts[0] :] + ring[: starts[0]]
        starts = [i - starts[0] for i in starts] + [len(ring)]
        closed = ring + ring[:1]
        arcs = []
        for a, b in zip(starts, starts[1:]):
            line = tuple(closed[a : b + 1])
            turned = line[::-1]
            arcs.append((line, False) if line <= turned else (turned, True))
        return arcs


def simplify_together(rings, project, tolerance):
    """The rings projected, simplified border by border and rounded to whole units."""
    cutter = Arcs(rings)
    done = {}

    def line(points):
        if points not in done:
            lean = simplified([project(p) for p in points], tolerance)
            whole = [(round(x), round(y)) for x, y in lean]
            done[points] = [p for i, p in enumerate(whole) if i == 0 or p != whole[i - 1]]
        return done[points]

    result = []
    for ring in rings:
        whole = []
        for points, is_reversed in cutter.cut(ring):
            lean = line(points)
            whole += (lean[::-1] if is_reversed else lean)[:-1]
        result.append(without_spikes(whole))
    return result


def without_spikes(ring):
    """The ring without points that it returns from the way it came."""
    lean = []
    for p in ring:
        if lean and lean[-1] == p:
            continue
        lean.append(p)
        while len(lean) > 2 and lean[-1] == lean[-3]:
            del lean[-2:]
    while len(lean) > 1 and lean[0] == lean[-1]:
        lean.pop()
    return lean


def clipped(ring, box):
    """The ring within a box (left, top, right, bottom)."""
    for axis, bound, sign in ((0, box[0], 1), (1, box[1], 1), (0, box[2], -1), (1, box[3], -1)):
        kept = []
        for a, b in edges(ring):
            a_in, b_in = sign * (a[axis] - bound) >= 0, sign * (b[axis] - bound) >= 0
            if a_in != b_in:
                at = (bound - a[axis]) / (b[axis] - a[axis])
                kept.append(tuple(round(a[k] + at * (b[k] - a[k])) for k in (0, 1)))
            if b_in:
                kept.append(b)
        ring = kept
        if not ring:
            break
    return without_spikes(ring)
