#include "desktop/files/wav_check.h"
#include "desktop/services/desktop_sound_bank.h"
#include "desktop/services/observer_link.h"
#include "host/disk_file_service.h"
#include "host/log_capture.h"
#include "services_host.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

class SoundTest : public testing::Test {
  protected:
    SoundTest() { link_.observer = &observer_; }

    DiskFileService files_;
    test::FakePaths paths_;
    SoundOptions options_;
    ObserverLink link_;
    test::ScriptedObserver observer_;
    DesktopSoundBank sounds_{files_, paths_, options_, link_};
    LogCapture log_;
};

TEST_F(SoundTest, IsHeardUnderItsName) {
    sounds_.Play("clapping", 0);
    sounds_.PlayFile("sounds\\ex.wav", 0);
    sounds_.Signal(2);
    EXPECT_EQ(observer_.sounds,
              (std::vector<std::string>{"clapping", "sounds\\ex.wav", "signal 2"}));
}

TEST_F(SoundTest, OnlyModeTwoIsSilent) {
    for (const int mode : {0, 1, 2, 3}) {
        options_.Mode = mode;
        sounds_.Signal(1);
    }
    EXPECT_EQ(observer_.sounds.size(), 3U);
}

TEST_F(SoundTest, WhatIsMissingIsReportedOnce) {
    paths_.path = "/gibt/es/nicht/";
    for (int i = 0; i < 3; ++i) {
        sounds_.Play("clapping", 0);
    }
    // Either the device or the file is missing; each has its one line.
    EXPECT_EQ(log_.lines.size(), 1U);
}

TEST_F(SoundTest, AFileThatIsCutShortIsNoSound) {
    const std::string whole =
        files_.read(QUENDAL_SOURCE_DIR "/data/sounds/collide.wav").value_or("");
    EXPECT_EQ(wavFault(whole), "");
    for (const std::size_t size : {whole.size() - 1, whole.size() / 2, std::size_t{40}}) {
        EXPECT_EQ(wavFault(whole.substr(0, size)), "die Datei bricht mittendrin ab") << size;
    }
    EXPECT_EQ(wavFault(""), "das ist keine WAV-Datei");
    std::string compressed = whole;
    constexpr std::size_t kKindOfSamples = 20;
    compressed[kKindOfSamples] = 2;
    EXPECT_EQ(wavFault(compressed), "diese Art von WAV-Datei kennt das Programm nicht");
}

} // namespace
} // namespace quendal
