#!/usr/bin/env python3
"""Synthesises every sound of the game from notes and envelopes (standard library only).

Writes into OUTDIR (default: data/sounds of the repository):
  click.wav         the button tick
  promos.wav        promotions: a cash register's "ka-ching"
  employees.wav     employees: a desk bell
  movies.wav        movies: a film projector starting up
  arcade.wav        arcade: a chiptune blip
  concessions.wav   concessions: popcorn popping
  loans.wav         loans: a coin dropped on a counter
  graph.wav         graph: a rising arpeggio on vibes
  building.wav      building: a knock on a wooden door
  theme.wav         the lounge theme, a loop of 64 seconds (make_sounds.sh turns it into Ogg)

Effects are 16-bit mono, the theme 16-bit stereo, all at 44100 Hz.  Every random draw
comes from a seeded generator, so each run writes the same bytes.

Levels: each effect is scaled to a loudness (RMS over its sounding part) and capped at
a peak; the tick is the quietest effect, the theme sits below all of them.
"""
import array
import math
import os
import random
import sys
import wave

RATE = 44100
TAU = 2.0 * math.pi

# Peak caps and loudness goals, in dBFS.
CLICK_PEAK, CLICK_RMS = -12.0, -24.0
CUE_PEAK, CUE_RMS = -7.0, -21.0
THEME_PEAK = -16.0


# ---------------------------------------------------------------- building blocks

def silence(seconds):
    return array.array("d", bytes(8 * int(round(seconds * RATE))))


def mix_into(buf, part, at=0.0, gain=1.0):
    """Adds part to buf starting at time `at` (seconds); grows buf when needed."""
    start = int(round(at * RATE))
    need = start + len(part) - len(buf)
    if need > 0:
        buf.extend(array.array("d", bytes(8 * need)))
    for i, v in enumerate(part):
        buf[start + i] += v * gain
    return buf


def tone(partials, seconds, decay, attack=0.002, release=0.01, glide=None):
    """A struck or plucked tone: partials is [(frequency, amplitude, decay factor)],
    each partial dies away exponentially with time constant decay * its factor.
    glide(t) optionally bends every frequency by a factor over time."""
    n = int(seconds * RATE)
    out = array.array("d", bytes(8 * n))
    for freq, amp, factor in partials:
        if freq >= RATE / 2:
            continue
        tc = decay * factor
        phase = 0.0
        for i in range(n):
            t = i / RATE
            f = freq * glide(t) if glide else freq
            phase += TAU * f / RATE
            out[i] += amp * math.exp(-t / tc) * math.sin(phase)
    shape(out, attack, release)
    return out


def shape(buf, attack, release):
    """Raised-cosine fade in and out, so nothing starts or stops with a step."""
    a = max(1, int(attack * RATE))
    r = max(1, int(release * RATE))
    n = len(buf)
    for i in range(min(a, n)):
        buf[i] *= 0.5 - 0.5 * math.cos(math.pi * i / a)
    for i in range(min(r, n)):
        buf[n - 1 - i] *= 0.5 - 0.5 * math.cos(math.pi * i / r)
    return buf


def noise(seconds, rng, lowpass=None, highpass=None, decay=None, attack=0.001, release=0.005):
    """White noise through one-pole filters (cut-offs in Hz), with an exponential decay."""
    n = int(seconds * RATE)
    out = array.array("d", bytes(8 * n))
    lp = 1.0 - math.exp(-TAU * lowpass / RATE) if lowpass else None
    hp = math.exp(-TAU * highpass / RATE) if highpass else None
    y_lp = 0.0
    y_hp = 0.0
    x_prev = 0.0
    for i in range(n):
        x = rng.uniform(-1.0, 1.0)
        if lp is not None:
            y_lp += lp * (x - y_lp)
            x = y_lp
        if hp is not None:
            y_hp = hp * (y_hp + x - x_prev)
            x_prev = x
            x = y_hp
        env = math.exp(-i / RATE / decay) if decay else 1.0
        out[i] = x * env
    shape(out, attack, release)
    return out


