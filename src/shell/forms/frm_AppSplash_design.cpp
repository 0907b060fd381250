#include "host/graphics.h"
#include "host/path_service.h"
#include "host/roots.h"
#include "shell/forms/frm_AppSplash.h"

namespace quendal {

void frm_AppSplash::design() {
    setCaption("Quendal");
    setFrameless(true);
    pic_Splash.setPlace(0, 0, designSize().width, designSize().height);
    pic_Splash.setAccessibleName("Quendal startet");
    pic_Splash.setPicture(
        CoreLib().Graphics.LoadPicture(HostApp().PathService.DataPath() + "splash.gif"));
}

} // namespace quendal
