// Writes metafiles for tests, record by record. One unit is one px unless units for an inch are
// told.
#pragma once

#include "host/color.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace quendal::test {

inline constexpr Color kKeyColor{255, 0, 255};

class WmfWriter {
  public:
    struct At {
        int x;
        int y;
    };
    struct Box {
        int left;
        int top;
        int right;
        int bottom;
    };
    struct Font {
        int height = -12;
        int weight = 400;
        int italic = 0;
        int tenths = 0; // of a degree
        std::string family = "Arial";
        int charset = 0;
        int width = 0; // of an average letter; 0: as the font has it
    };

    WmfWriter(int width, int height, int unitsPerInch = 96)
        : box_{0, 0, width, height}, inch_(unitsPerInch) {}

    void setBox(Box box) { box_ = box; }

    void record(unsigned function, const std::vector<int>& words) {
        std::string body;
        for (const int word : words) {
            body += word16(word);
        }
        recordBytes(function, body);
    }
    void recordBytes(unsigned function, const std::string& body) {
        records_ += word32(static_cast<std::uint32_t>(3 + body.size() / 2));
        records_ += word16(static_cast<int>(function)) + body;
    }

    void windowOrigin(int x, int y) { record(0x020B, {y, x}); }
    void windowExtent(int width, int height) { record(0x020C, {height, width}); }

    // Each makes an object and selects it.
    void pen(int style, int width, Color color) {
        create(0x02FA, word16(style) + word16(width) + word16(0) + rgb(color));
    }
    void noPen() { pen(5, 0, kBlack); }
    void brush(Color color, int style = 0) {
        create(0x02FC, word16(style) + rgb(color) + word16(0));
    }
    void noBrush() { brush(kBlack, 1); }
    void font(const Font& font) {
        std::string face = font.family + '\0';
        face.resize(face.size() + face.size() % 2, '\0');
        create(0x02FB, word16(font.height) + word16(font.width) + word16(font.tenths) +
                           word16(font.tenths) + word16(font.weight) + byte(font.italic) + byte(0) +
                           byte(0) + byte(font.charset) + word32(0) + face);
    }
    void select(int object) { record(0x012D, {object}); }
    void remove(int object) { record(0x01F0, {object}); }

    void textColor(Color color) { recordBytes(0x0209, rgb(color)); }
    void ground(Color color) { recordBytes(0x0201, rgb(color)); }
    void groundMode(int mode) { record(0x0102, {mode}); }
    void align(int bits) { record(0x012E, {bits}); }
    void fillRule(int mode) { record(0x0106, {mode}); }
    void clip(Box box) { record(0x0416, {box.bottom, box.right, box.top, box.left}); }
    void save() { record(0x001E, {}); }
    void restore(int number) { record(0x0127, {number}); }

    void moveTo(At at) { record(0x0214, {at.y, at.x}); }
    void lineTo(At at) { record(0x0213, {at.y, at.x}); }
    void polygon(const std::vector<At>& points) { record(0x0324, counted(points)); }
    void polyline(const std::vector<At>& points) { record(0x0325, counted(points)); }
    void polyPolygon(const std::vector<std::vector<At>>& rings) {
        std::vector<int> words{static_cast<int>(rings.size())};
        for (const auto& ring : rings) {
            words.push_back(static_cast<int>(ring.size()));
        }
        for (const auto& ring : rings) {
            add(words, ring);
        }
        record(0x0538, words);
    }
    void rectangle(Box box) { record(0x041B, {box.bottom, box.right, box.top, box.left}); }
    void ellipse(Box box) { record(0x0418, {box.bottom, box.right, box.top, box.left}); }
    void roundRectangle(Box box, int across, int down) {
        record(0x061C, {down, across, box.bottom, box.right, box.top, box.left});
    }
    // Arc 0x0817, pie 0x081A, chord 0x0830.
    void arc(unsigned function, Box box, At start, At end) {
        record(function,
               {end.y, end.x, start.y, start.x, box.bottom, box.right, box.top, box.left});
    }
    // `text` in Windows-1252.
    void text(At at, const std::string& text) {
        recordBytes(0x0521, word16(static_cast<int>(text.size())) + padded(text) + word16(at.y) +
                                word16(at.x));
    }
    void textInBox(At at, int options, Box box, const std::string& text) {
        recordBytes(0x0A32, word16(at.y) + word16(at.x) + word16(static_cast<int>(text.size())) +
                                word16(options) + word16(box.left) + word16(box.top) +
                                word16(box.right) + word16(box.bottom) + padded(text));
    }
    void textWithAdvances(At at, const std::string& text, const std::vector<int>& advances) {
        std::string body = word16(at.y) + word16(at.x) + word16(static_cast<int>(text.size())) +
                           word16(0) + padded(text);
        for (const int advance : advances) {
            body += word16(advance);
        }
        recordBytes(0x0A32, body);
    }

    // The file without its last record.
    std::string withoutEnd() const {
        std::string head = word32(0x9AC6CDD7U) + word16(0) + word16(box_.left) + word16(box_.top) +
                           word16(box_.right) + word16(box_.bottom) + word16(inch_) + word32(0);
        head += checksum(head);
        return head + word16(1) + word16(9) + word16(0x0300) + word32(0) + word16(objects_) +
               word32(0) + word16(0) + records_;
    }
    std::string bytes() const { return withoutEnd() + word32(3) + word16(0); }

    static std::string word16(int value) {
        const auto bits = static_cast<unsigned>(value);
        return byte(static_cast<int>(bits & 0xFFU)) + byte(static_cast<int>(bits >> 8 & 0xFFU));
    }
    static std::string word32(std::uint32_t value) {
        return word16(static_cast<int>(value & 0xFFFFU)) + word16(static_cast<int>(value >> 16));
    }

  private:
    static std::string byte(int value) { return std::string(1, static_cast<char>(value)); }
    static std::string rgb(Color color) {
        return byte(color.r) + byte(color.g) + byte(color.b) + byte(0);
    }
    static std::string padded(std::string text) {
        text.resize(text.size() + text.size() % 2, '\0');
        return text;
    }
    static std::string checksum(const std::string& head) {
        std::string sum(2, '\0');
        for (std::size_t i = 0; i < head.size(); ++i) {
            sum[i % 2] = static_cast<char>(sum[i % 2] ^ head[i]);
        }
        return sum;
    }
    static void add(std::vector<int>& words, const std::vector<At>& points) {
        for (const At& point : points) {
            words.push_back(point.x);
            words.push_back(point.y);
        }
    }
    static std::vector<int> counted(const std::vector<At>& points) {
        std::vector<int> words{static_cast<int>(points.size())};
        add(words, points);
        return words;
    }
    void create(unsigned function, const std::string& body) {
        recordBytes(function, body);
        select(objects_++);
    }

    Box box_;
    int inch_;
    int objects_ = 0;
    std::string records_;
};

} // namespace quendal::test
