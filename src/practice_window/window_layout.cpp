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

namespace
{

QByteArray bytesOf(const std::string& base64)
{
    return QByteArray::fromBase64(QByteArray::fromStdString(base64));
}

} // namespace

void PracticeWindow::layOut()
{
    setObjectName("practiceWindow");
    setWindowTitle("Quillet Practice");
    setMinimumSize(720, 480);
    auto* all = new QWidget;
    auto* column = new QVBoxLayout(all);
    column->setContentsMargins(10, 8, 10, 8);
    m_columns->setChildrenCollapsible(false);
    m_columns->setHandleWidth(12);
    m_columns->addWidget(layOutQuestion());
    m_columns->addWidget(layOutProgress());
    m_columns->setStretchFactor(0, 3);
    m_columns->setStretchFactor(1, 2);
    m_columns->setSizes({580, 370});
    column->addWidget(m_columns, 1);
    column->addWidget(m_messages);
    setCentralWidget(all);
    orderTabs();
    resize(980, 640);
    restoreGeometry(bytesOf(m_preferences.windowPlace));
    m_columns->restoreState(bytesOf(m_preferences.columns));
    m_progressPanes->restoreState(bytesOf(m_preferences.progressPanes));
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
    m_progressPanes->setOrientation(Qt::Vertical);
    m_progressPanes->setChildrenCollapsible(false);
    m_progressPanes->setHandleWidth(10);
    m_progressPanes->setMinimumWidth(300);
    m_progressPanes->setMaximumWidth(560);
    m_progressPanes->addWidget(new ReturnPanel(m_history));
    m_progressPanes->addWidget(new DecisionList(m_decisions));
    m_progressPanes->setStretchFactor(0, 2);
    m_progressPanes->setStretchFactor(1, 3);
    return m_progressPanes;
}

} // namespace quillet::practice_window
