#include "monkey/play_monkey.h"

#include "headless/choose_data_folder.h"
#include "headless/headless_actor.h"
#include "headless/headless_host.h"
#include "host/log.h"
#include "monkey/event_log.h"
#include "monkey/monkey.h"
#include "script/json_line.h"
#include "script/script.h"
#include "shell/session/session.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <ostream>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quendal {

namespace {

constexpr std::size_t kLogBytes = std::size_t{8} << 20;
constexpr int kFaultStatus = 1;

constexpr const char* kForms[] = {
    "frm_DialogStartup",
    "frm_AppMainStrong",
    "frm_AppMainWeak",
    "frm_AppMainSilver",
    "frm_AppMainConducto",
    "frm_AppMainConductoSilver",
    "frm_AppMainConductoWeak",
    "frm_AppMainConductolog",
    "frm_AppMainSilverStart",
    "frm_AppMainConductoStart",
    "frm_AppMainConductoSilverStart",
    "frm_AppMainConductoWeakStart",
    "frm_AppIntro",
    "frm_AppMagnify",
    "frm_DialogHelp",
    "frm_DialogTerms",
    "frm_DialogphCompare",
    "frm_DialogDone",
};

// What one session begins with.
struct SessionPlan {
    Chance chance;
    int events;
    std::string form;
};

SessionPlan planOf(const MonkeyOptions& options, long session, long left) {
    Chance chance(Chance(options.seed).next() + static_cast<std::uint64_t>(session));
    const long events = std::min<long>(left, chance.between(200, 4000));
    return {chance, static_cast<int>(events), options.form};
}

// Lines of the script up to "start", read as a script is.
std::optional<Script> prepare(SessionPlan& plan, EventLog& log) {
    std::string text;
    for (const std::string& line : anySettings(plan.chance, plan.form)) {
        log.add(EntryKind::Setting, line);
        text += line + "\n";
    }
    ScriptFault fault;
    auto script = parseScript(text + "start\n", fault);
    if (!script) {
        log.add(EntryKind::Finding, "the settings are no script: " + fault.message);
    }
    return script;
}

int playSession(SessionPlan plan, const ProgramChooser& choose, EventLog& log) {
    const auto script = prepare(plan, log);
    std::string fault;
    const ScriptProgram program = script ? choose(script->settings, fault) : ScriptProgram();
    if (!program) {
        log.add(EntryKind::Finding, "no program: " + fault);
        return kFaultStatus;
    }
    for (const auto& [key, value] : script->settings.control) {
        log.add(EntryKind::Seen, "1 teacher's key " + key);
    }
    resetSession();
    HeadlessHost host(script->settings, chooseDataFolder(script->settings.data));
    HeadlessActor actor;
    const Mood mood = anyMood(plan.chance);
    Monkey monkey(Mind(plan.chance, mood, plan.form), actor, log, plan.events);
    host.watch(&monkey, &monkey);
    try {
        program("quendal-script --monkey");
        host.windows().EndProcess();
    } catch (const ProcessEnded&) {
        monkey.writeCounts();
    } catch (const std::exception& problem) {
        log.add(EntryKind::Finding, std::string("exception: ") + problem.what());
        return kFaultStatus;
    }
    return monkey.foundFault() ? kFaultStatus : 0;
}

// A session that doesn't come back is ended by the system when its time is used up.
void limitTime(const MonkeyOptions& options) {
    const auto most = static_cast<rlim_t>(options.cpuSeconds);
    const rlimit limit{most, most + 5};
    setrlimit(RLIMIT_CPU, &limit);
    alarm(options.wallSeconds);
}

std::string whatEnded(int signal) {
    switch (signal) {
    case SIGXCPU:
    case SIGKILL:
        return "the program hangs";
    case SIGALRM:
        return "the program waits for what doesn't come";
    default:
        return "the program crashed with signal " + std::to_string(signal);
    }
}

// Teacher's keys make the program write to the teacher; here nobody reads that.
int playApart(const SessionPlan& plan, const MonkeyOptions& options, const ProgramChooser& choose,
              EventLog& log) {
    const pid_t child = fork();
    if (child == 0) {
        limitTime(options);
        exchangeLogSink([](std::string_view) {});
        _exit(playSession(plan, choose, log));
    }
    int state = 0;
    if (child < 0 || waitpid(child, &state, 0) != child) {
        log.add(EntryKind::Finding, "no process for the session");
        return kFaultStatus;
    }
    if (WIFSIGNALED(state)) {
        log.add(EntryKind::Finding, whatEnded(WTERMSIG(state)));
        return kFaultStatus;
    }
    return WEXITSTATUS(state);
}

// FNV-1a.
void mixInto(std::uint64_t& digest, std::string_view bytes) {
    for (const char c : bytes) {
        digest = (digest ^ static_cast<unsigned char>(c)) * 1099511628211U;
    }
}

std::string hexText(std::uint64_t value) {
    char text[17];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(value));
    return text;
}

