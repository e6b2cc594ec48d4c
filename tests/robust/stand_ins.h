#pragma once

#include "shell/frm_main.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include <map>
#include <random>
#include <string>
#include <vector>

namespace quillet::test
{

// Everything around the window, in memory. Its pauses take no real time: they move the clock and
// run whatever the test wants to happen in them. A port that is told to fail throws.
struct StandIns : SettingsStore, ShellOpen, SoundOutput, ErrorBox, Clock, RandomSource {
    StandIns()
    {
        QDir(folder.path()).mkdir("pics");
        putPicture(QSize(674, 354));
        settings = {{"prfPKBackground", "table.bmp"},
                    {"prfAnimationDelay", "0"},
                    {"prfAnimation", "False"}};
    }

    [[nodiscard]] QString picture() const { return folder.filePath("pics/table.bmp"); }
    void putPicture(QSize size) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        image.save(picture());
    }

    std::string readSetting(const std::string&, const std::string&, const std::string& key,
                            const std::string& defaultText) override
    {
        failIf("read");
        const auto found = settings.find(key);
        return found == settings.end() ? defaultText : found->second;
    }
    void writeSetting(const std::string&, const std::string&, const std::string& key,
                      const std::string& text) override
    {
        failIf("write");
        ++writes[key];
        settings[key] = text;
    }
    void open(const std::string&, const std::string&, const std::string&, const std::string&,
              int) override
    {
        failIf("open");
    }
    void play(const std::string& path) override { sounds.push_back(path); }
    void showError(const std::string& text) override { errors.push_back(text); }
    std::int64_t milliseconds() override { return now; }
    double seconds() override
    {
        failIf("clock");
        return static_cast<double>(now += 50) / 1000;
    }
    void reseed() override { failIf("random"); }
    double next() override { return std::uniform_real_distribution<>(0, 1)(chance); }

    void failIf(const std::string& port) const
    {
        if (port == failing)
            throw std::runtime_error("the wind");
    }

    std::mt19937 chance{1};
    QTemporaryDir folder;
    std::map<std::string, std::string> settings;
    std::map<std::string, int> writes;
    std::vector<std::string> errors;
    std::vector<std::string> sounds;
    std::vector<int> ends; // codes with which the process was to end
    std::int64_t now = 0;
    std::string failing;
    std::function<void(std::int32_t, const std::function<bool()>&)> inPause;

    Desktop desktop{*this,
                    *this,
                    *this,
                    *this,
                    *this,
                    *this,
                    {},
                    folder.path().toStdString(),
                    [this](std::int32_t delay, const std::function<bool()>& cutShort) {
                        if (inPause)
                            inPause(delay, cutShort);
                        QCoreApplication::processEvents();
                        now += delay;
                    },
                    [this](int code) { ends.push_back(code); }};
};

} // namespace quillet::test
