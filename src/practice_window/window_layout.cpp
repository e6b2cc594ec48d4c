#include "practice_window/decision_list.h"
#include "practice_window/fonts.h"
#include "practice_window/message_strip.h"
#include "practice_window/practice_window.h"
#include "practice_window/return_panel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>

namespace quillet::practice_window
{

void PracticeWindow::layOut()
{
    setObjectName("practiceWindow");
    setWindowTitle("Quillet Practice");
    setMinimumSize(720, 480);
    auto* all = new QWidget;
    auto* column = new QVBoxLayout(all);
    column->setContentsMargins(10, 8, 10, 8);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setHandleWidth(12);
    m_splitter->addWidget(layOutQuestion());
    m_splitter->addWidget(layOutProgress());
    m_splitter->setStretchFactor(0, 3);
    m_splitter->setStretchFactor(1, 2);
    m_splitter->setSizes({580, 370});
    column->addWidget(m_splitter, 1);
    column->addWidget(m_messages);
    setCentralWidget(all);
    orderTabs();
    resize(980, 640);
    restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(m_preferences.windowPlace)));
}

// As the eye goes: the question, the cards, the answer, what is said about it, the decisions.
void PracticeWindow::orderTabs()
{
    QWidget* last = m_title;
    for (const char* name : {"card1", "card2", "card3", "card4", "card5", "answer", "headline",
                             "holdBars", "reason", "decisions"}) {
        auto* next = findChild<QWidget*>(name);
        setTabOrder(last, next);
        last = next;
    }
}

QWidget* PracticeWindow::layOutQuestion()
{
    m_title->setObjectName("question");
    m_title->setFocusPolicy(Qt::TabFocus);
    m_title->setFont(headingFont(font(), 1.4));
    m_progress->setObjectName("progress");
    m_answer->setObjectName("answer");
    m_answer->setMinimumWidth(180);
    m_answer->setFont(headingFont(font(), 1.1));
    auto* heading = new QHBoxLayout;
    heading->addWidget(m_title);
    heading->addStretch(1);
    heading->addWidget(m_progress);
    auto* scroll = new QScrollArea;
    scroll->setWidget(m_feedback);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addLayout(heading);
    column->addWidget(m_cards);
    column->addWidget(m_answer, 0, Qt::AlignHCenter);
    column->addWidget(scroll, 1);
    return part;
}

QWidget* PracticeWindow::layOutProgress()
{
    auto* part = new QSplitter(Qt::Vertical);
    part->setChildrenCollapsible(false);
    part->setHandleWidth(10);
    part->setMinimumWidth(300);
    part->setMaximumWidth(560);
    part->addWidget(new ReturnPanel(m_history));
    part->addWidget(new DecisionList(m_decisions));
    part->setStretchFactor(0, 2);
    part->setStretchFactor(1, 3);
    return part;
}

} // namespace quillet::practice_window
