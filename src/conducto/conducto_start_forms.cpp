#include "conducto/conducto_start_forms.h"

namespace quendal {

namespace {

constexpr std::string_view kCaption = "Morvik // Quendal - Konduktometrie";

} // namespace

frm_AppMainConductoStart::frm_AppMainConductoStart()
    : StartForm({.formName = "frm_AppMainConductoStart",
                 .caption = kCaption,
                 .picture = "conducto_start.gif",
                 .spoken = "Versuchsaufbau: Bürette mit Natronlauge über einem Becherglas mit "
                           "Salzsäure und 90 mL Wasser auf einem Magnetrührer, darin die "
                           "Elektroden des Leitfähigkeits-Messgeräts"}) {}

frm_AppMainConductoWeakStart::frm_AppMainConductoWeakStart()
    : StartForm({.formName = "frm_AppMainConductoWeakStart",
                 .caption = kCaption,
                 .picture = "conducto_weak_start.gif",
                 .spoken = "Versuchsaufbau: Bürette mit Natronlauge über einem Becherglas mit "
                           "Essigsäure und 90 mL Wasser auf einem Magnetrührer, darin die "
                           "Elektroden des Leitfähigkeits-Messgeräts"}) {}

frm_AppMainConductoSilverStart::frm_AppMainConductoSilverStart()
    : StartForm({.formName = "frm_AppMainConductoSilverStart",
                 .caption = kCaption,
                 .picture = "conducto_silver_start.gif",
                 .spoken = "Versuchsaufbau: Bürette mit Silbernitrat-Lösung über einem Becherglas "
                           "mit Natriumchlorid-Lösung und 90 mL Wasser auf einem Magnetrührer, "
                           "darin die Elektroden des Leitfähigkeits-Messgeräts"}) {}

} // namespace quendal
