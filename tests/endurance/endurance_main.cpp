// Plays scripts one after the other in one process, on the host without a screen, until so many
// hours of its clock are full, and watches the memory that the process takes. What one script
// leaves behind adds up here.
#include "headless/choose_data_folder.h"
#include "headless/headless_actor.h"
#include "headless/headless_host.h"
#include "script/script_player.h"
#include "script/script_program.h"
#include "shell/entry.h"
#include "shell/session/session.h"

#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

#include <malloc.h>
#include <unistd.h>

using namespace quendal;

namespace {

constexpr double kHour = 3600; // s
constexpr double kMostMegabytes = 100;
constexpr double kMostGrowth = 1.05; // from the end of the first hour on

// Megabytes of the process that lie in memory at present.
double residentMegabytes() {
    std::ifstream statm("/proc/self/statm");
    double all = 0;
    double resident = 0;
    statm >> all >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

struct Run {
    int status = 0;
    double seconds = 0; // of the clock
};

Run play(const ReadyScript& ready) {
    resetSession();
    const Script& script = ready.script;
    HeadlessHost host(script.settings, chooseDataFolder(script.settings.data));
    HeadlessActor actor;
    std::ostream nowhere(nullptr);
    ScriptPlayer player(script, actor, {}, nowhere, std::cerr);
    host.watch(&player, &player);
    try {
        ready.program("quendal");
        host.windows().EndProcess();
    } catch (const ProcessEnded&) {
    }
    return {player.exitStatus(), host.clock().Now()};
}

class MemoryWatch {
  public:
    // False when the limits don't hold.
    bool look(double hours, long runs) {
        const double now = residentMegabytes();
        std::cout << std::setw(5) << hours << " h " << std::setw(6) << runs << " runs "
                  << std::setw(6) << now << " MB" << std::endl;
        warm_ = warm_ > 0 ? warm_ : now;
        return now <= kMostMegabytes && now <= warm_ * kMostGrowth;
    }

  private:
    double warm_ = 0; // megabytes after the first look
};

int endure(const std::vector<ReadyScript>& scripts, double hours) {
    MemoryWatch memory;
    double played = 0; // s
    double due = kHour;
    for (long run = 1; played < hours * kHour; ++run) {
        const auto next = static_cast<std::size_t>(run - 1) % scripts.size();
        const auto [status, seconds] = play(scripts[next]);
        played += seconds;
        if (status != 0 || seconds <= 0) {
            std::cerr << scripts[next].script.file << ": failed in run " << run << '\n';
            return 1;
        }
        if (played >= due) {
            due += kHour;
            if (!memory.look(played / kHour, run)) {
                std::cerr << "too much memory\n";
                return 1;
            }
        }
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    // Large blocks get memory of their own and give it back. Otherwise where the library finds room
    // for one of nearly a megabyte would look like growth.
    mallopt(M_MMAP_THRESHOLD, 1 << 17);
    if (argc < 3) {
        std::cerr << "Usage: quendal-endurance HOURS SCRIPT...\n";
        return 2;
    }
    std::vector<ReadyScript> scripts;
    for (int i = 2; i < argc; ++i) {
        const auto whole = [](const ScriptSettings&, std::string&) {
            return ScriptProgram(runSession);
        };
        auto ready = readyScript(argv[i], whole, std::cerr);
        if (!ready) {
            return 2;
        }
        scripts.push_back(std::move(*ready));
    }
    std::cout << std::fixed << std::setprecision(1);
    return endure(scripts, std::strtod(argv[1], nullptr));
}
