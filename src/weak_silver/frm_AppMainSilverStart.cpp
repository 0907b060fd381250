#include "weak_silver/frm_AppMainSilverStart.h"

namespace quendal {

frm_AppMainSilverStart::frm_AppMainSilverStart()
    : StartForm({.formName = "frm_AppMainSilverStart",
                 .caption = "Morvik // Quendal - Potentiometrie",
                 .picture = "silver_start.gif",
                 .spoken =
                     "Versuchsaufbau: Bürette mit Silbernitrat-Lösung über einem Becherglas mit "
                     "Natriumchlorid-Lösung, darin Silberelektrode und Bezugselektrode am "
                     "Voltmeter"}) {}

} // namespace quendal