def midi_hz(m):
    return 440.0 * 2.0 ** ((m - 69) / 12.0)


def peak_of(buf):
    return max(abs(v) for v in buf) or 1.0


def rms_of(buf, floor_db=-50.0):
    """RMS over the part that sounds: samples within 50 dB of the peak's envelope."""
    p = peak_of(buf)
    limit = p * 10 ** (floor_db / 20)
    # 5 ms windows; keep those whose own peak is above the floor
    w = int(0.005 * RATE)
    acc, count = 0.0, 0
    for s in range(0, len(buf), w):
        win = buf[s:s + w]
        if max(abs(v) for v in win) >= limit:
            acc += sum(v * v for v in win)
            count += len(win)
    return math.sqrt(acc / max(count, 1))


def db(x):
    return 20 * math.log10(max(x, 1e-12))


def level(buf, rms_db, peak_db):
    """Scales to the loudness goal unless that would pass the peak cap."""
    g_rms = 10 ** (rms_db / 20) / rms_of(buf)
    g_peak = 10 ** (peak_db / 20) / peak_of(buf)
    g = min(g_rms, g_peak)
    for i in range(len(buf)):
        buf[i] *= g
    return buf


def to_int16(values):
    out = array.array("h")
    for v in values:
        out.append(max(-32767, min(32767, int(round(v * 32767)))))
    if sys.byteorder == "big":
        out.byteswap()
    return out


def write_wav(path, channels):
    """channels: one buffer (mono) or two of equal length (stereo)."""
    if len(channels) == 1:
        data = to_int16(channels[0])
    else:
        left, right = channels
        inter = array.array("d", bytes(8 * 2 * len(left)))
        inter[0::2] = left
        inter[1::2] = right
        data = to_int16(inter)
    with wave.open(path, "wb") as w:
        w.setnchannels(len(channels))
        w.setsampwidth(2)
        w.setframerate(RATE)
        w.writeframes(data.tobytes())


# ---------------------------------------------------------------- the effects

def click(rng):
    """A soft wooden tick, 30 ms: two damped partials and a breath of noise."""
    body = tone([(1650, 1.0, 1.0), (3100, 0.45, 0.6), (5200, 0.15, 0.4)], 0.030, 0.0045,
                attack=0.0008, release=0.004)
    grit = noise(0.030, rng, lowpass=6000, highpass=1500, decay=0.002, attack=0.0003)
    mix_into(body, grit, 0.0, 0.25)
    return level(body, CLICK_RMS, CLICK_PEAK)


def bell(freq, seconds, decay, ratios, detune=0.0):
    """A struck metal bell: inharmonic partials, the high ones dying first; an optional
    second, slightly detuned strike gives the slow beat of a real bell."""
    partials = []
    for ratio, amp, fac in ratios:
        partials.append((freq * ratio, amp, fac))
        if detune:
            partials.append((freq * ratio * (1 + detune), amp * 0.6, fac))
    return tone(partials, seconds, decay, attack=0.0015, release=0.04)


def promos(rng):
    """Cash register: the drawer's mechanical "ka" then a bright "ching"."""
    out = silence(0.46)
    ka = noise(0.06, rng, lowpass=3500, highpass=300, decay=0.012)
    thunk = tone([(180, 1.0, 1.0), (410, 0.5, 0.5)], 0.06, 0.018)
    mix_into(out, ka, 0.0, 0.55)
    mix_into(out, thunk, 0.0, 0.5)
    rattle = noise(0.05, rng, lowpass=5000, highpass=1200, decay=0.01)
    mix_into(out, rattle, 0.045, 0.3)
    ching = bell(1480, 0.38, 0.16, [(1.0, 1.0, 1.0), (2.0, 0.5, 0.7), (2.76, 0.45, 0.6),
                                     (4.1, 0.25, 0.4), (5.4, 0.18, 0.3)], detune=0.004)
    mix_into(out, ching, 0.075, 0.8)
    shape(out, 0.001, 0.03)
    return level(out, CUE_RMS, CUE_PEAK)


