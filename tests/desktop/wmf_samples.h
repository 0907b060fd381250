// Metafiles that several tests look at.
#pragma once

#include "desktop/wmf_writer.h"

namespace quendal::test {

// One of nearly everything, 200 x 100 px in units of a fifteenth.
inline WmfWriter richWmf() {
    WmfWriter writer(3000, 1500, 1440);
    writer.record(0x0103, {8});
    writer.windowOrigin(0, 0);
    writer.windowExtent(3000, 1500);
    writer.noPen();
    writer.brush(kKeyColor);
    writer.rectangle({0, 0, 3000, 1500});
    writer.pen(0, 30, {10, 20, 30});
    writer.brush({200, 100, 50});
    writer.ellipse({100, 100, 700, 700});
    writer.polygon({{800, 100}, {1300, 150}, {1000, 700}});
    writer.fillRule(2);
    writer.polyPolygon({{{1400, 100}, {2000, 100}, {2000, 700}, {1400, 700}},
                        {{1550, 250}, {1850, 250}, {1850, 550}, {1550, 550}}});
    writer.save();
    writer.clip({2100, 100, 2500, 500});
    writer.roundRectangle({2100, 100, 2900, 700}, 200, 100);
    writer.restore(-1);
    writer.polyline({{100, 800}, {500, 900}, {900, 800}});
    writer.arc(0x0817, {1000, 800, 1600, 1400}, {1600, 1100}, {1300, 800});
    writer.arc(0x081A, {1700, 800, 2300, 1400}, {2300, 1100}, {2000, 800});
    writer.arc(0x0830, {2400, 800, 2900, 1400}, {2900, 1100}, {2650, 800});
    writer.moveTo({100, 1000});
    writer.lineTo({900, 1050});
    writer.font({.height = -240, .weight = 700});
    writer.textColor({0, 0, 120});
    writer.groundMode(1);
    writer.align(24);
    writer.text({100, 1400}, "S\xE4ure");
    writer.textInBox({900, 1300}, 6, {850, 1250, 1000, 1450},
                     "\xDC"
                     "bergang");
    writer.record(0x041F, {255, 0, 1450, 2950});
    return writer;
}

} // namespace quendal::test
