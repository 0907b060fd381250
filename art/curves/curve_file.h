// The text of a curve file (*.crv).
#pragma once

#include <string>
#include <vector>

namespace quendal::curves {

struct CurveColumn {
    std::string name; // the first column is x, each other one a series
    int decimals = 0;
    std::vector<double> values; // all columns are equally long
};

struct CurveFile {
    std::string name;               // with ".crv"
    std::vector<std::string> notes; // what it is and where the values come from
    std::string xTitle;             // with unit
    std::string yTitle;
    std::vector<CurveColumn> columns;
};

// With so many decimals and a decimal point, whatever the locale.
std::string fixedText(double value, int decimals);

// UTF-8: notes and axis titles behind "# ", a line of column names, then one row a point, ";"
// between columns, decimal point, "\n" at each line's end.
std::string curveText(const CurveFile& file);

// Writes the file into a folder that exists. Throws std::runtime_error when it can't be written.
void writeCurveFile(const std::string& folder, const CurveFile& file);

} // namespace quendal::curves
