#!/usr/bin/env python3
"""Makes the program's sounds: puffs of an air pump, by synthesis. Gives the same bytes wherever it runs.

    make_sounds.py FOLDER

A puff is noise through a resonance that glides, for the air in its tube, with a soft thump of the piston under it.
Every number is rounded in ways that do not depend on the machine's mathematics: sines come from a recurrence on plain
multiplications and additions.
"""

import array
import sys
import wave
from pathlib import Path

RATE = 44100

# milliseconds; resonance from and to in Hz, and its width; thump from and to in Hz, and its share; attack in
# milliseconds; seed
SOUNDS = {
    "air_pump_01": (220, 520, 1150, 260, 165, 95, 0.55, 9, 101),  # pasted: a full stroke, rising
    "air_pump_06": (150, 900, 1350, 330, 210, 150, 0.40, 6, 106),  # copied: a short, light one
    "air_pump_10": (200, 1050, 420, 280, 170, 80, 0.50, 6, 110),  # deleted: falling
    "air_pump_12": (300, 780, 240, 240, 150, 55, 0.60, 12, 112),  # cleared: a long, deep one
    "air_pump_short": (90, 700, 1000, 300, 190, 140, 0.45, 4, 113),  # shown: hardly more than a breath
}
# A peak that is 1.6 times as loud at full volume is still below full scale.
PEAK = 0.6
TURN = 6.283185307179586


def noise(seed):
    """Evenly spread numbers from -1 to 1."""
    state = seed
    while True:
        state = (state * 6364136223846793005 + 1442695040888963407) % 2**64
        yield (state >> 33) / 2**30 - 1


def glide(first, last, share):
    return first + (last - first) * share


def envelope(index, count, attack):
    """Up in a straight line, and down in a curve that ends in silence."""
    rise = min(1.0, index / attack)
    rest = 1 - index / count
    return rise * rest * rest * rest


def small_sine(angle):
    """For angles below a quarter turn: more than near enough for steps of one sample."""
    square = angle * angle
    return angle * (1 - square / 6 * (1 - square / 20 * (1 - square / 42)))


def small_cosine(angle):
    square = angle * angle
    return 1 - square / 2 * (1 - square / 12 * (1 - square / 30))


def samples(milliseconds, tube_from, tube_to, width, thump_from, thump_to, thump_share, attack, seed):
    count = RATE * milliseconds // 1000
    attack_count = RATE * attack // 1000
    air = noise(seed)
    low = band = 0.0
    sine, cosine = 0.0, 1.0
    puffs = []
    thumps = []
    for index in range(count):
        share = index / count
        # A filter of two states whose middle frequency glides.
        frequency = 2 * small_sine(TURN / 2 * glide(tube_from, tube_to, share) / RATE)
        damping = width / glide(tube_from, tube_to, share)
        low += frequency * band
        band += frequency * (next(air) - low - damping * band)
        puffs.append(band * envelope(index, count, attack_count))
        # The point on a circle, turned by a little more or less each time.
        step = TURN * glide(thump_from, thump_to, share) / RATE
        turn_sine, turn_cosine = small_sine(step), small_cosine(step)
        sine, cosine = sine * turn_cosine + cosine * turn_sine, cosine * turn_cosine - sine * turn_sine
        thumps.append(sine * envelope(index, count, attack_count))
    loudest_puff = max(map(abs, puffs))
    loudest_thump = max(map(abs, thumps))
    mixed = [puff / loudest_puff * (1 - thump_share) + thump / loudest_thump * thump_share
             for puff, thump in zip(puffs, thumps)]
    loudest = max(map(abs, mixed))
    return array.array("h", (round(value / loudest * PEAK * 32767) for value in mixed))


def main(folder):
    for name, description in SOUNDS.items():
        data = samples(*description)
        if sys.byteorder == "big":
            data.byteswap()
        with wave.open(str(folder / f"{name}.wav"), "wb") as file:
            file.setnchannels(1)
            file.setsampwidth(2)
            file.setframerate(RATE)
            file.writeframes(data.tobytes())


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(Path(sys.argv[1]))
