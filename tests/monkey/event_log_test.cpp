#include "monkey/event_log.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace quendal::test {
namespace {

TEST(EventLog, OutlivesTheProcessThatWrites) {
    EventLog log(1000);
    const pid_t child = fork();
    if (child == 0) {
        log.add(EntryKind::Setting, "seed 1");
        log.add(EntryKind::Event, "start");
        _exit(0);
    }
    int state = 0;
    ASSERT_EQ(waitpid(child, &state, 0), child);
    const auto entries = log.entries();
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].kind, EntryKind::Setting);
    EXPECT_EQ(entries[1].text, "start");
}

TEST(EventLog, DropsWhatDoesNotFitAndSaysInTime) {
    EventLog log(100);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(log.nearlyFull(), i == 8);
        log.add(EntryKind::Event, "0123456789"); // 12 bytes
    }
    EXPECT_TRUE(log.nearlyFull());
    log.add(EntryKind::Event, "0123456789");
    EXPECT_EQ(log.entries().size(), 8U);
    log.clear();
    EXPECT_TRUE(log.entries().empty());
}

TEST(SessionScript, AnAnswerStandsBeforeTheEventThatBringsTheBox) {
    EXPECT_EQ(sessionScript({{EntryKind::Setting, "seed 3"},
                             {EntryKind::Event, "start"},
                             {EntryKind::Answer, "answer text Mia"},
                             {EntryKind::Event, "click but_A"},
                             {EntryKind::Answer, "answer yes"},
                             {EntryKind::Answer, "answer no"},
                             {EntryKind::Seen, "3 clicks"},
                             {EntryKind::Finding, "something is wrong"},
                             {EntryKind::Expect, "expect top != frm_A"}}),
              "# something is wrong\nseed 3\nanswer text Mia\nstart\nanswer yes\nanswer no\n"
              "click but_A\nexpect top != frm_A\n");
}

TEST(SessionScript, LeavesOutTheEventThatCameTooLate) {
    EXPECT_EQ(sessionScript({{EntryKind::Event, "start"},
                             {EntryKind::Event, "click but_A"},
                             {EntryKind::Event, "click but_B"},
                             {EntryKind::Late, ""}}),
              "start\nclick but_A\n");
    EXPECT_EQ(sessionScript({{EntryKind::Event, "start"},
                             {EntryKind::Event, "click but_A"},
                             {EntryKind::Late, "wait 0.02"},
                             {EntryKind::Event, "click but_B"}}),
              "start\nwait 0.02\nclick but_B\n");
}

} // namespace
} // namespace quendal::test
