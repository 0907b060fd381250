// The ions of the conductivity lesson: a small model of what moves between two electrodes, and the
// current that it gives. It draws nothing and knows no clock.
#pragma once

#include <array>
#include <cstdint>
#include <functional>

namespace quendal {

// What the switch of the circuit is set to.
enum class Current {
    Off = 0,
    Direct = 1,
    Reversed = 2,
    AlternatingA = 3, // the half in which ions go as in Direct
    AlternatingB = 4
};

struct Ion {
    double X = 0; // in units of the field
    double Y = 0;
    bool Negative = false;
    bool Active = false;
    bool Deposited = false; // sits on an electrode
    bool AtLeft = false;    // on which
    bool AtRight = false;
    double Rest = 0; // rest time on the electrode, counted up and down

    friend bool operator==(const Ion&, const Ion&) = default;
};

class IonField {
  public:
    static constexpr int kSlots = 40;
    // Size of the field in design units of the stage; it is scaled when drawn.
    static constexpr double kWidth = 355;
    static constexpr double kHeight = 215;
    static constexpr double kRadius = 0.025 * kWidth;

    std::int32_t IonCount = 20;     // ions on show: 10, 20 or 40; all slots move
    std::int32_t IonSlots = kSlots; // size of the ion array
    Current Mode = Current::Off;
    bool FastIons = false;           // they move faster, and the current doubles
    bool DoubleCharge = false;       // they show two charges, and the current doubles
    std::int32_t DepositedCount = 0; // ions that sit on an electrode, counted in each drawing
    std::int32_t LeftPlate = 0;      // the electrodes' x; they reach down to half the height
    std::int32_t RightPlate = 0;
    std::array<Ion, kSlots + 1> Ions; // counted from 1; the first is never used

    // A number from 0 to below 1.
    using Chance = std::function<double()>;

    // All fields as at the start of a lesson, the ions spread over the upper half.
    void setUp(const Chance& chance);
    // All ions anew, spread over nearly the whole height.
    void spread(const Chance& chance);
    // A twentieth of a second.
    void step(const Chance& chance);

    // 0 without a current, 2 at most.
    double current() const;
    // Of the ammeter's needle in degrees, clockwise from the right as y runs downward; -90 is
    // upright. From DepositedCount and the settings.
    double needleAngle() const;

  private:
    enum class Side { None, Left, Right };

    Ion& ion(int number) { return Ions[static_cast<std::size_t>(number)]; }
    // Where the current draws an ion to.
    Side drawnTo(const Ion& ion) const;
    double stepOf(int number) const;
    void place(double room, double least, const Chance& chance);
    void move(int number, const Chance& chance);
    void rest(Ion& ion, int number) const;
    void driveApart(int number, double step, const Chance& chance);
    void pull(Ion& ion, double step, const Chance& chance) const;
};

} // namespace quendal
