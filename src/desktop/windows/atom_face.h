// The mascot as a drawing: a friendly atom.
#pragma once

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

// Fills the largest square in the middle of `box`.
void paintAtom(QPainter& painter, const QRectF& box, const AtomLook& look);

inline constexpr double kBubbleTail = 14; // length of a bubble's tail, design px

// A speech bubble in `box` whose tail points to the left, to where it is spoken.
void paintBubble(QPainter& painter, const QRectF& box, double scale);

} // namespace quendal
