#pragma once

#include "assets/make/sounds/sound_buffer.h"

#include <span>

namespace quillet
{

// One mode of a vibrating body.
struct Mode {
    double ratio;   // of its frequency to the note's
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

// A puff of noise in a band around a frequency, such as a nail on a string or paper on felt.
struct Puff {
    double start;
    double hertz;
    double width; // of the band, as a share of its frequency
    double level;
    double rise;    // seconds until it is at its loudest
    double seconds; // until it has fallen by 60 dB after that
    double place;
};

// Lets the modes of a struck or plucked body ring from the note's start to the buffer's end. The
// two channels are tuned a hair apart, which beats softly like paired strings.
void strike(SoundBuffer& buffer, const Note& note, std::span<const Mode> modes);

void puff(SoundBuffer& buffer, const Puff& noise);

// A small harp with a wooden body: stiff strings, bright at the pluck and mellow after it.
void pluckHarp(SoundBuffer& buffer, const Note& note);

// A low wooden bar, damped by the player's hand.
void strikeWood(SoundBuffer& buffer, const Note& note);

// A small bell, high and thin, for the sparkle on top of a chord.
void strikeBell(SoundBuffer& buffer, const Note& note);

} // namespace quillet
