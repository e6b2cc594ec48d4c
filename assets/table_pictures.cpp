// Plays the known hand in the real window and saves two pictures: a refused hold and a paid hand.
// Used by the target documentation_pictures.

#include "assets/known_hand.h"
#include "main_window/frm_main.h"
#include "platform/browser_opener.h"
#include "platform/error_box.h"
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

class Photographer
{
public:
    explicit Photographer(const QString& folder) : m_folder(folder)
    {
        m_store.save({{"Quillet", "Preferences", "prfAnimationDelay", "300"},
                      {"Quillet", "Preferences", "prfAnimation", "False"},
                      {"Quillet", "Preferences", "prfSound", "False"},
                      {"Quillet", "Preferences", "prfPokerAutoDeal", "False"},
                      {"Quillet", "Preferences", "prfShowPokerPlay", "False"}});
    }

    bool run()
    {
        if (!m_window.Form_Load())
            return false;
        m_window.picPoker_MouseDown(known_hand::ace);
        holdTheJacksAndDraw();
        takePicture("refused");
        holdTheJacksAndDraw();
        takePicture("paid");
        return m_written;
    }

private:
    void holdTheJacksAndDraw()
    {
        for (const std::int16_t slot : known_hand::jacks)
            m_window.picPoker_MouseDown(slot);
        m_window.picDeal_Click(0);
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
    SdlSoundOutput m_sound;
    SystemClock m_clock;
    Surroundings m_surroundings{
        .store = m_store,
        .openPage = openInBrowser,
        .sound = m_sound,
        .errorBox = showErrorBox,
        .clock = m_clock,
        .nextDeck = known_hand::deck,
        .programFolder = QUILLET_PROGRAM_FOLDER,
        // The pictures need no pauses.
        .shortDelay = [](std::int32_t, const auto&) { QCoreApplication::processEvents(); },
        .endProcess = [](int) {}};
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
