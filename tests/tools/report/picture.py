"""Reads the pictures that a browser takes: PNG with eight bits a colour, not interlaced."""

import struct
import zlib


class Picture:
    def __init__(self, png):
        assert png[:8] == b"\x89PNG\r\n\x1a\n", "no PNG"
        at, data = 8, b""
        while at < len(png):
            size, kind = struct.unpack(">I4s", png[at:at + 8])
            content = png[at + 8:at + 8 + size]
            if kind == b"IHDR":
                self.width, self.height, depth, colours = struct.unpack(">IIBB", content[:10])
                assert depth == 8 and colours in (2, 6) and content[12] == 0, content
                self._step = 3 if colours == 2 else 4
            elif kind == b"IDAT":
                data += content
            at += 12 + size
        self._rows, self._rest = [], self._unfiltered(zlib.decompress(data))

    def _unfiltered(self, data):
        length, step = self.width * self._step, self._step
        above = bytes(length)
        for at in range(0, len(data), length + 1):
            kind, row = data[at], bytearray(data[at + 1:at + 1 + length])
            if kind == 1:
                for i in range(step, length):
                    row[i] = (row[i] + row[i - step]) & 255
            elif kind == 2:
                row = bytearray((a + b) & 255 for a, b in zip(row, above))
            elif kind:
                for i in range(length):
                    left = row[i - step] if i >= step else 0
                    corner = above[i - step] if i >= step else 0
                    row[i] = (row[i] + (
                        (left + above[i]) // 2 if kind == 3
                        else nearest(left, above[i], corner))) & 255
            yield bytes(row)
            above = row

    def pixel(self, x, y):
        while len(self._rows) <= y:
            self._rows.append(next(self._rest))
        return tuple(self._rows[y][x * self._step:x * self._step + 3])

    def colours(self):
        """How many there are, of every third row."""
        step = self._step
        self._rows += self._rest
        return len({row[x:x + 3] for row in self._rows[::3] for x in range(0, len(row), step)})


def nearest(left, above, corner):
    """The Paeth predictor of PNG."""
    guess = left + above - corner
    return min((left, above, corner), key=lambda value: abs(guess - value))


def contrast(first, second):
    """Of two colours, as accessibility guidelines count it: 1 to 21."""
    def light(colour):
        parts = [part / 255 for part in colour]
        linear = [part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4
                  for part in parts]
        return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]
    high, low = sorted((light(first), light(second)), reverse=True)
    return (high + 0.05) / (low + 0.05)
