// The small parts of the script player.
#include "script/answer_queue.h"
#include "script/json_line.h"
#include "script/play_each.h"
#include "script/script_options.h"
#include "script/thing.h"

#include <gtest/gtest.h>

#include <csignal>

namespace quendal {
namespace {

BoxEvent box(BoxKind kind) {
    BoxEvent event;
    event.kind = kind;
    return event;
}

TEST(AnswerQueue, GivesEachBoxTheNextAnswerThatItCanTake) {
    AnswerQueue answers;
    answers.add({BoxReply::Kind::Text, "Mia", 0});
    answers.add({BoxReply::Kind::No, {}, 0});
    answers.add({BoxReply::Kind::Yes, {}, 0});
    EXPECT_EQ(answers.take(box(BoxKind::YesNo))->kind, BoxReply::Kind::No);
    EXPECT_EQ(answers.take(box(BoxKind::Info))->kind, BoxReply::Kind::Ok);
    EXPECT_FALSE(answers.take(box(BoxKind::Calculator)));
    EXPECT_EQ(answers.take(box(BoxKind::Input))->text, "Mia");
    EXPECT_EQ(answers.take(box(BoxKind::YesNo))->kind, BoxReply::Kind::Yes);
    EXPECT_FALSE(answers.take(box(BoxKind::YesNo)));
    EXPECT_FALSE(answers.take(box(BoxKind::Input)));
}

TEST(AnswerQueue, CancelWaitsForABoxThatCanBeCancelled) {
    AnswerQueue answers;
    answers.add({BoxReply::Kind::Cancel, {}, 0});
    EXPECT_FALSE(answers.take(box(BoxKind::YesNo)));
    EXPECT_EQ(answers.take(box(BoxKind::Alarm))->kind, BoxReply::Kind::Ok);
    EXPECT_EQ(answers.take(box(BoxKind::Calculator))->kind, BoxReply::Kind::Cancel);
}

TEST(JsonLine, EscapesEverythingThatNeedsIt) {
    EXPECT_EQ(jsonText("a\"b\\c\n\r\t\x01"), R"("a\"b\\c\n\r\t\u0001")");
    EXPECT_EQ(jsonText("Säure µ → 𝛼"), "\"Säure µ → 𝛼\"");
    EXPECT_EQ(jsonText("\xff"
                       "a\xc3"),
              "\"\xef\xbf\xbd"
              "a\xef\xbf\xbd\"");
    EXPECT_EQ(jsonText("\xed\xa0\x80"), "\"\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd\"");
    EXPECT_EQ(jsonText(std::string_view("\0", 1)), "\"\\u0000\"");
}

TEST(JsonLine, KeepsTheOrderOfItsKeys) {
    JsonLine line;
    line.addRaw("t", "0.5").add("event", "box").add("presets", std::vector<std::string>{"1", "2"});
    EXPECT_EQ(line.text(), R"({"t":0.5,"event":"box","presets":["1","2"]})");
}

TEST(Thing, IsReadByItsForm) {
    struct Row {
        const char* text;
        ThingKind kind;
    };
    const Row rows[] = {
        {"but_X.text", ThingKind::Property},
        {"but_X(3).enabled", ThingKind::Property},
        {"frm_X.but_X(3).enabled", ThingKind::Property},
        {"form.vPhNow", ThingKind::FormField},
        {"form.vStepReached(3)", ThingKind::FormField},
        {"session.SessionDemo", ThingKind::SessionField},
        {"series(1).count", ThingKind::SeriesCount},
        {"series(2).x(4)", ThingKind::SeriesX},
        {"series(2).y(4)", ThingKind::SeriesY},
        {"beaker.count", ThingKind::ParticleCount},
        {"drops.count", ThingKind::ParticleCount},
        {"beaker.countsort(9)", ThingKind::ParticleCountSort},
        {"top", ThingKind::TopForm},
        {"host.UserName", ThingKind::UserName},
        {"box.default", ThingKind::BoxProposal},
        {"clock", ThingKind::Clock},
    };
    for (const Row& row : rows) {
        const auto thing = parseThing(row.text);
        ASSERT_TRUE(thing) << row.text;
        EXPECT_EQ(thing->kind, row.kind) << row.text;
    }
}

TEST(ScriptOptions, AreReadAndRefused) {
    std::string fault;
    const auto options =
        readScriptOptions({"a.qs", "--desktop", "--script-clock", "--keep-going", "b.qs"}, fault);
    ASSERT_TRUE(options);
    EXPECT_EQ(options->files, (std::vector<std::string>{"a.qs", "b.qs"}));
    EXPECT_TRUE(options->desktop && options->scriptClock && options->keepGoing);
    EXPECT_FALSE(readScriptOptions({}, fault));
    EXPECT_FALSE(readScriptOptions({"a.qs", "--fast"}, fault));
    EXPECT_FALSE(readScriptOptions({"a.qs", "--script-clock"}, fault));
    EXPECT_TRUE(readScriptOptions({"--help"}, fault)->help);
}

TEST(PlayEach, GivesTheLargestStatusOfAllFiles) {
    const auto byName = [](const std::string& file) { return std::stoi(file); };
    EXPECT_EQ(playEach({"2"}, byName), 2);
    EXPECT_EQ(playEach({"0", "3", "1"}, byName), 3);
    EXPECT_EQ(playEach({"0", "0"}, byName), 0);
}

TEST(PlayEach, CountsAProcessThatCrashed) {
    const auto crash = [](const std::string& file) {
        return file == "bad" ? std::raise(SIGKILL) : 0;
    };
    EXPECT_EQ(playEach({"good", "bad"}, crash), 128 + SIGKILL);
}

} // namespace
} // namespace quendal
