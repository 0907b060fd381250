// The stage with a camera, which takes a shot of every frame, and a learner, who does something
// whenever the stage waits.
#pragma once

#include "animations/frm_AppIntro.h"
#include "host/graphics.h"
#include "stage_paper.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace quendal::test {

// Pictures in memory, counted when they are loaded.
class StagePictures final : public Graphics {
  public:
    struct Scaling {
        int width = 0;
        int height = 0;
        friend bool operator==(const Scaling&, const Scaling&) = default;
    };

    Color SystemColor(int) const override { return kWhite; }
    PicturePtr LoadPicture(const std::string& path) override;
    PicturePtr Scaled(const PicturePtr& picture, int width, int height) override;
    static PicturePtr blank(int width, int height);

    std::map<std::string, PicturePtr> files;
    std::vector<std::string> loads; // in their order, those of broken files too
    std::vector<Scaling> scalings;
};

// A sprite as it stands on the stage, by its centre, in pixels.
struct Placed {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    friend bool operator==(const Placed&, const Placed&) = default;
};

// One frame, at the moment when it is complete and no event has come in yet.
struct Shot {
    double time = 0;                       // s
    std::map<std::string, Placed> sprites; // those that are visible
    std::vector<std::string> order;        // their names, from back to front
    std::string caption;
    std::string footer;
    bool panel = false;
    std::size_t sounds = 0; // played so far
    bool magnify = false;   // the buttons to the lens
    bool acid = false;
};

// Goes through the shots of a run from front to back.
class Film {
  public:
    explicit Film(const std::vector<Shot>& shots) : shots_(shots) {}

    const Shot& still();
    // The shots of a motion of so many seconds, which begins with the next one.
    std::vector<Shot> motion(double seconds);
    bool atEnd() const { return next_ >= shots_.size(); }
    std::size_t position() const { return next_; }

  private:
    const std::vector<Shot>& shots_;
    std::size_t next_ = 0;
};

class StageTest : public testing::Test {
  protected:
    static constexpr double kFrame = 1.0 / 60; // s
    static constexpr double kPatience = 0.5;   // s that the learner looks at a stage that waits

    StageTest();
    ~StageTest() override;

    // A sprite in the data folder, in the folder "h2o-hcl" say.
    void addSprite(const std::string& name, int width, int height);
    // The same for a file that can't be read.
    void addBrokenSprite(const std::string& name);

    // Shows the stage without a script, for the primitives, at this size.
    void open(Size size = {800, 600});
    static void resize(Form& form, Size size);
    // Runs a scene until the learner has nothing more to do and breaks off.
    void play(std::int32_t scene);

    // What the learner does each time the stage waits. With nothing left it is ESC.
    std::deque<std::function<void()>> answers;
    void answerClick(double x = 400, double y = 300);
    void answerKey(const std::string& character);
    // What happens during frame `shot` (counted from 0), when its drawing is done.
    void during(std::size_t shot, std::function<void()> what) { plans_.emplace(shot, what); }
    std::function<void(const Shot& shot)> eachShot;
    // Called whenever a form pumps, the lens included, about every hundredth of a second.
    std::function<void()> eachLook;

    const Sprite& sprite(const std::string& name) const;
    std::vector<std::string> onStage() const; // names, from back to front

    FakeHost host;
    StagePictures graphics;
    CoreLibRoot coreLib{host.clock, host.system, host.numbers, host.boxes,  host.files,
                        graphics,   host.random, host.windows, host.capture};
    std::vector<std::string> logged;
    StagePaper paper;
    frm_AppIntro stage;
    std::vector<Shot> shots;
    int waits = 0; // that the learner has ended

  private:
    class Camera final : public ControlPeer {
      public:
        explicit Camera(StageTest& test) : test_(test) {}
        void changed(Aspect aspect) override {
            if (aspect == Aspect::Drawing) {
                test_.takeShot();
            }
        }

      private:
        StageTest& test_;
    };
    class Learner final : public Form {
      public:
        Learner() : Form("frm_Learner", {1, 1}) {}
        Timer tmr_Look{*this, "tmr_Look", 10};
    };

    void startClock();
    void takeShot();
    void look();
    void answer();

    std::function<void(std::string_view)> previousSink_;
    Camera camera_{*this};
    Learner learner_;
    std::multimap<std::size_t, std::function<void()>> plans_;
    double waited_ = 0; // s, in all waits up to the learner's last deed
};

} // namespace quendal::test
