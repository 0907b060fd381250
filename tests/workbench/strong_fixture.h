// The strong acid's workbench on a fake host.
#pragma once

#include "workbench/bench_fixture.h"
#include "workbench/frm_AppMainStrong.h"

namespace quendal::test {

class BenchTest : public AnyBenchTest {
  protected:
    std::unique_ptr<Workbench> make() override { return std::make_unique<frm_AppMainStrong>(); }
};

} // namespace quendal::test
