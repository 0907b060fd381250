#include "script/stage.h"

#include "host/chart.h"
#include "host/clock.h"
#include "host/host_control.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "particles/cls_Molecules.h"
#include "particles/particle_scene.h"
#include "shell/session/session.h"

#include <algorithm>

namespace quendal {

void Stage::shown(const Form& form) {
    closed(form);
    forms_.insert(forms_.begin(), &form);
    names_.insert(form.name());
}

void Stage::closed(const Form& form) {
    std::erase(forms_, &form);
}

const Form* Stage::find(const std::string& name) const {
    const auto found = std::find_if(forms_.begin(), forms_.end(),
                                    [&](const Form* form) { return form->name() == name; });
    return found == forms_.end() ? nullptr : *found;
}

const ParticleScene* Stage::scene() const {
    for (const Form* form : forms_) {
        if (const auto* scene = dynamic_cast<const ParticleScene*>(form)) {
            return scene;
        }
    }
    return nullptr;
}

Control* Stage::find(const ControlName& name) const {
    const Form* form = name.form.empty() ? CoreLib().Windows.top() : find(name.form);
    if (form == nullptr) {
        return nullptr;
    }
    return form->findControl(name.control.name, name.control.index.value_or(Control::kNoIndex));
}

namespace {

using Reading = std::optional<FieldValue>;

Reading readField(const FieldTable& table, const IndexedName& field) {
    return field.index ? table.find(field.name, *field.index) : table.find(field.name);
}

Reading readForm(const Form* form, const IndexedName& field) {
    if (form == nullptr) {
        return std::nullopt;
    }
    FieldTable table;
    form->describe(table);
    return readField(table, field);
}

Reading readProperty(const Thing& thing, const Stage& stage) {
    if (const Control* control = stage.find(thing.control)) {
        FieldTable table;
        control->describe(table);
        return readField(table, thing.field);
    }
    // A form's own field may also stand behind the form's name.
    const bool mayBeForm = thing.control.form.empty() && !thing.control.control.index;
    return mayBeForm ? readForm(stage.find(thing.control.control.name), thing.field) : std::nullopt;
}

Reading readSession(const IndexedName& field) {
    FieldTable table;
    session().describe(table);
    return readField(table, field);
}

Reading readPoint(const SeriesData& data, const Thing& thing) {
    if (thing.number < 1 || thing.number > data.Count()) {
        return FieldValue(); // no such point yet
    }
    return FieldValue(thing.kind == ThingKind::SeriesX ? data.X(thing.number)
                                                       : data.Y(thing.number));
}

Reading readFittedLine(const std::vector<FittedLine>& lines, const Thing& thing) {
    if (thing.number < 1 || thing.number > static_cast<int>(lines.size())) {
        return FieldValue(); // no such line yet
    }
    const FittedLine& line = lines[static_cast<std::size_t>(thing.number - 1)];
    return FieldValue(thing.kind == ThingKind::LineSlope ? line.slope : line.intercept);
}

Reading readSeries(const ChartSeries& series, const Thing& thing) {
    switch (thing.kind) {
    case ThingKind::SeriesCount:
        return FieldValue(std::int64_t{series.Data.Count()});
    case ThingKind::SeriesName:
        return FieldValue(series.name);
    case ThingKind::SeriesJoined:
        return FieldValue(series.Style.LineVisible);
    case ThingKind::SeriesLines:
        return FieldValue(static_cast<std::int64_t>(series.fittedLines.size()));
    case ThingKind::SeriesX:
    case ThingKind::SeriesY:
        return readPoint(series.Data, thing);
    default:
        return readFittedLine(series.fittedLines, thing);
    }
}

Reading readSeries(const Thing& thing, const Stage& stage) {
    const ParticleScene* scene = stage.scene();
    if (scene == nullptr || thing.series < 1 || thing.series > scene->learnerSeriesCount()) {
        return std::nullopt;
    }
    // None yet reads as one without points.
    static const ChartSeries none{std::string()};
    const ChartSeries* series = scene->learnerSeries(thing.series);
    return readSeries(series == nullptr ? none : *series, thing);
}

Reading readParticles(const Thing& thing, const Stage& stage) {
    const ParticleScene* scene = stage.scene();
    if (scene == nullptr) {
        return std::nullopt;
    }
    const cls_Molecules& particles = thing.inDrops ? scene->drops() : scene->beaker();
    const int count = thing.kind == ThingKind::ParticleCount ? particles.COUNT()
                                                             : particles.COUNTSORT(thing.number);
    return FieldValue(std::int64_t{count});
}

} // namespace

Reading readThing(const Thing& thing, const Stage& stage, const Witness& witness) {
    const Form* top = CoreLib().Windows.top();
    switch (thing.kind) {
    case ThingKind::Property:
        return readProperty(thing, stage);
    case ThingKind::FormField:
        return readForm(top, thing.field);
    case ThingKind::SessionField:
        return readSession(thing.field);
    case ThingKind::SeriesCount:
    case ThingKind::SeriesName:
    case ThingKind::SeriesJoined:
    case ThingKind::SeriesLines:
    case ThingKind::SeriesX:
    case ThingKind::SeriesY:
    case ThingKind::LineSlope:
    case ThingKind::LineIntercept:
        return readSeries(thing, stage);
    case ThingKind::ParticleCount:
    case ThingKind::ParticleCountSort:
        return readParticles(thing, stage);
    case ThingKind::TopForm:
        return FieldValue(top == nullptr ? std::string() : top->name());
    case ThingKind::UserName:
        return FieldValue(HostApp().HostControl.UserName);
    case ThingKind::BoxProposal:
        return FieldValue(witness.proposal);
    case ThingKind::Clock:
        return FieldValue(CoreLib().Clock.Now());
    }
    return std::nullopt;
}

} // namespace quendal
