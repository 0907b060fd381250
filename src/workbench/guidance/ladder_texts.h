// What the ladder of help says in the same words on several forms.
#pragma once

#include <string_view>

namespace quendal {

// The first rung, on some forms in three lines and on others in one.
inline constexpr std::string_view kReminderInLines =
    "Das ist nicht richtig!\r\nÜberprüfe Deine Eingaben!\r\n"
    "Beachte die Informationen rechts an der Seite!";
inline constexpr std::string_view kReminderInOneLine =
    "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der "
    "Seite!";

// The last rung, and the same at a choice.
inline constexpr std::string_view kGiveNumbers =
    "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?";
inline constexpr std::string_view kClickForYou =
    "Das ist leider immer noch falsch! Soll ich für dich das Richtige anklicken?";

} // namespace quendal
