// Plays a hand in the real window and writes what the player sees: the table before the deal, a
// dealt hand, a refused hold and a paid hand. See the target documentation_pictures.

#include "engine/deck.h"
#include "engine/hand_evaluation.h"
#include "engine/random.h"
#include "main_window/frm_main.h"
#include "platform/browser_opener.h"
#include "platform/message_error_box.h"
#include "platform/system_clock.h"
#include "settings/text_file_store.h"
#include "sound/sdl_sound_output.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace
{

using namespace quillet;

constexpr std::int16_t twoPair = 10;
constexpr std::int16_t fullHouse = 4;

// The two pairs of a hand that is drawn to a full house.
std::array<bool, 5> pairsOf(const std::array<Card, 5>& hand)
{
    std::array<bool, 5> paired{};
    for (std::size_t slot = 0; slot < hand.size(); ++slot)
        paired[slot] = std::ranges::count(hand, hand[slot].rank, &Card::rank) == 2;
    return paired;
}

bool makesTheHand(const PokerDeck& deck)
{
    std::array<Card, 5> hand = dealHand(deck);
    if (EvaluatePokerHand(hand, false) != twoPair)
        return false;
    drawReplacements(hand, deck, pairsOf(hand));
    return EvaluatePokerHand(hand, true) == fullHouse;
}

// The deck of the hand that is photographed.
class PhotographedDeck : public DeckSource
{
public:
    PhotographedDeck()
    {
        for (std::uint64_t seed = 1; !makesTheHand(m_deck); ++seed) {
            BlendingRandom random([] { return std::uint64_t{0}; }, seed);
            shuffleDeck(m_deck, random);
        }
    }
    [[nodiscard]] PokerDeck nextDeck() override { return m_deck; }

private:
    PokerDeck m_deck = buildDeck();
};

class Photographer
{
public:
    explicit Photographer(const QString& folder) : m_folder(folder)
    {
        for (const auto& [key, text] : {std::pair{"prfAnimationDelay", "300"},
                                        {"prfAnimation", "False"},
                                        {"prfSound", "False"},
                                        {"prfPokerAutoDeal", "False"},
                                        {"prfShowPokerPlay", "False"}})
            m_store.writeSetting("Quillet", "Preferences", key, text);
    }

    bool run()
    {
        if (!m_window.Form_Load())
            return false;
        takePicture("dealt");
        const std::array<bool, 5> pairs = pairsOf(m_window.handState().hand);
        const auto first = std::ranges::find(pairs, true) - pairs.begin();
        m_window.picPoker_MouseDown(static_cast<std::int16_t>(first));
        m_window.picDeal_Click(0);
        takePicture("refused");
        for (std::int16_t slot = 0; slot < 5; ++slot)
            if (pairs[static_cast<std::size_t>(slot)])
                m_window.picPoker_MouseDown(slot);
        m_window.picDeal_Click(0);
        takePicture("paid");
        return m_written;
    }

private:
    // Nothing is waited for; before the first deal the status text has faded in.
    void pause(std::int32_t delayTime)
    {
        QCoreApplication::processEvents();
        if (delayTime == 1000)
            takePicture("before");
    }

    void takePicture(const char* what)
    {
        const char* scale = m_window.devicePixelRatioF() > 1 ? "@2x" : "";
        const QString file = QStringLiteral("table-%1%2.png").arg(QLatin1String(what), scale);
        m_written = m_window.grab().toImage().save(m_folder.filePath(file)) && m_written;
    }

    QDir m_folder;
    QTemporaryDir m_config;
    TextFileStore m_store{m_config.path()};
    BrowserOpener m_pages;
    SdlSoundOutput m_sound;
    MessageErrorBox m_errorBox;
    SystemClock m_clock;
    PhotographedDeck m_decks;
    Surroundings m_surroundings{m_store,
                                m_pages,
                                m_sound,
                                m_errorBox,
                                m_clock,
                                m_decks,
                                {},
                                QUILLET_PROGRAM_FOLDER,
                                [this](std::int32_t delayTime, const auto&) { pause(delayTime); },
                                [](int) {}};
    frmMain m_window{m_surroundings};
    bool m_written = true;
};

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: table_pictures FOLDER\n");
        return 2;
    }
    const bool written = Photographer(QString::fromLocal8Bit(argv[1])).run();
    if (!written)
        std::fprintf(stderr, "table_pictures: cannot write to %s\n", argv[1]);
    std::fflush(nullptr);
    std::_Exit(written ? EXIT_SUCCESS : EXIT_FAILURE); // closing would show the exit screen
}
