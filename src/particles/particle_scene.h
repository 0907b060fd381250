// What a form with a beaker shows to whoever looks from outside: the script player and tests.
#pragma once

namespace quendal {

class ChartSeries;
class cls_Molecules;

class ParticleScene {
  public:
    virtual ~ParticleScene() = default;
    virtual const cls_Molecules& beaker() const = 0;
    // What falls towards the beaker.
    virtual const cls_Molecules& drops() const = 0;
    // A dosing runs: from the click to the last drop and the glass at rest.
    virtual bool dosing() const = 0;
    // Series of the learner's calculated points.
    virtual int learnerSeriesCount() const = 0;
    // `number` from 1; null while there is no such series.
    virtual const ChartSeries* learnerSeries(int number) const = 0;
};

} // namespace quendal
