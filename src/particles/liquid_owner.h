// What a population of particles needs to know of the form that owns it.
#pragma once

namespace quendal {

class LiquidOwner {
  public:
    virtual ~LiquidOwner() = default;
    // The form's vVol: mL of liquid in the beaker; may be below 0 for a moment.
    virtual int liquidVolume() const = 0;
};

} // namespace quendal
