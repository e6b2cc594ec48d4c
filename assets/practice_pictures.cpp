// Answers 200 questions in the real practice window as a player of the trainer's chart would, and
// saves pictures of it: a right answer, a wrong one, a mistake of the chart itself, and ten
// questions on one sheet. practice_pictures FOLDER. Used by the target documentation_pictures.

#include "platform/browser_opener.h"
#include "platform/short_delay.h"
#include "practice_window/practice_window.h"
#include "settings/text_file_store.h"
#include "sound/sdl_sound_output.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPushButton>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace
{

using namespace quillet;
using namespace quillet::practice_window;

class Photographer
{
public:
    explicit Photographer(QString folder) : m_folder(std::move(folder))
    {
        m_store.save({{"Quillet", "Practice", "sound", "False"}});
    }

    void run()
    {
        writeJournal();
        PracticeWindow window(surroundings());
        window.resize(980, 600);
        window.show();
        static_cast<void>(window.teacher());
        // The thread behind the window draws the line of the return.
        shortDelay(3000);
        answerUntil(window, "practice-right", [](const practice::Verdict& verdict) {
            return verdict.judgement.right && verdict.hand.bestHold != 0;
        });
        const auto costs = [](const practice::Verdict& verdict) {
            return verdict.judgement.cost.value() > 0.3 && odds::cardsIn[verdict.held] > 1;
        };
        answerUntil(window, "practice-wrong", costs);
        showQuestions(window);

        m_store.save({{"Quillet", "Practice", "standard", "trainer"}});
        PracticeWindow byChart(surroundings());
        byChart.resize(window.size());
        byChart.show();
        answerUntil(byChart, "practice-chart", costs);
    }

private:
    Surroundings surroundings()
    {
        QFile rules(":/charts/perfect.chart");
        if (!rules.open(QIODevice::ReadOnly))
            std::exit(EXIT_FAILURE);
        return {.store = m_store,
                .openPage = openInBrowser,
                .sound = m_sound,
                .rules = charts::parseChart(rules.readAll().toStdString()),
                .journal = m_place.filePath("practice.csv").toStdString(),
                .programFolder = QCoreApplication::applicationDirPath().toStdString(),
                .seed = 11,
                .now = now};
    }

    static std::chrono::sys_seconds now()
    {
        return std::chrono::sys_days(std::chrono::January / 2 / 2026);
    }

    // As a player of the trainer's chart answers.
    void writeJournal()
    {
        const Surroundings around = surroundings();
        const auto course =
            std::make_shared<const practice::Course>(odds::trainersPays(), around.rules);
        practice::Teacher teacher(course, practice::Standard(), practice::JudgedBy::perfect, {}, 3);
        for (int i = 0; i < 200; ++i) {
            const practice::Question question = teacher.next();
            const auto verdict = teacher.answer(question, chartsHold(*course, question), now());
            static_cast<void>(appendToJournal(around.journal, teacher.entries().back(),
                                              practice::notesOn(*course, verdict)));
        }
    }

    // Of the cards as they were asked.
    static odds::Hold chartsHold(const practice::Course& course, const practice::Question& question)
    {
        static const practice::Standard chart(charts::trainersChart());
        const odds::HeldDeal deal = odds::heldDeal(question.cards, 0);
        const odds::DealtHand hand(course.heldCards, deal.places);
        const odds::Hold hold = chart.judge(hand, 0).bestAllowed;
        odds::Hold shown = 0;
        for (std::size_t slot = 0; slot < question.cards.size(); ++slot) {
            const auto at = std::ranges::find(deal.places, question.cards[slot]);
            shown |= (hold >> (at - deal.places.begin()) & 1U) << slot;
        }
        return shown;
    }

    template <typename Wanted>
    void answerUntil(PracticeWindow& window, const char* name, const Wanted& wanted)
    {
        auto& cards = *window.findChild<CardRow*>("cards");
        for (int i = 0; i < 400; ++i) {
            const odds::Hold hold = chartsHold(window.teacher().course(), window.question());
            for (std::size_t slot = 0; slot < 5; ++slot)
                cards.buttons()[slot]->setChecked((hold >> slot & 1U) != 0);
            const practice::Verdict verdict = practice::verdictOn(
                window.teacher().course(), {}, odds::heldDeal(window.question().cards, hold));
            window.answerOrGoOn();
            if (wanted(verdict)) {
                shortDelay(700);
                save(window.grab(), name);
                window.answerOrGoOn();
                return;
            }
            window.answerOrGoOn();
        }
    }

    void showQuestions(PracticeWindow& window)
    {
        auto& cards = *window.findChild<CardRow*>("cards");
        const QSize size = cards.size();
        QPixmap sheet(QSize(2 * size.width(), 5 * size.height()) * window.devicePixelRatioF());
        sheet.setDevicePixelRatio(window.devicePixelRatioF());
        sheet.fill(Qt::white);
        QPainter painter(&sheet);
        for (int i = 0; i < 10; ++i) {
            painter.drawPixmap(i % 2 * size.width(), i / 2 * size.height(), cards.grab());
            window.answerOrGoOn();
            window.answerOrGoOn();
        }
        painter.end();
        save(sheet, "practice-questions");
    }

    void save(const QPixmap& picture, const QString& name)
    {
        const char* scale = picture.devicePixelRatio() > 1 ? "@2x" : "";
        picture.toImage().save(QString("%1/%2%3.png").arg(m_folder, name, scale));
    }

    QString m_folder;
    QTemporaryDir m_place;
    TextFileStore m_store{m_place.path()};
    SdlSoundOutput m_sound;
};

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const QApplication application(argc, argv);
    if (argc != 2)
        return EXIT_FAILURE;
    Photographer(argv[1]).run();
    return EXIT_SUCCESS;
}
