// The markup of term labels and inputs, read into something that can be typeset.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quendal {

enum class TermStyle { Plain, Subscript, Superscript };

struct TermFraction;

// One piece of a term: a run of text, or a fraction when `fraction` is set.
struct TermPiece {
    std::string text;
    TermStyle style = TermStyle::Plain;
    std::shared_ptr<const TermFraction> fraction;
};

using Term = std::vector<TermPiece>;

struct TermFraction {
    Term numerator;
    Term denominator;
};

// "µ" lowers and "^" raises what follows up to the next blank or "|", parentheses and operators
// included; a mark before that takes over. "|" ends it and isn't shown.
// "(a)/(b)" is a fraction, with nested parentheses kept whole; an unclosed denominator runs to the
// end. Texts without marks stay one plain piece. Never fails, for any bytes.
Term parseTerm(std::string_view markup);

// What a screen reader says and a script reads: the marks left out, a fraction as "a / b".
std::string plainTerm(std::string_view markup);

} // namespace quendal
