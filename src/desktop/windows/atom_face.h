// The mascot as a drawing: a friendly atom.
#pragma once

#include <QImage>
#include <QPointF>
#include <QString>

class QPainter;
class QRectF;

namespace quendal {

struct AtomLook {
    int mood = 1;        // 1 content, 2 happy, 3 sad, 5 worried, 6 thoughtful
    QPointF gaze{0, -1}; // where the eyes look, at most 1 long
    bool mouthOpen = false;
    bool blink = false;
    double turn = 0; // of the electrons, in whole turns
};

// Paints the atom; what stays the same from beat to beat is kept as images.
class AtomFace {
  public:
    // Fills the largest square in the middle of `box`.
    void paint(QPainter& painter, const QRectF& box, const AtomLook& look);

  private:
    AtomLook look_; // of face_
    QImage behind_; // orbits behind the face
    QImage face_;
    QImage before_;
    double side_ = 0;
    double ratio_ = 0;
};

inline constexpr double kBubbleTail = 14; // length of a bubble's tail, design px

// A speech bubble in `box` whose tail points to the left, to where it is spoken.
void paintBubble(QPainter& painter, const QRectF& box, double scale);

} // namespace quendal
