#pragma once

#include "practice_window/card_row.h"
#include "practice_window/decision_model.h"
#include "practice_window/exam.h"
#include "practice_window/feedback_panel.h"
#include "practice_window/learning.h"
#include "practice_window/practice_preferences.h"
#include "practice_window/return_history.h"
#include "sound/game_cues.h"

#include <QMainWindow>

class QLabel;
class QPushButton;
class QSplitter;

namespace quillet::practice_window
{

class MessageStrip;

// The main window: asks, takes an answer, explains it, and asks again.
class PracticeWindow : public QMainWindow
{
    Q_OBJECT

public:
    // Begins with a question at once. A teacher for the others gets ready on a thread.
    explicit PracticeWindow(const Surroundings& surroundings);
    ~PracticeWindow() override;

    [[nodiscard]] const practice::Question& question() const { return m_question; }
    [[nodiscard]] DecisionModel& decisions() { return m_decisions; }

    // Answers with the held cards, or goes on to the next question.
    void answerOrGoOn();
    void startExam();
    void stopExam();
    void choosePreferences();
    void showHelp();
    void showAbout();

    // Waits for the teacher.
    practice::Teacher& teacher();

signals:
    void examChanged(bool underWay);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut();
    void orderTabs();
    [[nodiscard]] QWidget* layOutQuestion();
    [[nodiscard]] QWidget* layOutProgress();

    void callTeacher(std::optional<std::vector<practice::JournalEntry>> past);
    void takeTeacher();
    [[nodiscard]] charts::Chart chartToJudgeBy();

    void ask(const practice::Question& question);
    void askNext();
    void answer();
    void explain(const practice::Verdict& verdict);
    void endExam();
    void keepInJournal(const practice::Verdict& verdict);
    void playCue(bool right);
    void practiseTicked();
    void savePreferences();
    void showProgress();

    Surroundings m_surroundings;
    PracticePreferences m_preferences;
    QString m_problems; // of the preferences; readers hear of them once the window is on screen
    GameCues m_cues;
    DecisionModel m_decisions;
    ReturnHistory m_history;
    std::unique_ptr<practice::Teacher> m_teacher;
    std::future<Learned> m_learning; // while a teacher gets ready
    practice::Question m_question;
    bool m_answered = false;
    int m_asked = 0; // since the start
    int m_right = 0;
    std::optional<Exam> m_exam;

    QLabel* m_title;
    QLabel* m_progress;
    CardRow* m_cards;
    QPushButton* m_answer;
    FeedbackPanel* m_feedback;
    MessageStrip* m_messages;
    QSplitter* m_columns;
    QSplitter* m_progressPanes;
};

} // namespace quillet::practice_window
