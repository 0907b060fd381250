// Turns the signs of an RTF text into a document. One object reads one text.
#pragma once

#include "desktop/files/rtf_builder.h"
#include "desktop/files/rtf_tokens.h"

#include <optional>
#include <vector>

namespace quendal {

class RtfReader {
  public:
    explicit RtfReader(std::string_view bytes) : tokens_(bytes) {}
    RtfDocument read();

  private:
    enum class Target { Text, Nothing, Colours };
    // What a group hands down to the groups inside it.
    struct State {
        RtfStyle style;
        RtfLayout layout;
        Target target = Target::Text;
        int standIns = 1; // characters that stand in for one of \u
        bool inTable = false;
    };

    // False ends the reading.
    bool take(const RtfToken& token);
    bool openGroup();
    bool closeGroup();
    void takeWord(const RtfToken& token);
    bool takeTextWord(const RtfToken& token);
    bool takeStyleWord(const RtfToken& token);
    bool takeLayoutWord(const RtfToken& token);
    bool takeTableWord(const RtfToken& token);
    bool takeCellWord(const RtfToken& token);
    void takeColourWord(const RtfToken& token);
    void takeColourEnd();
    void takeSymbol(char sign);
    void takeText(std::string_view bytes);
    void takeByte(unsigned char byte);
    void takeUnicode(int number);

    void put(char32_t character) { builder_.put(character, state().style); }
    std::optional<Color> colour(int index) const;
    State& state() { return states_.back(); }

    RtfTokenizer tokens_;
    RtfBuilder builder_;
    std::vector<State> states_{State{}};
    std::vector<std::optional<Color>> colours_;
    std::optional<Color> colourInWork_;
    RtfCellLayout cellInWork_;
    bool RtfEdges::*edge_ = nullptr; // the cell border that is being described
    bool starred_ = false;           // the sign before was \*
    int standInsLeft_ = 0;
    char32_t highSurrogate_ = 0;
    std::string fault_;
};

} // namespace quendal
