// One particle of the beaker: its place and target, its kind, when it touches another particle and
// what comes of that. The field runs from 0 to 100 on both axes, X to the right and Y downward.
#pragma once

#include "host/color.h"
#include "host/data_object.h"
#include "host/geometry.h"
#include "host/variant.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quendal {

class Surface;
class cls_Molecules;

class cls_Molecule final : public Storable {
  public:
    cls_Molecule();
    cls_Molecule(const cls_Molecule&) = delete;
    cls_Molecule& operator=(const cls_Molecule&) = delete;

    cls_Molecules* Parent = nullptr; // the collection it lives in, not owned; null: alone
    double PosX = 0;                 // present place
    double PosY = 0;
    bool Mark1 = false; // carried, read by no logic
    double TargetX = 0; // where it is heading for
    double TargetY = 0;
    double Fade = 0;               // percent mixed into the background: 0 solid, 100 invisible
    double Scale = 0;              // size factor of the drawing; 0 means 1
    double BornAt = 0;             // Clock::Now when a falling drop was first seen; 0: not yet
    double Value1 = 0;             // carried, read by no logic
    double Value2 = 0;             // carried, read by no logic
    bool Mark2 = false;            // carried, read by no logic
    bool Mark3 = false;            // carried, read by no logic
    bool Mark4 = false;            // carried, read by no logic
    std::int32_t Count1 = 0;       // carried, read by no logic
    std::int32_t Count2 = 0;       // carried, read by no logic
    std::int32_t Count3 = 0;       // carried, read by no logic
    bool Solid = false;            // precipitate: sinks to the bottom, takes no grid cell
    std::int32_t ContactCount = 0; // frames of touching a partner; shivers and blinks meanwhile
    std::int32_t ReactFlash = 0;   // after-glow of a reaction; each DRAW takes 5 off
    bool Reacting = false;         // sent to a partner: the grid may not change its target
    bool Placed = false;           // target settled for this round: repulsion doesn't move it

    // The sort number as stored. A negative one is the same kind with its charge sign drawn.
    std::int32_t SORTREAL() const { return sort_; }
    void setSORTREAL(std::int32_t sort) { sort_ = sort; }
    // The kind: the sort number without its sign. 0 has reacted away and waits for its removal.
    std::int32_t SORT() const { return std::abs(sort_); }
    // Stores the value as it stands, sign included.
    void setSORT(std::int32_t sort) { sort_ = sort; }

    DataObject tmp_Data; // key and class name of the stored form

    // Copies key, sort number with sign and the fields from PosX to Count3.
    void DATA_DataCopy(const cls_Molecule& source, bool& result);
    void DATA_DataPACK(std::string& result) const;
    // Changes nothing when the text isn't a packed particle. The sort stays what it was.
    void DATA_DataUnpack(const std::string& text);
    void DATA_DataStore(Stream& stream) override;
    // Reads nothing from another version than "1.0"; throws std::runtime_error, with the particle
    // as it was, when the stream breaks off or holds something else. The sort stays what it was.
    void DATA_DataRead(Stream& stream) override;
    void DATA_DataSpawn(std::shared_ptr<cls_Molecule>& result) const;

    // Paints the particle and counts its blinking down: once a frame, also when nothing can be
    // seen, since a shivering particle takes two random numbers.
    void DRAW(Surface& surface);
    // One time step: contacts and repulsion, removal of what has reacted away, walls, one step
    // towards the target. May remove particles from Parent, this one too, which then stays alive to
    // the end of the call and no longer.
    void THINK();
    // In contact: well before the drawn bodies overlap by half.
    bool COLL(const cls_Molecule& other) const;
    double RADIUS() const; // field units
    // Plain colour by kind; drawn only for kinds that have no colours of their own.
    Color COLOR() const;
    double DIST(const cls_Molecule& other) const;
    double DISTCORD(double x, double y) const;
    double DISTTARGET() const;
    bool CANREACT(const cls_Molecule& other) const;
    // Turns this particle and its partner into what they become; any other pair stays as it is.
    void REACT(cls_Molecule& other);

  private:
    friend class cls_Molecules;

    struct Encounter {
        Point push;            // repulsion by all that touch it
        bool someGone = false; // a particle of sort 0 is in the collection
    };

    Encounter meetOthers();
    void touch(cls_Molecule& partner);
    void keepTargetOffWalls();
    void stepToTarget(Point push);

    Point drawnPlace(const Surface& surface) const;
    // Whether this frame shows the bright half of the blink; each call counts one frame.
    bool countBlinkDown();
    bool countFlashDown();

    // The values of the packed form, in its order.
    VariantArray packedValues() const;
    // False, and nothing changes, when these aren't the values of a packed particle.
    bool takePacked(const VariantArray& values);

    std::int32_t sort_ = 0;
};

} // namespace quendal
