// What the monkey does next: now and then anything at all, else what leads deeper.
#pragma once

#include "host/host_observer.h"
#include "monkey/chance.h"
#include "monkey/session_settings.h"

#include <string>

namespace quendal {

class Control;
class Form;
class Stage;
class Workbench;

class Mind {
  public:
    // `target` is the form to stay on or to come back to; empty for the whole program.
    Mind(Chance& chance, Mood mood, std::string target);

    // The line of a script for the next event; the topmost form is `top`.
    std::string nextEvent(const Form& top);
    // Always one that the box can take.
    BoxReply reply(const BoxEvent& box);

  private:
    // Anything.
    std::string anyEvent(const Form& top);
    std::string controlEvent(const Form& top);
    std::string useControl(Control& control);
    std::string leave(const Form& top);
    std::string anyKey(const Form& top);
    std::string anyPress(const Form& top);
    std::string anyMenu(const Form& top);
    std::string clickOn(const Control& control);
    std::string anyWait(double most);

    // What leads deeper; empty when nothing does.
    std::string advance(const Form& top);
    std::string chooseExercise(const Form& start);
    std::string work(const Workbench& bench);
    std::string dose(const Workbench& bench);
    std::string answerDirectly(const Workbench& bench);
    std::string answerRightly(const Workbench& bench);
    std::string followTutor(const Workbench& bench);
    std::string lookAround(const Workbench& bench);
    std::string finishTask(const Workbench& bench);
    std::string watchAnimation(const Form& stage);
    std::string closeDialog(const Form& dialog);
    std::string seekTarget(const Workbench& bench);

    std::string clickOneOf(const Form& form, std::initializer_list<const char*> names);
    std::string anyOf(const Form& form, const char* name, const char* verb);
    bool onTarget(const Form& top) const;

    Chance& chance_;
    Mood mood_;
    double zeal_ = 0;  // share of the points that it calculates without being asked to
    double skill_ = 0; // share of its events that answer a point at once and rightly
    std::string target_;
    const Control* last_ = nullptr; // that was clicked
};

} // namespace quendal
