// The window of a form: menu bar, and all controls at one scale on a content widget.
#pragma once

#include "desktop/windows/accessible.h"
#include "desktop/windows/scroll_room.h"
#include "host/form.h"

#include <QWidget>

#include <memory>
#include <vector>

class QKeyEvent;
class QMenuBar;

namespace quendal {

class IconLibrary;
class WidgetPeer;

// What a form window asks of its window system.
class FormWindowOwner {
  public:
    virtual ~FormWindowOwner() = default;
    virtual void closeAsked(Form& form) = 0;
    virtual void innerSize(Form& form, Size inner) = 0;
    virtual IconLibrary& icons() = 0;
    // All windows larger (1), smaller (-1) or as they were at first (0).
    virtual void zoomAsked(int steps) = 0;
};

class FormWindow final : public QWidget, public Spoken {
    Q_OBJECT
  public:
    // The logic is being told something: the window stays in being until the call has come back.
    class Visit {
      public:
        explicit Visit(FormWindow& window) : window_(window) { ++window_.visits_; }
        ~Visit() { --window_.visits_; }
        Visit(const Visit&) = delete;
        Visit& operator=(const Visit&) = delete;

      private:
        FormWindow& window_;
    };

    FormWindow(Form& form, FormWindowOwner& owner, double mostScale);
    ~FormWindow() override;

    // Null once the form has left the screen.
    Form* form() const { return form_; }
    bool visited() const { return visits_ > 0; }
    double scale() const { return scale_; }
    IconLibrary& icons() const { return owner_.icons(); }
    QWidget& content() const { return *content_; }
    WidgetPeer* peerOf(const Control& control) const;
    QAction* actionOf(const std::string& menuName) const;

    // Size of the window, menu bar included, for the form's design size at `scale`.
    QSize sizeAt(double scale) const;
    // A window that can't be as large as its scale asks for scrolls; 0: all that fits.
    void setAskedScale(double scale) { askedScale_ = scale; }
    void setMostScale(double scale) { mostScale_ = scale; }
    // Fits everything to the present size and tells the form what it has inside.
    void arrange();
    // Makes peers for controls that have come since.
    void adopt();
    // Controls that stand in `container` may have become visible or hidden.
    void containerChanged(const Control& container);
    // The form leaves: the window hides and tells nobody anything more.
    void release();
    // The form's focus, after everything is there.
    void showFocus();

    // Speaks what the form has announced last.
    void speak();
    QAccessible::Role spokenRole() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    // The form alone knows the order of its controls.
    bool focusNextPrevChild(bool /*next*/) override { return false; }

  private:
    void makeMenus();
    void makeZoomKeys();
    void reveal(const QWidget& widget);
    void makePeers();
    void stack();
    int menuHeight() const;
    // The scale at which the content fits below a menu bar of this height.
    double fit(double menu) const;
    // The same, and what the learner wants it larger.
    double zoomed(double menu) const;
    void setScale(double scale);
    void arrangeMenus(double scale);
    bool offerKey(WidgetPeer* peer, QWidget* at, const QKeyEvent& key);
    bool passKey(WidgetPeer* peer, QWidget* at, Key key, const std::string& character);

    Form* form_;
    FormWindowOwner& owner_;
    QWidget* content_;
    LiveText* live_;
    ScrollRoom room_;
    QMenuBar* menuBar_ = nullptr;
    std::vector<std::unique_ptr<WidgetPeer>> peers_;
    double scale_ = 1;
    bool scaled_ = false;
    double askedScale_ = 0;
    double mostScale_; // what the content isn't drawn larger than
    int visits_ = 0;
};

} // namespace quendal
