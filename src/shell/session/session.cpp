#include "shell/session/session.h"

#include "host/number_service.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>

namespace quendal {

namespace {

std::unique_ptr<SessionState>& holder() {
    static auto state = std::make_unique<SessionState>();
    return state;
}

std::string trimmedLower(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos) {
        return {};
    }
    std::string word(text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1));
    std::transform(word.begin(), word.end(), word.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return word;
}

} // namespace

SessionState& session() {
    return *holder();
}

void resetSession() {
    holder() = std::make_unique<SessionState>();
}

void SessionState::describe(FieldTable& table) const {
    table.add("SessionConcentration", SessionConcentration);
    table.add("SessionDemo", SessionDemo);
    table.addGetter("SessionRequiredPoints", [this] {
        std::string list;
        for (const std::string& item : SessionRequiredPoints.items()) {
            list += (list.empty() ? "" : ",") + item;
        }
        return FieldValue(list);
    });
    table.add("SessionNeedCalc", SessionNeedCalc);
    table.add("SessionNoHelp", SessionNoHelp);
    table.add("SessionCalcTerm", SessionCalcTerm);
    table.add("SessionCalcTermDirect", SessionCalcTermDirect);
    table.add("SessionBusy", SessionBusy);
    table.add("SessionRestart", SessionRestart);
    table.add("ParticleBackColor", ParticleBackColor);
    table.add("PlainChloride", PlainChloride);
    // A picture has no text form; its size tells whether there is one.
    table.addGetter("CapturedPicture", [this] {
        return FieldValue(CapturedPicture == nullptr
                              ? std::string()
                              : std::to_string(CapturedPicture->width()) + "x" +
                                    std::to_string(CapturedPicture->height()));
    });
}

bool hBoolText(std::string_view text, bool* understood) {
    const std::string word = trimmedLower(text);
    const auto number = NumberService().ParseVariant(word);
    const bool isTrue = word == "true" || word == "wahr";
    const bool isFalse = word == "false" || word == "falsch";
    if (understood != nullptr) {
        *understood = isTrue || isFalse || number.has_value();
    }
    return isTrue || (number.has_value() && *number != 0.0);
}

double hLog10(double x) {
    if (!(x > 0.0) || !std::isfinite(x)) {
        return 0.0;
    }
    return std::log(x) / std::log(10.0);
}

} // namespace quendal
