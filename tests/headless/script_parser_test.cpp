#include "script/script.h"
#include "script/script_words.h"
#include "support/temporary_name.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>

namespace quendal {
namespace {

std::vector<std::string> words(std::string_view line) {
    std::string fault;
    const auto found = splitWords(line, fault);
    return found ? *found : std::vector<std::string>{"fault: " + fault};
}

TEST(ScriptWords, AreSeparatedByBlanks) {
    EXPECT_EQ(words("  type\ttxt_Ph  0,00 "), (std::vector<std::string>{"type", "txt_Ph", "0,00"}));
    EXPECT_EQ(words(R"(type a "")"), (std::vector<std::string>{"type", "a", ""}));
    EXPECT_EQ(words(R"(x "a b" "\"\\\n\r")"), (std::vector<std::string>{"x", "a b", "\"\\\n\r"}));
    EXPECT_EQ(words(R"(sound sounds\ex.wav)"),
              (std::vector<std::string>{"sound", "sounds\\ex.wav"}));
}

TEST(ScriptWords, RefuseBrokenQuotes) {
    for (const char* line : {R"(a "b)", R"(a "b\)", R"(a "b\x")", R"(a "b"c)"}) {
        EXPECT_EQ(words(line).front().substr(0, 6), "fault:") << line;
    }
}

TEST(ScriptParser, ReadsAFormThatIsPlayedAlone) {
    ScriptFault fault;
    const auto script =
        parseScript("seed 2\nform frm_AppMagnify ShowAcid true SourceLeft 10\nstart\n", fault);
    ASSERT_TRUE(script) << fault.message;
    ASSERT_TRUE(script->settings.form);
    EXPECT_EQ(script->settings.form->line, 2);
    EXPECT_EQ(script->settings.form->name, "frm_AppMagnify");
    using Fields = std::vector<std::pair<std::string, std::string>>;
    EXPECT_EQ(script->settings.form->fields, (Fields{{"ShowAcid", "true"}, {"SourceLeft", "10"}}));
    EXPECT_FALSE(parseScript("start\n", fault)->settings.form);
    for (const char* broken : {"form", "form \"\"", "form frm_X Field", "form frm_X A 1 B"}) {
        EXPECT_FALSE(parseScript(std::string(broken) + "\nstart\n", fault)) << broken;
        EXPECT_EQ(fault.message, "malformed \"form\"");
        EXPECT_EQ(fault.line, 1);
    }
}

TEST(ScriptParser, ReadsSettings) {
    ScriptFault fault;
    const auto script = parseScript("\xef\xbb\xbf# a comment\r\n"
                                    "seed 18446744073709551615\r\n"
                                    "control con \"1.2\"\r\n"
                                    "user anna\nname \"Mia M\"\ndata some/where\n"
                                    "size 1920x1080\nsound 2\nlocale point\n"
                                    "answer yes\n\nstart\n",
                                    fault);
    ASSERT_TRUE(script) << fault.message;
    const ScriptSettings& settings = script->settings;
    EXPECT_EQ(settings.seed, 18446744073709551615U);
    EXPECT_EQ(settings.control.at("CON"), "1.2");
    EXPECT_EQ(settings.user, "anna");
    EXPECT_EQ(settings.name, "Mia M");
    EXPECT_EQ(settings.data, "some/where");
    EXPECT_EQ(settings.screen, (Size{1920, 1080}));
    EXPECT_EQ(settings.sound, 2);
    EXPECT_EQ(settings.sign, DecimalSign::Point);
    ASSERT_EQ(script->steps.size(), 2U);
    EXPECT_EQ(script->steps[1].line, 12);
}

TEST(ScriptParser, ReadsEveryCommand) {
    const char* lines[] = {
        "click but_CalcStep(3)",
        "click frm_X.but_Y",
        "type txt_Ph \"0,00\"",
        "key ENTER",
        "key ESC txt_Ph",
        "key TAB",
        "key 7 txt_Ph",
        "key \xc3\xa4",
        "choose SSTab1 3",
        "choose lst_Mol \"1.0\"",
        "check opt_X on",
        "check opt_X off",
        "mouse pic_Bowl 10 20.5",
        "mouse pic_Bowl 10 20.5 right",
        "menu mnu_FileNew",
        "close",
        "command ctl_Executor1 \"START\"",
        "answer yes",
        "answer no",
        "answer ok",
        "answer cancel",
        "answer text \"\"",
        "answer value 0,5",
        "answer value 1E-07",
        "answer preset 2",
        "wait 0.5",
        "settle",
        "settle 10",
        "until top == frm_X",
        "until form.vPhNow ~= 7 0.1 20",
        "print clock",
        "print series(2).joined",
        "expect series(1).line(2).intercept ~= 0.5 1e-9",
        "expect lab.text == 5",
        "expect lab.text != \"a b\"",
        "expect lab.text ~= 5 0.1",
        "expect box info Punktberechnung *",
        "expect nobox",
        "expect nosound",
        "expect noreport",
        "expect presets",
        "expect presets \"1 + 1\" 2",
        "expect sound \"signal 1\"",
        "expect sound signal 1",
        "expect report progress 1 0",
        "expect report result 900 1.3 \"Sehr gut\"",
        "expect form frm_X",
        "expect ended",
        "expect form.sStep == 3",
        "dump",
        "screenshot a.png",
    };
    for (const char* line : lines) {
        ScriptFault fault;
        const auto script = parseScript("start\n" + std::string(line), fault);
        ASSERT_TRUE(script) << line << ": " << fault.message;
        EXPECT_EQ(script->steps.back().text, line);
    }
}

