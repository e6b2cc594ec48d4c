#include "sound/audio_device.h"
#include "sound/sdl_sound_output.h"
#include "tests/kit/file_text.h"
#include "tests/sound/sound_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace quillet::test
{

namespace
{

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// SDL's disk driver writes the sound to a file, at the pace of a real device.
class Recorder
{
public:
    explicit Recorder(const TemporaryFolder& folder) : m_path(folder.file("heard.raw"))
    {
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", m_path.c_str(), 1);
    }

    // Milliseconds of samples with this value so far.
    [[nodiscard]] int heard(std::int16_t value) const
    {
        const std::string bytes = fileText(m_path);
        std::vector<std::int16_t> samples(bytes.size() / 2);
        std::copy_n(bytes.begin(), samples.size() * 2, reinterpret_cast<char*>(samples.data()));
        return static_cast<int>(std::count(samples.begin(), samples.end(), value) / 96);
    }

    // Waits until there are this many.
    [[nodiscard]] bool hears(std::int16_t value, int milliseconds) const
    {
        const auto giveUp = Clock::now() + 20s;
        while (heard(value) < milliseconds && Clock::now() < giveUp)
            std::this_thread::sleep_for(5ms);
        return heard(value) >= milliseconds;
    }

private:
    std::string m_path;
};

// A sound server that accepts the connection and never answers.
class SilentServer
{
public:
    explicit SilentServer(const std::string& path) : m_socket(socket(AF_UNIX, SOCK_STREAM, 0))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.copy(address.sun_path, sizeof(address.sun_path) - 1);
        EXPECT_EQ(bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
        listen(m_socket, 4);
    }
    ~SilentServer() { close(m_socket); }
    SilentServer(const SilentServer&) = delete;
    SilentServer& operator=(const SilentServer&) = delete;

    [[nodiscard]] bool isCalledWithin(std::chrono::milliseconds time) const
    {
        pollfd call{m_socket, POLLIN, 0};
        return poll(&call, 1, static_cast<int>(time.count())) == 1;
    }

private:
    int m_socket;
};

} // namespace

TEST(SdlSoundOutput, everyCueCutsOffTheOneThatSoundsEvenABrokenOne)
{
    const TemporaryFolder folder;
    const Recorder recorder(folder);
    const auto first = folder.file("1.wav", flatWave(1000, 8000));
    const auto second = folder.file("2.wav", flatWave(2000, 8000));
    const auto broken = folder.file("broken.wav", "RIFF, but no more than that");
    const auto last = folder.file("3.wav", flatWave(3000, 100));
    SdlSoundOutput output;
    output.play(first);
    EXPECT_TRUE(recorder.hears(1000, 50));
    output.play(second);
    EXPECT_TRUE(recorder.hears(2000, 50));
    output.play(broken);
    EXPECT_TRUE(recorder.hears(0, 200));
    // Of several at once, only the last sounds.
    for (const std::string& path : {first, second, last})
        output.play(path);
    EXPECT_TRUE(recorder.hears(3000, 90));
    EXPECT_LT(recorder.heard(1000), 4000);
    EXPECT_LT(recorder.heard(2000), 4000);
}

TEST(SdlSoundOutput, opensTheDeviceBeforeTheCueThatFollows)
{
    const TemporaryFolder folder;
    const Recorder recorder(folder);
    SdlSoundOutput output;
    output.prepare();
    EXPECT_TRUE(recorder.hears(0, 20)) << "silence";
    output.play(folder.file("cue.wav", flatWave(1000, 200)));
    output.prepare();
    EXPECT_TRUE(recorder.hears(1000, 150)) << "to be ready is less than a cue that waits";
}

TEST(SdlAudioDevice, machineWithoutSoundIsNoDeviceAndNoMessage)
{
    setenv("AUDIODEV", "no-such-device", 1);
    for (const char* driver : {"alsa", "no-such-driver"}) {
        setenv("SDL_AUDIODRIVER", driver, 1);
        CueMixer mixer;
        testing::internal::CaptureStderr();
        EXPECT_FALSE(openSdlDevice(mixer)) << driver;
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << driver;
    }
    CueMixer mixer;
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    EXPECT_TRUE(openSdlDevice(mixer)) << "a sound server that starts later is found";
}

TEST(SdlSoundOutput, nobodyWaitsForAServerThatNeverAnswers)
{
    const TemporaryFolder folder;
    const SilentServer server(folder.file("server"));
    setenv("SDL_AUDIODRIVER", "pulseaudio", 1);
    setenv("PULSE_SERVER", ("unix:" + folder.file("server")).c_str(), 1);
    const auto cue = folder.file("cue.wav", flatWave(1000, 100));
    {
        SdlSoundOutput output;
        output.play(cue);
        ASSERT_TRUE(server.isCalledWithin(10s));
        const auto start = Clock::now();
        for (int i = 0; i < 1000; ++i)
            output.play(cue);
        output.stop();
        EXPECT_LT(Clock::now() - start, 1s);
    }
    EXPECT_TRUE(server.isCalledWithin(0s));
}

} // namespace quillet::test
