// What shows one control: a widget, kept in step with the control in both directions.
#pragma once

#include "host/control.h"

#include <QColor>
#include <QPointer>
#include <QRect>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quendal {

class FormWindow;
class IconLibrary;

class WidgetPeer : public ControlPeer {
  public:
    WidgetPeer(Control& control, FormWindow& window);
    ~WidgetPeer() override;
    WidgetPeer(const WidgetPeer&) = delete;
    WidgetPeer& operator=(const WidgetPeer&) = delete;

    void changed(Aspect aspect) final;

    QWidget* widget() const { return widget_; }
    // Null once the form has left the screen.
    Control* control() const { return control_; }
    // The widget inside that takes the focus.
    virtual QWidget* focusTarget() const { return widget_; }
    // All widgets inside that may have it.
    virtual std::vector<QWidget*> focusTargets() const { return {focusTarget()}; }
    // Everything anew: place, fonts, texts; after a change of the scale too.
    void refresh();
    // What the widget says about where it stands among the tab pages.
    void refreshVisibility();
    void refreshPlace();
    // The control leaves: nothing is shown or reported any more.
    void detach();
    // The widget `at` got the focus by mouse or window.
    void noticeFocus();
    // A key that the widget `at` handles in a way of its own, after the form has seen it. nullopt:
    // the usual way; else whether it was used up.
    virtual std::optional<bool> ownKey(QWidget* /*at*/, Key /*key*/,
                                       const std::string& /*character*/) {
        return std::nullopt;
    }

    FormWindow& window() const { return window_; }
    double scale() const;
    IconLibrary& icons() const;

    // Runs `tell`, which tells the control what the learner did, unless the widget only reports
    // what it was just told itself. The one way from a widget into the logic.
    void report(const std::function<void()>& tell);

  protected:
    void setWidget(QWidget* widget);
    // Text, colours, font, picture, value, items: shows the control's present state.
    virtual void show() = 0;
    // The part of it that `aspect` names; place, visibility, focus and order are done already.
    virtual void showAspect(Aspect /*aspect*/) { show(); }
    // The size of the widget has changed.
    virtual void placed() {}

  private:
    void apply(Aspect aspect);
    void applyEnabled();
    void applySpoken();
    void standInContainer();
    void keepFocusFromMoving();

    Control* control_;
    FormWindow& window_;
    QPointer<QWidget> widget_;
    bool telling_ = false;
};

// Design units of a container as pixels at `scale`; edges are rounded, so that neighbours meet.
QRect pixelRect(const Rect& place, double scale);

// The colour that a control stands on.
QColor groundOf(const Control& control);
// What a screen reader says for a control: the name given for it, else its text without marks.
QString spokenName(const Control& control);

// Null for a control that is never shown.
std::unique_ptr<WidgetPeer> makePeer(Control& control, FormWindow& window);

} // namespace quendal
