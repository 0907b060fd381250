#include "headless/play.h"
#include "host/clock.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "monkey/planted_form.h"
#include "monkey/play_monkey.h"
#include "support/temporary_name.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

namespace quendal::test {
namespace {

using Fault = std::function<void(PlantedForm&)>;

// The form again and again, as the program shows its start dialog.
ScriptProgram programWith(const Fault& fault) {
    return [fault](const std::string&) {
        for (;;) {
            PlantedForm form(fault);
            CoreLib().Windows.ShowModal(form);
        }
    };
}

struct Hunt {
    int status = -1;
    std::string errors;
    std::string script; // that was written
};

std::string contentOf(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

Hunt hunt(const Fault& fault) {
    const auto folder = temporaryName("quendal-monkey");
    std::filesystem::create_directory(folder);
    const ProgramChooser choose = [&](const ScriptSettings&, std::string&) {
        return programWith(fault);
    };
    std::ostringstream out;
    std::ostringstream errors;
    Hunt result;
    result.status =
        playMonkey({.seed = 1, .events = 2000, .folder = folder.string(), .cpuSeconds = 1}, choose,
                   out, errors);
    result.errors = errors.str();
    result.script = contentOf(result.errors.substr(0, result.errors.find(".qs: ") + 3));
    std::filesystem::remove_all(folder);
    return result;
}

// What becomes of a process that plays the script: its status, or 128 and the signal's number.
int replay(const std::string& script, const Fault& fault) {
    const pid_t child = fork();
    if (child == 0) {
        alarm(2); // for a fault that hangs
        try {
            _exit(play(script, [&] { programWith(fault)(""); }).status);
        } catch (const std::exception&) {
            raise(SIGABRT); // as a program that nobody catches it for
        }
    }
    int state = 0;
    EXPECT_EQ(waitpid(child, &state, 0), child);
    return WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
}

void expectFound(const Fault& fault, const std::string& what, int status) {
    const Hunt found = hunt(fault);
    EXPECT_EQ(found.status, 1);
    EXPECT_NE(found.errors.find(what), std::string::npos) << found.errors;
    EXPECT_NE(found.script.find("\nstart\n"), std::string::npos) << found.script;
    EXPECT_EQ(replay(found.script, fault), status) << found.script;
}

// Where the script names the fault itself, it holds as soon as the fault is gone.
void expectFoundAndGone(const Fault& fault, const std::string& what, int status) {
    expectFound(fault, what, status);
    EXPECT_EQ(replay(hunt(fault).script, [](PlantedForm&) {}), 0);
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
