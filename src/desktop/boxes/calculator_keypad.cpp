#include "desktop/boxes/calculator_keypad.h"

#include "desktop/windows/look.h"

#include <QGridLayout>
#include <QPushButton>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace quendal {

namespace {

enum class Action { Type, Clear, Erase, Ask };
enum class Rank { Digit, Operator, Result };

struct KeyRow {
    const char* face;
    const char* text; // put into the display
    const char* said; // to a screen reader
    int row;
    int column;
    int rows = 1;
    int columns = 1;
    Action action = Action::Type;

    constexpr Rank rank() const {
        const bool digit = (*face >= '0' && *face <= '9') || *face == ',';
        return action == Action::Ask ? Rank::Result : digit ? Rank::Digit : Rank::Operator;
    }
};

constexpr KeyRow kKeys[] = {
    {"log", "log(", "Logarithmus", 0, 0},
    {"(", "(", "Klammer auf", 0, 1},
    {")", ")", "Klammer zu", 0, 2},
    {"^", "^", "hoch", 0, 3},
    {"C", "", "alles löschen", 0, 4, 1, 1, Action::Clear},
    {"7", "7", "7", 1, 0},
    {"8", "8", "8", 1, 1},
    {"9", "9", "9", 1, 2},
    {"/", "/", "geteilt durch", 1, 3},
    {"\u2190", "", "ein Zeichen löschen", 1, 4, 1, 1, Action::Erase},
    {"4", "4", "4", 2, 0},
    {"5", "5", "5", 2, 1},
    {"6", "6", "6", 2, 2},
    {"*", "*", "mal", 2, 3},
    {"E", "E", "mal zehn hoch", 2, 4},
    {"1", "1", "1", 3, 0},
    {"2", "2", "2", 3, 1},
    {"3", "3", "3", 3, 2},
    {"-", "-", "minus", 3, 3},
    {"=", "", "ausrechnen", 3, 4, 2, 1, Action::Ask},
    {"0", "0", "0", 4, 0, 1, 2},
    {",", ",", "Komma", 4, 2},
    {"+", "+", "plus", 4, 3},
};

constexpr double kKeyWidth = 50; // design px
constexpr double kKeyHeight = 46;
constexpr double kGap = 6;
constexpr double kFaceSize = 17;
constexpr double kArrowSize = 26; // the line of an arrow is thinner than that of a letter

struct KeyColours {
    QColor fill;
    QColor hover;
    QColor border;
    QColor face;
};

KeyColours colours(Rank rank) {
    switch (rank) {
    case Rank::Operator:
        return {look::kGround, look::kAccentWash, look::kBorder, look::kAccentInk};
    case Rank::Result:
        return {look::kAccentInk, look::kAccentInk.lighter(115), look::kAccentInk, Qt::white};
    case Rank::Digit:
        break;
    }
    return {look::kPanel, look::kAccentWash, look::kStrongBorder, look::kInk};
}

QString keyStyle(Rank rank, double scale) {
    const KeyColours key = colours(rank);
    return QString("QPushButton { background: %1; border: %2px solid %3; border-radius: %4px; "
                   "color: %5; } QPushButton:hover { background: %6; } "
                   "QPushButton:pressed { background: %7; }")
        .arg(key.fill.name())
        .arg(std::max(1.0, scale))
        .arg(key.border.name())
        .arg(look::kButtonCorner * scale)
        .arg(key.face.name(), key.hover.name(), key.hover.darker(108).name());
}

} // namespace

CalculatorKeypad::CalculatorKeypad(double scale, QWidget* parent) : QWidget(parent), scale_(scale) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(static_cast<int>(std::lround(kGap * scale)));
    for (int i = 0; i < static_cast<int>(std::size(kKeys)); ++i) {
        addKey(i);
    }
}

void CalculatorKeypad::addKey(int index) {
    const KeyRow& key = kKeys[index];
    auto* button = new QPushButton(key.face, this);
    button->setObjectName(QString("key ") + key.face);
    button->setAccessibleName(key.said);
    button->setToolTip(key.action == Action::Type ? QString() : QString(key.said));
    const double faceSize = key.action == Action::Erase ? kArrowSize : kFaceSize;
    button->setFont(look::font(faceSize, scale_, key.rank() != Rank::Digit));
    // The display keeps the focus: what is typed always goes there.
    button->setFocusPolicy(Qt::NoFocus);
    button->setStyleSheet(keyStyle(key.rank(), scale_));
    const auto extent = [this](double size, int count) {
        return static_cast<int>(std::lround((size * count + kGap * (count - 1)) * scale_));
    };
    button->setFixedSize(extent(kKeyWidth, key.columns), extent(kKeyHeight, key.rows));
    static_cast<QGridLayout*>(layout())->addWidget(button, key.row, key.column, key.rows,
                                                   key.columns);
    connect(button, &QPushButton::clicked, this, [this, &key] {
        switch (key.action) {
        case Action::Type:
            emit typed(key.text);
            break;
        case Action::Clear:
            emit cleared();
            break;
        case Action::Erase:
            emit erased();
            break;
        case Action::Ask:
            emit asked();
            break;
        }
    });
}

} // namespace quendal