TEST(ScriptParser, RefusesWhatIsMalformed) {
    const char* texts[] = {
        "",
        "# nothing",
        "seed 1",
        "start\nstart",
        "click but_X\nstart",
        "start\nseed 1",
        "seed -1\nstart",
        "seed x\nstart",
        "control CON\nstart",
        "size 100\nstart",
        "size 0x100\nstart",
        "size 100x1000000\nstart",
        "sound laut\nstart",
        "locale de\nstart",
        "name\nstart",
        "data \"\"\nstart",
        "start now",
        "start\njump",
        "start\nclick",
        "start\nclick a b",
        "start\nclick a(b)",
        "start\nclick a(",
        "start\nclick a.b.c",
        "start\ntype a",
        "start\ntype a b c",
        "start\nkey RETURN",
        "start\nkey \"\"",
        "start\nkey ab",
        "start\ncheck a true",
        "start\nmouse a 1",
        "start\nmouse a x 1",
        "start\nmouse a 1 1 middle",
        "start\nanswer",
        "start\nanswer maybe",
        "start\nanswer text",
        "start\nanswer yes no",
        "start\nanswer value viel",
        "start\nanswer preset 0",
        "start\nwait",
        "start\nwait -1",
        "start\nwait 1,5",
        "start\nsettle x",
        "start\nuntil top ==",
        "start\nuntil top == a b c d",
        "start\nuntil top < 3",
        "start\nprint",
        "start\nprint nothing",
        "start\nprint series(1).z",
        "start\nprint series(1).count(1)",
        "start\nprint series(1).x",
        "start\nprint series.name",
        "start\nprint series(1).line(1)",
        "start\nprint series(1).line.slope",
        "start\nprint series(1).line(1).length",
        "start\nprint series(1).line(1).slope(1)",
        "start\nprint beaker.size",
        "start\nprint host.Name",
        "start\nprint a..b",
        "start\nexpect",
        "start\nexpect a.text",
        "start\nexpect a.text = 5",
        "start\nexpect a.text ~= 5",
        "start\nexpect a.text ~= x 1",
        "start\nexpect box info",
        "start\nexpect box question a b",
        "start\nexpect nobox now",
        "start\nexpect sound",
        "start\nexpect report progress 1",
        "start\nexpect report progress a b",
        "start\nexpect form",
        "start\ndump it",
        "start\nscreenshot",
        "start\ntype a \"b",
    };
    for (const char* text : texts) {
        ScriptFault fault;
        EXPECT_FALSE(parseScript(text, fault)) << text;
        EXPECT_FALSE(fault.message.empty()) << text;
    }
}

TEST(ScriptParser, TellsTheLineOfAFault) {
    ScriptFault fault;
    EXPECT_FALSE(parseScript("# one\nstart\n\nclick\n", fault));
    EXPECT_EQ(fault.line, 4);
    EXPECT_EQ(fault.message, "malformed \"click\"");
}

TEST(ScriptParser, SurvivesAnyBytes) {
    const std::string pieces[] = {"start", "\n", " ",      "\"",       "\\",     "click", "(",
                                  ")",     ".",  "expect", "==",       "~=",     "1",     "-",
                                  "E",     "#",  "\r",     "box",      "answer", "*",     "\xc3",
                                  "x",     "",   "value",  "series(1)"};
    std::mt19937 random(7);
    for (int round = 0; round < 20000; ++round) {
        std::string text = round % 2 == 0 ? "start\n" : "";
        for (int i = 0; i < 12; ++i) {
            text += pieces[random() % std::size(pieces)];
            text += random() % 3 == 0 ? " " : "";
        }
        ScriptFault fault;
        const auto script = parseScript(text, fault);
        EXPECT_EQ(script.has_value(), fault.message.empty()) << text;
    }
}

TEST(ScriptParser, TellsOfAMissingFile) {
    ScriptFault fault;
    EXPECT_FALSE(loadScript("no/such/file.qs", fault));
    EXPECT_EQ(fault.line, 0);
}

TEST(ScriptParser, FindsADataFolderBesideTheScript) {
    namespace fs = std::filesystem;
    const fs::path home = test::temporaryName("quendal-scripts");
    fs::create_directories(home / "lab_data");
    const std::string file = (home / "a.qs").string();
    std::ofstream(file) << "data lab_data\nstart\n";
    ScriptFault fault;
    EXPECT_EQ(loadScript(file, fault)->settings.data, (home / "lab_data").string());
    std::ofstream(file) << "data nowhere\nstart\n";
    EXPECT_EQ(loadScript(file, fault)->settings.data, "nowhere");
    fs::remove_all(home);
}

} // namespace
} // namespace quendal
