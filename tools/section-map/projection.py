"""Projections of the globe, of radius 1, onto a plane where y grows downward."""

import math


class Albers:
    """Albers' conic projection, which keeps areas true."""

    def __init__(self, south, north, longitude):
        a, b = math.sin(math.radians(south)), math.sin(math.radians(north))
        self.n = (a + b) / 2
        self.c = 1 - a * a + 2 * self.n * a
        self.longitude = longitude

    def __call__(self, point):
        angle = math.radians(point[0] / 1e6 - self.longitude) * self.n
        radius = math.sqrt(self.c - 2 * self.n * math.sin(math.radians(point[1] / 1e6))) / self.n
        return radius * math.sin(angle), radius * math.cos(angle)


class Perspective:
    """The globe as seen from above a point: what lies far from that is foreshortened."""

    def __init__(self, latitude, longitude, distance):
        self.sine, self.cosine = math.sin(math.radians(latitude)), math.cos(math.radians(latitude))
        self.longitude, self.distance = longitude, distance

    def __call__(self, point):
        turn, latitude = math.radians(point[0] / 1e6 - self.longitude), math.radians(point[1] / 1e6)
        sine, cosine = math.sin(latitude), math.cos(latitude)
        nearness = self.sine * sine + self.cosine * cosine * math.cos(turn)
        scale = (self.distance - 1) / (self.distance - nearness)
        return scale * cosine * math.sin(turn), -scale * (self.cosine * sine - self.sine * cosine * math.cos(turn))


def fitted(projection, rings, box):
    """The projection scaled and moved so that the rings fill the box (x, y, width, height) and stand in its middle."""
    points = [projection(p) for ring in rings for p in ring]
    left, right = min(x for x, _ in points), max(x for x, _ in points)
    top, bottom = min(y for _, y in points), max(y for _, y in points)
    x, y, width, height = box
    scale = min(width / (right - left), height / (bottom - top))
    moved_x, moved_y = x + width / 2 - scale * (left + right) / 2, y + height / 2 - scale * (top + bottom) / 2

    def project(p):
        u, v = projection(p)
        return moved_x + scale * u, moved_y + scale * v

    project.scale = scale
    return project
