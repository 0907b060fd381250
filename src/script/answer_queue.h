// The answers that a script has laid ready for the boxes to come.
#pragma once

#include "host/host_observer.h"

#include <list>
#include <optional>
#include <string>

namespace quendal {

class AnswerQueue {
  public:
    void add(BoxReply reply) { replies_.push_back(std::move(reply)); }
    // The oldest answer that the box can take; it waits no longer. A box that only shows something
    // is answered with OK when none is ready; nullopt for one that asks.
    std::optional<BoxReply> take(const BoxEvent& box);

  private:
    std::list<BoxReply> replies_;
};

// As a script writes it, without the word "answer".
std::string answerText(const BoxReply& reply);

} // namespace quendal
