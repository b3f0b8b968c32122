#!/usr/bin/env python3
"""Checks the five key sounds as they come out of their script.

    python3 check_sounds.py

Loudness is the root mean square of the loudest 30 ms. How different two sounds are is told by
three measures: the distance of their spectral centroids in octaves, of their lengths as a power
of two, and of their envelopes (levels of 5 ms slices, the loudest being 1; the root of the summed
squares of the differences). A pair differs clearly if these, as one vector, are 0.8 or more: four
fifths of an octave, or as much in rhythm.
"""

import array
import cmath
import itertools
import math
import subprocess
import sys
import tempfile
import unittest
import wave
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "resources" / "sounds" / "make_sounds.py"
NAMES = ("enter", "char", "space", "caps", "Back")
RATE = 44100
FULL_SCALE = 32768
LEAST_DIFFERENCE = 0.8


def make(folder):
    subprocess.run([sys.executable, str(SCRIPT), str(folder)], check=True)


def decibels(ratio):
    return 20 * math.log10(ratio)


def peak(values):
    return max(abs(v) for v in values)


def level(values):
    return math.sqrt(sum(v * v for v in values) / len(values)) if values else 0.0


def slices(sound, seconds):
    size = round(seconds * RATE)
    return [level(sound[n:n + size]) for n in range(0, len(sound), size)]


def loudest(sound, seconds=0.030):
    size = round(seconds * RATE)
    padded = sound + [0.0] * max(0, size - len(sound))
    total = best = sum(v * v for v in padded[:size])
    for n in range(size, len(padded)):
        total += padded[n] ** 2 - padded[n - size] ** 2
        best = max(best, total)
    return math.sqrt(best / size)


def transform(values):
    """The discrete Fourier transform; the count of values is a power of two."""
    if len(values) == 1:
        return values
    even, odd = transform(values[0::2]), transform(values[1::2])
    half = len(values) // 2
    turned = [cmath.exp(-2j * math.pi * k / len(values)) * odd[k] for k in range(half)]
    return [e + t for e, t in zip(even, turned)] + [e - t for e, t in zip(even, turned)]


