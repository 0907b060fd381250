#include "host/roots.h"

#include <cassert>

namespace quendal {

namespace {

HostAppRoot* hostAppRoot = nullptr;
CoreLibRoot* coreLibRoot = nullptr;

} // namespace

HostAppRoot& HostApp() {
    assert(hostAppRoot != nullptr);
    return *hostAppRoot;
}

CoreLibRoot& CoreLib() {
    assert(coreLibRoot != nullptr);
    return *coreLibRoot;
}

void installRoots(HostAppRoot& hostApp, CoreLibRoot& coreLib) {
    hostAppRoot = &hostApp;
    coreLibRoot = &coreLib;
}

void clearRoots() {
    hostAppRoot = nullptr;
    coreLibRoot = nullptr;
}

bool rootsInstalled() {
    return hostAppRoot != nullptr;
}

} // namespace quendal
