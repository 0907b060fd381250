// A timer of a form. It fires from inside the event pump while its form is loaded.
#pragma once

#include <functional>
#include <string>

namespace quendal {

class Form;

class Timer {
  public:
    // `interval` in milliseconds, above 0; off at first.
    Timer(Form& form, std::string name, double interval);
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    const std::string& name() const { return name_; }
    double interval() const { return interval_; }
    bool enabled() const { return enabled_; }
    // Switching on starts a full interval.
    void setEnabled(bool enabled);

    // The handler isn't called again while it runs.
    std::function<void()> onTimer;

    Form& form() const { return form_; }

  private:
    friend class WindowSystem;

    Form& form_;
    std::string name_;
    double interval_;
    double due_ = 0;
    unsigned long sequence_ = 0; // order among timers due at the same moment
    bool enabled_ = false;
    bool running_ = false;
};

} // namespace quendal
