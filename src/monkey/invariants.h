// What must hold whatever the learner does.
#pragma once

#include "host/host_observer.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quendal {

class Control;
class Form;
class Stage;
class Workbench;

struct Finding {
    std::string what;                 // in one line
    std::vector<std::string> expects; // lines of a script that fail because of it
};

// A line that fails as long as the thing has the value.
std::string expectOther(const std::string& thing, const std::string& value);

// One form at a time is in front, and each is on the screen once.
std::optional<Finding> checkTop(const Stage& stage);

// Every control that is shown and can be used lies inside its form and isn't covered; every text
// fits, in letters that can be read and tell from their ground. Looks only when something has
// changed.
class LookWatch {
  public:
    std::optional<Finding> check(const Form& form);
    void forget(const Form& form);

  private:
    void remember();
    std::optional<Finding> checkControl(const Control& control) const;
    std::optional<Finding> checkText(const Control& control) const;
    bool repeatsInput(const Control& control) const;

    const Form* form_ = nullptr;  // the last one
    std::size_t look_ = 0;        // and what it looked like
    std::set<std::string> typed_; // into inputs so far, but for short numbers
};

// What is in the beaker by what has been poured in and what has reacted since, while nothing falls.
std::optional<Finding> checkBalance(const Workbench& bench);

// Counters of a task, which only rise.
class CounterWatch {
  public:
    std::optional<Finding> check(const Workbench& bench);
    void forget(const Form& form);

  private:
    const Form* form_ = nullptr; // the last one's
    std::map<std::string, int> last_;
};

// Reports to the school in the order of a task: counters rise and are those of the form, the result
// comes behind the report of the last point, and with the mark that its score is worth.
class ReportWatch {
  public:
    void progress(const Workbench* bench, int points, int wrong);
    void result(const Workbench* bench, int score, double mark, const std::string& markText);
    void benchClosed();
    // The first thing that was wrong since the start.
    const std::optional<Finding>& finding() const { return finding_; }

  private:
    // A report that has come: what is wrong with it, and what should have come in its place.
    void report(std::string words, const std::string& fault,
                const std::vector<std::string>& due = {});

    std::vector<std::string> reports_; // as "expect report" names them
    std::optional<Finding> finding_;
    int points_ = 0;
    int wrong_ = 0;
};

} // namespace quendal
