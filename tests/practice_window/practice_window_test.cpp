#include "practice_window/practice_window.h"
#include "screens/help_page.h"
#include "tests/kit/file_text.h"
#include "tests/kit/memory_store.h"
#include "tests/kit/practice_game.h"
#include "tests/kit/window_driving.h"

#include <QAbstractItemView>
#include <QAbstractTextDocumentLayout>
#include <QAccessible>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTimer>
#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <string>

namespace quillet::practice_window::test
{

namespace
{

using namespace quillet::test;
using testing::HasSubstr;

struct Silence : SoundOutput {
    void prepare() override {}
    void play(const std::string&) override {}
};

// A player at the window, with a separate journal and settings.
struct PracticeTest : testing::Test {
    void open()
    {
        store.section = "Practice";
        window = std::make_unique<PracticeWindow>(Surroundings{
            .store = store,
            .openPage = std::ref(shell),
            .sound = sound,
            .rules = charts::parseChart(fileText(QUILLET_CHARTS_FOLDER "/perfect.chart")),
            .journal = journal,
            .programFolder = folder.path().toStdString(),
            .seed = 5,
            .now = [] { return std::chrono::sys_days(std::chrono::January / 2 / 2026); }});
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    void press(int key) { QTest::keyClick(window->windowHandle(), Qt::Key(key)); }
    QString text(const char* name) { return control<QLabel>(*window, name).text(); }
    QString answerButton() { return control<QPushButton>(*window, "answer").text(); }

    // The deal as screen readers say it.
    odds::HeldDeal deal()
    {
        std::array<odds::DeckPlace, 5> places{};
        for (int slot = 0; slot < 5; ++slot)
            places[static_cast<std::size_t>(slot)] = place(slot);
        return odds::heldDeal(places, 0);
    }

    odds::DeckPlace place(int slot)
    {
        const std::string card = "card" + std::to_string(slot + 1);
        const QString name = control(*window, card.c_str()).accessibleName();
        static const QStringList ranks{"Ace",   "Two",  "Three", "Four", "Five",  "Six", "Seven",
                                       "Eight", "Nine", "Ten",   "Jack", "Queen", "King"};
        static const QStringList suits{"clubs", "diamonds", "hearts", "spades"};
        QStringList words = name.split(QChar(0x20));
        return static_cast<odds::DeckPlace>(suits.indexOf(words[4].remove(',')) * 13 +
                                            ranks.indexOf(words[2]));
    }

    // Presses the keys of the cards that perfect play holds, or of all others.
    void holdByKeys(bool right = true)
    {
        const odds::HeldDeal dealt = deal();
        const odds::DealtHand hand(practice::test::game().heldCards, dealt.places);
        for (int slot = 0; slot < 5; ++slot) {
            const auto at = std::ranges::find(dealt.places, place(slot)) - dealt.places.begin();
            if (((hand.bestHold >> at & 1U) != 0) == right)
                press(Qt::Key_1 + slot);
        }
    }

    QTemporaryDir folder;
    std::string journal = folder.filePath("state/practice.csv").toStdString();
    MemoryStore store;
    RecordingShell shell;
    Silence sound;
    std::unique_ptr<PracticeWindow> window;
};

} // namespace

TEST_F(PracticeTest, asksTakesAnAnswerByMouseExplainsItAndGoesOn)
{
    open();
    auto& card = control<CardButton>(*window, "card2");
    click(card);
    EXPECT_TRUE(card.isChecked());
    click(card);
    EXPECT_FALSE(card.isChecked());
    holdByKeys(false);
    click(control(*window, "answer"));
    EXPECT_THAT(text("headline").toStdString(), HasSubstr("Wrong: this costs"));
    EXPECT_THAT(text("reason").toStdString(), HasSubstr(" is worth "));
    EXPECT_THAT(text("rule").toStdString(), HasSubstr("Rule to remember: "));
    const odds::HeldDeal before = deal();
    press(Qt::Key_1);
    EXPECT_EQ(window->teacher().entries().size(), 1U) << "the cards stay while it is explained";
    press(Qt::Key_Return);
    EXPECT_NE(deal().places, before.places);
    EXPECT_EQ(answerButton(), "Answer");
    EXPECT_THAT(fileText(journal), HasSubstr("2026-01-02T00:00:00Z,"));
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return text("return").contains("You return about"); }, 20'000));
}

// A blind player has nothing but these words.
TEST_F(PracticeTest, tellsAScreenReaderTheCardsTheHoldsAndTheVerdict)
{
    open();
    const QString question = window->focusWidget()->accessibleName();
    EXPECT_TRUE(question.startsWith("Which cards do you hold? ")) << question.toStdString();
    EXPECT_EQ(question.count(" of "), 5);
    QWidget& card = control(*window, "card1");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&card)->role(), QAccessible::CheckBox);
    EXPECT_TRUE(card.accessibleName().startsWith("Card 1: "));
    press(Qt::Key_1);
    EXPECT_TRUE(card.accessibleName().endsWith(", held"));
    press(Qt::Key_1);
    holdByKeys();
    press(Qt::Key_Space);
    const QString verdict = window->focusWidget()->accessibleName();
    EXPECT_TRUE(verdict.startsWith("Right. ")) << verdict.toStdString();
    EXPECT_THAT(control(*window, "holdBars").accessibleName().toStdString(), HasSubstr("credits"));
}

