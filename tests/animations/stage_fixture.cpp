#include "stage_fixture.h"

#include "host/log.h"
#include "shell/forms/instances.h"
#include "shell/session/session.h"
#include "support/form_sizer.h"

#include <algorithm>
#include <stdexcept>

namespace quendal::test {

namespace {

constexpr double kLongest = 600; // s, beyond it a test has lost its way
constexpr double kTick = 1e-6;   // s, of what is left when times are added up

std::string fileOf(const std::string& name) {
    return "data/" + name + ".wmf";
}

} // namespace

PicturePtr StagePictures::LoadPicture(const std::string& path) {
    loads.push_back(path);
    const auto found = files.find(path);
    if (found == files.end()) {
        logLine("picture broken: " + path);
        return nullptr;
    }
    return found->second;
}

PicturePtr StagePictures::Scaled(const PicturePtr& picture, int width, int height) {
    scalings.push_back({width, height});
    return picture == nullptr ? nullptr : blank(width, height);
}

PicturePtr StagePictures::blank(int width, int height) {
    return blankPicture(width, height);
}

const Shot& Film::still() {
    if (atEnd()) {
        throw std::logic_error("the film is over");
    }
    return shots_[next_++];
}

std::vector<Shot> Film::motion(double seconds) {
    std::vector<Shot> taken{still()};
    while (!atEnd() && taken.back().time - taken.front().time < seconds) {
        taken.push_back(still());
    }
    return taken;
}

StageTest::StageTest() {
    resetSession();
    resetInstances();
    installRoots(host.app, coreLib);
    previousSink_ = exchangeLogSink([this](std::string_view line) { logged.emplace_back(line); });
    stage.pic_Stage.attachSurface(&paper);
    stage.pic_Stage.attachPeer(&camera_);
    learner_.tmr_Look.onTimer = [this] { look(); };
    host.windows.Show(learner_);
    learner_.tmr_Look.setEnabled(true);
}

StageTest::~StageTest() {
    stage.pic_Stage.attachPeer(nullptr);
    stage.pic_Stage.attachSurface(nullptr);
    exchangeLogSink(previousSink_);
    resetInstances();
    resetSession();
}

void StageTest::addSprite(const std::string& name, int width, int height) {
    host.files.write(fileOf(name), "picture");
    graphics.files[fileOf(name)] = StagePictures::blank(width, height);
}

void StageTest::addBrokenSprite(const std::string& name) {
    host.files.write(fileOf(name), "noise");
}

void StageTest::resize(Form& form, Size size) {
    FormSizer().give(form, size);
}

// Back to 0, so that two runs are the same to the last bit.
void StageTest::startClock() {
    host.clock.now = 0;
    host.clock.slept = 0;
    waited_ = 0;
    learner_.tmr_Look.setEnabled(false);
    learner_.tmr_Look.setEnabled(true);
}

void StageTest::open(Size size) {
    startClock();
    host.windows.Show(stage);
    stage.tmr_Startup.setEnabled(false);
    resize(stage, size);
}

void StageTest::play(std::int32_t scene) {
    shots.clear();
    startClock();
    stage.Scene = scene;
    host.windows.ShowModal(stage);
    plans_.clear();
}

void StageTest::answerClick(double x, double y) {
    answers.emplace_back([this, x, y] { stage.Form_MouseDown(x, y, MouseButton::Left); });
}

void StageTest::answerKey(const std::string& character) {
    answers.emplace_back([this, character] {
        stage.userKey(character == "\r" ? Key::Enter : Key::Other, character);
    });
}

void StageTest::takeShot() {
    Shot shot{.time = host.clock.now};
    for (int i = 1; i <= stage.SpriteList.Count(); ++i) {
        const Sprite& it = stage.Sprites[std::stoul(stage.SpriteList.Item(i))];
        if (it.Visible) {
            shot.order.push_back(it.Name);
            shot.sprites[it.Name] = {it.Left + it.Width / 2, it.Top + it.Height / 2, it.Width,
                                     it.Height};
        }
    }
    shot.caption = stage.LastText.text;
    shot.footer = paper.footer();
    shot.panel = stage.ShowPanel;
    shot.sounds = host.sounds.played.size();
    shot.magnify = stage.but_Magnify.visible();
    shot.acid = stage.but_Acid.visible();
    const auto [first, last] = plans_.equal_range(shots.size());
    for (auto plan = first; plan != last; ++plan) {
        host.windows.events.push_back(plan->second);
    }
    shots.push_back(shot);
    if (eachShot) {
        eachShot(shot);
    }
}

void StageTest::look() {
    if (host.clock.now > kLongest) {
        throw std::logic_error("the stage doesn't come to its end");
    }
    if (eachLook) {
        eachLook();
    }
    // Time that passes while the program doesn't rest of its own accord: it waits for someone.
    const double waited = host.clock.now - host.clock.slept;
    if (waited > waited_ + kPatience - kTick) {
        waited_ = waited;
        answer();
    }
}

void StageTest::answer() {
    ++waits;
    if (answers.empty()) {
        stage.userKey(Key::Escape);
        return;
    }
    const std::function<void()> deed = std::move(answers.front());
    answers.pop_front();
    deed();
}

const Sprite& StageTest::sprite(const std::string& name) const {
    const auto found = std::find_if(stage.Sprites.begin(), stage.Sprites.end(),
                                    [&](const Sprite& it) { return it.Name == name; });
    if (found == stage.Sprites.end()) {
        throw std::logic_error("no such sprite: " + name);
    }
    return *found;
}

std::vector<std::string> StageTest::onStage() const {
    std::vector<std::string> names;
    for (int i = 1; i <= stage.SpriteList.Count(); ++i) {
        names.push_back(stage.Sprites[std::stoul(stage.SpriteList.Item(i))].Name);
    }
    return names;
}

} // namespace quendal::test
