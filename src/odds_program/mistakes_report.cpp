#include "odds_program/reports.h"

namespace quillet::odds_program
{

Report mistakesReport(const std::vector<charts::Mistake>& mistakes)
{
    Table table{"mistakes",
                "Deals in which the best hold that the chart allows is not the perfect one: the\n"
                "chart's row, what perfect play holds instead, the cost per 100 credits over\n"
                "all deals, the running percentage, and the costliest deal\n\n",
                {{"row", "Row"},
                 {"instead", "Instead"},
                 {"deals", "Deals"},
                 {"cost", "Cost"},
                 {"running percent", "Sum %"},
                 {"costliest deal", "Costliest"},
                 {"chart holds", ""},
                 {"perfect holds", ""},
                 {"costs", ""}}};
    odds::Fraction all;
    std::int64_t deals = 0;
    for (const charts::Mistake& mistake : mistakes) {
        all = all + mistake.cost;
        deals += mistake.deals;
    }
    odds::Fraction running;
    for (const charts::Mistake& mistake : mistakes) {
        running = running + mistake.cost;
        table.rows.push_back({mistake.row, mistake.instead, mistake.deals, percent(mistake.cost, 5),
                              rounded(100 * running.value() / all.value(), 0),
                              closeCards(mistake.example), cards(mistake.example, mistake.played),
                              cards(mistake.example, mistake.best), exact(mistake.costliest, 4)});
    }
    table.outro = "\nIn all " + std::to_string(deals) + " deals, which cost " +
                  (all * 100).decimals(8) + " of 100 credits.\n";
    return {table};
}

} // namespace quillet::odds_program