def spectrum(sound):
    """(frequency in hertz, energy) up to half the sampling rate."""
    count = 1 << max(0, len(sound) - 1).bit_length()
    bins = transform([complex(v) for v in sound] + [0j] * (count - len(sound)))
    return [(k * RATE / count, abs(bins[k]) ** 2) for k in range(count // 2)]


def centroid(sound):
    lines = spectrum(sound)
    return sum(f * e for f, e in lines) / sum(e for _, e in lines)


def share_of_energy(sound, lowest, highest):
    lines = spectrum(sound)
    return sum(e for f, e in lines if lowest <= f < highest) / sum(e for _, e in lines)


def difference(one, other):
    octaves = math.log2(one.centroid / other.centroid)
    lengths = math.log2(len(one.sound) / len(other.sound))
    envelopes = math.sqrt(sum((a - b) ** 2 for a, b in itertools.zip_longest(
        one.envelope, other.envelope, fillvalue=0.0)))
    return math.hypot(octaves, lengths, envelopes)


def knocks(sound):
    """How many times the level rises to a third of the highest one from less than half of it. The
    level is that of 9 ms, so that the swings of a deep tone do not count."""
    hop, size = round(0.003 * RATE), round(0.009 * RATE)
    levels = [level(sound[n:n + size]) for n in range(0, len(sound), hop)]
    count, valley = 0, 0.0
    for before, now, after in zip([0.0] + levels, levels, levels[1:] + [0.0]):
        valley = min(valley, now)
        if before <= now > after and now > max(levels) / 3 and valley < now / 2:
            count += 1
            valley = now
    return count


class Wave:
    def __init__(self, path):
        with wave.open(str(path), "rb") as file:
            self.format = (file.getnchannels(), file.getsampwidth(), file.getframerate())
            values = array.array("h", file.readframes(file.getnframes()))
        if sys.byteorder == "big":
            values.byteswap()
        self.sound = [value / FULL_SCALE for value in values]
        self.seconds = len(self.sound) / RATE
        self.envelope = slices(self.sound, 0.005)
        highest = max(self.envelope)
        self.envelope = [value / highest for value in self.envelope]
        self.centroid = centroid(self.sound)


class Sounds(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        make(cls.folder.name)
        cls.waves = {name: Wave(Path(cls.folder.name) / f"{name}.wav") for name in NAMES}

    def each(self, check):
        for name, one in self.waves.items():
            with self.subTest(name):
                check(one)

    def test_there_are_five_and_no_more(self):
        files = sorted(path.name for path in Path(self.folder.name).iterdir())
        self.assertEqual(files, sorted(f"{name}.wav" for name in NAMES))

    def test_each_is_16_bit_mono_at_44100_hertz(self):
        self.each(lambda one: self.assertEqual(one.format, (1, 2, RATE)))

    def test_each_lasts_30_to_150_milliseconds(self):
        def check(one):
            self.assertGreaterEqual(one.seconds, 0.030)
            self.assertLessEqual(one.seconds, 0.150)
        self.each(check)

    def test_each_is_heard_nearly_to_its_end(self):
        self.each(lambda one: self.assertGreater(max(one.envelope[-5:]), 0.01))

    def test_peaks_stay_3_decibels_below_full_scale(self):
        self.each(lambda one: self.assertLess(decibels(peak(one.sound)), -3.0))

    def test_there_is_no_offset(self):
        self.each(lambda one: self.assertLess(abs(sum(one.sound) / len(one.sound)), 0.001))

    def test_each_starts_and_ends_in_silence(self):
        def check(one):
            self.assertEqual((one.sound[0], one.sound[-1]), (0.0, 0.0))
            self.assertLess(peak(one.sound[:2] + one.sound[-2:]), 0.005)
        self.each(check)

    def test_all_are_equally_loud_within_3_decibels(self):
        levels = [decibels(loudest(one.sound)) for one in self.waves.values()]
        self.assertLess(max(levels) - min(levels), 3.0)

    def test_each_is_loud_enough_to_be_heard(self):
        self.each(lambda one: self.assertGreater(decibels(loudest(one.sound)), -30.0))

    def test_ten_a_second_do_not_clip(self):
        def check(one):
            train = [0.0] * (RATE + len(one.sound))
            for start in range(0, RATE, RATE // 10):
                for n, value in enumerate(one.sound):
                    train[start + n] += value
            self.assertLess(decibels(peak(train)), -3.0)
        self.each(check)

    def test_none_is_shrill(self):
        self.each(lambda one: self.assertLess(share_of_energy(one.sound, 7000, RATE), 0.10))

    def test_each_pair_differs_clearly(self):
        for (a, one), (b, other) in itertools.combinations(self.waves.items(), 2):
            with self.subTest(f"{a} and {b}"):
                self.assertGreaterEqual(difference(one, other), LEAST_DIFFERENCE)

    def test_enter_knocks_twice_and_is_the_deepest(self):
        enter = self.waves["enter"]
        self.assertEqual(knocks(enter.sound), 2)
        self.assertEqual(enter.centroid, min(one.centroid for one in self.waves.values()))

    def test_char_is_one_crisp_click_and_the_shortest(self):
        char = self.waves["char"]
        self.assertEqual(knocks(char.sound), 1)
        self.assertEqual(char.seconds, min(one.seconds for one in self.waves.values()))
        self.assertEqual(char.centroid, max(one.centroid for one in self.waves.values()))

    def test_space_is_one_low_knock(self):
        self.assertEqual(knocks(self.waves["space"].sound), 1)
        self.assertGreater(share_of_energy(self.waves["space"].sound, 100, 700), 0.8)

    def test_caps_ticks_twice(self):
        self.assertEqual(knocks(self.waves["caps"].sound), 2)

    def test_back_falls(self):
        sound = self.waves["Back"].sound
        third = len(sound) // 3
        first, second, last = (centroid(sound[k * third:(k + 1) * third]) for k in range(3))
        self.assertGreater(first, 1.5 * second)
        self.assertGreater(second, 1.2 * last)

    def test_each_run_makes_the_same_bytes(self):
        with tempfile.TemporaryDirectory() as again:
            make(again)
            for name in NAMES:
                with self.subTest(name):
                    first, second = (Path(folder, f"{name}.wav").read_bytes()
                                     for folder in (self.folder.name, again))
                    self.assertEqual(first, second)


if __name__ == "__main__":
    unittest.main()
