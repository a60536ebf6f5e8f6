// Beams for the analysis tests, built through the model's own feature operations.
#include "test_beams.h"

#include <gtest/gtest.h>

#include "model/features.h"

namespace flexley::testing_beams {

BeamModel beam(double length) {
    BeamModel model;
    model.beam_length = length;
    model.elastic_modulus = kModulus;
    model.moment_of_inertia = kInertia;
    model.fibre_distance = kFibre;
    return model;
}

void point_load(BeamModel& model, double magnitude, double at) {
    EXPECT_TRUE(add_point_load(model, magnitude, at, "in", "lb").ok());
}

void distributed_load(BeamModel& model, double start, double end, double w_start, double w_end) {
    EXPECT_TRUE(add_distributed_load(model, start, end, w_start, w_end, "in", "pi").ok());
}

void couple(BeamModel& model, double magnitude, double at) {
    EXPECT_TRUE(add_moment(model, magnitude, at, "in", "pi").ok());
}

void simple_support(BeamModel& model, double at) {
    EXPECT_TRUE(add_support(model, at, "simp", "in", "lb").ok());
}

void fixed_support(BeamModel& model, double at) {
    EXPECT_TRUE(add_support(model, at, "cant", "in", "lb").ok());
}

double flexural_rigidity(const BeamModel& model) {
    return static_cast<double>(model.elastic_modulus) * model.moment_of_inertia;
}

}  // namespace flexley::testing_beams
