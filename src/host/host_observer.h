// Whoever watches what the learner sees and hears, and answers boxes in the learner's place. Both
// hosts report here when an observer is set; null at first.
#pragma once

#include <string>
#include <vector>

namespace quendal {

class Form;

enum class BoxKind { Ok, Info, YesNo, Input, Alarm, About, Calculator };

struct BoxEvent {
    BoxKind kind = BoxKind::Ok;
    std::string title;
    std::string text;
    std::string proposal;             // of an input box
    std::vector<std::string> presets; // of the calculator
};

struct BoxReply {
    enum class Kind { Ok, Yes, No, Text, Value, Preset, Cancel };
    Kind kind = Kind::Ok;
    std::string text; // Text: what is typed; Value: the number as it is typed
    int preset = 0;   // Preset: which offered line, from 1
};

class HostObserver {
  public:
    virtual ~HostObserver() = default;
    // A box opens. The reply is what the learner will do with it; always one that the kind can
    // take.
    virtual BoxReply boxOpened(const BoxEvent& event) = 0;
    // "signal 1", a name of the sound set, or a file name; also when sound is off it isn't called.
    virtual void soundPlayed(const std::string& name) = 0;
    virtual void progressReported(int points, int wrong) = 0;
    virtual void resultReported(int score, double mark, const std::string& markText) = 0;
    virtual void formShown(const Form& form) = 0;
    virtual void formClosed(const Form& form) = 0;
    // The process would end now; nothing of the program runs afterwards.
    virtual void processEnded() = 0;
};

} // namespace quendal
