#include "desktop/boxes/calculator_display.h"

#include "desktop/windows/look.h"
#include "host/expression.h"
#include "host/number_service.h"
#include "host/roots.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QVBoxLayout>

#include <cmath>

namespace quendal {

namespace {

constexpr int kLongestLine = 1000; // characters, as the evaluator takes
constexpr double kLineSize = 22;   // design px
constexpr double kNoteSize = 13;

// What can stand in a line; other keys do nothing, a pasted text may hold anything.
bool belongs(const QString& typed) {
    static const QString kCharacters = "0123456789,.+-*/^()logLOGeE ";
    return typed.isEmpty() || !typed.front().isPrint() || kCharacters.contains(typed.front());
}

bool continuesResult(const QString& text) {
    return !text.isEmpty() && QString("+-*/^").contains(text.front());
}

} // namespace

CalculatorDisplay::CalculatorDisplay(double scale, QWidget* parent)
    : QWidget(parent), line_(new QLineEdit(this)), note_(new QLabel(this)) {
    const auto px = [scale](double size) { return static_cast<int>(std::lround(size * scale)); };
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(px(4));
    line_->setObjectName("display");
    line_->setAccessibleName("Anzeige");
    line_->setFont(look::font(kLineSize, scale));
    line_->setMinimumHeight(px(44));
    line_->setTextMargins(px(8), 0, px(8), 0);
    line_->setMaxLength(kLongestLine);
    line_->setAlignment(Qt::AlignRight);
    line_->installEventFilter(this);
    note_->setObjectName("note");
    note_->setFont(look::font(kNoteSize, scale));
    note_->setMinimumHeight(px(18));
    note_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    note_->setTextFormat(Qt::PlainText);
    // A long line must not make the calculator wider.
    note_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    column->addWidget(line_);
    column->addWidget(note_);
    setFocusProxy(line_);
    connect(line_, &QLineEdit::textChanged, this, &CalculatorDisplay::edited);
}

QString CalculatorDisplay::text() const {
    return line_->text();
}

void CalculatorDisplay::edited() {
    result_.reset();
    note_->clear();
}

void CalculatorDisplay::take(const QString& text) {
    line_->setText(text);
    line_->setFocus();
}

void CalculatorDisplay::type(const QString& text) {
    if (showsResult() && !continuesResult(text)) {
        line_->clear();
    }
    line_->insert(text);
    line_->setFocus();
}

void CalculatorDisplay::erase() {
    line_->backspace();
    line_->setFocus();
}

void CalculatorDisplay::clear() {
    line_->clear();
    note_->clear();
    line_->setFocus();
}

bool CalculatorDisplay::showsResult() const {
    return result_.has_value();
}

std::optional<double> CalculatorDisplay::evaluate() {
    if (showsResult()) {
        return result_;
    }
    const QString term = line_->text();
    const ExpressionResult worked_out = evaluateExpression(term.toStdString());
    if (!worked_out) {
        showFault(QString::fromStdString(faultText(worked_out.fault)));
        return std::nullopt;
    }
    const std::string digits = CoreLib().NumberService.text(worked_out.value);
    line_->setText(QString::fromStdString(digits));
    result_ = worked_out.value;
    note_->setStyleSheet("color: " + look::kCalmInk.name());
    note_->setText(term.trimmed() + " =");
    emit worked(term.trimmed(), line_->text());
    return result_;
}

void CalculatorDisplay::showFault(const QString& text) {
    note_->setStyleSheet("color: " + look::kWrong.name());
    note_->setText(text);
    line_->setFocus();
}

bool CalculatorDisplay::eventFilter(QObject* watched, QEvent* event) {
    if (watched == line_ && event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const bool shortcut = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
        const QString typed = shortcut || key.text().isEmpty() ? QString() : key.text().left(1);
        if (key.key() == Qt::Key_Equal) {
            evaluate();
            return true;
        }
        if (!belongs(typed)) {
            return true;
        }
        if (!typed.isEmpty() && typed.front().isPrint()) {
            type(typed);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace quendal
