// Pictures of the screen as it stands.
#pragma once

#include "host/picture.h"
#include "host/screen_capture.h"

namespace quendal {

class PictureBox;

// Mode 0: the desktop; 1: the place of the window in front; 2: that of its first child. Null for
// any other mode, and when there is no such window or no picture of it.
PicturePtr hCaptureScreen(int mode);

// Stores the part of the window (kNoWindow: the desktop) in the session's CapturedPicture; all four
// edges belong to it. A part without width or height, or wider or higher than 32 bits can tell,
// changes nothing.
void hCaptureRect(ScreenCapture::WindowHandle window, int left, int top, int right, int bottom);

// The hidden picture box that receives each capture. It stands on a form of a layer above this one,
// so whoever starts the program hands it in once; null, or a box that is gone: only the session
// gets the picture.
void setCaptureBuffer(PictureBox* box);

} // namespace quendal