def employees(rng):
    """Desk bell: one clear "ding" with the shimmer of two close partials."""
    ding = bell(2350, 0.48, 0.2, [(1.0, 1.0, 1.0), (2.32, 0.35, 0.55), (4.25, 0.18, 0.35),
                                   (6.63, 0.08, 0.25)], detune=0.0025)
    strike = noise(0.01, rng, lowpass=9000, highpass=3000, decay=0.002)
    mix_into(ding, strike, 0.0, 0.25)
    shape(ding, 0.001, 0.05)
    return level(ding, CUE_RMS, CUE_PEAK)


def movies(rng):
    """Projector starting: the motor hum rises while the sprocket clatter speeds up."""
    seconds = 0.5
    n = int(seconds * RATE)
    out = array.array("d", bytes(8 * n))
    # Motor: a buzzy tone gliding up from 90 to 180 Hz, swelling in.
    phase = 0.0
    for i in range(n):
        t = i / RATE
        f = 90 + 90 * min(1.0, t / 0.35) ** 0.7
        phase += TAU * f / RATE
        amp = min(1.0, t / 0.25)
        s = math.sin(phase) + 0.6 * math.sin(2 * phase) + 0.4 * math.sin(3 * phase) \
            + 0.25 * math.sin(4 * phase) + 0.15 * math.sin(6 * phase)
        out[i] = 0.22 * amp * s
    # Clatter: a tick per frame, from 6 to 24 frames a second.
    t = 0.02
    while t < seconds - 0.03:
        tick = noise(0.02, rng, lowpass=5000, highpass=900, decay=0.003)
        clack = tone([(900, 1.0, 1.0), (1900, 0.5, 0.6)], 0.02, 0.004)
        g = 0.35 + 0.3 * min(1.0, t / 0.3)
        mix_into(out, tick, t, g)
        mix_into(out, clack, t, 0.4 * g)
        rate = 6 + 18 * min(1.0, t / 0.35)
        t += 1.0 / rate
    shape(out, 0.005, 0.06)
    return level(out, CUE_RMS, CUE_PEAK)


def square(freq, seconds, duty=0.25, attack=0.002, release=0.008):
    """A band-limited pulse wave: the sound of an old game chip without the aliasing."""
    n = int(seconds * RATE)
    out = array.array("d", bytes(8 * n))
    k = 1
    while k * freq < 9000:            # keep it bright but not shrill
        amp = (2.0 / (k * math.pi)) * math.sin(math.pi * k * duty)
        w = TAU * k * freq / RATE
        for i in range(n):
            out[i] += amp * math.cos(w * i)
        k += 1
    shape(out, attack, release)
    return out


def arcade(rng):
    """Chiptune blip: a quick pulse-wave arpeggio up to a held top note."""
    out = silence(0.3)
    notes = [72, 76, 79, 84]
    t = 0.0
    for m in notes:
        mix_into(out, square(midi_hz(m), 0.05), t, 0.5)
        t += 0.045
    top = square(midi_hz(88), 0.12, duty=0.125, release=0.06)
    mix_into(out, top, t, 0.45)
    shape(out, 0.001, 0.02)
    # Pulse waves sound louder than their level says: 3 dB under the other cues.
    return level(out, CUE_RMS - 3, CUE_PEAK)


def pop(rng, start_hz, gain):
    """One kernel bursting: a falling blip and a puff of noise."""
    blip = tone([(start_hz, 1.0, 1.0), (start_hz * 2.1, 0.3, 0.5)], 0.05, 0.012,
                attack=0.0005, release=0.01, glide=lambda t: max(0.35, 1.0 - t * 25))
    puff = noise(0.04, rng, lowpass=4000, highpass=600, decay=0.006, attack=0.0003)
    mix_into(blip, puff, 0.0, 0.7)
    return blip, gain


