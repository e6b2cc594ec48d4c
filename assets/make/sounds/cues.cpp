#include "assets/make/sounds/cues.h"

#include "assets/make/sounds/instruments.h"

namespace quillet
{

namespace
{

// Notes of the C major scale, in hertz.
constexpr double c4 = 261.63, e4 = 329.63, f4 = 349.23, g4 = 392.00, a4 = 440.00, c5 = 523.25,
                 e5 = 659.26, g5 = 783.99, c6 = 1046.50, e6 = 1318.51, g6 = 1567.98;

// Played up to ten times a hand, so it is short, dark and soft: the card's edge touches the felt,
// the card falls flat on the table and slides to a stop.
SoundBuffer deal()
{
    SoundBuffer buffer(110);
    puff(buffer, {0.000, 2300, 0.8, 1.1, 0.0015, 0.030, -0.1});
    puff(buffer, {0.002, 620, 0.7, 2.6, 0.0020, 0.060, 0.1});
    puff(buffer, {0.004, 1500, 0.6, 0.75, 0.0120, 0.110, 0.2});
    strike(buffer, {0.0015, 330, 0.75, 0}, std::vector{Mode{1, 1, 0.085}, Mode{1.9, 0.4, 0.05}});
    soften(buffer, 2.2);
    finish(buffer, 30, -4);
    return buffer;
}

// Two notes down.
SoundBuffer wrong()
{
    SoundBuffer buffer(380);
    strikeWood(buffer, {0.000, a4, 1.0, -0.15});
    strikeWood(buffer, {0.140, e4, 1.1, 0.15});
    finish(buffer, 60, -3.3);
    return buffer;
}

// The wrong cues are as low as a laptop's speaker allows: from 300 Hz.
// One dull knock on two neighbouring bars, not quite at once.
SoundBuffer wrong2()
{
    SoundBuffer buffer(230);
    strikeWood(buffer, {0.000, g4, 0.9, -0.1});
    strikeWood(buffer, {0.012, f4, 0.8, 0.1});
    finish(buffer, 60, -3.3);
    return buffer;
}

// A higher bar knocked three times, as on a door.
SoundBuffer wrong3()
{
    SoundBuffer buffer(340);
    strikeWood(buffer, {0.000, c5, 0.9, 0.15});
    strikeWood(buffer, {0.080, c5, 0.9, -0.15});
    strikeWood(buffer, {0.160, c5, 1.0, 0});
    finish(buffer, 60, -5);
    return buffer;
}

// The win cues climb a C major chord: the first plays two of its notes, the second three, the third
// all five with a bass note and a bell.
SoundBuffer pokerWin1()
{
    SoundBuffer buffer(195);
    pluckHarp(buffer, {0.000, c5, 0.8, -0.2});
    pluckHarp(buffer, {0.055, g5, 1.0, 0.2});
    finish(buffer, 60, -5.9);
    return buffer;
}

SoundBuffer pokerWin2()
{
    SoundBuffer buffer(440);
    pluckHarp(buffer, {0.000, c5, 0.8, -0.3});
    pluckHarp(buffer, {0.070, g5, 0.85, 0});
    pluckHarp(buffer, {0.140, c6, 1.0, 0.3});
    finish(buffer, 100, -5.9);
    return buffer;
}

SoundBuffer pokerWin3()
{
    SoundBuffer buffer(490);
    pluckHarp(buffer, {0.000, c4, 0.75, 0});
    pluckHarp(buffer, {0.000, c5, 0.65, -0.4});
    pluckHarp(buffer, {0.055, e5, 0.65, -0.2});
    pluckHarp(buffer, {0.110, g5, 0.7, 0});
    pluckHarp(buffer, {0.165, c6, 0.75, 0.2});
    pluckHarp(buffer, {0.220, e6, 0.85, 0.4});
    strikeBell(buffer, {0.220, g6, 0.16, -0.3});
    finish(buffer, 110, -4.2);
    return buffer;
}

} // namespace

std::vector<CueFile> makeCues()
{
    return {{"deal.wav", waveFile(deal())},           {"wrong.wav", waveFile(wrong())},
            {"wrong2.wav", waveFile(wrong2())},       {"wrong3.wav", waveFile(wrong3())},
            {"pokerwin1.wav", waveFile(pokerWin1())}, {"pokerwin2.wav", waveFile(pokerWin2())},
            {"pokerwin3.wav", waveFile(pokerWin3())}};
}

} // namespace quillet
