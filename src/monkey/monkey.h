// Plays one session as a learner who does anything, and looks after each event whether all is well.
// What it does can be told as a script; it acts at the same moments as the player of that script.
#pragma once

#include "host/event_feed.h"
#include "host/host_observer.h"
#include "monkey/event_log.h"
#include "monkey/invariants.h"
#include "monkey/mind.h"
#include "monkey/time_watch.h"
#include "script/script.h"
#include "script/stage.h"

#include <map>
#include <optional>
#include <string>

namespace quendal {

class ScriptActor;

class Monkey final : public EventFeed, public HostObserver {
  public:
    // The others must outlive the monkey, which plays `events` events and then ends the program.
    Monkey(Mind mind, ScriptActor& actor, EventLog& log, int events);

    int eventsDone() const { return done_; }
    bool foundFault() const { return fault_; }
    // What the session came to, into the log.
    void writeCounts();

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
    void next(const Form& top);
    void perform();
    void tellLateEvent();
    bool stillWaiting();
    void lookAtAll(const Form& top);
    void noteEvent(const Form& top, const std::string& line);
    void take(const std::optional<Finding>& finding);
    void leave();
    void noteEnd();
    const Workbench* bench() const;

    Mind mind_;
    ScriptActor& actor_;
    EventLog& log_;
    int left_;
    int done_ = 0;
    bool over_ = false;
    bool fault_ = false;

    std::optional<StepKind> ready_;  // waits for the pump
    const Form* chosenOn_ = nullptr; // in front when the event was thought of
    double chosenAt_ = 0;            // and the time then
    bool late_ = false;              // it could not be done any more
    std::optional<double> wake_;     // a wait ends then
    int boxes_ = 0;                  // that this event has brought

    Stage stage_;
    CounterWatch counters_;
    ReportWatch reports_;
    TimeWatch time_;
    LookWatch looks_;
    std::map<std::string, long> counts_;
};

} // namespace quendal
