#include "shell/picture_buffers.h"

#include "host/file_service.h"
#include "host/graphics.h"
#include "host/log.h"
#include "host/path_service.h"
#include "host/roots.h"
#include "shell/forms/frm_AppResource.h"
#include "shell/session/session.h"

#include <algorithm>

namespace quendal {

namespace {

using Buffer = frm_AppResource::Buffer;

// Pictures that are numbered through from 1.
struct Series {
    const char* folder; // empty for the data folder itself
    const char* stem;
    int digits;
    int frames;
};

constexpr Series kPowersOfTen{"phn", "f", 1, 6};
constexpr Series kBurette{"", "bürette", 1, 6};
constexpr Series kMagnify{"", "magnify", 1, 6};
constexpr Series kPipette{"", "ab_", 2, 20};

std::string fileName(const Series& series, int number) {
    const std::string text = std::to_string(number);
    const std::size_t zeros = std::max<std::size_t>(series.digits, text.size()) - text.size();
    return series.stem + std::string(zeros, '0') + text + ".gif";
}

// What comes behind a gap moves up, so nobody would miss a file. A series without any is the data
// folder's fault, or nobody's.
void tellGaps(const Series& series) {
    std::string folder = HostApp().PathService.DataPath() + series.folder;
    folder += *series.folder != '\0' ? "/" : "";
    for (int number = 1; number <= series.frames; ++number) {
        const std::string file = folder + fileName(series, number);
        if (!CoreLib().FileService.FileExists(file)) {
            logLine("picture missing: " + file);
        }
    }
}

FileList picturesOf(const Series& series) {
    const std::string folder = *series.folder != '\0' ? std::string(series.folder) + "\\" : "";
    FileList files = CoreLib().FileService.FindFiles(
        HostApp().PathService.DataPath() + folder + series.stem + "*.gif", 0, 0, -1, nullptr);
    files.Sort(-1);
    if (files.Count() > 0) {
        tellGaps(series);
    }
    return files;
}

void fillSeries(Buffer& buffer, const Series& series) {
    const FileList files = picturesOf(series);
    for (int i = 1; i <= files.Count(); ++i) {
        PictureBox& member = buffer.load(i);
        member.setBackColor(session().ParticleBackColor);
        member.setPicture(CoreLib().Graphics.LoadPicture(files.Item(i)));
    }
}

// A picture never changes, so both members can hold the same one: what is painted over the Bowl
// copy goes to the surface of its member.
void fillPair(Buffer& clean, Buffer& bowl, const Series& series) {
    const FileList files = picturesOf(series);
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
    fillSeries(resource.pic_phF, kPowersOfTen);
    fillPair(resource.pic_BüretteBuffer, resource.pic_BüretteBufferBowl, kBurette);
    fillPair(resource.pic_MagnifyBuffer, resource.pic_MagnifyBufferBowl, kMagnify);
    fillPair(resource.pic_AblasserBuffer, resource.pic_AblasserBufferBowl, kPipette);
}

} // namespace quendal