def concessions(rng):
    """Popcorn: three pops of different sizes, then a small late one."""
    out = silence(0.36)
    for at, hz, g in ((0.0, 900, 1.0), (0.11, 1200, 0.8), (0.2, 760, 0.95), (0.29, 1400, 0.5)):
        p, gain = pop(rng, hz, g)
        mix_into(out, p, at, gain)
    shape(out, 0.001, 0.02)
    return level(out, CUE_RMS, CUE_PEAK)


def loans(rng):
    """A coin dropped on the counter: a bright ring, bouncing quicker and softer."""
    out = silence(0.48)
    ring = [(1.0, 1.0, 1.0), (1.52, 0.6, 0.8), (2.31, 0.45, 0.6), (3.17, 0.25, 0.4)]
    bounces = [(0.0, 1.0, 0.09), (0.13, 0.7, 0.06), (0.22, 0.5, 0.045),
               (0.28, 0.35, 0.035), (0.32, 0.25, 0.03), (0.345, 0.18, 0.12)]
    for at, g, dec in bounces:
        hit = bell(2900, 0.13, dec, ring)
        tap = noise(0.008, rng, lowpass=10000, highpass=2500, decay=0.0015)
        mix_into(out, hit, at, g)
        mix_into(out, tap, at, 0.4 * g)
    shape(out, 0.001, 0.03)
    return level(out, CUE_RMS, CUE_PEAK)


def vibe(m, seconds, decay=0.8):
    """A vibraphone bar: the fundamental, its fourth partial struck bright and fading fast."""
    f = midi_hz(m)
    return tone([(f, 1.0, 1.0), (f * 4.0, 0.25, 0.18), (f * 10.0, 0.06, 0.06)], seconds, decay,
                attack=0.002, release=0.05)


def graph(rng):
    """Rising arpeggio on vibes: C E G C, each note left ringing."""
    out = silence(0.5)
    for k, m in enumerate((72, 76, 79, 84)):
        mix_into(out, vibe(m, 0.5 - 0.08 * k, decay=0.35), 0.08 * k, 1.0)
    shape(out, 0.001, 0.06)
    return level(out, CUE_RMS, CUE_PEAK)


def knock(rng):
    """One knuckle on a panel door: the wood's low modes and a short dry tap."""
    body = tone([(210, 1.0, 1.0), (480, 0.6, 0.7), (850, 0.3, 0.45), (1300, 0.15, 0.3)],
                0.12, 0.03, attack=0.0008, release=0.02, glide=lambda t: 1.0 - 0.6 * t)
    tap = noise(0.02, rng, lowpass=3000, highpass=400, decay=0.003, attack=0.0002)
    mix_into(body, tap, 0.0, 0.5)
    return body


def building(rng):
    """A door knock: knock, knock-knock."""
    out = silence(0.42)
    for at, g in ((0.0, 1.0), (0.17, 0.85), (0.28, 0.95)):
        mix_into(out, knock(rng), at, g)
    shape(out, 0.001, 0.03)
    return level(out, CUE_RMS, CUE_PEAK)


# ---------------------------------------------------------------- the theme

BPM = 90
BEAT = 60.0 / BPM                     # 2/3 s: 29400 samples, a whole number
BEAT_N = int(round(BEAT * RATE))
BARS = 24
LOOP_N = BARS * 4 * BEAT_N            # 64 s
SWING = 2.0 / 3.0                     # the off-beat eighth sits two thirds into the beat

# Chords: rootless electric piano voicings and the bass root (MIDI numbers).
CHORDS = {
    "Fmaj7": ([57, 60, 64, 67], 41), "Dm7": ([53, 57, 60, 64], 38),
    "Gm7": ([53, 57, 58, 62], 43), "C9": ([52, 57, 58, 62], 36),
    "Am7": ([55, 59, 60, 64], 45), "D7": ([54, 59, 60, 64], 38),
    "Bbmaj7": ([57, 60, 62, 65], 46), "Eb9": ([55, 58, 61, 65], 39),
    "C9sus": ([58, 62, 65, 67], 36),
}
# Each bar: one chord, or two for half a bar each.  A, A', then the bridge B.
FORM = (["Fmaj7", "Dm7", "Gm7", "C9", "Am7", "D7", "Gm7", "C9"]
        + ["Fmaj7", "Dm7", "Gm7", "C9", "Am7", "D7", ("Gm7", "C9"), "Fmaj7"]
        + ["Bbmaj7", "Eb9", "Am7", "D7", "Gm7", "C9", "Fmaj7", "C9sus"])

