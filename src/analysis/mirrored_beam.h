// Solving a beam whose only fixed support stands at its right end, as its mirror image.
#pragma once

#include "model/beam_model.h"
#include "model/limits.h"

namespace flexley {

// The reaction system and both integrations start from a fixed support at x = 0. A beam whose
// only fixed support is at x = L (what remains when the left one of two is removed) is its own
// mirror image about the centre: while a MirroredBeam lives, the loads and the collected supports
// stand reflected (x -> L - x, couples reversed, distributed-load ends exchanged) and the result
// arrays read from the right end. When it ends, the loads and supports are restored exactly,
// the result arrays are turned round (the slope changes sign, deflection and moment do not), the
// fixed support's moment reaction changes sign and the maxima are found again from x = 0 upward.
class MirroredBeam {
  public:
    explicit MirroredBeam(BeamModel& model);
    ~MirroredBeam();
    MirroredBeam(const MirroredBeam&) = delete;
    MirroredBeam& operator=(const MirroredBeam&) = delete;

  private:
    BeamModel& model_;
    // What reflecting changes, kept so that it comes back bit for bit.
    Table<double, kMaxPointLoads> pt_loc_;
    Table<double, kMaxDistributedLoads> di_start_, di_end_, di_mag_start_, di_mag_end_;
    Table<double, kMaxMoments> mo_mag_, mo_loc_;
    Table<double, kMaxSupports> reaction_pos_;
};

// Whether the collected supports are those of a beam to be solved as its mirror image.
bool needs_mirroring(const BeamModel& model);

}  // namespace flexley
