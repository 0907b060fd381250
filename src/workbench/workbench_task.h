// The fields of a workbench form. They are made new with each form and die with it.
#pragma once

#include "particles/cls_Molecules.h"

#include <array>
#include <optional>

namespace quendal {

struct WorkbenchTask {
    int vVol = 0;           // mL of liquid in the beaker; may be below 0 for a moment
    bool vDemo = false;     // demo mode
    double vLastVol = -1.0; // mL from the burette at the last finished point
    double vStartTime = 0;  // s, start of the task
    int vSolveUsed = 0;     // how often the tutor offered the numbers; label "Lösungen:"
    int vHelpUsed = 0;      // label "Hilfen:"; not every form raises it
    bool vUnload = false;   // the form's main loop is to end
    int vMismatch = 0;      // wrong numbers in this guided calculation
    int vWrong = 0;         // wrong answers of the task; label "Fehler:"
    int vPoints = 0;        // finished points; label "Tit-Pkte:"

    double vAcidMol = 0;  // mol, n of the sample
    double vBaseMol = 0;  // mol, n of the reagent
    double vConc = 0;     // mol/L, first of the sample, then of the excess
    double vAcidVol = 0;  // L
    double vBaseVol = 0;  // L
    double vBaseConc = 0; // mol/L
    double vPhNow = 0;    // present reading, given to 3 places

    bool vPipShown = true; // the pipette is drawn
    bool vPipReady = true; // the pipette may be clicked
    int vPipX = 0;         // px
    int vPipY = 0;
    bool vBurShown = false; // the same for the burette
    bool vBurReady = false;
    int vBurX = 0;
    int vBurY = 0;
    int vBurGap = 100; // px that the lowered burette stays above its end position
    int sPipFrame = 1; // frames shown
    int sBurFrame = 1;

    int vSource = 0;                 // where the present drops come from: 0 pipette, 1 burette
    std::array<int, 4> vSourceVol{}; // mL that came from each source
    std::array<int, 21> vCount{};    // particles in the beaker by kind, counted at each drawing
    bool vCalm = true;               // no dosing runs; reactions may go on
    cls_Molecules vMolecules;        // the particles in the beaker
    cls_Molecules vDrops;            // the drops in the air
    double vStreamFade = 0;          // 0 to 100, strength of the drawn stream
    int vTaskStep = 0;               // line of the task sheet
    int sClicks = 0;                 // clicks on the burette so far, one per mL
    std::optional<int> sLastWarned;  // last volume for which the demo warned
    bool sActivated = false;         // the main loop has been started
};

} // namespace quendal
