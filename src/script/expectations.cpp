#include "script/expectations.h"

#include "particles/cls_Molecules.h"
#include "particles/particle_scene.h"
#include "script/json_line.h"
#include "script/stage.h"
#include "script/values.h"

namespace quendal {

namespace {

bool holds(const Condition& condition, const std::string& value) {
    switch (condition.relation) {
    case Relation::Equal:
        return sameValue(value, condition.value);
    case Relation::Unequal:
        return !sameValue(value, condition.value);
    case Relation::Near:
        return nearValue(value, condition.nearTo, condition.tolerance);
    }
    return false;
}

std::string boxText(const BoxEvent& box) {
    return std::string(boxKindName(box.kind)) + " " + jsonText(box.title) + " " +
           jsonText(box.text);
}

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : " ") + jsonText(word);
    }
    return text.empty() ? "none" : text;
}

Verdict when(bool held, const std::string& found) {
    return held ? Verdict{} : Verdict::failed("found " + found);
}

bool sameWords(const std::vector<std::string>& found, const std::vector<std::string>& asked) {
    if (found.size() != asked.size()) {
        return false;
    }
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (!sameValue(found[i], asked[i])) {
            return false;
        }
    }
    return true;
}

class Judge {
  public:
    using Answer = std::optional<Verdict>;

    Judge(const Stage& stage, Witness& witness) : stage_(stage), witness_(witness) {}

    Answer operator()(const ExpectStep& step) {
        return checkCondition(step.condition, stage_, witness_);
    }

    Answer operator()(const ExpectBoxStep& step) {
        const auto box = takeOldest(witness_.boxes);
        if (!box) {
            return Verdict::failed("found no box");
        }
        return when(box->kind == step.kind && fitsPattern(box->title, step.title) &&
                        fitsPattern(box->text, step.text),
                    boxText(*box));
    }

    Answer operator()(const ExpectSoundStep& step) {
        const auto sound = takeOldest(witness_.sounds);
        return sound ? when(namesSound(step.name, *sound), *sound)
                     : Verdict::failed("found no sound");
    }

    Answer operator()(const ExpectReportStep& step) {
        const auto report = takeOldest(witness_.reports);
        return report ? when(sameWords(report->words, step.words), joined(report->words))
                      : Verdict::failed("found no report");
    }

    Answer operator()(const ExpectNoneStep& step) {
        switch (step.what) {
        case Record::Box:
            return witness_.boxes.empty()
                       ? Verdict{}
                       : Verdict::failed("found " + boxText(witness_.boxes.front()));
        case Record::Sound:
            return witness_.sounds.empty() ? Verdict{}
                                           : Verdict::failed("found " + witness_.sounds.front());
        case Record::Report:
            return witness_.reports.empty()
                       ? Verdict{}
                       : Verdict::failed("found " + joined(witness_.reports.front().words));
        }
        return std::nullopt;
    }

    Answer operator()(const ExpectPresetsStep& step) {
        return witness_.presets ? when(*witness_.presets == step.lines, joined(*witness_.presets))
                                : Verdict::failed("no calculator has been opened");
    }

    template <class Other>
    Answer operator()(const Other&) {
        return std::nullopt;
    }

  private:
    const Stage& stage_;
    Witness& witness_;
};

} // namespace

Verdict checkCondition(const Condition& condition, const Stage& stage, const Witness& witness) {
    const auto value = readThing(condition.thing, stage, witness);
    if (!value) {
        return Verdict::unknown("there is no " + condition.thing.text);
    }
    const std::string text = valueText(*value);
    return when(holds(condition, text), jsonText(text));
}

bool isSettled(const Stage& stage) {
    const ParticleScene* scene = stage.scene();
    if (scene == nullptr) {
        return true;
    }
    const bool pairs = scene->beaker().hasPairThatCanReact();
    return !scene->dosing() && scene->drops().COUNT() == 0 && !pairs;
}

std::optional<Verdict> judge(const StepKind& step, const Stage& stage, Witness& witness) {
    return std::visit(Judge(stage, witness), step);
}

} // namespace quendal
