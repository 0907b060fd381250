// A picture as the desktop host keeps it: the file in its own size, and prepared copies of it in
// device pixels.
#pragma once

#include "desktop/files/wmf_drawing.h"
#include "host/picture.h"

#include <QByteArray>
#include <QImage>
#include <QRectF>
#include <QString>

#include <memory>
#include <string>
#include <vector>

namespace quendal {

// Null for bytes that are no picture, a huge one or a GIF that is cut short.
QImage decodePicture(const std::string& bytes);

class DesktopPicture final : public Picture {
  public:
    // `twin` is the file with the same picture three times its size, empty when there is none.
    explicit DesktopPicture(QImage image, QString twin = {});
    ~DesktopPicture() override;
    DesktopPicture(const DesktopPicture&) = delete;
    DesktopPicture& operator=(const DesktopPicture&) = delete;

    // `sharper` is the same picture in more pixels.
    static std::shared_ptr<const DesktopPicture> withDetail(QImage image, const QImage& sharper);

    // A picture file that is decoded again where its pixels are needed; null for bytes that
    // decodePicture refuses. `twin` as above.
    static std::shared_ptr<const DesktopPicture> fromFile(std::string bytes, QString twin);

    // Pixels that nobody can make again. A huge picture is kept packed and takes its room only
    // while it is drawn: a lesson has several of them as large as the screen, and shows one.
    static std::shared_ptr<const DesktopPicture> fromPixels(const QImage& image);

    // A picture in the natural size of the drawing, rounded to whole px.
    static std::shared_ptr<const DesktopPicture> fromDrawing(WmfDrawing drawing);

    int width() const override { return size_.width(); }
    int height() const override { return size_.height(); }
    // Nothing shows through.
    bool opaque() const { return opaque_; }

    // The picture at `scale` device pixels for one design px. Made once a size; a few sizes are
    // kept, because a picture may be used in two windows at the same time.
    const QImage& prepared(double scale) const;
    const QImage& prepared(QSize devicePixels) const;
    // The same in any size, for headers and backdrops. Not kept.
    QImage inSize(QSize devicePixels) const;

    // The picture in about as many pixels as `scale` asks for, and the px of `from` in it: the file
    // itself, its twin, or smaller. Kept for whoever asks again.
    struct Detail {
        QImage image;
        QRectF from;
    };
    Detail detail(const QRectF& from, double scale) const;
    // The same for whoever asks once.
    Detail passingDetail(const QRectF& from, double scale) const;
    // The part `from` in this size. The last ones are kept, for whoever asks again.
    const QImage& cut(const QRectF& from, QSize devicePixels) const;

    // The pixels of all pictures that can be had again: they are, when somebody needs them.
    static void forgetDetail();
    // How many pictures have such pixels at hand.
    static std::size_t keptDetails();

  private:
    struct Prepared {
        QSize size;
        QImage image;
    };
    struct Cut {
        QRectF from;
        QSize size;
        QImage image;
    };
    // The picture in its own size; a drawing isn't painted before somebody asks.
    QImage own() const;
    QImage unpacked() const;
    QImage loadTwin() const;
    // The pixels for `scale` at hand, and those of pictures that nobody has asked for lately gone:
    // a few of them would be all the memory that the program may take.
    void keepPixels(double scale) const;
    void dropPixels() const;
    QImage source(double scale) const;
    const QImage& half(std::size_t times) const;
    QImage makeCut(const QRectF& from, QSize size) const;

    QSize size_;
    std::shared_ptr<const WmfDrawing> drawing_; // null for a picture of pixels
    std::string bytes_;                         // of the file, where image_ isn't kept
    QByteArray packed_;                         // in its place, where neither is kept
    bool opaque_ = false;
    mutable QImage image_;
    mutable QString twinFile_; // emptied when the file turns out to be broken
    mutable QImage twin_;      // while it is needed for more than one copy
    mutable std::vector<QImage> halves_;
    mutable std::vector<Prepared> prepared_;
    mutable std::vector<Cut> cuts_;
};

} // namespace quendal
