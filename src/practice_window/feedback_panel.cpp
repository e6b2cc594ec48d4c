#include "practice_window/feedback_panel.h"

#include "practice_window/card_text.h"
#include "practice_window/fonts.h"

#include <QLabel>
#include <QVBoxLayout>

namespace quillet::practice_window
{

namespace
{

QLabel* textLabel(const char* name)
{
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

FeedbackPanel::FeedbackPanel(QWidget* parent)
    : QWidget(parent), m_headline(textLabel("headline")), m_reason(textLabel("reason")),
      m_bars(new HoldBars), m_rule(textLabel("rule"))
{
    m_headline->setFont(headingFont(font(), 1.3));
    m_headline->setFocusPolicy(Qt::TabFocus);
    for (QLabel* label : {m_reason, m_rule})
        label->setFont(scaled(font(), 1.1));
    m_reason->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : std::initializer_list<QWidget*>{m_headline, m_bars, m_reason, m_rule})
        column->addWidget(part);
    column->addStretch(1);
}

void FeedbackPanel::showHint(const QString& hint)
{
    for (QWidget* part : std::initializer_list<QWidget*>{m_headline, m_bars, m_rule})
        part->hide();
    m_reason->setText(hint);
    m_reason->setAccessibleName(hint);
}

void FeedbackPanel::show(const practice::Verdict& verdict,
                         const std::array<odds::DeckPlace, 5>& cards)
{
    const QString headline = QString::fromStdString(verdict.headline);
    const QString reason = QString::fromStdString(verdict.reason);
    const QString rule = verdict.rule.empty()
                             ? QString()
                             : "Rule to remember: " + QString::fromStdString(verdict.rule) + ".";
    // White on these has a contrast of 5 and more, on a light desktop and on a dark one.
    m_headline->setStyleSheet(QString("background: %1; color: white; border-radius: 6px; "
                                      "padding: 5px 9px;")
                                  .arg(verdict.judgement.right ? "#1f7a53" : "#b03a2a"));
    m_headline->setText((verdict.judgement.right ? "\u2714  " : "\u2718  ") + headline);
    m_headline->setAccessibleName(
        QStringList{headline + ".", spokenCardCodes(reason), rule}.join(' '));
    m_reason->setText(withSuitSigns(reason));
    m_reason->setAccessibleName(spokenCardCodes(reason));
    m_rule->setText(rule);
    m_bars->show(verdict, cards);
    for (QWidget* part : std::initializer_list<QWidget*>{m_headline, m_bars})
        part->show();
    m_rule->setVisible(!rule.isEmpty());
    m_headline->setFocus();
}

} // namespace quillet::practice_window
