// Fills the picture buffers from the files of the data folder.
#pragma once

namespace quendal {

class frm_AppResource;

// Does nothing when they are filled already. Frame i becomes member i, in the order of the names; a
// file that can't be read leaves its member empty.
void fillPictureBuffers(frm_AppResource& resource);

} // namespace quendal