S = SWING
# The tune on vibes: per bar, (beat, length in beats, MIDI note).
TUNE = [
    [(0, 1.5, 76), (1 + S, 1 - S, 72), (2, 2, 69)],
    [(1 + S, 1 - S, 72), (2, S, 74), (2 + S, 1 - S, 77), (3, 1, 76)],
    [(0, 1.5, 74), (1 + S, 1 - S, 70), (2, 1, 69), (3, 1, 67)],
    [(0, 2, 64), (2, S, 67), (2 + S, 1 - S, 70), (3, 1, 69)],
    [(0, 1.5, 72), (1 + S, 1 - S, 76), (2, 2, 79)],
    [(0, 1, 78), (1, 1, 76), (2, 1, 74), (3, 1, 72)],
    [(0, 1.5, 70), (1 + S, 1 - S, 69), (2, 1, 67), (3, S, 65), (3 + S, 1 - S, 64)],
    [(0, 3, 67), (3, S, 72), (3 + S, 1 - S, 74)],
    # A'
    [(0, 1.5, 76), (1 + S, 1 - S, 72), (2, 2, 69)],
    [(1 + S, 1 - S, 72), (2, S, 74), (2 + S, 1 - S, 77), (3, 1, 76)],
    [(0, 1.5, 74), (1 + S, 1 - S, 70), (2, 1, 69), (3, 1, 67)],
    [(0, 1.5, 64), (1 + S, 1 - S, 67), (2, 1, 70), (3, 1, 74)],
    [(0, 1.5, 76), (1 + S, 1 - S, 72), (2, 2, 79)],
    [(0, 1, 78), (1, S, 81), (1 + S, 1 - S, 78), (2, 2, 76)],
    [(0, 1, 74), (1, 1, 70), (2, 1, 76), (3, 1, 74)],
    [(0, 3.5, 69)],
    # B: the bridge, calmer
    [(0, 2, 74), (2, 1.5, 77)],
    [(0, 2, 79), (2, 2, 77)],
    [(0, 2, 76), (2, 1, 72), (3, 1, 74)],
    [(0, 2, 78), (2, 2, 74)],
    [(0, 1.5, 77), (1 + S, 1 - S, 74), (2, 2, 70)],
    [(0, 1.5, 76), (1 + S, 1 - S, 74), (2, 1, 72), (3, 1, 70)],
    [(0, 2, 69), (2, 2, 72)],
    [(0, 2, 70), (3, S, 72), (3 + S, 1 - S, 74)],
]

# Piano comping rhythms, (beat, length): the Charleston, a long hold, an anticipation.
COMPS = [[(0, 1.2), (1 + S, 1.6)], [(0, 2.6)], [(S, 0.8), (2 + S, 1.2)],
         [(0, 1.2), (1 + S, 1.6)]]


class Loop:
    """A stereo ring buffer: a note that rings past the end comes back in at the start,
    so the last sample runs on into the first as if the music never stopped."""

    def __init__(self, n):
        self.n = n
        self.left = array.array("d", bytes(8 * n))
        self.right = array.array("d", bytes(8 * n))

    def add(self, part, at_beats, gain, pan):
        """pan -1 (left) .. +1 (right), equal power."""
        start = int(round(at_beats * BEAT_N)) % self.n
        a = (pan + 1) * math.pi / 4
        gl, gr = gain * math.cos(a), gain * math.sin(a)
        left, right, n = self.left, self.right, self.n
        for i, v in enumerate(part):
            j = start + i
            if j >= n:
                j -= n
            left[j] += v * gl
            right[j] += v * gr


