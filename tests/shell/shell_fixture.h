// A host, a fresh session and fresh single instances for each test of the shell.
#pragma once

#include "host/log.h"
#include "shell/forms/instances.h"
#include "shell/session/session.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quendal::test {

class ShellTest : public testing::Test {
  protected:
    ShellTest() {
        resetSession();
        resetInstances();
        previousSink_ =
            exchangeLogSink([this](std::string_view line) { logged.emplace_back(line); });
    }
    ~ShellTest() override {
        resetInstances();
        resetSession();
        exchangeLogSink(previousSink_);
    }

    // One event for each turn of the pump, in this order.
    void later(std::function<void()> event) { host.windows.events.push_back(std::move(event)); }

    FakeHost host;
    std::vector<std::string> logged;

  private:
    LogSink previousSink_;
};

} // namespace quendal::test
