#include "shell/picture_buffers.h"

#include "host/file_service.h"
#include "host/graphics.h"
#include "host/path_service.h"
#include "host/roots.h"
#include "shell/forms/frm_AppResource.h"
#include "shell/session/session.h"

namespace quendal {

namespace {

using Buffer = frm_AppResource::Buffer;

FileList picturesOf(const char* pattern) {
    FileList files = CoreLib().FileService.FindFiles(HostApp().PathService.DataPath() + pattern, 0,
                                                     0, -1, nullptr);
    files.Sort(-1);
    return files;
}

void fillSeries(Buffer& buffer, const char* pattern) {
    const FileList files = picturesOf(pattern);
    for (int i = 1; i <= files.Count(); ++i) {
        PictureBox& member = buffer.load(i);
        member.setBackColor(session().ParticleBackColor);
        member.setPicture(CoreLib().Graphics.LoadPicture(files.Item(i)));
    }
}

// A picture never changes, so both members can hold the same one: what is painted over the Bowl
// copy goes to the surface of its member.
void fillPair(Buffer& clean, Buffer& bowl, const char* pattern) {
    const FileList files = picturesOf(pattern);
    for (int i = 1; i <= files.Count(); ++i) {
        const PicturePtr picture = CoreLib().Graphics.LoadPicture(files.Item(i));
        clean.load(i).setPicture(picture);
        bowl.load(i).setPicture(picture);
    }
}

} // namespace

void fillPictureBuffers(frm_AppResource& resource) {
    // A data folder without this series is looked through again at each start, which costs little.
    if (resource.pic_phF.last() > 0) {
        return;
    }
    fillSeries(resource.pic_phF, "phn\\f*.gif");
    fillPair(resource.pic_BüretteBuffer, resource.pic_BüretteBufferBowl, "bürette*.gif");
    fillPair(resource.pic_MagnifyBuffer, resource.pic_MagnifyBufferBowl, "magnify*.gif");
    fillPair(resource.pic_AblasserBuffer, resource.pic_AblasserBufferBowl, "ab_*.gif");
}

} // namespace quendal
