// Colours of the system and pictures from files.
#pragma once

#include "host/file_service.h"
#include "host/graphics.h"

namespace quendal {

class DesktopGraphics final : public Graphics {
  public:
    explicit DesktopGraphics(const FileService& files) : files_(files) {}
    Color SystemColor(int number) const override;
    // A twin three times the size is taken from the subfolder "x3" beside the file. A placeable
    // metafile becomes a picture of its natural size that is painted anew at other sizes.
    PicturePtr LoadPicture(const std::string& path) override;
    // Null and one logged line for a size that no picture may have, too.
    void forgetDetail() override;
    PicturePtr Scaled(const PicturePtr& picture, int width, int height) override;

  private:
    const FileService& files_;
};

} // namespace quendal
