#pragma once

#include "charts/chart_player.h"
#include "charts/plain_kinds.h"
#include "odds/dealt_hand.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::practice
{

// Decisions with a smaller lead, in credits, are close.
inline constexpr double closeLead = 2;

// Where a decision stands among all decisions.
using DecisionId = std::size_t;

// One choice of the game: between the kind of the best hold and the kind of the best hold of any
// other kind. Sums run over all deals in which a player meets it, worths in worth units.
struct Decision {
    charts::PlainKind best = 0;
    charts::PlainKind rival = 0;
    std::int64_t deals = 0;
    odds::Int128 leadSum = 0;      // the best hold's worth above the rival's
    odds::Int128 anyHoldSum = 0;   // what all 32 holds cost
    std::int64_t wildHolds = 0;    // holds among the 32 that only a slip explains
    std::int64_t chartErrors = 0;  // deals that the trainer's chart misplays
    std::int64_t chartCostSum = 0; // what that costs

    [[nodiscard]] double probability() const;
    [[nodiscard]] double lead() const;        // in credits, on average
    [[nodiscard]] double anyHoldCost() const; // in credits, of a hold picked blindly
    [[nodiscard]] double wildShare() const;   // of the 32 holds
    [[nodiscard]] double chartErrorRate() const;
    [[nodiscard]] std::string name() const; // "high pair over 3 to a royal"
};

// Those deals that are the same when suits change names.
struct DealClass {
    std::array<odds::DeckPlace, 5> places{}; // one of them, ascending
    std::uint8_t decision = 0;
    std::uint8_t members = 0;
};

// The decision of one deal.
struct DealtDecision {
    charts::PlainKind best = 0;
    charts::PlainKind rival = 0;
    odds::Hold rivalHold = 0; // the best of the rival's kind
    std::uint32_t wild = 0;   // bit h is set when only a slip explains hold h
};

// All decisions of the game with one pay table, and the deals in which they come up.
class Decisions
{
public:
    explicit Decisions(const odds::HeldCards& heldCards);

    // The most probable first.
    [[nodiscard]] std::span<const Decision> all() const { return m_all; }
    [[nodiscard]] const Decision& operator[](DecisionId id) const { return m_all[id]; }

    // What perfect play and the trainer's chart return, in credits won per credit paid.
    [[nodiscard]] double perfectReturn() const;
    [[nodiscard]] double chartReturn() const;

    // The classes of the deals of one decision.
    [[nodiscard]] std::span<const DealClass> deals(DecisionId id) const;

    [[nodiscard]] DealtDecision of(const odds::DealtHand& hand) const;
    [[nodiscard]] DecisionId idOf(const DealtDecision& decision) const;
    [[nodiscard]] std::optional<DecisionId> find(std::string_view name) const;

private:
    static constexpr std::uint8_t none = 255;

    void addUp(const odds::HeldCards& heldCards, const charts::ChartPlayer& trainersChart);
    void sort();

    std::vector<charts::PlainKind> m_kindOfClass;
    std::array<std::array<std::uint8_t, charts::plainKinds>, charts::plainKinds> m_id{};
    std::vector<Decision> m_all;
    odds::Int128 m_worth = 0;           // of the best holds of all deals
    std::vector<DealClass> m_deals;     // by decision
    std::vector<std::size_t> m_firstOf; // by decision, and one more
};

} // namespace quillet::practice
