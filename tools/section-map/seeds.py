"""Finds the point of a ring where a text of two or three letters has most room."""

import heapq
import math

import topology

FLATNESS = 1.7  # a text is so much wider than high


def room(ring, point):
    """How far the border is, in units, text being wide counted in; negative outside of the ring."""
    x, y = point[0] / FLATNESS, point[1]
    nearest = math.inf
    for (ax, ay), (bx, by) in topology.edges(ring):
        ax, bx = ax / FLATNESS, bx / FLATNESS
        dx, dy = bx - ax, by - ay
        long = dx * dx + dy * dy
        at = max(0.0, min(1.0, ((x - ax) * dx + (y - ay) * dy) / long)) if long else 0.0
        nearest = min(nearest, (ax + at * dx - x) ** 2 + (ay + at * dy - y) ** 2)
    return math.sqrt(nearest) * (1 if topology.holds(ring, point) else -1)


def seed(ring):
    """The point, in whole units, and its room."""
    left, right = min(x for x, _ in ring), max(x for x, _ in ring)
    top, bottom = min(y for _, y in ring), max(y for _, y in ring)
    step = max(4, min((right - left) / FLATNESS, bottom - top) / 4)
    cells, best = [], (-math.inf, None)

    def add(x, y, half):
        nonlocal best
        centre = (round(x), round(y))
        found = room(ring, centre)
        best = max(best, (found, centre))
        heapq.heappush(cells, (-(found + half * math.sqrt(2)), x, y, half))

    for i in range(math.ceil((right - left) / (step * FLATNESS))):
        for j in range(math.ceil((bottom - top) / step)):
            add(left + (i + 0.5) * step * FLATNESS, top + (j + 0.5) * step, step / 2)
    while cells:
        bound, x, y, half = heapq.heappop(cells)
        if -bound <= best[0] + 2:
            break
        for i in (-half / 2, half / 2):
            for j in (-half / 2, half / 2):
                add(x + i * FLATNESS, y + j, half / 2)
    return best[1], best[0]
