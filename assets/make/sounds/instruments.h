#pragma once

#include "assets/make/sounds/sound_buffer.h"

#include <span>

namespace quillet
{

// One mode of a vibrating body.
struct Mode {
    double ratio;   // of its frequency to that of the note
    double level;   // amplitude at the strike
    double seconds; // until it has fallen by 60 dB
};

// One note: all times in seconds, place from -1 (left) to 1 (right).
struct Note {
    double start;
    double hertz;
    double level;
    double place;
};

// A burst of noise in a band around a frequency, such as a nail on a string or paper on felt.
struct Puff {
    double start;
    double hertz;
    double width; // of the band, as a share of its frequency
    double level;
    double rise;    // seconds until it is at its loudest
    double seconds; // then until it has fallen by 60 dB
    double place;
};

// Adds the modes of a struck or plucked body from the start of the note to the end of the buffer.
// The two channels are slightly detuned, which beats softly like paired strings.
void strike(SoundBuffer& buffer, const Note& note, std::span<const Mode> modes);

void puff(SoundBuffer& buffer, const Puff& noise);

// A small harp with a wooden body: stiff strings, bright when plucked, then mellow.
void pluckHarp(SoundBuffer& buffer, const Note& note);

// A low wooden bar, damped by the player's hand.
void strikeWood(SoundBuffer& buffer, const Note& note);

// A small bell, high and thin, for the sparkle on top of a chord.
void strikeBell(SoundBuffer& buffer, const Note& note);

} // namespace quillet