struct Totals {
    long sessions = 0;
    long events = 0;
    std::uint64_t digest = 14695981039346656037U; // of everything that was played
    std::map<std::string, long> counts;
};

// How many events the session had.
long takeSession(const EventLog& log, Totals& totals) {
    long events = -1; // "start" is none
    for (const Entry& entry : log.entries()) {
        events += entry.kind == EntryKind::Event ? 1 : 0;
        if (entry.kind == EntryKind::Seen) {
            const std::size_t blank = entry.text.find(' ');
            totals.counts[entry.text.substr(blank + 1)] += std::atol(entry.text.c_str());
        }
    }
    mixInto(totals.digest, log.bytes());
    ++totals.sessions;
    totals.events += std::max(0L, events);
    return events;
}

void tellTotals(const MonkeyOptions& options, const Totals& totals, std::ostream& out) {
    JsonLine head;
    head.add("event", "monkey")
        .addRaw("seed", std::to_string(options.seed))
        .add("form", options.form)
        .addRaw("events", std::to_string(totals.events))
        .addRaw("sessions", std::to_string(totals.sessions))
        .add("digest", hexText(totals.digest));
    out << head.text() << '\n';
    for (const auto& [name, count] : totals.counts) {
        JsonLine line;
        line.add("event", "count").add("what", name).addRaw("times", std::to_string(count));
        out << line.text() << '\n';
    }
}

std::string scriptName(const MonkeyOptions& options, long session) {
    const std::string form = options.form.empty() ? "" : "-" + options.form;
    const std::string folder = options.folder.empty() ? "" : options.folder + "/";
    return folder + "monkey-" + std::to_string(options.seed) + form + "-" +
           std::to_string(session) + ".qs";
}

bool writeScript(const std::string& file, const std::vector<Entry>& entries) {
    std::ofstream script(file, std::ios::binary);
    script << sessionScript(entries);
    script.close();
    return !script.fail();
}

void tellFailure(const std::string& file, const std::vector<Entry>& entries, std::ostream& err) {
    const bool written = writeScript(file, entries);
    const auto found = std::find_if(entries.begin(), entries.end(), [](const Entry& entry) {
        return entry.kind == EntryKind::Finding;
    });
    err << file << (written ? ": " : " can't be written: ")
        << (found == entries.end() ? "the session failed" : found->text) << '\n';
}

} // namespace

bool monkeyKnows(const std::string& form) {
    return std::find(std::begin(kForms), std::end(kForms), form) != std::end(kForms);
}

int playMonkey(const MonkeyOptions& options, const ProgramChooser& choose, std::ostream& out,
               std::ostream& err) {
    constexpr int kMostBarren = 100; // sessions without an event in a row
    EventLog log(kLogBytes);
    Totals totals;
    int barren = 0;
    out.flush();
    std::fflush(nullptr);
    for (long session = 1; totals.events < options.events; ++session) {
        log.clear();
        const SessionPlan plan = planOf(options, session, options.events - totals.events);
        const int status = playApart(plan, options, choose, log);
        const long events = takeSession(log, totals);
        if (status != 0) {
            tellFailure(scriptName(options, session), log.entries(), err);
            return kFaultStatus;
        }
        if (options.keepScripts) {
            writeScript(scriptName(options, session), log.entries());
        }
        barren = events > 0 ? 0 : barren + 1;
        if (barren > kMostBarren) {
            err << "the program lets the monkey do nothing\n";
            return kFaultStatus;
        }
    }
    tellTotals(options, totals, out);
    return 0;
}

} // namespace quendal
