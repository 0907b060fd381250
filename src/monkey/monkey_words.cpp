#include "monkey/monkey_words.h"

#include "host/control.h"
#include "host/number_service.h"

#include <iterator>

namespace quendal {

namespace {

constexpr const char* kNonsense[] = {
    "",
    " ",
    "abc",
    "äöüßÄÖÜ",
    "1,2,3",
    "1.2.3",
    "--5",
    "5-",
    "+",
    "-",
    ",",
    ".",
    "e",
    "E5",
    "1e",
    "*10^",
    "10^",
    "1*10^-",
    "log(0)",
    "((((",
    "0x10",
    "inf",
    "nan",
    "-inf",
    "1/0",
    "\"",
    "\\",
    "#",
    "%s%n",
    "<b>fett</b>",
    "µ^|~",
    "\t7\t",
    "7\r\n8",
    "\xe2\x82\xac 5",
    "\xf0\x9f\xa7\xaa",
    "\xe2\x80\xae"
    "76,4",
    "１２",
};

constexpr const char* kNumbers[] = {
    "0",
    "0,00",
    "-0",
    "1",
    "7",
    "7,00",
    "7.00",
    "14",
    "0,01",
    "0.001",
    "10",
    "0,010",
    "-1",
    "-0,5",
    "1E300",
    "-1E300",
    "1E-300",
    "1E9",
    "1E400",
    "2147483648",
    "1000",
    "1001",
    "1,995*10^-09",
    "1,000*10^-14",
    "0,1",
    "0,5",
    "20",
    "20,5",
    "2,88",
    "4,76",
    "0,339",
    "76,4",
    "  3 ",
    "+2",
    "1,0E-7",
    "99999999999999999999999999",
    "0,30102999566398119521",
};

constexpr const char* kCharacters[] = {"0",
                                       "1",
                                       "5",
                                       "7",
                                       "9",
                                       ",",
                                       ".",
                                       "-",
                                       "+",
                                       "*",
                                       "^",
                                       "E",
                                       "a",
                                       "z",
                                       "ä",
                                       "ß",
                                       "µ",
                                       " ",
                                       " ",
                                       " ",
                                       "\"",
                                       "\\",
                                       "#",
                                       "\t",
                                       "\xe2\x82\xac",
                                       "\xf0\x9f\xa7\xaa"};

constexpr const char* kTeacherTexts[] = {
    "1",    "2",   "3",   "4",   "5",    "6",      "7",     "8",           "0",    "-1",
    "99",   "1,5", "2.5", "1E9", "wahr", "falsch", "true",  "false",       "WAHR", "ja",
    "nein", "",    " ",   "abc", "3abc", "äöü",    "1e400", "-2147483649", "NaN",  "\"1\"",
};

std::string decimals(Chance& chance, int value, int divisor) {
    NumberService numbers(chance.hit(0.8) ? DecimalSign::Comma : DecimalSign::Point);
    return numbers.Format(static_cast<double>(value) / divisor, chance.between(0, 3));
}

std::string repeated(std::string_view part, std::size_t times) {
    std::string text;
    for (std::size_t i = 0; i < times; ++i) {
        text += part;
    }
    return text;
}

} // namespace

std::string scriptWord(std::string_view text) {
    const bool plain =
        !text.empty() && text.find_first_of(" \t\r\n\"\\#") == std::string_view::npos;
    if (plain) {
        return std::string(text);
    }
    std::string word = "\"";
    for (const char c : text) {
        switch (c) {
        case '\n':
            word += "\\n";
            break;
        case '\r':
            word += "\\r";
            break;
        case '"':
        case '\\':
            word += '\\';
            [[fallthrough]];
        default:
            word += c;
        }
    }
    return word + '"';
}

std::string controlWord(const Control& control) {
    return scriptWord(control.fullName());
}

std::string anyNumber(Chance& chance) {
    switch (chance.between(0, 3)) {
    case 0:
        return chance.pick(kNumbers);
    case 1:
        return decimals(chance, chance.between(0, 1400), 100);
    case 2:
        return decimals(chance, chance.between(-2000, 2000), 1000);
    default:
        return std::to_string(chance.between(0, 30));
    }
}

std::string anyText(Chance& chance) {
    switch (chance.between(0, 9)) {
    case 0:
    case 1:
    case 2:
        return chance.pick(kNonsense);
    case 3:
        return repeated(chance.pick(kCharacters), chance.below(40));
    case 4:
        return chance.hit(0.1) ? repeated(anyCharacter(chance), 5000) : anyCharacter(chance);
    default:
        return anyNumber(chance);
    }
}

std::string anyCharacter(Chance& chance) {
    return chance.pick(kCharacters);
}

std::string anyTeacherText(Chance& chance) {
    return chance.hit(0.05) ? repeated("ü", 3000) : chance.pick(kTeacherTexts);
}

} // namespace quendal
