#include "practice_window/practice_window.h"

#include "faults/run_time_error.h"
#include "platform/file_exists.h"
#include "platform/number_keys.h"
#include "practice_window/chart_file.h"
#include "practice_window/message_strip.h"
#include "practice_window/practice_menus.h"
#include "practice_window/preferences_dialog.h"
#include "screens/help_viewer.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSplitter>

#include <utility>

namespace quillet::practice_window
{

namespace
{

constexpr const char* hint =
    "Choose the cards to hold, with the mouse or the keys 1 to 5. Space or "
    "Enter answers; hold nothing to draw five new cards.";
constexpr const char* examHint = "There is no comment during an exam. Each mistake is explained at "
                                 "its end.";

} // namespace

PracticeWindow::PracticeWindow(const Surroundings& surroundings)
    : m_surroundings(surroundings), m_cues([this] { return m_preferences.sound; },
                                           surroundings.programFolder, surroundings.sound),
      m_title(new QLabel), m_progress(new QLabel), m_cards(new CardRow), m_answer(new QPushButton),
      m_feedback(new FeedbackPanel), m_messages(new MessageStrip), m_columns(new QSplitter),
      m_progressPanes(new QSplitter)
{
    const LoadedPreferences loaded = loadPracticePreferences(m_surroundings.store);
    m_preferences = loaded.preferences;
    m_problems = loaded.problems.join('\n');
    m_decisions.tick(m_preferences.ticked);
    layOut();
    makeMenus(*this);
    connect(m_answer, &QPushButton::clicked, this, &PracticeWindow::answerOrGoOn);
    connect(&m_decisions, &DecisionModel::tickedChanged, this, &PracticeWindow::practiseTicked);
    ask(practice::firstQuestion(m_surroundings.seed));
    callTeacher({});
}

PracticeWindow::~PracticeWindow() = default;

void PracticeWindow::callTeacher(std::optional<std::vector<practice::JournalEntry>> past)
{
    m_teacher.reset();
    charts::Chart chart = chartToJudgeBy();
    const auto judgedBy = chart.empty() ? practice::JudgedBy::perfect : m_preferences.standard;
    m_learning =
        learn(m_surroundings, {m_preferences.pays, judgedBy, std::move(chart), m_surroundings.seed},
              std::move(past), [this] {
                  QMetaObject::invokeMethod(
                      this, [this] { static_cast<void>(teacher()); }, Qt::QueuedConnection);
              });
}

practice::Teacher& PracticeWindow::teacher()
{
    if (m_learning.valid())
        takeTeacher();
    return *m_teacher;
}

void PracticeWindow::takeTeacher()
{
    Learned learned = m_learning.get();
    m_teacher = std::move(learned.teacher);
    m_messages->show("settings", std::exchange(m_problems, {}));
    const QString path = QString::fromStdString(m_surroundings.journal.string());
    if (learned.trouble)
        m_messages->show("journal", QString("The journal %1 cannot be read: %2.")
                                        .arg(path, learned.trouble.message().c_str()));
    else if (learned.unreadable > 0)
        m_messages->show("journal", QString("%1 %2 of the journal %3 cannot be read. They are "
                                            "skipped, and stay in the file.")
                                        .arg(learned.unreadable)
                                        .arg(learned.unreadable == 1 ? "line" : "lines", path));
    m_decisions.use(m_teacher->sharedCourse(), m_teacher->record());
    m_history.begin(m_teacher->sharedCourse(), m_teacher->answers());
    practiseTicked();
}

charts::Chart PracticeWindow::chartToJudgeBy()
{
    m_messages->show("chart", {});
    if (m_preferences.standard == practice::JudgedBy::perfect)
        return {};
    if (m_preferences.standard == practice::JudgedBy::trainer)
        return charts::trainersChart();
    const ChartFile file = readChartFile(QString::fromStdString(m_preferences.chartFile));
    if (!file.problem.isEmpty())
        m_messages->show("chart", file.problem + " Answers are judged by perfect play.");
    return file.chart;
}

void PracticeWindow::ask(const practice::Question& question)
{
    m_question = question;
    m_answered = false;
    m_cards->show(question.cards);
    m_answer->setText("Answer");
    m_feedback->showHint(m_exam ? examHint : hint);
    m_title->setText("Which cards do you hold?");
    m_title->setAccessibleName(m_title->text() + ' ' + m_cards->spokenCards());
    showProgress();
    // A screen reader reads what has the focus. All keys work from here.
    m_title->setFocus();
}

void PracticeWindow::askNext()
{
    ask(m_exam ? teacher().questions().nextOfExam() : teacher().next());
}

void PracticeWindow::showProgress()
{
    QString text = m_asked == 0 ? QString() : QString("%1 of %2 right").arg(m_right).arg(m_asked);
    if (m_exam)
        text = QString("Exam: question %1 of %2").arg(m_exam->answered() + 1).arg(Exam::questions);
    m_progress->setText(text);
}

void PracticeWindow::answerOrGoOn()
{
    if (m_answered)
        askNext();
    else
        answer();
}

void PracticeWindow::answer()
{
    const practice::Verdict verdict =
        teacher().answer(m_question, m_cards->held(), m_surroundings.now());
    keepInJournal(verdict);
    m_decisions.update(verdict.answer.decision, m_teacher->record());
    m_history.follow(m_teacher->answers());
    if (!m_exam)
        return explain(verdict);
    m_exam->add(verdict);
    if (m_exam->isOver())
        endExam();
    else
        askNext();
}

void PracticeWindow::explain(const practice::Verdict& verdict)
{
    m_answered = true;
    ++m_asked;
    m_right += verdict.judgement.right ? 1 : 0;
    m_cards->setAnswered(true);
    m_answer->setText("Next question");
    showProgress();
    m_feedback->show(verdict, m_question.cards);
    playCue(verdict.judgement.right);
}

void PracticeWindow::keepInJournal(const practice::Verdict& verdict)
{
    const std::error_code trouble =
        appendToJournal(m_surroundings.journal, m_teacher->entries().back(),
                        practice::notesOn(m_teacher->course(), verdict));
    if (trouble)
        m_messages->show(
            "saving", QString("Your answer was not saved in %1: %2. It still counts until you "
                              "close this window.")
                          .arg(m_surroundings.journal.string().c_str(), trouble.message().c_str()));
    else
        m_messages->show("saving", {});
}

void PracticeWindow::playCue(bool right)
{
    const Cue cue = right ? Cue::smallWin : Cue::wrong;
    const std::string file = m_cues.pathOf(cue);
    const bool missing = m_preferences.sound && !FileExists(file);
    m_messages->show("sound",
                     missing ? QString("The sound %1 is missing.").arg(file.c_str()) : QString());
    m_cues.play(cue);
}

void PracticeWindow::startExam()
{
    static_cast<void>(teacher());
    m_exam.emplace(m_preferences.passMark);
    practiseTicked();
    emit examChanged(true);
    askNext();
}

void PracticeWindow::stopExam()
{
    const auto really = QMessageBox::question(
        this, "Exam", "Stop the exam? Your answers so far are kept, but there is no result.");
    if (really != QMessageBox::Yes || !m_exam)
        return;
    m_exam.reset();
    emit examChanged(false);
    practiseTicked();
    askNext();
}

void PracticeWindow::endExam()
{
    const Exam exam = std::move(*m_exam);
    m_exam.reset();
    emit examChanged(false);
    practiseTicked();
    exam.showResult(this);
    askNext();
}

// An exam asks as the real game does, whatever is ticked.
void PracticeWindow::practiseTicked()
{
    if (m_teacher != nullptr)
        m_teacher->questions().practise(m_exam ? std::vector<practice::DecisionId>()
                                               : m_decisions.ticked());
}

void PracticeWindow::choosePreferences()
{
    PreferencesDialog dialog(m_preferences, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_preferences = dialog.preferences();
    savePreferences();
    callTeacher(teacher().entries());
}

void PracticeWindow::savePreferences()
{
    m_preferences.ticked = m_decisions.tickedNames();
    m_preferences.windowPlace = saveGeometry().toBase64().toStdString();
    m_preferences.columns = m_columns->saveState().toBase64().toStdString();
    m_preferences.progressPanes = m_progressPanes->saveState().toBase64().toStdString();
    try {
        savePracticePreferences(m_preferences, m_surroundings.store);
        m_messages->show("settings", {});
    } catch (const RunTimeError& error) {
        m_messages->show("settings", QString("The preferences were not saved: %1.")
                                         .arg(QString::fromStdString(error.what())));
    }
}

void PracticeWindow::showHelp()
{
    HelpViewer::present(this, m_surroundings.openPage,
                        QString::fromStdString(m_surroundings.programFolder + "/practice.hlp"));
}

void PracticeWindow::showAbout()
{
    QMessageBox::about(this, "About Quillet Practice",
                       "<h3>Quillet Practice " QUILLET_VERSION
                       "</h3><p>Practise the decisions of Jacks or Better that you get wrong.</p>"
                       "<p>Part of Quillet, free software under the MIT licence.</p>");
}

void PracticeWindow::closeEvent(QCloseEvent* event)
{
    savePreferences();
    event->accept();
}

void PracticeWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    m_cards->setMaxHeight(height() * 2 / 5);
}

void PracticeWindow::keyPressEvent(QKeyEvent* event)
{
    const std::optional<int> digit = digitOfKey(*event, QGuiApplication::platformName());
    const int key = event->key();
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool answers = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    const bool pressed = !event->isAutoRepeat();
    if (pressed && digit && *digit >= 1 && *digit <= 5)
        m_cards->toggle(*digit - 1);
    else if (pressed && plain && answers)
        answerOrGoOn();
    else
        QMainWindow::keyPressEvent(event);
}

} // namespace quillet::practice_window
