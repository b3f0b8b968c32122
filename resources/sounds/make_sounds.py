#!/usr/bin/env python3
"""Makes the five sounds of the keys as WAV files: 44.1 kHz, 16 bit, mono.

    python3 make_sounds.py OUTDIR

    enter.wav  two knocks, the first deep
    char.wav   one light, crisp click
    space.wav  one low, hollow knock
    caps.wav   a double tick
    Back.wav   a soft swish that falls, with a small click at its end

A sound is a sum of strikes. A strike is a few ringing tones, which are the body of the key, and a
short burst of filtered noise, which is the contact. The noise comes from a generator with a fixed
seed, so each run writes the same bytes.
"""

import array
import math
import random
import sys
import wave
from pathlib import Path

RATE = 44100
# Root mean square of the loudest 30 ms, in decibels below full scale. Small loudspeakers and the
# ear are weak in low tones, so the low sounds get a little more, all within 2 dB.
LOUDNESS = {"enter": -20.0, "char": -22.0, "space": -20.0, "caps": -22.0, "Back": -21.5}
WINDOW = RATE * 30 // 1000
FADE_OUT = 0.006        # seconds
SEED = 20


def samples(seconds):
    return round(seconds * RATE)


def rise(t, attack):
    """A smooth onset from 0 to 1 during the attack, in seconds."""
    return 0.5 - 0.5 * math.cos(math.pi * t / attack) if t < attack else 1.0


def tone(seconds, frequency, decay, attack, level, fall=0.0):
    """A ringing sine; in `decay` seconds it sinks to 1/e. `fall` is the share of the frequency
    that is lost meanwhile, as a struck plate's pitch sinks when it comes to rest."""
    out = []
    phase = 0.0
    for n in range(samples(seconds)):
        t = n / RATE
        out.append(level * rise(t, attack) * math.exp(-t / decay) * math.sin(phase))
        phase += 2 * math.pi * frequency * (1 - fall * (1 - math.exp(-t / decay))) / RATE
    return out


def band(noise, centre_of, sharpness):
    """Noise through a band filter whose centre may move: centre_of(seconds) is in hertz."""
    low = mid = 0.0
    out = []
    for n, value in enumerate(noise):
        g = math.tan(math.pi * centre_of(n / RATE) / RATE)
        high = (value - low - (g + 1 / sharpness) * mid) / (1 + g * (g + 1 / sharpness))
        band_now = g * high + mid
        low_now = g * band_now + low
        mid, low = g * high + band_now, g * band_now + low_now
        out.append(band_now / sharpness)
    return out


def burst(rng, seconds, centre, sharpness, decay, attack, level):
    """A burst of noise round a frequency."""
    noise = band([rng.uniform(-1, 1) for _ in range(samples(seconds))], lambda _: centre, sharpness)
    return [level * rise(n / RATE, attack) * math.exp(-n / RATE / decay) * value
            for n, value in enumerate(noise)]


def swish(rng, seconds, start, end, attack, level):
    """Noise whose pitch falls from start to end, in hertz, and that swells and dies away."""
    noise = band([rng.uniform(-1, 1) for _ in range(samples(seconds))],
                 lambda t: start * (end / start) ** (t / seconds), 1.6)
    return [level * rise(n / RATE, attack)
            * (0.5 + 0.5 * math.cos(math.pi * max(0.0, n / RATE - attack) / (seconds - attack)))
            * value for n, value in enumerate(noise)]


def mixed(seconds, parts):
    """The parts, each given as (its start in seconds, its samples), in one sound."""
    out = [0.0] * samples(seconds)
    for start, part in parts:
        first = samples(start)
        for n, value in enumerate(part[:len(out) - first]):
            out[first + n] += value
    return out


# The sounds ---------------------------------------------------------------------------------


