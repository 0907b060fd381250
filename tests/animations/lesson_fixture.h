// A learner in front of the conductivity lesson.
#pragma once

#include "animations/frm_AppIntro.h"
#include "shell/session/session.h"
#include "support/fake_roots.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <cmath>
#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace quendal::test {

inline constexpr double kLongestLesson = 2000; // s, beyond it a test has lost its way

class Lesson : public testing::Test {
  protected:
    Lesson() {
        for (const char* name : {"aus", "ein", "einup", "ws1", "ws2"}) {
            addSprite(name, 760, 460);
        }
        addSprite("bedingungen", 150, 180);
        for (const char* name : {"grün1", "grün2", "grün3"}) {
            addSprite(name, 16, 16);
        }
        stage.Scene = 7;
        stage.pic_Stage.attachSurface(&paper);
        stage.pic_IonenReaktor.attachSurface(&reactor);
        host.clock.onSleep = [this] { goOn(); };
    }
    ~Lesson() override {
        stage.pic_Stage.attachSurface(nullptr);
        stage.pic_IonenReaktor.attachSurface(nullptr);
        resetSession();
    }

    // What happens in the lesson, one after the other, each in a round of its own.
    void then(std::function<void()> what) { plan_.push_back({0, std::move(what)}); }
    void wait(double seconds) { plan_.push_back({seconds, {}}); }
    void click(double x, double y) {
        then([this, x, y] { stage.Form_MouseDown(x, y, MouseButton::Left); });
    }
    // Plays the plan and leaves the lesson, and the stage behind it.
    void play() {
        then([this] {
            stage.userKey(Key::Escape);
            host.windows.events.push_back([this] { stage.userKey(Key::Escape); });
        });
        host.windows.ShowModal(stage);
        EXPECT_TRUE(plan_.empty());
    }
    // Leaves the lesson and repeats it with a click there.
    void repeat(double x, double y) {
        then([this, x, y] {
            stage.userKey(Key::Escape);
            host.windows.events.push_back([] {}); // drawing of the footer
            host.windows.events.push_back(
                [this, x, y] { stage.Form_MouseDown(x, y, MouseButton::Left); });
        });
    }

    std::vector<std::string> onStage() const {
        std::vector<std::string> names;
        for (int i = 1; i <= stage.SpriteList.Count(); ++i) {
            names.push_back(sprite(i).Name);
        }
        return names;
    }
    const Sprite& sprite(int position) const {
        return stage.Sprites[std::stoul(stage.SpriteList.Item(position))];
    }
    // Of the sprite with this name, if it is on the stage.
    std::optional<Point> centreOf(const std::string& name) const {
        for (int i = 1; i <= stage.SpriteList.Count(); ++i) {
            const Sprite& found = sprite(i);
            if (found.Name == name && found.Visible) {
                return Point{found.Left + found.Width / 2.0, found.Top + found.Height / 2.0};
            }
        }
        return std::nullopt;
    }
    double needle() const {
        const Line& line = stage.shp_Indicator;
        const double radians = std::atan2(line.to().y - line.from().y, line.to().x - line.from().x);
        const double degrees = radians / 3.14159265358979 * 180;
        return degrees > 90 ? degrees - 360 : degrees; // left of upright and beyond
    }

    FakeHost host;
    RecordingSurface paper{800, 600};
    RecordingSurface reactor{IonField::kWidth, IonField::kHeight};
    frm_AppIntro stage;
    IonField& ions = stage.Ions;
    std::function<void()> eachRest; // called whenever the lesson rests

  private:
    struct Deed {
        double wait = 0; // s, before the next one
        std::function<void()> what;
    };

    void addSprite(const std::string& name, int width, int height) {
        const std::string file = "data/ionen/" + name + ".wmf";
        host.files.write(file, "picture");
        host.graphics.addPicture(file, width, height);
    }
    void goOn() {
        if (host.clock.now > kLongestLesson) {
            throw std::logic_error("the lesson doesn't come to its end");
        }
        if (eachRest) {
            eachRest();
        }
        if (host.clock.now < resume_ || plan_.empty()) {
            return;
        }
        const Deed deed = std::move(plan_.front());
        plan_.pop_front();
        if (deed.what) {
            host.windows.events.push_back(deed.what);
        } else {
            resume_ = host.clock.now + deed.wait;
        }
    }

    std::deque<Deed> plan_;
    double resume_ = 0;
};

} // namespace quendal::test