TEST_F(PracticeTest, givesAWholeExamByKeyboardAlone)
{
    open();
    QTest::keyClick(window->windowHandle(), Qt::Key_E, Qt::ControlModifier);
    QString result;
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(text("progress"), QString("Exam: question %1 of 100").arg(i + 1));
        holdByKeys(i >= 4);
        if (i == 99)
            QTimer::singleShot(0, window.get(), [&result] {
                QWidget* dialog = QApplication::activeModalWidget();
                result = control<QLabel>(*dialog, "examHeadline").text();
                QTest::keyClick(dialog, Qt::Key_Escape);
            });
        press(Qt::Key_Return);
    }
    EXPECT_EQ(result, "Passed: 96 of 100 are right, 95 are needed.");
    EXPECT_EQ(answerButton(), "Answer");
    const std::string lines = fileText(journal);
    EXPECT_EQ(std::ranges::count(lines, '\n'), 101);
    EXPECT_THAT(lines, HasSubstr(",exam,perfect"));
}

TEST_F(PracticeTest, saysWhatIsWrongWithItsFilesAndLosesNothing)
{
    std::filesystem::create_directories(std::filesystem::path(journal).parent_path());
    std::ofstream(journal) << "time,deal,held,best,cost,decision,chosen,standard\n"
                              "2026-01-02T03:04:05Z,9c Tc Jc Kc Ad,nothing,9c Tc Jc Kc,1,a,exam,"
                              "perfect\nscribble\n";
    const QString chart = folder.filePath("my.chart");
    std::ofstream(chart.toStdString()) << "4 of a kind\n5 of a kind\n";
    store.texts = {{"standard", "chart"}, {"chartFile", chart.toStdString()}, {"pays", "9/9"}};
    open();
    EXPECT_EQ(window->teacher().entries().size(), 1U);
    const std::string message = text("message").toStdString();
    EXPECT_THAT(message, HasSubstr("\"9/9\" makes no sense for pays in memory"));
    EXPECT_THAT(message, HasSubstr("1 line of the journal"));
    EXPECT_THAT(message, HasSubstr("my.chart makes no sense: line 2"));
    store.fails = true;
    window->close();
    EXPECT_THAT(text("message").toStdString(), HasSubstr("The preferences were not saved"));
    EXPECT_THAT(fileText(journal), HasSubstr("scribble"));
}

TEST_F(PracticeTest, countsAnAnswerThatCannotBeSavedAndSaysSo)
{
    std::ofstream(folder.filePath("state").toStdString()) << "in the way";
    open();
    press(Qt::Key_Return);
    EXPECT_THAT(text("message").toStdString(), HasSubstr("was not saved in"));
    EXPECT_THAT(text("message").toStdString(), HasSubstr("/wavs/wrong.wav is missing."));
    EXPECT_EQ(window->teacher().entries().size(), 1U);
    EXPECT_EQ(answerButton(), "Next question");
}

TEST_F(PracticeTest, practisesTheTickedDecisionsOnlyAndKeepsTheTicks)
{
    open();
    auto& list = control<QAbstractItemView>(*window, "decisions");
    static_cast<void>(window->teacher());
    list.setCurrentIndex(list.model()->index(3, 0));
    list.setFocus();
    press(Qt::Key_Space);
    ASSERT_EQ(window->decisions().ticked().size(), 1U);
    press(Qt::Key_1);
    EXPECT_TRUE(control<CardButton>(*window, "card1").isChecked()) << "keys reach the cards";
    for (int i = 0; i < 12; ++i)
        press(Qt::Key_Return);
    const auto id = window->decisions().ticked().front();
    EXPECT_GE(window->teacher().record().answers(id), 5);
    EXPECT_THAT(text("decisionCounts").toStdString(), HasSubstr("Only the 1 ticked"));

    window->findChild<QSplitter*>()->setSizes({610, 346});
    const QList<int> columns = window->findChild<QSplitter*>()->sizes();
    window->close();
    open();
    static_cast<void>(window->teacher());
    EXPECT_THAT(window->decisions().ticked(), testing::ElementsAre(id));
    EXPECT_EQ(window->findChild<QSplitter*>()->sizes(), columns);
}

TEST_F(PracticeTest, judgesByTheStandardAndPayTableOfThePreferences)
{
    open();
    press(Qt::Key_Return);
    const double perfect = window->teacher().course().decisions.perfectReturn();
    QTimer::singleShot(0, window.get(), [] {
        QWidget* dialog = QApplication::activeModalWidget();
        control<QComboBox>(*dialog, "standard").setCurrentIndex(1);
        control<QComboBox>(*dialog, "pays").setCurrentText("8/5");
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    window->choosePreferences();
    EXPECT_EQ(store.texts.at("standard"), "trainer");
    EXPECT_LT(window->teacher().course().decisions.perfectReturn(), perfect - 0.02);
    EXPECT_EQ(window->teacher().entries().size(), 1U) << "earlier answers count";
    for (int i = 0; i < 2; ++i)
        press(Qt::Key_Return);
    EXPECT_EQ(window->teacher().entries().back().standard, practice::JudgedBy::trainer);
}

TEST_F(PracticeTest, showsItsOwnHelpWithAPictureAsWideAsThePage)
{
    ASSERT_TRUE(QFile::copy(QUILLET_HELP_FILE, folder.filePath("practice.hlp")));
    open();
    press(Qt::Key_F1);
    auto& page = control<HelpPage>(*window, "helpPage");
    QTextDocument& text = *page.document();
    const QTextBlock picture = text.find(QString(QChar::ObjectReplacementCharacter)).block();
    const QRectF place = text.documentLayout()->blockBoundingRect(picture);
    EXPECT_GT(place.height(), 200);
    EXPECT_LE(place.right(), page.viewport()->width());
}

} // namespace quillet::practice_window::test
