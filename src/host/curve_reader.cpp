#include "host/chart.h"
#include "host/number_text.h"
#include "host/utf8.h"

#include <cmath>

namespace quendal {

namespace {

constexpr int kMaxRows = 100'000;
constexpr std::size_t kMaxSeries = 32;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kXAxis = "x-Achse:";
constexpr std::string_view kYAxis = "y-Achse:";

std::vector<std::string_view> cells(std::string_view line) {
    std::vector<std::string_view> found;
    for (std::size_t end = line.find(';'); end != std::string_view::npos; end = line.find(';')) {
        found.push_back(trimBlanks(line.substr(0, end)));
        line.remove_prefix(end + 1);
    }
    found.push_back(trimBlanks(line));
    return found;
}

// A heading as spreadsheets write it: in quotes, and those within are doubled.
std::string heading(std::string_view cell) {
    if (cell.size() < 2 || !cell.starts_with('"') || !cell.ends_with('"')) {
        return std::string(cell);
    }
    std::string text;
    for (std::size_t i = 1; i + 1 < cell.size(); ++i) {
        text += cell[i];
        i += cell.substr(i, 2) == "\"\"" && i + 2 < cell.size() ? 1 : 0;
    }
    return text;
}

std::optional<double> number(std::string_view cell) {
    const bool negative = cell.starts_with('-');
    if (negative || cell.starts_with('+')) {
        cell.remove_prefix(1);
    }
    const ScannedNumber scanned = scanNumber(cell, DecimalSigns::PointOrComma);
    if (!scanned || scanned.length != cell.size() || !std::isfinite(scanned.value)) {
        return std::nullopt;
    }
    return negative ? -scanned.value : scanned.value;
}

class CurveReader {
  public:
    explicit CurveReader(std::string_view text) : rest_(text) {
        if (rest_.starts_with(kByteOrderMark)) {
            rest_.remove_prefix(kByteOrderMark.size());
        }
    }

    // Empty when all went well.
    std::string read() {
        if (!isUtf8(rest_)) {
            lineNumber_ = lineOfForeignByte(rest_);
            fail("Die Datei ist kein Text in UTF-8.");
        }
        while (fault_.empty() && !rest_.empty()) {
            readLine(nextLine());
        }
        if (fault_.empty() && rows_ == 0) {
            return "Es stehen keine Messwerte darin.";
        }
        return fault_;
    }

    void fill(ChartDocument& document) const {
        document.xTitle = xTitle_;
        document.yTitle = yTitle_;
        for (const ChartSeries& series : series_) {
            document.AddSeries(1, series.name) = series;
        }
    }

  private:
    std::string_view nextLine() {
        const std::size_t end = std::min(rest_.find('\n'), rest_.size());
        std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(std::min(end + 1, rest_.size()));
        ++lineNumber_;
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        return trimBlanks(line);
    }

    void readLine(std::string_view line) {
        if (line.starts_with('#')) {
            readComment(trimBlanks(line.substr(1)));
        } else if (!line.empty() && series_.empty()) {
            readHeader(cells(line));
        } else if (!line.empty()) {
            readRow(cells(line));
        }
    }

    void readComment(std::string_view comment) {
        if (comment.starts_with(kXAxis)) {
            xTitle_ = trimBlanks(comment.substr(kXAxis.size()));
        } else if (comment.starts_with(kYAxis)) {
            yTitle_ = trimBlanks(comment.substr(kYAxis.size()));
        }
    }

    void readHeader(const std::vector<std::string_view>& names) {
        if (number(names[0])) {
            return fail("Vor den Zahlen fehlt die Kopfzeile mit den Namen der Spalten.");
        }
        if (names.size() < 2) {
            return fail("Die Kopfzeile nennt keine Messreihe; zwischen den Spalten steht ';'.");
        }
        if (names.size() > kMaxSeries + 1) {
            return fail("Es sind mehr als 32 Messreihen.");
        }
        for (std::size_t i = 1; i < names.size(); ++i) {
            series_.emplace_back(heading(names[i]));
        }
        xTitle_ = xTitle_.empty() ? heading(names[0]) : xTitle_;
        yTitle_ = yTitle_.empty() ? heading(names[1]) : yTitle_;
    }

    void readRow(const std::vector<std::string_view>& row) {
        if (++rows_ > kMaxRows) {
            return fail("Es sind mehr als 100000 Zeilen mit Messwerten.");
        }
        if (row.size() != series_.size() + 1) {
            return fail("Die Zahl der Spalten stimmt nicht mit der Kopfzeile überein.");
        }
        const auto x = number(row[0]);
        for (std::size_t i = 1; i < row.size(); ++i) {
            const auto y = number(row[i]);
            if (!x || !y) {
                return fail("Eine Spalte enthält keine Zahl.");
            }
            series_[i - 1].Data.Add(*x, *y);
        }
    }

    void fail(std::string_view reason) {
        fault_ = "Zeile " + std::to_string(lineNumber_) + ": " + std::string(reason);
    }

    std::string_view rest_;
    std::string fault_;
    std::string xTitle_;
    std::string yTitle_;
    std::vector<ChartSeries> series_;
    std::size_t lineNumber_ = 0;
    int rows_ = 0;
};

} // namespace

bool readCurve(std::string_view text, ChartDocument& document, std::string& fault) {
    CurveReader reader(text);
    fault = reader.read();
    if (!fault.empty()) {
        return false;
    }
    reader.fill(document);
    return true;
}

} // namespace quendal