def enter(rng):
    seconds = 0.145
    return mixed(seconds, (
        (0.0, tone(seconds, 148, 0.026, 0.0015, 1.0, 0.12)),
        (0.0, tone(seconds, 296, 0.017, 0.0012, 0.60, 0.06)),
        (0.0, burst(rng, 0.05, 950, 0.9, 0.006, 0.0008, 1.5)),
        (0.064, tone(0.081, 212, 0.018, 0.0012, 0.62, 0.08)),
        (0.064, tone(0.081, 470, 0.009, 0.0010, 0.30)),
        (0.064, burst(rng, 0.04, 1500, 1.0, 0.004, 0.0006, 1.2))))


def char(rng):
    seconds = 0.042
    return mixed(seconds, (
        (0.0, tone(seconds, 2050, 0.0045, 0.0005, 0.40)),
        (0.0, tone(seconds, 640, 0.007, 0.0008, 0.22)),
        (0.0, burst(rng, seconds, 3100, 1.1, 0.0042, 0.0006, 1.4)),
        (0.012, burst(rng, 0.03, 2300, 1.4, 0.0050, 0.0015, 0.35))))


def space(rng):
    seconds = 0.095
    return mixed(seconds, (
        (0.0, tone(seconds, 262, 0.021, 0.0022, 1.0, 0.05)),
        (0.0, tone(seconds, 590, 0.014, 0.0020, 0.45)),
        (0.0, burst(rng, 0.06, 760, 2.2, 0.009, 0.0016, 1.1))))


def caps(rng):
    seconds = 0.085
    parts = []
    for start, pitch, level in ((0.0, 1250, 0.85), (0.040, 1580, 1.0)):
        parts += [(start, tone(seconds - start, pitch, 0.0055, 0.0006, 0.62 * level)),
                  (start, tone(seconds - start, pitch * 0.37, 0.0080, 0.0009, 0.30 * level)),
                  (start, burst(rng, 0.03, pitch * 1.3, 2.0, 0.0034, 0.0005, 1.0 * level))]
    return mixed(seconds, parts)


def back(rng):
    seconds = 0.125
    return mixed(seconds, (
        (0.0, swish(rng, 0.115, 3600, 480, 0.020, 1.0)),
        (0.088, tone(0.037, 330, 0.009, 0.0015, 0.20, 0.10)),
        (0.088, burst(rng, 0.03, 900, 1.4, 0.0045, 0.0012, 0.45))))


SOUNDS = {"enter": enter, "char": char, "space": space, "caps": caps, "Back": back}


# The files ----------------------------------------------------------------------------------


def loudest(sound):
    """The root mean square of the loudest 30 ms, or of the whole sound if that is shorter."""
    squares = [value * value for value in sound]
    total = best = sum(squares[:WINDOW])
    for n in range(WINDOW, len(squares)):
        total += squares[n] - squares[n - WINDOW]
        best = max(best, total)
    return math.sqrt(best / WINDOW)


def finished(sound, loudness):
    """The sound with silence at both ends, no offset, and this loudness."""
    count, fade = len(sound), samples(FADE_OUT)
    out = [value * rise((count - 1 - n) / RATE, fade / RATE) for n, value in enumerate(sound)]
    # The offset is taken away by a hump that is zero at both ends, so that they stay silent.
    hump = [math.sin(math.pi * n / (count - 1)) ** 2 for n in range(count)]
    share = sum(out) / sum(hump)
    out = [value - share * h for value, h in zip(out, hump)]
    gain = 10 ** (loudness / 20) / loudest(out)
    return [value * gain for value in out]


def write(path, sound):
    data = array.array("h", (round(value * 32767) for value in sound))
    if sys.byteorder == "big":
        data.byteswap()
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(data.tobytes())


def main(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for number, (name, make) in enumerate(SOUNDS.items()):
        write(folder / f"{name}.wav", finished(make(random.Random(SEED + number)),
                                                    LOUDNESS[name]))


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit("usage: make_sounds.py OUTDIR")
    main(Path(sys.argv[1]))