_cache = {}


def cached(key, make):
    if key not in _cache:
        _cache[key] = make()
    return _cache[key]


def epiano(m, beats):
    """Electric piano: a two-operator FM tone whose bite fades into a round sustain."""
    def make():
        f = midi_hz(m)
        n = int((beats * BEAT + 0.25) * RATE)
        out = array.array("d", bytes(8 * n))
        hold = int(beats * BEAT * RATE)
        for i in range(n):
            t = i / RATE
            index = 0.25 + 1.1 * math.exp(-t / 0.25)
            env = math.exp(-t / 1.6)
            if i > hold:
                env *= math.exp(-(i - hold) / RATE / 0.06)
            out[i] = env * math.sin(TAU * f * t + index * math.sin(TAU * f * t))
        return shape(out, 0.004, 0.02)
    return cached(("ep", m, beats), make)


def bass(m, beats):
    """Upright bass: a few harmonics, plucked, dying slowly, damped at the note's end."""
    def make():
        f = midi_hz(m)
        n = int((beats * BEAT + 0.08) * RATE)
        out = array.array("d", bytes(8 * n))
        hold = int(beats * BEAT * RATE)
        harm = [(1, 1.0, 1.0), (2, 0.55, 0.6), (3, 0.22, 0.4), (4, 0.1, 0.3)]
        for i in range(n):
            t = i / RATE
            s = 0.0
            for k, a, fac in harm:
                s += a * math.exp(-t / (0.9 * fac)) * math.sin(TAU * f * k * t)
            if i > hold:
                s *= math.exp(-(i - hold) / RATE / 0.02)
            out[i] = s
        return shape(out, 0.006, 0.02)
    return cached(("bass", m, beats), make)


def vibes_note(m, beats):
    """Vibes with the motor on: the slow tremolo of a lounge vibraphone."""
    def make():
        f = midi_hz(m)
        n = int((beats * BEAT + 0.3) * RATE)
        out = array.array("d", bytes(8 * n))
        hold = int(beats * BEAT * RATE)
        for i in range(n):
            t = i / RATE
            trem = 1.0 - 0.22 * (0.5 - 0.5 * math.cos(TAU * 4.8 * t))
            s = math.sin(TAU * f * t) * math.exp(-t / 1.4) \
                + 0.22 * math.sin(TAU * f * 4 * t) * math.exp(-t / 0.18)
            env = trem
            if i > hold:
                env *= math.exp(-(i - hold) / RATE / 0.09)
            out[i] = s * env
        return shape(out, 0.003, 0.03)
    return cached(("vib", m, beats), make)


def ride(rng, variant):
    """A soft ride cymbal: a cluster of inharmonic highs over hissing noise."""
    def make():
        seconds = 0.9
        hiss = noise(seconds, rng, lowpass=9000, highpass=4000, decay=0.25, attack=0.001)
        ping = tone([(3150, 0.5, 1.0), (4420, 0.35, 0.8), (5310, 0.3, 0.7), (6770, 0.2, 0.6)],
                    seconds, 0.15, attack=0.001, release=0.1)
        mix_into(hiss, ping, 0.0, 0.12)
        return shape(hiss, 0.001, 0.1)
    return cached(("ride", variant), make)


def brush(rng, variant):
    """A brush swept on the snare: a soft swell of filtered noise."""
    def make():
        seconds = 0.3
        out = noise(seconds, rng, lowpass=5000, highpass=1500, attack=0.06, release=0.2)
        return out
    return cached(("brush", variant), make)


MINOR = {"Dm7", "Gm7", "Am7"}


