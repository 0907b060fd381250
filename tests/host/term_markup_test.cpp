#include "host/term_markup.h"

#include <gtest/gtest.h>

namespace quendal {
namespace {

// A term in one line: "_{...}" lowered, "^{...}" raised, "[a / b]" a fraction.
std::string outline(const Term& term) {
    std::string text;
    for (const TermPiece& piece : term) {
        if (piece.fraction) {
            text += "[" + outline(piece.fraction->numerator) + " / " +
                    outline(piece.fraction->denominator) + "]";
        } else if (piece.style == TermStyle::Subscript) {
            text += "_{" + piece.text + "}";
        } else if (piece.style == TermStyle::Superscript) {
            text += "^{" + piece.text + "}";
        } else {
            text += piece.text;
        }
    }
    return text;
}

struct MarkupRow {
    const char* markup;
    const char* outline;
    const char* plain;
};

const MarkupRow kTerms[] = {
    {"", "", ""},
    {"pH =", "pH =", "pH ="},
    {"mol / L", "mol / L", "mol / L"},
    {"H3O+", "H3O+", "H3O+"},
    {"nµV(S) = cµV(S) * VµV(S)", "n_{V(S)} = c_{V(S)} * V_{V(S)}", "nV(S) = cV(S) * VV(S)"},
    {"nµV(S) =", "n_{V(S)} =", "nV(S) ="},
    {"V\u03BCZ(OH) =", "V_{Z(OH)} =", "VZ(OH) ="},
    {"Hµ3|O^+|", "H_{3}O^{+}", "H3O+"},
    {"c(Hµ3|O^+|)", "c(H_{3}O^{+})", "c(H3O+)"},
    {"nges.(Hµ2|O)", "nges.(H_{2}O)", "nges.(H2O)"},
    {"c(H3O+) = (n(H3O+))/(V(gesamt))", "c(H3O+) = [n(H3O+) / V(gesamt)]",
     "c(H3O+) = n(H3O+) / V(gesamt)"},
    {"c(OH-) = (n(OH-))/(V(gesamt))", "c(OH-) = [n(OH-) / V(gesamt)]",
     "c(OH-) = n(OH-) / V(gesamt)"},
    {"pH = (1)/(2)*(pKs-log(cµV(HAc)))", "pH = [1 / 2]*(pKs-log(c_{V(HAc)))}",
     "pH = 1 / 2*(pKs-log(cV(HAc)))"},
    {"KµL(AgCl) = 10^-9.7 (mol²)/(  L²)", "K_{L(AgCl)} = 10^{-9.7} [mol² /   L²]",
     "KL(AgCl) = 10-9.7 mol² /   L²"},
    {"n(HAc)/n(Ac-) = n(HAc)/nµZ(OH)", "n(HAc)/n(Ac-) = n(HAc)/n_{Z(OH)}",
     "n(HAc)/n(Ac-) = n(HAc)/nZ(OH)"},
    {"0 < nµZ(OH) < nµV(HAc)", "0 < n_{Z(OH)} < n_{V(HAc)}", "0 < nZ(OH) < nV(HAc)"},
    {"mL (= cm^3)", "mL (= cm^{3)}", "mL (= cm3)"},
    {"mS*cm^2 /mmol", "mS*cm^{2} /mmol", "mS*cm2 /mmol"},
    // The twelve lines of the formula sheet.
    {" pH = - log (c(H3O+))", " pH = - log (c(H3O+))", " pH = - log (c(H3O+))"},
    {"pH = 14 + log(c(OH-))", "pH = 14 + log(c(OH-))", "pH = 14 + log(c(OH-))"},
    {"pH = 0.5 (pKµS - log (cµV(HAc))", "pH = 0.5 (pK_{S} - log (c_{V(HAc))}",
     "pH = 0.5 (pKS - log (cV(HAc))"},
    {"pH = 14 -  0.5 (pKµB - log(cµV(Ac-))", "pH = 14 -  0.5 (pK_{B} - log(c_{V(Ac-))}",
     "pH = 14 -  0.5 (pKB - log(cV(Ac-))"},
    {"pH = pKµS - log(c(HAc) / c(Ac-)     (= MWG)", "pH = pK_{S} - log(c(HAc) / c(Ac-)     (= MWG)",
     "pH = pKS - log(c(HAc) / c(Ac-)     (= MWG)"},
    {"pH = pKµS  (im Halbäquivalenzunkt)", "pH = pK_{S}  (im Halbäquivalenzunkt)",
     "pH = pKS  (im Halbäquivalenzunkt)"},
    {"pH = - log (cµV(HAc) * VµV(HAc) - cµB(OH) * VµB(OH) / (VµV(HAc)+ VµZ(OH))",
     "pH = - log (c_{V(HAc)} * V_{V(HAc)} - c_{B(OH)} * V_{B(OH)} / (V_{V(HAc)+} V_{Z(OH))}",
     "pH = - log (cV(HAc) * VV(HAc) - cB(OH) * VB(OH) / (VV(HAc)+ VZ(OH))"},
    {"pH = 14 - log(cµB(OH) * VµB(OH) - cµV(HAc) * VµV(HAc) / (VµV(HAc)+ VµZ(OH))",
     "pH = 14 - log(c_{B(OH)} * V_{B(OH)} - c_{V(HAc)} * V_{V(HAc)} / (V_{V(HAc)+} V_{Z(OH))}",
     "pH = 14 - log(cB(OH) * VB(OH) - cV(HAc) * VV(HAc) / (VV(HAc)+ VZ(OH))"},
    {"pH = pKµS - log (cµV(HAc)*VµV(HAc) / (cµV(HAc)*VµV(HAc) - cµZ(OH)*VµZ(OH) )  ",
     "pH = pK_{S} - log (c_{V(HAc)*VV(HAc)} / (c_{V(HAc)*VV(HAc)} - c_{Z(OH)*VZ(OH)} )  ",
     "pH = pKS - log (cV(HAc)*VV(HAc) / (cV(HAc)*VV(HAc) - cZ(OH)*VZ(OH) )  "},
    {"pH = 0.5 (pKµS - log (cµV(HAc))", "pH = 0.5 (pK_{S} - log (c_{V(HAc))}",
     "pH = 0.5 (pKS - log (cV(HAc))"},
    {"pH = 14 -  0.5 (14-pKµS - log(cµV(HAc)*VµV(HAc) / (VµV(HAc)+ VµZ(OH))",
     "pH = 14 -  0.5 (14-pK_{S} - log(c_{V(HAc)*VV(HAc)} / (V_{V(HAc)+} V_{Z(OH))}",
     "pH = 14 -  0.5 (14-pKS - log(cV(HAc)*VV(HAc) / (VV(HAc)+ VZ(OH))"},
    // Marks in odd places.
    {"a|b", "ab", "ab"},
    {"|", "", ""},
    {"µ", "", ""},
    {"xµ|y", "xy", "xy"},
    {"xµ y", "x y", "x y"},
    {"x^2", "x^{2}", "x2"},
    {"10^-14 x", "10^{-14} x", "10-14 x"},
    {"aµb^c|d", "a_{b}^{c}d", "abcd"},
    {"a^bµc d", "a^{b}_{c} d", "abc d"},
    {"c(Ag+) = KµL^0.5)", "c(Ag+) = K_{L}^{0.5)}", "c(Ag+) = KL0.5)"},
    {"aµµb", "a_{b}", "ab"},
    // Fractions.
    {"(a)/(b)", "[a / b]", "a / b"},
    {"(a)/(b", "[a / b]", "a / b"},
    {"(a)/(", "[a / ]", "a / "},
    {"(a)/b", "(a)/b", "(a)/b"},
    {"(a) / (b)", "(a) / (b)", "(a) / (b)"},
    {"a)/(b)", "a)/(b)", "a)/(b)"},
    {"()/()", "[ / ]", " / "},
    {"((a)/(b))/(c)", "[[a / b] / c]", "a / b / c"},
    {"(a)/((b)/(c", "[a / [b / c]]", "a / b / c"},
    {"(a+(b))/(c(d)e)f", "[a+(b) / c(d)e]f", "a+(b) / c(d)ef"},
    {"(aµS)/(bµV x)", "[a_{S} / b_{V} x]", "aS / bV x"},
    {"xµ(a)/(b)", "x_{(a)/(b)}", "x(a)/(b)"},
    {"(a)/(b)/(c)", "[a / b]/(c)", "a / b/(c)"},
    {"x(a)/(b)y", "x[a / b]y", "xa / by"},
};

TEST(TermMarkup, ReadsTerms) {
    for (const MarkupRow& row : kTerms) {
        EXPECT_EQ(outline(parseTerm(row.markup)), row.outline);
        EXPECT_EQ(plainTerm(row.markup), row.plain);
    }
}

TEST(TermMarkup, TextWithoutMarksIsOnePiece) {
    const Term term = parseTerm("4. Konzentration der Säure neu berechnen (a|b)");
    ASSERT_EQ(term.size(), 1U);
    EXPECT_EQ(term[0].style, TermStyle::Plain);
}

TEST(TermMarkup, TakesAnyBytes) {
    const std::string many(100'000, '(');
    EXPECT_EQ(plainTerm(many), many);
    std::string nested;
    for (int i = 0; i < 20'000; ++i) {
        nested += "(1)/(";
    }
    EXPECT_FALSE(parseTerm(nested).empty());
    EXPECT_EQ(plainTerm("\xC2"), "\xC2");
    EXPECT_EQ(plainTerm("\xFF\xFE"), "\xFF\xFE");
    EXPECT_EQ(plainTerm(std::string_view("a\0b", 3)), std::string("a\0b", 3));
}

} // namespace
} // namespace quendal
