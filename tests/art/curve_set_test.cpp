// The curve files of the data folder are exactly what the program computes.
#include "curve_set.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

namespace quendal::curves {
namespace {

const std::filesystem::path kDataFolder = QUENDAL_SOURCE_DIR "/data";

std::string fileText(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(CurveSet, IsByteForByteWhatTheDataFolderHolds) {
    const auto files = allCurveFiles();
    EXPECT_EQ(files.size(), 32U);
    for (const CurveFile& file : files) {
        EXPECT_EQ(fileText(kDataFolder / file.name), curveText(file)) << file.name;
    }
}

TEST(CurveSet, MakesEveryCurveOfTheDataFolder) {
    const auto files = allCurveFiles();
    for (const auto& entry : std::filesystem::directory_iterator(kDataFolder)) {
        const auto isThis = [&entry](const CurveFile& file) {
            return file.name == entry.path().filename();
        };
        EXPECT_TRUE(entry.path().extension() != ".crv" || std::ranges::any_of(files, isThis))
            << entry.path().filename();
    }
}

TEST(CurveSet, SaysThatItIsComputed) {
    for (const CurveFile& file : allCurveFiles()) {
        const std::string text = curveText(file);
        EXPECT_NE(text.find("BERECHNET"), std::string::npos) << file.name;
        EXPECT_NE(text.find("NICHT im Labor gemessen"), std::string::npos) << file.name;
    }
}

TEST(CurveFile, HasOneSeparatorInEveryRow) {
    const CurveFile file{.name = "x.crv",
                         .notes = {"Anmerkung", ""},
                         .xTitle = "x in mL",
                         .yTitle = "y",
                         .columns = {{.name = "x", .decimals = 1, .values = {0.0, 0.1}},
                                     {.name = "y", .decimals = 3, .values = {-0.5, 13.25}}}};
    EXPECT_EQ(curveText(file),
              "# Anmerkung\n#\n# x-Achse: x in mL\n# y-Achse: y\nx;y\n0.0;-0.500\n0.1;13.250\n");
}

TEST(CurveFile, ReportsAFolderThatIsMissing) {
    EXPECT_THROW(writeCurveFile("/no/such/folder", allCurveFiles().front()), std::runtime_error);
}

} // namespace
} // namespace quendal::curves