def walk(names, next_root, bar):
    """The bass line of one bar: two-feel in the A sections, walking in the bridge."""
    root = CHORDS[names[0]][1]
    if len(names) == 2:
        return [(0, 2, root), (2, 2, CHORDS[names[1]][1])]
    if bar < 16:
        fifth = root + 7 if root + 7 <= 50 else root - 5
        if bar % 2:
            return [(0, 2, root), (2, 1 + S, fifth), (3 + S, 1 - S, next_root - 1)]
        return [(0, 2, root), (2, 2, fifth)]
    third = root + (3 if names[0] in MINOR else 4)
    fifth = root + 7
    step = next_root + 1 if abs(next_root + 1 - fifth) < abs(next_root - 1 - fifth) \
        else next_root - 1
    line = [root, third, fifth, step]
    line = [x - 12 if x > 52 else x for x in line]
    return [(k, 1, x) for k, x in enumerate(line)]


def theme(rng):
    loop = Loop(LOOP_N)
    bars = [entry if isinstance(entry, tuple) else (entry,) for entry in FORM]
    roots = [CHORDS[names[0]][1] for names in bars]
    for b, names in enumerate(bars):
        chords = [CHORDS[nm] for nm in names]
        at = 4 * b
        next_root = roots[(b + 1) % BARS]
        # Bass
        for beat, length, m in walk(names, next_root, b):
            loop.add(bass(m, length * 0.92), at + beat, 0.42, 0.0)
        # Piano comping
        if len(chords) == 2:
            hits = [(0, 1.6, chords[0][0]), (2, 1.6, chords[1][0])]
        else:
            hits = [(beat, length, chords[0][0]) for beat, length in COMPS[b % len(COMPS)]]
        for beat, length, voicing in hits:
            for k, m in enumerate(voicing):
                loop.add(epiano(m, length), at + beat + 0.012 * k, 0.085, -0.35)
        # Tune on vibes
        for beat, length, m in TUNE[b]:
            loop.add(vibes_note(m, length * 0.95), at + beat, 0.22, 0.35)
        # Drums: ride on 1, 2, 2-and, 3, 4, 4-and; brush swish on 2 and 4
        for beat, accent in ((0, 1.0), (1, 0.8), (1 + S, 0.55), (2, 0.9), (3, 0.8),
                             (3 + S, 0.55)):
            loop.add(ride(rng, int(beat * 3) % 3), at + beat, 0.05 * accent, 0.5)
        for beat in (1, 3):
            loop.add(brush(rng, beat), at + beat - 0.08, 0.035, -0.2)
    # Scale to the peak goal.
    p = max(peak_of(loop.left), peak_of(loop.right))
    g = 10 ** (THEME_PEAK / 20) / p
    for ch in (loop.left, loop.right):
        for i in range(len(ch)):
            ch[i] *= g
    return loop.left, loop.right


EFFECTS = [("click.wav", click), ("promos.wav", promos), ("employees.wav", employees),
           ("movies.wav", movies), ("arcade.wav", arcade), ("concessions.wav", concessions),
           ("loans.wav", loans), ("graph.wav", graph), ("building.wav", building)]


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    out = sys.argv[1] if len(sys.argv) > 1 else os.path.join(here, "..", "..", "data", "sounds")
    only = sys.argv[2:]                      # optional: names of the files to make
    os.makedirs(out, exist_ok=True)
    for k, (name, make) in enumerate(EFFECTS):
        if only and name not in only:
            continue
        buf = make(random.Random(1000 + k))
        write_wav(os.path.join(out, name), [buf])
        print(f"{name:16s} {len(buf) / RATE * 1000:5.0f} ms  peak {db(peak_of(buf)):6.1f} dBFS"
              f"  rms {db(rms_of(buf)):6.1f} dBFS")
    if not only or "theme.wav" in only:
        left, right = theme(random.Random(2000))
        write_wav(os.path.join(out, "theme.wav"), [left, right])
        print(f"theme.wav        {len(left) / RATE:5.1f} s   peak "
              f"{db(max(peak_of(left), peak_of(right))):6.1f} dBFS"
              f"  rms {db(rms_of(left)):6.1f} dBFS  first {left[0]:+.5f} last {left[-1]:+.5f}")


if __name__ == "__main__":
    main()
