// What the monkey does to the whole program, told again as scripts.
#include "headless/play_headless.h"
#include "monkey/play_monkey.h"
#include "script/play_each.h"
#include "script/script.h"
#include "shell/entry.h"
#include "support/temporary_name.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

namespace quendal::test {
namespace {

const ProgramChooser kProgram = [](const ScriptSettings&, std::string&) {
    return ScriptProgram(runSession);
};

std::string played(std::uint64_t seed, const std::string& form) {
    std::ostringstream out;
    EXPECT_EQ(playMonkey({.seed = seed, .events = 2000, .form = form}, kProgram, out, std::cerr),
              0);
    return out.str();
}

TEST(MonkeyReplay, TheSameSeedPlaysTheSameToTheByte) {
    const std::string first = played(11, "");
    EXPECT_NE(first.find("\"events\":2000"), std::string::npos) << first;
    EXPECT_EQ(first, played(11, ""));
    EXPECT_NE(first, played(12, ""));
    EXPECT_NE(first, played(11, "frm_AppMainWeak"));
}

TEST(MonkeyReplay, EachSessionComesToTheSameEndAsAScript) {
    const auto folder = temporaryName("quendal-monkey-replay");
    std::filesystem::create_directory(folder);
    std::ostringstream out;
    ASSERT_EQ(playMonkey({.seed = 21,
                          .events = 6000,
                          .form = "",
                          .folder = folder.string(),
                          .keepScripts = true},
                         kProgram, out, std::cerr),
              0);
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        files.push_back(entry.path().string());
    }
    EXPECT_GT(files.size(), 3U);
    const int status = playEach(files, [](const std::string& file) {
        ScriptFault fault;
        const auto script = loadScript(file, fault);
        std::ostringstream transcript;
        return script ? playHeadless(
                            *script, {}, [] { runSession(""); }, transcript, std::cerr)
                      : 2;
    });
    EXPECT_EQ(status, 0);
    std::filesystem::remove_all(folder);
}

} // namespace
} // namespace quendal::test
