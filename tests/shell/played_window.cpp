#include "tests/shell/played_window.h"

#include "platform/picture_box.h"

#include <QAction>
#include <QLabel>

namespace quillet::test
{

PlayedWindow::PlayedWindow()
{
    store.texts = {{"prfAnimation", "False"},
                   {"prfPokerAutoDeal", "False"},
                   {"prfShowPokerPlay", "False"},
                   {"prfAnimationDelay", "300"},
                   {"prfScrollVal", "700"}};
}

bool PlayedWindow::start(std::string_view tenCards)
{
    desktop = std::make_unique<Desktop>(
        Desktop{store,
                shell,
                *this,
                *this,
                clock,
                random,
                {},
                programFolder,
                [this](std::int32_t delayTime, const std::function<bool()>& cutShort) {
                    pause(delayTime, cutShort);
                },
                [this](int code) { ended.push_back(code); }});
    random.stack(tenCards);
    window = std::make_unique<frmMain>(*desktop);
    return window->Form_Load();
}

void PlayedWindow::in(int milliseconds, std::function<void()> act)
{
    m_due.emplace(m_now + milliseconds, std::move(act));
}

void PlayedWindow::pause(std::int32_t delayTime, const std::function<bool()>& cutShort)
{
    QCoreApplication::processEvents();
    const int until = m_now + delayTime;
    while (!m_due.empty() && m_due.begin()->first <= until && !cutShort()) {
        auto next = m_due.extract(m_due.begin());
        m_now = std::max(m_now, next.key());
        next.mapped()();
        QCoreApplication::processEvents();
    }
    if (!cutShort())
        m_now = std::max(m_now, until);
}

QString PlayedWindow::useOwnFolder()
{
    programFolder = m_ownFolder.path().toStdString();
    QDir(m_ownFolder.path()).mkdir("pics");
    return m_ownFolder.path();
}

void PlayedWindow::choose(const char* menuEntry)
{
    window->findChild<QAction*>(menuEntry)->trigger();
}

void PlayedWindow::draw(std::string_view heldSlots)
{
    for (const char digit : heldSlots)
        clickCard(digit - '1');
    clickDeck();
}

QWidget& PlayedWindow::part(const std::string& name)
{
    return control(*window, QString::fromStdString(name));
}

std::string PlayedWindow::counters()
{
    QString all;
    for (const char* name : {"lblTotal", "lblHands", "lblWon"})
        all += (all.isEmpty() ? "" : "/") + control<QLabel>(*window, name).text();
    return all.toStdString();
}

std::string PlayedWindow::cards()
{
    QStringList all;
    for (int slot = 0; slot < 5; ++slot)
        all += part("picPoker" + std::to_string(slot)).accessibleName().mid(8);
    return all.join("; ").toStdString();
}

bool PlayedWindow::waitsForDraw()
{
    // Only then a card takes a hold.
    const std::string before = cards();
    clickCard(4);
    const bool waits = cards() != before;
    clickCard(4);
    return waits;
}

QRect PlayedWindow::placeOf(const std::string& name)
{
    QWidget& widget = part(name);
    return {widget.mapTo(window.get(), QPoint(0, 0)), widget.size()};
}

std::string PlayedWindow::rowColor(int playCode)
{
    const QRect row = placeOf("pkLabel" + std::to_string(playCode - 1));
    return picture().pixelColor(row.topLeft() + QPoint(2, 2)).name().toStdString();
}

void PlayedWindow::play(const std::string& path)
{
    sounds.push_back(path.substr(path.find_last_of('/') + 1));
}

} // namespace quillet::test
