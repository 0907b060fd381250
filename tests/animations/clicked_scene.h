// A scene that waits for clicks between its steps and ends by itself.
#pragma once

#include "reaction_film.h"

#include <map>

namespace quendal::test {

class ClickedScene : public ReactionTest {
  protected:
    ClickedScene(std::int32_t scene, int clicks) : scene_(scene), clicks_(clicks) {}

    // The shots of one run, the prompt at its end included.
    virtual void expectRun(Film& film) = 0;

    void expectOneRun();
    // Both end alike, and no sprite is loaded twice.
    void expectTwoRuns(std::size_t sprites);
    // In px, by the beginnings of texts that have raised or lowered parts.
    std::map<std::string, double> textSizes();

  private:
    void answerAll();

    std::int32_t scene_;
    int clicks_;
};

} // namespace quendal::test
