#include "desktop/boxes/calculator_window.h"

#include "desktop/boxes/calculator_display.h"
#include "desktop/boxes/calculator_keypad.h"
#include "desktop/windows/look.h"
#include "desktop/windows/text_fit.h"
#include "host/calculator.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace quendal {

namespace {

constexpr double kListWidth = 340; // design px
constexpr double kListFrame = 10;  // border and padding above and below
constexpr int kMostRows = 4;       // of the offered lines that are seen at once
constexpr std::size_t kMostHistory = 50;

// What a history row puts into the display.
constexpr int kTextRole = Qt::UserRole;

bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

QString listStyle(double scale) {
    const auto px = [scale](double size) { return QString::number(std::max(1.0, size * scale)); };
    return "QListWidget { background: " + look::kPanel.name() + "; border: " + px(1) + "px solid " +
           look::kStrongBorder.name() + "; border-radius: " + px(6) + "px; padding: " + px(3) +
           "px; outline: 0; }"
           "QListWidget:focus { border: " +
           px(2) + "px solid " + look::kFocus.name() +
           "; }"
           "QListWidget::item { padding: " +
           px(5) + "px " + px(6) + "px; border-radius: " + px(4) +
           "px; color: " + look::kInk.name() +
           "; }"
           "QListWidget::item:hover { background: " +
           look::kAccentWash.name() +
           "; }"
           "QListWidget::item:selected { background: " +
           look::kAccentWash.name() + "; color: " + look::kInk.name() + "; }";
}

} // namespace

CalculatorWindow::CalculatorWindow(const CalcPresets& presets, std::vector<WorkedLine>& history,
                                   double scale)
    : BoxWindow(kCalculatorCaption, scale), history_(history),
      display_(new CalculatorDisplay(scale, this)) {
    auto* keypad = new CalculatorKeypad(scale, this);
    auto* row = new QHBoxLayout;
    row->setSpacing(px(16));
    row->addWidget(keypad, 0, Qt::AlignTop);
    row->addWidget(makeLists(presets));
    body().addWidget(display_);
    body().addLayout(row);
    take_ = &addActionButton("Ü&bernehmen");
    abort_ = &addButton("&Abbrechen", kAborted);
    setEscapeCode(kAborted);
    connect(take_, &QPushButton::clicked, this, &CalculatorWindow::takeOver);
    connect(keypad, &CalculatorKeypad::typed, display_, &CalculatorDisplay::type);
    connect(keypad, &CalculatorKeypad::cleared, display_, &CalculatorDisplay::clear);
    connect(keypad, &CalculatorKeypad::erased, display_, &CalculatorDisplay::erase);
    connect(keypad, &CalculatorKeypad::asked, display_, &CalculatorDisplay::evaluate);
    connect(display_, &CalculatorDisplay::worked, this, &CalculatorWindow::remember);
    showHistory();
    display_->setFocus();
}

QWidget* CalculatorWindow::makeLists(const CalcPresets& presets) {
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(px(4));
    if (!presets.lines().empty()) {
        offered_ = addList(*column, "&Vorgaben", "offered");
        for (const std::string& line : presets.lines()) {
            auto* item = new QListWidgetItem(shownText(line), offered_);
            item->setData(kTextRole, item->text());
            item->setToolTip(item->text());
        }
        const int rows = std::min(offered_->count(), kMostRows);
        offered_->setFixedHeight(rows * offered_->sizeHintForRow(0) + px(kListFrame));
        column->addSpacing(px(4));
    }
    worked_ = addList(*column, "Ver&lauf", "history");
    side->setFixedWidth(px(kListWidth));
    return side;
}

QListWidget* CalculatorWindow::addList(QVBoxLayout& column, const QString& title,
                                       const QString& name) {
    auto* heading = new QLabel(title, this);
    heading->setFont(look::font(look::kTextSize, scale(), true));
    auto* list = new QListWidget(this);
    list->setObjectName(name);
    list->setAccessibleName(withoutMnemonic(title));
    list->setFont(look::font(look::kTextSize + 1, scale()));
    list->setStyleSheet(listStyle(scale()));
    list->setMinimumHeight(px(36));
    list->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setTextElideMode(Qt::ElideRight);
    heading->setBuddy(list);
    connect(list, &QListWidget::itemClicked, this, &CalculatorWindow::use);
    list->installEventFilter(this);
    column.addWidget(heading);
    column.addWidget(list, 1);
    return list;
}

void CalculatorWindow::use(const QListWidgetItem* item) {
    if (item != nullptr) {
        display_->take(item->data(kTextRole).toString());
    }
}

// Enter in a list takes its line; the list itself would let the key through to the display.
bool CalculatorWindow::eventFilter(QObject* watched, QEvent* event) {
    const auto* list = qobject_cast<QListWidget*>(watched);
    if (list != nullptr && event->type() == QEvent::KeyPress &&
        isEnter(static_cast<const QKeyEvent&>(*event))) {
        use(list->currentItem());
        return true;
    }
    return BoxWindow::eventFilter(watched, event);
}

void CalculatorWindow::showHistory() {
    worked_->clear();
    for (const WorkedLine& line : history_) {
        auto* term = new QListWidgetItem(line.term, worked_);
        term->setData(kTextRole, line.term);
        term->setToolTip(line.term);
        auto* result = new QListWidgetItem("= " + line.result, worked_);
        result->setData(kTextRole, line.result);
        result->setFont(look::font(look::kTextSize + 1, scale(), true));
    }
}

void CalculatorWindow::remember(const QString& term, const QString& result) {
    history_.insert(history_.begin(), WorkedLine{.term = term, .result = result});
    if (history_.size() > kMostHistory) {
        history_.pop_back();
    }
    showHistory();
}

void CalculatorWindow::takeOver() {
    value_ = display_->evaluate();
    if (value_) {
        finish(kTaken);
    }
}

// Enter in the display works the line out, and once more takes the result over.
void CalculatorWindow::keyPressEvent(QKeyEvent* event) {
    if (!isEnter(*event) || focusWidget() != &display_->line()) {
        BoxWindow::keyPressEvent(event);
    } else if (display_->showsResult()) {
        takeOver();
    } else {
        display_->evaluate();
    }
}

} // namespace quendal
