// A population of particles: the content of a beaker, or of the drops falling into it. It owns its
// particles, counted from 1, and holds what they do as a group: who meets whom, and where everyone
// stands while nothing reacts.
#pragma once

#include "host/data_object.h"
#include "host/database_object.h"
#include "particles/cls_Molecule.h"
#include "particles/grid_pattern.h"
#include "particles/nearest_pool.h"
#include "particles/reactions.h"
#include "particles/target_exchange.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quendal {

class LiquidOwner;

class cls_Molecules final : public Storable, public DatabaseCallbacks<cls_Molecule> {
  public:
    cls_Molecules();
    cls_Molecules(const cls_Molecules&) = delete;
    cls_Molecules& operator=(const cls_Molecules&) = delete;

    LiquidOwner* Parent = nullptr; // the owning form, not owned; null: no liquid
    DataObject tmp_Data;           // key and class name of the stored form

    // Takes the key and a copy of each particle.
    void DATA_DataCopy(const cls_Molecules& source, bool& result);
    std::string DATA_DataPACK() const;
    // Changes nothing when the text isn't a packed collection. The particles come without their
    // sort, as from DATA_DataRead.
    void DATA_DataUnpack(const std::string& text);
    void DATA_DataStore(Stream& stream) override;
    // Reads nothing from another version than "1.0"; throws std::runtime_error, with the collection
    // as it was, when the stream breaks off or holds something else. A particle that was read has
    // no sort, so the next THINK removes it: a property of this format.
    void DATA_DataRead(Stream& stream) override;
    std::shared_ptr<cls_Molecules> DATA_DataSpawn() const;

    DatabaseObject<cls_Molecule> tmp_Database; // keyed access through the operations below

    void DATABASE_DatabaseClear() override;
    int DATABASE_DatabaseCount() const override { return static_cast<int>(mol_.size()); }
    // Appends the particle; a key that is given is written to it. A null stands for a new particle.
    void DATABASE_DatabaseImport(std::shared_ptr<cls_Molecule> item,
                                 const std::optional<std::string>& key) override;
    // Throws std::out_of_range outside 1 to COUNT.
    cls_Molecule& DATABASE_DatabaseItem(int index) override;
    Storable& DATABASE_DatabaseItemObj(int index) { return DATABASE_DatabaseItem(index); }
    // The last particle moves into the gap: the order isn't kept. Throws as DatabaseItem does.
    void DATABASE_DatabaseRemove(int index) override;
    // Blanks around and the case of letters (A to Z) don't count.
    int DATABASE_DatabaseSearch(const std::string& key) const override;

    // `flag` carries no meaning, here and in REMOVE. Throws std::out_of_range for what isn't there.
    cls_Molecule& ITEM(const KeyOrIndex& which, bool flag = false);
    bool EXISTS(const KeyOrIndex& which) const { return tmp_Database.Exists(which); }
    int COUNT() const { return tmp_Database.Count(); }
    // False when there is no such particle.
    bool REMOVE(const KeyOrIndex& which, bool flag = false);
    cls_Molecule& ADD(std::shared_ptr<cls_Molecule> particle,
                      const std::optional<std::string>& key = std::nullopt);
    // A new particle that stands at its target (x, y), in field units.
    cls_Molecule& CREATE(std::int32_t sort, double x, double y);

    // False on any error; then LOAD changes nothing. `key` is for streams under a lock, which ours
    // have not: it isn't read.
    bool LOAD(const std::string& file, const std::string& key);
    bool SAVE(const std::string& file, const std::string& key);

    // Gives each particle a cell of a pattern that fills the liquid and mixes the kinds evenly,
    // with short ways for all. Throws std::out_of_range for more than 200 particles that aren't
    // Solid and for kinds above 100.
    void GRID();
    // Sends each particle that can react to the nearest partner that is still free; false when
    // there is no pair. They react in THINK once they have touched long enough.
    bool REACT();
    // Particles of the kind |sort|.
    int COUNTSORT(std::int32_t sort) const;
    // Lays the population out on a plain grid.
    void SNAP();

    // For those who drive the particles.

    // Shares in the particle at `index`, so that it outlives its own removal. Throws as ITEM does.
    std::shared_ptr<cls_Molecule> share(int index) { return mol_[checked(index)]; }
    // Removes just this particle, wherever it stands by now; false when it has gone already.
    bool removeParticle(const cls_Molecule& particle);
    // Whether two kinds are present that react with each other.
    bool hasPairThatCanReact() const;
    // All particles in their order; never null. Valid until one is added or removed.
    const std::vector<std::shared_ptr<cls_Molecule>>& particles() const { return mol_; }
    // Removes what has reacted away. When `thinker` is among it, its last owner is the result.
    std::shared_ptr<cls_Molecule> removeReacted(const cls_Molecule& thinker);

  private:
    using Group = std::vector<cls_Molecule*>; // in the order of the collection

    std::size_t checked(int index) const;
    void adopt(std::vector<std::shared_ptr<cls_Molecule>> particles);

    KindSet kindsPresent() const;
    cls_Molecule* nearestPartner(const cls_Molecule& particle) const;

    void solidsLast();
    void sinkSolids();
    int groupByKind();
    void layOutKind(int kind, int freeCount);

    std::vector<std::shared_ptr<cls_Molecule>> mol_;

    // Working memory of GRID and SNAP, kept so that no frame allocates.
    std::array<Group, GridPattern::kKinds + 1> byKind_;
    GridPattern pattern_;
    NearestPool pool_;
    TargetExchange exchange_;
};

} // namespace quendal
