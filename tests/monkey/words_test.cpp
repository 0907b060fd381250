#include "host/number_service.h"
#include "monkey/monkey_words.h"
#include "monkey/session_settings.h"
#include "script/script.h"
#include "script/script_words.h"
#include "script/step_reader.h"

#include <gtest/gtest.h>

namespace quendal::test {
namespace {

TEST(MonkeyWords, EveryTextIsOneWordOfAScriptAndComesBackWhole) {
    Chance chance(7);
    for (int i = 0; i < 5000; ++i) {
        const std::string text = i % 2 == 0 ? anyText(chance) : anyTeacherText(chance);
        std::string fault;
        const auto words = splitWords("type txt_Ph " + scriptWord(text), fault);
        ASSERT_TRUE(words) << text << ": " << fault;
        ASSERT_EQ(words->size(), 3U) << text;
        ASSERT_EQ(words->back(), text);
    }
}

TEST(MonkeyWords, EveryCharacterIsAKeyOfAScript) {
    Chance chance(8);
    for (int i = 0; i < 500; ++i) {
        std::string fault;
        StepKind step;
        const auto words = splitWords("key " + scriptWord(anyCharacter(chance)), fault);
        ASSERT_TRUE(words && readStep(*words, step, fault)) << fault;
    }
}

TEST(MonkeyWords, MostNumbersAreNumbers) {
    Chance chance(9);
    int numbers = 0;
    for (int i = 0; i < 1000; ++i) {
        numbers += NumberService().ParseVariant(anyNumber(chance)) ? 1 : 0;
    }
    EXPECT_GT(numbers, 900);
}

TEST(SessionSettings, AreTheBeginningOfAScript) {
    Chance chance(10);
    for (int i = 0; i < 2000; ++i) {
        const char* forms[] = {"", "frm_AppMagnify", "frm_AppIntro", "frm_AppMainWeak"};
        const std::string form = forms[i % 4];
        std::string text;
        for (const std::string& line : anySettings(chance, form)) {
            text += line + "\n";
        }
        ScriptFault fault;
        const auto script = parseScript(text + "start\n", fault);
        ASSERT_TRUE(script) << text << fault.message;
        EXPECT_EQ(script->settings.form.has_value(), playsAlone(form));
        EXPECT_TRUE(form.empty() || !script->settings.control.contains("MODUS"));
    }
}

TEST(Chance, IsTheSameForTheSameSeed) {
    Chance one(5);
    Chance other(5);
    Chance third(6);
    bool differs = false;
    for (int i = 0; i < 100; ++i) {
        const std::uint64_t number = one.next();
        EXPECT_EQ(number, other.next());
        differs = differs || number != third.next();
    }
    EXPECT_TRUE(differs);
    // The first number of the published generator for the seed 0.
    EXPECT_EQ(Chance(0).next(), 0xe220a8397b1dcdafU);
}

} // namespace
} // namespace quendal::test
