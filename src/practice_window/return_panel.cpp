#include "practice_window/return_panel.h"

#include "practice_window/return_line.h"

#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace quillet::practice_window
{

namespace
{

QString percent(double share, int places)
{
    return QLocale::c().toString(100 * share, 'f', places);
}

QString wordsFor(const practice::Estimate& estimate)
{
    // Whole percents are enough while little is known.
    const int places = estimate.high - estimate.low < 0.002 ? 2 : 1;
    return QString("You return about %1 %, between %2 and %3. Close decisions cost you %4, slips "
                   "in clear ones %5.")
        .arg(percent(estimate.returned, places), percent(estimate.low, places),
             percent(estimate.high, places), percent(estimate.closeLoss, 2),
             percent(estimate.slipLoss, 2));
}

} // namespace

ReturnPanel::ReturnPanel(const ReturnHistory& history, QWidget* parent)
    : QWidget(parent), m_history(history), m_words(new QLabel), m_others(new QLabel),
      m_line(new ReturnLine(history))
{
    m_words->setObjectName("return");
    m_words->setWordWrap(true);
    m_others->setObjectName("otherReturns");
    m_others->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_words);
    column->addWidget(m_others);
    column->addWidget(m_line, 1);
    connect(&history, &ReturnHistory::changed, this, &ReturnPanel::showReturn);
    showReturn();
}

void ReturnPanel::showReturn()
{
    const auto& points = m_history.points();
    m_words->setText(points.empty() ? "Answer some questions to see what your own play returns."
                                    : wordsFor(points.back().estimate));
    if (const practice::Course* course = m_history.course())
        m_others->setText(QString("The trainer's chart returns %1 %, perfect play %2 %.")
                              .arg(percent(course->decisions.chartReturn(), 2),
                                   percent(course->decisions.perfectReturn(), 2)));
    m_line->setAccessibleDescription(m_words->text());
    m_line->update();
}

} // namespace quillet::practice_window
