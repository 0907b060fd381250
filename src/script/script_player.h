// Plays a script in the learner's place: it feeds the learner's actions into the event pump and
// watches what the program shows. There is one place in the script, however deep the program's
// pumps are nested.
#pragma once

#include "host/event_feed.h"
#include "host/host_observer.h"
#include "script/answer_queue.h"
#include "script/script.h"
#include "script/stage.h"
#include "script/transcript.h"
#include "script/verdict.h"
#include "script/witness.h"

#include <optional>
#include <ostream>

namespace quendal {

class ScriptActor;

struct PlayerOptions {
    bool keepGoing = false; // after a failed expectation
    // On a real clock a loop that is late never sleeps; the script then goes on in its pumps.
    bool realClock = false;
};

class ScriptPlayer final : public EventFeed, public HostObserver {
  public:
    // `script` and `actor` must outlive the player. `out` gets the transcript, `err` one line for
    // each failure.
    ScriptPlayer(const Script& script, ScriptActor& actor, PlayerOptions options, std::ostream& out,
                 std::ostream& err);

    // The status of the process. Final once the program has ended, which the player sees to when
    // the script is through.
    int exitStatus() const { return static_cast<int>(status_); }

    // EventFeed
    void deliver() override;
    void programWaits() override;
    double due() const override;

    // HostObserver
    BoxReply boxOpened(const BoxEvent& event) override;
    void soundPlayed(const std::string& name) override;
    void progressReported(int points, int wrong) override;
    void resultReported(int score, double mark, const std::string& markText) override;
    void formShown(const Form& form) override;
    void formClosed(const Form& form) override;
    void processEnded() override;

  private:
    enum class Phase {
        Starting, // up to the first form that waits for the learner
        Playing,
        Ended, // the program has gone, some looking is left
        Over
    };

    void advance();
    // True when the script may go on behind the step.
    bool pass(const ScriptStep& step);
    bool passWaiting(const ScriptStep& step);
    bool elapsed(double seconds);
    bool waitFor(const Verdict& verdict, double seconds);
    bool allowedAfterEnd(const StepKind& step) const;
    void take(const Verdict& verdict, const ScriptStep& step);
    void leave();
    const ScriptStep& current() const;

    void print(const PrintStep& print, const ScriptStep& step);
    void dump();
    void takeScreenshot(const std::string& file);
    void addReport(std::vector<std::string> words);
    Verdict checkReply(const BoxEvent& event, const std::optional<BoxReply>& reply) const;

    const Script& script_;
    ScriptActor& actor_;
    PlayerOptions options_;
    Transcript transcript_;
    std::ostream& err_;

    Phase phase_ = Phase::Starting;
    std::size_t next_ = 0;              // the step that is looked at next
    const ScriptStep* ready_ = nullptr; // an action that waits for the pump
    const ScriptStep* last_ = nullptr;  // the action performed last
    std::optional<double> began_;       // when the present step began to wait
    double wake_ = 0;                   // when it wants to be looked at again
    double lookedAt_ = 0;               // when the program waited last
    ScriptStatus status_ = ScriptStatus::Held;

    AnswerQueue answers_;
    Witness witness_;
    Stage stage_;
};

} // namespace quendal
