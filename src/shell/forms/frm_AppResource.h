// Store of the picture buffers; never shown. Frame i of a series is member i of its buffer; member
// 0 is there from the start and empty.
#pragma once

#include "host/control_array.h"
#include "host/form.h"
#include "host/pictures.h"

namespace quendal {

class frm_AppResource final : public Form {
  public:
    frm_AppResource();

    using Buffer = ControlArray<PictureBox>;

    Buffer pic_phF{*this, "pic_phF", 0, 0}; // picture series of the magnified views
    // Of each pair the first stays clean and the Bowl copy is painted over.
    Buffer pic_BüretteBuffer{*this, "pic_BüretteBuffer", 0, 0};
    Buffer pic_BüretteBufferBowl{*this, "pic_BüretteBufferBowl", 0, 0};
    Buffer pic_MagnifyBuffer{*this, "pic_MagnifyBuffer", 0, 0};
    Buffer pic_MagnifyBufferBowl{*this, "pic_MagnifyBufferBowl", 0, 0};
    Buffer pic_AblasserBuffer{*this, "pic_AblasserBuffer", 0, 0};
    Buffer pic_AblasserBufferBowl{*this, "pic_AblasserBufferBowl", 0, 0};
    Buffer pic_Capture{*this, "pic_Capture", 0, 0}; // receives captures of the screen
};

} // namespace quendal
