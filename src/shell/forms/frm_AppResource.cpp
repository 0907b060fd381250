#include "shell/forms/frm_AppResource.h"

namespace quendal {

namespace {

// Nobody sees the form; pictures bring their own sizes.
constexpr Size kUnseen{320, 240};

} // namespace

frm_AppResource::frm_AppResource() : Form("frm_AppResource", kUnseen) {}

} // namespace quendal
