// The result arrays are allocated once, so that an analysis run never allocates.
#include "model/beam_model.h"

namespace flexley {

BeamModel::BeamModel()
    : moment(kResultPoints, 0.0),
      stress(kResultPoints, 0.0),
      slope(kResultPoints, 0.0),
      deflection(kResultPoints, 0.0) {}

}  // namespace flexley
