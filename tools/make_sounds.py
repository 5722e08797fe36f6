#!/usr/bin/env python3
"""Makes warning.wav, a bell of two notes, and ticking.wav, a soft click."""
import math
import pathlib
import struct
import wave

RATE = 22050


def note(time, start, hertz):
    """A bell: a fundamental with two fainter overtones that die away sooner."""
    time -= start
    if time < 0:
        return 0.0
    attack = min(1.0, time / 0.004)
    return attack * sum(
        loudness * math.exp(-time * decay) * math.sin(2 * math.pi * hertz * factor * time)
        for factor, loudness, decay in ((1, 0.62, 7), (2.01, 0.2, 11), (3.9, 0.08, 22)))


def bell(time):
    fade_out = min(1.0, (0.6 - time) / 0.08)
    return fade_out * (0.7 * note(time, 0, 880.0) + 0.7 * note(time, 0.17, 659.3))


def click(time):
    fade_out = min(1.0, (0.06 - time) / 0.02)
    attack = min(1.0, time / 0.001)
    return fade_out * attack * math.exp(-time * 130) * (
        0.45 * math.sin(2 * math.pi * 1900 * time) + 0.25 * math.sin(2 * math.pi * 3100 * time))


def write(name, seconds, sample):
    frames = b"".join(
        struct.pack("<h", round(32767 * max(-1.0, min(1.0, sample(index / RATE)))))
        for index in range(round(seconds * RATE)))
    with wave.open(str(pathlib.Path(__file__).parents[1] / "assets" / name), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(frames)


if __name__ == "__main__":
    write("warning.wav", 0.6, bell)
    write("ticking.wav", 0.06, click)
