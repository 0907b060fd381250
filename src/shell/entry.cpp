#include "shell/entry.h"

#include "conducto/frm_AppMainConducto.h"
#include "conducto/frm_AppMainConductoSilver.h"
#include "conducto/frm_AppMainConductoWeak.h"
#include "conducto/frm_AppMainConductolog.h"
#include "host/calculator.h"
#include "host/clock.h"
#include "host/roots.h"
#include "host/sound.h"
#include "host/window_system.h"
#include "particles/mdl_Capture.h"
#include "shell/forms/frm_AppResource.h"
#include "shell/forms/frm_AppSplash.h"
#include "shell/forms/instances.h"
#include "shell/frm_DialogStartup.h"
#include "shell/picture_buffers.h"
#include "shell/session/session.h"
#include "weak_silver/frm_AppMainSilver.h"
#include "weak_silver/frm_AppMainWeak.h"
#include "workbench/frm_AppMainStrong.h"

#include <cstdlib>
#include <memory>

namespace quendal {

namespace {

// Long enough for the splash to be seen.
constexpr double kSplashMs = 500;

template <class T>
std::unique_ptr<Form> make() {
    return std::make_unique<T>();
}

struct WorkbenchRow {
    int code; // result code of the start dialog
    std::unique_ptr<Form> (*make)();
};

constexpr WorkbenchRow kWorkbenches[] = {
    {1, make<frm_AppMainStrong>},         {2, make<frm_AppMainWeak>},
    {4, make<frm_AppMainSilver>},         {5, make<frm_AppMainConducto>},
    {6, make<frm_AppMainConductoSilver>}, {7, make<frm_AppMainConductoWeak>},
    {8, make<frm_AppMainConductolog>},
};

void tellProduct() {
    SoundOptions& product = HostApp().SoundOptions;
    product.Title = "Quendal";
    product.ProductName = "Quendal";
    product.Version = "3.0";
}

void presetSession() {
    session().SessionConcentration = 1.0;
    session().SessionRequiredPoints.Clear();
    session().SessionRequiredPoints.Split("1,5,9,10,11,15", ',');
    session().SessionRestart = false;
}

void setUpSession(const std::string& commandLine) {
    HostApp().SetCommandLine(commandLine);
    tellProduct();
    presetSession();
}

void fillBuffers() {
    fillPictureBuffers(appResource());
    setCaptureBuffer(&appResource().pic_Capture(0));
}

void openWorkbench(int code) {
    for (const WorkbenchRow& row : kWorkbenches) {
        if (row.code == code) {
            // It may have unloaded itself in Load; then the show returns at once.
            const std::unique_ptr<Form> workbench = row.make();
            CoreLib().Windows.ShowModal(*workbench);
        }
    }
}

[[noreturn]] void endProgram() {
    HostApp().Shutdown();
    CoreLib().Windows.EndProcess();
    std::abort(); // never reached; the compiler can't see that through a virtual call
}

void runRounds() {
    do {
        CoreLib().Windows.UnloadAll(&appResource());
        session().SessionBusy = false;
        session().SessionRestart = false;
        frm_DialogStartup startup;
        CoreLib().Windows.ShowModal(startup);
        openWorkbench(startup.Result);
        if (startup.Result == frm_DialogStartup::kEndProgram) {
            endProgram();
        }
    } while (session().SessionRestart);
}

} // namespace

void runSession(const std::string& commandLine) {
    session().SessionChartFactory = &HostApp().Calculator.ChartFactory();
    CoreLib().Windows.Show(appSplash());
    CoreLib().Windows.DoEvents();
    setUpSession(commandLine);
    CoreLib().Clock.SleepMs(kSplashMs);
    fillBuffers();
    runRounds();
    endProgram();
}

void runSingleForm(Form& form, const std::string& commandLine) {
    session().SessionChartFactory = &HostApp().Calculator.ChartFactory();
    setUpSession(commandLine);
    fillBuffers();
    CoreLib().Windows.ShowModal(form);
    endProgram();
}

} // namespace quendal
