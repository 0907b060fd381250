// Numbers to texts and back, the same on every host and in every process locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quendal {

enum class DecimalSign : char { Comma = ',', Point = '.' };

class NumberService {
  public:
    explicit NumberService(DecimalSign sign = DecimalSign::Comma) : sign_(sign) {}

    DecimalSign decimalSign() const { return sign_; }
    void setDecimalSign(DecimalSign sign) { sign_ = sign; }

    // With `places` decimals (0 to 15), rounded half to even on the decimal value of 15 digits,
    // trailing zeros kept, the locale's sign, never "-0,000". What is no finite number reads
    // "nan" or "inf".
    std::string Format(double value, int places) const;
    // Takes what ParseVariant takes and never fails: a text that is no number gives a number that
    // equals none (not a number).
    double Parse(std::string_view text) const;
    // Blanks around, sign, comma or point, exponent "E", and products of powers such as
    // "1,995*10^-09". nullopt on all else and on the empty text.
    std::optional<double> ParseVariant(std::string_view text) const;

    // Default text form of a double: 15 significant digits, the locale's sign: "0,8", "1E-07".
    std::string text(double value) const;
    // The same with a decimal point whatever the locale, for labels that show a concentration.
    static std::string pointText(double value);
    // Classic form: a leading blank unless negative, a point, no zero before it: " .005".
    static std::string classicText(double value);
    // A fixed picture such as "#0.00": as many decimals as it has zeros behind the point.
    std::string picture(double value, std::string_view picture) const;

  private:
    DecimalSign sign_;
};

// The leading number of a teacher's text: blanks, sign, digits, point, digits, exponent; what
// follows is ignored and no number at all gives 0.
double leadingNumber(std::string_view text);

// To `decimals` decimals: value times 10^decimals rounded half to even and divided again.
double roundDecimals(double value, int decimals);

// The whole number nearest to `value`, halves to the even one, cut to the range of int.
int roundToInt(double value);

} // namespace quendal
