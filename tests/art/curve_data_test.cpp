// The curve files of the data folder are exactly what the program computes.
#include "curve_set.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

namespace quendal::curves {
namespace {

std::string fileText(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(CurveData, IsByteForByteWhatTheProgramWrites) {
    const auto files = allCurveFiles();
    EXPECT_EQ(files.size(), 6U);
    for (const CurveFile& file : files) {
        EXPECT_EQ(fileText(std::string(QUENDAL_SOURCE_DIR) + "/data/" + file.name), curveText(file))
            << file.name;
    }
}

TEST(CurveData, SaysThatItIsComputed) {
    for (const CurveFile& file : allCurveFiles()) {
        const std::string text = curveText(file);
        EXPECT_NE(text.find("NICHT im Labor gemessen"), std::string::npos) << file.name;
        EXPECT_NE(text.find("\n# x-Achse: V(NaOH) in mL\n# y-Achse: pH-Wert\nV(NaOH);pH-Wert\n"),
                  std::string::npos)
            << file.name;
    }
}

TEST(CurveData, HasOneSeparatorInEveryRow) {
    const CurveFile file{.name = "x.crv",
                         .notes = {"Anmerkung", ""},
                         .xTitle = "x in mL",
                         .yTitle = "y",
                         .columns = {{.name = "x", .decimals = 1, .values = {0.0, 0.1}},
                                     {.name = "y", .decimals = 3, .values = {-0.5, 13.25}}}};
    EXPECT_EQ(curveText(file),
              "# Anmerkung\n#\n# x-Achse: x in mL\n# y-Achse: y\nx;y\n0.0;-0.500\n0.1;13.250\n");
}

TEST(CurveData, ReportsAFolderThatIsMissing) {
    EXPECT_THROW(writeCurveFile("/no/such/folder", allCurveFiles().front()), std::runtime_error);
}

} // namespace
} // namespace quendal::curves
