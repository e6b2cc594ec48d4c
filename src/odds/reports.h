#pragma once

#include "odds/dealt_hand.h"
#include "odds/fair_odds.h"
#include "odds/simulation.h"

#include <iosfwd>

namespace quillet
{

// Each report comes as a table for readers or as comma-separated values with a line of titles.
enum class Format { text, csv };

void reportGame(std::ostream& out, const FairOdds& odds, Format format);
void reportHand(std::ostream& out, const HeldCards& heldCards, const DealtHand& hand,
                Format format);
void reportSimulation(std::ostream& out, const Simulation& simulation, const FairOdds& fair,
                      Format format);

} // namespace quillet
