#include "shell/forms/instances.h"

#include "shell/forms/frm_AppResource.h"
#include "shell/forms/frm_AppSplash.h"
#include "shell/forms/frm_DialogTerms.h"
#include "shell/forms/frm_DialogphCompare.h"

#include <memory>

namespace quendal {

namespace {

struct Instances {
    std::unique_ptr<frm_AppResource> resource;
    std::unique_ptr<frm_AppSplash> splash;
    std::unique_ptr<frm_DialogphCompare> phCompare;
    std::unique_ptr<frm_DialogTerms> terms;
};

Instances& instances() {
    static Instances all;
    return all;
}

template <class T>
T& madeOnce(std::unique_ptr<T>& instance) {
    if (!instance) {
        instance = std::make_unique<T>();
    }
    return *instance;
}

} // namespace

frm_AppResource& appResource() {
    return madeOnce(instances().resource);
}
frm_AppSplash& appSplash() {
    return madeOnce(instances().splash);
}
frm_DialogphCompare& dialogphCompare() {
    return madeOnce(instances().phCompare);
}
frm_DialogTerms& dialogTerms() {
    return madeOnce(instances().terms);
}

void resetInstances() {
    instances() = Instances{};
}

} // namespace quendal
