// The fixed capacities of the beam model and the accepted range of the calculation resolution.
#pragma once

namespace flexley {

inline constexpr int kMaxPointLoads = 50;
inline constexpr int kMaxDistributedLoads = 50;
inline constexpr int kMaxMoments = 50;
inline constexpr int kMaxSupports = 20;
inline constexpr int kMaxCantilevers = 2;
inline constexpr int kMaxFeatures =
    kMaxPointLoads + kMaxDistributedLoads + kMaxMoments + kMaxSupports;

inline constexpr float kDefaultResolution = 10000.0f;
inline constexpr float kMinResolution = 10.0f;
inline constexpr float kMaxResolution = 200000.0f;
inline constexpr int kResultPoints = 200001;

// The analysis must never run outside this range: the result arrays hold 200001 points.
constexpr bool resolution_in_range(double resolution) {
    return resolution >= kMinResolution && resolution <= kMaxResolution;
}

// Reaction system: every support gives a force unknown, each cantilever a moment unknown as well.
inline constexpr int kMaxUnknowns = kMaxSupports + kMaxCantilevers;

}  // namespace flexley
