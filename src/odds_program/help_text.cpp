#include "odds_program/command_line.h"

namespace quillet::odds_program
{

namespace
{

constexpr std::string_view help =
    R"(Usage: quillet-odds [OPTION]... [HAND | -]

The exact odds of Jacks or Better at five credits a hand, and what it costs to
play by the trainer's chart. Without arguments: what the game returns with a
fairly shuffled deck.

Questions, one at a time
  HAND                 the best holds of five cards, such as "9c Tc Jc Kc Ad"
                       or 9♣10♣J♣K♣A♦, and why
  -                    the hands on standard input, one per line
  --mistakes           the deals that the chart misplays, in groups
  --break-even [HAND]  the royal at which perfect play returns 100 %, or those
                       at which the best hold of the hand changes
  --sitting HANDS      how a session of that many hands turns out
  --simulate HANDS     play that many hands with the trainer's own shuffle,
                       which is not fair
  --chart FILE         what a chart of your own costs: best line first; # starts
                       a comment, / is between rows that share a line
  --best-chart LINES   the best chart found with at most that many lines, as a
                       chart file; 1..30: the loss for each number of lines
  --card FILE          write the trainer's chart, or that of --chart or
                       --best-chart, as a page to print (SVG)
  --rows               the rows that a chart can have
  --self-test          check tables and computations against the rules
  --version, --help

Options
  --pays TABLE         the pay table: 9/6, 8/5 ... (full house and flush for one
                       credit), nine numbers for five credits, royal first, or
                       a file
  --all                with a hand: all 32 holds
  --chart FILE         with --sitting: play by this chart, too
  --bankroll CREDITS   with --sitting: the chance that these credits run out:
                       fewer are left than a hand costs on all lines
  --bring PERCENT      with --sitting: the smallest bankroll that runs out with
                       at most this chance
  --lines COUNT        with --sitting: one deal and one hold a hand, and a draw
                       for each of 1 to 100 lines
  --seed NUMBER        with --simulate: seed of the random numbers (default 1)
  --plays              with --chart: every deal and the chart's hold
  --mistakes           with --chart: the deals that this chart misplays
  --format FORMAT      text, csv or json
  --exact              fractions in text too; csv and json always have them
)";

} // namespace

std::string_view helpText()
{
    return help;
}

} // namespace quillet::odds_program
