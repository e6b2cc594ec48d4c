#include "tests/kit/played_window.h"

#include "faults/run_time_error.h"

#include <QDir>
#include <QFile>
#include <QLabel>

namespace quillet::test
{

PlayedWindow::PlayedWindow()
    : surroundings{.store = store,
                   .openPage = std::ref(pages),
                   .sound = sounds,
                   .errorBox = std::ref(errors),
                   .clock = *this,
                   .nextDeck = [this] { return nextDeck(); },
                   .programFolder = QUILLET_PROGRAM_FOLDER,
                   .shortDelay = std::bind_front(&PlayedWindow::pause, this),
                   .endProcess = [this](int code) { ended.push_back(code); }}
{
    store.texts = {{"prfAnimation", "False"},
                   {"prfPokerAutoDeal", "False"},
                   {"prfShowPokerPlay", "False"},
                   {"prfAnimationDelay", "300"},
                   {"prfScrollVal", "700"}};
}

bool PlayedWindow::start(std::string_view tenCards)
{
    decks.stack(tenCards);
    window = std::make_unique<frmMain>(surroundings);
    return window->Form_Load();
}

void PlayedWindow::pause(std::int32_t delayTime, const std::function<bool()>& cutShort)
{
    QCoreApplication::processEvents();
    clock.pass(delayTime, cutShort, [] { QCoreApplication::processEvents(); });
}

PokerDeck PlayedWindow::nextDeck()
{
    failAt("decks");
    return decks();
}

QString PlayedWindow::useOwnFolder()
{
    surroundings.programFolder = m_ownFolder.path().toStdString();
    QDir(m_ownFolder.path()).mkdir("pics");
    return m_ownFolder.path();
}

void PlayedWindow::usePicture(QSize size)
{
    store.texts["prfPKBackground"] = "table.bmp";
    QFile file(useOwnFolder() + "/pics/table.bmp");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    QImage image(size, QImage::Format_RGB32);
    image.fill(0x204020);
    size.isEmpty() ? void(file.write("no picture")) : void(image.save(&file, "BMP"));
}

void PlayedWindow::draw(std::string_view heldSlots)
{
    for (const char digit : heldSlots)
        clickCard(digit - '1');
    clickDeck();
}

std::string PlayedWindow::counters()
{
    QStringList all;
    for (const char* name : {"lblTotal", "lblHands", "lblWon"})
        all += control<QLabel>(*window, name).text();
    return all.join('/').toStdString();
}

std::string PlayedWindow::cards()
{
    QStringList all;
    for (int slot = 0; slot < 5; ++slot)
        all += part("picPoker" + std::to_string(slot)).accessibleName().mid(8);
    return all.join("; ").toStdString();
}

QImage PlayedWindow::picture()
{
    QCoreApplication::processEvents();
    return presented(*window);
}

QRect PlayedWindow::placeOf(const std::string& name)
{
    QWidget& widget = part(name);
    return {widget.mapTo(window.get(), QPoint(0, 0)), widget.size()};
}

std::string PlayedWindow::rowColour(int playCode)
{
    const QRect row = placeOf("pkLabel" + std::to_string(playCode - 1));
    return picture().pixelColor(row.topLeft() + QPoint(2, 2)).name().toStdString();
}

double PlayedWindow::processorSeconds() const
{
    failAt("clock");
    return static_cast<double>(clock.now += look) / 1000 / slowness;
}

void PlayedWindow::failAt(const char* port) const
{
    if (failing == port)
        throw RunTimeError("the wind");
}

} // namespace quillet::test
