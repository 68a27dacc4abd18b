"""Pictures of the screen and of printed pages."""

import collections
import re
import struct
import zlib


class Picture:
    """An image of 24-bit colours."""

    def __init__(self, width, height, rgb):
        self.width, self.height, self.rgb = width, height, bytes(rgb)

    @classmethod
    def from_xwd(cls, data, left=0, top=0, width=None, height=None):
        """A display's memory as Xvfb keeps it, or a part of it."""
        header = struct.unpack(">25I", data[:100])
        size, whole_width, whole_height, bits, line, colours = (header[0], header[4], header[5],
                                                                header[11], header[12], header[19])
        if bits != 32 or header[7] != 0:
            raise AssertionError("the display has not 4 bytes to the pixel, the least one first")
        width = whole_width if width is None else width
        height = whole_height if height is None else height
        if left < 0 or top < 0 or left + width > whole_width or top + height > whole_height:
            raise AssertionError("the part lies outside the display")
        start = size + colours * 12 + left * 4
        pixels = b"".join(data[start + y * line:start + y * line + width * 4]
                          for y in range(top, top + height))
        rgb = bytearray(width * height * 3)
        for channel in range(3):
            rgb[channel::3] = pixels[2 - channel::4]
        return cls(width, height, rgb)

    @classmethod
    def from_ppm(cls, data):
        match = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", data)
        return cls(int(match[1]), int(match[2]), data[match.end():])

    def pixel(self, x, y):
        offset = (y * self.width + x) * 3
        return tuple(self.rgb[offset:offset + 3])

    def crop(self, left, top, width, height):
        if left < 0 or top < 0 or left + width > self.width or top + height > self.height:
            raise AssertionError("the part lies outside the picture")
        rows = (self.rgb[(y * self.width + left) * 3:(y * self.width + left + width) * 3]
                for y in range(top, top + height))
        return Picture(width, height, b"".join(rows))

    def colours(self):
        return collections.Counter(zip(self.rgb[0::3], self.rgb[1::3], self.rgb[2::3]))

    def brightness(self):
        return sum(self.rgb) / len(self.rgb)

    def most_unlike_tile(self, other, side=32):
        """The square in which most pixels of both pictures differ by more than a shade: which share
        of them does, and where it stands. Squares overlap by half, so that no word is cut by all."""
        if (self.width, self.height) != (other.width, other.height):
            raise AssertionError(f"{self.width} by {self.height} pixels beside {other.width} by "
                                 f"{other.height}")
        worst = 0.0, (0, 0)
        for top in self._steps(self.height, side):
            for left in self._steps(self.width, side):
                one, two = (picture.crop(left, top, side, side).rgb for picture in (self, other))
                if one == two:
                    continue
                shades = [abs(a - b) for a, b in zip(one, two)]
                unlike = sum(max(shade) > 40
                             for shade in zip(shades[0::3], shades[1::3], shades[2::3]))
                worst = max(worst, (unlike / side ** 2, (left, top)))
        return worst

    @staticmethod
    def _steps(length, side):
        """Where the squares begin; the last one ends with the picture."""
        return [*range(0, length - side, side // 2), length - side]

    def save(self, path):
        def chunk(kind, body):
            return (struct.pack(">I", len(body)) + kind + body +
                    struct.pack(">I", zlib.crc32(kind + body)))
        lines = b"".join(b"\0" + self.rgb[y * self.width * 3:(y + 1) * self.width * 3]
                         for y in range(self.height))
        path.write_bytes(b"\x89PNG\r\n\x1a\n" +
                         chunk(b"IHDR", struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0,
                                                    0, 0)) +
                         chunk(b"IDAT", zlib.compress(lines)) + chunk(b"IEND", b""))

    def __eq__(self, other):
        return (self.width, self.height, self.rgb) == (other.width, other.height, other.rgb)
