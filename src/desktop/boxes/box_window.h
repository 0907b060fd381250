// A modal box in the look of the program: title, body, row of buttons. It is shown through the
// window system's pump, so that timers of the forms beneath go on.
#pragma once

#include "desktop/windows/accessible.h"

#include <QWidget>

#include <functional>
#include <optional>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace quendal {

class WrappedText;

// Design px to pixels for boxes: as large as the screen's lettering asks, never below 1.
double boxScale();

class BoxWindow : public QWidget, public Spoken {
    Q_OBJECT
  public:
    // An empty title leaves the title strip out.
    BoxWindow(const QString& title, double scale);

    double scale() const { return scale_; }
    int px(double design) const;
    QAccessible::Role spokenRole() const override { return QAccessible::Dialog; }

    // Between the title and the buttons; margins are set.
    QVBoxLayout& body() { return *body_; }

    // A button that ends the box with `code`. The first is the default one: Enter presses it.
    QPushButton& addButton(const QString& text, int code);
    // A button that does something and leaves the box open.
    QPushButton& addActionButton(const QString& text);
    // What Esc and the window's own close button answer.
    void setEscapeCode(int code) { escapeCode_ = code; }

    // Shows the box over the window in use, or with its left upper corner at `place`, and waits.
    // `learner` stands in for who sits there: it is called once, when the box is on the screen, and
    // clicks and types as they would; a box that it leaves open is closed by Esc, and
    // the program's own pump doesn't run meanwhile.
    int run(const std::function<void()>& learner = {}, std::optional<QPoint> place = {});
    void finish(int code);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    void makeHead(const QString& title);
    void makeFoot();
    void putOnScreen(const QWidget* below, std::optional<QPoint> place);
    bool pressMnemonic(const QString& key);
    void pressDefault();

    double scale_;
    int escapeCode_ = 0;
    std::optional<int> answer_;
    QWidget* head_ = nullptr;
    QVBoxLayout* body_ = nullptr;
    QWidget* foot_ = nullptr;
    QHBoxLayout* buttons_ = nullptr;
    QPushButton* default_ = nullptr;
    QPoint grip_; // where the box is held while it is moved
};

} // namespace quendal
