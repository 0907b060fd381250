// The popup calculator on the screen.
#pragma once

#include "desktop/boxes/box_window.h"
#include "host/calc_presets.h"

#include <QStringList>

class QListWidget;
class QListWidgetItem;
class QVBoxLayout;

namespace quendal {

class CalculatorDisplay;

// One line that was worked out, as the history shows it.
struct WorkedLine {
    QString term;
    QString result;
};

class CalculatorWindow final : public BoxWindow {
    Q_OBJECT
  public:
    static constexpr int kTaken = 1;
    static constexpr int kAborted = 2;

    // `history` outlives the window and is added to, newest first.
    CalculatorWindow(const CalcPresets& presets, std::vector<WorkedLine>& history, double scale);

    // The value that was taken over; nullopt when the learner aborts.
    std::optional<double> value() const { return value_; }

    CalculatorDisplay& display() { return *display_; }
    QListWidget* offered() { return offered_; } // null without offered lines
    QPushButton& takeButton() { return *take_; }
    QPushButton& abortButton() { return *abort_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* makeLists(const CalcPresets& presets);
    QListWidget* addList(QVBoxLayout& column, const QString& title, const QString& name);
    void use(const QListWidgetItem* item);
    void showHistory();
    void remember(const QString& term, const QString& result);
    void takeOver();

    std::vector<WorkedLine>& history_;
    CalculatorDisplay* display_;
    QListWidget* offered_ = nullptr;
    QListWidget* worked_ = nullptr;
    QPushButton* take_ = nullptr;
    QPushButton* abort_ = nullptr;
    std::optional<double> value_;
};

} // namespace quendal
