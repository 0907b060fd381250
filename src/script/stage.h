// The forms that are on the screen, and what a script can find on them.
#pragma once

#include "host/field_table.h"
#include "script/thing.h"
#include "script/witness.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quendal {

class Control;
class Form;
class ParticleScene;

class Stage {
  public:
    void shown(const Form& form);
    void closed(const Form& form);

    // All that is shown, the one shown last in front. Forms of the program live until closed.
    const std::vector<const Form*>& forms() const { return forms_; }
    // The form shown last that has this name; null when none has.
    const Form* find(const std::string& name) const;
    // Such a form was on the screen before.
    bool wasShown(const std::string& name) const { return names_.contains(name); }
    // The workbench shown last; null when there is none.
    const ParticleScene* scene() const;

    // On the topmost form, or the one that is named; null when it isn't there.
    Control* find(const ControlName& name) const;

  private:
    std::vector<const Form*> forms_;
    std::set<std::string> names_;
};

// nullopt when the program has no such thing at present.
std::optional<FieldValue> readThing(const Thing& thing, const Stage& stage, const Witness& witness);

} // namespace quendal
