#include "shell/single_forms.h"

#include "animations/frm_AppIntro.h"
#include "particles/frm_AppMagnify.h"
#include "shell/forms/frm_AppSplash.h"

#include <algorithm>
#include <charconv>

namespace quendal {

namespace {

using Lens = frm_AppMagnify;

constexpr SingleFormField kLensFields[] = {
    {"ShowWater", takeText<Lens, &Lens::ShowWater>},
    {"ShowAcid", takeText<Lens, &Lens::ShowAcid>},
    {"SourceLeft", takeText<Lens, &Lens::SourceLeft>},
    {"SourceTop", takeText<Lens, &Lens::SourceTop>},
    {"SourceRight", takeText<Lens, &Lens::SourceRight>},
    {"SourceBottom", takeText<Lens, &Lens::SourceBottom>},
    {"SourceScale", takeText<Lens, &Lens::SourceScale>},
};

constexpr SingleFormField kStageFields[] = {
    {"Scene", takeText<frm_AppIntro, &frm_AppIntro::Scene>},
};

template <class T>
std::unique_ptr<Form> make() {
    return std::make_unique<T>();
}

constexpr SingleForm kForms[] = {
    {"frm_AppMagnify", make<Lens>, kLensFields},
    {"frm_AppIntro", make<frm_AppIntro>, kStageFields},
    {"frm_AppSplash", make<frm_AppSplash>, {}},
};

template <class T>
std::optional<T> readWhole(std::string_view text) {
    T value{};
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = fault == std::errc{} && end == text.data() + text.size();
    return whole ? std::optional(value) : std::nullopt;
}

template <class Row>
const Row* findRow(std::span<const Row> rows, const std::string& name) {
    const auto row =
        std::find_if(rows.begin(), rows.end(), [&](const Row& r) { return name == r.name; });
    return row == rows.end() ? nullptr : &*row;
}

// Why the fields can't be set; empty when they can.
std::string faultOf(const SingleForm& form, const FieldTexts& texts) {
    for (const auto& [name, text] : texts) {
        const SingleFormField* field = findRow(form.fields, name);
        if (field == nullptr) {
            return std::string("the form ") + form.name + " has no field " + name;
        }
        if (!field->take(nullptr, text)) {
            return "\"" + text + "\" is no value of " + form.name + "." + name;
        }
    }
    return {};
}

} // namespace

std::span<const SingleForm> singleForms() {
    return kForms;
}

std::optional<bool> readBool(std::string_view text) {
    return text == "true" || text == "false" ? std::optional(text == "true") : std::nullopt;
}
std::optional<std::int32_t> readInt(std::string_view text) {
    return readWhole<std::int32_t>(text);
}
std::optional<double> readDouble(std::string_view text) {
    return readWhole<double>(text);
}

std::function<void(const std::string& commandLine)>
singleFormProgram(std::span<const SingleForm> forms, const std::string& name,
                  const FieldTexts& fields, const ShowAlone& show, std::string& fault) {
    const SingleForm* row = findRow(forms, name);
    fault = row == nullptr ? "no form " + name + " can be shown alone" : faultOf(*row, fields);
    if (!fault.empty()) {
        return {};
    }
    return [row, fields, show](const std::string& commandLine) {
        const std::unique_ptr<Form> form = row->make();
        for (const auto& [field, text] : fields) {
            findRow(row->fields, field)->take(form.get(), text);
        }
        show(*form, commandLine);
    };
}

} // namespace quendal
