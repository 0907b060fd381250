#include "script/transcript.h"

#include "host/clock.h"
#include "host/roots.h"
#include "script/values.h"

namespace quendal {

JsonLine Transcript::line(std::string_view event) {
    JsonLine line;
    line.addRaw("t", numberText(CoreLib().Clock.Now())).add("event", event);
    return line;
}

void Transcript::write(const JsonLine& line) {
    out_ << line.text() << '\n' << std::flush;
}

} // namespace quendal
