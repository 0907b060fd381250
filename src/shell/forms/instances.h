// Forms of which the process has one each, made at first use and kept to its end. Unloading one
// takes it off the screen and lets its Load run again at the next show; the object, its caption and
// its public fields stay.
#pragma once

namespace quendal {

class frm_AppResource;
class frm_AppSplash;
class frm_DialogphCompare;
class frm_DialogTerms;

frm_AppResource& appResource();
frm_AppSplash& appSplash();
frm_DialogphCompare& dialogphCompare();
frm_DialogTerms& dialogTerms();

// Releases all of them, as the end of a process does, so that one process can play several runs.
// None may be on the screen.
void resetInstances();

} // namespace quendal
