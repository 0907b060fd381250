#include "host/clock.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "monkey/hunt.h"
#include "monkey/planted_form.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include <unistd.h>

namespace quendal::test {
namespace {

using Fault = std::function<void(PlantedForm&)>;

// The form again and again, as the program shows its start dialog.
Program programWith(const Fault& fault) {
    return [fault] {
        for (;;) {
            PlantedForm form(fault);
            CoreLib().Windows.ShowModal(form);
        }
    };
}

Hunt hunt(const Fault& fault, unsigned wallSeconds = 60) {
    return test::hunt(programWith(fault),
                      {.seed = 1, .events = 2000, .cpuSeconds = 1, .wallSeconds = wallSeconds});
}

int replay(const std::string& script, const Fault& fault) {
    return test::replay(script, programWith(fault), 2);
}

Hunt expectFound(const Fault& fault, const std::string& what, int status) {
    const Hunt found = hunt(fault);
    EXPECT_EQ(found.status, 1);
    EXPECT_NE(found.errors.find(what), std::string::npos) << found.errors;
    EXPECT_NE(found.script.find("\nstart\n"), std::string::npos) << found.script;
    EXPECT_EQ(replay(found.script, fault), status) << found.script;
    return found;
}

// Where the script names the fault itself, it holds as soon as the fault is gone.
void expectFoundAndGone(const Fault& fault, const std::string& what, int status) {
    const Hunt found = expectFound(fault, what, status);
    EXPECT_EQ(replay(found.script, [](PlantedForm&) {}), 0);
}

TEST(PlantedFaults, NoneIsFoundWhereNoneIs) {
    const Hunt nothing = hunt([](PlantedForm&) {});
    EXPECT_EQ(nothing.status, 0) << nothing.errors;
    EXPECT_EQ(nothing.errors, "");
}

TEST(PlantedFaults, ACrash) {
    expectFoundAndGone([](PlantedForm&) { std::abort(); }, "crashed with signal 6", 128 + SIGABRT);
}

TEST(PlantedFaults, ALoopThatNeverEnds) {
    const auto spin = [](PlantedForm& form) {
        volatile int& presses = form.presses;
        while (presses > 0) {
        }
    };
    expectFoundAndGone(spin, "the program hangs", 128 + SIGALRM);
}

TEST(PlantedFaults, AWaitWithoutEnd) {
    const auto wait = [](PlantedForm&) { pause(); };
    const Hunt found = hunt(wait, 3);
    EXPECT_NE(found.errors.find("waits for what doesn't come"), std::string::npos) << found.errors;
    EXPECT_EQ(replay(found.script, wait), 128 + SIGALRM);
}

TEST(PlantedFaults, ALoopThatLetsNoEventsIn) {
    const auto sleep = [](PlantedForm& form) {
        while (form.presses > 0) {
            CoreLib().Clock.SleepMs(20);
        }
    };
    const Hunt found = hunt(sleep);
    EXPECT_NE(found.errors.find("hasn't let an event in for 60 s"), std::string::npos)
        << found.errors;
    EXPECT_EQ(replay(found.script, sleep), 3) << "the script's time is used up";
}

TEST(PlantedFaults, AControlThatIsCovered) {
    expectFound([](PlantedForm& form) { form.frm_Lid.setPlace(0, 40, 200, 100); },
                "frm_Planted.but_Press is covered", 1);
}

TEST(PlantedFaults, ATextThatCannotBeRead) {
    expectFoundAndGone(
        [](PlantedForm& form) {
            form.lab_Text.setTextColor({255, 255, 254});
        },
        "colour of its ground", 1);
}

TEST(PlantedFaults, AFormThatIsThereTwice) {
    const auto twice = [](PlantedForm&) {
        PlantedForm other([](PlantedForm&) {});
        CoreLib().Windows.ShowModal(other);
    };
    expectFound(twice, "frm_Planted is on the screen twice", 1);
}

TEST(PlantedFaults, AnException) {
    const auto thrown = [](PlantedForm&) { throw std::out_of_range("beyond the end"); };
    const Hunt found = hunt(thrown);
    EXPECT_NE(found.errors.find("exception: beyond the end"), std::string::npos) << found.errors;
    EXPECT_EQ(replay(found.script, thrown), 128 + SIGABRT);
}

} // namespace
} // namespace quendal::test
